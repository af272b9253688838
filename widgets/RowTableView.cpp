#include "widgets/RowTableView.h"

#include "foundation/Log.h"
#include "widgets/AccessibleRow.h"

#include <QFocusFrame>
#include <QGuiApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPaintEvent>
#include <QPainter>
#include <QScopeGuard>
#include <QScrollArea>
#include <QScrollBar>
#include <QStyleHints>

#include <algorithm>
#include <cmath>
#include <exception>
#include <utility>

namespace {

/// Moves a bar as near to `position` as it goes.
void moveTo(QScrollBar& bar, double position)
{
    if (std::isfinite(position)) {
        bar.setValue(static_cast<int>(
            std::round(std::clamp<double>(position, bar.minimum(), bar.maximum()))));
    }
}

} // namespace

RowTableView::RowTableView(QWidget* parent)
    : QWidget(parent)
    , m_focusFrame(new QFocusFrame(this))
{
    // Every pixel is painted, so nothing behind the table need be.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
    setFocusPolicy(Qt::StrongFocus);
}

void RowTableView::setModel(QAbstractItemModel* model)
{
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    if (m_model) {
        connect(m_model, &QAbstractItemModel::rowsInserted, this, &RowTableView::rowsDidChange);
        connect(m_model, &QAbstractItemModel::rowsRemoved, this, &RowTableView::rowsDidChange);
        connect(m_model, &QAbstractItemModel::rowsMoved, this, &RowTableView::rowsDidChange);
        connect(m_model, &QAbstractItemModel::modelReset, this, &RowTableView::rowsDidChange);
        connect(m_model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last) {
                    update(rectOfRow(first.row()).united(rectOfRow(last.row())));
                });
    }
    m_accessibleRowEvents.setModel(model);
    rowsDidChange();
}

void RowTableView::setSelectionModel(QItemSelectionModel* selectionModel)
{
    if (m_selectionModel) {
        m_selectionModel->disconnect(this);
    }
    m_selectionModel = selectionModel;
    if (m_selectionModel) {
        connect(m_selectionModel, &QItemSelectionModel::selectionChanged, this,
                [this](const QItemSelection& selected, const QItemSelection& deselected) {
                    for (const auto& changed : {selected, deselected}) {
                        for (const auto& range : changed) {
                            update(rectOfRow(range.top()).united(rectOfRow(range.bottom())));
                        }
                    }
                });
    }
    m_accessibleRowEvents.setSelectionModel(selectionModel);
    update();
}

void RowTableView::setRowHeight(int height)
{
    m_rowHeight = std::max(1, height);
    rowsDidChange();
}

int RowTableView::numberOfRows() const
{
    return m_model ? m_model->rowCount() : 0;
}

bool RowTableView::isRowSelected(int row) const
{
    return m_selectionModel && m_model && m_selectionModel->isSelected(m_model->index(row, 0));
}

QRect RowTableView::rectOfRow(int row) const
{
    if (row < 0 || row >= numberOfRows()) {
        return {};
    }
    return {0, row * m_rowHeight, width(), m_rowHeight};
}

std::optional<int> RowTableView::rowAtPoint(const QPointF& point) const
{
    if (point.x() < 0 || point.x() >= width() || point.y() < 0 ||
        point.y() >= numberOfRows() * m_rowHeight) {
        return std::nullopt;
    }
    return static_cast<int>(point.y()) / m_rowHeight;
}

void RowTableView::selectRow(int row)
{
    if (m_selectionModel && row >= 0 && row < numberOfRows()) {
        m_selectionModel->setCurrentIndex(m_model->index(row, 0),
                                          QItemSelectionModel::ClearAndSelect);
    }
}

void RowTableView::chooseRow(int row)
{
    if (row >= 0 && row < numberOfRows()) {
        willSelectRow(row);
        selectRow(row);
    }
}

std::optional<int> RowTableView::selectedRow() const
{
    std::optional<int> last;
    if (m_selectionModel) {
        for (const auto& index : m_selectionModel->selectedIndexes()) {
            last = std::max(last, std::optional(index.row()));
        }
    }
    return last;
}

QRect RowTableView::visibleRect() const
{
    const auto* const scrollView = enclosingScrollView();
    if (!scrollView) {
        return rect();
    }
    return QRect(-pos(), scrollView->viewport()->size()) & rect();
}

void RowTableView::scrollRowToVisible(int row)
{
    const auto rect = rectOfRow(row);
    const auto visible = visibleRect();
    auto* const scrollView = enclosingScrollView();
    if (rect.isEmpty() || !scrollView) {
        return;
    }
    if (rect.top() < visible.top()) {
        moveTo(*scrollView->verticalScrollBar(), rect.top());
    } else if (rect.bottom() > visible.bottom()) {
        moveTo(*scrollView->verticalScrollBar(), rect.bottom() + 1 - visible.height());
    }
}

void RowTableView::scrollPoint(const QPointF& point)
{
    if (auto* const scrollView = enclosingScrollView()) {
        moveTo(*scrollView->horizontalScrollBar(), point.x());
        moveTo(*scrollView->verticalScrollBar(), point.y());
    }
}

void RowTableView::setTiledBackground(TiledBackground background)
{
    m_background = std::move(background);
    update();
}

QSize RowTableView::sizeHint() const
{
    return {0, numberOfRows() * m_rowHeight};
}

QSize RowTableView::minimumSizeHint() const
{
    return sizeHint();
}

std::unique_ptr<AccessibleRow> RowTableView::makeAccessibleRow(AccessibleRowList& list,
                                                               const QModelIndex& index)
{
    return std::make_unique<AccessibleRow>(list, index);
}

