#pragma once

#include "bench/StoreGenerator.h"

#include <QString>

/// The stores that are measured, one of each size. Each is made when it is first asked for, and
/// goes with the process.
namespace GeneratedStore {

/// A directory that holds nothing but the store file, as the program's own does.
QString directory(const StoreGenerator::Size& size);
QString path(const StoreGenerator::Size& size);

} // namespace GeneratedStore
