#include "module/formulacalc.h"

#include "testmain.h"

#include <QDir>
#include <QFile>
#include <QRandomGenerator>
#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cmath>
#include <cstring>
#include <functional>
#include <iterator>
#include <limits>

using LossMap = QMap<double, double>;

namespace {

bool sameBits(double a, double b)
{
    quint64 bitsOfA = 0;
    quint64 bitsOfB = 0;
    std::memcpy(&bitsOfA, &a, sizeof a);
    std::memcpy(&bitsOfB, &b, sizeof b);
    return bitsOfA == bitsOfB;
}

/// The lookup as the descending walk that defines it.
double walk(double value, const LossMap &map)
{
    if (map.isEmpty())
        return 0.0;
    QList<double> keys = map.keys();
    if (keys.contains(value))
        return map.value(value);
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

/// A field as a file may hold it, and the number it counts as.
struct Cell
{
    const char *text;
    double number;
};

constexpr Cell cells[] = {
    {"1.25", 1.25}, {"-0.5", -0.5},   {" 2 ", 2.0}, {"+3", 3.0},  {"4e2", 400.0},
    {"0.1", 0.1},   {".5", 0.5},      {"7.", 7.0},  {"", 0.0},    {"n/a", 0.0},
    {"1-2", 0.0},   {"\"5.0\"", 0.0}, {"nan", 0.0}, {"inf", 0.0}, {"12dB", 0.0},
};

} // namespace

class TestFormulaCalc : public QObject
{
    Q_OBJECT

private slots:
    void lookup_data();
    void lookup();
    void lookupEqualsTheWalk_data();
    void lookupEqualsTheWalk();
    void lookupWarnsOfASingleKey();
    void category_data();
    void category();
    void files_data();
    void files();
    void cellsReadAsNumbers_data();
    void cellsReadAsNumbers();
    void randomTables();
    void bigTable();
    void unreadableFileKeepsTheTable_data();
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

void TestFormulaCalc::lookup_data()
{
    QTest::addColumn<LossMap>("map");
    QTest::addColumn<double>("frequency");
    QTest::addColumn<double>("loss");
    const LossMap table{{700, 1.0}, {800, 2.0}, {1000, 6.0}};
    const double nan = std::numeric_limits<double>::quiet_NaN();

    QTest::newRow("no table") << LossMap() << 700.0 << 0.0;
    QTest::newRow("tabulated") << table << 800.0 << 2.0;
    QTest::newRow("only tabulated frequency") << LossMap{{700, 1.5}} << 700.0 << 1.5;
    QTest::newRow("between two") << table << 750.0 << 1.5;
    QTest::newRow("above the table") << table << 1100.0 << 8.0;
    QTest::newRow("below the table") << table << 650.0 << 0.5;
    QTest::newRow("tabulated at 0") << LossMap{{0, 3.0}, {10, 4.0}} << 0.0 << 3.0;
    QTest::newRow("next to 0 lies on the same line")
        << LossMap{{0, 1}, {10, 2}, {20, 9}} << 5.0 << 1.5;
    // The key above is 0 and counts as missing, so that the two largest keys decide.
    QTest::newRow("below a key of 0") << LossMap{{-10, 1}, {0, 2}, {10, 9}} << -5.0 << -1.5;
    QTest::newRow("not a frequency") << table << nan << nan;
}

void TestFormulaCalc::lookup()
{
    QFETCH(LossMap, map);
    QFETCH(double, frequency);
    QFETCH(double, loss);
    const double found = m_calc->getValueFromMap(frequency, map);
    QVERIFY2(std::isnan(loss) ? std::isnan(found) : qAbs(found - loss) < 1e-12,
             qPrintable(QString::number(found)));
}

void TestFormulaCalc::lookupEqualsTheWalk_data()
{
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("lowest");  // of the keys, which are whole numbers ...
    QTest::addColumn<double>("unit"); // ... of this unit
    QTest::newRow("two keys") << 2 << 700 << 1.0;
    QTest::newRow("few keys about 0") << 5 << -6 << 1.0;
    QTest::newRow("keys from 0 up") << 20 << 0 << 0.1;
    QTest::newRow("frequencies in Hz") << 200 << 1 << 1e6 / 3;
}

void TestFormulaCalc::lookupEqualsTheWalk()
{
    QFETCH(int, size);
    QFETCH(int, lowest);
    QFETCH(double, unit);
    QRandomGenerator random{quint32(size)};
    for (int round = 0; round < 50; ++round) {
        LossMap map;
        while (map.size() < size)
            map.insert((lowest + random.bounded(3 * size)) * unit, random.bounded(100.0) - 50);
        for (int query = 0; query < 100; ++query) {
            const bool tabulated = query % 4 == 0;
            const double frequency = (lowest - size + random.bounded(5 * size)) * unit +
                                     (tabulated ? 0.0 : random.bounded(unit));
            const double found = m_calc->getValueFromMap(frequency, map);
            QVERIFY2(sameBits(found, walk(frequency, map)),
                     qPrintable(QStringLiteral("round %1 at %2").arg(round).arg(frequency)));
        }
    }
}

void TestFormulaCalc::lookupWarnsOfASingleKey()
{
    QTest::ignoreMessage(QtWarningMsg, "This val is invaild from map 800 0 700 700 700");
    QCOMPARE(m_calc->getValueFromMap(800, {{700, 1.5}}), 0.0);
}

void TestFormulaCalc::category_data()
{
    QTest::addColumn<QString>("category");
    QTest::addColumn<double>("loss");
    QTest::newRow("radiated power") << "TRP" << 1.0;
    QTest::newRow("sensitivity") << "TIS" << 5.0;
    QTest::newRow("within other text, small letters") << "lte tis b7" << 5.0;
    QTest::newRow("both: radiated power first") << "TIS/TRP" << 1.0;
    QTest::newRow("neither") << "EIRP" << 0.0;
}

void TestFormulaCalc::category()
{
    load("category,,,,700,800\n,upside,,,1,2\n,downside,,,5,6\n");
    QFETCH(QString, category);
    QTEST(m_calc->queryLossCompensation(category, 700), "loss");
}

void TestFormulaCalc::files_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<LossMap>("up");
    QTest::addColumn<LossMap>("down");
    const QByteArray example = "category,path,desc,unit,700,800,900\n"
                               "cable,upside,,dB,1.25,1.5,1.75\n"
                               "antenna,upside,,dB,0.25,0.5,0.5\n"
                               "cable,downside,,dB,1.125,1.5,2\n";
    const LossMap up{{700, 1.5}, {800, 2}, {900, 2.25}};
    const LossMap down{{700, 1.125}, {800, 1.5}, {900, 2}};
    const LossMap zeros{{700, 0}, {800, 0}};

