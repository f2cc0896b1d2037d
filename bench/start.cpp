// Shows one window, prints the processor time from the start of the process to the end of the first
// painting in ms, and ends. "console" shows the console, "chart" an empty window with a chart.
#include "appinit.h"
#include "frame/appstyle.h"
#include "frame/lateicon.h"
#include "mainwindow.h"
#include "messagelog.h"

#include <QApplication>
#include <QChart>
#include <QChartView>
#include <QTimer>
#include <QValueAxis>

#include <cstdio>
#include <ctime>
#include <memory>

namespace {

/// Ends the program once a window was painted.
class FirstPaint : public QObject
{
public:
    bool eventFilter(QObject *watched, QEvent *event) override
    {
        if (event->type() == QEvent::Paint && !m_seen) {
            m_seen = true;
            // After this round of painting, which goes through all widgets at one go.
            QTimer::singleShot(0, this, [] {
                std::printf("%.3f\n", 1000.0 * static_cast<double>(std::clock()) / CLOCKS_PER_SEC);
                QCoreApplication::quit();
            });
        }
        return QObject::eventFilter(watched, event);
    }

private:
    bool m_seen = false;
};

std::unique_ptr<QMainWindow> makeConsole()
{
    qInstallMessageHandler(MessageLog::handler);
    QApplication::setFont(AppStyle::applicationFont());
    QApplication::setWindowIcon(LateIcon::of(QStringLiteral(":/image/pt.ico")));
    AppStyle::applyStyleSheet();
    AppInit::Instance()->start();
    return std::make_unique<MainWindow>();
}

std::unique_ptr<QMainWindow> makeChartWindow()
{
    auto *chart = new QtCharts::QChart;
    chart->addAxis(new QtCharts::QValueAxis, Qt::AlignBottom);
    chart->addAxis(new QtCharts::QValueAxis, Qt::AlignLeft);
    auto window = std::make_unique<QMainWindow>();
    window->setCentralWidget(new QtCharts::QChartView(chart));
    window->resize(1000, 600);
    return window;
}

} // namespace

int main(int argc, char **argv)
{
    AppStyle::enableHighDpi();
    QApplication app(argc, argv);
    FirstPaint firstPaint;
    app.installEventFilter(&firstPaint);
    const bool console = QApplication::arguments().contains(QStringLiteral("console"));
    const auto window = console ? makeConsole() : makeChartWindow();
    window->show();
    return QApplication::exec();
}
