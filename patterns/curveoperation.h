#pragma once

#include <QString>

class CurveDesk;
class CurveSet;

/// One entry of the *Edit* menu that makes new curves of those in the window.
///
/// An operation never changes a curve: it computes, and hands the result with a description of what
/// it did to CurveDesk::addDerived(), which puts it beside the original, makes it one step of the
/// undo stack, and shows the description in tool tip and report. editOperations() lists them.
class CurveOperation
{
public:
    virtual ~CurveOperation() = default;

    /// The entry in the current language, with its mnemonic; ends in "..." when it asks something.
    virtual QString text() const = 0;
    /// A sentence for the status bar.
    virtual QString tip() const = 0;
    /// Whether the entry can be chosen. Unless said otherwise that takes a selected curve with
    /// points.
    virtual bool isPossible(const CurveSet &curves) const;
    /// Runs the operation, questions included. Says by \a desk what went wrong.
    virtual void run(CurveDesk &desk) = 0;
};
