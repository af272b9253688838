#pragma once

#include "store/NSEntityDescription.h"

#include <QByteArray>
#include <QString>

#include <memory>
#include <optional>
#include <span>
#include <string_view>
#include <vector>

/// The kinds of record that a store holds.
///
/// A model is read from descriptions in JSON; resources/models shows the form. Column, table and
/// index names of the store file follow from it.
class NSManagedObjectModel
{
public:
    /// The one model made of every description (*.json) in a directory, which may be one of the
    /// packaged resources. Absent when the directory holds none. Throws NSError, with all that is
    /// wrong in one text, when a description cannot be read or the descriptions do not fit
    /// together.
    static std::optional<NSManagedObjectModel> mergedModelFromDirectory(const QString& directory);
    /// The same from the descriptions themselves.
    static NSManagedObjectModel mergedModel(const std::vector<QByteArray>& descriptions);

    /// The versions of the merged descriptions: a file is opened only by the version that wrote it.
    const QString& versionIdentifier() const { return m_version; }

    std::span<const std::unique_ptr<NSEntityDescription>> entities() const { return m_entities; }
    /// Throws std::out_of_range when the model has no such entity.
    const NSEntityDescription& entityNamed(std::string_view name) const;

    /// Lets records of the entities that name this class be made as such. Throws
    /// std::invalid_argument when such an entity's attributes are not the class's own.
    void bindClass(const ManagedObjectClass& managedObjectClass);

private:
    NSManagedObjectModel() = default;

    QString m_version;
    // Relationships refer to entities by address.
    std::vector<std::unique_ptr<NSEntityDescription>> m_entities;
};
