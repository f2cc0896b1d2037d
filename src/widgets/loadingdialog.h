#pragma once

#include <QDialog>
#include <QString>

#include <memory>

class QMovie;

namespace Ui {
class LoadingDialog;
}

/// The wait box for an operation that the instrument needs seconds for: an animation and one large
/// line with the task and the seconds left. It has no buttons and no clock of its own; whoever
/// shows it counts and closes it, and the user cannot dismiss it.
class LoadingDialog : public QDialog
{
    Q_OBJECT

public:
    /// When the form is made, and its animation read: a window that keeps the box from its own
    /// start on is seen sooner without.
    enum class Form { AtOnce, WhenNeeded };

    explicit LoadingDialog(QWidget *parent = nullptr, Form form = Form::AtOnce);
    ~LoadingDialog() override;

    /// Names the running task, as the user reads it.
    void setTaskLabelText(const QString &text);
    /// The name of the running task.
    QString taskLabelText() const;

    /// Shows the \a seconds left for the task.
    void setLabelText(const int &seconds);

    /// Shows the box until it is closed, which may have happened before this returns from showing
    /// it.
    int exec() override;
    /// Shows the box with its form, as large as its text needs, or hides it.
    void setVisible(bool visible) override;

protected:
    void keyPressEvent(QKeyEvent *event) override;
    void closeEvent(QCloseEvent *event) override;

private:
    void makeForm();

    std::unique_ptr<Ui::LoadingDialog> m_ui; // none before the form is made
    QMovie *m_movie = nullptr;
    QString m_task;
};
