#include "2d/curvefrequency.h"
#include "2d/patternscale.h"
#include "module/formulacalc.h"
#include "patterns/commandline.h"
#include "patterns/filenames.h"
#include "patterns/losscorrection.h"
#include "patterns/recentfiles.h"
#include "patterns/report.h"
#include "patterns/workbenchsettings.h"
#include "testmain.h"

#include <QTemporaryDir>

#include <cmath>
#include <limits>

namespace {

QVector<QPointF> cosinePattern(double peak, double floor, int from, int to)
{
    QVector<QPointF> points;
    for (int angle = from; angle <= to; ++angle)
        points.append(
            {double(angle), floor + (peak - floor) * std::abs(std::cos(angle / 57.2957795))});
    return points;
}

QVector<double> ends(const AxisScale &scale)
{
    return {scale.min, scale.max, double(scale.divisions)};
}

} // namespace

/// What the workbench computes without a window.
class TestPatternUnits : public QObject
{
    Q_OBJECT

private slots:
    void levelsAtFirstSight_data();
    void levelsAtFirstSight();
    void anglesAtFirstSight_data();
    void anglesAtFirstSight();
    void ticksOfAGivenRange_data();
    void ticksOfAGivenRange();
    void frequencies_data();
    void frequencies();
    void fileNames_data();
    void fileNames();
    void recentFiles();
    void commandLines_data();
    void commandLines();
    void settingsSurvive();
    void lossOfALink_data();
    void lossOfALink();
    void badLossTableKeepsTheGoodOne_data();
    void badLossTableKeepsTheGoodOne();
    void reportTellsEverything();

private:
    QString write(const QByteArray &content);

    QTemporaryDir m_folder;
};

void TestPatternUnits::levelsAtFirstSight_data()
{
    QTest::addColumn<QVector<QVector<QPointF>>>("curves");
    QTest::addColumn<QVector<double>>("expected"); // minimum, maximum, divisions
    using Curves = QVector<QVector<QPointF>>;
    using Ends = QVector<double>;

    QTest::newRow("no curve") << Curves{} << Ends{-40, 0, 4};
    QTest::newRow("one pattern") << Curves{cosinePattern(2.15, -30, -180, 180)} << Ends{-30, 5, 7};
    QTest::newRow("a deep null hides nothing")
        << Curves{{{-10, -3}, {0, -300}, {10, 0}}} << Ends{-40, 0, 8};
    QTest::newRow("a weak curve beside a strong one")
        << Curves{cosinePattern(20.9, -60, -90, 90), cosinePattern(-20, -35, -90, 90)}
        << Ends{-50, 30, 8};
    QTest::newRow("a flat line") << Curves{{{0, -3}, {1, -3}}} << Ends{-35, 0, 7};
    QTest::newRow("one point of zero") << Curves{{{0, 0}}} << Ends{-30, 0, 6};
    QTest::newRow("huge values") << Curves{{{0, 1e9}, {1, 1e9 - 10}}} << Ends{1e9 - 30, 1e9, 6};
}

void TestPatternUnits::levelsAtFirstSight()
{
    QFETCH(const QVector<QVector<QPointF>>, curves);
    QFETCH(const QVector<double>, expected);
    const AxisScale scale = levelScale(curves);
    QCOMPARE(ends(scale), expected);
    for (const QVector<QPointF> &points : curves) {
        for (const QPointF &point : points)
            QVERIFY(point.y() <= scale.max);
    }
}

void TestPatternUnits::anglesAtFirstSight_data()
{
    QTest::addColumn<double>("from");
    QTest::addColumn<double>("to");
    QTest::addColumn<QVector<double>>("expected");
    using Ends = QVector<double>;
    QTest::newRow("circle") << -180.0 << 180.0 << Ends{-180, 180, 8};
    QTest::newRow("circle from zero") << 0.0 << 359.0 << Ends{0, 360, 8};
    QTest::newRow("half circle") << -90.0 << 90.0 << Ends{-90, 90, 6};
    QTest::newRow("part of the circle") << -120.0 << 60.0 << Ends{-180, 180, 8};
    QTest::newRow("narrow cut") << -10.0 << 10.0 << Ends{-10, 10, 4};
    QTest::newRow("more than a circle") << -400.0 << 400.0 << Ends{-400, 400, 8};
}

