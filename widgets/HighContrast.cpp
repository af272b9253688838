#include "widgets/HighContrast.h"

#include "widgets/PanelStyle.h"

#include <QApplication>

#include <algorithm>

namespace {

constexpr float inkStrength = 0.45F;
constexpr float lineStrength = 2.5F;

} // namespace

bool HighContrast::isWanted()
{
    return QApplication::style()->styleHint(PanelStyle::highContrastHint) != 0;
}

QColor HighContrast::ink(const QColor& color)
{
    return isWanted() ? QColor::fromRgbF(color.redF() * inkStrength, color.greenF() * inkStrength,
                                         color.blueF() * inkStrength, color.alphaF())
                      : color;
}

QColor HighContrast::line(const QColor& color)
{
    QColor result = color;
    if (isWanted()) {
        result.setAlphaF(std::min(color.alphaF() * lineStrength, 1.0F));
    }
    return result;
}
