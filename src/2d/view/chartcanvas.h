#pragma once

#include <QGraphicsView>

#include <memory>

/// The widget that a chart is painted on: its ground, and how it shows the keyboard's focus.
///
/// It deletes its scene.
class ChartCanvas : public QGraphicsView
{
    Q_OBJECT

public:
    explicit ChartCanvas(QWidget *parent = nullptr);
    ~ChartCanvas() override;

protected:
    /// The view as it is seen, without the frame of the focus.
    QPixmap unfocusedPicture();

    bool event(QEvent *event) override;
    void focusInEvent(QFocusEvent *event) override;
    void focusOutEvent(QFocusEvent *event) override;
    void drawBackground(QPainter *painter, const QRectF &rect) override;
    void paintEvent(QPaintEvent *event) override;

private:
    std::unique_ptr<QGraphicsScene> m_scene;
    bool m_focusShown = false; ///< the keyboard brought the focus here
};
