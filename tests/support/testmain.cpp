#include "testmain.h"

#include <QFile>
#include <QFileInfo>
#include <QLocale>
#include <QTemporaryDir>
#include <QTextStream>

#include <algorithm>
#include <array>

namespace {

constexpr std::array<const char *, 19> forbiddenMarks{
    "connectSlotsByName",
    "QObject::connect",
    "QObject::disconnect",
    "QLayout",
    "QWidget::",
    "QPainter::",
    "QPixmap::",
    "QMovie",
    "QFont::",
    "QTimer",
    "QGraphicsScene::",
    "Could not parse",
    "Unknown property",
    "QCssParser",
    "QMetaObject",
    "QSocketNotifier",
    "QAbstractSocket::",
    "device not open",
    "Cannot open file ':/",
};

bool isForbidden(const QString &line)
{
    return line.startsWith(QLatin1String("QWARN")) &&
           std::any_of(forbiddenMarks.begin(), forbiddenMarks.end(),
                       [&line](const char *mark) { return line.contains(QLatin1String(mark)); });
}

/// The lines of QtTest's log in \a path that no program of ours may cause.
QStringList complaintsIn(const QString &path)
{
    QFile log(path);
    if (!log.open(QIODevice::ReadOnly | QIODevice::Text))
        return {QStringLiteral("the log of the test cannot be read: ") + path};
    QStringList complaints;
    QTextStream lines(&log);
    QString line;
    while (lines.readLineInto(&line)) {
        if (isForbidden(line))
            complaints.append(line);
    }
    return complaints;
}

struct Known
{
    TestMain::Registration::Maker make;
    bool needsWidgets;
};

/// By their programs' names. Made at its first use, since other sources' globals fill it.
QMap<QString, Known> &knownTests()
{
    static QMap<QString, Known> known;
    return known;
}

/// The number of failures of \a test, plus one for forbidden warnings.
int runWatched(QObject &test, QStringList arguments)
{
    // QtTest replaces any message handler while it runs, so its own log is what there is to look
    // at.
    const QTemporaryDir folder;
    const QString log = folder.filePath(QStringLiteral("log.txt"));
    arguments << QStringLiteral("-maxwarnings") << QStringLiteral("0") << QStringLiteral("-o")
              << QStringLiteral("-,txt") << QStringLiteral("-o") << log + QStringLiteral(",txt");

    const int failures = QTest::qExec(&test, arguments);
    const QStringList complaints = complaintsIn(log);
    for (const QString &complaint : complaints)
        QTextStream(stderr) << "FORBIDDEN: " << complaint << '\n';
    return complaints.isEmpty() ? failures : failures + 1;
}

} // namespace

namespace TestMain {

Registration::Registration(const QMetaObject &test, bool needsWidgets, Maker make)
{
    const QString name = QString::fromLatin1(test.className()).mid(int(qstrlen("Test"))).toLower();
    knownTests().insert(QStringLiteral("tst_") + name, {make, needsWidgets});
}

void pinEnvironment()
{
    if (qEnvironmentVariableIsEmpty("MZ_TEST_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
#ifdef Q_OS_WIN
    // QtTest tells debuggers alone where there is no console.
    qputenv("QT_FORCE_STDERR_LOGGING", "1");
    // The platform without a screen looks for fonts beside Qt, which brings none.
    if (qEnvironmentVariableIsEmpty("QT_QPA_FONTDIR"))
        qputenv("QT_QPA_FONTDIR", qgetenv("WINDIR") + "\\Fonts");
#endif
    qputenv("TZ", "UTC");
    // The programs show and read numbers with a point in every language.
    const QByteArray language = qgetenv("MZ_TEST_LOCALE");
    qputenv("LC_ALL", language.isEmpty() ? QByteArray("C.UTF-8") : language);
    qputenv("QT_FONT_DPI", "96");
    qputenv("QT_SCALE_FACTOR", "1");
    qputenv("QT_AUTO_SCREEN_SCALE_FACTOR", "0");
    QLocale::setDefault(QLocale::c());
}

int run(int argc, char **argv)
{
    const QString name = QFileInfo(QString::fromLocal8Bit(argv[0])).completeBaseName();
    if (!knownTests().contains(name)) {
        QTextStream(stderr) << "There is no test \"" << name << "\" here, but "
                            << knownTests().keys().join(QStringLiteral(", ")) << '\n';
        return EXIT_FAILURE;
    }
    const Known known = knownTests().value(name);
    pinEnvironment();
    const std::unique_ptr<QCoreApplication> application(
        known.needsWidgets ? new QApplication(argc, argv) : new QCoreApplication(argc, argv));
    QStringList arguments;
    for (int i = 0; i < argc; ++i)
        arguments.append(QString::fromLocal8Bit(argv[i]));
    // Gone before the application is, as its widgets must be.
    const std::unique_ptr<QObject> test = known.make();
    return runWatched(*test, arguments);
}

} // namespace TestMain
