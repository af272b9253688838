#pragma once

class QColor;

/// Stronger colours for those who ask their desktop for high contrast. Everybody else gets the
/// colours that were chosen.
namespace HighContrast {

/// Whether the application's style was told that high contrast is wanted.
bool isWanted();

/// The colour of a text, sign or border on a light ground: darker where high contrast is wanted, so
/// that on the panels even the palest text has a contrast of 7 to 1.
QColor ink(const QColor& color);

/// A translucent line on any ground: less translucent where high contrast is wanted.
QColor line(const QColor& color);

} // namespace HighContrast
