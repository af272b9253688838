#pragma once

/// How large the texts are that have a size of their own.
namespace DesktopFont {

/// The size of a text that is `usual` high while the desktop's font is of a usual size: larger, but
/// at most `largest`, where somebody chose a larger font. All in points of the screen.
int pixelSize(int usual, int largest);

} // namespace DesktopFont
