#pragma once

#include <QMutex>
#include <QReadWriteLock>

/*
 * The library's own locks: Qt locks plus scoped lockers.
 *
 * Qt's locks are implemented inside the Qt library, which is not built with ThreadSanitizer,
 * so the sanitizer cannot see the ordering they establish and would report the data they
 * guard as racy. Under ThreadSanitizer these locks describe every lock and unlock through
 * the sanitizer's mutex annotations: the sanitizer then knows the real ordering, and it still
 * reports unguarded accesses and lock-order inversions in our code. Without the sanitizer
 * they are plain Qt locks.
 */

#if defined(__SANITIZE_THREAD__)
#define PV_THREAD_SANITIZER 1
#elif defined(__has_feature)
#if __has_feature(thread_sanitizer)
#define PV_THREAD_SANITIZER 1
#endif
#endif

#ifdef PV_THREAD_SANITIZER
#include <sanitizer/tsan_interface.h>

namespace PvLockAnnotation {
inline constexpr unsigned shared = __tsan_mutex_read_lock;
inline void preLock(void* lock, unsigned flags) { __tsan_mutex_pre_lock(lock, flags); }
inline void postLock(void* lock, unsigned flags) { __tsan_mutex_post_lock(lock, flags, 0); }
inline void preUnlock(void* lock, unsigned flags) { __tsan_mutex_pre_unlock(lock, flags); }
inline void postUnlock(void* lock, unsigned flags) { __tsan_mutex_post_unlock(lock, flags); }
}
#else
namespace PvLockAnnotation {
inline constexpr unsigned shared = 1;
inline void preLock(void*, unsigned) { }
inline void postLock(void*, unsigned) { }
inline void preUnlock(void*, unsigned) { }
inline void postUnlock(void*, unsigned) { }
}
#endif

/*!
 * A QMutex that tells the sanitizer when it is taken. The annotations name a separate
 * address: the mutex's inline atomics at its own address would overwrite what the
 * sanitizer records there.
 */
class PvMutex
{
public:
    //! Takes the mutex.
    void lock()
    {
        PvLockAnnotation::preLock(&m_tag, 0);
        m_mutex.lock();
        PvLockAnnotation::postLock(&m_tag, 0);
    }
    //! Releases the mutex.
    void unlock()
    {
        PvLockAnnotation::preUnlock(&m_tag, 0);
        m_mutex.unlock();
        PvLockAnnotation::postUnlock(&m_tag, 0);
    }

private:
    QMutex m_mutex;
    alignas(8) char m_tag = 0;
};

/*! A QReadWriteLock that tells the sanitizer when it is taken; see PvMutex. */
class PvReadWriteLock
{
public:
    //! A lock of recursion mode \a mode.
    explicit PvReadWriteLock(QReadWriteLock::RecursionMode mode = QReadWriteLock::NonRecursive) : m_lock(mode) { }

    //! Takes the lock for reading when \a shared, else for writing.
    void lock(bool shared)
    {
        PvLockAnnotation::preLock(&m_tag, flags(shared));
        if (shared)
            m_lock.lockForRead();
        else
            m_lock.lockForWrite();
        PvLockAnnotation::postLock(&m_tag, flags(shared));
    }
    //! Releases the lock taken with the same \a shared.
    void unlock(bool shared)
    {
        PvLockAnnotation::preUnlock(&m_tag, flags(shared));
        m_lock.unlock();
        PvLockAnnotation::postUnlock(&m_tag, flags(shared));
    }

private:
    static constexpr unsigned flags(bool shared) { return shared ? PvLockAnnotation::shared : 0; }

    QReadWriteLock m_lock;
    alignas(8) char m_tag = 0;
};

/*! Holds a PvMutex for its scope. */
class PvMutexLocker
{
public:
    //! Takes \a mutex.
    explicit PvMutexLocker(PvMutex* mutex) : m_mutex(mutex) { m_mutex->lock(); }
    ~PvMutexLocker() { m_mutex->unlock(); }
    PvMutexLocker(const PvMutexLocker&) = delete;
    PvMutexLocker& operator=(const PvMutexLocker&) = delete;

private:
    PvMutex* m_mutex;
};

/*! Holds a PvReadWriteLock for reading (\a Shared) or writing for its scope. */
template <bool Shared>
class PvReadWriteLocker
{
public:
    //! Takes \a lock.
    explicit PvReadWriteLocker(PvReadWriteLock* lock) : m_lock(lock) { m_lock->lock(Shared); }
    ~PvReadWriteLocker() { m_lock->unlock(Shared); }
    PvReadWriteLocker(const PvReadWriteLocker&) = delete;
    PvReadWriteLocker& operator=(const PvReadWriteLocker&) = delete;

private:
    PvReadWriteLock* m_lock;
};

using PvReadLocker = PvReadWriteLocker<true>;
using PvWriteLocker = PvReadWriteLocker<false>;
