#include "app/TerminationSignals.h"

#include <QSocketNotifier>

#include <array>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace {

constexpr std::array terminationSignals = {SIGTERM, SIGINT, SIGHUP};

/// The end of the pipe that the handler writes to: about all that a handler may safely do.
volatile std::sig_atomic_t writer = -1;

void handleSignal(int /*number*/)
{
    const char byte = 0;
    static_cast<void>(::write(writer, &byte, 1));
}

void setHandler(void (*handler)(int))
{
    struct sigaction action = {};
    action.sa_handler = handler;
    action.sa_flags = SA_RESTART;
    for (const auto number : terminationSignals) {
        ::sigaction(number, &action, nullptr);
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
    setHandler(handleSignal);
}

TerminationSignals::~TerminationSignals()
{
    if (m_reader >= 0) {
        setHandler(SIG_DFL);
        ::close(writer);
        ::close(m_reader);
    }
}
