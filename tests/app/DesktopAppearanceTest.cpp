#include "app/DesktopAppearance.h"

#include "app/CVApplication.h"
#include "tests/support/PrivateBus.h"
#include "timeline/CVAdditions.h"
#include "timeline/HorizontalScrollAnimation.h"

#include <QDBusMetaType>
#include <QLabel>
#include <QScrollBar>
#include <QStyle>
#include <QTest>
#include <gtest/gtest.h>

using SettingsByGroup = QMap<QString, QVariantMap>;

namespace {

const QString appearance = QStringLiteral("org.freedesktop.appearance");
const QString interface = QStringLiteral("org.gnome.desktop.interface");

/// The desktop's portal, with the settings of one person.
class Portal : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.portal.Settings")

public:
    explicit Portal(const QDBusConnection& connection)
        : m_connection(connection)
    {
        qDBusRegisterMetaType<SettingsByGroup>();
        m_connection.registerObject(QStringLiteral("/org/freedesktop/portal/desktop"), this,
                                    QDBusConnection::ExportScriptableContents);
        m_connection.registerService(QStringLiteral("org.freedesktop.portal.Desktop"));
    }

    void change(const QString& group, const QString& key, const QVariant& value)
    {
        Q_EMIT SettingChanged(group, key, QDBusVariant(value));
    }

    SettingsByGroup settings;

public Q_SLOTS:
    Q_SCRIPTABLE SettingsByGroup ReadAll(const QStringList& groups)
    {
        EXPECT_TRUE(groups.contains(appearance) && groups.contains(interface));
        return settings;
    }

Q_SIGNALS:
    Q_SCRIPTABLE void SettingChanged(const QString& group, const QString& key,
                                     const QDBusVariant& value);

private:
    QDBusConnection m_connection;
};

QColor subtitleColor()
{
    return CVAdditions::cvCardSubtitleColorForHighlightedState(false);
}

} // namespace

TEST(DesktopAppearanceTest, whatTheDesktopSaysNowAndLaterIsFollowed)
{
    PrivateBus bus;
    Portal portal(bus.connect());
    portal.settings = {{appearance, {{QStringLiteral("contrast"), 1U}}},
                       {interface, {{QStringLiteral("enable-animations"), false}}}};
    const DesktopAppearance desktop(bus.connect());
    EXPECT_FALSE(desktop.reducesMotion() || desktop.hasHighContrast()) << "nobody waits";
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.hasHighContrast(); }));
    EXPECT_TRUE(desktop.reducesMotion());

    portal.change(appearance, QStringLiteral("contrast"), 0U);
    portal.change(interface, QStringLiteral("enable-animations"), true);
    EXPECT_TRUE(QTest::qWaitFor([&] { return !desktop.reducesMotion(); }));
    EXPECT_FALSE(desktop.hasHighContrast());
    portal.change(appearance, QStringLiteral("reduced-motion"), 1U);
    EXPECT_TRUE(QTest::qWaitFor([&] { return desktop.reducesMotion(); }));
}

TEST(DesktopAppearanceTest, whatIsOnTheScreenFollows)
{
    auto& application = dynamic_cast<CVApplication&>(*QCoreApplication::instance());
    const auto animationDuration = [] {
        return QApplication::style()->styleHint(QStyle::SH_Widget_Animation_Duration);
    };
    const auto usual = subtitleColor();
    QLabel label;
    CVSyncScrollView leader;
    CVSyncScrollView follower;
    for (auto* const view : {&leader, &follower}) {
        view->horizontalScrollBar()->setRange(0, 100);
    }
    HorizontalScrollAnimation animation(leader, follower);
    animation.scrollTo(50);
    EXPECT_NE(leader.contentOrigin().x(), 50);
    EXPECT_GT(animationDuration(), 0);
    application.setAppearance(true, true);
    EXPECT_EQ(animationDuration(), 0);
    animation.scrollTo(60);
    EXPECT_EQ(leader.contentOrigin().x(), 60);
    EXPECT_EQ(follower.contentOrigin().x(), 60);
    EXPECT_LT(subtitleColor().lightness(), usual.lightness() / 2 + 1);
    EXPECT_LT(label.palette().color(QPalette::PlaceholderText).lightness(), 0x50);
    application.setAppearance(false, false);
    EXPECT_GT(animationDuration(), 0);
    EXPECT_EQ(subtitleColor(), usual);
}

#include "DesktopAppearanceTest.moc"
