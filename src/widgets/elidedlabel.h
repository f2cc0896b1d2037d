#pragma once

#include <QLabel>

/// A label for one line of plain text, which is cut at the right where it is too long; its tool tip
/// then holds the whole.
class ElidedLabel : public QLabel
{
    Q_OBJECT

public:
    explicit ElidedLabel(QWidget *parent = nullptr);

    /// Any width will do.
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;
};
