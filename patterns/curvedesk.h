#pragma once

#include "2d/form/curveset.h"

#include <QPointF>
#include <QString>
#include <QStringList>
#include <QVector>

class CurveHistory;
class ListChart;
class QWidget;
class WindowContext;

/// A curve that was computed of others and is to stand beside them.
struct DerivedCurve
{
    QString name;            ///< numbered when it is taken
    QVector<QPointF> points; ///< angles in degrees, levels in dB
    /// A sentence on what was done, with its inputs: shown in the curve's tool tip and the report.
    QString description;
    /// What is known of the curve that it was made of; its file is not taken over.
    CurveRecord record;
};

/// A window as its menus see it. What acts on curves is given this, and nothing else of the window.
class CurveDesk
{
public:
    virtual ~CurveDesk() = default;

    /// The parent of dialogs.
    virtual QWidget *dialogParent() = 0;
    virtual ListChart &form() const = 0;
    virtual CurveHistory &history() = 0;
    virtual WindowContext &context() = 0;

    /// Says something that needs no answer, in the status bar.
    virtual void tell(const QString &text) = 0;
    /// Shows a warning, with a line for each of \a details.
    virtual void warn(const QString &text, const QStringList &details = {}) = 0;

    /// Replaces \a file by \a content as a whole, remembers its folder and tells it; says what went
    /// wrong and returns false when the file is as it was.
    virtual bool save(const QString &file, const QByteArray &content) = 0;

    /// Shows \a strip below the charts for as long as it lives; the window owns it.
    virtual void addStrip(QWidget *strip) = 0;

    /// Opens the file of a measurement: its curve, or the question whether it goes on.
    virtual void openRun(const QString &file) = 0;

    CurveSet &curves() const;

    /// Adds \a curves beside the others as one step of the history, called \a step in the menu
    /// ("Undo %1"), and selects the last. Returns their numbers.
    QList<int> addDerived(const QString &step, const QVector<DerivedCurve> &curves);
};
