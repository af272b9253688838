#include "mainwindow/CVCardTableRowView.h"

#include "timeline/CVAdditions.h"
#include "widgets/VRGradientBackgroundStencil.h"

#include <QPainter>

namespace {

/// How far a card's cell stays away from the ends of its row, in points.
constexpr int cellInset = 4;

/// A row's frame before the table gives it another.
constexpr QRect initialFrame(0, 0, 100, 100);

} // namespace

CVCardTableRowView::CVCardTableRowView(QWidget* parent)
    : QWidget(parent)
    , m_cellView(new CVCardTableCellView(this))
{
    // Every pixel is painted, so nothing behind the row need be.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setGeometry(initialFrame);
}

void CVCardTableRowView::setSelected(bool isSelected)
{
    if (isSelected != m_isSelected) {
        m_isSelected = isSelected;
        m_cellView->setHighlighted(isSelected);
        update();
    }
}

void CVCardTableRowView::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    if (m_isSelected) {
        drawSelectionInRect(painter, rect());
    } else {
        drawBackgroundInRect(painter, rect());
    }
}

void CVCardTableRowView::resizeEvent(QResizeEvent* /*event*/)
{
    m_cellView->setGeometry(rect().adjusted(cellInset, 0, -cellInset, 0));
}

void CVCardTableRowView::drawBackgroundInRect(QPainter& painter, const QRectF& rect) const
{
    internalDrawBackgroundInRect(painter, rect);
}

void CVCardTableRowView::drawSelectionInRect(QPainter& painter, const QRectF& rect) const
{
    internalDrawBackgroundInRect(painter, rect);
}

void CVCardTableRowView::internalDrawBackgroundInRect(QPainter& painter, const QRectF& rect) const
{
    VRGradientBackgroundStencil stencil;
    stencil.setGradientHeight(10.0);
    stencil.setHighlighted(m_isSelected);
    stencil.setBaseColor(CVAdditions::cvCardBackgroundColorForHighlightedState(m_isSelected));
    stencil.drawInRect(painter, rect);
}
