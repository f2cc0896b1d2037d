#include "2d/data/valuepyramid.h"
#include "testmain.h"

#include <algorithm>
#include <random>

class TestValuePyramid : public QObject
{
    Q_OBJECT

private slots:
    void findsWhatAWalkFinds()
    {
        std::mt19937 random(5);
        std::uniform_int_distribution<int> level(-50, 50); // equal values, too
        std::vector<double> points;                        // x and y by turns
        ValuePyramid pyramid;
        for (const int grownTo : {1, 7, 8, 9, 64, 600, 601, 5000}) {
            while (int(points.size()) < 2 * grownTo)
                points.push_back(level(random));
            const ValueList values{points.data() + 1, grownTo, 2};
            pyramid.extend(values);
            QCOMPARE(pyramid.size(), grownTo);

            std::uniform_int_distribution<int> index(0, grownTo - 1);
            for (int i = 0; i < 300; ++i) {
                const auto [first, last] = std::minmax({index(random), index(random)});
                ValuePyramid::Run expected{first, first, first, last};
                for (int at = first; at <= last; ++at) {
                    if (values[at] < values[expected.low])
                        expected.low = at;
                    if (values[at] > values[expected.high])
                        expected.high = at;
                }
                const ValuePyramid::Run run = pyramid.run(values, first, last);
                QCOMPARE(run.first, first);
                QCOMPARE(run.low, expected.low);
                QCOMPARE(run.high, expected.high);
                QCOMPARE(run.last, last);
            }
        }
    }

    void cutsRangesIntoColumns()
    {
        const std::vector<double> line(1000, 1.0);
        const ValueList values{line.data(), 1000};
        ValuePyramid pyramid;
        pyramid.extend(values);
        QVERIFY(pyramid.columns(values, 5, 4, 10).empty());
        for (const auto &[first, last, wanted] :
             {std::tuple{0, 999, 300}, std::tuple{17, 23, 300}, std::tuple{999, 999, 1}}) {
            const auto runs = pyramid.columns(values, first, last, wanted);
            QCOMPARE(int(runs.size()), std::min(wanted, last - first + 1));
            QCOMPARE(runs.front().first, first);
            QCOMPARE(runs.back().last, last);
            for (std::size_t i = 1; i < runs.size(); ++i)
                QCOMPARE(runs[i].first, runs[i - 1].last + 1);
        }
    }
};

MZ_GUILESS_TEST(TestValuePyramid)
#include "tst_valuepyramid.moc"
