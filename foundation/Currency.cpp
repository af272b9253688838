#include "foundation/Currency.h"

#include "foundation/KeptForSettings.h"
#include "foundation/RegionalSettings.h"

#include <QHash>
#include <unicode/ucurr.h>
#include <unicode/uloc.h>

#include <algorithm>
#include <array>
#include <string>
#include <string_view>
#include <utility>

namespace {

constexpr int usualDecimals = 2;

/// Of signs that are understood in many countries: first what is the shortest for one currency
/// alone ("$"), then what is clear in any country ("US$").
const std::string shortSignsLocale = "en";
const std::string clearSignsLocale = "en_001";

/// Absent when ICU knows no name or sign of this style and would answer the code itself.
std::optional<QString> nameInStyle(const QString& code, UCurrNameStyle style,
                                   const std::string& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    int length = 0;
    const auto capitals = code.toUpper().toStdU16String();
    const auto* const name =
        ucurr_getName(capitals.c_str(), locale.c_str(), style, nullptr, &length, &status);
    const QStringView found(name, length);
    if (U_FAILURE(status) || found == capitals) {
        return std::nullopt;
    }
    return found.toString();
}

/// In capitals, without blanks and marks of the writing direction.
QString comparable(const QString& text)
{
    QString kept = text.toUpper();
    kept.removeIf([](QChar character) {
        return character.isSpace() || character.category() == QChar::Other_Format;
    });
    return kept;
}

/// The codes and signs of all currencies, in comparable form.
const QSet<QString>& signsAndCodes()
{
    static KeptForSettings<int, QSet<QString>> kept;
    return kept.get(0, [](const RegionalSettings& settings) {
        QSet<QString> texts;
        for (const auto& code : Currency::isoCodes()) {
            texts.insert(code);
            for (const auto style : {UCURR_SYMBOL_NAME, UCURR_NARROW_SYMBOL_NAME}) {
                if (const auto sign = nameInStyle(code, style, settings.moneyLocale())) {
                    texts.insert(comparable(*sign));
                }
            }
        }
        return texts;
    });
}

/// The codes of a kind (a union of UCurrCurrencyType), in the system's order.
QStringList codesOfKind(std::uint32_t kind)
{
    QStringList codes;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer known(ucurr_openISOCurrencies(kind, &status));
    while (const char* code = uenum_next(known.getAlias(), nullptr, &status)) {
        codes.append(QString::fromLatin1(code));
    }
    // A currency that was introduced twice is listed twice.
    codes.removeDuplicates();
    return codes;
}

/// The sign that this style has for the currency, in comparable form; empty for none.
QString comparableSign(const QString& code, UCurrNameStyle style, const std::string& locale)
{
    return comparable(nameInStyle(code, style, locale).value_or(QString()));
}

/// The currency that each sign stands for; an empty code when there are several.
QHash<QString, QString> meaningsOfSigns(const std::string& locale)
{
    QHash<QString, QString> meanings;
    if (const auto local = Currency::localCode()) {
        meanings.insert(comparableSign(*local, UCURR_SYMBOL_NAME, locale), *local);
        meanings.insert(comparableSign(*local, UCURR_NARROW_SYMBOL_NAME, locale), *local);
    }
    // What an earlier one of them decides, the later ones leave alone.
    for (const auto& [style, place] :
         {std::pair(UCURR_SYMBOL_NAME, locale), std::pair(UCURR_SYMBOL_NAME, shortSignsLocale),
          std::pair(UCURR_SYMBOL_NAME, clearSignsLocale),
          std::pair(UCURR_NARROW_SYMBOL_NAME, locale)}) {
        QHash<QString, QString> found;
        for (const auto& code : Currency::codesInUse()) {
            const auto sign = comparableSign(code, style, place);
            found.insert(sign, found.contains(sign) ? QString() : code);
        }
        found.insert(meanings);
        meanings.swap(found);
    }
    meanings.remove(QString());
    return meanings;
}

} // namespace