void TestPatternUnits::anglesAtFirstSight()
{
    QFETCH(const double, from);
    QFETCH(const double, to);
    QFETCH(const QVector<double>, expected);
    QCOMPARE(ends(angleScale({{{from, 0}, {to, 0}}})), expected);
}

void TestPatternUnits::ticksOfAGivenRange_data()
{
    QTest::addColumn<double>("min");
    QTest::addColumn<double>("max");
    QTest::addColumn<int>("divisions");
    QTest::newRow("-40 to 0") << -40.0 << 0.0 << 4;
    QTest::newRow("-50 to 10") << -50.0 << 10.0 << 6;
    QTest::newRow("-30 to 5") << -30.0 << 5.0 << 7;
    QTest::newRow("0 to 1") << 0.0 << 1.0 << 5;
    QTest::newRow("0 to 2.5") << 0.0 << 2.5 << 5;
    QTest::newRow("no round step fits") << 0.0 << 3.14159 << 5;
    QTest::newRow("upside down") << 10.0 << -10.0 << 1;
}

void TestPatternUnits::ticksOfAGivenRange()
{
    QFETCH(const double, min);
    QFETCH(const double, max);
    QTEST(dividedScale(min, max).divisions, "divisions");
}

void TestPatternUnits::frequencies_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("inName");
    QTest::addColumn<QString>("typed"); // "refused" where it is no frequency
    QTest::newRow("plain number") << "2450"
                                  << "2450"
                                  << "2450";
    QTest::newRow("gigahertz") << "2.45 GHz"
                               << "2450"
                               << "2450";
    QTest::newRow("without blank") << "900MHz"
                                   << "900"
                                   << "900";
    QTest::newRow("kilohertz") << "135.7 kHz"
                               << "0.1357"
                               << "0.1357";
    QTest::newRow("high") << "100 GHz"
                          << "100000"
                          << "100000";
    QTest::newRow("in a sentence") << "Horn 10 GHz, H plane"
                                   << "10000"
                                   << "refused";
    QTest::newRow("other numbers") << "Array of 16"
                                   << ""
                                   << "refused";
    QTest::newRow("decimal comma") << "2,45 GHz"
                                   << ""
                                   << "refused";
    QTest::newRow("zero") << "0"
                          << ""
                          << "refused";
    QTest::newRow("negative") << "-900"
                              << ""
                              << "refused";
    QTest::newRow("nothing") << ""
                             << ""
                             << "";
}

void TestPatternUnits::frequencies()
{
    QFETCH(const QString, text);
    QFETCH(const QString, inName);
    QFETCH(const QString, typed);
    QCOMPARE(frequencyInName(text), inName);
    QCOMPARE(readFrequency(text).value_or(QStringLiteral("refused")), typed);
}

void TestPatternUnits::fileNames_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("name");
    QTest::newRow("plain") << "Horn 10 GHz"
                           << "Horn 10 GHz";
    QTest::newRow("a path") << "a/b\\c:d"
                            << "a_b_c_d";
    QTest::newRow("out of the folder") << "../../x"
                                       << "_.._x";
    QTest::newRow("dots around") << " .hidden. "
                                 << "hidden";
    QTest::newRow("nothing left") << " . "
                                  << "curve";
    QTest::newRow("Chinese") << QString::fromUtf8("喇叭天线") << QString::fromUtf8("喇叭天线");
}

void TestPatternUnits::fileNames()
{
    QFETCH(const QString, text);
    QTEST(fileNameFrom(text, QStringLiteral("curve")), "name");
}

void TestPatternUnits::recentFiles()
{
    RecentFiles files(
        {QStringLiteral("/a"), QStringLiteral("/b"), QStringLiteral("/a"), QString()});
    QCOMPARE(files.paths(), QStringList({QStringLiteral("/a"), QStringLiteral("/b")}));
    files.add(QStringLiteral("/x/../b"));
    QCOMPARE(files.paths().first(), QStringLiteral("/b"));
    QCOMPARE(files.paths().size(), 2);
    for (int i = 0; i < 2 * RecentFiles::limit; ++i)
        files.add(QStringLiteral("/%1").arg(i));
    QCOMPARE(files.paths().size(), int(RecentFiles::limit));
    files.remove(files.paths().first());
    QCOMPARE(files.paths().first(), QStringLiteral("/%1").arg(2 * RecentFiles::limit - 2));
}

