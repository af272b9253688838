#include "widgets/AddButton.h"

#include "widgets/ButtonFace.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"

#include <QEvent>
#include <QPainter>

namespace {

// In points.
constexpr int diameter = 24;
constexpr double borderWidth = 1.0;
constexpr double armLength = 4.0;

const ButtonFace quietFace{QColor(0xFB, 0xFB, 0xFB), QColor(0xEC, 0xEC, 0xEC),
                           QColor(0xBC, 0xBC, 0xBC), QColor(0x66, 0x66, 0x66)};
const ButtonFace hoveredFace{QColor(0xFF, 0xFF, 0xFF), QColor(0xF1, 0xF3, 0xF6),
                             QColor(0x8F, 0xA9, 0xC4), QColor(0x2B, 0x51, 0x76)};
const ButtonFace pressedFace{QColor(0xD9, 0xDE, 0xE4), QColor(0xE6, 0xE9, 0xED),
                             QColor(0x7C, 0x98, 0xB6), QColor(0x2B, 0x51, 0x76)};
const ButtonFace disabledFace{QColor(0xF2, 0xF2, 0xF2), QColor(0xEA, 0xEA, 0xEA),
                              QColor(0xCF, 0xCF, 0xCF), QColor(0xAE, 0xAE, 0xAE)};

} // namespace

AddButton::AddButton(QWidget* parent)
    : QAbstractButton(parent)
{
    setAttribute(Qt::WA_Hover);
}

QSize AddButton::sizeHint() const
{
    return {diameter, diameter};
}

bool AddButton::event(QEvent* event)
{
    if (event->type() == QEvent::HoverEnter || event->type() == QEvent::HoverLeave) {
        update();
    }
    return QAbstractButton::event(event);
}

void AddButton::paintEvent(QPaintEvent* /*event*/)
{
    const ButtonFace& face = !isEnabled()   ? disabledFace
                             : isDown()     ? pressedFace
                             : underMouse() ? hoveredFace
                                            : quietFace;
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const double inset = borderWidth / 2.0;
    const QRectF circle = QRectF(rect()).adjusted(inset, inset, -inset, -inset);
    painter.setBrush(face.gradient(circle));
    painter.setPen(QPen(HighContrast::ink(face.border), borderWidth));
    painter.drawEllipse(circle);

    // Filled along the pixels: a stroke would blur.
    painter.setRenderHint(QPainter::Antialiasing, false);
    const PixelSnapping snapping(painter);
    const QPointF middle(width() / 2.0, height() / 2.0);
    const double half = snapping.lineWidth() / 2.0;
    for (const auto& arm :
         {QRectF(middle.x() - armLength, middle.y() - half, 2 * armLength, 2 * half),
          QRectF(middle.x() - half, middle.y() - armLength, 2 * half, 2 * armLength)}) {
        painter.fillRect(snapping.snappedRect(arm), HighContrast::ink(face.ink));
    }
}
