#include "module/formulacalc.h"

#include "testfiles.h"
#include "testmain.h"

#include <QRegularExpression>
#include <QTemporaryDir>

#include <algorithm>
#include <cstring>
#include <functional>

using LossMap = QMap<double, double>;

namespace {} // namespace

class TestFormulaCalc : public QObject
{
    Q_OBJECT

private slots:
    void lookup()
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

    void category()
    {
        load("category,,,,700,800\n,upside,,,1,2\n,downside,,,5,6\n");
        QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("TRP"), 700), 1.0);
        QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("lte tis b7"), 700), 5.0);
        QCOMPARE(m_calc->queryLossCompensation(QStringLiteral("TIS/TRP"), 700), 1.0);
    }

    void files_data()
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
            "path,CATEGORY,,,700,800\nsee UpSide.xls,,,,1,2\n,,,,3,4,downside\n",
            {{700, 1}, {800, 2}}, {{700, 3}, {800, 4}});
        row("heading by a field, not by a part of one", "my " + heading + ",upside,,,1,2\n", {},
            {});
        row("word in quotes is no heading, a path in quotes is one",
            "\"category\",,,,600\n" + heading + ",\"upside\",,,\"1\",2\n", {{700, 0}, {800, 2}},
            zeros);
        row("short, long and bare rows",
            heading + "upside,,,,1\nupside,,,,1,2,3,4\nupside\nupside,,,\n", {{700, 2}, {800, 2}},
            zeros);
        row("later heading names the columns anew",
            heading + ",upside,,,1,2\ncategory,,,,900\n,upside,,,4,8\n",
            {{700, 1}, {800, 2}, {900, 4}}, {{700, 0}, {800, 0}, {900, 0}});
        row("frequency named twice takes both columns", "category,,,,700,700\n,upside,,,1,2\n",
            {{700, 3}}, {{700, 0}});
    }

    void files()
    {
        load("category,,,,1\n,upside,,,1\n,downside,,,1\n"); // must be gone afterwards
        QFETCH(QByteArray, text);
        load(text);
        QTEST(m_calc->upsideMap(), "up");
        QTEST(m_calc->downsideMap(), "down");
    }

    void unreadableFileKeepsTheTable()
    {
        load("category,,,,700\n,upside,,,1.5\n");
        for (const QString &path :
             {m_folder.filePath(QStringLiteral("none.csv")), m_folder.path()}) {
            QTest::ignoreMessage(QtWarningMsg,
                                 qPrintable(QStringLiteral("Open %1 failed!").arg(path)));
            m_calc->queryLossCompensationFromFile(path);
        }
        QCOMPARE(m_calc->upsideMap(), (LossMap{{700, 1.5}}));
    }

    /// The table of questions and answers in the documentation holds for the sample beside it.
    void documentedExample()
    {
        m_calc->queryLossCompensationFromFile(QStringLiteral(MZ_SAMPLES "/loss-table.csv"));
        QFile page(QStringLiteral(MZ_DOCUMENTS "/components.md"));
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
            QVERIFY2(qAbs(loss - match.captured(3).toDouble()) < 1e-9,
                     qPrintable(match.captured()));
        }
        QVERIFY2(count >= 6, "the page has lost its example");
    }

private:
    void load(const QByteArray &text)
    {
        const QString path = m_folder.filePath(QStringLiteral("table.csv"));
        m_calc->queryLossCompensationFromFile(write(path, text));
    }

    QTemporaryDir m_folder;
    FormulaCalc *m_calc = FormulaCalc::Instance();
};

MZ_GUILESS_TEST(TestFormulaCalc)
#include "tst_formulacalc.moc"
