#pragma once

#include "mainwindow.h"
#include "modalscript.h"
#include "testfiles.h"

#include <QStringList>

#include <memory>

class SimulatorProcess;

QT_BEGIN_NAMESPACE
namespace QtCharts {
class QValueAxis;
}
QT_END_NAMESPACE

/// A console with its widgets by name, and the box that an instrument makes it show.
class ConsoleTester
{
public:
    /// Removes what an earlier console left beside the test program, and makes a new one.
    ConsoleTester();
    /// The same, connected to \a simulator; the test program ends if it cannot.
    explicit ConsoleTester(SimulatorProcess &simulator);
    ~ConsoleTester();

    /// Ends the console, which writes its settings, and starts another one.
    void restart();
    /// Ends the console.
    void end() { m_window.reset(); }

    MainWindow &window() const { return *m_window; }

    template<typename T>
    T *find(const char *name) const
    {
        T *found = m_window->findChild<T *>(QLatin1String(name));
        Q_ASSERT_X(found != nullptr, "ConsoleTester", name);
        return found;
    }

    /// Switches to LAN and connects to \a simulator.
    bool connectTo(SimulatorProcess &simulator) const;

    /// Presses the button called \a name.
    void click(const char *name) const;
    /// Triggers the action called \a name.
    void trigger(const char *name) const;

    QString text(const char *label) const;
    bool isEnabled(const char *widget) const;
    bool isRunning(const char *timer) const;
    /// The points of the time chart.
    QVector<QPointF> chartPoints() const;

    QtCharts::QValueAxis *timeAxis() const;

    /// What is not as it must be while the link is open (or not); empty when all is well.
    QStringList faultsOfState(bool open) const;

    /// Removes the settings, the records and the logs beside the test program.
    static void cleanFolder();
    /// A file beside the test program.
    static QString path(const QString &name);

private:
    std::unique_ptr<MainWindow> m_window;
};

/// The commands that \a simulator has heard, without the polls.
QStringList settingsOf(SimulatorProcess &simulator);

/// The commands that a console sends when it opens the link, in their order.
extern const QStringList startUpQueries;

/// A step that reads a message box into \a seen as "title: text" and closes it.
ModalScript::Step readBox(QStringList &seen);
