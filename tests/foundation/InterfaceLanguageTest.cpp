#include "foundation/InterfaceLanguage.h"

#include "tests/support/ScopedVariable.h"

#include <gtest/gtest.h>

namespace {

QString joined(const QStringList& list)
{
    return list.join(u' ');
}

} // namespace

TEST(InterfaceLanguageTest, ReadsWhatTheEnvironmentPrefers)
{
    struct Row
    {
        const char* language;
        const char* all;
        const char* messages;
        const char* lang;
        const char* expected;
    };
    for (const auto& row : {Row{"", "", "", "", ""},
                            {"", "", "", "de_AT.UTF-8@euro", "de_AT"},
                            {"", "", "fr_CA", "de_DE", "fr_CA"},
                            {"", "es_ES", "fr_FR", "de_DE", "es_ES"},
                            {":pt_BR:de.utf8::", "", "fr_FR", "", "pt_BR de fr_FR"},
                            {"de", "", "", "", "de"},
                            {"de", "C.UTF-8", "", "", "de C"},
                            {"de", "C", "", "fr_FR", ""},
                            {"de", "", "POSIX", "", ""}}) {
        const ScopedVariable language("LANGUAGE", row.language);
        const ScopedVariable all("LC_ALL", row.all);
        const ScopedVariable messages("LC_MESSAGES", row.messages);
        const ScopedVariable lang("LANG", row.lang);
        EXPECT_EQ(joined(InterfaceLanguage::preferred()), QString::fromLatin1(row.expected));
    }
}

TEST(InterfaceLanguageTest, ChoosesTheFirstThatThereIs)
{
    const QStringList available{u"de"_qs, u"fr"_qs, u"pt_BR"_qs, u"zh_CN"_qs};
    for (const auto& [preferred, expected] : {std::pair("", ""),
                                              {"de_AT fr", "de"},
                                              {"xx ../de fr_CH", "fr"},
                                              {"en_GB de", ""},
                                              {"C de", ""},
                                              {"pt_BR de", "pt_BR"},
                                              {"pt_PT de", "de"},
                                              {"zh", "zh_CN"},
                                              {"zh_SG", "zh_CN"},
                                              {"zh_TW", ""}}) {
        EXPECT_EQ(InterfaceLanguage::best(QString::fromLatin1(preferred).split(u' '), available),
                  QString::fromLatin1(expected))
            << preferred;
    }
}
