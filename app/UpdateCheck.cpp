#include "app/UpdateCheck.h"

#include "app/PackageTransaction.h"

#include <algorithm>
#include <utility>

namespace {

const QString packageName = QStringLiteral("corvane");

// PackageKit's sets of filters.
constexpr quint64 noFilter = 0;
constexpr quint64 installedFilter = 1U << 2U;

} // namespace

UpdateCheck::UpdateCheck(QDBusConnection bus, int patience)
    : m_bus(std::move(bus))
    , m_patience(patience)
{
    connect(&m_patience, &QAbstractAnimation::finished, this,
            [this] { giveUp(tr("PackageKit does not answer.")); });
}

UpdateCheck::~UpdateCheck() = default;

void UpdateCheck::start()
{
    if (isUnderWay()) {
        return;
    }
    if (!m_bus.isConnected()) {
        giveUp(tr("The system’s message bus cannot be reached."));
        return;
    }
    m_patience.start();
    ask(QStringLiteral("Resolve"), {QVariant::fromValue(installedFilter), QStringList(packageName)},
        &UpdateCheck::readInstalledVersion);
}

void UpdateCheck::cancel()
{
    m_patience.stop();
    if (m_transaction) {
        m_transaction->disconnect(this);
        m_transaction.reset();
    }
}

void UpdateCheck::ask(const QString& method, const QVariantList& arguments, Handler handler)
{
    m_transaction.reset(new PackageTransaction(m_bus, method, arguments));
    connect(m_transaction.get(), &PackageTransaction::succeeded, this, handler);
    connect(m_transaction.get(), &PackageTransaction::failed, this, &UpdateCheck::giveUp);
}

void UpdateCheck::readInstalledVersion()
{
    m_installedVersion = foundVersion();
    if (m_installedVersion.isEmpty()) {
        giveUp(tr("Corvane was not installed as a package, so this system knows of no newer one."));
        return;
    }
    ask(QStringLiteral("GetUpdates"), {QVariant::fromValue(noFilter)},
        &UpdateCheck::readNewerVersion);
}

void UpdateCheck::readNewerVersion()
{
    const auto newerVersion = foundVersion();
    answer({newerVersion.isEmpty() ? Result::UpToDate : Result::NewerVersion,
            m_installedVersion,
            newerVersion,
            {}});
}

void UpdateCheck::giveUp(const QString& reason)
{
    answer({Result::Unknown, {}, {}, reason});
}

void UpdateCheck::answer(const Answer& answer)
{
    cancel();
    Q_EMIT answered(answer);
}

QString UpdateCheck::foundVersion() const
{
    const auto& packages = m_transaction->packages();
    const auto own = std::find_if(packages.begin(), packages.end(), [](const PackageName& package) {
        return package.name == packageName;
    });
    return own == packages.end() ? QString() : own->version;
}
