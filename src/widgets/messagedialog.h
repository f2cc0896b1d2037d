#pragma once

#include <QDialog>

#include <memory>

namespace Ui {
class MessageDialog;
}

/// A question with one or two texts, OK and Cancel, and a row in which a value can be changed.
class MessageDialog : public QDialog
{
    Q_OBJECT

public:
    explicit MessageDialog(QWidget *parent = nullptr);

    /// Empty texts keep the default title, main text and OK text; an empty \a otherInfo hides the
    /// second text and an empty \a cancelText the Cancel button.
    MessageDialog(const QString &title, const QString &mainInfo, const QString &otherInfo,
                  const QString &okText, const QString &cancelText, QWidget *parent = nullptr);
    ~MessageDialog() override;

    void setFrequencyRowVisible(bool visible);

    /// Sets the value before the change.
    void setRawFrequency(const QString &text);

    /// Sets the value that the user is about to edit, and selects it.
    void setCurrentFrequency(const QString &text);

    /// The value as edited by the user.
    QString currentFrequency() const;

private slots:
    void on_okBtn_clicked();
    void on_cancelBtn_clicked();

private:
    std::unique_ptr<Ui::MessageDialog> ui;
};
