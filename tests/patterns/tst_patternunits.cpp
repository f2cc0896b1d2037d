#include "2d/data/curvefrequency.h"
#include "2d/data/patternscale.h"
#include "module/formulacalc.h"
#include "patterns/commandline.h"
#include "patterns/curvefilereader.h"
#include "patterns/filenames.h"
#include "patterns/losscorrection.h"
#include "patterns/measure/measureinputs.h"
#include "patterns/measure/measurement.h"
#include "patterns/recentfiles.h"
#include "patterns/report.h"
#include "patterns/workbenchsettings.h"
#include "testfiles.h"
#include "testmain.h"

#include <QJsonDocument>
#include <QJsonObject>
#include <QTemporaryDir>

#include <cmath>

using Points = QVector<QPointF>;
using Scale = QVector<double>; // minimum, maximum, divisions
using Wish = CommandLine::Wish;
using LossLink = LossCorrection::Link;

namespace {

const QByteArray goodHead = QByteArrayLiteral("Title\nCurve\nAngle,Power\n");

Points cosinePattern(double peak, double floor, int from, int to)
{
    Points points;
    for (int angle = from; angle <= to; ++angle) {
        const double cosine = std::abs(std::cos(angle / 57.2957795));
        points.append({double(angle), floor + (peak - floor) * cosine});
    }
    return points;
}

Scale levels(const QVector<Points> &curves)
{
    const AxisScale scale = levelScale(curves);
    return {scale.min, scale.max, double(scale.divisions)};
}

Scale angles(double from, double to)
{
    const AxisScale scale = angleScale({{{from, 0}, {to, 0}}});
    return {scale.min, scale.max, double(scale.divisions)};
}

Scale ticks(double min, double max)
{
    const AxisScale scale = dividedScale(min, max);
    return {scale.min, scale.max, double(scale.divisions)};
}

/// The frequency within a curve's name and the one typed into a table, "refused" if it is none.
QString frequency(const char *utf8)
{
    return frequencyInName(text(utf8)) + QLatin1Char('/') +
           readFrequency(text(utf8)).value_or(text("refused"));
}

QString fileName(const char *utf8)
{
    return fileNameFrom(text(utf8), text("curve"));
}

} // namespace

/// What the workbench reads and computes without a window.
class TestPatternUnits : public QObject
{
    Q_OBJECT

private slots:
    void scalesAtFirstSight()
    {
        const Points wide = cosinePattern(2.15, -30, -180, 180);
        const Points strong = cosinePattern(20.9, -60, -90, 90);
        const Points weak = cosinePattern(-20, -35, -90, 90);
        const Points null{{-10, -3}, {0, -300}, {10, 0}}; // which hides nothing
        QCOMPARE(levels({}), (Scale{-40, 0, 4}));
        QCOMPARE(levels({wide}), (Scale{-30, 5, 7}));
        QCOMPARE(levels({null}), (Scale{-40, 0, 8}));
        QCOMPARE(levels({strong, weak}), (Scale{-50, 30, 8}));
        QCOMPARE(levels({{{0, -3}, {1, -3}}}), (Scale{-35, 0, 7}));

        QCOMPARE(angles(-180, 180), (Scale{-180, 180, 8}));
        QCOMPARE(angles(0, 359), (Scale{0, 360, 8}));
        QCOMPARE(angles(-90, 90), (Scale{-90, 90, 6}));
        QCOMPARE(angles(-120, 60), (Scale{-180, 180, 8}));
        QCOMPARE(angles(0, 90), (Scale{-90, 90, 6}));
        QCOMPARE(angles(-10, 10), (Scale{-10, 10, 4}));
        QCOMPARE(angles(-400, 400), (Scale{-400, 400, 8})); // more than a circle

        QCOMPARE(ticks(-30, 5), (Scale{-30, 5, 7}));
        QCOMPARE(ticks(0, 2.5), (Scale{0, 2.5, 5}));
        QCOMPARE(ticks(0, 3.14159), (Scale{0, 3.14159, 5})); // no round tick fits
        QCOMPARE(ticks(10, -10), (Scale{10, -10, 1}));       // upside down
        QVERIFY(std::isfinite(levels({{{0, 1e308}, {1, -1e308}}}).at(1)));
    }

