#include "frame/lateicon.h"

QIcon LateIcon::of(const QString &file)
{
    return QIcon(new LateIcon(file));
}

LateIcon::LateIcon(const QString &file)
    : m_file(file)
{}

void LateIcon::paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state)
{
    icon().paint(painter, rect, Qt::AlignCenter, mode, state);
}

QPixmap LateIcon::pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().pixmap(size, mode, state);
}

QSize LateIcon::actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state)
{
    return icon().actualSize(size, mode, state);
}

QList<QSize> LateIcon::availableSizes(QIcon::Mode mode, QIcon::State state) const
{
    return icon().availableSizes(mode, state);
}

QIconEngine *LateIcon::clone() const
{
    return new LateIcon(m_file);
}

const QIcon &LateIcon::icon() const
{
    if (!m_icon)
        m_icon.emplace(m_file);
    return *m_icon;
}
