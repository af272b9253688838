#include "widgets/RowTableView.h"

#include "foundation/Log.h"

#include <QPaintEvent>
#include <QPainter>
#include <QScopeGuard>

#include <algorithm>
#include <exception>
#include <utility>

RowTableView::RowTableView(QWidget* parent)
    : QWidget(parent)
{
    // Every pixel is painted, so nothing behind the table need be.
    setAttribute(Qt::WA_OpaquePaintEvent);
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::MinimumExpanding);
}

void RowTableView::setModel(QAbstractItemModel* model)
{
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    if (m_model) {
        const auto rowsChanged = [this] {
            updateHeight();
            update();
        };
        connect(m_model, &QAbstractItemModel::rowsInserted, this, rowsChanged);
        connect(m_model, &QAbstractItemModel::rowsRemoved, this, rowsChanged);
        connect(m_model, &QAbstractItemModel::rowsMoved, this, rowsChanged);
        connect(m_model, &QAbstractItemModel::modelReset, this, rowsChanged);
        connect(m_model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last) {
                    update(rectOfRow(first.row()).united(rectOfRow(last.row())));
                });
    }
    updateHeight();
    update();
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
    update();
}

void RowTableView::setRowHeight(int height)
{
    m_rowHeight = std::max(1, height);
    updateHeight();
    update();
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

void RowTableView::updateHeight()
{
    setMinimumHeight(numberOfRows() * m_rowHeight);
    updateGeometry();
}
