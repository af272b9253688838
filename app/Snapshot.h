#pragma once

#include <QString>

class QWidget;

namespace Snapshot {

/// Draws the window, once it has settled, into a PNG file. Whether the file could be written.
bool draw(QWidget& window, const QString& path);

} // namespace Snapshot
