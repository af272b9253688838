#include "widgets/AccessibleRowEvents.h"

#include "widgets/AccessibleAnnouncements.h"
#include "widgets/AccessibleRow.h"
#include "widgets/AccessibleRowList.h"
#include "widgets/RowTableView.h"

#include <QEvent>
#include <QItemSelection>
#include <QItemSelectionModel>

AccessibleRowEvents::AccessibleRowEvents(RowTableView& table)
    : m_table(table)
{
    table.installEventFilter(this);
}

void AccessibleRowEvents::setModel(QAbstractItemModel* model)
{
    if (m_model) {
        m_model->disconnect(this);
    }
    m_model = model;
    if (m_model) {
        connect(m_model, &QAbstractItemModel::rowsInserted, this,
                [this](const QModelIndex&, int first, int last) { rowsDidAppear(first, last); });
        connect(
            m_model, &QAbstractItemModel::rowsAboutToBeRemoved, this,
            [this](const QModelIndex&, int first, int last) { rowsWillDisappear(first, last); });
        connect(m_model, &QAbstractItemModel::rowsRemoved, this,
                &AccessibleRowEvents::rowsDidDisappear);
        // Of rows that move nothing is told: Qt 6.4 announces a new order by signals that clients
        // refuse as malformed, and they ask for places afresh anyway.
        connect(m_model, &QAbstractItemModel::modelAboutToBeReset, this,
                [this] { rowsWillDisappear(0, m_table.numberOfRows() - 1); });
        connect(m_model, &QAbstractItemModel::modelReset, this,
                &AccessibleRowEvents::allRowsAreOthers);
        connect(m_model, &QAbstractItemModel::dataChanged, this,
                [this](const QModelIndex& first, const QModelIndex& last) {
                    namesDidChange(first.row(), last.row());
                });
    }
    allRowsAreOthers();
}

void AccessibleRowEvents::setSelectionModel(QItemSelectionModel* selectionModel)
{
    if (m_selectionModel) {
        m_selectionModel->disconnect(this);
    }
    m_selectionModel = selectionModel;
    if (m_selectionModel) {
        connect(m_selectionModel, &QItemSelectionModel::selectionChanged, this,
                &AccessibleRowEvents::selectionDidChange);
    }
}

void AccessibleRowEvents::descriptionsDidChange()
{
    if (const auto* const rows = list()) {
        rows->forEachExistingRow(
            [](AccessibleRow& row) { row.announce(QAccessible::DescriptionChanged); });
    }
}

bool AccessibleRowEvents::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::FocusIn && AccessibleAnnouncements::areHeard()) {
        // Qt will say that the table has the focus; the row must be the last that is said to have
        // it.
        QMetaObject::invokeMethod(this, &AccessibleRowEvents::announceFocus, Qt::QueuedConnection);
    }
    return QObject::eventFilter(watched, event);
}

AccessibleRowList* AccessibleRowEvents::list() const
{
    return AccessibleRowList::listening(m_table);
}

void AccessibleRowEvents::rowsDidAppear(int first, int last)
{
    const auto* const rows = list();
    for (int row = first; rows && row <= last; ++row) {
        rows->row(row)->announce(QAccessible::ObjectCreated);
    }
}

void AccessibleRowEvents::rowsWillDisappear(int first, int last)
{
    const auto* const rows = list();
    for (int row = first; rows && row <= last; ++row) {
        if (auto* const item = rows->existingRow(row)) {
            item->announceRemoval();
        }
    }
}

void AccessibleRowEvents::rowsDidDisappear()
{
    if (auto* const rows = list()) {
        rows->removeStaleRows();
    }
}

void AccessibleRowEvents::allRowsAreOthers()
{
    rowsDidDisappear();
    // Before the table is seen, nobody knows of any other rows.
    if (m_table.isVisible()) {
        rowsDidAppear(0, m_table.numberOfRows() - 1);
    }
}

void AccessibleRowEvents::namesDidChange(int first, int last)
{
    const auto* const rows = list();
    for (int row = first; rows && row <= last; ++row) {
        if (auto* const item = rows->existingRow(row)) {
            item->announce(QAccessible::NameChanged);
        }
    }
}

void AccessibleRowEvents::selectionDidChange(const QItemSelection& selected,
                                             const QItemSelection& deselected)
{
    const auto* const rows = list();
    if (!rows) {
        return;
    }
    for (const auto& index : deselected.indexes()) {
        if (auto* const item = rows->existingRow(index.row())) {
            item->announce(QAccessible::SelectionRemove);
        }
    }
    for (const auto& index : selected.indexes()) {
        if (auto* const item = rows->row(index.row())) {
            item->announce(QAccessible::Selection);
            if (item->state().focused) {
                item->announce(QAccessible::Focus);
            }
        }
    }
}

void AccessibleRowEvents::announceFocus()
{
    const auto* const rows = list();
    const auto selected = rows && m_table.hasFocus() ? m_table.selectedRow() : std::nullopt;
    if (selected) {
        rows->row(*selected)->focusItem().announce(QAccessible::Focus);
    }
}
