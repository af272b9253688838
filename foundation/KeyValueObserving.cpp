#include "foundation/KeyValueObserving.h"

#include "foundation/Log.h"

#include <QString>

#include <algorithm>
#include <exception>
#include <utility>

/// One step of an observed path: watches the first key on one object, and with a watcher of its
/// own the rest of the path on the object that the key holds.
class KeyPathWatcher
{
public:
    using Callback = std::function<void()>;

    /// `willChange` and `didChange` are called around each change of the path.
    KeyPathWatcher(KeyValueObservable& object, std::string_view keyPath, Callback willChange,
                   Callback didChange)
        : m_object(&object)
        , m_willChange(std::move(willChange))
        , m_didChange(std::move(didChange))
    {
        const auto dot = keyPath.find('.');
        m_keys.emplace_back(keyPath.substr(0, dot));
        if (dot != std::string_view::npos) {
            m_restOfPath = keyPath.substr(dot + 1);
        }
        collectDependencies();
        watchRest();
        object.requiredObserverList().add(*this);
    }
    KeyPathWatcher(const KeyPathWatcher&) = delete;
    KeyPathWatcher& operator=(const KeyPathWatcher&) = delete;
    ~KeyPathWatcher()
    {
        if (m_object) {
            m_object->observerList()->remove(*this);
        }
    }

    /// Distinguishes this watcher from a later one at the same address.
    std::uint64_t serial() const { return m_serial; }
    bool isAffectedBy(std::string_view key) const { return std::ranges::count(m_keys, key) != 0; }
    void objectIsGone() { m_object = nullptr; }

    void willChange()
    {
        // The object at the end of the old path may be gone by the time the change is done.
        m_rest.reset();
        const auto callback = m_willChange;
        callback();
    }

    void didChange()
    {
        try {
            watchRest();
            // The callback may end this very observation: it is called as a copy, last.
            const auto callback = m_didChange;
            callback();
        } catch (const std::exception& exception) {
            // The change stands, whatever its observer makes of it.
            Log::line(
                QString(u"Unable to observe a change: " + QString::fromUtf8(exception.what())));
        }
    }

private:
    /// Follows the declared dependencies of the first key: plain keys of the same object join the
    /// watched keys, longer paths are watched in their own right.
    void collectDependencies()
    {
        for (std::size_t i = 0; i < m_keys.size(); ++i) {
            for (const auto path : m_object->keyPathsForValuesAffectingValueForKey(m_keys[i])) {
                if (path.find('.') != std::string_view::npos) {
                    m_dependencies.push_back(std::make_unique<KeyPathWatcher>(
                        *m_object, path, [this] { willChange(); }, [this] { didChange(); }));
                } else if (!isAffectedBy(path)) {
                    m_keys.emplace_back(path);
                }
            }
        }
    }

    void watchRest()
    {
        m_rest.reset();
        if (m_restOfPath.empty()) {
            return;
        }
        if (auto* const next = m_object->observableValueForKey(m_keys.front())) {
            m_rest =
                std::make_unique<KeyPathWatcher>(*next, m_restOfPath, m_willChange, m_didChange);
        }
    }

    static inline std::uint64_t s_lastSerial = 0;

    KeyValueObservable* m_object;
    Callback m_willChange;
    Callback m_didChange;
    std::vector<std::string> m_keys;
    std::string m_restOfPath;
    std::vector<std::unique_ptr<KeyPathWatcher>> m_dependencies;
    std::unique_ptr<KeyPathWatcher> m_rest;
    std::uint64_t m_serial = ++s_lastSerial;
};

KeyValueObserverList::~KeyValueObserverList()
{
    for (auto* const watcher : m_watchers) {
        watcher->objectIsGone();
    }
}

void KeyValueObserverList::remove(const KeyPathWatcher& watcher)
{
    std::erase(m_watchers, &watcher);
}

template <typename Notify>
void KeyValueObserverList::forEachWatcher(const Notify& notify) const
{
    std::vector<std::pair<KeyPathWatcher*, std::uint64_t>> present;
    present.reserve(m_watchers.size());
    for (auto* const watcher : m_watchers) {
        present.emplace_back(watcher, watcher->serial());
    }
    for (const auto& [watcher, serial] : present) {
        const auto found = std::ranges::find(m_watchers, watcher);
        if (found != m_watchers.end() && (*found)->serial() == serial) {
            notify(*watcher);
        }
    }
}

KeyValueObservation::KeyValueObservation() = default;
KeyValueObservation::KeyValueObservation(KeyValueObservation&&) noexcept = default;
KeyValueObservation& KeyValueObservation::operator=(KeyValueObservation&&) noexcept = default;
KeyValueObservation::~KeyValueObservation() = default;

KeyValueObservation::KeyValueObservation(std::unique_ptr<KeyPathWatcher> watcher)
    : m_watcher(std::move(watcher))
{}

KeyValueObservation KeyValueObservable::observe(std::string_view keyPath, KeyValueHandler handler)
{
    return KeyValueObservation(std::make_unique<KeyPathWatcher>(
        *this, keyPath, [] {},
        [this, path = std::string(keyPath), handler = std::move(handler)] {
            handler(ObservedChange{path, *this});
        }));
}

void KeyValueObservable::willChangeValueForKey(std::string_view key)
{
    if (const auto* const list = observerList()) {
        list->forEachWatcher([key](KeyPathWatcher& watcher) {
            if (watcher.isAffectedBy(key)) {
                watcher.willChange();
            }
        });
    }
}

void KeyValueObservable::didChangeValueForKey(std::string_view key)
{
    if (const auto* const list = observerList()) {
        list->forEachWatcher([key](KeyPathWatcher& watcher) {
            if (watcher.isAffectedBy(key)) {
                watcher.didChange();
            }
        });
    }
}

std::vector<std::string_view>
KeyValueObservable::keyPathsForValuesAffectingValueForKey(std::string_view /*key*/) const
{
    return {};
}

KeyValueObservable* KeyValueObservable::observableValueForKey(std::string_view /*key*/)
{
    return nullptr;
}

void KeyValueObservable::addDependencies(std::vector<std::string_view>& paths, std::string_view key,
                                         std::span<const KeyDependency> table)
{
    for (const auto& row : table) {
        if (row.key == key) {
            paths.push_back(row.keyPath);
        }
    }
}

KeyValueObserverList& KeyValueObject::requiredObserverList()
{
    if (!m_observers) {
        m_observers = std::make_unique<KeyValueObserverList>();
    }
    return *m_observers;
}
