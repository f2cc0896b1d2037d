#pragma once

#include "2d/data/markjump.h"
#include "2d/view/chartsteering.h"
#include "2d/view/curveview.h"

class FiguresPanel;
class MarkEditing;
struct ChartSituation;

/// The chart widget: a chart with curves and markers, and what its user does to it with mouse,
/// keyboard, context menu and clipboard.
class GraphicsBase : public CurveView
{
    Q_OBJECT

public:
    /// \a kind: 0 cartesian, 1 polar; anything else builds a view without a chart.
    explicit GraphicsBase(int kind, QWidget *parent = nullptr);
    ~GraphicsBase() override;

    /// Where the file dialogs start; "./" at first, ends with a slash.
    QString defaultDirectory() const;
    void setDefaultDirectory(const QString &directory);
    /// What setSeriesName() was given last, or the name in the file that was imported last.
    QString seriesName() const;

    /// Stretches the range shown about \a centre; the caller applies it to the axes.
    void setLimitXY(const QPointF &centre, const double &factor);
    /// Sends the selected marker of the selected curve along it, or puts one there. False without a
    /// curve or such a place.
    bool jumpMark(MarkJump jump);
    /// Gives the axes the titles and the scale of the time chart, in the current language.
    void retitle();

signals:
    void doubleClick(const GraphicsBase *view);
    /// The figures of the selected curve are to be shown, or there are none to show any more.
    void updateParaInfoToTable(ParaInfo paraInfo);
    void clearParaInfoToTable();
    /// The user has written the curve \a pathId to \a fileName.
    void curveExported(int pathId, const QString &fileName);
    /// The user shows another range.
    void rangeChanged();

public slots:
    /// Keeps the name for seriesName(): exports carry the names of their curves.
    void setSeriesName(QString name) override;
    /// Leaves the pan mode and shows the range anew.
    void panResetSlot();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseDoubleClickEvent(QMouseEvent *event) override;
    void wheelEvent(QWheelEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dragMoveEvent(QDragMoveEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private slots:
    void copySlot();
    void pasteSlot();
    void addMarkSlot();
    void deleteMarkSlot();
    void showOrHideMarkTableSlot();
    void showOrHideParameterTableSlot();
    void importGraphicsDataSlot();
    void exportGraphicsDataSlot();
    void exportGraphicsImageSlot();
    void managerGraphicsSlot();
    void clearSelectionSlot();
    void zoomSlot();
    void resetSlot();
    void panSlot();
    void setAcceptDropsStatus(bool status);

private:
    QWidget *dialogParent() override { return window(); }
    void noteExport(int pathId, const QString &fileName) override;

    void followSelection();
    void showFigures(PathInfo &path);
    bool pressControlKey(int key);
    bool pressKey(int key);
    bool isForCurvesAlone(const QPointF &place) const;
    void pressCurves(QMouseEvent *event);
    void handDragOver(const QPointF &place);
    void zoomAbout(const QPointF &centre, double factor);
    void showRange(const ViewRange &range);
    ChartSituation situation() const;
    void showMenu(const QPoint &position);

    std::unique_ptr<MarkEditing> m_markEditing;
    std::unique_ptr<FiguresPanel> m_figures;
    ChartSteering m_steering;
    CurveExchange m_exchange;
    QString m_seriesName;
    int m_selectedPathId = 0; ///< as the figures know; 0: none
    QPointF m_menuPosition;   ///< where the context menu was opened, on the scene
};
