#include "testmain.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFile>
#include <QHBoxLayout>
#include <QIcon>
#include <QImageReader>
#include <QLineEdit>
#include <QMovie>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTableWidget>

#include <algorithm>
#include <functional>

namespace {

QByteArray sheet()
{
    QFile file(QStringLiteral(":/qss/psblack.css"));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

using Maker = std::function<QWidget *()>;

template<typename Widget>
Maker make()
{
    return [] { return new Widget; };
}

QWidget *makeTabs()
{
    auto *const tabs = new QTabBar;
    tabs->addTab(QStringLiteral("First"));
    tabs->addTab(QStringLiteral("Second"));
    return tabs;
}

QWidget *makeTable()
{
    auto *const table = new QTableWidget(2, 2);
    table->setCurrentCell(0, 0);
    return table;
}

/// Every pixel that is seen of \a widget.
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

} // namespace

Q_DECLARE_METATYPE(Maker)

/// What is compiled into the programs: that it is there, whole, and does what the screen needs.
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { qApp->setStyleSheet(QString::fromLatin1(sheet())); }

    void pictures_data();
    void pictures();
    void iconsHaveEverySize();
    void sheetBeginsWithItsColour();
    void sheetRefersToPicturesThatExist();
    void focusCanBeSeen_data();
    void focusCanBeSeen();
    void disabledCanBeSeen();
};

void TestResources::pictures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<int>("side");
    QTest::addColumn<bool>("moves");
    QTest::newRow("success") << ":/img/successful.png" << 80 << false;
    QTest::newRow("failure") << ":/img/failing.png" << 80 << false;
    QTest::newRow("busy, message box") << ":/img/loading.gif" << 40 << true;
    QTest::newRow("busy, wait dialog") << ":/image/loading.gif" << 64 << true;
}

void TestResources::pictures()
{
    QFETCH(const QString, path);
    QFETCH(const int, side);
    QFETCH(const bool, moves);
    const QImage image(path);
    QVERIFY(image.width() >= side);
    QCOMPARE(image.width(), image.height());
    QVERIFY2(qAlpha(image.pixel(0, 0)) == 0, "a corner hides the background");
    if (!moves)
        return;
    QMovie movie(path);
    QCOMPARE(movie.loopCount(), -1);
    QVERIFY(movie.jumpToFrame(0));
    const QImage first = movie.currentImage();
    for (int i = 0; i < movie.frameCount() / 2; ++i)
        QVERIFY(movie.jumpToNextFrame());
    QVERIFY(movie.currentImage() != first);
}

void TestResources::iconsHaveEverySize()
{
    for (const char *const path : {":/image/pt.ico", ":/image/patterns.ico"}) {
        const QList<QSize> sizes = QIcon(QLatin1String(path)).availableSizes();
        for (const int side : {16, 24, 32, 48, 64, 128, 256})
            QVERIFY2(sizes.contains(QSize(side, side)), qPrintable(QString::number(side)));
    }
}

void TestResources::sheetBeginsWithItsColour()
{
    // The palette is read from the seven characters behind the first twenty.
    QVERIFY(sheet().startsWith("QPalette{background:#FFFFFF;}\r\n"));
    QCOMPARE(sheet().mid(20, 7), QByteArray("#FFFFFF"));
    QCOMPARE(sheet().count('\n'), sheet().count("\r\n"));
    const QByteArray bytes = sheet();
    QVERIFY2(std::all_of(bytes.begin(), bytes.end(), [](char c) { return (c & 0x80) == 0; }),
             "it is read as Latin-1");
}

void TestResources::sheetRefersToPicturesThatExist()
{
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    auto match = url.globalMatch(QString::fromLatin1(sheet()));
    QVERIFY(match.hasNext());
    while (match.hasNext()) {
        const QString path = match.next().captured(1);
        QVERIFY2(QImageReader(path).canRead(), qPrintable(path));
        const QString doubled =
            QString(path).replace(QStringLiteral(".png"), QStringLiteral("@2x.png"));
        QCOMPARE(QImageReader(doubled).size(), 2 * QImageReader(path).size());
    }
}

void TestResources::focusCanBeSeen_data()
{
    QTest::addColumn<Maker>("maker");
    QTest::newRow("button") << make<QPushButton>();
    QTest::newRow("radio button") << make<QRadioButton>();
    QTest::newRow("number") << make<QDoubleSpinBox>();
    QTest::newRow("choice") << make<QComboBox>();
    QTest::newRow("text") << make<QLineEdit>();
    QTest::newRow("slider") << make<QSlider>();
    QTest::newRow("tabs") << Maker(makeTabs);
    QTest::newRow("table") << Maker(makeTable);
}

void TestResources::focusCanBeSeen()
{
    QFETCH(const Maker, maker);
    QWidget window;
    auto *const layout = new QHBoxLayout(&window);
    auto *const other = new QPushButton;
    QWidget *const widget = maker();
    widget->setFocusPolicy(Qt::StrongFocus);
    layout->addWidget(other);
    layout->addWidget(widget);
    window.show();
    window.activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(&window));

    const auto accents = [widget] {
        const QVector<QRgb> pixels = pixelsOf(*widget);
        return pixels.count(qRgb(0x0A, 0x86, 0xD6)) + pixels.count(qRgb(0xD9, 0xED, 0xFA));
    };
    other->setFocus();
    QTRY_VERIFY(other->hasFocus());
    const int without = accents();
    widget->setFocus(Qt::TabFocusReason);
    QTRY_VERIFY(widget->hasFocus());
    QVERIFY2(accents() > without + 20, qPrintable(QString::number(accents() - without)));
}

void TestResources::disabledCanBeSeen()
{
    const Maker makers[] = {make<QPushButton>(),    make<QRadioButton>(), make<QCheckBox>(),
                            make<QDoubleSpinBox>(), make<QComboBox>(),    make<QLineEdit>()};
    for (const Maker &maker : makers) {
        const std::unique_ptr<QWidget> widget(maker());
        for (const char *const property : {"text", "currentText"})
            widget->setProperty(property, QStringLiteral("MMM"));
        const auto darkest = [&widget] {
            const QVector<QRgb> pixels = pixelsOf(*widget);
            const auto darker = [](QRgb a, QRgb b) { return qGray(a) < qGray(b); };
            return qGray(*std::min_element(pixels.begin(), pixels.end(), darker));
        };
        const int enabled = darkest();
        widget->setEnabled(false);
        QVERIFY2(darkest() > enabled + 50, widget->metaObject()->className());
    }
}

MZ_TEST_MAIN(TestResources)

#include "tst_resources.moc"
