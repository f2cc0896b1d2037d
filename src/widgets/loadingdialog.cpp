#include "widgets/loadingdialog.h"

#include "ui_loadingdialog.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QMovie>

// Without the frameless hint Windows makes a translucent window of this type layered, and shows
// nothing of it.
LoadingDialog::LoadingDialog(QWidget *parent, Form form)
    : QDialog(parent, Qt::SplashScreen | Qt::FramelessWindowHint)
{
    setObjectName(QStringLiteral("LoadingDialog"));
    setAttribute(Qt::WA_TranslucentBackground);
    if (form == Form::AtOnce)
        makeForm();
}

LoadingDialog::~LoadingDialog() = default;

void LoadingDialog::makeForm()
{
    if (m_ui != nullptr)
        return;
    m_ui = std::make_unique<Ui::LoadingDialog>();
    m_ui->setupUi(this);
    m_movie = new QMovie(QStringLiteral(":/image/loading.gif"), {}, this);
    m_ui->labelMovie->setMovie(m_movie);
    m_ui->labelText->setStyleSheet(
        QStringLiteral("QLabel {font-size: 30px; font-weight: bold; color: #FF0000;}"));
    m_movie->start();
    // The console keeps this box and shows it for seconds: frames that nobody sees are not worth
    // the work.
    connect(m_movie, &QMovie::frameChanged, this, [this] { m_movie->setPaused(!isVisible()); });
}

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
    makeForm();
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

void LoadingDialog::setVisible(bool visible)
{
    if (visible) {
        makeForm();
        // To the text of now, before the box is put in the middle of its window.
        m_ui->card->updateGeometry();
        adjustSize();
        m_movie->setPaused(false);
    }
    QDialog::setVisible(visible);
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
