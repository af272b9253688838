#include "foundation/NotificationCenter.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

struct NotificationCenter::Observer
{
    std::string name;
    const void* sender;
    Handler handler;
    bool isRemoved = false;
};

NotificationCenter::Token::Token(std::shared_ptr<Observer> observer,
                                 std::weak_ptr<Observers> observers)
    : m_observer(std::move(observer))
    , m_observers(std::move(observers))
{}

NotificationCenter::Token& NotificationCenter::Token::operator=(Token&& other) noexcept
{
    // What this token stood for until now ends here, not some time later with `other`.
    Token ended(std::move(other));
    std::swap(m_observer, ended.m_observer);
    std::swap(m_observers, ended.m_observers);
    return *this;
}

NotificationCenter::Token::~Token()
{
    if (!m_observer) {
        return;
    }
    // A post under way holds the observer, and with it a handler that may be running right now.
    m_observer->isRemoved = true;
    if (const auto observers = m_observers.lock()) {
        std::erase(*observers, m_observer);
    }
}

NotificationCenter::Token NotificationCenter::addObserver(std::string_view name, const void* sender,
                                                          Handler handler)
{
    auto observer =
        std::make_shared<Observer>(Observer{std::string(name), sender, std::move(handler)});
    m_observers->push_back(observer);
    return Token(std::move(observer), m_observers);
}

void NotificationCenter::post(std::string_view name, const void* sender)
{
    Observers present;
    std::ranges::copy_if(*m_observers, std::back_inserter(present), [&](const auto& observer) {
        return observer->name == name && (!observer->sender || observer->sender == sender);
    });
    for (const auto& observer : present) {
        if (!observer->isRemoved) {
            observer->handler(Notification{name, sender});
        }
    }
}

NotificationCenter& NotificationCenter::defaultCenter()
{
    static NotificationCenter center;
    return center;
}
