#pragma once

class QPainter;
class QRectF;

/// The background of a row in the list of cards.
namespace CVCardTableRowView {

/// Fills `rect`, the whole height of a row, as one panel; a selected row is pressed in.
void drawBackground(QPainter& painter, const QRectF& rect, bool isSelected);

} // namespace CVCardTableRowView
