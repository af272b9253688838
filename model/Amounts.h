#pragma once

#include "foundation/NSDecimalNumber.h"

#include <optional>

/// The amount as a double; 0 when it is absent.
inline double doubleValue(const std::optional<NSDecimalNumber>& amount)
{
    return amount ? amount->doubleValue() : 0.0;
}
