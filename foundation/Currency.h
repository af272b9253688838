#pragma once

#include <QSet>
#include <QStringList>

#include <optional>

/// The currencies that there are, by their ISO 4217 codes.
namespace Currency {

/// The code of the currency that is used where the person is; absent when the locale of their money
/// names no country, or one without a currency of its own ("XXX").
std::optional<QString> localCode();

/// Every code that the system knows, those of former currencies too, in its own order.
QStringList isoCodes();

/// The codes of the currencies that people pay with today.
const QSet<QString>& codesInUse();

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

/// Whether such a text says that the amount is in the currency with this code: the code itself, or
/// a sign that people write for it here or elsewhere, though it may be that of others too ("$").
bool isSignOrCodeOf(const QString& text, const QString& code);

/// The currency that people here mean by a sign: the local one if it has that sign, else the one
/// that has it to itself in the locale, else the one that it commonly stands for ("$" is the
/// dollar of the United States). Absent when that cannot be told.
std::optional<QString> codeForSign(const QString& sign);

} // namespace Currency
