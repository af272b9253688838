#include "store/NSManagedObjectContext.h"

#include "foundation/Log.h"
#include "store/NSError.h"
#include "store/NSManagedObject.h"
#include "store/NSPersistentStoreCoordinator.h"
#include "store/ReadTransaction.h"
#include "store/RecordTable.h"
#include "store/SQLiteStore.h"

#include <QScopeGuard>

#include <algorithm>
#include <exception>
#include <optional>
#include <stdexcept>
#include <utility>

NSManagedObjectContext::NSManagedObjectContext(NSPersistentStoreCoordinator& coordinator)
    : m_coordinator(coordinator)
{
    for (const auto& entity : coordinator.managedObjectModel().entities()) {
        m_tables.push_back(std::make_unique<RecordTable>(*this, *entity));
    }
    m_undoManager.setCheckpointHandler([this] { processPendingChanges(); });
}

NSManagedObjectContext::~NSManagedObjectContext() = default;

std::unique_ptr<NSManagedObjectContext> NSManagedObjectContext::makeContext()
{
    auto* const coordinator = NSPersistentStoreCoordinator::MR_defaultStoreCoordinator();
    return coordinator ? std::make_unique<NSManagedObjectContext>(*coordinator) : nullptr;
}

NSManagedObject&
NSManagedObjectContext::insertNewObjectForEntityForName(std::string_view entityName)
{
    auto& record =
        table(m_coordinator.managedObjectModel().entityNamed(entityName)).makeNewRecord();
    touch(record);
    logStep(ChangeStep::Inserted{&record});
    return record;
}

void NSManagedObjectContext::deleteObject(NSManagedObject& record)
{
    if (&record.managedObjectContext() != this) {
        throw std::invalid_argument("a context deletes its own records only");
    }
    if (record.isDeleted()) {
        return;
    }
    // An undo needs the values when the file has them no more.
    record.realize();
    for (const auto& relationship : record.entity().relationships()) {
        if (!relationship.isToMany) {
            auto* const target = record.storedTarget(relationship);
            changeTarget(record, relationship, nullptr);
            if (target && relationship.deleteRule == NSDeleteRule::Cascade) {
                deleteObject(*target);
            }
            continue;
        }
        const auto members = this->members(record, relationship);
        for (auto* const member : members) {
            if (relationship.deleteRule == NSDeleteRule::Cascade) {
                deleteObject(*member);
            } else {
                changeTarget(*member, *relationship.inverseRelationship, nullptr);
            }
        }
    }
    setDeleted(record, true);
}

void NSManagedObjectContext::processPendingChanges()
{
    // Who hears of changes may make more; they belong to the same step. Those who answer each
    // change with another have to wait for the next event.
    constexpr int maximumRounds = 8;
    for (int round = 0; round < maximumRounds && !m_log.empty(); ++round) {
        processLog(std::exchange(m_log, {}));
    }
}

void NSManagedObjectContext::processLog(ChangeLog log)
{
    const auto changes = netChanges(log);
    if (changes.isEmpty()) {
        // Records that came and went: nobody saw them, and there is nothing to take back.
        return;
    }
    auto takeBackLog = [this, steps = std::move(log)] {
        takeBack(steps);
    };
    if (m_isValidating) {
        m_undoManager.registerCorrection(std::move(takeBackLog));
    } else {
        m_undoManager.registerUndo(std::move(takeBackLog));
    }
    try {
        Q_EMIT objectsDidChange(changes);
    } catch (const std::exception& exception) {
        // The changes stand, whatever those who show them make of them.
        Log::line(QString(u"Unable to follow changes: " + QString::fromUtf8(exception.what())));
    }
}

template <typename Predicate>
std::vector<NSManagedObject*> NSManagedObjectContext::touchedWhere(Predicate predicate) const
{
    std::vector<NSManagedObject*> result;
    std::ranges::copy_if(m_touched, std::back_inserter(result), predicate);
    return result;
}

bool NSManagedObjectContext::hasChanges() const
{
    return std::ranges::any_of(m_touched, [](const NSManagedObject* record) {
        return record->isInserted() || record->isUpdated() ||
               (record->isDeleted() && record->hasState(NSManagedObject::Persisted));
    });
}

std::vector<NSManagedObject*> NSManagedObjectContext::insertedObjects() const
{
    return touchedWhere([](const NSManagedObject* record) { return record->isInserted(); });
}

std::vector<NSManagedObject*> NSManagedObjectContext::updatedObjects() const
{
    return touchedWhere([](const NSManagedObject* record) { return record->isUpdated(); });
}

std::vector<NSManagedObject*> NSManagedObjectContext::deletedObjects() const
{
    return touchedWhere([](const NSManagedObject* record) {
        return record->isDeleted() && record->hasState(NSManagedObject::Persisted);
    });
}

