#include "widgets/messagesimpledialog.h"

#include "ui_messagesimpledialog.h"

#include <QCloseEvent>
#include <QImage>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QMovie>
#include <QWindow>

namespace {

constexpr QSize pictureSize(40, 40);

enum MessageKind { Success = 0, Failure = 1, Working = 2 };

/// Hands the press to the window manager as if the box had been taken by a caption; false when
/// nobody there moves windows.
bool moveByCaption(QWidget *window)
{
    return window->windowHandle() && window->windowHandle()->startSystemMove();
}

} // namespace

MessageSimpleDialog::MessageSimpleDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MessageSimpleDialog>())
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::FramelessWindowHint);
}

MessageSimpleDialog::~MessageSimpleDialog() = default;

void MessageSimpleDialog::setMessage(const QString &text, int kind)
{
    ui->pictureLabel->clear();
    switch (kind) {
    case Success:
        showPicture(QStringLiteral(":/img/successful.png"));
        break;
    case Failure:
        showPicture(QStringLiteral(":/img/failing.png"));
        break;
    case Working:
        startAnimation();
        break;
    default:
        break;
    }
    ui->reminderLabel->setText(text);
}

void MessageSimpleDialog::showMessage(const QString &text, int kind, QWidget *parent)
{
    MessageSimpleDialog dialog(parent);
    dialog.setMessage(text, kind);
    dialog.exec();
}

void MessageSimpleDialog::showPicture(const QString &path)
{
    const QImage image(path);
    QPixmap picture;
    if (!image.isNull()) {
        picture = QPixmap::fromImage(image).scaled(pictureSize, Qt::IgnoreAspectRatio,
                                                   Qt::SmoothTransformation);
    }
    ui->pictureLabel->setPixmap(picture);
    ui->generalpopupOkBtn->setVisible(true);
}

void MessageSimpleDialog::startAnimation()
{
    ui->generalpopupOkBtn->setVisible(false);
    auto movie = std::make_unique<QMovie>(QStringLiteral(":/img/loading.gif"));
    movie->setScaledSize(pictureSize);
    ui->pictureLabel->setMovie(movie.get());
    m_movie = std::move(movie);
    m_movie->start();
    QCoreApplication::processEvents(); // the caller is about to be busy: let the picture appear
                                       // first
}

bool MessageSimpleDialog::isWorking() const
{
    return ui->generalpopupOkBtn->isHidden();
}

void MessageSimpleDialog::mousePressEvent(QMouseEvent *event)
{
    if (event->button() == Qt::LeftButton && !moveByCaption(this))
        m_grip = event->globalPos() - pos();
    event->ignore();
}

void MessageSimpleDialog::mouseMoveEvent(QMouseEvent *event)
{
    if (m_grip && event->buttons().testFlag(Qt::LeftButton))
        move(event->globalPos() - *m_grip);
}

void MessageSimpleDialog::mouseReleaseEvent(QMouseEvent *event)
{
    m_grip.reset();
    QDialog::mouseReleaseEvent(event);
}

void MessageSimpleDialog::keyPressEvent(QKeyEvent *event)
{
    if (!isWorking())
        QDialog::keyPressEvent(event);
}

void MessageSimpleDialog::closeEvent(QCloseEvent *event)
{
    // While the caller works only the caller closes the box; the window system has to wait.
    if (isWorking() && event->spontaneous())
        event->ignore();
    else
        QDialog::closeEvent(event);
}

void MessageSimpleDialog::on_generalpopupOkBtn_clicked()
{
    close();
}
