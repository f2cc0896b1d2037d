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
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QSlider>
#include <QTabBar>
#include <QTableWidget>
#include <QToolButton>

#include <functional>

namespace {

const QString sheetPath = QStringLiteral(":/qss/psblack.css");

QByteArray contentOf(const QString &path)
{
    QFile file(path);
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

} // namespace

Q_DECLARE_METATYPE(Maker)

/// What is compiled into the programs: that it is there, whole, and does what the screen needs.
class TestResources : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void pictures_data();
    void pictures();
    void iconsHaveEverySize();
    void animationsMove();
    void sheetBeginsWithItsColour();
    void sheetRefersToPicturesThatExist();
    void focusCanBeSeen_data();
    void focusCanBeSeen();
    void disabledCanBeSeen();
};

void TestResources::initTestCase()
{
    qApp->setStyleSheet(QString::fromLatin1(contentOf(sheetPath)));
}

void TestResources::pictures_data()
{
    QTest::addColumn<QString>("path");
    QTest::addColumn<QSize>("atLeast");
    QTest::newRow("success") << QStringLiteral(":/img/successful.png") << QSize(80, 80);
    QTest::newRow("failure") << QStringLiteral(":/img/failing.png") << QSize(80, 80);
    QTest::newRow("busy, message box") << QStringLiteral(":/img/loading.gif") << QSize(40, 40);
    QTest::newRow("busy, wait dialog") << QStringLiteral(":/image/loading.gif") << QSize(64, 64);
}

void TestResources::pictures()
{
    QFETCH(const QString, path);
    QFETCH(const QSize, atLeast);
    const QImage image(path);
    QVERIFY(!image.isNull());
    QVERIFY(image.width() >= atLeast.width() && image.height() >= atLeast.height());
    QCOMPARE(image.width(), image.height());
    QVERIFY2(qAlpha(image.pixel(0, 0)) == 0, "a corner hides the background");
}

void TestResources::iconsHaveEverySize()
{
    for (const char *const path : {":/image/pt.ico", ":/image/patterns.ico"}) {
        const QList<QSize> sizes = QIcon(QLatin1String(path)).availableSizes();
        for (const int side : {16, 24, 32, 48, 64, 128, 256})
            QVERIFY2(sizes.contains(QSize(side, side)), qPrintable(QString::number(side)));
    }
}

void TestResources::animationsMove()
{
    for (const char *const path : {":/img/loading.gif", ":/image/loading.gif"}) {
        QMovie movie(QLatin1String{path});
        QCOMPARE(movie.loopCount(), -1);
        QVERIFY(movie.jumpToFrame(0));
        const QImage first = movie.currentImage();
        for (int i = 0; i < movie.frameCount() / 2; ++i)
            QVERIFY(movie.jumpToNextFrame());
        QVERIFY2(movie.currentImage() != first, path);
    }
}

void TestResources::sheetBeginsWithItsColour()
{
    const QByteArray sheet = contentOf(sheetPath);
    QVERIFY(sheet.startsWith("QPalette{background:#FFFFFF;}\r\n"));
    QCOMPARE(sheet.mid(20, 7), QByteArray("#FFFFFF"));
    QCOMPARE(sheet.count('\n'), sheet.count("\r\n"));
    QVERIFY2(std::all_of(sheet.begin(), sheet.end(), [](char c) { return (c & 0x80) == 0; }),
             "it is read as Latin-1");
}

void TestResources::sheetRefersToPicturesThatExist()
{
    const QRegularExpression url(QStringLiteral("url\\(([^)]*)\\)"));
    const QString sheet = QString::fromLatin1(contentOf(sheetPath));
    auto match = url.globalMatch(sheet);
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
        const QImage image = widget->grab().toImage();
        const QRgb accent = QColor(QStringLiteral("#0A86D6")).rgb();
        const QRgb tint = QColor(QStringLiteral("#D9EDFA")).rgb();
        int count = 0;
        for (int y = 0; y < image.height(); ++y) {
            for (int x = 0; x < image.width(); ++x)
                count += image.pixel(x, y) == accent || image.pixel(x, y) == tint ? 1 : 0;
        }
        return count;
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
            const QImage image = widget->grab().toImage();
            int least = 255;
            for (int y = 0; y < image.height(); ++y) {
                for (int x = 0; x < image.width(); ++x)
                    least = qMin(least, qGray(image.pixel(x, y)));
            }
            return least;
        };
        const int enabled = darkest();
        widget->setEnabled(false);
        QVERIFY2(darkest() > enabled + 50, widget->metaObject()->className());
    }
}

MZ_TEST_MAIN(TestResources)

#include "tst_resources.moc"
