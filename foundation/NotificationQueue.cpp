#include "foundation/NotificationQueue.h"

#include "foundation/Log.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <exception>
#include <utility>

NotificationQueue::NotificationQueue(NotificationCenter& center)
    : m_center(center)
{}

void NotificationQueue::enqueue(std::string_view name, const void* sender)
{
    Waiting notification{std::string(name), sender};
    if (std::ranges::count(m_waiting, notification) != 0) {
        return;
    }
    m_waiting.push_back(std::move(notification));
    // One event for each: a handler that runs an event loop of its own (an alert) does not hold up
    // those behind it.
    QCoreApplication::postEvent(this, new QEvent(QEvent::User));
}

void NotificationQueue::dequeue(const void* sender)
{
    std::erase_if(m_waiting,
                  [sender](const Waiting& notification) { return notification.sender == sender; });
}

void NotificationQueue::customEvent(QEvent* /*event*/)
{
    if (m_waiting.empty()) {
        return; // its notification was cancelled
    }
    const auto next = std::move(m_waiting.front());
    m_waiting.pop_front();
    try {
        m_center.post(next.name, next.sender);
    } catch (const std::exception& error) {
        const QString name = QString::fromStdString(next.name);
        Log::line(QString(u"Unable to handle " + name + u": " + QString::fromUtf8(error.what())));
    }
}

NotificationQueue& NotificationQueue::defaultQueue()
{
    static NotificationQueue queue(NotificationCenter::defaultCenter());
    return queue;
}
