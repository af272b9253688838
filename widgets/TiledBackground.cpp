#include "widgets/TiledBackground.h"

#include <QImage>
#include <QPainter>

#include <utility>

namespace {

/// Qt hands larger fills to its thread pool and waits for it, which takes longer than filling.
constexpr int pixelRowsAtOnce = 64;

} // namespace

TiledBackground::TiledBackground(QString fileName)
    : m_fileName(std::move(fileName))
{}

void TiledBackground::draw(QPainter& painter, const QRect& area)
{
    if (m_fileName.isEmpty()) {
        return;
    }
    const double ratio = painter.deviceTransform().m11();
    if (!(ratio > 0.0)) {
        return;
    }
    if (ratio != m_preparedRatio) {
        prepare(ratio);
    }
    // In the device's own pixels: only there does Qt copy tiles instead of resampling them.
    painter.save();
    painter.scale(1.0 / ratio, 1.0 / ratio);
    const auto pixels =
        QRectF(area.x() * ratio, area.y() * ratio, area.width() * ratio, area.height() * ratio)
            .toAlignedRect();
    for (int y = pixels.top(); y <= pixels.bottom(); y += pixelRowsAtOnce) {
        const auto slice =
            QRect(pixels.left(), y, pixels.width(), pixelRowsAtOnce).intersected(pixels);
        painter.drawTiledPixmap(slice, m_tile, slice.topLeft());
    }
    painter.restore();
}

void TiledBackground::prepare(double devicePixelRatio)
{
    m_preparedRatio = devicePixelRatio;
    QImage image(m_fileName);
    if (devicePixelRatio > 1.0) {
        const QSize size = (QSizeF(image.size()) * devicePixelRatio).toSize();
        QString name = m_fileName;
        name.insert(name.lastIndexOf(u'.'), u"@2x");
        image = QImage(name);
        // Its name says two pixels a point; from here on only its pixels count.
        image.setDevicePixelRatio(1.0);
        if (image.size() != size) {
            image = image.scaled(size, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        }
    }
    m_tile = QPixmap::fromImage(std::move(image));
    m_tile.setDevicePixelRatio(1.0);
}
