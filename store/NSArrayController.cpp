#include "store/NSArrayController.h"

#include "store/NSManagedObject.h"
#include "store/NSManagedObjectContext.h"

#include <algorithm>
#include <utility>

NSArrayController::NSArrayController(std::string entityName, std::string sortKey,
                                     std::string displayKey, QObject* parent)
    : QAbstractListModel(parent)
    , m_entityName(std::move(entityName))
    , m_sortKey(std::move(sortKey))
    , m_displayKey(std::move(displayKey))
    , m_selectionModel(this)
{
    connect(&m_selectionModel, &QItemSelectionModel::selectionChanged, this,
            [this] { const KeyValueChange change(*this, "selectionIndex"); });
}

void NSArrayController::setManagedObjectContext(NSManagedObjectContext* context)
{
    if (m_context) {
        disconnect(m_context, nullptr, this, nullptr);
    }
    beginResetModel();
    m_context = context;
    m_arranged.clear();
    m_isFetched = false;
    endResetModel();
    if (!m_context) {
        return;
    }
    // What is announced from here on is new to the list.
    m_context->processPendingChanges();
    connect(m_context, &NSManagedObjectContext::objectsDidChange, this,
            &NSArrayController::updateWithChanges);
    fetch();
}

void NSArrayController::fetch()
{
    auto records = m_context->executeFetchRequest({m_entityName});
    std::ranges::stable_sort(
        records, [this](const auto* left, const auto* right) { return sortsBefore(left, right); });
    beginResetModel();
    m_arranged = std::move(records);
    endResetModel();
    m_isFetched = true;
    selectSomething(0);
}

std::optional<std::size_t> NSArrayController::indexOfObject(const NSManagedObject* object) const
{
    const auto found = std::ranges::find(m_arranged, object);
    if (found == m_arranged.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - m_arranged.begin());
}

std::optional<std::size_t> NSArrayController::selectionIndex() const
{
    std::optional<std::size_t> last;
    for (const auto& index : m_selectionModel.selectedIndexes()) {
        last = std::max(last, std::optional(static_cast<std::size_t>(index.row())));
    }
    return last;
}

void NSArrayController::setSelectionIndex(std::optional<std::size_t> index)
{
    if (!index) {
        m_selectionModel.clear();
    } else if (*index < m_arranged.size()) {
        m_selectionModel.setCurrentIndex(this->index(static_cast<int>(*index)),
                                         QItemSelectionModel::ClearAndSelect);
    }
}

std::vector<NSManagedObject*> NSArrayController::selectedObjects() const
{
    std::vector<NSManagedObject*> objects;
    for (const auto& index : m_selectionModel.selectedIndexes()) {
        objects.push_back(m_arranged[static_cast<std::size_t>(index.row())]);
    }
    return objects;
}

void NSArrayController::setSelectedObjects(const std::vector<NSManagedObject*>& objects)
{
    QItemSelection selection;
    QModelIndex current;
    for (const auto* const object : objects) {
        if (const auto row = indexOfObject(object)) {
            current = index(static_cast<int>(*row));
            selection.select(current, current);
        }
    }
    m_selectionModel.select(selection, QItemSelectionModel::ClearAndSelect);
    m_selectionModel.setCurrentIndex(current, QItemSelectionModel::NoUpdate);
}

void NSArrayController::remove()
{
    for (auto* const object : selectedObjects()) {
        m_context->deleteObject(*object);
    }
}

NSManagedObject* NSArrayController::objectAtRow(int row) const
{
    return row >= 0 && row < rowCount() ? m_arranged[static_cast<std::size_t>(row)] : nullptr;
}

int NSArrayController::rowCount(const QModelIndex& parent) const
{
    return parent.isValid() ? 0 : static_cast<int>(m_arranged.size());
}

QVariant NSArrayController::data(const QModelIndex& index, int role) const
{
    if (role != Qt::DisplayRole || !index.isValid()) {
        return {};
    }
    const auto value = m_arranged[static_cast<std::size_t>(index.row())]->valueForKey(m_displayKey);
    return propertyValueAs<QString>(value).value_or(QString());
}

void NSArrayController::updateWithChanges(const ObjectChanges& changes)
{
    if (!m_isFetched) {
        fetch();
        return;
    }
    const auto selectedBefore = selectionIndex();
    for (const auto* const object : changes.deleted) {
        removeObject(object);
    }
    rearrange();
    for (auto* const object : changes.inserted) {
        insertObject(object);
    }
    for (const auto* const object : changes.updated) {
        if (const auto row = indexOfObject(object)) {
            const auto changed = index(static_cast<int>(*row));
            Q_EMIT dataChanged(changed, changed);
        }
    }
    if (!selectionIndex()) {
        selectSomething(selectedBefore.value_or(0));
    }
}

void NSArrayController::removeObject(const NSManagedObject* object)
{
    if (const auto index = indexOfObject(object)) {
        const int row = static_cast<int>(*index);
        beginRemoveRows({}, row, row);
        m_arranged.erase(m_arranged.begin() + row);
        endRemoveRows();
    }
}

void NSArrayController::insertObject(NSManagedObject* object)
{
    if (!isShown(object)) {
        return;
    }
    const auto position =
        std::ranges::upper_bound(m_arranged, object, [this](const auto* left, const auto* right) {
            return sortsBefore(left, right);
        });
    const int row = static_cast<int>(position - m_arranged.begin());
    beginInsertRows({}, row, row);
    m_arranged.insert(position, object);
    endInsertRows();
}

void NSArrayController::rearrange()
{
    const auto isBefore = [this](const auto* left, const auto* right) {
        return sortsBefore(left, right);
    };
    if (std::ranges::is_sorted(m_arranged, isBefore)) {
        return;
    }
    const auto order = sorted(m_arranged);
    for (std::size_t to = 0; to < order.size(); ++to) {
        const auto from = *indexOfObject(order[to]);
        if (from != to) {
            beginMoveRows({}, static_cast<int>(from), static_cast<int>(from), {},
                          static_cast<int>(to));
            const auto begin = m_arranged.begin();
            std::rotate(begin + static_cast<std::ptrdiff_t>(to),
                        begin + static_cast<std::ptrdiff_t>(from),
                        begin + static_cast<std::ptrdiff_t>(from) + 1);
            endMoveRows();
        }
    }
}

bool NSArrayController::isShown(const NSManagedObject* object) const
{
    return object->entity().name() == m_entityName && !object->isDeleted();
}

std::vector<NSManagedObject*>
NSArrayController::sorted(const std::vector<NSManagedObject*>& objects) const
{
    // Each key is read once instead of at every comparison.
    std::vector<std::pair<PropertyValue, NSManagedObject*>> keyed;
    keyed.reserve(objects.size());
    for (auto* const object : objects) {
        keyed.emplace_back(object->valueForKey(m_sortKey), object);
    }
    std::ranges::stable_sort(
        keyed, [](const auto& left, const auto& right) { return left.first < right.first; });
    std::vector<NSManagedObject*> result;
    result.reserve(keyed.size());
    for (const auto& [key, object] : keyed) {
        result.push_back(object);
    }
    return result;
}

bool NSArrayController::sortsBefore(const NSManagedObject* left, const NSManagedObject* right) const
{
    return left->valueForKey(m_sortKey) < right->valueForKey(m_sortKey);
}

void NSArrayController::selectSomething(std::size_t preferredIndex)
{
    if (!m_arranged.empty()) {
        setSelectionIndex(std::min(preferredIndex, m_arranged.size() - 1));
    }
}
