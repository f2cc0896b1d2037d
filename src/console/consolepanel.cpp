#include "console/consolepanel.h"

#include "console/linksession.h"
#include "console/recordkeeper.h"
#include "frame/appstyle.h"
#include "storage/consolesettings.h"
#include "storage/recordfile.h"
#include "storage/writecheck.h"
#include "ui_mainwindow.h"

#include <QActionGroup>
#include <QDateTime>
#include <QDir>
#include <QFileInfo>
#include <QListView>
#include <QLocale>
#include <QScrollBar>
#include <QSerialPortInfo>

#include <algorithm>

namespace {

constexpr int scrollBarGap = 6; // between the panel and its scroll bar

} // namespace

ConsolePanel::ConsolePanel(Ui::MainWindow *form, QMainWindow *window)
    : m_ui(form)
    , m_window(window)
    , m_power({form->labelCurrentPower, form->labelPowerUnit, form->labelShowText,
               form->labelReadingState})
{
    auto *languages = new QActionGroup(window);
    languages->addAction(m_ui->actionCN);
    languages->addAction(m_ui->actionEN);
    m_ui->actionHelp->setVisible(false);
    m_ui->mainToolBar->hide();
    m_ui->menuTools->menuAction()->setVisible(false);
    setShortcuts();
    m_ui->scrollPanel->take(m_ui->viewport, m_ui->panel);
    // The window's ground is to be seen between the groups.
    m_ui->scrollPanel->viewport()->setAutoFillBackground(false);
    m_ui->panel->setAutoFillBackground(false);
    m_ui->comboBoxCom->setView(new QListView(m_ui->comboBoxCom));
    m_ui->doubleSpinBoxFreq->installEventFilter(window);
    m_ui->doubleSpinBoxOffset->installEventFilter(window);
    m_ui->spinBoxAverageCount->installEventFilter(window);
}

void ConsolePanel::retranslate()
{
    m_ui->retranslateUi(m_window);
    setShortcuts();
}

void ConsolePanel::setShortcuts()
{
    // A button forgets its shortcut with every new text, so the form cannot hold them.
    m_ui->btnResetChart->setShortcut(Qt::Key_F5);
    m_ui->btnReset->setShortcut(Qt::Key_F6);
    m_ui->btnSetZero->setShortcut(Qt::Key_F7);
    m_ui->btnCalibration->setShortcut(Qt::Key_F8);
}

void ConsolePanel::showLinkState(LinkMode mode, bool open)
{
    m_ui->groupBoxConnection->setEnabled(true);
    for (QGroupBox *group :
         {m_ui->groupBoxFrquency, m_ui->groupBoxOffset, m_ui->groupBoxAverageCount,
          m_ui->groupBoxRelState, m_ui->groupBoxSystem, m_ui->groupBoxUnit, m_ui->groupBoxChart,
          m_ui->groupBoxStatistics})
        group->setEnabled(open);
    for (QAction *action : {m_ui->actionStart, m_ui->actionStop, m_ui->actionIP_Config})
        action->setEnabled(open);

    const bool serial = mode == serialLink;
    m_ui->comboBoxCom->setEnabled(!(serial && open));
    m_ui->btnOpen->setEnabled(!(serial && open));
    m_ui->btnClose->setEnabled(serial && open);

    m_ui->actionCommunication_by_Serial->setChecked(serial);
    m_ui->actionCommunication_by_LAN->setChecked(!serial);
    m_ui->actionOpen->setVisible(serial);
    m_ui->actionClose->setVisible(serial);
    m_ui->actionConnect->setVisible(!serial);
    m_ui->actionDisconnect->setVisible(!serial);
}

void ConsolePanel::refreshPorts()
{
    QStringList names;
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        names.append(port.portName());
    if (names == m_knownPorts)
        return;
    m_knownPorts = names;
    const QString chosen = m_ui->comboBoxCom->currentText();
    if (!m_unlistedPort.isEmpty() && !names.contains(m_unlistedPort))
        names.append(m_unlistedPort);
    m_ui->comboBoxCom->clear();
    m_ui->comboBoxCom->addItems(names);
    m_ui->comboBoxCom->setCurrentText(chosen);
}

