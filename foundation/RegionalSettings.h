#pragma once

#include <QString>

#include <string>
#include <string_view>

/// Where the person is: the locale of their dates, the locale of their money and numbers, and
/// their time zone. Calendars and formatters take them from here; nothing else asks the system.
class RegionalSettings
{
public:
    /// Locales are named as in the environment ("de_DE.UTF-8@euro"); one that is unset, "C",
    /// "POSIX" or unknown reads as en_US. A zone is named as in the system's zone directory
    /// ("Europe/Berlin"); an unknown one reads as UTC.
    RegionalSettings(std::string_view datesLocale, std::string_view moneyLocale,
                     std::string_view timeZone);

    /// Dates follow LC_ALL, LC_TIME or LANG, money and numbers LC_ALL, LC_MONETARY or LANG,
    /// whichever is set first; an empty variable counts as unset. The zone is TZ or the host's.
    static RegionalSettings fromEnvironment();

    /// The settings in force; those of the environment at first use, unless a
    /// ScopedRegionalSettings says otherwise.
    static const RegionalSettings& current();

    /// The version of ICU, which knows the locales and zones, that is in use.
    static QString libraryVersion();

    /// Takes the zone that the system has now into the settings in force. Answers whether it is
    /// another one than before, so that everything showing a date has to be drawn again.
    static bool rereadTimeZone();

    /// Names of ICU locales ("de_DE") and of an ICU zone.
    const std::string& datesLocale() const { return m_datesLocale; }
    const std::string& moneyLocale() const { return m_moneyLocale; }
    const std::string& timeZone() const { return m_timeZone; }

    friend bool operator==(const RegionalSettings&, const RegionalSettings&) = default;

private:
    friend class ScopedRegionalSettings;

    static RegionalSettings& inForce();

    std::string m_datesLocale;
    std::string m_moneyLocale;
    std::string m_timeZone;
};

/// Puts settings in force for as long as it lives; those before come back when it goes, with the
/// zone that they had.
class ScopedRegionalSettings
{
public:
    explicit ScopedRegionalSettings(RegionalSettings settings);
    ~ScopedRegionalSettings();
    Q_DISABLE_COPY_MOVE(ScopedRegionalSettings)

private:
    RegionalSettings m_replaced;
};
