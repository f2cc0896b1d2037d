#include "widgets/messagedialog.h"

#include "ui_messagedialog.h"

MessageDialog::MessageDialog(QWidget *parent)
    : QDialog(parent)
    , ui(std::make_unique<Ui::MessageDialog>())
{
    ui->setupUi(this);
    setWindowFlags(Qt::Dialog | Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint);
    setWindowTitle(tr("Message"));
}

MessageDialog::MessageDialog(const QString &title, const QString &mainInfo,
                             const QString &otherInfo, const QString &okText,
                             const QString &cancelText, QWidget *parent)
    : MessageDialog(parent)
{
    if (!title.isEmpty())
        setWindowTitle(title);
    if (!mainInfo.isEmpty())
        ui->label_MainInfo->setText(mainInfo);
    ui->label_OtherInfo->setVisible(!otherInfo.isEmpty());
    if (!otherInfo.isEmpty())
        ui->label_OtherInfo->setText(otherInfo);
    if (!okText.isEmpty())
        ui->okBtn->setText(okText);
    ui->cancelBtn->setVisible(!cancelText.isEmpty());
    if (!cancelText.isEmpty())
        ui->cancelBtn->setText(cancelText);
    setFrequencyRowVisible(false);
}

MessageDialog::~MessageDialog() = default;

void MessageDialog::setFrequencyRowVisible(bool visible)
{
    ui->rawFreq->setVisible(visible);
    ui->toLabel->setVisible(visible);
    ui->currentFreq->setVisible(visible);
}

void MessageDialog::setRawFrequency(const QString &text)
{
    ui->rawFreq->setText(text);
}

void MessageDialog::setCurrentFrequency(const QString &text)
{
    ui->currentFreq->setText(text);
    ui->currentFreq->setFocus();
    ui->currentFreq->selectAll();
}

QString MessageDialog::currentFrequency() const
{
    return ui->currentFreq->text();
}

void MessageDialog::on_okBtn_clicked()
{
    accept();
}

void MessageDialog::on_cancelBtn_clicked()
{
    close();
}