void TestPatternUnits::commandLines_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<int>("wish");
    QTest::addColumn<QString>("text"); // part of what is printed
    QTest::addColumn<QStringList>("files");
    using List = QStringList;
    const QStringList none;
    const QString no;
    QTest::newRow("files") << List{QStringLiteral("a.csv"), QStringLiteral("b.csv")}
                           << int(CommandLine::Wish::Run) << no
                           << List{QStringLiteral("a.csv"), QStringLiteral("b.csv")};
    QTest::newRow("help") << List{QStringLiteral("--help")} << int(CommandLine::Wish::Print)
                          << "--language" << none;
    QTest::newRow("version") << List{QStringLiteral("--version")} << int(CommandLine::Wish::Print)
                             << MZ_VERSION << none;
    QTest::newRow("language") << List{QStringLiteral("--language"), QStringLiteral("cn"),
                                      QStringLiteral("a.csv")}
                              << int(CommandLine::Wish::Run) << no << List{QStringLiteral("a.csv")};
    QTest::newRow("no such language") << List{QStringLiteral("--language"), QStringLiteral("xx")}
                                      << int(CommandLine::Wish::Refuse) << "xx" << none;
    QTest::newRow("no such option")
        << List{QStringLiteral("--colour")} << int(CommandLine::Wish::Refuse) << "colour" << none;
    QTest::newRow("a file like an option")
        << List{QStringLiteral("--"), QStringLiteral("--a.csv")} << int(CommandLine::Wish::Run)
        << no << List{QStringLiteral("--a.csv")};
}

void TestPatternUnits::commandLines()
{
    QFETCH(const QStringList, arguments);
    QFETCH(const QString, text);
    QFETCH(const QStringList, files);
    const CommandLine line = readCommandLine(QStringList(QStringLiteral("program")) + arguments);
    QTEST(int(line.wish), "wish");
    QVERIFY2(line.text.contains(text), qPrintable(line.text));
    QCOMPARE(line.files, files);
}

void TestPatternUnits::settingsSurvive()
{
    const QString file = m_folder.filePath(QStringLiteral("settings/workbench.json"));
    QCOMPARE(WorkbenchSettings(file).language(), QStringLiteral("en"));
    {
        WorkbenchSettings settings(file);
        settings.setLanguage(QStringLiteral("cn"));
        settings.setFolder(m_folder.path());
        settings.setRecentFiles({QStringLiteral("/a, b"), QString::fromUtf8("/天线.csv")});
    }
    const WorkbenchSettings settings(file);
    QCOMPARE(settings.language(), QStringLiteral("cn"));
    QCOMPARE(settings.folder(), m_folder.path());
    QCOMPARE(settings.recentFiles(),
             QStringList({QStringLiteral("/a, b"), QString::fromUtf8("/天线.csv")}));
    WorkbenchSettings(file).setFolder(QStringLiteral("/gone"));
    QVERIFY(settings.folder().isEmpty());
}

QString TestPatternUnits::write(const QByteArray &content)
{
    QFile file(m_folder.filePath(QStringLiteral("table.csv")));
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("no test file");
    return file.fileName();
}

void TestPatternUnits::lossOfALink_data()
{
    QTest::addColumn<int>("link");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("loss");
    QTest::addColumn<bool>("extrapolated");
    const int up = int(LossCorrection::Link::Up);
    const int down = int(LossCorrection::Link::Down);
    QTest::newRow("tabulated") << up << 800.0 << 1.5 << false;
    QTest::newRow("between") << up << 850.0 << 1.75 << false;
    QTest::newRow("lowest") << down << 700.0 << 1.0 << false;
    QTest::newRow("highest") << down << 900.0 << 3.0 << false;
    QTest::newRow("above the table") << up << 1000.0 << 2.5 << true;
    QTest::newRow("below the table") << down << 600.0 << 0.0 << true;
}

