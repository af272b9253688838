#pragma once

#include "foundation/Instant.h"
#include "foundation/NSDecimalNumber.h"

#include <QString>

#include <optional>
#include <variant>

/// The value of an attribute, whatever its type. `std::monostate` is the absent value.
using PropertyValue = std::variant<std::monostate, QString, Instant, NSDecimalNumber, double>;

/// The value as a `Value`; absent when it is absent or of another type.
template <typename Value>
std::optional<Value> propertyValueAs(const PropertyValue& value)
{
    const auto* const held = std::get_if<Value>(&value);
    return held ? std::optional<Value>(*held) : std::nullopt;
}

/// The property value that holds `value`, or the absent one.
template <typename Value>
PropertyValue propertyValue(const std::optional<Value>& value)
{
    return value ? PropertyValue(*value) : PropertyValue();
}
