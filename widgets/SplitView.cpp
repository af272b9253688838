#include "widgets/SplitView.h"

#include "widgets/SplitViewDivider.h"

#include <QDataStream>
#include <QEvent>
#include <QIODevice>

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace {

/// What saved arrangements begin with.
constexpr quint32 arrangementMark = 0x53504C31;

constexpr int largestSize = QWIDGETSIZE_MAX;

struct SavedPane
{
    qint32 size = 0;
    bool isCollapsed = false;
};

QByteArray bytesOf(const std::vector<SavedPane>& panes)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    stream.setVersion(QDataStream::Qt_6_4);
    stream << arrangementMark;
    for (const auto& pane : panes) {
        stream << pane.size << pane.isCollapsed;
    }
    stream << qChecksum(bytes);
    return bytes;
}

/// Empty when the bytes are not those of `count` panes.
std::vector<SavedPane> panesOf(const QByteArray& bytes, int count)
{
    QDataStream stream(bytes);
    stream.setVersion(QDataStream::Qt_6_4);
    quint32 mark = 0;
    stream >> mark;
    std::vector<SavedPane> panes(static_cast<std::size_t>(count));
    for (auto& pane : panes) {
        stream >> pane.size >> pane.isCollapsed;
    }
    // Written again, anything that was not ours, down to a trailing byte, comes out differently.
    return mark == arrangementMark && bytesOf(panes) == bytes ? panes : std::vector<SavedPane>();
}

} // namespace

SplitView::SplitView(QWidget* parent)
    : QSplitter(parent)
{
    setHandleWidth(1);
    connect(this, &QSplitter::splitterMoved, this, [this] {
        alignMirroredPanes();
        announceCollapses();
    });
}

void SplitView::setSizes(const QList<int>& sizes)
{
    QSplitter::setSizes(sizes);
    alignMirroredPanes();
}

void SplitView::setMinimumSizes(const std::map<int, double>& sizes)
{
    const auto previous = std::exchange(m_minimumSizes, sizes);
    for (int index = 0; index < count(); ++index) {
        const auto found = sizes.find(index);
        setStretchFactor(index, found == sizes.end() ? 1 : 0);
        if (found == sizes.end() && previous.count(index) == 0) {
            continue;
        }
        const double size = found == sizes.end() ? 0.0 : found->second;
        const int minimum = size > 0.0 && std::isfinite(size)
                                ? static_cast<int>(std::ceil(std::min(size, double{largestSize})))
                                : 0;
        if (orientation() == Qt::Horizontal) {
            widget(index)->setMinimumWidth(minimum);
        } else {
            widget(index)->setMinimumHeight(minimum);
        }
    }
}

void SplitView::setDividerColor(const QColor& color)
{
    m_dividerColor = color;
    for (auto* const divider :
         findChildren<SplitViewDivider*>(QString(), Qt::FindDirectChildrenOnly)) {
        divider->setColor(color);
    }
}

bool SplitView::isPaneCollapsed(int index) const
{
    const auto present = sizes();
    // Before the first layout no pane has a size yet.
    const bool isLaidOut =
        std::any_of(present.begin(), present.end(), [](int size) { return size > 0; });
    return isLaidOut && index >= 0 && index < count() && present.at(index) == 0 &&
           !widget(index)->isHidden();
}

void SplitView::setPaneCollapsed(int index, bool isCollapsed)
{
    if (index < 0 || index >= count() || isPaneCollapsed(index) == isCollapsed) {
        return;
    }
    // The room goes to the widest of the other panes, or comes from there.
    auto arranged = sizes();
    int other = -1;
    for (int candidate = 0; candidate < count(); ++candidate) {
        if (candidate != index && !widget(candidate)->isHidden() && !isPaneCollapsed(candidate) &&
            (other < 0 || arranged.at(candidate) > arranged.at(other))) {
            other = candidate;
        }
    }
    if (isCollapsed && (other < 0 || !isCollapsible(index))) {
        return;
    }
    rememberSizes();
    for (int pane = 0; pane < count(); ++pane) {
        // A splitter takes a size of 0 as a wish to collapse the pane.
        if (widget(pane)->isHidden()) {
            arranged[pane] = sizeToComeBackTo(pane);
        }
    }
    const int size = isCollapsed ? 0 : sizeToComeBackTo(index);
    if (other >= 0) {
        arranged[other] = std::max(arranged.at(other) + arranged.at(index) - size, 1);
    }
    arranged[index] = size;
    setSizes(arranged);
    announceCollapses();
}

