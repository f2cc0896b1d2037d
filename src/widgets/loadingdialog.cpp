#include "widgets/loadingdialog.h"

#include "ui_loadingdialog.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMovie>

LoadingDialog::LoadingDialog(QWidget *parent)
    : QDialog(parent)
    , m_ui(std::make_unique<Ui::LoadingDialog>())
    , m_movie(new QMovie(this))
{
    m_ui->setupUi(this);
    // Without the hint Windows makes a translucent window of this type layered, and shows nothing
    // of it.
    setWindowFlags(Qt::SplashScreen | Qt::FramelessWindowHint);
    setAttribute(Qt::WA_TranslucentBackground);
    m_movie->setFileName(QStringLiteral(":/image/loading.gif"));
    m_ui->labelMovie->setMovie(m_movie);
    m_ui->labelText->setStyleSheet(
        QStringLiteral("QLabel {font-size: 30px; font-weight: bold; color: #FF0000;}"));
    m_movie->start();
    // The console keeps this box for its whole life and shows it for seconds: frames that nobody
    // sees are not worth the work.
    connect(m_movie, &QMovie::frameChanged, this, [this] { m_movie->setPaused(!isVisible()); });
}

LoadingDialog::~LoadingDialog() = default;

void LoadingDialog::setTaskLabelText(const QString &text)
{
    m_task = text;
}

QString LoadingDialog::taskLabelText() const
{
    return m_task;
}

void LoadingDialog::setLabelText(const int &seconds)
{
    m_ui->labelText->setText(tr("%1,waiting...%2 s").arg(m_task, QString::number(seconds)));
}

int LoadingDialog::exec()
{
    // Qt handles events while it shows a window of this type. A result that comes in with them
    // closes the box before there is a loop to leave, which would then wait for ever.
    setModal(true);
    show();
    return isVisible() ? QDialog::exec() : result();
}

void LoadingDialog::showEvent(QShowEvent *event)
{
    m_movie->setPaused(false);
    QDialog::showEvent(event);
}

void LoadingDialog::keyPressEvent(QKeyEvent *event)
{
    // The instrument goes on with its task whatever the user presses; Escape must not make it look
    // as if it had stopped.
    event->accept();
}

void LoadingDialog::closeEvent(QCloseEvent *event)
{
    if (event->spontaneous())
        event->ignore();
    else
        QDialog::closeEvent(event);
}
