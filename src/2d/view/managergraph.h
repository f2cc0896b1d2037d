#pragma once

#include <QColor>
#include <QDialog>
#include <QMap>

#include <memory>

class MyCheckBox;
class MyComboBox;
class MyPushButton;
class PathInfo;

namespace Ui {
class ManagerGraph;
}

/// The dialog in which the look of all curves of a chart is edited: one column a curve, one row a
/// property. State, colour and width act at once, the descriptions with OK.
class ManagerGraph : public QDialog
{
    Q_OBJECT

public:
    explicit ManagerGraph(QWidget *parent = nullptr);
    ~ManagerGraph() override;

signals:
    /// Names were written back: the chart has to lay itself out anew.
    void updataResize();

public slots:
    /// Shows the curves of \a map, keyed by path id; they must outlive the dialog's use of them.
    void updatePathInfo(QMap<int, PathInfo *> map);
    void colorSelected(int index, QColor color);
    void widthSelected(int index, int widthIndex);
    void isHide(int index, bool checked);
    void on_pushButtonDefault_clicked();
    void on_pushButtonOK_clicked();
    /// Gives every curve back the look it had.
    void reject() override;
    void cellChanged(int row, int column);

private:
    /// What a curve looked like when the dialog was filled.
    struct Backup
    {
        bool visible = true;
        QColor color;
        int lineWidth = 0;
    };

    void setUpTable();
    void alignLabels();
    void addColumn(PathInfo *path);
    void addTexts(int column, const PathInfo &path);
    void addStateCell(int column, const PathInfo &path);
    void addColorCell(int column, const PathInfo &path);
    void addWidthCell(int column, const PathInfo &path);
    QString description(int column) const;
    void setDescription(int column, const QString &text);
    bool isTaken(const QString &name, int exceptColumn) const;
    bool settleNames();

    std::unique_ptr<Ui::ManagerGraph> ui;
    QMap<int, PathInfo *> m_paths;
    QMap<int, MyCheckBox *> m_stateCells;
    QMap<int, MyComboBox *> m_widthCells;
    QMap<int, MyPushButton *> m_colorCells;
    QMap<int, Backup> m_backups;
};
