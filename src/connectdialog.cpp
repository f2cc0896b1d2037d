#include "connectdialog.h"

#include "Logic/linkmode.h"
#include "ui_connectdialog.h"

#include <QDebug>
#include <QSerialPortInfo>
#include <QWindow>

ConnectDialog::ConnectDialog(QWidget *parent, Form form)
    : QDialog(parent, Qt::Dialog | Qt::WindowCloseButtonHint)
{
    setObjectName(QStringLiteral("ConnectDialog"));
    if (form == Form::AtOnce)
        makeForm();
}

ConnectDialog::~ConnectDialog() = default;

void ConnectDialog::makeForm()
{
    if (m_ui != nullptr)
        return;
    m_ui = std::make_unique<Ui::ConnectDialog>();
    m_ui->setupUi(this);
    setWindowTitle(tr("Connection"));
    fillBaudRates();
    on_btnUpdate_clicked();
    showLinkMode();
}

void ConnectDialog::setLinkMode(const int &mode)
{
    // The console begins with the mode that the dialog has: no reason to make the form.
    if (mode == m_mode || (mode != serialLink && mode != lanLink))
        return;
    m_mode = mode;
    makeForm();
    showLinkMode();
}

void ConnectDialog::showLinkMode()
{
    const bool serial = m_mode == serialLink;
    m_ui->frameSerial->setVisible(serial);
    m_ui->btnUpdate->setVisible(serial);
    m_ui->frameLAN->setVisible(!serial);
    setFixedSize(280, serial ? 250 : 180);
}

void ConnectDialog::retranslate()
{
    if (m_ui == nullptr)
        return;
    const QString chosenBaudRate = m_ui->baudRate->currentText();
    m_ui->retranslateUi(this);
    fillBaudRates();
    m_ui->baudRate->setCurrentText(chosenBaudRate);
    setWindowTitle(tr("Connection"));
}

void ConnectDialog::showEvent(QShowEvent *event)
{
    windowHandle()->installEventFilter(this);
    QDialog::showEvent(event);
}

void ConnectDialog::setVisible(bool visible)
{
    if (visible)
        makeForm();
    QDialog::setVisible(visible);
}

bool ConnectDialog::eventFilter(QObject *watched, QEvent *event)
{
    const bool isInput = event->type() == QEvent::MouseButtonPress ||
                         event->type() == QEvent::MouseButtonDblClick ||
                         event->type() == QEvent::KeyPress;
    return (isInput && !isVisible()) || QDialog::eventFilter(watched, event);
}

void ConnectDialog::setIP(QString ip)
{
    qDebug() << "setIP: " << ip;
    makeForm();
    m_ui->lineEdit->setText(ip);
}

void ConnectDialog::on_accept_clicked()
{
    hide(); // the window below says how the opening goes, and can stop it
    if (m_mode == lanLink)
        emit openPort(m_ui->lineEdit->text(), instrumentTcpPort);
    else
        emit openPort(m_ui->port->currentText(), m_ui->baudRate->currentText().toInt());
    accept();
}

void ConnectDialog::on_cancel_clicked()
{
    reject();
}

void ConnectDialog::on_btnUpdate_clicked()
{
    // The list grows with every refresh: what the user has chosen so far must not vanish from it.
    const auto ports = QSerialPortInfo::availablePorts();
    for (const QSerialPortInfo &port : ports)
        m_ui->port->addItem(port.portName());
}

void ConnectDialog::fillBaudRates()
{
    m_ui->baudRate->clear();
    m_ui->baudRate->addItems({tr("1200"), tr("2400"), tr("4800"), tr("9600"), tr("14400"),
                              tr("19200"), tr("38400"), tr("57600"), tr("115200")});
}
