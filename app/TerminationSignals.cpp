#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array terminationSignals = {SIGTERM, SIGINT, SIGHUP};

/// The end of the pipe that the handler writes to: about all that a handler may safely do.
volatile std::sig_atomic_t writer = -1;

void handleSignal(int /*number*/)
{
    const int interruptedError = errno;
    const char byte = 0;
    // A pipe that is full holds a signal already.
    [[maybe_unused]] const auto written = ::write(writer, &byte, 1);
    errno = interruptedError;
}

/// What the signals did before.
std::array<struct sigaction, terminationSignals.size()> oldActions;

void takeSignals()
{
    struct sigaction action = {};
    action.sa_handler = handleSignal;
    action.sa_flags = SA_RESTART;
    for (std::size_t i = 0; i < terminationSignals.size(); ++i) {
        ::sigaction(terminationSignals[i], nullptr, &oldActions[i]);
        // Whoever started the program may have it ignore one, as nohup does.
        if (oldActions[i].sa_handler != SIG_IGN) {
            ::sigaction(terminationSignals[i], &action, nullptr);
        }
    }
}

void giveSignalsBack()
{
    for (std::size_t i = 0; i < terminationSignals.size(); ++i) {
        ::sigaction(terminationSignals[i], &oldActions[i], nullptr);
    }
}

} // namespace

TerminationSignals::TerminationSignals()
{
    std::array<int, 2> pipe = {-1, -1};
    if (::pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) {
        return;
    }
    m_reader = pipe[0];
    writer = pipe[1];
    auto* const notifier = new QSocketNotifier(m_reader, QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, [this] {
        char byte = 0;
        while (::read(m_reader, &byte, 1) > 0) {
        }
        Q_EMIT received();
    });
    takeSignals();
}

TerminationSignals::~TerminationSignals()
{
    if (m_reader >= 0) {
        giveSignalsBack();
        ::close(writer);
        ::close(m_reader);
    }
}