void NSManagedObjectContext::save()
{
    try {
        writeChanges();
    } catch (const NSError& error) {
        m_didLastSaveFail = true;
        Q_EMIT didFailToSave(error);
        throw;
    }
    m_didLastSaveFail = false;
    Q_EMIT didSave();
}

void NSManagedObjectContext::writeChanges()
{
    processPendingChanges();
    const bool areValid = validateEditedObjects();
    // A save ends the step that the person is making, with what validation corrected in it.
    m_undoManager.closeEventGroup();
    if (!areValid) {
        throw NSError(QStringLiteral("NSManagedObjectContextErrorDomain"), 1,
                      ErrorText(QT_TRANSLATE_NOOP("NSError", "The changes could not be saved.")),
                      ErrorText(QT_TRANSLATE_NOOP("NSError", "A record is not valid.")),
                      ErrorText(QT_TRANSLATE_NOOP("NSError", "a record is not valid")));
    }
    const StoreChanges changes{insertedObjects(), updatedObjects(), deletedObjects()};
    if (!changes.isEmpty()) {
        const auto ids = store().save(changes);
        for (std::size_t i = 0; i < changes.inserted.size(); ++i) {
            auto& record = *changes.inserted[i];
            table(record.entity()).setRecordID(record, ids[i]);
        }
    }
    for (auto* const record : std::exchange(m_touched, {})) {
        record->setState(NSManagedObject::Persisted, !record->isDeleted());
        record->setState(NSManagedObject::Touched, false);
        record->setState(NSManagedObject::Edited, false);
        record->m_changed = 0;
    }
}

bool NSManagedObjectContext::validateEditedObjects()
{
    m_isValidating = true;
    const auto done = qScopeGuard([this] { m_isValidating = false; });
    bool areValid = true;
    // A correction may change further records: those are asked too, each record once.
    std::vector<NSManagedObject*> asked;
    const auto isToBeAsked = [&asked](const NSManagedObject* record) {
        return record->isUpdated() && record->hasState(NSManagedObject::Edited) &&
               std::ranges::count(asked, record) == 0;
    };
    for (auto edited = touchedWhere(isToBeAsked); !edited.empty();
         edited = touchedWhere(isToBeAsked)) {
        for (auto* const record : edited) {
            areValid = record->validateForUpdate() && areValid;
            asked.push_back(record);
        }
    }
    processPendingChanges();
    return areValid;
}

void NSManagedObjectContext::objectDidBeginEditing(NSEditor& editor)
{
    objectDidEndEditing(editor);
    m_editors.push_back(&editor);
}

void NSManagedObjectContext::objectDidEndEditing(NSEditor& editor)
{
    std::erase(m_editors, &editor);
}

bool NSManagedObjectContext::commitEditing()
{
    const auto editors = m_editors;
    return std::ranges::all_of(editors, [](NSEditor* editor) { return editor->commitEditing(); });
}

std::vector<NSManagedObject*>
NSManagedObjectContext::executeFetchRequest(const NSFetchRequest& request)
{
    const auto& entity = m_coordinator.managedObjectModel().entityNamed(request.entityName);
    auto& records = table(entity);
    std::vector<NSManagedObject*> result;
    store().fetchRows(entity, [&](const StoreRow& row) {
        auto& record = records.recordForRow(row);
        if (!record.isDeleted()) {
            result.push_back(&record);
        }
    });
    std::ranges::copy_if(m_touched, std::back_inserter(result), [&](const NSManagedObject* record) {
        return record->isInserted() && &record->entity() == &entity;
    });
    return result;
}

std::size_t NSManagedObjectContext::countForFetchRequest(const NSFetchRequest& request)
{
    const auto& entity = m_coordinator.managedObjectModel().entityNamed(request.entityName);
    const auto [inserted, deleted] = countUnsaved(entity);
    return store().countRows(entity) + inserted - deleted;
}

bool NSManagedObjectContext::hasObjectsForFetchRequest(const NSFetchRequest& request)
{
    const auto& entity = m_coordinator.managedObjectModel().entityNamed(request.entityName);
    const auto [inserted, deleted] = countUnsaved(entity);
    return inserted > 0 || store().hasMoreRowsThan(deleted, entity);
}

NSManagedObjectContext::UnsavedCount
NSManagedObjectContext::countUnsaved(const NSEntityDescription& entity) const
{
    UnsavedCount count;
    for (const auto* const record : m_touched) {
        if (&record->entity() != &entity) {
            continue;
        }
        if (record->isInserted()) {
            ++count.inserted;
        } else if (record->isDeleted() && record->hasState(NSManagedObject::Persisted)) {
            ++count.deleted;
        }
    }
    return count;
}