void ConsolePanel::showPort(const QString &name)
{
    if (!name.isEmpty() && m_ui->comboBoxCom->findText(name) < 0) {
        m_unlistedPort = name;
        m_ui->comboBoxCom->addItem(name);
    }
    m_ui->comboBoxCom->setCurrentText(name);
}

void ConsolePanel::showReading(const LinkSession &session)
{
    const Reading &reading = session.reading();
    auto state = PowerDisplay::State::Live;
    if (session.state() == LinkSession::State::Closed)
        state = PowerDisplay::State::NotConnected;
    else if (!reading.isValid())
        state = PowerDisplay::State::NoReading;
    else if (session.freshness() == LinkSession::Freshness::Stale)
        state = PowerDisplay::State::Stale;
    m_power.show(reading, state, session.readingAge());
}

void ConsolePanel::fit()
{
    QWidget *panel = m_ui->panel;
    QScrollArea *area = m_ui->scrollPanel;
    int width = panel->sizeHint().expandedTo(panel->minimumSize()).width();
    if (panel->minimumSizeHint().height() > area->height())
        width += area->verticalScrollBar()->sizeHint().width() + scrollBarGap;
    area->setFixedWidth(width);
    constexpr int margins = 120; // around and between the labels
    const int room = std::min(m_window->width(), m_ui->centralWidget->width());
    m_power.fit({room - width - margins, m_window->height()});
}

int ConsolePanel::recordInterval() const
{
    return m_ui->spinBoxInterval->value();
}

QString ConsolePanel::recordFolder() const
{
    // What is being typed counts once it has been looked at.
    return m_ui->lineEditPath->isModified() ? m_recordFolder : m_ui->lineEditPath->text();
}

std::optional<QString> ConsolePanel::chooseRecordFolder(const QString &folder)
{
    const QString path = QDir(folder).absolutePath();
    std::optional<QString> obstacle;
    if (folder.trimmed().isEmpty())
        obstacle = tr("no folder is named");
    else if (!QFileInfo(path).isDir())
        obstacle = tr("there is no such folder");
    else
        obstacle = WriteCheck::obstacle(RecordFile::path(path, QDate::currentDate()));
    setRecordFolder(obstacle ? recordFolder() : path);
    return obstacle;
}

void ConsolePanel::setRecordFolder(const QString &folder)
{
    m_recordFolder = folder;
    m_ui->lineEditPath->setText(folder);
    m_ui->lineEditPath->setCursorPosition(0); // a long one is cut at the right
    m_ui->lineEditPath->setToolTip(folder);
}

QString ConsolePanel::defaultRecordFolder()
{
    const QDir current;
    if (!current.exists(QStringLiteral("DataRecord")))
        current.mkdir(QStringLiteral("DataRecord"));
    return QStringLiteral("%1/DataRecord").arg(QDir::currentPath());
}

ConsoleSettings ConsolePanel::settings() const
{
    ConsoleSettings settings;
    settings.recordFolder = recordFolder();
    settings.interval = m_ui->spinBoxInterval->value();
    settings.period = m_ui->spinBoxChartPeriod->value();
    return settings;
}

void ConsolePanel::showSettings(const ConsoleSettings &settings)
{
    setRecordFolder(settings.usedRecordFolder());
    m_ui->spinBoxInterval->setValue(settings.interval);
    m_ui->spinBoxChartPeriod->setValue(settings.period);
}

void ConsolePanel::showRecords(const RecordKeeper &records)
{
    const auto clock = [](const QDateTime &when) {
        return QLocale::c().toString(when, QStringLiteral("yyyy-MM-dd hh:mm:ss"));
    };
    const auto &failure = records.failure();
    if (failure)
        m_ui->labelRecord->setText(
            tr("\u26a0 No rows since %1: %2").arg(clock(failure->since), failure->reason));
    else if (records.lastRow().isValid())
        m_ui->labelRecord->setText(tr("Last row: %1").arg(clock(records.lastRow())));
    else
        m_ui->labelRecord->setText(tr("No row yet"));
    m_ui->labelRecord->setProperty("failing", failure.has_value());
    AppStyle::restyle(m_ui->labelRecord);
}
