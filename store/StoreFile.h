#pragma once

#include <QString>

#include <cstdint>

/// What must be known of a store file before SQLite may open it.
namespace StoreFile {

enum class Content
{
    /// No bytes yet: a store is to be made of it.
    Empty,
    /// By its header, a store of this program.
    Store,
};

/// Makes the file if there is none, for its owner's eyes only, and looks at its header.
///
/// SQLite alone would not do: it makes files that others may read, and on opening a file that has
/// a left-over journal beside it, it changes that file before anyone can ask whose it is. Throws
/// NSError when the file cannot be made, read and written, is not this program's, or says that it
/// is of another version than `formatVersion`.
Content prepare(const QString& path, std::uint32_t formatVersion);

} // namespace StoreFile
