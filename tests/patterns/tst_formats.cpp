#include "2d/data/patternsupplement.h"
#include "patterns/formats/circle.h"
#include "patterns/formats/msiformat.h"
#include "patterns/formats/necformat.h"
#include "patterns/formats/nsmaformat.h"
#include "patterns/formats/patternfile.h"
#include "patterns/formats/textfields.h"
#include "patterns/samples/samples.h"
#include "testfiles.h"
#include "testmain.h"

#include <QProcess>
#include <QStandardPaths>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>

using namespace PatternFormats;

namespace {

const QString title = QStringLiteral("file");

QByteArray sample(const char *name)
{
    return contentOf(QDir(QStringLiteral(MZ_SAMPLES)).filePath(QString::fromUtf8(name)));
}

/// What was read, a line a cut: "name @frequency: angle=level ...".
QString cutsOf(const PatternFile &file)
{
    QStringList lines;
    for (const Cut &cut : file.cuts) {
        QStringList points;
        for (const QPointF &point : cut.points)
            points.append(QStringLiteral("%1=%2").arg(point.x()).arg(point.y()));
        lines.append(QStringLiteral("%1 @%2: %3")
                         .arg(cut.name, cut.frequency, points.join(QLatin1Char(' '))));
    }
    return lines.join(QLatin1Char('\n'));
}

QString toldOf(const PatternFile &file)
{
    QStringList told = file.remarks;
    if (file.problem)
        told.append(file.problem->sentence());
    return told.join(QLatin1Char('\n'));
}

QVector<QPointF> cosines(double step, double peak, double first = -180.0, double last = 180.0)
{
    QVector<QPointF> points;
    for (double angle = first; angle < last; angle += step)
        points.append({angle, peak + 15.0 * std::cos(angle / 57.3) - 15.0});
    return points;
}

} // namespace

