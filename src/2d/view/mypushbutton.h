#pragma once

#include <QColor>
#include <QPushButton>

/// A button that shows a colour and knows which column of a table it stands in.
class MyPushButton : public QPushButton
{
    Q_OBJECT

public:
    explicit MyPushButton(int index, QWidget *parent = nullptr);

signals:
    /// A valid \a color was chosen in column \a index.
    void selectColor(int index, QColor color);

public slots:
    /// Makes the button a swatch of \a color.
    void setBackgroundColor(QColor color);

    /// Asks for a colour.
    void clickedSlot();

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int m_index;
    QColor m_color;
};