std::optional<QString> Currency::localCode()
{
    static KeptForSettings<int, std::optional<QString>> kept;
    return kept.get(0, [](const RegionalSettings& settings) -> std::optional<QString> {
        std::array<char16_t, 4> code{};
        UErrorCode status = U_ZERO_ERROR;
        const int length =
            ucurr_forLocale(settings.moneyLocale().c_str(), code.data(), code.size(), &status);
        if (U_FAILURE(status) || length == 0) {
            return std::nullopt;
        }
        // Where the country has no currency of its own, ICU answers "no currency", or silver.
        const auto found = QStringView(code.data(), length).toString();
        return codesOfKind(UCURR_COMMON).contains(found) ? std::optional(found) : std::nullopt;
    });
}

QStringList Currency::isoCodes()
{
    return codesOfKind(UCURR_ALL);
}

const QSet<QString>& Currency::codesInUse()
{
    // ICU's own question for this (ucurr_isAvailable) keeps one country of each currency, and so
    // misses the pound.
    static const QSet<QString> inUse = [] {
        QSet<QString> paidWith;
        for (const auto* country = uloc_getISOCountries(); *country; ++country) {
            UErrorCode status = U_ZERO_ERROR;
            const icu::LocalUEnumerationPointer codes(ucurr_getKeywordValuesForLocale(
                "currency", (std::string("und_") + *country).c_str(), true, &status));
            while (const char* code = uenum_next(codes.getAlias(), nullptr, &status)) {
                paidWith.insert(QString::fromLatin1(code));
            }
        }
        const auto common = codesOfKind(UCURR_COMMON | UCURR_NON_DEPRECATED);
        return paidWith.intersect({common.begin(), common.end()});
    }();
    return inUse;
}

bool Currency::isWellFormed(QStringView code)
{
    return code.size() == 3 && std::all_of(code.begin(), code.end(), [](QChar letter) {
               return (letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z');
           });
}

QString Currency::name(const QString& code)
{
    if (!isWellFormed(code)) {
        return code;
    }
    return nameInStyle(code, UCURR_LONG_NAME, RegionalSettings::current().moneyLocale())
        .value_or(code);
}

int Currency::decimals(const std::optional<QString>& code)
{
    const QString usedCode = code ? *code : localCode().value_or(QString());
    if (!isWellFormed(usedCode)) {
        return usualDecimals;
    }
    UErrorCode status = U_ZERO_ERROR;
    const int decimals =
        ucurr_getDefaultFractionDigits(usedCode.toUpper().toStdU16String().c_str(), &status);
    return U_SUCCESS(status) ? decimals : usualDecimals;
}

bool Currency::isSignOrCode(const QString& text)
{
    constexpr auto mostLetters = 3;
    if (signsAndCodes().contains(comparable(text))) {
        return true;
    }
    const auto signCount = std::ranges::count_if(
        text, [](QChar character) { return character.category() == QChar::Symbol_Currency; });
    const auto letterCount =
        std::ranges::count_if(text, [](QChar character) { return character.isLetter(); });
    return signCount == 1 && signCount + letterCount == text.size() && letterCount <= mostLetters;
}

bool Currency::isSignOrCodeOf(const QString& text, const QString& code)
{
    const auto sign = comparable(text);
    const auto capitals = code.toUpper();
    const auto& locale = RegionalSettings::current().moneyLocale();
    QStringList own{capitals, comparableSign(capitals, UCURR_SYMBOL_NAME, locale),
                    comparableSign(capitals, UCURR_NARROW_SYMBOL_NAME, locale),
                    comparableSign(capitals, UCURR_SYMBOL_NAME, shortSignsLocale)};
    // "US$" and "C$": the sign with the beginning of the code, as where several countries have it.
    const auto narrow = comparableSign(capitals, UCURR_NARROW_SYMBOL_NAME, clearSignsLocale);
    if (!narrow.isEmpty()) {
        own << narrow << capitals.left(1) + narrow << capitals.left(2) + narrow;
    }
    return !sign.isEmpty() && own.contains(sign);
}

std::optional<QString> Currency::codeForSign(const QString& sign)
{
    static KeptForSettings<int, QHash<QString, QString>> kept;
    const auto& codes = kept.get(0, [](const RegionalSettings& settings) {
        return meaningsOfSigns(settings.moneyLocale());
    });
    const auto code = codes.value(comparable(sign));
    return code.isEmpty() ? std::nullopt : std::optional(code);
}
