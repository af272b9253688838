#include "foundation/RegionalSettings.h"

#include <QByteArray>
#include <unicode/locid.h>
#include <unicode/timezone.h>
#include <unicode/ucal.h>
#include <unicode/ures.h>
#include <unicode/uversion.h>

#include <algorithm>
#include <array>
#include <initializer_list>
#include <memory>
#include <utility>

namespace {

constexpr std::string_view fallbackLocale = "en_US";
constexpr std::string_view fallbackTimeZone = "Etc/UTC";

/// Where a POSIX modifier says which script the language is written in, and the ICU name of it.
/// Other modifiers ("@euro") change nothing that is shown today.
constexpr std::array scripts{
    std::pair<std::string_view, std::string_view>("cyrillic", "Cyrl"),
    std::pair<std::string_view, std::string_view>("devanagari", "Deva"),
    std::pair<std::string_view, std::string_view>("latin", "Latn"),
};

bool isLocaleCharacter(char character)
{
    return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z') ||
           (character >= '0' && character <= '9') || character == '_';
}

/// ICU answers for an unknown language in its own default locale, which nobody here asked for.
bool hasData(const std::string& locale)
{
    UErrorCode status = U_ZERO_ERROR;
    const icu::LocalUResourceBundlePointer bundle(ures_open(nullptr, locale.c_str(), &status));
    return U_SUCCESS(status) && status != U_USING_DEFAULT_WARNING;
}

/// The ICU name of a POSIX locale: language[_COUNTRY][.codeset][@modifier].
std::string usableLocale(std::string_view posixName)
{
    constexpr std::size_t longestName = 32;
    const auto name = posixName.substr(0, posixName.find_first_of(".@"));
    if (name.empty() || name.size() > longestName ||
        !std::all_of(name.begin(), name.end(), isLocaleCharacter)) {
        return std::string(fallbackLocale);
    }

    const icu::Locale locale(std::string(name).c_str());
    std::string result = locale.getLanguage();
    if (result.empty()) {
        return std::string(fallbackLocale);
    }
    std::string script = locale.getScript();
    const auto modifier = posixName.substr(std::min(posixName.find('@'), posixName.size()));
    for (const auto& [posixScript, icuScript] : scripts) {
        if (modifier.substr(std::min<std::size_t>(1, modifier.size())) == posixScript) {
            script = icuScript;
        }
    }
    for (const std::string& part : {script, std::string(locale.getCountry())}) {
        if (!part.empty()) {
            result += '_' + part;
        }
    }
    return hasData(result) ? result : std::string(fallbackLocale);
}

std::string usableTimeZone(std::string_view name)
{
    // TZ may also name the file that describes the zone.
    constexpr std::string_view directory = "/zoneinfo/";
    if (const auto position = name.rfind(directory); position != std::string_view::npos) {
        name.remove_prefix(position + directory.size());
    }
    const auto id = icu::UnicodeString::fromUTF8(
        icu::StringPiece(name.data(), static_cast<int32_t>(name.size())));
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::createTimeZone(id));
    icu::UnicodeString found;
    if (!zone || zone->getID(found) == UCAL_UNKNOWN_ZONE_ID) {
        return std::string(fallbackTimeZone);
    }
    return std::string(name);
}

std::string hostTimeZone()
{
    const std::unique_ptr<icu::TimeZone> zone(icu::TimeZone::detectHostTimeZone());
    std::string name;
    if (zone) {
        icu::UnicodeString id;
        zone->getID(id).toUTF8String(name);
    }
    return usableTimeZone(name);
}

std::string firstSet(std::initializer_list<const char*> variables)
{
    for (const char* variable : variables) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty()) {
            return value.toStdString();
        }
    }
    return {};
}

} // namespace

RegionalSettings::RegionalSettings(std::string_view datesLocale, std::string_view moneyLocale,
                                   std::string_view timeZone)
    : m_datesLocale(usableLocale(datesLocale))
    , m_moneyLocale(usableLocale(moneyLocale))
    , m_timeZone(usableTimeZone(timeZone))
{}

RegionalSettings RegionalSettings::fromEnvironment()
{
    return {firstSet({"LC_ALL", "LC_TIME", "LANG"}), firstSet({"LC_ALL", "LC_MONETARY", "LANG"}),
            hostTimeZone()};
}

const RegionalSettings& RegionalSettings::current()
{
    return inForce();
}

QString RegionalSettings::libraryVersion()
{
    UVersionInfo version = {};
    u_getVersion(version);
    std::array<char, U_MAX_VERSION_STRING_LENGTH> text = {};
    u_versionToString(version, text.data());
    return QString::fromLatin1(text.data());
}

bool RegionalSettings::rereadTimeZone()
{
    auto& settings = inForce();
    return std::exchange(settings.m_timeZone, hostTimeZone()) != settings.m_timeZone;
}

RegionalSettings& RegionalSettings::inForce()
{
    static RegionalSettings settings = fromEnvironment();
    return settings;
}

ScopedRegionalSettings::ScopedRegionalSettings(RegionalSettings settings)
    : m_replaced(std::exchange(RegionalSettings::inForce(), std::move(settings)))
{}

ScopedRegionalSettings::~ScopedRegionalSettings()
{
    RegionalSettings::inForce() = std::move(m_replaced);
}