/// Pattern files of other programs, by content alone.
class TestFormats : public QObject
{
    Q_OBJECT

private slots:
    void reads_data()
    {
        QTest::addColumn<QByteArray>("bytes");
        QTest::addColumn<QString>("cuts"); // empty: nothing may be imported
        QTest::addColumn<QString>("told"); // a part of it; empty: nothing to tell
        const auto row = [](const char *name, const QByteArray &bytes, const char *cuts,
                            const char *told = "") {
            QTest::newRow(name) << bytes << QString::fromUtf8(cuts) << QString::fromUtf8(told);
        };
        const QByteArray head = "NAME A b\nFREQUENCY 900\nGAIN 10 dBi\n";
        const QByteArray vertical = "VERTICAL 1\n90 20\n";
        const QByteArray h2 = "HORIZONTAL 2\n0 0\n270 3\n";
        const char *both = "A b H @900: -90=7 0=10\nA b V @900: 90=-10";

        row("MSI", head + h2 + vertical, both);
        row("MSI with tabs and CRLF",
            QByteArray(head + h2 + vertical).replace(' ', '\t').replace('\n', "\r\n"),
            "A b H @900: -90=7 0=10\nA b V @900: 90=-10");
        row("MSI keys in any case and order",
            vertical.toLower() + "gain 7.85 DBD\nname A b\n" + h2 + "Frequency 0.9 GHz\n", both);
        row("MSI gain in dBd unless dBi follows", "NAME A\nGAIN 10\n" + vertical, "A V @: 90=-7.85",
            "no HORIZONTAL");
        row("MSI bare name that is a number", "742 215\n" + head.mid(9) + h2 + vertical,
            "742 215 H @900: -90=7 0=10\n742 215 V @900: 90=-10");
        row("MSI of Latin-1", "NAME M\xfcnchen\nGAIN 0 dBi\n" + vertical, "München V @: 90=-20",
            "no HORIZONTAL");
        row("MSI angles once each", head + "HORIZONTAL 4\n0 0\n180 3\n360 5\n-90 1\n" + vertical,
            "A b H @900: -90=9 0=10 180=7\nA b V @900: 90=-10");
        row("MSI count wrong by one", head + "HORIZONTAL 1\n0 0\n270 3\n" + vertical, both,
            "Line 4: HORIZONTAL announces 1 rows, but 2");
        row("MSI negative losses", head + "HORIZONTAL 2\n0 0\n270 -3\n" + vertical, both,
            "minus sign of 1 losses");
        row("MSI without gain and name", h2, "file H @: -90=-3 0=0", "0 dBi");
        row("MSI unknown key", head + "BEAMS 1\n" + h2 + vertical, both, "Line 4: Unknown key");
        row("MSI count wrong by two", head + "HORIZONTAL 4\n0 0\n270 3\n" + vertical, "",
            "Line 7: HORIZONTAL announces 4 rows, but 2");
        row("MSI too many rows", head + "HORIZONTAL 0\n0 0\n270 3\n" + vertical, "", "Line 6:");
        row("MSI cut within an angle", head + "HORIZONTAL 2\n0 0.0\n27", "", "Line 6:");
        row("MSI cut within a loss", head + "HORIZONTAL 2\n0 0.00\n270 3.1", "", "Line 6:");
        row("MSI word for a loss", head + "HORIZONTAL 2\n0 0\n270 x\n", "", "Line 6:");
        row("MSI not a number", head + "HORIZONTAL 2\n0 0\n270 nan\n", "", "Line 6:");
        row("MSI decimal comma in the gain", "NAME A\nGAIN 1,5\n" + vertical, "", "Line 2: GAIN");
        row("MSI header alone", head, "", "neither a HORIZONTAL nor");

        const QByteArray nsma = "REVNUM:,NSMA WG16.99.050\r\nMODNUM:,P1\r\nGUNITS:,DBI/DBR\r\n"
                                "LWGAIN:,5\r\nMDGAIN:,10\r\nPATFRE:,2400\r\nNUMCUT:,1\r\n"
                                "PATCUT:,AZ\r\nPOLARI:,V/V\r\nNUPOIN:,2\r\nFSTLST:,-180,0\r\n"
                                "-180,-20.5,\r\n0,0\r\n";
        const QByteArray end = "ENDFIL:,EOF\r\n";
        const char *cut = "P1 AZ V/V @2400: -180=-10.5 0=10";
        const auto changed = [nsma, end](const char *from, const char *to) {
            return QByteArray(nsma + end).replace(from, to);
        };
        row("NSMA", nsma + end, cut);
        row("NSMA in dBd", changed("DBI/DBR", "DBD/DBR"), "P1 AZ V/V @2400: -180=-8.35 0=12.15");
        row("NSMA rows in dBi", changed("DBI/DBR", "DBI/DBI"), "P1 AZ V/V @2400: -180=-20.5 0=0");
        row("NSMA rows as field",
            changed("DBR", "LIN").replace("-20.5,", "0.1,").replace("\n0,0", "\n0,1"),
            "P1 AZ V/V @2400: -180=-10 0=10");
        row("NSMA for a band", changed("PATFRE:,2400", "LOWFRQ:,2300\r\nHGHFRQ:,2500"),
            "P1 AZ V/V @: -180=-10.5 0=10");
        row("NSMA wrong count", changed("NUPOIN:,2", "NUPOIN:,7"), cut, "NUPOIN announces 7");
        row("NSMA strange unit", changed("DBR", "MV"), "", "Line 3: GUNITS");
        row("NSMA cut off", nsma.left(nsma.size() - 5), "", "cut off");
        row("NSMA cut within the last row", nsma.left(nsma.size() - 2), "", "cut off");
        row("NSMA without its end", nsma, cut, "ENDFIL is missing");

        const QByteArray nec = " FREQUENCY= 2.9980E+02 mhz\n - - - RADIATION PATTERNS - - -\n\n"
                               "  THETA PHI VERT HOR TOTAL\n";
        const QByteArray over = "\n RUN TIME = 0\n";
        row("NEC joins phi and phi + 180",
            nec +
                " 0 0 1 -999.99 1 \n 90 0 2 -999.99 2\n 120 0 1 0 -999.99\n 0 180 1 9 1\n"
                " 90 180 3 9 3\n 120 180 4 9 4 0 RIGHT\n" +
                over,
            "file phi 0° @299.8: -120=4 -90=3 0=1 90=2");
        row("NEC over phi, full columns",
            nec + "90 0-999.99-999.99-1.0E-01\n90 90 0 0 5\n90 360 0 0 7\n" + over,
            "file theta 90° @299.8: 0=-0.1 90=5");
        row("NEC of two frequencies",
            nec + "0 0 0 0 1\n9 0 0 0 2\n" + QByteArray(nec).replace("2.99", "3.99") +
                "0 0 0 0 1\n9 0 0 0 2\n" + over,
            "file phi 0° 299.8 MHz @299.8: 0=1 9=2\nfile phi 0° 399.8 MHz @399.8: 0=1 9=2");
        row("NEC row cut off", nec + "0 0 0 0 1\n9 0 0 0", "", "Line 6: Fewer than five");
        row("NEC decimal comma", nec + "0,00 0,00 0 0 1\n" + over, "",
            "Line 5: The numbers have a");
        row("NEC block cut off", "RP 0 3 1 1000 0\n" + nec + "0 0 0 0 1\n9 0 0 0 2\n", "",
            "2 rows of 3");
        row("NEC that just ends", nec + "0 0 0 0 1\n9 0 0 0 2\n", "file phi 0° @299.8: 0=1 9=2",
            "may have been cut off");
        row("NEC without a pattern", "NUMERICAL ELECTROMAGNETICS CODE\n", "", "no radiation");

        row("rubbish", QByteArray("\x89PNG\r\n\x1a\n\0\0HORIZONTAL\0 3\n", 24), "");
        row("curve file", "T\nGAIN\nAngle,Power\n0,1\n", "");
    }
    void reads()
    {
        QFETCH(const QByteArray, bytes);
        QFETCH(const QString, cuts);
        QFETCH(const QString, told);
        const PatternFile file = read(bytes, title);
        QCOMPARE(cutsOf(file), cuts);
        QVERIFY2(told.isEmpty() ? toldOf(file).isEmpty() : toldOf(file).contains(told),
                 qPrintable(toldOf(file)));
    }