void RowTableView::paintRow(QPainter& /*painter*/, int /*row*/, const QRect& /*rect*/,
                            const QRect& /*exposed*/)
{}

bool RowTableView::event(QEvent* event)
{
    if (event->type() == QEvent::ParentChange && parentWidget()) {
        // What is in view changes with the scroll area's viewport, too.
        parentWidget()->installEventFilter(this);
    }
    return QWidget::event(event);
}

bool RowTableView::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Resize && watched == parentWidget()) {
        layoutRows();
    }
    return QWidget::eventFilter(watched, event);
}

void RowTableView::moveEvent(QMoveEvent* /*event*/)
{
    layoutRows();
}

void RowTableView::resizeEvent(QResizeEvent* /*event*/)
{
    layoutRows();
}

void RowTableView::showEvent(QShowEvent* /*event*/)
{
    layoutRows();
}

void RowTableView::focusInEvent(QFocusEvent* event)
{
    const auto reason = event->reason();
    if (reason == Qt::TabFocusReason || reason == Qt::BacktabFocusReason) {
        showFocusFrame(true);
    }
}

void RowTableView::focusOutEvent(QFocusEvent* event)
{
    const auto reason = event->reason();
    const bool comesBack = reason == Qt::ActiveWindowFocusReason ||
                           reason == Qt::PopupFocusReason || reason == Qt::MenuBarFocusReason;
    if (!comesBack) {
        showFocusFrame(false);
    }
}

void RowTableView::showFocusFrame(bool isShown)
{
    m_focusFrame->setWidget(isShown ? parentWidget() : nullptr);
}

void RowTableView::mousePressEvent(QMouseEvent* event)
{
    showFocusFrame(false);
    const auto point = pointOfPress(*event);
    const auto row = rowAtPoint(point);
    if (event->button() != Qt::LeftButton || !row) {
        m_pressedRow = QModelIndex();
        event->ignore();
        return;
    }
    m_pressedRow = m_model->index(*row, 0);
    m_pressedPlace = point - rectOfRow(*row).topLeft();
    m_pressedScreenPoint = event->globalPosition();
    chooseRow(*row);
}

QPointF RowTableView::pointOfPress(const QMouseEvent& event) const
{
    // A press at another place was not the first one of this double click.
    const auto distance = event.globalPosition() - m_pressedScreenPoint;
    const bool isSecond =
        event.type() == QEvent::MouseButtonDblClick &&
        distance.manhattanLength() <= QGuiApplication::styleHints()->mouseDoubleClickDistance();
    return isSecond && m_pressedRow.isValid()
               ? rectOfRow(m_pressedRow.row()).topLeft() + m_pressedPlace
               : event.position();
}

void RowTableView::mouseDoubleClickEvent(QMouseEvent* event)
{
    RowTableView::mousePressEvent(event);
}

void RowTableView::keyPressEvent(QKeyEvent* event)
{
    const auto modifiers = event->modifiers() & ~Qt::KeypadModifier;
    const auto row = modifiers == Qt::NoModifier ? rowForKey(event->key()) : std::nullopt;
    if (!row) {
        event->ignore();
        return;
    }
    showFocusFrame(hasFocus());
    if (row != selectedRow()) {
        chooseRow(*row);
    }
    scrollRowToVisible(*row);
}

void RowTableView::paintEvent(QPaintEvent* event)
{
    QPainter painter(this);
    const auto exposed = event->rect();
    m_background.draw(painter, exposed);
    const int first = std::max(0, exposed.top() / m_rowHeight);
    const int last = std::min(numberOfRows() - 1, exposed.bottom() / m_rowHeight);
    if (first > last) {
        return;
    }
    const auto done = qScopeGuard([this] { endRows(); });
    try {
        beginRows();
    } catch (const std::exception& exception) {
        Log::line(QString(u"Unable to draw the rows: " + QString::fromUtf8(exception.what())));
        return;
    }
    for (int row = first; row <= last; ++row) {
        const auto rect = rectOfRow(row);
        try {
            paintRow(painter, row, rect, rect.intersected(exposed));
        } catch (const std::exception& exception) {
            // One row that cannot be read is no reason to lose the others.
            Log::line(QString(u"Unable to draw row " + QString::number(row) + u": " +
                              QString::fromUtf8(exception.what())));
        }
    }
}

QScrollArea* RowTableView::enclosingScrollView() const
{
    auto* const viewport = parentWidget();
    auto* const scrollView =
        viewport ? qobject_cast<QScrollArea*>(viewport->parentWidget()) : nullptr;
    return scrollView && scrollView->viewport() == viewport ? scrollView : nullptr;
}

std::optional<int> RowTableView::rowForKey(int key) const
{
    const int last = numberOfRows() - 1;
    if (last < 0) {
        return std::nullopt;
    }
    const auto selected = selectedRow();
    const auto movedBy = [&](int rows) {
        return selected ? std::clamp(*selected + rows, 0, last) : 0;
    };
    const int page = std::max(1, visibleRect().height() / m_rowHeight);
    switch (key) {
    case Qt::Key_Up:
        return movedBy(-1);
    case Qt::Key_Down:
        return movedBy(1);
    case Qt::Key_PageUp:
        return movedBy(-page);
    case Qt::Key_PageDown:
        return movedBy(page);
    case Qt::Key_Home:
        return 0;
    case Qt::Key_End:
        return last;
    default:
        return std::nullopt;
    }
}

void RowTableView::rowsDidChange()
{
    updateHeight();
    update();
    layoutRows();
}

void RowTableView::updateHeight()
{
    setMinimumHeight(numberOfRows() * m_rowHeight);
    updateGeometry();
}