    void frequencies()
    {
        QCOMPARE(frequency("2450"), text("2450/2450"));
        QCOMPARE(frequency("2.45 GHz"), text("2450/2450"));
        QCOMPARE(frequency("900MHz"), text("900/900"));
        QCOMPARE(frequency("135.7 kHz"), text("0.1357/0.1357"));
        QCOMPARE(frequency("100 GHz"), text("100000/100000"));
        QCOMPARE(frequency("Horn 10 GHz, H plane"), text("10000/refused"));
        for (const char *none : {"Array of 16", "2,45 GHz", "0", "-900"})
            QCOMPARE(frequency(none), text("/refused"));
        QCOMPARE(frequency(""), text("/"));
    }

    void fileNames()
    {
        QCOMPARE(fileName("a/b\\c:d"), text("a_b_c_d"));
        QCOMPARE(fileName("../../x"), text("_.._x")); // not out of the folder
        QCOMPARE(fileName(" .hidden. "), text("hidden"));
        QCOMPARE(fileName(" . "), text("curve"));
        QCOMPARE(fileName("喇叭天线"), text("喇叭天线"));
    }

    void recentFiles()
    {
        const QString root = QDir::rootPath();
        RecentFiles files({root + text("a"), root + text("b"), root + text("a"), QString()});
        QCOMPARE(files.paths(), QStringList({root + text("a"), root + text("b")}));
        files.add(root + text("x/../b"));
        QCOMPARE(files.paths(), QStringList({root + text("b"), root + text("a")}));
        for (int i = 0; i < 2 * RecentFiles::limit; ++i)
            files.add(root + QString::number(i));
        QCOMPARE(files.paths().size(), int(RecentFiles::limit));
        files.remove(files.paths().first());
        QCOMPARE(files.paths().first(), root + QString::number(2 * RecentFiles::limit - 2));
    }

    void commandLines()
    {
        const QChar blank = QLatin1Char(' ');
        const auto read = [blank](const char *arguments) {
            return readCommandLine((text("program ") + text(arguments)).split(blank));
        };
        // What runs, by language and files.
        const auto running = [&](const char *arguments) {
            const CommandLine line = read(arguments);
            return line.wish == Wish::Run ? line.language + blank + line.files.join(blank)
                                          : line.text;
        };
        QCOMPARE(running("a.csv b.csv"), text(" a.csv b.csv"));
        QCOMPARE(running("--language cn a.csv"), text("cn a.csv"));
        QCOMPARE(running("-- --a.csv"), text(" --a.csv"));
        const auto tells = [&](const char *arguments, Wish wish, const char *told) {
            const CommandLine line = read(arguments);
            return line.wish == wish && line.text.contains(text(told));
        };
        QVERIFY(tells("--help", Wish::Print, "--language"));
        QVERIFY(tells("--version", Wish::Print, MZ_VERSION));
        QVERIFY(tells("--language xx", Wish::Refuse, "xx"));
        QVERIFY(tells("--colour", Wish::Refuse, "colour"));
    }

    void settingsSurvive()
    {
        const QString file = m_folder.filePath(text("settings/workbench.json"));
        const QStringList recent{text("/a, b"), text("/天线.csv")};
        QCOMPARE(WorkbenchSettings(file).language(), text("en"));
        {
            WorkbenchSettings settings(file);
            settings.setLanguage(text("cn"));
            settings.setFolder(m_folder.path());
            settings.setRecentFiles(recent);
            settings.setPolarView(
                {PolarOrientation::RightCounterClockwise, PolarLabels::WholeCircle});
        }
        const WorkbenchSettings settings(file);
        QCOMPARE(settings.language(), text("cn"));
        QCOMPARE(settings.folder(), m_folder.path());
        QCOMPARE(settings.recentFiles(), recent);
        QVERIFY(settings.polarView() ==
                (PolarView{PolarOrientation::RightCounterClockwise, PolarLabels::WholeCircle}));
        QVERIFY(WorkbenchSettings(file + text("x")).polarView() == PolarView());
        WorkbenchSettings(file).setFolder(text("/gone"));
        QVERIFY(settings.folder().isEmpty());
    }

