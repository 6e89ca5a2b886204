#pragma once

#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

#include <atomic>

/*!
 * Lazily created, never destroyed process-wide instance of T. T befriends PvSingleton<T>
 * when its constructor is not public. setupInstance() runs once, right after construction,
 * still under the creation lock.
 */
template <typename T>
class PvSingleton
{
public:
    static T& instance()
    {
        {
            QReadLocker reader(&s_lock);
            if (T* existing = s_instance.load(std::memory_order_acquire))
                return *existing;
        }
        QWriteLocker writer(&s_lock);
        T* existing = s_instance.load(std::memory_order_acquire);
        if (!existing) {
            existing = new T;
            static_cast<PvSingleton<T>*>(existing)->setupInstance();
            s_instance.store(existing, std::memory_order_release);
        }
        return *existing;
    }

    PvSingleton(const PvSingleton&) = delete;
    PvSingleton& operator=(const PvSingleton&) = delete;

protected:
    PvSingleton() = default;
    virtual ~PvSingleton() = default;
    virtual void setupInstance() { }

private:
    static inline QReadWriteLock s_lock;
    // Atomic although guarded: the lock lives in the uninstrumented Qt library, so only the
    // acquire/release pair shows ThreadSanitizer that the instance is published safely.
    static inline std::atomic<T*> s_instance { nullptr };
};
