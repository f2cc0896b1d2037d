#pragma once

#include "patterns/losscorrection.h"

#include <QMainWindow>
#include <QStringList>

#include <memory>

class ListChart;
class Workbench;

namespace Ui {
class PatternWindow;
}

/// One window of the workbench: a list chart form with everything that files, clipboard, printer
/// and loss tables do for it.
class PatternWindow : public QMainWindow
{
    Q_OBJECT

public:
    /// \a workbench must outlive the window.
    explicit PatternWindow(Workbench &workbench, QWidget *parent = nullptr);
    ~PatternWindow() override;

    ListChart &form() const;

    /// Opens curve files and tells the operator what was wrong with any of them.
    void openFiles(const QStringList &files);

    /// These write the file whole or leave it as it was, and tell the operator what went wrong.
    bool saveCurve(const QString &file);
    bool savePicture(const QString &file);
    /// HTML, or PDF for a file of that suffix.
    bool saveReport(const QString &file);

    bool loadLossTable(const QString &file);
    /// Adds the selected curve's levels, corrected by the loss at its frequency, as a new curve.
    void applyLoss(LossCorrection::Link link);

protected:
    void changeEvent(QEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_actionNewWindow_triggered();
    void on_actionOpen_triggered();
    void on_actionOpenSamples_triggered();
    void on_actionSaveCurve_triggered();
    void on_actionSavePicture_triggered();
    void on_actionSaveReport_triggered();
    void on_actionPrint_triggered();
    void on_actionCopyCurve_triggered();
    void on_actionPasteCurve_triggered();
    void on_actionCopyParameters_triggered();
    void on_actionRemoveCurve_triggered();
    void on_actionLoadLoss_triggered();
    void on_actionAbout_triggered();

private:
    void connectActions();
    void setUpLanguages();
    void showRecentFiles();
    void updateActions();
    void tell(const QString &text);
    void warn(const QString &text, const QStringList &details = {});
    QString askSaveName(const QString &caption, const QString &name, const QString &suffix,
                        const QString &filters);
    bool save(const QString &file, const QByteArray &content);

    Workbench &m_workbench;
    std::unique_ptr<Ui::PatternWindow> ui;
};