    QTest::newRow("losses of a path add up") << example << up << down;
    QTest::newRow("Windows line ends") << QByteArray(example).replace("\n", "\r\n") << up << down;
    QTest::newRow("byte-order mark") << "\xEF\xBB\xBF" + example << up << down;
    QTest::newRow("last line without an end") << example.chopped(1) << up << down;
    QTest::newRow("comments and blank lines")
        << "\xE6\x8D\x9F\xE8\x80\x97\n\n" + example + "\n,,,,9,9,9\n"
        << up << down;
    QTest::newRow("words in any case and column, within text")
        << QByteArray("path,CATEGORY,,,700,800\nsee UpSide.xls,,,,1,2\n,,,,3,4,downside\n")
        << LossMap{{700, 1}, {800, 2}} << LossMap{{700, 3}, {800, 4}};
    QTest::newRow("heading by a field, not by a part of one")
        << QByteArray("my category,,,,700,800\n,upside,,,1,2\n") << LossMap() << LossMap();
    QTest::newRow("word in quotes is no heading, a path in quotes is one")
        << QByteArray("\"category\",,,,600\ncategory,,,,700,800\n,\"upside\",,,\"1\",2\n")
        << LossMap{{700, 0}, {800, 2}} << zeros;
    QTest::newRow("a row feeds both paths")
        << QByteArray("category,,,,700,800\nupside,downside,,,1,2\n") << LossMap{{700, 1}, {800, 2}}
        << LossMap{{700, 1}, {800, 2}};
    QTest::newRow("short, long and bare rows")
        << QByteArray("category,,,,700,800\nupside,,,,1\nupside,,,,1,2,3,4\nupside\nupside,,,\n")
        << LossMap{{700, 2}, {800, 2}} << zeros;
    QTest::newRow("row before any heading")
        << QByteArray(",upside,,,5,5\ncategory,,,,700,800\n") << zeros << zeros;
    QTest::newRow("later heading names the columns anew")
        << QByteArray("category,,,,700,800\n,upside,,,1,2\ncategory,,,,900\n,upside,,,4,8\n")
        << LossMap{{700, 1}, {800, 2}, {900, 4}} << LossMap{{700, 0}, {800, 0}, {900, 0}};
    QTest::newRow("later heading starts its frequencies again")
        << QByteArray("category,,,,700,800\n,upside,,,1,2\ncategory,,,,800\n")
        << LossMap{{700, 1}, {800, 0}} << zeros;
    QTest::newRow("frequency named twice takes both columns")
        << QByteArray("category,,,,700,700\n,upside,,,1,2\n") << LossMap{{700, 3}}
        << LossMap{{700, 0}};
    QTest::newRow("empty file") << QByteArray() << LossMap() << LossMap();
}

void TestFormulaCalc::files()
{
    load("category,,,,1\n,upside,,,1\n,downside,,,1\n"); // must be gone afterwards
    QFETCH(QByteArray, text);
    load(text);
    QTEST(m_calc->upsideMap(), "up");
    QTEST(m_calc->downsideMap(), "down");
}

void TestFormulaCalc::cellsReadAsNumbers_data()
{
    QTest::addColumn<QString>("text");
    for (const char *text : {"0",
                             "-0",
                             ".5",
                             "-.5",
                             "5.",
                             "-",
                             ".",
                             "-.",
                             "1..2",
                             "1-2",
                             "--1",
                             "00012.50",
                             "0.1",
                             "3.14159265358979",
                             "9007199254740993",
                             "1e5",
                             "1E-5",
                             "2.5e+3",
                             "0x10",
                             "1 2",
                             "\t7 ",
                             "123456789012345678901234567890.123456789",
                             "12345678901234567890123456789012",
                             "0.30000000000000004441",
                             "1.7976931348623157e308",
                             "4.9e-324",
                             "\xEF\xBC\x91"})
        QTest::newRow(text) << QString::fromUtf8(text);
}

void TestFormulaCalc::cellsReadAsNumbers()
{
    QFETCH(QString, text);
    load("category,,,," + text.toUtf8() + ",7\nupside,,,,0," + text.toUtf8() + '\n');
    const double number = text.toDouble();
    QVERIFY(m_calc->upsideMap().contains(number));
    QVERIFY(sameBits(m_calc->upsideMap().value(7), 0.0 + number));
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
                const Cell &cell = cells[random.bounded(int(std::size(cells)))];
                text += column ? "," : "dB,";
                text += cell.text;
                if (column < columns)
                    expected[path][600 + 10 * column] += cell.number;
            }
        }
        load(text);
        QVERIFY2(m_calc->upsideMap() == expected[0], text.constData());
        QVERIFY2(m_calc->downsideMap() == expected[1], text.constData());
    }
}

