#include "2d/data/curvemaths.h"
#include "2d/data/polylinedecimation.h"
#include "2d/view/chartmenu.h"
#include "testmain.h"

#include <cmath>

using Points = QVector<QPointF>;

class TestChartUnits : public QObject
{
    Q_OBJECT

private slots:
    void interpolates()
    {
        using Found = std::optional<double>;
        const Points up{{0, 0}, {10, 20}, {20, 0}};
        QCOMPARE(interpolateAt(up, 5), Found(10.0));
        QCOMPARE(interpolateAt(up, 20), Found(0.0));
        QCOMPARE(interpolateAt(up, 20.1), Found());
        QCOMPARE(interpolateAt({{10, 1}, {0, 3}}, 2.5), Found(2.5));
        QCOMPARE(interpolateAt({{5, 1}}, 5), Found());
        // Of a vertical segment the second point counts, of two segments the first.
        QCOMPARE(interpolateAt({{5, 1}, {5, 9}}, 5), Found(9.0));
        QCOMPARE(interpolateAt({{0, 0}, {10, 10}, {0, 50}}, 4), Found(4.0));
    }

    void cutsSegments()
    {
        const auto seen = [](const QLineF &segment) {
            const QRectF window(0, 0, 10, 10);
            QPointF from = segment.p1();
            QPointF to = segment.p2();
            const bool hit = !segmentMisses(from, to, window) && clipSegment(from, to, window);
            return hit ? QLineF(from, to) : QLineF();
        };
        QCOMPARE(seen({1, 1, 9, 9}), QLineF(1, 1, 9, 9));
        QCOMPARE(seen({-10, 5, 20, 5}), QLineF(0, 5, 10, 5));
        QCOMPARE(seen({5, 5, 5, -1e300}), QLineF(5, 5, 5, 0));
        QCOMPARE(seen({-5, 4, 4, -5}), QLineF()); // past a corner
        QCOMPARE(seen({-1, 0, -1, 10}), QLineF());
        QCOMPARE(seen({5, 5, std::nan(""), 5}), QLineF());
        // What is thinned begins and ends where the curve does.
        const auto thinned =
            visibleSegments(Points{{1, 1}, {5, 5}, {9, 9}}, QRectF(0, 0, 10, 10), 1.0);
        QCOMPARE(thinned.constFirst().p1(), QPointF(1, 1));
        QCOMPARE(thinned.constLast().p2(), QPointF(9, 9));
        const auto dense = visibleSegments(Points{{1, 5}, {1, 1}, {1, 9}, {1, 4}, {1, 5}},
                                           QRectF(0, 0, 10, 10), 1.0);
        QCOMPARE(dense.size(), 1);
        QCOMPARE(QRectF(dense[0].p1(), dense[0].p2()).height(), 8.0);
    }

    void piecesJoin()
    {
        // A line that leaves the window, with one point or many, and comes back is drawn without
        // the way outside, and without a gap inside.
        Points points;
        for (int i = 0; i < 100; ++i)
            points.append({double(i), i == 20 || (i >= 40 && i < 60) ? -50.0 : 5.0});
        double length = 0.0;
        QPointF end(0, 5);
        int gaps = 0;
        forEachPiece(points.constData(), points.size(), QRectF(0, 0, 100, 10),
                     [&](const QPointF *piece, int count) {
                         QVERIFY(count >= 2 && count <= 17);
                         if (piece[0] != end)
                             ++gaps;
                         for (int i = 1; i < count; ++i)
                             length += std::abs(piece[i].x() - piece[i - 1].x());
                         end = piece[count - 1];
                     });
        QCOMPARE(gaps, 2);
        QCOMPARE(end, points.last());
        QVERIFY(length > 76.0 && length < 77.0);
    }

    void enablesMenuEntries()
    {
        const auto enabled = [](bool selected, bool finished, int marks, const char *clipboard) {
            const ChartMenuState state = chartMenuState(
                {selected, finished, false, false, marks, QString::fromLatin1(clipboard)});
            QStringList names;
            const auto note = [&names](bool on, const char *name) {
                if (on)
                    names.append(QString::fromLatin1(name));
            };
            note(state.copy, "copy");
            note(state.paste, "paste");
            note(state.exportData, "data");
            note(state.exportImage, "image");
            note(state.deleteMark, "delete");
            note(state.markTable, "marks");
            note(state.parameterTable, "figures");
            note(state.symmetry, "symmetry");
            return names.join(QLatin1Char(' ')).toLatin1();
        };
        const char *const curve = "F1\nAngle,Power\n0,1\n";
        QCOMPARE(enabled(true, false, 0, ""), QByteArray("copy data image"));
        QCOMPARE(enabled(false, false, 0, curve), QByteArray("paste"));
        QCOMPARE(enabled(false, false, 0, "angle,power"), QByteArray());
        QCOMPARE(enabled(false, false, 1, ""), QByteArray("delete"));
        QCOMPARE(enabled(false, true, 0, ""), QByteArray("symmetry"));
        QCOMPARE(enabled(true, true, 2, curve),
                 QByteArray("copy paste data image delete marks figures symmetry"));
    }
};

MZ_GUILESS_TEST(TestChartUnits)

#include "tst_chartunits.moc"
