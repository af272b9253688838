#pragma once

#include <functional>
#include <memory>
#include <string_view>
#include <vector>

/// Something that happened: its name, and who says so (null when nobody in particular does). The
/// sender is an identity, never to be called.
struct Notification
{
    std::string_view name;
    const void* sender;
};

/// Tells those who asked for it what happened, by name, inside the call that posts.
class NotificationCenter
{
    struct Observer;
    using Observers = std::vector<std::shared_ptr<Observer>>;

public:
    using Handler = std::function<void(const Notification&)>;

    /// An observation. It ends when this token is destroyed; outliving the center does no harm.
    class [[nodiscard]] Token
    {
    public:
        Token() = default;
        Token(Token&&) noexcept = default;
        Token& operator=(Token&& other) noexcept;
        ~Token();

    private:
        friend class NotificationCenter;
        Token(std::shared_ptr<Observer> observer, std::weak_ptr<Observers> observers);

        std::shared_ptr<Observer> m_observer;
        std::weak_ptr<Observers> m_observers;
    };

    /// Calls `handler` for each notification called `name` that `sender` posts, or that anyone
    /// posts when it is null.
    [[nodiscard]] Token addObserver(std::string_view name, const void* sender, Handler handler);

    /// Calls the observers that are present now, in the order in which they were added. A handler
    /// may add and remove observers: an added one is not called this time, nor is one that was
    /// removed before its turn. What a handler throws ends the posting.
    void post(std::string_view name, const void* sender);

    /// The center of the program.
    static NotificationCenter& defaultCenter();

private:
    std::shared_ptr<Observers> m_observers = std::make_shared<Observers>();
};
