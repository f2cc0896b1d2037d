#pragma once

#include <QByteArray>
#include <QPaintDevice>
#include <QSize>
#include <QString>

#include <memory>

class SvgEngine;

/// A page that is painted on and then read as an SVG document. Texts become outlines, so that they
/// look the same where the font is missing; what is filled by a gradient takes one colour of it.
class SvgDevice : public QPaintDevice
{
public:
    /// \a size in pixels of 1/96 inch.
    explicit SvgDevice(const QSize &size, const QString &title);
    ~SvgDevice() override;

    /// The document, once painting has ended.
    QByteArray document() const;

    QPaintEngine *paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    QSize m_size;
    QString m_title;
    std::unique_ptr<SvgEngine> m_engine;
};
