#pragma once

#include <QColor>
#include <QList>
#include <QObject>

QT_BEGIN_NAMESPACE
class QIcon;
QT_END_NAMESPACE

/// A source of curve colours, empty: the curves take theirs from curveColor().
class GenerateColors : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    static QList<QColor> colors;
};

/// \a text as a tool tip shows it: names with "<" or "&" in them are no rich text.
QString plainToolTip(const QString &text);

/// The colour of a new curve: the first seven differ in brightness too, so that they stay apart for
/// eyes that mix up red and green; from the eighth on they come again, darker.
QColor curveColor(int pathId);

/// A small field in the colour of a curve, to stand before its name in a table.
QIcon curveSwatch(const QColor &color);
