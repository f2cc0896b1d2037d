#include "2d/curvetext.h"
#include "2d/patternanalysis.h"
#include "2d/patternsupplement.h"
#include "module/formulacalc.h"
#include "patterns/samples/samples.h"
#include "testmain.h"

#include <QDir>

#include <cmath>

namespace {

constexpr double missing = -1.0;

QByteArray content(const QString &fileName)
{
    QFile file(QDir(QStringLiteral(MZ_SAMPLES)).filePath(fileName));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

/// The figure is \a known within \a tolerance, or missing where it has to be.
bool agrees(const std::optional<double> &figure, double known, double tolerance)
{
    if (!figure)
        return known == missing;
    return std::abs(*figure - known) <= tolerance;
}

} // namespace

/// The sample curves against what every textbook says about these antennas.
class TestSamples : public QObject
{
    Q_OBJECT

private slots:
    void filesAreWhatTheGeneratorWrites_data();
    void filesAreWhatTheGeneratorWrites();
    void knownAnswers_data();
    void knownAnswers();
    void oneCutTellsBothWidths();
    void lossTableLeavesTheHornOutside();
};

void TestSamples::filesAreWhatTheGeneratorWrites_data()
{
    QTest::addColumn<QString>("fileName");
    const QVector<SampleCurve> curves = sampleCurves();
    for (const SampleCurve &curve : curves)
        QTest::newRow(qPrintable(curve.fileName)) << curve.fileName;
}

void TestSamples::filesAreWhatTheGeneratorWrites()
{
    QFETCH(const QString, fileName);
    const QVector<SampleCurve> curves = sampleCurves();
    const auto computed =
        std::find_if(curves.begin(), curves.end(),
                     [&fileName](const SampleCurve &curve) { return curve.fileName == fileName; });
    const QByteArray bytes = content(fileName);
    const CurveText::Curve kept = CurveText::fromFile(bytes);
    QCOMPARE(kept.name, computed->name);
    QVERIFY(bytes.startsWith(computed->title.toUtf8() + '\n'));
    QCOMPARE(kept.points.size(), computed->points.size());
    for (int i = 0; i < kept.points.size(); ++i) {
        QCOMPARE(kept.points.at(i).x(), computed->points.at(i).x());
        // Another mathematics library may round the third decimal the other way.
        QVERIFY2(std::abs(kept.points.at(i).y() - computed->points.at(i).y()) < 0.0015,
                 qPrintable(QString::number(kept.points.at(i).x())));
    }
}

void TestSamples::knownAnswers_data()
{
    QTest::addColumn<double>("gain");        // dBi
    QTest::addColumn<double>("beamWidth");   // degrees
    QTest::addColumn<double>("nullWidth");   // degrees
    QTest::addColumn<double>("sideLobe");    // dB
    QTest::addColumn<double>("frontToBack"); // dB

    const double degrees = 180.0 / std::acos(-1.0);
    // Equally strong on both sides: no main lobe behind the other, and a "side lobe" as high.
    QTest::newRow("dipole.csv") << 2.15 << 78.0 << 180.0 << 0.0 << 0.0;
    // No null and no lobe within the half space, and nothing behind the ground plane.
    QTest::newRow("patch.csv") << 8.2 << 2.0 * std::asin(1.0 / (4.0 * 0.35)) * degrees << missing
                               << missing << missing;
    // The first null of a cosine across 4 wavelengths: sin t = 1.5 / 4.
    QTest::newRow("horn.csv") << 20.9 << 68.8 / 4.0 << 2.0 * std::asin(1.5 / 4.0) * degrees << -23.3
                              << 80.9;
    // The first null at sin t = 2 / 16; the side lobe of 16 elements is 13.15 dB down.
    QTest::newRow("array.csv") << 12.04 << 2.0 * std::asin(2.783 / 16.0 / std::acos(-1.0)) * degrees
                               << 2.0 * std::asin(2.0 / 16.0) * degrees << -13.15 << missing;
}

void TestSamples::knownAnswers()
{
    QFETCH(const double, gain);
    QFETCH(const double, beamWidth);
    QFETCH(const double, nullWidth);
    QFETCH(const double, sideLobe);
    QFETCH(const double, frontToBack);
    const CurveText::Curve curve =
        CurveText::fromFile(content(QString::fromLatin1(QTest::currentDataTag())));
    const PatternSupplement found = supplementaryFigures(curve.points);
    const std::optional<PatternAnalysis> analysis = analysePattern(curve.points);
    QVERIFY(analysis.has_value());

    const auto shown = [](const std::optional<double> &figure) {
        return qPrintable(figure ? QString::number(*figure) : QStringLiteral("missing"));
    };
    QVERIFY2(std::abs(analysis->figures.gain.second - gain) < 0.05, "gain");
    QVERIFY2(agrees(found.halfPowerBeamWidth, beamWidth, 0.3), shown(found.halfPowerBeamWidth));
    QVERIFY2(agrees(found.firstNullBeamWidth, nullWidth, 1.0), shown(found.firstNullBeamWidth));
    QVERIFY2(agrees(found.sideLobeLevel, sideLobe, 0.3), shown(found.sideLobeLevel));
    QVERIFY2(agrees(found.frontToBackRatio, frontToBack, 0.1), shown(found.frontToBackRatio));
}

/// Where the peak is far from the ends of the cut, the instrument's own width and the textbook's
/// are the same, and so are the first side lobes.
void TestSamples::oneCutTellsBothWidths()
{
    const CurveText::Curve array = CurveText::fromFile(content(QStringLiteral("array.csv")));
    const ParaInfo figures = analysePattern(array.points)->figures;
    const double width = figures.halfPowerRight.first - figures.halfPowerLeft.first;
    QVERIFY(std::abs(width - *supplementaryFigures(array.points).halfPowerBeamWidth) < 1e-9);
    QVERIFY(std::abs(figures.firstSideLobeLeft.second - figures.gain.second + 13.15) < 0.1);
    QVERIFY(std::abs(figures.firstSideLobeRight.second - figures.gain.second + 13.15) < 0.1);
    // Nothing opposite the peak: the mark for "not found".
    QCOMPARE(figures.backLobe, qMakePair(-100.0, -100.0));
}

void TestSamples::lossTableLeavesTheHornOutside()
{
    QCOMPARE(content(QStringLiteral("loss-table.csv")), sampleLossTable());
    FormulaCalc *table = FormulaCalc::Instance();
    table->queryLossCompensationFromFile(
        QDir(QStringLiteral(MZ_SAMPLES)).filePath(QStringLiteral("loss-table.csv")));
    QCOMPARE(table->upsideMap().value(2450.0), 0.65 + 0.35);
    QCOMPARE(table->downsideMap().value(900.0), 0.9 + 0.25);
    QVERIFY(table->upsideMap().lastKey() < 10000.0);
}

MZ_TEST_GUILESS_MAIN(TestSamples)
#include "tst_samples.moc"
