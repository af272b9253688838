#include "foundation/UserDefaults.h"

#include "foundation/Log.h"

#include <QFile>
#include <QFileInfo>
#include <QTemporaryDir>
#include <QVariant>
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

namespace {

class UserDefaultsTest : public testing::Test
{
protected:
    /// Defaults over a file with these lines.
    UserDefaults defaultsWith(const QByteArray& lines) const
    {
        QFile file(m_directory.filePath(QStringLiteral("written by hand.conf")));
        EXPECT_TRUE(file.open(QFile::WriteOnly));
        file.write("[General]\n" + lines);
        file.close();
        return UserDefaults::inFile(file.fileName());
    }

    const QTemporaryDir m_directory;
};

void write(UserDefaults& defaults)
{
    defaults.setDouble(0.1, u"scale");
    defaults.setDouble(12, u"offset.y");
    defaults.setDouble(std::nan(""), u"offset.y");
    defaults.setInteger(INT64_MAX, u"selectedCardIndex");
    defaults.setBool(true, u"didShowFirstRunPrompt");
    defaults.setByteArray(QByteArray("\0\xff,;\n", 5), u"frame");
    EXPECT_TRUE(defaults.synchronize());
}

void check(const UserDefaults& defaults)
{
    EXPECT_EQ(defaults.doubleForKey(u"scale"), 0.1);
    EXPECT_EQ(defaults.numberForKey(u"offset.y"), std::nullopt);
    EXPECT_EQ(defaults.integerForKey(u"selectedCardIndex"), INT64_MAX);
    EXPECT_TRUE(defaults.boolForKey(u"didShowFirstRunPrompt"));
    EXPECT_EQ(defaults.byteArrayForKey(u"frame"), QByteArray("\0\xff,;\n", 5));
}

} // namespace

TEST_F(UserDefaultsTest, ReadsBackWhatItWrote)
{
    auto volatileDefaults = UserDefaults::volatileDefaults();
    write(volatileDefaults);
    check(volatileDefaults);

    const QByteArray home = qgetenv("XDG_CONFIG_HOME");
    qputenv("XDG_CONFIG_HOME", QFile::encodeName(m_directory.path()));
    auto defaults = UserDefaults::standardUserDefaults();
    qputenv("XDG_CONFIG_HOME", home);
    EXPECT_EQ(defaults.integerForKey(u"selectedCardIndex"), 0);
    write(defaults);
    const QFileInfo file(m_directory.filePath(QStringLiteral("Corvane/Corvane.conf")));
    check(UserDefaults::inFile(file.filePath()));
    constexpr auto others = QFile::ReadGroup | QFile::ExeGroup | QFile::ReadOther | QFile::ExeOther;
    EXPECT_FALSE(QFileInfo(file.path()).permissions() & others);
}

TEST_F(UserDefaultsTest, BelievesNothingThatAFileSays)
{
    struct Row
    {
        QByteArray text;
        std::optional<double> number;
        std::int64_t integer;
        bool boolean;
    };
    std::vector<Row> rows = {{"-2.5", -2.5, -2, true},
                             {"0", 0.0, 0, false},
                             {"1e300", 1e300, INT64_MAX, true},
                             {"-9223372036854775809", -0x1p63, INT64_MIN, true},
                             {"9223372036854775808", 0x1p63, INT64_MAX, true},
                             {"True", std::nullopt, 0, true}};
    for (const char* const rubbish : {"false", "1e999", "inf", "nan", "1,5", "12 apples", "0x10",
                                      "", R"(@Variant(\0\0\0\n\xff\xff\xff\xfe))", "@Invalid()"}) {
        rows.push_back({rubbish, std::nullopt, 0, false});
    }
    for (const auto& row : rows) {
        const auto defaults = defaultsWith("key=" + row.text + "\n");
        EXPECT_EQ(defaults.numberForKey(u"key"), row.number) << row.text.data();
        EXPECT_EQ(defaults.integerForKey(u"key"), row.integer) << row.text.data();
        EXPECT_EQ(defaults.boolForKey(u"key"), row.boolean) << row.text.data();
    }
    EXPECT_EQ(defaultsWith("frame=12\n").byteArrayForKey(u"frame"), QByteArray());
    EXPECT_EQ(defaultsWith("]]garbage[[\n\xff=\xfe").doubleForKey(u"scale"), 0);
}

TEST_F(UserDefaultsTest, SaysThatItCouldNotWrite)
{
    const Log::Collector log;
    auto defaults = UserDefaults::inFile(QStringLiteral("/dev/null/Corvane.conf"));
    defaults.setDouble(1, u"scale");
    EXPECT_FALSE(defaults.synchronize());
    EXPECT_EQ(log.lines().size(), 1);
}
