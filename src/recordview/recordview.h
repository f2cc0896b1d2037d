#pragma once

#include <QMainWindow>
#include <QStringList>

#include <memory>

class QAction;
class QLabel;
class QProgressBar;
class QToolButton;
class RecordChart;
class RecordLoader;
class RecordReader;
class RecordTables;
struct PointRange;

/// A window with a record that is opened again: its level against the clock time, two cursors, and
/// what they tell. Files that grow are followed.
class RecordView : public QMainWindow
{
    Q_OBJECT

public:
    /// A window that deletes itself when it is closed.
    explicit RecordView(QWidget *parent = nullptr);
    ~RecordView() override;

    /// Asks for the files of a record, several of which are joined; empty when the user cancels.
    static QStringList askForFiles(QWidget *parent, const QString &folder);

    /// Reads \a paths without holding the window up, in place of what it shows.
    void open(const QStringList &paths);
    bool isLoading() const { return m_loader != nullptr; }
    /// Null before the first record has been read.
    const RecordReader *reader() const { return m_reader.get(); }
    RecordChart *chart() const { return m_chart; }

    /// Saves what the chart shows as a PNG picture; false when that failed, of which the user is
    /// told.
    bool savePicture(const QString &path);
    /// Saves the rows between the cursors or, while one of them is missing, those in view.
    bool saveRows(const QString &path);

protected:
    void changeEvent(QEvent *event) override;
    void dragEnterEvent(QDragEnterEvent *event) override;
    void dropEvent(QDropEvent *event) override;

private:
    void createMenus();
    void createStatusBar();
    void retranslate();
    void finishLoading();
    void follow();
    void showCursors();
    void showState();
    void askAndOpen(bool add);
    void askAndSavePicture();
    void askAndSaveRows();
    std::vector<PointRange> chosenRanges() const;
    bool warn(const QString &text);

    RecordChart *m_chart;
    RecordTables *m_tables;
    QLabel *m_state;
    QProgressBar *m_progress;
    QToolButton *m_cancel;
    QTimer *m_followTimer;
    std::unique_ptr<RecordReader> m_reader;
    RecordLoader *m_loader = nullptr;

    QMenu *m_fileMenu = nullptr;
    QMenu *m_viewMenu = nullptr;
    QAction *m_open = nullptr;
    QAction *m_add = nullptr;
    QAction *m_savePicture = nullptr;
    QAction *m_saveRows = nullptr;
    QAction *m_copy = nullptr;
    QAction *m_close = nullptr;
    QAction *m_showAll = nullptr;
    QAction *m_zoomIn = nullptr;
    QAction *m_zoomOut = nullptr;
    QAction *m_fitLevel = nullptr;
    QAction *m_follow = nullptr;
};
