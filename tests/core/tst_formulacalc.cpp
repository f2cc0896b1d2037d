#include "module/formulacalc.h"

#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>
#include <functional>

using LossMap = QMap<double, double>;

namespace {

quint64 bits(double value)
{
    quint64 pattern = 0;
    std::memcpy(&pattern, &value, sizeof value);
    return pattern;
}

/// The lookup as the descending walk that defines it.
double walk(double value, const LossMap &map)
{
    if (map.isEmpty() || map.contains(value))
        return map.value(value);
    QList<double> keys = map.keys();
    std::sort(keys.begin(), keys.end(), std::greater<double>());
    double upper = 0.0;
    double lower = 0.0;
    for (const double key : qAsConst(keys)) {
        if (key > value) {
            upper = key;
        } else {
            lower = key;
            break;
        }
    }
    if (lower == upper || lower == 0.0 || upper == 0.0) {
        if (keys.size() < 2)
            return 0.0;
        if (upper == 0.0) {
            upper = keys.at(0);
            lower = keys.at(1);
        } else if (lower == 0.0) {
            upper = keys.at(keys.size() - 2);
            lower = keys.at(keys.size() - 1);
        }
    }
    const double yUpper = map.value(upper, 0.0);
    const double yLower = map.value(lower, 0.0);
    const double slope = (yUpper - yLower) / (upper - lower);
    return value * slope + (yUpper - upper * slope);
}

/// Fields as a file may hold them, and the numbers that they count as.
const QVector<QPair<QByteArray, double>> cells{
    {"1.25", 1.25},
    {" 2 ", 2},
    {"+3", 3},
    {"-4e2", -400},
    {".5", 0.5},
    {"7.", 7},
    {"", 0},
    {"n/a", 0},
    {"1-2", 0},
    {"nan", 0},
    {"\"5.0\"", 0},
    {"inf", 0},
    {"12dB", 0},
    {"-", 0},
    {"0.1", 0.1},
    {"--1", 0},
    {"1..2", 0},
    {"0012.5", 12.5},
    {"9007199254740993", 9007199254740992.0},
    {"0.30000000000000004441", 0.30000000000000004441},
};

} // namespace

class TestFormulaCalc : public QObject
{
    Q_OBJECT

private slots:
    void lookup();
    void lookupEqualsTheWalk();
    void category();
    void files_data();
    void files();
    void randomTables();
    void unreadableFileKeepsTheTable();
    void documentedExample();

private:
    void load(const QByteArray &text);

    QTemporaryDir m_folder;
    FormulaCalc *m_calc = FormulaCalc::Instance();
};

void TestFormulaCalc::load(const QByteArray &text)
{
    QFile file(m_folder.filePath(QStringLiteral("table.csv")));
    QVERIFY(file.open(QIODevice::WriteOnly));
    QCOMPARE(file.write(text), qint64(text.size()));
    file.close();
    m_calc->queryLossCompensationFromFile(file.fileName());
}

void TestFormulaCalc::lookup()
{
    const LossMap table{{700, 1.0}, {800, 2.0}, {1000, 6.0}};
    QCOMPARE(m_calc->getValueFromMap(700, {}), 0.0);
    QCOMPARE(m_calc->getValueFromMap(750, table), 1.5);
    QCOMPARE(m_calc->getValueFromMap(1100, table), 8.0);
    QCOMPARE(m_calc->getValueFromMap(650, table), 0.5);
    QCOMPARE(m_calc->getValueFromMap(0, {{0, 3.0}, {10, 4.0}}), 3.0);
    // The key above is 0 and counts as missing, so that the two largest keys decide.
    QCOMPARE(m_calc->getValueFromMap(-5, {{-10, 1}, {0, 2}, {10, 9}}), -1.5);
    QTest::ignoreMessage(QtWarningMsg, "This val is invaild from map 800 0 700 700 700");
    QCOMPARE(m_calc->getValueFromMap(800, {{700, 1.5}}), 0.0);
}

void TestFormulaCalc::lookupEqualsTheWalk()
{
    // Whole multiples of a unit: about 0, from 0 up, and frequencies in Hz.
    struct Keys
    {
        int count;
        int lowest;
        double unit;
    };
    QRandomGenerator random(6218);
    for (const Keys &keys : {Keys{2, 700, 1}, {5, -6, 1}, {20, 0, 0.1}, {200, 1, 1e6 / 3}}) {
        for (int round = 0; round < 50; ++round) {
            LossMap map;
            while (map.size() < keys.count)
                map.insert((keys.lowest + random.bounded(3 * keys.count)) * keys.unit,
                           random.bounded(100.0) - 50);
            for (int query = 0; query < 100; ++query) {
                const int step = keys.lowest - keys.count + random.bounded(5 * keys.count);
                const double off = query % 4 ? random.bounded(keys.unit) : 0.0;
                const double frequency = step * keys.unit + off;
                QVERIFY2(bits(m_calc->getValueFromMap(frequency, map)) ==
                             bits(walk(frequency, map)),
                         qPrintable(QString::number(frequency, 'g', 17)));
            }
        }
    }
}

void TestFormulaCalc::category()
{
    load("category,,,,700,800\n,upside,,,1,2\n,downside,,,5,6\n");
    QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("TRP"), 700), 1.0);
    QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("lte tis b7"), 700), 5.0);
    QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("TIS/TRP"), 700), 1.0);
}

