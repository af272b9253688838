#pragma once

#include "foundation/NotificationCenter.h"

#include <QObject>

#include <deque>
#include <string>

/// Posts notifications as soon as possible: from the event loop, after the current event, never
/// inside the call that enqueues them.
class NotificationQueue : private QObject
{
public:
    /// One who enqueues notifications. As a member of the object that it speaks for, it cancels
    /// what still waits when that object goes. It must not outlive the queue.
    class Sender
    {
    public:
        /// `identity` is what observers know the sender by: the object that this is a member of.
        Sender(NotificationQueue& queue, const void* identity)
            : m_queue(queue)
            , m_identity(identity)
        {}
        Sender(const Sender&) = delete;
        Sender& operator=(const Sender&) = delete;
        ~Sender() { m_queue.dequeue(m_identity); }

        void enqueue(std::string_view name) { m_queue.enqueue(name, m_identity); }

    private:
        NotificationQueue& m_queue;
        const void* m_identity;
    };

    /// A queue that posts to `center`, which must outlive it.
    explicit NotificationQueue(NotificationCenter& center);

    /// Notifications are posted in the order in which they were enqueued. One that equals another
    /// that still waits, in name and sender, is dropped. What a handler throws is logged.
    void enqueue(std::string_view name, const void* sender);

    /// Cancels all that `sender` has waiting.
    void dequeue(const void* sender);

    /// The queue of the program, which posts to the default center.
    static NotificationQueue& defaultQueue();

private:
    struct Waiting
    {
        std::string name;
        const void* sender;

        bool operator==(const Waiting&) const = default;
    };

    void customEvent(QEvent* event) override;

    NotificationCenter& m_center;
    std::deque<Waiting> m_waiting;
};