void TestPatternUnits::lossOfALink()
{
    QCOMPARE(LossCorrection::load(write("category,a,b,c,700,800,900\n"
                                        "cable,upside,,dB,1,1,1.5\nswitch,upside,,dB,0.25,0.5,0.5\n"
                                        "cable,downside,,dB,1,2,3\n")),
             QString());
    QCOMPARE(LossCorrection::tableName(), QStringLiteral("table.csv"));
    QFETCH(const int, link);
    QFETCH(const double, frequency);
    QFETCH(const double, loss);
    QFETCH(const bool, extrapolated);
    const auto found = LossCorrection::at(LossCorrection::Link(link), frequency);
    QVERIFY(found.has_value());
    QVERIFY(std::abs(found->value - loss) < 1e-12);
    QCOMPARE(found->extrapolated, extrapolated);
    const QVector<QPointF> points{{-10, -3}, {0, 0}};
    const QVector<QPointF> corrected = LossCorrection::corrected(points, *found);
    QCOMPARE(corrected.first(), QPointF(-10, -3 + found->value));
    QCOMPARE(points.first().y(), -3.0);
}

void TestPatternUnits::badLossTableKeepsTheGoodOne_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QString>("told");
    QTest::newRow("empty") << QByteArray() << "header";
    QTest::newRow("a curve file") << QByteArray("Title\nName\nAngle,Power\n0,1\n") << "header";
    QTest::newRow("header alone") << QByteArray("category,a,b,c,700\n") << "upside";
    QTest::newRow("rows before the header")
        << QByteArray("cable,upside,,dB,1\ncategory,a,b,c,700\n") << "upside";
}

void TestPatternUnits::badLossTableKeepsTheGoodOne()
{
    QFETCH(const QByteArray, content);
    QFETCH(const QString, told);
    QCOMPARE(LossCorrection::load(write("category,a,b,c,700\ncable,upside,,dB,1.5\n")), QString());
    const QString problem = LossCorrection::load(write(content));
    QVERIFY2(problem.contains(told), qPrintable(problem));
    QVERIFY(LossCorrection::load(m_folder.path()).contains(QStringLiteral("folder")));
    QVERIFY(!LossCorrection::load(m_folder.filePath(QStringLiteral("missing"))).isEmpty());
    QCOMPARE(FormulaCalc::Instance()->upsideMap(), (QMap<double, double>{{700.0, 1.5}}));
    // One frequency alone answers for itself only.
    QCOMPARE(LossCorrection::at(LossCorrection::Link::Up, 700.0)->value, 1.5);
    QVERIFY(!LossCorrection::at(LossCorrection::Link::Up, 800.0));
}

void TestPatternUnits::reportTellsEverything()
{
    ReportCurve curve;
    curve.name = QStringLiteral("A<B & co");
    curve.color = QStringLiteral("#ff0000");
    curve.frequency = QStringLiteral("2450");
    curve.material = QStringLiteral("PTFE");
    curve.points = 361;
    curve.firstAngle = -180.0;
    curve.lastAngle = 180.0;
    curve.correction = QStringLiteral("up-link +1.00 dB (extrapolated)");
    curve.figures = QStringList{QStringLiteral("12.0000")};
    curve.supplementary = QStringList{QStringLiteral("78.00")};
    Report report;
    report.title = QStringLiteral("Tests <1>");
    report.created = QDateTime(QDate(2024, 2, 29), QTime(12, 30));
    report.picture = QStringLiteral("data:picture");
    report.figureHeadings = QStringList{QStringLiteral("Gain")};
    report.supplementaryHeadings = QStringList{QStringLiteral("HPBW")};
    report.curves = {curve};

    const QString html = reportHtml(report);
    const QStringList parts{QStringLiteral("Tests &lt;1&gt;"),
                            QStringLiteral("A&lt;B &amp; co"),
                            QStringLiteral("2024-02-29 12:30"),
                            QStringLiteral("data:picture"),
                            QStringLiteral("#ff0000"),
                            QStringLiteral("2450"),
                            QStringLiteral("PTFE"),
                            QStringLiteral("361"),
                            QString::fromUtf8("-180° to 180°"),
                            QStringLiteral("(extrapolated)"),
                            QStringLiteral("12.0000"),
                            QStringLiteral("78.00")};
    for (const QString &part : parts)
        QVERIFY2(html.contains(part), qPrintable(part));
    // The textbook figures come behind the pattern parameters, under a heading of their own.
    QVERIFY(html.indexOf(QStringLiteral("12.0000")) <
            html.indexOf(QStringLiteral("Supplementary")));
    QVERIFY(html.indexOf(QStringLiteral("Supplementary")) < html.indexOf(QStringLiteral("78.00")));
}

MZ_TEST_GUILESS_MAIN(TestPatternUnits)
#include "tst_patternunits.moc"
