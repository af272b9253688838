#include "timeline/CVSyncScrollView.h"

#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <QWheelEvent>

#include <algorithm>

CVSyncScrollView::CVSyncScrollView(QWidget* parent)
    : QScrollArea(parent)
{
    for (auto* const bar : {horizontalScrollBar(), verticalScrollBar()}) {
        connect(bar, &QScrollBar::actionTriggered, this, &CVSyncScrollView::willStartLiveScroll);
    }
}

void CVSyncScrollView::setVerticalSyncScrollView(CVSyncScrollView* other)
{
    stopVerticalSync();
    m_verticalSyncScrollView = other;
    if (other) {
        connect(other, &CVSyncScrollView::contentBoundsDidChange, this,
                &CVSyncScrollView::verticalSyncViewContentBoundsDidChange);
        connect(other, &CVSyncScrollView::viewportDidResize, this, &CVSyncScrollView::keepAsSmall,
                Qt::UniqueConnection);
        keepAsSmall();
    }
}

void CVSyncScrollView::setHorizontalSyncScrollView(CVSyncScrollView* other)
{
    stopHorizontalSync();
    m_horizontalSyncScrollView = other;
    if (other) {
        connect(other, &CVSyncScrollView::contentBoundsDidChange, this,
                &CVSyncScrollView::horizontalSyncViewContentBoundsDidChange);
        connect(other, &CVSyncScrollView::viewportDidResize, this, &CVSyncScrollView::keepAsSmall,
                Qt::UniqueConnection);
        keepAsSmall();
    }
}

void CVSyncScrollView::stopVerticalSync()
{
    if (m_verticalSyncScrollView) {
        disconnect(m_verticalSyncScrollView, &CVSyncScrollView::contentBoundsDidChange, this,
                   &CVSyncScrollView::verticalSyncViewContentBoundsDidChange);
    }
    m_verticalSyncScrollView = nullptr;
    keepAsSmall();
}

void CVSyncScrollView::stopHorizontalSync()
{
    if (m_horizontalSyncScrollView) {
        disconnect(m_horizontalSyncScrollView, &CVSyncScrollView::contentBoundsDidChange, this,
                   &CVSyncScrollView::horizontalSyncViewContentBoundsDidChange);
    }
    m_horizontalSyncScrollView = nullptr;
    keepAsSmall();
}

void CVSyncScrollView::stopSync()
{
    stopVerticalSync();
    stopHorizontalSync();
}

QPoint CVSyncScrollView::contentOrigin() const
{
    return {horizontalScrollBar()->value(), verticalScrollBar()->value()};
}

void CVSyncScrollView::setContentOrigin(const QPoint& origin)
{
    horizontalScrollBar()->setValue(origin.x());
    verticalScrollBar()->setValue(origin.y());
}

void CVSyncScrollView::scrollContentsBy(int dx, int dy)
{
    QScrollArea::scrollContentsBy(dx, dy);
    if (!m_isFollowing) {
        Q_EMIT contentBoundsDidChange();
    }
}

bool CVSyncScrollView::focusNextPrevChild(bool next)
{
    // QScrollArea's own would scroll.
    return QWidget::focusNextPrevChild(next); // NOLINT(bugprone-parent-virtual-call)
}

void CVSyncScrollView::resizeEvent(QResizeEvent* event)
{
    QScrollArea::resizeEvent(event);
    keepAsSmall();
    Q_EMIT viewportDidResize();
}

void CVSyncScrollView::wheelEvent(QWheelEvent* event)
{
    if (event->modifiers() & Qt::ControlModifier) {
        event->ignore();
        return;
    }
    if ((event->modifiers() & Qt::ShiftModifier) && event->angleDelta().x() == 0) {
        QWheelEvent sideways(event->position(), event->globalPosition(),
                             event->pixelDelta().transposed(), event->angleDelta().transposed(),
                             event->buttons(), event->modifiers() & ~Qt::ShiftModifier,
                             event->phase(), event->inverted(), event->source());
        QScrollArea::wheelEvent(&sideways);
        event->setAccepted(sideways.isAccepted());
        return;
    }
    QScrollArea::wheelEvent(event);
}

void CVSyncScrollView::keyPressEvent(QKeyEvent* event)
{
    // QScrollArea's own would scroll, and keep the window's keys from it.
    event->ignore();
}

void CVSyncScrollView::verticalSyncViewContentBoundsDidChange()
{
    follow({contentOrigin().x(), m_verticalSyncScrollView->contentOrigin().y()});
}

void CVSyncScrollView::horizontalSyncViewContentBoundsDidChange()
{
    follow({m_horizontalSyncScrollView->contentOrigin().x(), contentOrigin().y()});
}

void CVSyncScrollView::follow(const QPoint& origin)
{
    if (!m_isSyncPaused) {
        const QScopedValueRollback following(m_isFollowing, true);
        setContentOrigin(origin);
    }
}

QSize CVSyncScrollView::room() const
{
    return viewport()->rect().marginsAdded(viewportMargins()).size();
}

void CVSyncScrollView::keepAsSmall()
{
    // The size of a view that is not seen means nothing.
    const auto surplus = [this](const CVSyncScrollView* partner) {
        return partner && partner->isVisible() ? room() - partner->room() : QSize(0, 0);
    };
    setViewportMargins(0, 0, std::max(0, surplus(m_horizontalSyncScrollView).width()),
                       std::max(0, surplus(m_verticalSyncScrollView).height()));
}
