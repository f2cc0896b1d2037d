#pragma once

#include "widgets/dialgeometry.h"

#include <QColor>
#include <QFrame>
#include <QString>

class QPainter;
class QTimer;

/// A round gauge for a power reading: a coloured scale of 280 degrees from the lower left over the
/// top to the lower right, ticks, numbers, a needle, the caption "dBm" and a free text below the
/// hub.
///
/// It paints all of itself and takes no input. A form feeds it with setValue(). A form that wants
/// the permitted range marked derives from it and calls the overlay's routines after
/// Dial::paintEvent().
class Dial : public QFrame
{
    Q_OBJECT

public:
    explicit Dial(QWidget *parent = nullptr);

    /// Values at the start and at the end of the scale. They are expected to differ and to ascend.
    void setScaleRange(int min, int max);
    /// The permitted range; the value shown is moved into it, the upper end last.
    void setValueRange(int min, int max);
    /// Points the needle at \a value, inside the permitted range or not, and shows \a text as it
    /// is.
    virtual void setValue(double value, const QString &text);

public slots:
    /// A hook for demonstrations: seeds the pseudo-random generator with the seconds
    /// since midnight and returns its first number. Nothing is drawn.
    int timerout();

protected:
    void paintEvent(QPaintEvent *event) override;

    /// Moves the origin of \a painter to the widget's centre and scales it to the square of 200 by
    /// 200 units in which all drawing takes place.
    void prepare(QPainter &painter) const;

    /// The overlay's labels and arc for the part of the permitted range that is on the scale.
    void drawRangeArc(QPainter &painter);
    /// One label of the overlay: \a text at the place of \a number.
    void drawRangeLabel(QPainter &painter, const QString &text, int number) const;
    /// The overlay's ticks, over the angles that drawRangeArc() found.
    void drawRangeTicks(QPainter &painter) const;

    DialGeometry::Scale m_scale;
    double m_rangeMin = 0.0;
    double m_rangeMax = 360.0;
    double m_value = -100.0;
    QString m_text = QStringLiteral("XdBm");
    int m_showFlag = 1; ///< read by nothing
    QColor m_arcColor{0, 0, 255};
    QColor m_tickColor; ///< colours left unset are painted black
    QColor m_labelColor;
    QColor m_spareColor; ///< read by nothing
    QColor m_needleColor;
    QColor m_textColor;
    QColor m_rangeColor{0, 128, 0};
    QTimer *m_timer;                           ///< never started
    QString m_title = QStringLiteral("Value"); ///< never drawn
    QString m_subtitle;                        ///< never drawn
    double m_rangeStartAngle = 0.0;
    double m_rangeEndAngle = 0.0;

private:
    void drawColorArcs(QPainter &painter) const;
    void drawColorBand(QPainter &painter, const QRect &circle) const;
    void drawTicks(QPainter &painter) const;
    void drawNumbers(QPainter &painter) const;
    void drawHub(QPainter &painter) const;
    void drawNeedle(QPainter &painter) const;
    void drawValueText(QPainter &painter) const;
};
