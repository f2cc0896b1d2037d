#include "frame/lateicon.h"
#include "testfiles.h"
#include "testmain.h"

#include <QComboBox>
#include <QDoubleSpinBox>
#include <QIcon>
#include <QImageReader>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QVBoxLayout>

#include <algorithm>

namespace {

QByteArray sheet()
{
    return contentOf(QStringLiteral(":/qss/psblack.css"));
}

QVector<QRgb> pixelsOf(QWidget &widget)
{
    const QImage image = widget.grab().toImage();
    QVector<QRgb> pixels;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x)
            pixels.append(image.pixel(x, y));
    }
    return pixels;
}

int accents(QWidget &widget)
{
    const QVector<QRgb> pixels = pixelsOf(widget);
    return pixels.count(qRgb(0x0A, 0x86, 0xD6)) + pixels.count(qRgb(0xD9, 0xED, 0xFA));
}

int darkest(QWidget &widget)
{
    const QVector<QRgb> pixels = pixelsOf(widget);
    return qGray(*std::min_element(pixels.begin(), pixels.end(),
                                   [](QRgb a, QRgb b) { return qGray(a) < qGray(b); }));
}

} // namespace

/// What is compiled into the programs: that it is there, whole, and does what the screen needs.
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void pictures()
    {
        for (const char *path : {":/img/successful.png", ":/img/failing.png", ":/img/loading.gif",
                                 ":/image/loading.gif"}) {
            const QImage image{QLatin1String(path)};
            QVERIFY2(image.width() >= 40 && image.width() == image.height(), path);
            QVERIFY2(qAlpha(image.pixel(0, 0)) == 0, "a corner hides the background");
            QMovie movie{QLatin1String(path)};
            if (movie.frameCount() < 2)
                continue;
            QCOMPARE(movie.loopCount(), -1);
            QVERIFY(movie.jumpToFrame(0));
            const QImage first = movie.currentImage();
            QVERIFY(movie.jumpToNextFrame());
            QVERIFY2(movie.currentImage() != first, path);
        }
        for (const char *path : {":/image/pt.ico", ":/image/patterns.ico"}) {
            const QList<QSize> sizes = LateIcon::of(QLatin1String(path)).availableSizes();
            for (const int side : {16, 24, 32, 48, 64, 128, 256})
                QVERIFY2(sizes.contains(QSize(side, side)), path);
        }
    }

    void sheetIsWhole()
    {
        const QByteArray bytes = sheet();
        // The palette is read from the seven characters behind the first twenty, as Latin-1.
        QVERIFY(bytes.startsWith("QPalette{background:#FFFFFF;}\r\n"));
        QCOMPARE(bytes.count('\n'), bytes.count("\r\n"));
        QVERIFY(std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; }));
        auto match = QRegularExpression(QStringLiteral("url\\(([^)]*)\\.png\\)"))
                         .globalMatch(QString::fromLatin1(bytes));
        QVERIFY(match.hasNext());
        while (match.hasNext()) {
            const QString path = match.next().captured(1);
            const QSize size = QImageReader(path + QStringLiteral(".png")).size();
            QVERIFY2(size.isValid(), qPrintable(path));
            QCOMPARE(QImageReader(path + QStringLiteral("@2x.png")).size(), 2 * size);
        }
    }

    void focusAndDisabledCanBeSeen()
    {
        qApp->setStyleSheet(QString::fromLatin1(sheet()));
        QWidget window;
        auto *const layout = new QVBoxLayout(&window);
        const QList<QWidget *> widgets{new QPushButton, new QRadioButton, new QComboBox,
                                       new QDoubleSpinBox, new QLineEdit};
        for (QWidget *const widget : widgets) {
            for (const char *const property : {"text", "currentText"})
                widget->setProperty(property, QStringLiteral("MMM"));
            widget->setFocusPolicy(Qt::StrongFocus);
            layout->addWidget(widget);
        }
        window.show();
        window.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&window));
        for (QWidget *const widget : widgets) {
            window.setFocus();
            widget->clearFocus();
            const int without = accents(*widget);
            const int enabled = darkest(*widget);
            widget->setFocus(Qt::TabFocusReason);
            QTRY_VERIFY(widget->hasFocus());
            QVERIFY2(accents(*widget) > without + 20, widget->metaObject()->className());
            widget->setEnabled(false);
            QVERIFY2(darkest(*widget) > enabled + 50, widget->metaObject()->className());
        }
    }
};

MZ_TEST(TestResources)

#include "tst_resources.moc"
