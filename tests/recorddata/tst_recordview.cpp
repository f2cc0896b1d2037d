#include "recorddata/recordreader.h"
#include "recordview/recordchart.h"
#include "recordview/recordcurve.h"
#include "recordview/recordview.h"
#include "testfiles.h"
#include "testmain.h"

#include <QPainter>
#include <QTableWidget>
#include <QTemporaryDir>

namespace {

/// A day of the console, a row a minute from 08:00, with a level of -20 dBm less the minute in
/// hundredths; from minute 30 to 39 there was no reading.
QByteArray consoleRows(int from, int to)
{
    QByteArray text;
    for (int minute = from; minute < to; ++minute) {
        const bool isGap = minute >= 30 && minute < 40;
        text += QStringLiteral("2026/11/21 %1:%2,2.45,0,%3dBm,x\n")
                    .arg(8 + minute / 60, 2, 10, QLatin1Char('0'))
                    .arg(minute % 60, 2, 10, QLatin1Char('0'))
                    .arg(isGap ? 100.0 : -20.0 - 0.01 * minute, 0, 'f', 2)
                    .toLatin1();
    }
    return text;
}

} // namespace

class TestRecordView : public QObject
{
    Q_OBJECT

private slots:
    void init()
    {
        m_path = m_folder.filePath(QStringLiteral("2026-11-21.csv"));
        write("Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n" + consoleRows(0, 100));
        m_view = std::make_unique<RecordView>();
        m_view->setAttribute(Qt::WA_DeleteOnClose, false);
        m_view->show();
        m_view->open({m_path});
        QTRY_VERIFY(!m_view->isLoading());
        QVERIFY(m_view->reader());
    }

    void readsCursorsAndSavesRows()
    {
        RecordChart *chart = m_view->chart();
        QTest::keyClick(chart, Qt::Key_A);
        chart->setCursorPoint(RecordChart::A, 20);
        chart->setCursorPoint(RecordChart::B, 30); // behind the gap: minute 40
        QCOMPARE(cell("tableCursors", 0, 0), QStringLiteral("2026-11-21 08:20:00"));
        QCOMPARE(cell("tableCursors", 1, 1), QStringLiteral("-20.4000 dBm"));
        QCOMPARE(cell("tableCursors", 2, 1),
                 QStringLiteral("2026/11/21 08:40")); // as it is written
        QCOMPARE(cell("tableSpan", 0), QStringLiteral("00:20:00"));
        QCOMPARE(cell("tableSpan", 1), QStringLiteral("-0.2000 dB"));
        QCOMPARE(cell("tableSpan", 3), QStringLiteral("-20.4000 dBm")); // the minimum
        QCOMPARE(cell("tableSpan", 7), QStringLiteral("11"));
        QCOMPARE(cell("tableSpan", 8), QStringLiteral("1"));
        QTest::keyClick(chart, Qt::Key_Right, Qt::ControlModifier);
        QCOMPARE(cell("tableCursors", 0, 1), QStringLiteral("2026-11-21 08:41:00"));
        chart->setCursorPoint(RecordChart::A, 31);
        QCOMPARE(cell("tableCursors", 2, 1), QStringLiteral("2026/11/21 08:41"));
        chart->setCursorPoint(RecordChart::A, 20);

        const QString rows = m_folder.filePath(QStringLiteral("span.csv"));
        QVERIFY(m_view->saveRows(rows));
        QCOMPARE(contentOf(rows), "Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n" +
                                      consoleRows(20, 42));
        QVERIFY(m_view->savePicture(m_folder.filePath(QStringLiteral("picture.png"))));
        QVERIFY(!QImage(m_folder.filePath(QStringLiteral("picture.png"))).isNull());
    }

