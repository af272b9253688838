#include "app/UpdateCheck.h"

#include "app/UpdateWindow.h"
#include "tests/support/PrivateBus.h"

#include <QCoreApplication>
#include <QDBusContext>
#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QLabel>
#include <QProgressBar>
#include <QPushButton>
#include <QStringList>
#include <QTest>
#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <vector>

namespace {

/// What a transaction says, in order.
using Script = std::vector<std::function<void(class Transaction&)>>;

class Transaction : public QObject
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit.Transaction")

public:
    Script resolve;
    Script getUpdates;
    int asked = 0;
    int cancelled = 0;

public Q_SLOTS:
    Q_SCRIPTABLE void Resolve(qulonglong /*filter*/, const QStringList& packages)
    {
        EXPECT_EQ(packages, QStringList(QStringLiteral("corvane")));
        run(resolve);
    }
    Q_SCRIPTABLE void GetUpdates(qulonglong /*filter*/) { run(getUpdates); }
    Q_SCRIPTABLE void Cancel() { ++cancelled; }

Q_SIGNALS:
    Q_SCRIPTABLE void Package(uint info, const QString& packageID, const QString& summary);
    Q_SCRIPTABLE void ErrorCode(uint code, const QString& details);
    Q_SCRIPTABLE void Finished(uint exit, uint runtime);

private:
    void run(const Script& script)
    {
        ++asked;
        for (const auto& step : script) {
            step(*this);
        }
    }
};

auto package(const char* id)
{
    return [id](Transaction& transaction) {
        Q_EMIT transaction.Package(1, QString::fromLatin1(id), QString());
    };
}

auto error(uint code, const char* details)
{
    return [code, details](Transaction& transaction) {
        Q_EMIT transaction.ErrorCode(code, QString::fromLatin1(details));
    };
}

auto finished(uint exit)
{
    return [exit](Transaction& transaction) {
        Q_EMIT transaction.Finished(exit, 5);
    };
}

/// A PackageKit that says what a test tells it to.
class PackageKit : public QObject, protected QDBusContext
{
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.PackageKit")

public:
    explicit PackageKit(const QDBusConnection& connection)
        : m_connection(connection)
    {
        m_connection.registerObject(QStringLiteral("/org/freedesktop/PackageKit"), this,
                                    QDBusConnection::ExportScriptableSlots);
        m_connection.registerObject(QStringLiteral("/1"), &transaction,
                                    QDBusConnection::ExportScriptableContents);
        m_connection.registerService(QStringLiteral("org.freedesktop.PackageKit"));
    }

    Transaction transaction;
    bool refuses = false;

public Q_SLOTS:
    Q_SCRIPTABLE QDBusObjectPath CreateTransaction()
    {
        if (refuses) {
            sendErrorReply(QDBusError::AccessDenied, QStringLiteral("not\nyou"));
        }
        return QDBusObjectPath(QStringLiteral("/1"));
    }

private:
    QDBusConnection m_connection;
};

constexpr uint success = 1;
constexpr uint failure = 2;
const auto installed = package("corvane;0.1.0-1;amd64;installed:here");
const auto otherUpdate = package("corvane-extra;9;amd64;there");

class UpdateCheckTest : public testing::Test
{
protected:
    /// The answer in one line; empty when none comes.
    QString answerTo(const QDBusConnection& connection, int patience = 60000)
    {
        UpdateCheck check(connection, patience);
        QString line;
        int answers = 0;
        QObject::connect(&check, &UpdateCheck::answered, &check, [&](const auto& answer) {
            ++answers;
            line = QStringList({answer.installedVersion, answer.newerVersion, answer.reason})
                       .join(u'|');
        });
        check.start();
        EXPECT_TRUE(QTest::qWaitFor([&] { return answers > 0; }, 30000));
        EXPECT_FALSE(check.isUnderWay());
        return line;
    }
    QString answer() { return answerTo(bus.connect()); }

    PrivateBus bus;
    QDBusConnection serviceConnection = bus.connect();
    PackageKit packageKit{serviceConnection};
    Transaction& transaction = packageKit.transaction;
};

} // namespace

