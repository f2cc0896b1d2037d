#pragma once

#include "2d/form/curveset.h"

#include <QStringList>

class ListChart;
struct ReadCurve;

/// What became of files that were to be opened.
struct CurveImport
{
    bool cancelled = false; ///< nothing was opened then
    QStringList opened;     ///< absolute paths
    QStringList failures;   ///< one sentence a file that could not be read
    QStringList remarks;    ///< one sentence a thing in a file that may surprise its author
};

/// What is known of \a curve.
CurveRecord recordOf(const ReadCurve &curve);

/// Reads \a files and adds their curves to \a form, all of them or, when the user cancels,
/// none. Shows how far it is when that takes longer than \a patience in milliseconds; asks for
/// another name where one is taken.
CurveImport importCurves(ListChart &form, const QStringList &files, int patience = 400);
