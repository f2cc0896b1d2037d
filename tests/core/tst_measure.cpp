#include "measure/limits.h"
#include "measure/powerstatistics.h"

#include "testmain.h"

namespace {

PowerStatistics statisticsOf(const QVector<double> &levels)
{
    PowerStatistics statistics;
    for (const double level : levels)
        statistics.add(level);
    return statistics;
}

QString figures(const PowerStatistics &of)
{
    const auto number = [](std::optional<double> value) {
        return value ? QString::number(*value, 'f', 4) : QStringLiteral("-");
    };
    return QStringList{QString::number(of.count()), number(of.mean()), number(of.minimum()),
                       number(of.maximum()), number(of.sigma())}
        .join(QLatin1Char(' '));
}

} // namespace

/// What is computed from readings.
class TestMeasure : public QObject
{
    Q_OBJECT

private slots:
    void statistics()
    {
        const QVector<double> mixed{-20, -20, -20, -20, -20, -20, -20, -20, -20, -20, -10};
        QCOMPARE(figures(statisticsOf({})), QStringLiteral("0 - - - -"));
        QCOMPARE(figures(statisticsOf({-3.5})), QStringLiteral("1 -3.5000 -3.5000 -3.5000 -"));
        // The sample deviation of ten 0.01 mW and one 0.1 mW is 0.0271360 mW.
        QCOMPARE(figures(statisticsOf(mixed)),
                 QStringLiteral("11 -17.4036 -20.0000 -10.0000 6.4818"));
        for (int cut = 0; cut <= mixed.size(); ++cut) {
            PowerStatistics merged = statisticsOf(mixed.mid(0, cut));
            merged.merge(statisticsOf(mixed.mid(cut)));
            QCOMPARE(figures(merged), figures(statisticsOf(mixed)));
        }
    }

    void alarm_data()
    {
        QTest::addColumn<int>("inARow");
        QTest::addColumn<bool>("latched");
        QTest::addColumn<QVector<double>>("levels"); // 100 missing, 200 acknowledged, 300 unlatched
        QTest::addColumn<QString>("changes");        // behind each level those that it brought
        QTest::newRow("equality is inside, also after a mean")
            << 1 << false << QVector<double>{-10, -9.99996, -9.9999, -10.1999, -10.2} << "..H.h";
        QTest::newRow("both limits, and from one to the other")
            << 1 << false << QVector<double>{-30.001, -29.81, -29.8, -9, -40, -20} << "L.lHhLl";
        QTest::newRow("a missing level changes nothing")
            << 2 << false << QVector<double>{-9, 100, -9, 100, -20} << "..H.h";
        QTest::newRow("a row that breaks")
            << 2 << false << QVector<double>{-9, -20, -9, -9} << "...H";
        QTest::newRow("latched until acknowledged and back")
            << 1 << true << QVector<double>{-9, -20, 200, -9, 200, -9, -20} << "H.hH..h";
        QTest::newRow("acknowledged while it lasted, and again")
            << 1 << true << QVector<double>{-9, 200, -20, -9, -20, 200} << "H.hH.h";
        QTest::newRow("latched no more")
            << 1 << true << QVector<double>{-9, -20, 300, -9, 300, -20} << "H.hH.h";
    }
    void alarm()
    {
        QFETCH(int, inARow);
        QFETCH(bool, latched);
        QFETCH(QVector<double>, levels);
        LimitAlarm alarm({-10.0, -30.0, 0.2, inARow, latched});
        QString told;
        for (const double level : levels) {
            const auto changes =
                level == 200   ? alarm.acknowledge()
                : level == 300 ? alarm.setLatched(false)
                               : alarm.add(level == 100 ? std::nullopt : std::optional(level));
            for (const LimitAlarm::Change &change : changes) {
                const QLatin1Char letter(change.limit == LimitAlarm::High ? 'H' : 'L');
                told += change.isOn ? QChar(letter) : QChar(letter).toLower();
                QCOMPARE(alarm.isOn(change.limit), change.isOn);
            }
            if (changes.isEmpty())
                told += QLatin1Char('.');
        }
        QTEST(told, "changes");
    }
};

MZ_GUILESS_TEST(TestMeasure)

#include "tst_measure.moc"