TEST_F(UpdateCheckTest, tellsWhatPackageKitKnows)
{
    transaction.resolve = {installed, finished(success)};
    transaction.getUpdates = {otherUpdate, finished(success)};
    EXPECT_EQ(answer(), QStringLiteral("0.1.0-1||"));
    transaction.getUpdates = {otherUpdate, package("corvane;0.2.0-1;amd64;there"),
                              finished(success)};
    EXPECT_EQ(answer(), QStringLiteral("0.1.0-1|0.2.0-1|"));

    const auto noPackage = QStringLiteral(
        "||Corvane was not installed as a package, so this system knows of no newer one.");
    transaction.resolve = {finished(success)};
    EXPECT_EQ(answer(), noPackage);
    transaction.resolve = {error(8, "not found"), finished(failure)};
    EXPECT_EQ(answer(), noPackage);
}

TEST_F(UpdateCheckTest, saysWhyItCannotTell)
{
    transaction.resolve = {error(4, "the lists\nare broken"), finished(failure)};
    EXPECT_EQ(answer(), QStringLiteral("||PackageKit reports: the lists are broken"));
    transaction.resolve = {finished(failure)};
    EXPECT_EQ(answer(), QStringLiteral("||PackageKit gave up."));
    transaction.resolve = {};
    EXPECT_EQ(answerTo(bus.connect(), 50), QStringLiteral("||PackageKit does not answer."));
    EXPECT_TRUE(QTest::qWaitFor([this] { return transaction.cancelled == 1; }));
    transaction.resolve = {[this](Transaction&) {
                               serviceConnection.unregisterService(
                                   QStringLiteral("org.freedesktop.PackageKit"));
                               packageKit.refuses = true;
                           },
                           finished(failure)};
    EXPECT_EQ(answer(), QStringLiteral("||PackageKit gave up."));
    EXPECT_EQ(
        answer(),
        QStringLiteral("||PackageKit, which knows the packages of this system, is not installed."));
    serviceConnection.registerService(QStringLiteral("org.freedesktop.PackageKit"));
    EXPECT_EQ(answer(), QStringLiteral("||PackageKit cannot be asked: not you"));
    EXPECT_EQ(answerTo(QDBusConnection(QStringLiteral("nowhere"))),
              QStringLiteral("||The system’s message bus cannot be reached."));
}

TEST_F(UpdateCheckTest, noticesThatPackageKitDies)
{
    const auto doomedName = QStringLiteral("doomed");
    serviceConnection.unregisterService(QStringLiteral("org.freedesktop.PackageKit"));
    auto doomed =
        std::make_unique<PackageKit>(QDBusConnection::connectToBus(bus.address(), doomedName));
    doomed->transaction.resolve = {[&](Transaction&) {
        QMetaObject::invokeMethod(
            qApp,
            [&] {
                doomed.reset();
                QDBusConnection::disconnectFromBus(doomedName);
            },
            Qt::QueuedConnection);
    }};
    EXPECT_EQ(answer(), QStringLiteral("||PackageKit ended before it had an answer."));
}

TEST_F(UpdateCheckTest, theWindowShowsTheAnswerAndClosingItTakesTheQuestionBack)
{
    QWidget main;
    UpdateWindow window(bus.connect(), &main);
    const auto& message = *window.findChild<QLabel*>(QStringLiteral("messageLabel"));
    const auto& button = *window.findChild<QPushButton*>(QStringLiteral("closeButton"));
    const auto& progress = *window.findChild<QProgressBar*>(QStringLiteral("progressBar"));
    window.check();
    EXPECT_FALSE(window.isModal());
    EXPECT_TRUE(progress.isVisible());
    window.check();
    EXPECT_TRUE(QTest::qWaitFor([this] { return transaction.asked == 1; }));
    window.reject();
    EXPECT_TRUE(QTest::qWaitFor([this] { return transaction.cancelled == 1; }));

    transaction.resolve = {installed, finished(success)};
    transaction.getUpdates = {finished(success)};
    window.check();
    EXPECT_TRUE(QTest::qWaitFor([&progress] { return !progress.isVisible(); }));
    EXPECT_EQ(message.text(), QStringLiteral("Corvane is up to date"));
    EXPECT_EQ(button.text(), QStringLiteral("Close"));
    EXPECT_TRUE(window.accessibleDescription().contains(QStringLiteral("0.1.0-1")));
}

#include "UpdateCheckTest.moc"