    void lossOfALink()
    {
        const QString file =
            write("table.csv", "category,a,b,c,700,800,900\n"
                               "cable,upside,,dB,1,1,1.5\nswitch,upside,,dB,0.25,0.5,0.5\n"
                               "cable,downside,,dB,1,2,3\n");
        QCOMPARE(LossCorrection::load(file), QString());
        QCOMPARE(LossCorrection::tableName(), text("table.csv"));
        const auto loss = [](LossLink link, double shownFrequency) {
            const auto found = LossCorrection::at(link, shownFrequency).value();
            return text(found.extrapolated ? "%1, extrapolated" : "%1").arg(found.value);
        };
        QCOMPARE(loss(LossLink::Up, 850.0), text("1.75"));
        QCOMPARE(loss(LossLink::Down, 700.0), text("1"));
        QCOMPARE(loss(LossLink::Down, 900.0), text("3"));
        QCOMPARE(loss(LossLink::Up, 1000.0), text("2.5, extrapolated"));
        QCOMPARE(loss(LossLink::Down, 600.0), text("0, extrapolated"));
        const Points points{{-10, -3}, {0, 0}};
        const auto one = LossCorrection::at(LossLink::Down, 700.0).value();
        QCOMPARE(LossCorrection::corrected(points, one), (Points{{-10, -2}, {0, 1}}));
    }

    void badLossTableKeepsTheGoodOne()
    {
        const QString good = write("good.csv", "category,a,b,c,700\ncable,upside,,dB,1.5\n");
        QCOMPARE(LossCorrection::load(good), QString());
        const QString curve = write("curve.csv", goodHead + "0,1\n");
        const QString bare = write("bare.csv", "category,a,b,c,700\n");
        const QString turned = write("turned.csv", "cable,upside,,dB,1\ncategory,a,b,c,700\n");
        QVERIFY(LossCorrection::load(curve).contains(text("header")));
        QVERIFY(LossCorrection::load(bare).contains(text("upside")));
        QVERIFY(LossCorrection::load(turned).contains(text("upside")));
        QVERIFY(LossCorrection::load(m_folder.path()).contains(text("folder")));
        QVERIFY(!LossCorrection::load(m_folder.filePath(text("missing"))).isEmpty());
        QCOMPARE(FormulaCalc::Instance()->upsideMap(), (QMap<double, double>{{700.0, 1.5}}));
        // One frequency alone answers for itself only.
        QCOMPARE(LossCorrection::at(LossLink::Up, 700.0)->value, 1.5);
        QVERIFY(!LossCorrection::at(LossLink::Up, 800.0));
    }

    void reportTellsEverything()
    {
        ReportCurve curve;
        curve.name = text("A<B & co");
        curve.color = text("#ff0000");
        curve.frequency = text("2450");
        curve.material = text("PTFE");
        curve.points = 361;
        curve.firstAngle = -180.0;
        curve.lastAngle = 180.0;
        curve.correction = text("up-link +1.00 dB (extrapolated)");
        curve.figures = QStringList{text("12.0000")};
        curve.supplementary = QStringList{text("78.00")};
        Report report;
        report.title = text("Tests <1>");
        report.created = QDateTime(QDate(2024, 2, 29), QTime(12, 30));
        report.picture = text("data:picture");
        report.figureHeadings = QStringList{text("Gain")};
        report.supplementaryHeadings = QStringList{text("HPBW")};
        report.curves = {curve};

        const QString html = reportHtml(report);
        for (const char *part :
             {"Tests &lt;1&gt;", "A&lt;B &amp; co", "2024-02-29 12:30", "data:picture", "#ff0000",
              "2450", "PTFE", "361", "-180° to 180°", "(extrapolated)", "12.0000", "78.00"})
            QVERIFY2(html.contains(text(part)), part);
        // The textbook figures come behind the pattern parameters, under a heading of their own.
        const int heading = html.indexOf(text("Supplementary"));
        QVERIFY(html.indexOf(text("12.0000")) < heading);
        QVERIFY(heading < html.indexOf(text("78.00")));
    }

