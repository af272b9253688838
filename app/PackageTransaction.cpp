#include "app/PackageTransaction.h"

#include <QDBusMessage>
#include <QDBusObjectPath>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QDBusServiceWatcher>

#include <utility>

namespace {

const QString serviceName = QStringLiteral("org.freedesktop.PackageKit");
const QString transactionInterface = QStringLiteral("org.freedesktop.PackageKit.Transaction");

/// How long a call may take; the service may have to be started for it.
constexpr int callTimeoutMilliseconds = 30000;

// Of PackageKit's enumerations.
constexpr uint exitSuccess = 1;
constexpr uint errorPackageNotInstalled = 7;
constexpr uint errorPackageNotFound = 8;

/// Foreign words, fit for one sentence in a small window.
QString inBrief(const QString& text)
{
    constexpr qsizetype mostCharacters = 200;
    const auto line = text.simplified();
    return line.size() <= mostCharacters ? line : QString(line.left(mostCharacters - 1) + u'…');
}

QString reasonFor(const QDBusError& error)
{
    switch (error.type()) {
    case QDBusError::ServiceUnknown:
        return PackageTransaction::tr(
            "PackageKit, which knows the packages of this system, is not installed.");
    case QDBusError::NoReply:
    case QDBusError::Timeout:
    case QDBusError::TimedOut:
        return PackageTransaction::tr("PackageKit does not answer.");
    case QDBusError::Disconnected:
        return PackageTransaction::tr("The system’s message bus cannot be reached.");
    default:
        return PackageTransaction::tr("PackageKit cannot be asked: %1")
            .arg(inBrief(error.message()));
    }
}

} // namespace

PackageTransaction::PackageTransaction(QDBusConnection bus, QString method, QVariantList arguments)
    : m_bus(std::move(bus))
    , m_method(std::move(method))
    , m_arguments(std::move(arguments))
{
    call(QDBusMessage::createMethodCall(serviceName, QStringLiteral("/org/freedesktop/PackageKit"),
                                        serviceName, QStringLiteral("CreateTransaction")),
         &PackageTransaction::runTransaction);
}

PackageTransaction::~PackageTransaction()
{
    if (!m_isOver && !m_path.isEmpty()) {
        m_bus.send(transactionCall(QStringLiteral("Cancel")));
    }
}

void PackageTransaction::call(const QDBusMessage& message, Handler handler)
{
    auto* const watcher =
        new QDBusPendingCallWatcher(m_bus.asyncCall(message, callTimeoutMilliseconds), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher, handler] {
        watcher->deleteLater();
        (this->*handler)(*watcher);
    });
}

void PackageTransaction::runTransaction(const QDBusPendingCallWatcher& watcher)
{
    const QDBusPendingReply<QDBusObjectPath> reply = watcher;
    if (reply.isError()) {
        fail(reasonFor(reply.error()));
        return;
    }
    m_service = reply.reply().service();
    m_path = reply.value().path();
    const auto listen = [this](const char* signal, const char* slot) {
        m_bus.connect(m_service, m_path, transactionInterface, QString::fromLatin1(signal), this,
                      slot);
    };
    listen("Package", SLOT(addPackage(uint, QString, QString)));
    listen("ErrorCode", SLOT(noteError(uint, QString)));
    listen("Finished", SLOT(finish(uint, uint)));
    auto* const presence = new QDBusServiceWatcher(
        m_service, m_bus, QDBusServiceWatcher::WatchForUnregistration, this);
    connect(presence, &QDBusServiceWatcher::serviceUnregistered, this,
            [this] { fail(tr("PackageKit ended before it had an answer.")); });
    auto question = transactionCall(m_method);
    question.setArguments(m_arguments);
    call(question, &PackageTransaction::checkStart);
}

void PackageTransaction::checkStart(const QDBusPendingCallWatcher& watcher)
{
    if (watcher.isError()) {
        fail(reasonFor(watcher.error()));
    }
}

QDBusMessage PackageTransaction::transactionCall(const QString& method) const
{
    return QDBusMessage::createMethodCall(m_service, m_path, transactionInterface, method);
}

void PackageTransaction::addPackage(uint /*info*/, const QString& packageID,
                                    const QString& /*summary*/)
{
    // "name;version;architecture;origin"
    const auto parts = packageID.split(u';');
    m_packages.append({parts.value(0), parts.value(1)});
}

void PackageTransaction::noteError(uint code, const QString& details)
{
    // To some systems it is an error to know nothing of a package, to others an empty answer.
    if (code != errorPackageNotInstalled && code != errorPackageNotFound) {
        m_error = tr("PackageKit reports: %1").arg(inBrief(details));
        return;
    }
    m_packages.clear();
    m_isOver = true;
    Q_EMIT succeeded();
}

void PackageTransaction::finish(uint exit, uint /*milliseconds*/)
{
    if (exit != exitSuccess) {
        fail(m_error.isEmpty() ? tr("PackageKit gave up.") : m_error);
    } else if (!m_isOver) {
        m_isOver = true;
        Q_EMIT succeeded();
    }
}

void PackageTransaction::fail(const QString& reason)
{
    if (!m_isOver) {
        m_isOver = true;
        Q_EMIT failed(reason);
    }
}