QByteArray SplitView::saveArrangement() const
{
    std::vector<SavedPane> panes;
    panes.reserve(static_cast<std::size_t>(count()));
    const auto present = sizes();
    for (int index = 0; index < count(); ++index) {
        const int size = present.at(index) > 0 ? present.at(index) : sizeToComeBackTo(index);
        panes.push_back({size, isPaneCollapsed(index)});
    }
    return bytesOf(panes);
}

bool SplitView::restoreArrangement(const QByteArray& arrangement)
{
    const auto panes = panesOf(arrangement, count());
    if (panes.empty()) {
        return false;
    }
    QList<int> arranged;
    bool isAnyOpen = false;
    for (int index = 0; index < count(); ++index) {
        const auto& pane = panes.at(static_cast<std::size_t>(index));
        const int size = std::clamp(pane.size, 1, largestSize);
        m_rememberedSizes[index] = size;
        const bool mayCollapse = isCollapsible(index) && (isAnyOpen || index + 1 < count());
        const bool isCollapsed = pane.isCollapsed && mayCollapse;
        isAnyOpen = isAnyOpen || !isCollapsed;
        arranged.append(isCollapsed ? 0 : size);
    }
    setSizes(arranged);
    announceCollapses();
    return true;
}

QSplitterHandle* SplitView::createHandle()
{
    auto* const divider = new SplitViewDivider(orientation(), this);
    divider->setColor(m_dividerColor);
    connect(divider, &SplitViewDivider::grasped, this, &SplitView::rememberSizes);
    connect(divider, &SplitViewDivider::doubleClicked, this,
            [this, divider] { openPanesBeside(divider); });
    return divider;
}

bool SplitView::event(QEvent* event)
{
    const bool isHandled = QSplitter::event(event);
    if (event->type() == QEvent::Resize || event->type() == QEvent::LayoutRequest) {
        alignMirroredPanes();
    }
    return isHandled;
}

/// From right to left, QSplitter puts the panes, but not the dividers, one point too far right.
void SplitView::alignMirroredPanes()
{
    if (orientation() != Qt::Horizontal || !isRightToLeft()) {
        return;
    }
    int right = contentsRect().right();
    for (int index = 0; index < count(); ++index) {
        if (const auto* const divider = handle(index); index > 0 && !divider->isHidden()) {
            right = divider->mapToParent(divider->contentsRect().topLeft()).x() - 1;
        }
        auto frame = widget(index)->geometry();
        frame.moveRight(right);
        widget(index)->setGeometry(frame);
    }
}

int SplitView::sizeToComeBackTo(int index) const
{
    const auto found = m_rememberedSizes.find(index);
    if (found != m_rememberedSizes.end()) {
        return found->second;
    }
    const auto hint = widget(index)->sizeHint().expandedTo(widget(index)->minimumSize());
    return std::max(orientation() == Qt::Horizontal ? hint.width() : hint.height(), 1);
}

void SplitView::rememberSizes()
{
    const auto present = sizes();
    for (int index = 0; index < count(); ++index) {
        if (present.at(index) > 0) {
            m_rememberedSizes[index] = present.at(index);
        }
    }
}

void SplitView::openPanesBeside(QSplitterHandle* divider)
{
    const int index = indexOf(divider);
    setPaneCollapsed(index - 1, false);
    setPaneCollapsed(index, false);
}

void SplitView::announceCollapses()
{
    std::vector<int> changed;
    for (int index = 0; index < count(); ++index) {
        const bool isCollapsed = isPaneCollapsed(index);
        if (isCollapsed == (m_collapsedPanes.count(index) > 0)) {
            continue;
        }
        if (isCollapsed) {
            m_collapsedPanes.insert(index);
        } else {
            m_collapsedPanes.erase(index);
        }
        changed.push_back(index);
    }
    for (const int index : changed) {
        const bool isCollapsed = m_collapsedPanes.count(index) > 0;
        widget(index)->setEnabled(!isCollapsed);
        Q_EMIT paneCollapsedChanged(index, isCollapsed);
    }
}
