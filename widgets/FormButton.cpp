#include "widgets/FormButton.h"

#include "widgets/ButtonFace.h"
#include "widgets/HighContrast.h"
#include "widgets/PixelSnapping.h"
#include "widgets/RoundedRing.h"

#include <QDialog>
#include <QPainter>
#include <QStyle>
#include <QStyleOptionFocusRect>

#include <algorithm>

namespace {

// In points.
constexpr int buttonHeight = 28;
constexpr int verticalPadding = 4;
constexpr int horizontalPadding = 14;
constexpr double cornerRadius = 4.0;

const ButtonFace quietFace{QColor(0xFE, 0xFE, 0xFE), QColor(0xEC, 0xEC, 0xEC),
                           QColor(0xB4, 0xB4, 0xB4), QColor(0x22, 0x21, 0x22)};
const ButtonFace pressedFace{QColor(0xD9, 0xDE, 0xE4), QColor(0xE6, 0xE9, 0xED),
                             QColor(0x9A, 0xA6, 0xB2), QColor(0x22, 0x21, 0x22)};
const ButtonFace disabledFace{QColor(0xF6, 0xF6, 0xF6), QColor(0xF0, 0xF0, 0xF0),
                              QColor(0xCF, 0xCF, 0xCF), QColor(0xA0, 0xA0, 0xA0)};

QColor mixed(const QColor& color, const QColor& other, float share)
{
    const auto mix = [share](float component, float otherComponent) {
        return component + (otherComponent - component) * share;
    };
    return QColor::fromRgbF(mix(color.redF(), other.redF()), mix(color.greenF(), other.greenF()),
                            mix(color.blueF(), other.blueF()));
}

/// The default button's face, in shades of one colour.
ButtonFace accentedFace(const QColor& accent, bool isDown)
{
    const auto shade = [&accent](const QColor& other, float share) {
        return mixed(accent, other, share);
    };
    return isDown ? ButtonFace{shade(Qt::black, 0.15F), accent, shade(Qt::black, 0.4F), Qt::white}
                  : ButtonFace{shade(Qt::white, 0.25F), shade(Qt::white, 0.05F),
                               shade(Qt::black, 0.2F), Qt::white};
}

} // namespace

FormButton::FormButton(QWidget* parent)
    : QPushButton(parent)
{
    // A click leaves the focus where something is typed.
    setFocusPolicy(Qt::TabFocus);
}

QSize FormButton::sizeHint() const
{
    const auto text = QFontMetrics(titleFont()).size(Qt::TextShowMnemonic, this->text());
    return {text.width() + 2 * horizontalPadding,
            std::max(text.height() + 2 * verticalPadding, buttonHeight)};
}

void FormButton::paintEvent(QPaintEvent* /*event*/)
{
    const ButtonFace face = !isEnabled() ? disabledFace
                            : isPrincipal()
                                ? accentedFace(palette().color(QPalette::Highlight), isDown())
                            : isDown() ? pressedFace
                                       : quietFace;
    QPainter painter(this);
    const auto box = PixelSnapping(painter).snappedRect(rect());
    painter.setRenderHint(QPainter::Antialiasing);
    painter.setPen(Qt::NoPen);
    painter.setBrush(face.gradient(box));
    painter.drawRoundedRect(box, cornerRadius, cornerRadius);
    RoundedRing::draw(painter, box, cornerRadius, 1.0, HighContrast::ink(face.border));

    painter.setPen(face.ink);
    painter.setFont(titleFont());
    painter.drawText(rect(), Qt::AlignCenter | Qt::TextShowMnemonic, text());
    if (hasFocus()) {
        QStyleOptionFocusRect option;
        option.initFrom(this);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &option, &painter, this);
    }
}

bool FormButton::isPrincipal() const
{
    // Outside dialogs, where the focus takes it from another, Qt also counts a button as default
    // that has only the focus.
    return isDefault() && (!autoDefault() || qobject_cast<const QDialog*>(window()));
}

QFont FormButton::titleFont() const
{
    QFont titleFont = font();
    titleFont.setWeight(isPrincipal() ? QFont::DemiBold : QFont::Normal);
    return titleFont;
}
