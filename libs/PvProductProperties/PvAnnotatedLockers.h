#pragma once

#include <QMutex>
#include <QReadWriteLock>

/*
 * Scoped lockers for the library's own QMutex and QReadWriteLock.
 *
 * Qt's locks are implemented inside the Qt library, which is not built with ThreadSanitizer,
 * so the sanitizer cannot see the ordering they establish and would report the data they
 * guard as racy. Under ThreadSanitizer these lockers describe every lock and unlock through
 * the sanitizer's mutex annotations: the sanitizer then knows the real ordering, and it still
 * reports unguarded accesses and lock-order inversions in our code. Without the sanitizer
 * they are plain Qt lockers.
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

/*! Holds a QMutex for its scope. */
class PvMutexLocker
{
public:
    explicit PvMutexLocker(QMutex* mutex) : m_mutex(mutex)
    {
        PvLockAnnotation::preLock(m_mutex, 0);
        m_mutex->lock();
        PvLockAnnotation::postLock(m_mutex, 0);
    }
    ~PvMutexLocker()
    {
        PvLockAnnotation::preUnlock(m_mutex, 0);
        m_mutex->unlock();
        PvLockAnnotation::postUnlock(m_mutex, 0);
    }
    PvMutexLocker(const PvMutexLocker&) = delete;
    PvMutexLocker& operator=(const PvMutexLocker&) = delete;

private:
    QMutex* m_mutex;
};

/*! Holds a QReadWriteLock for reading (\a shared) or writing for its scope. */
template <bool Shared>
class PvReadWriteLocker
{
public:
    explicit PvReadWriteLocker(QReadWriteLock* lock) : m_lock(lock)
    {
        PvLockAnnotation::preLock(m_lock, flags);
        if constexpr (Shared)
            m_lock->lockForRead();
        else
            m_lock->lockForWrite();
        PvLockAnnotation::postLock(m_lock, flags);
    }
    ~PvReadWriteLocker()
    {
        PvLockAnnotation::preUnlock(m_lock, flags);
        m_lock->unlock();
        PvLockAnnotation::postUnlock(m_lock, flags);
    }
    PvReadWriteLocker(const PvReadWriteLocker&) = delete;
    PvReadWriteLocker& operator=(const PvReadWriteLocker&) = delete;

private:
    static constexpr unsigned flags = Shared ? PvLockAnnotation::shared : 0;
    QReadWriteLock* m_lock;
};

using PvReadLocker = PvReadWriteLocker<true>;
using PvWriteLocker = PvReadWriteLocker<false>;