    /// Wherever a file ends: what is imported is whole, and the user hears of the rest.
    void cutOffAtAnyLine_data()
    {
        QTest::addColumn<int>("fewer"); // rows that may lack with a remark
        QTest::newRow("panel.msi") << 1;
        QTest::newRow("panel.adf") << 0;
        QTest::newRow("dipole.out") << 0;
    }
    void cutOffAtAnyLine()
    {
        QFETCH(const int, fewer);
        const QByteArray bytes = sample(QTest::currentDataTag());
        const PatternFile whole = read(bytes, title);
        QVERIFY2(!whole.cuts.isEmpty() && toldOf(whole).isEmpty(), qPrintable(toldOf(whole)));
        for (int end = bytes.indexOf('\n'); end >= 0; end = bytes.indexOf('\n', end + 60)) {
            const PatternFile part = read(bytes.left(end + 1), title);
            if (cutsOf(part) == cutsOf(whole))
                continue;
            QVERIFY(part.cuts.isEmpty() || !part.remarks.isEmpty());
            for (int i = 0; i < part.cuts.size(); ++i)
                QVERIFY(part.cuts.at(i).points.size() >= whole.cuts.at(i).points.size() - fewer);
        }
    }

    void choiceOfListings()
    {
        QByteArray text = "RADIATION PATTERNS\n";
        for (int phi = 0; phi < 180; phi += 30)
            for (int theta = 0; theta <= 90; theta += 10)
                text += QStringLiteral("%1 %2 -5 -7 -2.9\n").arg(theta).arg(phi).toLatin1();
        const PatternFile file = read(text + "END\n", title);
        QCOMPARE(file.cuts.size(), 6);
        QStringList principal;
        for (const Cut &cut : file.cuts) {
            if (cut.principal)
                principal.append(cut.name);
        }
        QCOMPARE(principal.join(QLatin1Char(',')), QStringLiteral("file phi 0°,file phi 90°"));
        QVERIFY(file.offersChoice() && file.hasComponents());
        QCOMPARE(file.cuts.first().of(Component::Horizontal).first().y(), -7.0);
        QVERIFY(!read(sample("dipole.out"), title).offersChoice());
    }

