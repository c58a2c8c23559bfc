#pragma once

#include <atomic>

/// A value that one thread may write while another reads it. It is used like a plain variable.
/// Loads and stores are relaxed: on x86-64 the same machine instructions as plain accesses, without
/// the undefined behaviour. Nothing is ordered: a reader may see the new value of one field and the
/// old value of the next.
template <typename Value>
class TRelaxed {
    static_assert(std::atomic<Value>::is_always_lock_free);

public:
    TRelaxed() = default;
    TRelaxed(Value value) : m_value(value) {}
    TRelaxed(const TRelaxed &other) : m_value(other.load()) {}

    TRelaxed &operator=(Value value) {
        m_value.store(value, std::memory_order_relaxed);
        return *this;
    }
    TRelaxed &operator=(const TRelaxed &other) { return *this = other.load(); }

    /// Stores `value` if it differs from the present one. Only one thread may store.
    /// @return true if it was stored.
    bool storeIfNew(Value value) {
        if (value == load())
            return false;
        *this = value;
        return true;
    }

    operator Value() const { return load(); }
    Value load() const { return m_value.load(std::memory_order_relaxed); }

private:
    std::atomic<Value> m_value{};
};