void TestFormulaCalc::files_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<LossMap>("up");
    QTest::addColumn<LossMap>("down");
    const auto row = [](const char *name, const QByteArray &text, const LossMap &up,
                        const LossMap &down) { QTest::newRow(name) << text << up << down; };
    const QByteArray heading = "category,,,,700,800\n";
    const QByteArray example = "category,path,desc,unit,700,800,900\n"
                               "cable,upside,,dB,1.25,1.5,1.75\n"
                               "antenna,upside,,dB,0.25,0.5,0.5\n"
                               "cable,downside,,dB,1.125,1.5,2\n";
    const LossMap up{{700, 1.5}, {800, 2}, {900, 2.25}};
    const LossMap down{{700, 1.125}, {800, 1.5}, {900, 2}};
    const LossMap zeros{{700, 0}, {800, 0}};

    row("losses of a path add up", example, up, down);
    row("Windows line ends", QByteArray(example).replace("\n", "\r\n"), up, down);
    row("byte-order mark", "\xEF\xBB\xBF" + example, up, down);
    row("comments and blank lines", "\xE6\x8D\x9F\n\n" + example + "\n,,,,9,9,9\n", up, down);
    row("words in any case and column, within text",
        "path,CATEGORY,,,700,800\nsee UpSide.xls,,,,1,2\n,,,,3,4,downside\n", {{700, 1}, {800, 2}},
        {{700, 3}, {800, 4}});
    row("heading by a field, not by a part of one", "my " + heading + ",upside,,,1,2\n", {}, {});
    row("word in quotes is no heading, a path in quotes is one",
        "\"category\",,,,600\n" + heading + ",\"upside\",,,\"1\",2\n", {{700, 0}, {800, 2}}, zeros);
    row("short, long and bare rows",
        heading + "upside,,,,1\nupside,,,,1,2,3,4\nupside\nupside,,,\n", {{700, 2}, {800, 2}},
        zeros);
    row("later heading names the columns anew",
        heading + ",upside,,,1,2\ncategory,,,,900\n,upside,,,4,8\n", {{700, 1}, {800, 2}, {900, 4}},
        {{700, 0}, {800, 0}, {900, 0}});
    row("frequency named twice takes both columns", "category,,,,700,700\n,upside,,,1,2\n",
        {{700, 3}}, {{700, 0}});
}

void TestFormulaCalc::files()
{
    load("category,,,,1\n,upside,,,1\n,downside,,,1\n"); // must be gone afterwards
    QFETCH(QByteArray, text);
    load(text);
    QTEST(m_calc->upsideMap(), "up");
    QTEST(m_calc->downsideMap(), "down");
}

void TestFormulaCalc::randomTables()
{
    QRandomGenerator random(6218);
    for (int round = 0; round < 200; ++round) {
        QByteArray text = "Category,path,desc,unit";
        const int columns = random.bounded(1, 30);
        for (int column = 0; column < columns; ++column)
            text += ',' + QByteArray::number(600 + 10 * column);
        LossMap expected[2];
        for (int column = 0; column < columns; ++column) {
            expected[0].insert(600 + 10 * column, 0.0);
            expected[1].insert(600 + 10 * column, 0.0);
        }
        const int rows = random.bounded(20);
        for (int row = 0; row < rows; ++row) {
            const int path = random.bounded(2);
            text += round % 2 ? "\r\n" : "\n";
            text += path ? "part,downside,," : "part,upside,,";
            const int fields = random.bounded(columns + 3);
            for (int column = 0; column < fields; ++column) {
                const auto &[field, number] = cells.at(random.bounded(cells.size()));
                text += (column ? "," : "dB,") + field;
                if (column < columns)
                    expected[path][600 + 10 * column] += number;
            }
        }
        load(text);
        QVERIFY2(m_calc->upsideMap() == expected[0], text.constData());
        QVERIFY2(m_calc->downsideMap() == expected[1], text.constData());
    }
}

void TestFormulaCalc::unreadableFileKeepsTheTable()
{
    load("category,,,,700\n,upside,,,1.5\n");
    for (const QString &path : {m_folder.filePath(QStringLiteral("none.csv")), m_folder.path()}) {
        QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Open %1 failed!").arg(path)));
        m_calc->queryLossCompensationFromFile(path);
    }
    QCOMPARE(m_calc->upsideMap(), (LossMap{{700, 1.5}}));
}

/// The table of questions and answers in the documentation holds for the sample beside it.
void TestFormulaCalc::documentedExample()
{
    // The folder of the test data need not exist.
    const QString root = QDir::cleanPath(QStringLiteral(MZ_TEST_DATA "/../..")) + QLatin1Char('/');
    m_calc->queryLossCompensationFromFile(root + QStringLiteral("patterns/samples/loss-table.csv"));
    QFile page(root + QStringLiteral("docs/components.md"));
    QVERIFY2(page.open(QIODevice::ReadOnly), qPrintable(page.errorString()));

    const QRegularExpression answer(
        QStringLiteral("^\\| (TRP|TIS) \\| ([0-9.]+) \\| ([-0-9.]+) \\|"),
        QRegularExpression::MultilineOption);
    auto answers = answer.globalMatch(QString::fromUtf8(page.readAll()));
    int count = 0;
    for (; answers.hasNext(); ++count) {
        const auto match = answers.next();
        const double loss =
            m_calc->queryLossCompensation(match.captured(1), match.captured(2).toDouble());
        QVERIFY2(qAbs(loss - match.captured(3).toDouble()) < 1e-9, qPrintable(match.captured()));
    }
    QVERIFY2(count >= 6, "the page has lost its example");
}

MZ_TEST_GUILESS_MAIN(TestFormulaCalc)
#include "tst_formulacalc.moc"
