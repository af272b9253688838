#include "app/ApplicationService.h"

#include "app/StoreLock.h"
#include "tests/support/PrivateBus.h"

#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDir>
#include <QGuiApplication>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>
#include <gtest/gtest.h>

#include <memory>
#include <optional>
#include <signal.h>

namespace {

const QString applicationName = QStringLiteral("org.corvane.Corvane");

/// Launches the program itself, off screen, in homes and on a bus of the test's.
class ApplicationServiceTest : public testing::Test
{
protected:
    ApplicationServiceTest()
    {
        QGuiApplication::setDesktopFileName(applicationName);
        QDir(home.path()).mkdir(QStringLiteral("Corvane"));
    }

    std::unique_ptr<QProcess> launch(const QString& dataHome,
                                     const QStringList& arguments = {}) const
    {
        auto program = std::make_unique<QProcess>();
        auto environment = QProcessEnvironment::systemEnvironment();
        environment.insert(QStringLiteral("XDG_DATA_HOME"), dataHome);
        environment.insert(QStringLiteral("XDG_CONFIG_HOME"), dataHome);
        // Without a bus in it. One that is not there, Qt would make, or complain.
        environment.insert(QStringLiteral("XDG_RUNTIME_DIR"), home.path());
        environment.insert(QStringLiteral("DBUS_SESSION_BUS_ADDRESS"), busAddress);
        environment.insert(QStringLiteral("XDG_ACTIVATION_TOKEN"), QStringLiteral("a token"));
        program->setProcessEnvironment(environment);
        // It is built beside the tests, wherever those were taken to.
        program->start(QCoreApplication::applicationDirPath() + u"/../app/corvane", arguments);
        return program;
    }
    /// Waits for the end of a launch. Answers what it said on standard error; absent when it was
    /// no success.
    static std::optional<QString> ending(QProcess& program)
    {
        // What it calls here is answered meanwhile.
        const bool ended =
            QTest::qWaitFor([&program] { return program.state() == QProcess::NotRunning; }, 60000);
        const bool succeeded = ended && program.exitStatus() == QProcess::NormalExit &&
                               program.exitCode() == EXIT_SUCCESS;
        const auto text = QString::fromUtf8(program.readAllStandardError());
        return succeeded ? std::optional(text) : std::nullopt;
    }
    bool waitForName(const QString& name)
    {
        return QTest::qWaitFor(
            [&] { return connection.interface()->isServiceRegistered(name).value(); }, 60000);
    }
    static QString storeService(const QString& dataHome)
    {
        return applicationName + u".Store_" + StoreLock(dataHome + u"/Corvane").storeName();
    }

    PrivateBus bus;
    QString busAddress = bus.address();
    QDBusConnection connection = bus.connect();
    QTemporaryDir home;
};

} // namespace

TEST_F(ApplicationServiceTest, aSecondLaunchBringsForwardWhoHoldsItsStore)
{
    StoreLock lock(home.filePath(QStringLiteral("Corvane")));
    ApplicationService service(connection, lock.storeName());
    ASSERT_EQ(lock.acquire(), StoreLock::State::Held);
    service.serveApplication();
    QStringList tokens;
    QObject::connect(
        &service, &ApplicationService::activated, &service,
        [&tokens](const ActivationToken& token) { tokens.append(token.activationToken); });
    // Several at once, which also stand in each other's way.
    const auto launches = {launch(home.path()), launch(home.path()), launch(home.path())};
    for (const auto& program : launches) {
        EXPECT_EQ(ending(*program), QString());
    }
    EXPECT_EQ(tokens, QStringList(3, QStringLiteral("a token")));

    // One for another store is a first launch, and the application's name stays where it is.
    const QTemporaryDir otherHome;
    QDir(otherHome.path()).mkdir(QStringLiteral("Corvane"));
    const auto other = launch(otherHome.path());
    ASSERT_TRUE(waitForName(storeService(otherHome.path())));
    EXPECT_EQ(connection.interface()->serviceOwner(applicationName).value(),
              connection.baseService());
    EXPECT_EQ(tokens.size(), 3);
    // Off the bus there is nothing to be seen of an invented store.
    const auto demo = launch(home.path(), {QStringLiteral("--demo"), QStringLiteral("--snapshot"),
                                           home.filePath(QStringLiteral("a.png"))});
    EXPECT_EQ(ending(*demo), QString());
    other->terminate();
    EXPECT_EQ(ending(*other), QString());
}

