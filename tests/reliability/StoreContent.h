#pragma once

#include <QString>

#include <string>

class NSManagedObjectContext;

/// What a store says, a sorted line for each record and without the keys, so that file and context
/// can be compared whatever they stand for. Cards are known by their names.
namespace StoreContent {

/// What another program reads in the file. Throws std::runtime_error when it is not whole: when
/// SQLite's check finds damage, or a statement refers to no card.
std::string ofFile(const QString& path);

/// What the context says, unsaved changes included. Throws std::logic_error when its records
/// disagree among themselves.
std::string ofContext(NSManagedObjectContext& context);

} // namespace StoreContent
