#pragma once

#include "store/NSManagedObject.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSManagedObjectModel.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <QTemporaryDir>

#include <memory>

/// A book of the test model. Saving a changed one puts a negative price right.
class Book : public NSManagedObject
{
public:
    using NSManagedObject::NSManagedObject;

    bool validateForUpdate() override;
};

/// A store of libraries and their books in a temporary folder.
class LibraryStore
{
public:
    /// With another `version`, the model of another program version.
    explicit LibraryStore(const char* version = "1");

    QString path() const { return m_folder.filePath(QStringLiteral("storedata.sqlite")); }
    NSManagedObjectModel& model() { return m_model; }
    NSPersistentStoreCoordinator& coordinator() { return *m_coordinator; }
    NSManagedObjectContext& context() { return *m_context; }

    /// Attaches the file. Throws what the coordinator throws.
    void open();
    /// Closes the file and opens it again, in a new context.
    void reopen();

    NSManagedObject& insertLibrary(const QString& name);
    NSManagedObject& insertBook(NSManagedObject* library, const QString& title,
                                const char* price = "0");

private:
    QTemporaryDir m_folder;
    NSManagedObjectModel m_model;
    std::unique_ptr<NSPersistentStoreCoordinator> m_coordinator;
    std::unique_ptr<NSManagedObjectContext> m_context;
};

NSDecimalNumber decimal(const char* text);
QString textOf(const NSManagedObject& record, std::string_view key);
/// The value of a decimal attribute in plain notation, "absent" when there is none.
std::string decimalOf(const NSManagedObject& record, std::string_view key);