TEST_F(ApplicationServiceTest, aCrashLeavesNothingInTheWay)
{
    for (int round = 0; round < 2; ++round) {
        const auto first = launch(home.path());
        ASSERT_TRUE(waitForName(applicationName));
        // The real thing answers, too, however early it is asked.
        auto call = QDBusMessage::createMethodCall(
            applicationName, QStringLiteral("/org/corvane/Corvane"),
            QStringLiteral("org.freedesktop.Application"), QStringLiteral("ActivateAction"));
        call.setArguments({QStringLiteral("terminate"), QVariantList(), QVariantMap()});
        const auto answer = connection.call(call, QDBus::BlockWithGui, 60000);
        EXPECT_EQ(answer.type(), QDBusMessage::ReplyMessage) << answer.errorMessage().toStdString();
        const auto second = launch(home.path());
        EXPECT_EQ(ending(*second), QString());
        EXPECT_EQ(first->state(), QProcess::Running);
        first->kill();
        first->waitForFinished();
    }
}

TEST_F(ApplicationServiceTest, withoutABusASecondLaunchSaysThatTheStoreIsInUse)
{
    StoreLock lock(home.filePath(QStringLiteral("Corvane")));
    ASSERT_EQ(lock.acquire(), StoreLock::State::Held);
    const auto sentence = QStringLiteral("Corvane is running already: its data are in use.\n");
    // No bus at all, one that is not there, and one on which the other is not.
    for (const auto& address : {QString(), QStringLiteral("unix:path=/missing"), busAddress}) {
        busAddress = address;
        const auto second = launch(home.path());
        EXPECT_EQ(ending(*second), sentence);
    }
}

TEST(ApplicationService, understandsItsInterface)
{
    QGuiApplication::setDesktopFileName(applicationName);
    PrivateBus bus;
    ApplicationService service(bus.connect(), QStringLiteral("1_2"));
    service.serveApplication();
    QStringList events;
    QObject::connect(&service, &ApplicationService::activated, &service,
                     [&events](const ActivationToken& token) { events.append(token.startupID); });
    QObject::connect(&service, &ApplicationService::actionActivated, &service,
                     [&events](const QString& action) { events.append(action); });
    const auto peer = bus.connect();
    const QVariantMap data{{QStringLiteral("desktop-startup-id"), QStringLiteral("id_TIME7")}};
    const auto call = [&peer](const char* method, const QVariantList& arguments) {
        auto message = QDBusMessage::createMethodCall(
            applicationName, QStringLiteral("/org/corvane/Corvane"),
            QStringLiteral("org.freedesktop.Application"), QString::fromLatin1(method));
        message.setArguments(arguments);
        return peer.call(message, QDBus::BlockWithGui).type() == QDBusMessage::ReplyMessage;
    };
    EXPECT_TRUE(call("Activate", {data}));
    EXPECT_TRUE(call("Open", {QStringList(QStringLiteral("file:///a")), data}));
    EXPECT_TRUE(call("ActivateAction", {QStringLiteral("addCard"), QVariantList(), data}));
    EXPECT_FALSE(call("deleteLater", {}));
    EXPECT_FALSE(call("activated", {data}));
    const auto id = QStringLiteral("id_TIME7");
    EXPECT_EQ(events, QStringList({id, id, id, QStringLiteral("addCard")}));
}
