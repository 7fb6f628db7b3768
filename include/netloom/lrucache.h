// A bounded least-recently-used cache with bulk eviction. It may grow
// `elasticity` entries past its size before it prunes back, so that the
// cost of eviction is paid once per `elasticity` inserts, not on each one.
// Entries may expire after a fixed number of seconds (0: never).
#pragma once

#include <cstddef>
#include <ctime>
#include <list>
#include <map>
#include <mutex>

namespace lru {

// The lock a cache takes around every operation.
class Lock {
public:
    virtual ~Lock() = default;
    virtual void lock() = 0;
    virtual void unlock() = 0;
};

// For caches that one thread owns.
class NullLock : public Lock {
public:
    void lock() override {}
    void unlock() override {}
};

// Recursive, so that an eviction callback may call back into its cache.
class ThreadLock : public Lock {
public:
    void lock() override { m_mutex.lock(); }
    void unlock() override { m_mutex.unlock(); }

private:
    std::recursive_mutex m_mutex;
};

class ScopedLock {
public:
    explicit ScopedLock(Lock& lock) : m_lock(lock) { m_lock.lock(); }
    ~ScopedLock() { m_lock.unlock(); }
    ScopedLock(const ScopedLock&) = delete;
    ScopedLock& operator=(const ScopedLock&) = delete;

private:
    Lock& m_lock;
};

// Called with each entry that pruning removes; this one does nothing.
struct NoneFunction {
    template <class K, class V>
    void operator()(const K&, const V&) const {}
};

template <class K, class V>
struct Node {
    Node(const K& k, const V& v, std::time_t created) : key(k), value(v), createTime(created) {}
    K key;
    V value;
    std::time_t createTime;
};

// Oldest entries at the front, newest at the back. Nodes never move in
// memory, so the index may keep iterators to them.
template <class K, class V>
class List {
public:
    using iterator = typename std::list<Node<K, V>>::iterator;

    iterator pushBack(const K& k, const V& v, std::time_t created) {
        m_nodes.emplace_back(k, v, created);
        return std::prev(m_nodes.end());
    }
    void moveToBack(iterator it) { m_nodes.splice(m_nodes.end(), m_nodes, it); }
    void erase(iterator it) { m_nodes.erase(it); }
    iterator front() { return m_nodes.begin(); }
    bool empty() const { return m_nodes.empty(); }
    std::size_t size() const { return m_nodes.size(); }
    void clear() { m_nodes.clear(); }

private:
    std::list<Node<K, V>> m_nodes;
};

template <class K, class V, class LockT = NullLock, class OnEvict = NoneFunction>
class Cache {
public:
    explicit Cache(std::size_t maxSize = 64, std::size_t elasticity = 10, std::time_t expiry = 0)
        : m_maxSize(maxSize), m_elasticity(elasticity), m_expiry(expiry) {}
    Cache(const Cache&) = delete;
    Cache& operator=(const Cache&) = delete;

    // Copies the value out and marks the entry as just used. An expired
    // entry is dropped and reported missing.
    bool get(const K& key, V& out) {
        ScopedLock guard(m_lock);
        const auto found = m_index.find(key);
        if (found == m_index.end()) return false;
        const auto node = found->second;
        if (m_expiry != 0 && std::time(nullptr) - node->createTime > m_expiry) {
            m_list.erase(node);
            m_index.erase(found);
            return false;
        }
        m_list.moveToBack(node);
        out = node->value;
        return true;
    }

    // A known key is only refreshed; its stored value stays, so that a
    // racing second writer cannot replace what readers already saw.
    void insert(const K& key, const V& value) {
        ScopedLock guard(m_lock);
        const auto found = m_index.find(key);
        if (found != m_index.end()) {
            m_list.moveToBack(found->second);
            return;
        }
        m_index.emplace(key, m_list.pushBack(key, value, std::time(nullptr)));
        prune();
    }

    bool contains(const K& key) {
        ScopedLock guard(m_lock);
        return m_index.count(key) != 0;
    }

    void clear() {
        ScopedLock guard(m_lock);
        m_index.clear();
        m_list.clear();
    }

    std::size_t size() {
        ScopedLock guard(m_lock);
        return m_index.size();
    }

    std::size_t getMaxSize() const { return m_maxSize; }
    std::size_t getElasticity() const { return m_elasticity; }

private:
    void prune() {
        if (m_maxSize == 0 || m_index.size() < m_maxSize + m_elasticity) return;
        while (m_index.size() > m_maxSize && !m_list.empty()) {
            const auto oldest = m_list.front();
            OnEvict()(oldest->key, oldest->value);
            m_index.erase(oldest->key);
            m_list.erase(oldest);
        }
    }

    LockT m_lock;
    std::map<K, typename List<K, V>::iterator> m_index;
    List<K, V> m_list;
    std::size_t m_maxSize;
    std::size_t m_elasticity;
    std::time_t m_expiry;
};

}  // namespace lru
