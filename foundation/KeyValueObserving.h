#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <span>
#include <string>
#include <string_view>
#include <vector>

class KeyPathWatcher;
class KeyValueObservable;

/// One row of a class's table of derived keys: `key` also changes when `keyPath` does.
struct KeyDependency
{
    std::string_view key;
    std::string_view keyPath;
};

/// What an observer is told: the path that it observes, and the object that it observes it on.
struct ObservedChange
{
    std::string_view keyPath;
    KeyValueObservable& object;
};

using KeyValueHandler = std::function<void(const ObservedChange&)>;

/// The observers of one object. An object that nobody observes needs none.
class KeyValueObserverList
{
public:
    KeyValueObserverList() = default;
    KeyValueObserverList(const KeyValueObserverList&) = delete;
    KeyValueObserverList& operator=(const KeyValueObserverList&) = delete;
    /// The object is going: its observers stay registered and are never called again.
    ~KeyValueObserverList();

private:
    friend class KeyPathWatcher;
    friend class KeyValueObservable;

    void add(KeyPathWatcher& watcher) { m_watchers.push_back(&watcher); }
    void remove(const KeyPathWatcher& watcher);
    /// Calls `notify` for those of the watchers present now that are still there at their turn, so
    /// that an observer may come or go while others are being told.
    template <typename Notify>
    void forEachWatcher(const Notify& notify) const;

    std::vector<KeyPathWatcher*> m_watchers;
};

/// An observation. It ends when this token is destroyed, also from inside its own handler, and
/// costs nothing more once the observed object is gone.
class [[nodiscard]] KeyValueObservation
{
public:
    KeyValueObservation();
    KeyValueObservation(KeyValueObservation&&) noexcept;
    KeyValueObservation& operator=(KeyValueObservation&&) noexcept;
    ~KeyValueObservation();

    bool isObserving() const { return m_watcher != nullptr; }

private:
    friend class KeyValueObservable;
    explicit KeyValueObservation(std::unique_ptr<KeyPathWatcher> watcher);

    std::unique_ptr<KeyPathWatcher> m_watcher;
};

/// An object whose values others can observe by key.
///
/// A class announces each change of a key between willChangeValueForKey() and
/// didChangeValueForKey() (best through a KeyValueChange), declares which of its keys derive from
/// which key paths, and answers the objects that paths run through. Handlers are called
/// synchronously, from didChangeValueForKey(); they may end any observation, but not the object.
/// What a handler throws is logged.
class KeyValueObservable
{
public:
    KeyValueObservable() = default;
    KeyValueObservable(const KeyValueObservable&) = delete;
    KeyValueObservable& operator=(const KeyValueObservable&) = delete;
    virtual ~KeyValueObservable() = default;

    /// Calls `handler` after each change of `keyPath`: of the key itself, of what the class
    /// declares the key to depend on, and of any object that the path runs through ("a.b" changes
    /// when `a` is replaced, and when `b` of the present `a` changes). A value set to what it
    /// already was counts as a change.
    KeyValueObservation observe(std::string_view keyPath, KeyValueHandler handler);

    void willChangeValueForKey(std::string_view key);
    void didChangeValueForKey(std::string_view key);

    /// The key paths that `key` depends on, the base classes' included. They are asked for once,
    /// when an observation begins.
    virtual std::vector<std::string_view>
    keyPathsForValuesAffectingValueForKey(std::string_view key) const;

    /// The object that the to-one value `key` holds now; null when there is none, or when the key
    /// is not a to-one value.
    virtual KeyValueObservable* observableValueForKey(std::string_view key);

protected:
    /// Adds the paths that `table` gives for `key`: the whole of an override of
    /// keyPathsForValuesAffectingValueForKey() beside the call to its base class.
    static void addDependencies(std::vector<std::string_view>& paths, std::string_view key,
                                std::span<const KeyDependency> table);

private:
    friend class KeyPathWatcher;

    /// The observers of this object, null when there are none.
    virtual KeyValueObserverList* observerList() const = 0;
    /// The same, made on first use; it stays until the object goes.
    virtual KeyValueObserverList& requiredObserverList() = 0;
};

/// An observable object that keeps its observers in itself. Records do not: there are too many of
/// them (see NSManagedObject).
class KeyValueObject : public KeyValueObservable
{
private:
    KeyValueObserverList* observerList() const override { return m_observers.get(); }
    KeyValueObserverList& requiredObserverList() override;

    std::unique_ptr<KeyValueObserverList> m_observers;
};

/// Announces a change of one key for the length of a scope, also when it is left by an exception.
class [[nodiscard]] KeyValueChange
{
public:
    KeyValueChange(KeyValueObservable& object, std::string_view key)
        : m_object(object)
        , m_key(key)
    {
        m_object.willChangeValueForKey(m_key);
    }
    KeyValueChange(const KeyValueChange&) = delete;
    KeyValueChange& operator=(const KeyValueChange&) = delete;
    ~KeyValueChange() { m_object.didChangeValueForKey(m_key); }

private:
    KeyValueObservable& m_object;
    std::string_view m_key;
};
