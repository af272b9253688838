#pragma once

#include <QString>

#include <optional>
#include <string_view>

/// Amounts and numbers as text, in the locale of money and numbers, and percentages in none.
///
/// Decimals are handed over in plain notation ("-1234.50") and never pass through floating point.
/// A text that is no such decimal is shown as it is.
namespace NumberFormatter {

/// The amount in the currency with this ISO 4217 code, with that currency's number of decimals;
/// without a code, in the currency of the locale. A code that can be none is written behind the
/// number: "1,234.50 GOLD"; an empty one is left out.
QString currencyText(std::string_view decimal, const std::optional<QString>& code);

/// The amount as people type it: without a currency sign, with the number of decimals that this
/// currency has (as in currencyText()), or more if the amount has more.
QString amountText(std::string_view decimal, const std::optional<QString>& code);

/// The percentage as people type it: with all its decimals and the locale's percent sign, without
/// grouping marks. 19.9 is "19.9%".
QString rateText(std::string_view percentage);

/// The number with all its decimals, but for zeros at their end.
QString numberText(std::string_view decimal);

/// The percentage with one decimal behind a point, whatever the locale, without a percent sign:
/// "19.9", "inf", "nan".
QString percentText(double percent);

} // namespace NumberFormatter
