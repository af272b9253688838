#include "foundation/Log.h"
#include "foundation/NotificationCenter.h"
#include "foundation/NotificationQueue.h"

#include <QCoreApplication>
#include <gtest/gtest.h>

#include <optional>
#include <stdexcept>

namespace {

constexpr std::string_view opened = "Opened";
constexpr std::string_view closed = "Closed";

using Names = std::vector<std::string>;

class NotificationTest : public testing::Test
{
protected:
    /// A handler that notes that `name` was called.
    NotificationCenter::Handler note(const std::string& name)
    {
        return [this, name](const Notification& /*notification*/) {
            m_calls.push_back(name);
        };
    }
    /// What was called since the last time, once the event loop had its turn.
    Names callsAfterEvent()
    {
        QCoreApplication::processEvents();
        return std::exchange(m_calls, {});
    }

    // Identities of senders.
    const int m_window = 0;
    const int m_other = 0;
    NotificationCenter m_center;
    NotificationQueue m_queue{m_center};
    Names m_calls;
};

} // namespace

TEST_F(NotificationTest, ReachesThoseWhoObserveTheNameAndTheSender)
{
    const auto mine = m_center.addObserver(opened, &m_window, note("mine"));
    const auto any = m_center.addObserver(opened, nullptr, note("any"));
    const auto otherName = m_center.addObserver(closed, &m_window, note("other name"));
    m_center.post(opened, &m_window);
    m_center.post(opened, &m_other);
    m_center.post(opened, nullptr);
    EXPECT_EQ(m_calls, (Names{"mine", "any", "any", "any"}));
}

TEST_F(NotificationTest, EndsAnObservationWithItsToken)
{
    std::optional<NotificationCenter> center(std::in_place);
    auto first = center->addObserver(opened, nullptr, note("first"));
    auto second = center->addObserver(opened, nullptr, note("second"));
    first = std::move(second);
    center->post(opened, nullptr);
    EXPECT_EQ(m_calls, Names{"second"});
    center.reset(); // before the token
}

TEST_F(NotificationTest, LetsHandlersAddAndRemoveObservers)
{
    NotificationCenter::Token added;
    NotificationCenter::Token later;
    NotificationCenter::Token itself;
    const auto handler = [&, captured = std::string("itself")](const Notification& /*unused*/) {
        itself = {};
        later = {};
        added = m_center.addObserver(opened, nullptr, note("added"));
        m_calls.push_back(captured);
    };
    itself = m_center.addObserver(opened, nullptr, handler);
    later = m_center.addObserver(opened, nullptr, note("later"));
    m_center.post(opened, nullptr);
    m_center.post(opened, nullptr);
    EXPECT_EQ(m_calls, (Names{"itself", "added"}));
}

TEST_F(NotificationTest, WaitsForTheEventLoopAndKeepsTheOrder)
{
    const auto open = m_center.addObserver(opened, nullptr, [this](const Notification& posted) {
        m_queue.enqueue(closed, posted.sender);
        m_calls.emplace_back("opened");
    });
    const auto close = m_center.addObserver(closed, &m_window, note("closed"));
    m_queue.enqueue(closed, &m_window);
    m_queue.enqueue(opened, &m_window);
    m_queue.enqueue(closed, &m_window); // waits already
    EXPECT_EQ(m_calls, Names{});
    EXPECT_EQ(callsAfterEvent(), (Names{"closed", "opened"}));
    EXPECT_EQ(callsAfterEvent(), Names{"closed"});
    EXPECT_EQ(callsAfterEvent(), Names{});
}

TEST_F(NotificationTest, CancelsWhatADyingSenderOrQueueHasWaiting)
{
    const auto open = m_center.addObserver(opened, nullptr, note("opened"));
    const auto close = m_center.addObserver(closed, nullptr, note("closed"));
    {
        NotificationQueue::Sender sender(m_queue, &m_window);
        sender.enqueue(opened);
        m_queue.enqueue(closed, &m_other);
        NotificationQueue(m_center).enqueue(opened, &m_other);
    }
    EXPECT_EQ(callsAfterEvent(), Names{"closed"});
}

TEST_F(NotificationTest, LogsWhatAHandlerThrowsAndGoesOn)
{
    const Log::Collector log;
    const auto open = m_center.addObserver(
        opened, nullptr, [](const Notification&) { throw std::runtime_error("no window"); });
    const auto close = m_center.addObserver(closed, nullptr, note("closed"));
    m_queue.enqueue(opened, nullptr);
    m_queue.enqueue(closed, nullptr);
    EXPECT_EQ(callsAfterEvent(), Names{"closed"});
    EXPECT_EQ(log.lines(), QStringList{QStringLiteral("Unable to handle Opened: no window")});
}
