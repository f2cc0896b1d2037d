#include "testcurve.h"

#include <QRandomGenerator>
#include <QtMath>

#include <cmath>

double testLevel(double degrees)
{
    return -30 + 25 * std::cos(qDegreesToRadians(6 * degrees));
}

QVector<QPointF> testCurve(int count)
{
    QRandomGenerator noise(6218);
    QVector<QPointF> points;
    points.reserve(count);
    for (int i = 0; i < count; ++i) {
        const double degrees = -180 + 360.0 * i / (count - 1);
        points.append(QPointF(degrees, testLevel(degrees) + noise.generateDouble() - 0.5));
    }
    return points;
}
