#pragma once

#include "foundation/NSDecimalNumber.h"

#include <optional>

/// Steps of an amount in a field; RelativeDateFormatter has those of a date.
///
/// They are exact: 1 or, for the large ones, 10 more or less. An absent value steps from zero. One
/// so long that the result would need more digits than NSDecimalNumber has stays as it is.
namespace OASteppableTextFieldFormatter {

NSDecimalNumber stepUpValue(const std::optional<NSDecimalNumber>& value);
NSDecimalNumber largeStepUpValue(const std::optional<NSDecimalNumber>& value);
NSDecimalNumber stepDownValue(const std::optional<NSDecimalNumber>& value);
NSDecimalNumber largeStepDownValue(const std::optional<NSDecimalNumber>& value);

} // namespace OASteppableTextFieldFormatter
