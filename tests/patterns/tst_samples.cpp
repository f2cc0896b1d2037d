#include "2d/data/curvetext.h"
#include "2d/data/patternanalysis.h"
#include "2d/data/patternsupplement.h"
#include "patterns/samples/samples.h"
#include "testfiles.h"
#include "testmain.h"

#include <QRandomGenerator>

#include <cmath>

namespace {

constexpr double missing = -1.0;

QByteArray content(const QString &fileName)
{
    return contentOf(QDir(QStringLiteral(MZ_SAMPLES)).filePath(fileName));
}

/// The figure is \a known within \a tolerance, or missing where it has to be.
bool agrees(const std::optional<double> &figure, double known, double tolerance)
{
    return std::abs(figure.value_or(missing) - known) <= tolerance;
}

} // namespace

/// The sample curves against what every textbook says about these antennas.
class TestSamples : public QObject
{
    Q_OBJECT

private slots:
    void filesAreWhatTheGeneratorWrites()
    {
        const QVector<SampleCurve> curves = sampleCurves();
        for (const SampleCurve &computed : curves) {
            const QByteArray bytes = content(computed.fileName);
            const CurveText::Curve kept = CurveText::fromFile(bytes);
            QCOMPARE(kept.name, computed.name);
            QVERIFY(bytes.startsWith(computed.title.toUtf8() + '\n'));
            QCOMPARE(kept.points.size(), computed.points.size());
            for (int i = 0; i < kept.points.size(); ++i) {
                QCOMPARE(kept.points.at(i).x(), computed.points.at(i).x());
                // Another mathematics library may round the third decimal the other way.
                QVERIFY(std::abs(kept.points.at(i).y() - computed.points.at(i).y()) < 0.0015);
            }
        }
        QCOMPARE(content(QStringLiteral("loss-table.csv")), sampleLossTable());
    }

    void knownAnswers_data()
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
        QTest::newRow("patch.csv") << 8.2 << 2.0 * std::asin(1.0 / (4.0 * 0.35)) * degrees
                                   << missing << missing << missing;
        // The first null of a cosine across 4 wavelengths: sin t = 1.5 / 4.
        QTest::newRow("horn.csv") << 20.9 << 68.8 / 4.0 << 2.0 * std::asin(1.5 / 4.0) * degrees
                                  << -23.3 << 80.9;
        // The first null at sin t = 2 / 16; the side lobe of 16 elements is 13.15 dB down.
        QTest::newRow("array.csv")
            << 12.04 << 2.0 * std::asin(2.783 / 16.0 / std::acos(-1.0)) * degrees
            << 2.0 * std::asin(2.0 / 16.0) * degrees << -13.15 << missing;
    }

    void knownAnswers()
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

        QVERIFY(std::abs(analysis->figures.gain.second - gain) < 0.05);
        QVERIFY(agrees(found.halfPowerBeamWidth, beamWidth, 0.3));
        QVERIFY(agrees(found.firstNullBeamWidth, nullWidth, 1.0));
        QVERIFY(agrees(found.sideLobeLevel, sideLobe, 0.3));
        QVERIFY(agrees(found.frontToBackRatio, frontToBack, 0.1));
    }

    void noiseLeavesTheFigures()
    {
        for (const char *file : {"dipole.csv", "patch.csv", "horn.csv", "array.csv"}) {
            const QVector<QPointF> clean = CurveText::fromFile(content(text(file))).points;
            const PatternSupplement known = supplementaryFigures(clean);
            QRandomGenerator random(1);
            for (const double noise : {0.05, 0.15, 0.5, 0.5, 0.5}) { // dB, greatest
                QVector<QPointF> noisy = clean;
                for (QPointF &point : noisy)
                    point.ry() += noise * (2.0 * random.generateDouble() - 1.0);
                const PatternSupplement found = supplementaryFigures(noisy);
                QVERIFY(agrees(found.halfPowerBeamWidth, known.halfPowerBeamWidth.value_or(missing),
                               2.0));
                QVERIFY(agrees(found.firstNullBeamWidth, known.firstNullBeamWidth.value_or(missing),
                               2.0));
                QVERIFY(agrees(found.sideLobeLevel, known.sideLobeLevel.value_or(missing), 0.5));
            }
        }
    }
};

MZ_GUILESS_TEST(TestSamples)
#include "tst_samples.moc"
