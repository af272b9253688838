#include "widgets/SplitViewDivider.h"

#include "widgets/PixelSnapping.h"

#include <QMouseEvent>
#include <QPainter>

namespace {

/// In points, on each side of the line.
constexpr int graspMargin = 4;

} // namespace

SplitViewDivider::SplitViewDivider(Qt::Orientation orientation, QSplitter* parent)
    : QSplitterHandle(orientation, parent)
{
    setAttribute(Qt::WA_MouseNoMask);
}

void SplitViewDivider::setColor(const QColor& color)
{
    m_color = color;
    update();
}

void SplitViewDivider::paintEvent(QPaintEvent* /*event*/)
{
    // From pixel edge to pixel edge: a line of even thickness would leave a gap beside it at some
    // places and scale factors.
    QPainter painter(this);
    painter.fillRect(PixelSnapping(painter).snappedRect(contentsRect()), m_color);
}

void SplitViewDivider::resizeEvent(QResizeEvent* /*event*/)
{
    // Instead of the base class's, which grants two points on either side. The splitter adds the
    // margins to the handle's size; the mask keeps the panes visible under them.
    const bool isHorizontal = orientation() == Qt::Horizontal;
    setContentsMargins(isHorizontal ? graspMargin : 0, isHorizontal ? 0 : graspMargin,
                       isHorizontal ? graspMargin : 0, isHorizontal ? 0 : graspMargin);
    setMask(contentsRect());
}

// The mouse is not left to the base class: it takes the margin for a part of the way, so that the
// divider leaps when it is grasped, and drags it on after a double click, which itself moves the
// divider away from under the mouse.

void SplitViewDivider::mousePressEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        const auto line = mapToGlobal(contentsRect().topLeft());
        m_graspOffset = positionAlongView(event->globalPosition()) - positionAlongView(line);
        Q_EMIT grasped();
    }
}

void SplitViewDivider::mouseMoveEvent(QMouseEvent* event)
{
    if (!m_graspOffset) {
        return;
    }
    int edge = positionAlongView(event->globalPosition()) - *m_graspOffset;
    if (orientation() == Qt::Horizontal && isRightToLeft()) {
        // Counted from the right, the near edge is the other one.
        edge += contentsRect().width();
    }
    moveSplitter(edge);
}

void SplitViewDivider::mouseReleaseEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_graspOffset.reset();
    }
}

void SplitViewDivider::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton) {
        m_graspOffset.reset();
        Q_EMIT doubleClicked();
    }
}

int SplitViewDivider::positionAlongView(const QPointF& globalPosition) const
{
    const auto position = parentWidget()->mapFromGlobal(globalPosition).toPoint();
    return orientation() == Qt::Horizontal ? position.x() : position.y();
}
