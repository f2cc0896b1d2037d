#include "widgets/dial.h"
#include "widgets/lineedit.h"

#include <QApplication>
#include <QDir>
#include <QHBoxLayout>
#include <QLabel>
#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QStyleFactory>
#include <QTextStream>

namespace {

/// A gauge with the permitted range marked, the way a form does it.
class RangeDial : public Dial
{
public:
    using Dial::Dial;

protected:
    void paintEvent(QPaintEvent *event) override
    {
        Dial::paintEvent(event);
        QPainter painter(this);
        prepare(painter);
        drawRangeArc(painter);
        drawRangeTicks(painter);
    }
};

void pinLooks(QApplication &app)
{
    app.setStyle(QStyleFactory::create(QStringLiteral("Fusion")));
    QPalette palette = app.style()->standardPalette();
    palette.setColor(QPalette::Window, Qt::white);
    app.setPalette(palette);
    QFont font = app.font();
    font.setPointSize(8);
    app.setFont(font);
}

/// Puts \a widget over \a caption into \a row.
void addWithCaption(QHBoxLayout *row, QWidget *widget, const QString &caption)
{
    auto *label = new QLabel(caption);
    label->setAlignment(Qt::AlignCenter);
    auto *column = new QVBoxLayout;
    column->addWidget(widget, 1, Qt::AlignCenter);
    column->addWidget(label);
    row->addLayout(column);
}

Dial *makeDial(Dial *dial, int min, int max, double value, const QString &text)
{
    dial->setFixedSize(200, 200);
    dial->setScaleRange(min, max);
    dial->setValue(value, text);
    return dial;
}

QPixmap dialPicture()
{
    QWidget form;
    auto *row = new QHBoxLayout(&form);
    auto *fresh = new Dial;
    fresh->setFixedSize(200, 200);
    addWithCaption(row, fresh, QStringLiteral("as constructed"));
    addWithCaption(row, makeDial(new Dial, -60, 20, -12.5, QStringLiteral("-12.50dBm")),
                   QStringLiteral("scale -60 to 20"));
    addWithCaption(row, makeDial(new Dial, -60, 20, 45, QStringLiteral("45.00dBm")),
                   QStringLiteral("far beyond the scale"));
    auto *ranged = makeDial(new RangeDial, 0, 100, 62, QStringLiteral("62.00dBm"));
    ranged->setValueRange(40, 80);
    addWithCaption(row, ranged, QStringLiteral("permitted range 40 to 80"));
    return form.grab();
}

void press(QWidget *widget)
{
    QMouseEvent event(QEvent::MouseButtonPress, QPointF(widget->rect().center()), Qt::LeftButton,
                      Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(widget, &event);
}

enum class State { AtRest, Focused, Edited };

/// A picture of one field; each is shown alone, since only one widget has the focus.
QLabel *fieldPicture(double value, bool whole, State state)
{
    QWidget form;
    auto *field = new LineEdit(&form);
    field->setIntegerMode(whole ? 1 : 0);
    field->setValue(value);
    form.resize(120, 50);
    field->setGeometry(8, 8, 92, 34);
    form.show();
    form.activateWindow();
    form.setFocus();
    QCoreApplication::processEvents();
    QKeyEvent tab(QEvent::KeyPress, Qt::Key_Tab, Qt::NoModifier);
    if (state == State::Focused)
        QCoreApplication::sendEvent(&form, &tab);
    else if (state == State::Edited)
        press(field);
    QCoreApplication::processEvents();
    auto *picture = new QLabel;
    picture->setPixmap(form.grab(field->geometry()));
    return picture;
}

QPixmap lineEditPicture()
{
    QWidget form;
    auto *row = new QHBoxLayout(&form);
    addWithCaption(row, fieldPicture(-12.5, false, State::AtRest), QStringLiteral("at rest"));
    addWithCaption(row, fieldPicture(40, true, State::AtRest), QStringLiteral("whole numbers"));
    addWithCaption(row, fieldPicture(30, false, State::Focused),
                   QStringLiteral("reached with Tab"));
    addWithCaption(row, fieldPicture(30, false, State::Edited), QStringLiteral("being edited"));
    return form.grab();
}

bool write(const QPixmap &picture, const QString &path)
{
    const bool written = picture.save(path);
    QTextStream(written ? stdout : stderr)
        << (written ? "wrote " : "cannot write ") << QDir::toNativeSeparators(path) << '\n';
    return written;
}

} // namespace

int main(int argc, char **argv)
{
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM"))
        qputenv("QT_QPA_PLATFORM", "offscreen");
    qputenv("QT_FONT_DPI", "96");
    QApplication app(argc, argv);
    if (app.arguments().size() != 2) {
        QTextStream(stderr) << "usage: mz_gallery FOLDER\n";
        return 2;
    }
    pinLooks(app);
    const QDir folder(app.arguments().constLast());
    const bool written = folder.mkpath(QStringLiteral(".")) &&
                         write(dialPicture(), folder.filePath(QStringLiteral("dial.png"))) &&
                         write(lineEditPicture(), folder.filePath(QStringLiteral("lineedit.png")));
    return written ? 0 : 1;
}
