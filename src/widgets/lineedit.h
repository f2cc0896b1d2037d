#pragma once

#include <QFrame>

class QDoubleSpinBox;
class QLabel;

/// A compact number field: a label that turns into a spin box while its value is edited.
///
/// A mouse press starts editing; with the keyboard, digits, Space or F2 do. Enter or leaving the
/// field commits, Escape goes back to the value before.
class LineEdit : public QFrame
{
    Q_OBJECT

public:
    explicit LineEdit(QWidget *parent = nullptr);

    void setMaximum(double maximum);
    void setMinimum(double minimum);
    double maximum() const;
    double minimum() const;

    /// The committed value; what is being typed does not count yet.
    double value() const { return m_value; }
    /// Commits and shows \a value, in the range or not. In whole-number mode the stored value is
    /// rounded down and the shown one to the nearest: 12.6 is 12 and reads 13.
    void setValue(double value);
    /// 1 turns the field to whole numbers for good; any other value does nothing.
    void setIntegerMode(const int &mode);

signals:
    /// The user has finished editing. A changed value is reported twice: as the editor
    /// finishes, with the old value still in place, and once it is committed.
    void editingFinished();

public slots:
    /// Commits what the editor holds and shows the label again.
    void doubleSpinBoxEditFinished();

protected:
    void mousePressEvent(QMouseEvent *event) override;
    void keyPressEvent(QKeyEvent *event) override;
    void paintEvent(QPaintEvent *event) override;
    void changeEvent(QEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void startEditing();
    void showLabel();
    void passFocusOn(Qt::FocusReason reason);
    void showRange();
    void retranslate();

    QLabel *m_label;
    QDoubleSpinBox *m_editor;
    double m_value = 0.0;
    bool m_integers = false;
    QString m_defaultName; ///< the accessible name of a field that its form did not name
};
