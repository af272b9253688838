#pragma once

#include <QString>

class QWidget;

namespace Snapshot {

/// Draws the window, once nothing in it moves any more, into a PNG file. Animations must be off.
/// Answers whether the file could be written.
bool draw(QWidget& window, const QString& path);

} // namespace Snapshot