    void curveFile_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QVector<Points>>("curves");
        QTest::addColumn<QString>("told"); // part of what the user is told, empty: nothing
        const auto row = [](const char *name, const QByteArray &rows, const Points &points,
                            const char *told) {
            QTest::newRow(name) << goodHead + rows << QVector<Points>{points} << told;
        };
        row("header alone", "", {}, "holds no point");
        row("row of text", "0,1\nlower half\nzero,2\n", {{0, 1}, {0, 2}}, "read as 0: 1.");
        row("row of one field", "0,1\nlower half\n", {{0, 1}}, "fewer than two fields: 1.");
        row("NaN and infinities", "0,nan\n1,inf\n-inf,2\n3,4\n", {{3, 4}}, "not finite: 3.");
        row("another encoding", "0,1,\xe9\n", {{0, 1}}, "Windows-1252");
        row("decimal commas", "0,5,-3,5\n", {{0, 5}}, "Decimal commas");
        const QByteArray picture("\x89PNG\r\n\x1a\n\0\0\0\rIHDR", 16);
        const QVector<Points> none;
        QTest::newRow("empty") << QByteArray() << none << "The file is empty";
        QTest::newRow("picture") << picture << none << "Incorrect file format";
    }

    void curveFile()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QVector<Points>, curves);
        QFETCH(const QString, told);
        CurveFileReader reader;
        QVERIFY(reader.read({write("one.csv", bytes)}));
        QCOMPARE(reader.curves().size(), curves.size());
        QCOMPARE(reader.failures().size(), 1 - curves.size());
        for (const ReadCurve &curve : reader.curves()) {
            QCOMPARE(curve.title, text("Title"));
            QCOMPARE(curve.name, text("Curve"));
            QCOMPARE(curve.points, curves.first());
        }
        const QString all = (reader.failures() + reader.remarks()).join(QLatin1Char('\n'));
        QVERIFY2(told.isEmpty() ? all.isEmpty() : all.contains(told), qPrintable(all));
        QVERIFY(all.isEmpty() || all.startsWith(text("one.csv: ")));
    }

    void measurementsAreRememberedAndTold()
    {
        const QByteArray json = R"({"serial":true,"meter":"COM3","rotator":"r:1","from":-9,"to":9,)"
                                R"("step":3,"zero":12,"sense":-1,"settle":70,"readings":5,)"
                                R"("tolerance":2,"returns":false,"diameter":1.5})";
        const QJsonObject other = QJsonDocument::fromJson(json).object();
        QCOMPARE(MeasureInputs::fromJson(other).toJson(), other);
        RunFile run; // the first point was without a reading, and then measured again
        RunRow row;
        row.flags = RunFlag::Missing;
        run.rows.append(row);
        row.flags = RunFlag::Floor;
        row.mean = -20.0;
        run.rows.append(row);
        const QString notes = recordOfRun(run, {}).notes.join(QLatin1Char('|'));
        QVERIFY2(notes.endsWith(text("|Near the floor at 0°")), qPrintable(notes));
        QCOMPARE(notes.count(QLatin1Char('|')), 1);
    }

    void cancelKeepsNothing()
    {
        const QStringList files{write("a.csv", goodHead + "0,1\n"),
                                write("b.csv", goodHead + "0,2\n")};
        CurveFileReader reader;
        int last = -1;
        QVERIFY(reader.read(files, [&last](const QString &, int perMille) {
            const bool rises = perMille >= last;
            last = perMille;
            return rises && perMille <= 1000;
        }));
        QVERIFY(last >= 500);
        const auto cancelAtSecond = [&files](const QString &file, int) {
            return file == files.first();
        };
        QVERIFY(!reader.read(files, cancelAtSecond));
        QVERIFY(reader.curves().isEmpty());
        QVERIFY(reader.failures().isEmpty());
    }

private:
    QString write(const char *name, const QByteArray &content) const
    {
        return ::write(m_folder.filePath(text(name)), content);
    }

    QTemporaryDir m_folder;
};

MZ_GUILESS_TEST(TestPatternUnits)

#include "tst_patternunits.moc"