std::map<std::string, PropertyValue> NSManagedObjectContext::executeDictionaryFetchRequest(
    const NSFetchRequest& request, const std::vector<NSExpressionDescription>& propertiesToFetch)
{
    const auto& entity = m_coordinator.managedObjectModel().entityNamed(request.entityName);
    std::map<std::string, PropertyValue> row;
    for (const auto& expression : propertiesToFetch) {
        row[expression.name] = store().evaluate(entity, expression);
    }
    return row;
}

NSManagedObject* NSManagedObjectContext::relatedObjectWithMaximum(const NSManagedObject& owner,
                                                                  std::string_view toManyKey,
                                                                  std::string_view attributeKey)
{
    const auto& toMany = owner.relationship(toManyKey, true);
    const auto& destination = *toMany.destinationEntity;
    const auto attribute = destination.attributeIndex(attributeKey);
    if (!attribute) {
        throw std::invalid_argument("no attribute " + std::string(attributeKey));
    }
    if (owner.isDeleted()) {
        return nullptr;
    }
    auto& owners = table(owner.entity());
    if (!owners.areMembersKnown(owner, toMany) && owner.hasState(NSManagedObject::Persisted)) {
        NSManagedObject* found = nullptr;
        store().fetchReferringRowWithMaximum(
            destination, *toMany.inverseRelationship, owner.m_id, *attribute,
            [&](const StoreRow& row) { found = &table(destination).recordForRow(row); });
        if (found) {
            return found;
        }
    }
    const auto& members = owners.members(owner, toMany);
    NSManagedObject* largest = nullptr;
    for (auto* const member : members) {
        // Of equals the last, as in the file's own order.
        if (!largest || !(member->attribute(*attribute) < largest->attribute(*attribute))) {
            largest = member;
        }
    }
    return largest;
}

NSManagedObject* NSManagedObjectContext::objectWithID(std::string_view entityName, std::int64_t id)
{
    return table(m_coordinator.managedObjectModel().entityNamed(entityName)).recordWithID(id);
}

ReadTransaction NSManagedObjectContext::readTransaction()
{
    return ReadTransaction(store());
}

void NSManagedObjectContext::checkInvariants() const
{
    const auto require = [](bool holds, const char* what) {
        if (!holds) {
            throw std::logic_error(what);
        }
    };
    for (const auto& records : m_tables) {
        for (const auto& record : records->records()) {
            if (record->isFault()) {
                continue;
            }
            for (const auto& relationship : records->entity().relationships()) {
                if (relationship.isToMany) {
                    if (!records->areMembersKnown(*record, relationship)) {
                        continue;
                    }
                    const auto& members = records->members(*record, relationship);
                    require(!record->isDeleted() || members.empty(),
                            "a deleted record has members");
                    for (const auto* const member : members) {
                        require(!member->isDeleted(), "a deleted record is a member");
                        require(member->storedTarget(*relationship.inverseRelationship) ==
                                    record.get(),
                                "a member refers to another owner");
                        require(std::ranges::count(members, member) == 1, "a member stands twice");
                    }
                } else if (const auto* const target = record->storedTarget(relationship)) {
                    require(!record->isDeleted(), "a deleted record refers to another");
                    require(!target->isDeleted(), "a record refers to a deleted one");
                    const auto* const inverse = relationship.inverseRelationship;
                    auto& targets = table(target->entity());
                    require(!inverse || !targets.areMembersKnown(*target, *inverse) ||
                                std::ranges::count(targets.members(*target, *inverse),
                                                   record.get()) == 1,
                            "an owner does not have its member");
                }
            }
            const bool isChanged = record->isInserted() || record->isUpdated();
            require(!isChanged || std::ranges::count(m_touched, record.get()) == 1,
                    "a changed record would not be saved");
        }
    }
}

SQLiteStore& NSManagedObjectContext::store() const
{
    return m_coordinator.store();
}

RecordTable& NSManagedObjectContext::table(const NSEntityDescription& entity) const
{
    const auto found = std::ranges::find(m_tables, &entity,
                                         [](const auto& records) { return &records->entity(); });
    if (found == m_tables.end()) {
        throw std::invalid_argument("no entity of this context: " + entity.name());
    }
    return **found;
}

std::vector<NSManagedObject*>&
NSManagedObjectContext::members(NSManagedObject& owner,
                                const NSRelationshipDescription& toMany) const
{
    return table(owner.entity()).members(owner, toMany);
}

