#pragma once

#include <QColor>
#include <QString>

/// How a curve looks and is called: all that a user may change of it but its data.
struct CurveLook
{
    QString name;
    QColor color;
    int width = 2; ///< of the line, pixels
    bool hidden = false;
};

inline bool operator==(const CurveLook &a, const CurveLook &b)
{
    return a.name == b.name && a.color == b.color && a.width == b.width && a.hidden == b.hidden;
}

inline bool operator!=(const CurveLook &a, const CurveLook &b)
{
    return !(a == b);
}
