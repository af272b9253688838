#include "foundation/InterfaceLanguage.h"

#include <QByteArray>

namespace {

/// The name of a locale without ".UTF-8" and "@euro".
QString languageAndCountry(const QString& locale)
{
    return locale.section(u'.', 0, 0).section(u'@', 0, 0);
}

QString localeOfMessages()
{
    for (const auto* const variable : {"LC_ALL", "LC_MESSAGES", "LANG"}) {
        if (const QByteArray value = qgetenv(variable); !value.isEmpty()) {
            return QString::fromLatin1(value);
        }
    }
    return {};
}

} // namespace

QStringList InterfaceLanguage::preferred()
{
    const auto locale = localeOfMessages();
    if (locale == u"C" || locale == u"POSIX") {
        return {};
    }
    auto languages = QString::fromLatin1(qgetenv("LANGUAGE")).split(u':');
    languages.append(locale);
    for (auto& language : languages) {
        language = languageAndCountry(language);
    }
    languages.removeIf([](const QString& language) { return language.isEmpty(); });
    languages.removeDuplicates();
    return languages;
}

QString InterfaceLanguage::best(const QStringList& preferred, const QStringList& available)
{
    for (const auto& name : preferred) {
        const auto language = name.section(u'_', 0, 0);
        if (language == u"en" || language == u"C" || language == u"POSIX") {
            return {};
        }
        const bool isSimplifiedChinese = name == u"zh" || name == u"zh_SG";
        for (const auto& candidate : {isSimplifiedChinese ? u"zh_CN"_qs : name, language}) {
            if (available.contains(candidate)) {
                return candidate;
            }
        }
    }
    return {};
}
