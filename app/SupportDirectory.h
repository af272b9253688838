#pragma once

#include <QString>

/// Where the person's data lie.
namespace SupportDirectory {

/// The base directory for the data of the person's programs: `$XDG_DATA_HOME` when that is an
/// absolute path, else ".local/share" in the home directory; empty when there is no home either.
QString dataHome();

/// The program's own directory: "Corvane" in dataHome(), in the temporary directory when there is
/// none.
QString path();

/// Whether path() is in the temporary directory.
bool isTemporary();

/// Makes the base directory and its parents, for the person alone, if they are missing. Whether it
/// is there now.
bool makeDataHome();

} // namespace SupportDirectory