    void zoomsAndPans()
    {
        RecordChart *chart = m_view->chart();
        const ViewRange all = chart->shownRange();
        QVERIFY(all.xMin < m_view->reader()->data().begin());
        for (int i = 0; i < 6; ++i)
            QTest::keyClick(chart, Qt::Key_Plus);
        const ViewRange closer = chart->shownRange();
        QVERIFY(closer.xMax - closer.xMin < 0.3 * (all.xMax - all.xMin));
        QVERIFY(closer.yMax < all.yMax); // the level follows what is shown
        QTest::keyClick(chart, Qt::Key_Right);
        const double tenth = 0.1 * (closer.xMax - closer.xMin);
        QVERIFY(std::abs(chart->shownRange().xMin - closer.xMin - tenth) < 0.01);
        QTest::keyClick(chart, Qt::Key_Up);
        QVERIFY(!chart->fitsLevel());
        chart->setFitsLevel(true);
        QTest::keyClick(chart, Qt::Key_Plus, Qt::ControlModifier);
        QVERIFY(!chart->fitsLevel());
        chart->setCursorPoint(RecordChart::B, 0);
        QTest::keyClick(chart, Qt::Key_Right, Qt::ControlModifier); // and the view goes there
        QCOMPARE(chart->shownRange().xMin, m_view->reader()->data().time(1));
        QTest::keyClick(chart, Qt::Key_Home);
        QCOMPARE(chart->shownRange().xMin, all.xMin);
        QVERIFY(chart->fitsLevel());

        const QPoint middle = chart->rect().center();
        QTest::mouseClick(chart, Qt::LeftButton, {}, middle);
        QVERIFY(chart->cursor(RecordChart::A) != RecordChart::noPoint);
        QTest::mousePress(chart, Qt::LeftButton, {}, middle + QPoint(100, 0));
        QMouseEvent move(QEvent::MouseMove, middle + QPoint(200, 0), Qt::NoButton, Qt::LeftButton,
                         {});
        QApplication::sendEvent(chart, &move);
        QTest::mouseRelease(chart, Qt::LeftButton, {}, middle + QPoint(200, 0));
        const double width = all.xMax - all.xMin;
        QVERIFY(chart->shownRange().xMin < all.xMin);
        QVERIFY(chart->shownRange().xMin > all.xMin - 0.5 * width);
    }

    void followsAndTellsErrors()
    {
        const int before = m_view->reader()->data().size();
        write(consoleRows(100, 110), QFile::Append);
        QTRY_COMPARE(m_view->reader()->data().size(), before + 10);
        const RecordChart *chart = m_view->chart();
        QVERIFY(chart->shownRange().xMax > m_view->reader()->data().end()); // all is shown still
        for (const Qt::Key key : {Qt::Key_Plus, Qt::Key_Plus, Qt::Key_PageUp})
            QTest::keyClick(m_view->chart(), key);
        const double end = chart->shownRange().xMax;
        write(consoleRows(110, 111), QFile::Append);
        QTRY_COMPARE(m_view->reader()->data().size(), before + 11);
        QCOMPARE(chart->shownRange().xMax, end); // nor is a part left that one looks at

        const QByteArray header("Time,Frequency(GHz),Offset(dB),Power(dBm),Converted Power\n");
        write(header + consoleRows(0, 5));
        QTRY_COMPARE(m_view->reader()->data().size(), 5); // replaced by a shorter one

        m_path = m_folder.filePath(QStringLiteral("new.csv"));
        write(header);
        m_view->open({m_path});
        QTRY_VERIFY(m_view->reader()->data().isEmpty());
        write(consoleRows(0, 5), QFile::Append);
        QTRY_COMPARE(m_view->reader()->data().size(), 5);
        QVERIFY(chart->shownRange().xMin < m_view->reader()->data().begin());

        // its own file is not overwritten
        QTimer::singleShot(0, this, [] { QApplication::activeModalWidget()->close(); });
        QVERIFY(!m_view->saveRows(m_path));
        QCOMPARE(m_view->reader()->row(4), consoleRows(4, 5).trimmed());
    }

    /// With many points to a pixel the curve is drawn as bars.
    void drawsNothingOverAGap()
    {
        RecordData data;
        for (int i = 0; i < 1000; ++i)
            data.append({i < 500 ? i * 0.1 : 50.0 + i * 0.1, -20.0, false, i == 500, {}});
        data.index();
        ChartMapping mapping;
        mapping.plotArea = QRectF(0, 0, 150, 20);
        mapping.axes = {0, 150, -30, -10};
        RecordCurve curve;
        curve.show(&data, 0, 150, 150);
        QImage image(150, 20, QImage::Format_RGB32);
        image.fill(Qt::white);
        QPainter painter(&image);
        curve.draw(painter, mapping);
        for (int x = 0; x < 150; ++x)
            QCOMPARE(image.pixelColor(x, 10) == Qt::white, x >= 50 && x < 100);
    }

private:
    QString cell(const char *table, int row, int column = 0) const
    {
        return m_view->findChild<QTableWidget *>(QLatin1String(table))->item(row, column)->text();
    }
    void write(const QByteArray &text, QFile::OpenMode mode = QFile::WriteOnly)
    {
        ::write(m_path, text, mode);
    }

    QTemporaryDir m_folder;
    QString m_path;
    std::unique_ptr<RecordView> m_view;
};

MZ_TEST(TestRecordView)
#include "tst_recordview.moc"
