#include "mainwindow/CVCardTableRowView.h"

#include "timeline/CVAdditions.h"
#include "widgets/VRGradientBackgroundStencil.h"

void CVCardTableRowView::drawBackground(QPainter& painter, const QRectF& rect, bool isSelected)
{
    VRGradientBackgroundStencil stencil;
    stencil.setGradientHeight(10.0);
    stencil.setHighlighted(isSelected);
    stencil.setBaseColor(CVAdditions::cvCardBackgroundColorForHighlightedState(isSelected));
    stencil.drawInRect(painter, rect);
}
