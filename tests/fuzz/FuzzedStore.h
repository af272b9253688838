#pragma once

#include "model/CVManagedObjectModel.h"
#include "store/NSManagedObjectContext.h"
#include "store/NSPersistentStoreCoordinator.h"

#include <QByteArray>
#include <QString>
#include <QTemporaryDir>

#include <memory>

/// A store file that is written anew for each input, and opened.
class FuzzedStore
{
public:
    FuzzedStore();

    const QString& path() const { return m_path; }
    /// A store with two cards and their statements, as the program makes it.
    const QByteArray& original() const { return m_original; }

    /// Puts the content in the file, which is then `size` bytes long.
    void write(const QByteArray& content, qint64 size) const;
    /// The file's first bytes.
    QByteArray read(qint64 size) const;
    bool hasJournal() const;

    /// Opens the file. Throws what the coordinator throws.
    NSManagedObjectContext& open();
    void close();

    /// Asks everything of the open store that the program asks.
    void readEverything() const;

private:
    NSManagedObjectModel m_model;
    QTemporaryDir m_folder;
    QString m_path;
    QByteArray m_original;
    std::unique_ptr<NSPersistentStoreCoordinator> m_coordinator;
    std::unique_ptr<NSManagedObjectContext> m_context;
};
