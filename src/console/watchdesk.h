#pragma once

#include "watch/readingstatistics.h"
#include "watch/reconnector.h"
#include "watch/watchsettings.h"

#include <QObject>
#include <QStringList>

#include <optional>

class AlarmNotice;
class LimitsPanel;
class LimitWatch;
class LinkSession;
class SerialLogic;
class StatisticsPanel;
class StatusLabels;
class TimeChart;
class TrafficModel;
class TrafficPanel;

QT_BEGIN_NAMESPACE
class QAction;
class QDockWidget;
class QMainWindow;
class QMenu;
class QMimeData;
namespace Ui {
class MainWindow;
}
QT_END_NAMESPACE

/// What the console offers for long watches: the panels of the View menu, the link that is opened
/// again by itself, and records that are opened again. Nothing of it shows or does anything before
/// the user switches it on.
class WatchDesk : public QObject
{
    Q_OBJECT

public:
    /// The parts of the console that are watched.
    struct Console
    {
        QMainWindow *window;
        Ui::MainWindow *form;
        SerialLogic *link;
        LinkSession *session;
        TimeChart *chart;
        StatusLabels *status;
    };

    explicit WatchDesk(const Console &console);
    ~WatchDesk() override;

    /// The link was lost for \a reason: true when it will be opened again, so that no box is to
    /// come up.
    bool takesLoss(const QString &reason);
    /// An open has failed for \a reason: true when it was a try to get the link back.
    bool takesFailure(const QString &reason);
    /// Whether the link is being opened again, or waited for.
    bool isReconnecting() const { return m_reconnector.isActive(); }

    /// Ends the tries; the user wants another link, or none.
    void endTries();

    /// Opens the files as one record in a window of its own.
    void openRecord(const QStringList &paths);
    /// Shows the texts in the current language.
    void retranslate();
    /// Writes what is remembered, if it is not as in a new console.
    void save() const;

    /// Opens records that are dropped on the window or on its chart.
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void createMenus();
    void placeAlarm();
    void createPanels();
    void setUpDock(QDockWidget *dock, const char *name, Qt::DockWidgetArea area);
    QWidget *makeStatisticsPanel();
    QWidget *makeLimitsPanel();
    QWidget *makeTrafficPanel();
    void connectReadings();
    void connectTraffic();
    void connectReconnector();
    void load();

    void takeReading(const Reading &reading);
    void takeFrequency(double value, const QString &unit);
    void takeRelativeState(const QString &state);
    void beginAnew();
    void showStatistics();
    void tryOpening(const QString &name, int value);
    void showReconnecting();
    void askForRecord();

    Console m_console;
    QMenu *m_viewMenu = nullptr;
    QAction *m_openRecord = nullptr;
    QAction *m_reconnect = nullptr;
    QDockWidget *m_statisticsDock;
    QDockWidget *m_limitsDock;
    QDockWidget *m_trafficDock;

    ReadingStatistics m_statistics;
    StatisticsPanel *m_statisticsPanel = nullptr; ///< from its first showing on, as the other two
    LimitWatch *m_limits;
    LimitsPanel *m_limitsPanel = nullptr;
    AlarmNotice *m_alarm;
    TrafficModel *m_traffic;
    TrafficPanel *m_trafficPanel = nullptr;
    Reconnector m_reconnector;
    Reconnector::Target m_target; ///< of the link that was opened last
    bool m_isTrying = false;      ///< the open under way is one of the tries
    bool m_hasFailed = false;     ///< and it failed, other than by the user's wish

    std::optional<double> m_frequency; ///< Hz, as the instrument told it
    std::optional<double> m_offset;    ///< dB
    bool m_isRelative = false;
    WatchSettings m_settings; ///< as they were read
    bool m_wasPanelShown = false;
};
