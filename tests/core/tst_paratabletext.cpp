#include "2d/data/paratabletext.h"
#include "testmain.h"

namespace {

QStringList texts(std::initializer_list<const char *> cells)
{
    QStringList list;
    for (const char *cell : cells)
        list.append(QString::fromLatin1(cell));
    return list;
}

ParaInfo sampleInfo()
{
    ParaInfo info;
    info.gain = {1.005, 20.0};
    info.halfPowerLeft = {10.25, 17.0};
    info.halfPowerRight = {-9.5, 17.0};
    info.firstNullLeft = {-20.0, -14.126};
    info.firstNullRight = {10000.0, 10000.0};
    info.firstSideLobeLeft = {-100.0, -100.0};
    info.firstSideLobeRight = {31.0, 6.66666};
    info.backLobe = {-178.995, 2.0};
    info.axialRatio = {0.0, 34.126};
    info.crossPolarRatio = {0.0, 0.0};
    return info;
}

} // namespace

class TestParaTableText : public QObject
{
    Q_OBJECT

private slots:
    void fillsTheFloatingTable()
    {
        const QStringList expected = texts(
            {"1.00|20.00", "10.25|17.00", "-9.50|17.00", "-19.75|17.00", "-20.00|-14.13",
             "10000.00|10000.00", "-100.00|-100.00", "31.00|6.67", "|1.00", "|34.13", "|0.00"});
        QStringList actual;
        for (const FloatingTableRow &row : floatingTableCells(sampleInfo()))
            actual.append(row.angle + QLatin1Char('|') + row.level);
        QCOMPARE(actual, expected);
    }

    void fillsTheFrequencyTable()
    {
        const QStringList expected = texts({"2450 up", "20.0000", "19.7500", "-100.0000", "6.6667",
                                            "25.1055", "34.1260", "0.0000"});
        QCOMPARE(frequencyTableCells(sampleInfo(), QStringLiteral("2450 up")), expected);
        QCOMPARE(amplitudeCell(sampleInfo()), QStringLiteral("10.0000"));
    }

    void printsUndefinedRatios()
    {
        const auto crossPolar = [](double ratio) {
            ParaInfo info;
            info.crossPolarRatio.second = ratio;
            return frequencyTableCells(info, {}).last();
        };
        QCOMPARE(crossPolar(255.0000009), QStringLiteral("nan"));
        QCOMPARE(crossPolar(254.9999), QStringLiteral("254.9999"));

        const auto ratios = [](double gain, double back) {
            ParaInfo info;
            info.gain.second = gain;
            info.backLobe.second = back;
            return QStringList{floatingTableCells(info)[8].level, frequencyTableCells(info, {})[5]};
        };
        QCOMPARE(ratios(5, 5), texts({"inf", "-inf"}));
        QCOMPARE(ratios(-5, 5), texts({"nan", "nan"}));
        QCOMPARE(ratios(10, 0), texts({"0.00", "20.0000"}));
    }
};

MZ_GUILESS_TEST(TestParaTableText)
#include "tst_paratabletext.moc"
