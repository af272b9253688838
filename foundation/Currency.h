#pragma once

#include <QStringList>

#include <optional>

/// The currencies that there are, by their ISO 4217 codes.
namespace Currency {

/// The code of the currency that is used where the person is; absent when the locale of their money
/// names no country, or one without a currency.
std::optional<QString> localCode();

/// Every code that the system knows, those of former currencies too, in its own order.
QStringList isoCodes();

/// Whether a code has the form of one: three letters A to Z, in either case. There need not be such
/// a currency.
bool isWellFormed(QStringView code);

} // namespace Currency
