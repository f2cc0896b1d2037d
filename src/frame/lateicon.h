#pragma once

#include <QIcon>
#include <QIconEngine>
#include <QString>

#include <optional>

/// An icon that reads its file when somebody wants a picture of it. Qt reads the pictures of an
/// ".ico" one and all when the icon is made, which takes a tenth of a program's start.
class LateIcon : public QIconEngine
{
public:
    /// The icon in \a file, any that QIcon reads.
    static QIcon of(const QString &file);

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override;
    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QSize actualSize(const QSize &size, QIcon::Mode mode, QIcon::State state) override;
    QList<QSize> availableSizes(QIcon::Mode mode, QIcon::State state) const override;
    QIconEngine *clone() const override;

private:
    explicit LateIcon(const QString &file);

    const QIcon &icon() const;

    QString m_file;
    mutable std::optional<QIcon> m_icon;
};
