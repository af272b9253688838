#include "widgets/DesktopFont.h"

#include <QFontInfo>
#include <QGuiApplication>

#include <algorithm>

namespace {

/// The largest that desktops come with: 11 typographic points.
constexpr int usualSize = 15;

} // namespace

int DesktopFont::pixelSize(int usual, int largest)
{
    const int chosen = QFontInfo(QGuiApplication::font()).pixelSize();
    return std::clamp(usual * chosen / usualSize, usual, largest);
}
