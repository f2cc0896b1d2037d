#pragma once

#include <QDialog>
#include <QPoint>

#include <memory>
#include <optional>

class QMovie;

namespace Ui {
class MessageSimpleDialog;
}

/// A frameless box with a picture above one line of text. It is moved by its body.
class MessageSimpleDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MessageSimpleDialog(QWidget *parent = nullptr);
    ~MessageSimpleDialog() override;

    /// Shows \a text with the picture of \a kind: 0 success, 1 failure, 2 an animation that says
    /// "working" and cannot be dismissed by the user. Any other kind changes the text alone and
    /// takes the picture away.
    void setMessage(const QString &text, int kind);

    /// Shows \a text with the picture of \a kind (0 or 1) until the user has read it.
    static void showMessage(const QString &text, int kind, QWidget *parent);

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void mouseMoveEvent(QMouseEvent *event) override;
    void mouseReleaseEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private slots:
    void on_generalpopupOkBtn_clicked();

private:
    void showPicture(const QString &path);
    void startAnimation();
    bool isWorking() const;

    std::unique_ptr<Ui::MessageSimpleDialog> ui;
    std::unique_ptr<QMovie> m_movie;
    std::optional<QPoint> m_grip; ///< pointer minus window position while the box is dragged
};
