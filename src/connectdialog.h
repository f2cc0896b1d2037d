#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class ConnectDialog;
}

/// The dialog in which the user picks how to reach the instrument: a serial port and its baud rate,
/// or an IP address. It opens nothing itself.
class ConnectDialog : public QDialog
{
    Q_OBJECT

public:
    /// When the form is made and the serial ports are listed: a window that keeps the dialog from
    /// its own start on is seen sooner without.
    enum class Form { AtOnce, WhenNeeded };

    explicit ConnectDialog(QWidget *parent = nullptr, Form form = Form::AtOnce);
    ~ConnectDialog() override;

    /// Asks for a port and a baud rate (0 = serial) or for an IP address (1 = LAN); any other mode
    /// changes nothing.
    void setLinkMode(const int &mode);

    /// Shows all texts in the current language; the chosen baud rate stays.
    void retranslate();

    /// Drops what was pressed while the connection was being made: it comes in when the dialog is
    /// closed already, and would connect once more.
    bool eventFilter(QObject *watched, QEvent *event) override;

    /// Shows the dialog with its form, or hides it.
    void setVisible(bool visible) override;

public slots:
    /// Proposes \a ip as the address.
    void setIP(QString ip);

signals:
    /// The user's choice: serial port and baud rate, or IP address and TCP port.
    void openPort(QString port, int baudRate);

protected:
    void showEvent(QShowEvent *event) override;

private slots:
    void on_accept_clicked();
    void on_cancel_clicked();
    void on_btnUpdate_clicked();

private:
    void makeForm();
    void showLinkMode();
    void fillBaudRates();

    std::unique_ptr<Ui::ConnectDialog> m_ui; // none before the form is made
    int m_mode = 0;                          // serial
};