    void writtenMsiReadsBack_data()
    {
        QTest::addColumn<QVector<QPointF>>("cut");
        QTest::newRow("quarter degrees") << cosines(0.25, 17.123456);
        QTest::newRow("beside the grid") << cosines(0.7, -3.3, -179.9);
        QTest::newRow("coarse, from 0 to 360") << cosines(10, 0.005, 0, 360);
    }
    void writtenMsiReadsBack()
    {
        QFETCH(const QVector<QPointF>, cut);
        const auto lowered = cosines(1, -20);
        const Written written = MsiFormat::write({title, QStringLiteral("900"), {}, cut, lowered});
        QCOMPARE(written.problem, QString());
        const PatternFile back = read(written.bytes, QString());
        QVERIFY2(toldOf(back).isEmpty(), qPrintable(toldOf(back)));
        QCOMPARE(back.cuts.at(1).name, QStringLiteral("file V"));
        QCOMPARE(MsiFormat::commonName(back.cuts.at(0).name, back.cuts.at(1).name), title);
        QCOMPARE(back.cuts.first().points.size(), 360);
        for (const QPointF &point : back.cuts.first().points)
            QVERIFY(std::abs(point.y() - Circle::levelAt(asCut(cut), point.x())) <= 0.005);
        QCOMPARE(Circle::levelAt({{-170, 0}, {0, -5}, {170, -2}}, -175), -0.5); // over the seam
    }

    void partOfACircleIsNotWritten()
    {
        const auto written =
            MsiFormat::write({title, {}, {}, cosines(1, 0), cosines(1, 0, -90, 91)});
        QVERIFY(written.bytes.isEmpty());
        QCOMPARE(written.problem, QStringLiteral("The vertical cut does not go round the circle: "
                                                 "there is nothing from 90° to -90°."));
    }

    void otherWritersReadBack()
    {
        const QVector<Cut> cuts = read(sample("panel.adf"), title).cuts;
        QCOMPARE(cutsOf(read(NsmaFormat::write(cuts), title)),
                 cutsOf({Format::Nsma, cuts, {}, {}}));
        Cut cut = cuts.first();
        cut.name = QStringLiteral("file theta 90°");
        QCOMPARE(cutsOf(read(NecFormat::write({cut}), title)),
                 cutsOf({Format::Nec, {cut}, {}, {}}));
        cut.points = cosines(1, 0);
        Cut bare = cut;
        bare.frequency.clear();
        QVERIFY(
            write(Format::Msi, bare, cut).bytes.contains("FREQUENCY " + cut.frequency.toUtf8()));
    }

    void samplesAreWhatTheGeneratorWrites()
    {
        QCOMPARE(sample("panel.msi"), samplePanelMsi());
        QCOMPARE(sample("panel.adf"), samplePanelNsma());
        // The beam is tilted to the ground, and the two formats count elevation in opposite ways.
        const auto peak = [](const char *name) {
            const QVector<QPointF> cut = read(sample(name), title).cuts.last().points;
            return std::max_element(
                       cut.begin(), cut.end(),
                       [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); })
                ->x();
        };
        QCOMPARE(peak("panel.msi"), 4.0);
        QCOMPARE(peak("panel.adf"), -4.0);
    }

    void simulatedDipole()
    {
        const QString simulator = QStandardPaths::findExecutable(QStringLiteral("nec2c"));
        if (simulator.isEmpty())
            QSKIP("nec2c is not installed: apt-get install nec2c");
        const QTemporaryDir folder;
        const QString listing = folder.filePath(QStringLiteral("dipole.out"));
        QCOMPARE(QProcess::execute(simulator, {QStringLiteral("-i"), QStringLiteral(MZ_DECK),
                                               QStringLiteral("-o"), listing}),
                 0);
        const PatternFile file = read(contentOf(listing), title);
        QCOMPARE(file.cuts.size(), 1);
        const QVector<QPointF> &points = file.cuts.first().points;
        QCOMPARE(file.cuts.first().frequency, QStringLiteral("299.8"));
        const auto peak =
            std::max_element(points.begin(), points.end(),
                             [](const QPointF &a, const QPointF &b) { return a.y() < b.y(); });
        QVERIFY(peak->y() > 2.1 && peak->y() < 2.2);
        QVERIFY(std::abs(*supplementaryFigures(points).halfPowerBeamWidth - 78.0) <= 1.0);
    }
};

MZ_GUILESS_TEST(TestFormats)
#include "tst_formats.moc"