void NSManagedObjectContext::willChangeAttribute(NSManagedObject& record, std::size_t attribute,
                                                 PropertyValue oldValue)
{
    // The sets that the record is in can no longer be answered by the file.
    for (const auto& relationship : record.entity().relationships()) {
        if (!relationship.isToMany && relationship.inverseRelationship) {
            if (auto* const owner = record.storedTarget(relationship)) {
                members(*owner, *relationship.inverseRelationship);
            }
        }
    }
    const bool wasEdited = record.hasState(NSManagedObject::Edited);
    markChanged(record, attribute);
    logStep(ChangeStep::AttributeSet{&record, attribute, std::move(oldValue), wasEdited});
}

void NSManagedObjectContext::changeTarget(NSManagedObject& record,
                                          const NSRelationshipDescription& toOne,
                                          NSManagedObject* target)
{
    const KeyValueChange change(record, toOne.name);
    auto* const oldTarget = record.storedTarget(toOne);
    if (oldTarget == target) {
        return;
    }
    std::optional<KeyValueChange> leaving;
    std::optional<KeyValueChange> joining;
    const auto* const inverse = toOne.inverseRelationship;
    if (inverse) {
        // Both sets are read before either changes, so that a failed read changes nothing.
        auto* const left = oldTarget ? &members(*oldTarget, *inverse) : nullptr;
        auto* const joined = target ? &members(*target, *inverse) : nullptr;
        if (left) {
            leaving.emplace(*oldTarget, inverse->name);
            std::erase(*left, &record);
        }
        if (joined) {
            joining.emplace(*target, inverse->name);
            joined->push_back(&record);
        }
    }
    const bool wasEdited = record.hasState(NSManagedObject::Edited);
    markChanged(record, record.propertyNumber(toOne));
    logStep(ChangeStep::TargetSet{&record, &toOne, oldTarget, target, wasEdited});
    record.storeTarget(toOne, target);
}

void NSManagedObjectContext::markChanged(NSManagedObject& record, std::size_t property)
{
    const bool isTransient = property < record.entity().attributes().size() &&
                             record.entity().attributes()[property].isTransient;
    if (!isTransient) {
        record.m_changed |= std::uint32_t(1) << property;
        touch(record);
        if (!m_isTakingBack) {
            record.setState(NSManagedObject::Edited, true);
        }
    }
}

void NSManagedObjectContext::touch(NSManagedObject& record)
{
    if (!record.hasState(NSManagedObject::Touched)) {
        record.setState(NSManagedObject::Touched, true);
        m_touched.push_back(&record);
    }
}

void NSManagedObjectContext::logStep(ChangeLog::value_type step)
{
    m_log.push_back(std::move(step));
    if (!m_isProcessingScheduled) {
        m_isProcessingScheduled = true;
        QMetaObject::invokeMethod(
            this,
            [this] {
                m_isProcessingScheduled = false;
                processPendingChanges();
            },
            Qt::QueuedConnection);
    }
}

void NSManagedObjectContext::setDeleted(NSManagedObject& record, bool isDeleted)
{
    // Every value of the record becomes absent, or comes back.
    std::vector<std::unique_ptr<KeyValueChange>> announced;
    if (record.hasState(NSManagedObject::Observed)) {
        for (const auto& attribute : record.entity().attributes()) {
            announced.push_back(std::make_unique<KeyValueChange>(record, attribute.name));
        }
    }
    touch(record);
    record.setState(NSManagedObject::Deleted, isDeleted);
    if (isDeleted) {
        logStep(ChangeStep::Deleted{&record});
    } else {
        logStep(ChangeStep::Inserted{&record});
    }
}

void NSManagedObjectContext::takeBack(const ChangeLog& log)
{
    struct Inverse
    {
        NSManagedObjectContext& context;

        void operator()(const ChangeStep::Inserted& step) const
        {
            context.deleteObject(*step.record);
        }
        void operator()(const ChangeStep::Deleted& step) const
        {
            context.setDeleted(*step.record, false);
        }
        void operator()(const ChangeStep::AttributeSet& step) const
        {
            step.record->setAttribute(step.attribute, step.oldValue);
            takeMarkBack(*step.record, step.wasEdited);
        }
        void operator()(const ChangeStep::TargetSet& step) const
        {
            context.changeTarget(*step.record, *step.relationship, step.oldTarget);
            takeMarkBack(*step.record, step.wasEdited);
        }
        /// An edit that was never saved leaves no trace; one that was, or was redone, is none.
        static void takeMarkBack(NSManagedObject& record, bool wasEdited)
        {
            if (!wasEdited) {
                record.setState(NSManagedObject::Edited, false);
            }
        }
    };
    m_isTakingBack = true;
    const auto done = qScopeGuard([this] { m_isTakingBack = false; });
    std::for_each(log.rbegin(), log.rend(),
                  [this](const auto& step) { std::visit(Inverse{*this}, step); });
}
