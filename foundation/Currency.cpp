#include "foundation/Currency.h"

#include "foundation/RegionalSettings.h"

#include <unicode/ucurr.h>

#include <algorithm>
#include <array>

std::optional<QString> Currency::localCode()
{
    std::array<char16_t, 4> code{};
    UErrorCode status = U_ZERO_ERROR;
    const int length = ucurr_forLocale(RegionalSettings::current().moneyLocale().c_str(),
                                       code.data(), code.size(), &status);
    if (U_FAILURE(status) || length == 0) {
        return std::nullopt;
    }
    return QStringView(code.data(), length).toString();
}

QStringList Currency::isoCodes()
{
    QStringList codes;
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUEnumerationPointer known(ucurr_openISOCurrencies(UCURR_ALL, &status));
    while (const char* code = uenum_next(known.getAlias(), nullptr, &status)) {
        codes.append(QString::fromLatin1(code));
    }
    // A currency that was introduced twice is listed twice.
    codes.removeDuplicates();
    return codes;
}

bool Currency::isWellFormed(QStringView code)
{
    return code.size() == 3 && std::all_of(code.begin(), code.end(), [](QChar letter) {
               return (letter >= u'A' && letter <= u'Z') || (letter >= u'a' && letter <= u'z');
           });
}
