#pragma once

#include "2d/data/curvefigures.h"
#include "2d/data/patternscale.h"
#include "2d/data/polarorientation.h"
#include "2d/data/supplementtext.h"
#include "2d/form/curveset.h"

#include <QStringList>
#include <QWidget>

#include <memory>

class CurveTableModel;
class GraphicsBase;
class PointTableModel;
class QAction;
class QLabel;

namespace Ui {
class ListChart;
}

/// A form around a polar and a cartesian chart of the same antenna patterns: the list of the curves
/// with their frequencies and materials, a table of their points, the parameters of every pattern
/// that is shown, and apart from them the textbook figures.
class ListChart : public QWidget
{
    Q_OBJECT

public:
    explicit ListChart(QWidget *parent = nullptr);
    ~ListChart() override;

    GraphicsBase &polarChart() const { return *m_polar; }
    GraphicsBase &cartesianChart() const { return *m_cartesian; }
    CurveSet &curves() const { return *m_curves; }

    /// Adds a curve, after asking for another name when \a name is taken. A frequency that the
    /// record leaves open is looked for in the name. Returns the curve's number, 0 when the
    /// user cancels.
    int addCurve(const QString &name, const QVector<QPointF> &points, CurveRecord record = {});

    /// The title of the charts: what the user wrote, else what the curves' files say.
    QString title() const;

    /// The figures of the curves that are shown and have points, in the order of the tables.
    const QVector<CurveFigures> &figures() const { return m_figures; }
    /// The headings of the pattern parameters behind the frequency.
    QStringList parameterHeadings() const;
    QStringList supplementaryHeadings() const;
    const SupplementColumns &supplementColumns() const { return m_columns; }
    /// Both tables of figures as text: columns parted by tabs, lines by line feeds.
    QString parameterText() const;

    /// Offers \a action for the curve that is selected in the list.
    void addCurveAction(QAction *action);

public slots:
    /// Chooses the ranges of both charts from the curves that are shown, now and as curves come.
    void fitToData();
    /// The same, but levels that the user chose stay.
    void fit();
    /// Shows levels from \a min to \a max dB in both charts, whatever curves come. Does nothing
    /// when that is no range.
    void setLevels(double min, double max);
    /// Turns the polar chart.
    void setPolarView(const PolarView &view);
    /// Computes the supplementary figures with nulls of at least so many dB of prominence.
    void setNullProminence(double prominence);
    /// Tells the main lobe's width, and shows its edges in both charts, at so many dB below the
    /// peak.
    void setBeamLevels(const QVector<double> &drops);
    /// Mirrors the drawing of all curves, or draws them as they are again.
    void setSymmetry(bool on);
    /// Shows or hides the marker lines of the pattern parameters.
    void setParameterLines(bool on);
    /// Lets the user edit names, colours, line widths and visibility of all curves.
    void manageCurves();

signals:
    /// Files were dropped onto the form.
    void filesDropped(const QStringList &files);
    /// The title() is another one now.
    void titleChanged();
    /// The user chose what makes a minimum a null, dB.
    void nullProminenceChosen(double prominence);
    /// Something to tell the user that needs no answer.
    void message(const QString &text);

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void setUpCharts();
    void setUpTables();
    void connectParts();
    void retitleCharts();
    void showTitle();
    void refresh();
    void refreshPoints();
    void refreshFigures();
    void showSelection(int id);
    void followLevels(const GraphicsBase &view);
    void setUpHint();
    void showLevels(double min, double max);
    void applyLevelFields();

    std::unique_ptr<Ui::ListChart> ui;
    GraphicsBase *m_polar;
    GraphicsBase *m_cartesian;
    std::unique_ptr<CurveSet> m_curves;
    CurveTableModel *m_curveModel;
    PointTableModel *m_pointModel;
    QLabel *m_hint = nullptr; ///< seen while there is no curve
    QVector<CurveFigures> m_figures;
    QList<int> m_shownIds; ///< the curves at the last refresh
    QString m_ownTitle;    ///< as the user wrote it; empty: from the files
    AxisScale m_levels;    ///< the level axis of both charts, dB
    FigureOptions m_options;
    SupplementColumns m_columns;
    bool m_ownLevels = false; ///< the user chose the levels
};
