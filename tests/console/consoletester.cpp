#include "consoletester.h"

#include "2d/view/graphicsbase.h"
#include "frame/appstyle.h"
#include "simulatorprocess.h"

#include <QAbstractButton>
#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QTimer>
#include <QtCharts/QChart>
#include <QtCharts/QLineSeries>
#include <QtCharts/QValueAxis>

ConsoleTester::ConsoleTester()
    : m_window(std::make_unique<MainWindow>())
{
    m_window->show();
}

ConsoleTester::ConsoleTester(SimulatorProcess &simulator)
    : ConsoleTester()
{
    if (!connectTo(simulator))
        qFatal("the console has no link");
}

ConsoleTester::~ConsoleTester() = default;

void ConsoleTester::restart()
{
    m_window.reset();
    m_window = std::make_unique<MainWindow>();
    m_window->show();
}

bool ConsoleTester::connectTo(SimulatorProcess &simulator) const
{
    if (!find<QAction>("actionCommunication_by_LAN")->isChecked())
        trigger("actionCommunication_by_LAN");
    return m_window->openPort(simulator.address(), simulator.port());
}

void ConsoleTester::click(const char *name) const
{
    find<QAbstractButton>(name)->click();
}

void ConsoleTester::trigger(const char *name) const
{
    find<QAction>(name)->trigger();
}

QString ConsoleTester::text(const char *label) const
{
    return find<QLabel>(label)->text();
}

bool ConsoleTester::isEnabled(const char *widget) const
{
    return find<QWidget>(widget)->isEnabled();
}

bool ConsoleTester::isRunning(const char *timer) const
{
    return find<QTimer>(timer)->isActive();
}

QVector<QPointF> ConsoleTester::chartPoints() const
{
    const auto series = m_window->findChild<GraphicsBase *>()->chart()->series();
    return series.isEmpty()
               ? QVector<QPointF>()
               : qobject_cast<QtCharts::QLineSeries *>(series.constFirst())->pointsVector();
}

QtCharts::QValueAxis *ConsoleTester::timeAxis() const
{
    const auto axes = m_window->findChild<GraphicsBase *>()->chart()->axes(Qt::Horizontal);
    return qobject_cast<QtCharts::QValueAxis *>(axes.value(0));
}

QStringList ConsoleTester::faultsOfState(bool open) const
{
    QStringList faults;
    const auto expect = [&faults](bool actual, bool wanted, const char *what) {
        if (actual != wanted)
            faults.append(QLatin1String(what));
    };
    for (const char *group :
         {"groupBoxFrquency", "groupBoxOffset", "groupBoxAverageCount", "groupBoxRelState",
          "groupBoxUnit", "groupBoxSystem", "groupBoxChart", "groupBoxStatistics"})
        expect(isEnabled(group), open, group);
    for (const char *action : {"actionStart", "actionStop", "actionIP_Config"})
        expect(find<QAction>(action)->isEnabled(), open, action);
    for (const char *timer : {"readTimer", "saveTimer"})
        expect(isRunning(timer), open, timer);
    expect(isEnabled("groupBoxConnection"), true, "groupBoxConnection");

    const bool serial = find<QAction>("actionCommunication_by_Serial")->isChecked();
    expect(find<QAction>("actionCommunication_by_LAN")->isChecked(), !serial,
           "one mode is checked");
    expect(isEnabled("comboBoxCom"), !(serial && open), "comboBoxCom");
    expect(isEnabled("btnOpen"), !(serial && open), "btnOpen");
    expect(isEnabled("btnClose"), serial && open, "btnClose");
    return faults;
}

void ConsoleTester::cleanFolder()
{
    // A test may have put a file into the place of a folder, or a folder into that of a file.
    for (const char *name : {"DataRecord", "Log", "config.ini"}) {
        QFile::remove(path(QLatin1String(name)));
        QDir(path(QLatin1String(name))).removeRecursively();
    }
}

QString ConsoleTester::path(const QString &name)
{
    return QCoreApplication::applicationDirPath() + QLatin1Char('/') + name;
}

QStringList settingsOf(SimulatorProcess &simulator)
{
    QStringList commands = simulator.commands();
    commands.removeAll(QStringLiteral("GET?"));
    return commands;
}

const QStringList startUpQueries{QStringLiteral("*IDN?"),      QStringLiteral("FREQ?"),
                                 QStringLiteral("AVER:COUN?"), QStringLiteral("REL?"),
                                 QStringLiteral("OFFS?"),      QStringLiteral("UNIT:POW?")};

ModalScript::Step readBox(QStringList &seen)
{
    return [&seen](QWidget *window) {
        const auto *box = qobject_cast<QMessageBox *>(window);
        seen.append(box != nullptr ? box->windowTitle() + QStringLiteral(": ") + box->text()
                                   : QStringLiteral("no message box"));
        window->close();
    };
}
