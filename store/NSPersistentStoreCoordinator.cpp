#include "store/NSPersistentStoreCoordinator.h"

#include "store/NSError.h"
#include "store/SQLiteStore.h"

namespace {

NSPersistentStoreCoordinator*& defaultCoordinator()
{
    static NSPersistentStoreCoordinator* coordinator = nullptr;
    return coordinator;
}

} // namespace

NSPersistentStoreCoordinator::NSPersistentStoreCoordinator(const NSManagedObjectModel& model)
    : m_model(model)
{}

NSPersistentStoreCoordinator::~NSPersistentStoreCoordinator()
{
    if (defaultCoordinator() == this) {
        defaultCoordinator() = nullptr;
    }
}

void NSPersistentStoreCoordinator::addPersistentStore(const QString& path)
{
    m_store = std::make_unique<SQLiteStore>(m_model, path);
}

SQLiteStore& NSPersistentStoreCoordinator::store() const
{
    if (!m_store) {
        throw NSError(QStringLiteral("NSPersistentStoreErrorDomain"), 1,
                      ErrorText(QT_TRANSLATE_NOOP("NSError", "There is no data file.")), {},
                      ErrorText(QT_TRANSLATE_NOOP("NSError", "there is no data file")));
    }
    return *m_store;
}

void NSPersistentStoreCoordinator::MR_setDefaultStoreCoordinator(
    NSPersistentStoreCoordinator* coordinator)
{
    defaultCoordinator() = coordinator;
}

NSPersistentStoreCoordinator* NSPersistentStoreCoordinator::MR_defaultStoreCoordinator()
{
    return defaultCoordinator();
}
