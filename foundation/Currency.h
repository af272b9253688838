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

/// What the currency is called where the person is ("British Pound"); the code itself when no name
/// is known for it.
QString name(const QString& code);

/// How many decimals amounts of the currency have; without a code, of the locale's currency. 2 when
/// nothing is known of the currency.
int decimals(const std::optional<QString>& code);

/// Whether a text that was found beside an amount says in which currency it is: an ISO code in
/// either case, a sign that the locale uses for some currency ("kr"), or a currency sign, with up
/// to three letters ("US$", "£").
bool isSignOrCode(const QString& text);

} // namespace Currency
