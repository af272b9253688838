#pragma once

#include "store/NSManagedObjectModel.h"

#include <optional>

namespace CVManagedObjectModel {

/// The model merged from the packaged descriptions, with the program's record classes bound to it.
/// Absent when there is no description; throws NSError when one is broken.
std::optional<NSManagedObjectModel> mergedModel();

} // namespace CVManagedObjectModel