void TestFormulaCalc::bigTable()
{
    constexpr int columns = 10000;
    constexpr int rows = 100;
    QByteArray text = "category,path,desc,unit";
    QByteArray row = "\npart,upside,,dB";
    for (int column = 0; column < columns; ++column) {
        text += ',' + QByteArray::number(columns - column);
        row += ',' + QByteArray::number((columns - column) * 0.25);
    }
    text += row.repeated(rows);
    load(text);
    QCOMPARE(m_calc->upsideMap().size(), columns);
    for (const double frequency : {1.0, 5000.5, 10000.0, 20000.0})
        QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("TRP"), frequency),
                 frequency * 0.25 * rows);
}

void TestFormulaCalc::unreadableFileKeepsTheTable_data()
{
    QTest::addColumn<QString>("path");
    QTest::newRow("missing") << m_folder.filePath(QStringLiteral("none.csv"));
    QTest::newRow("a folder") << m_folder.path();
}

void TestFormulaCalc::unreadableFileKeepsTheTable()
{
    load("category,,,,700\n,upside,,,1.5\n");
    QFETCH(QString, path);
    QTest::ignoreMessage(QtWarningMsg, qPrintable(QStringLiteral("Open %1 failed!").arg(path)));
    m_calc->queryLossCompensationFromFile(path);
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
