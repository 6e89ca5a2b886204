#pragma once

#include <QReadLocker>
#include <QReadWriteLock>
#include <QWriteLocker>

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
            if (s_instance)
                return *s_instance;
        }
        QWriteLocker writer(&s_lock);
        if (!s_instance) {
            T* created = new T;
            static_cast<PvSingleton<T>*>(created)->setupInstance();
            s_instance = created;
        }
        return *s_instance;
    }

    PvSingleton(const PvSingleton&) = delete;
    PvSingleton& operator=(const PvSingleton&) = delete;

protected:
    PvSingleton() = default;
    virtual ~PvSingleton() = default;
    virtual void setupInstance() { }

private:
    static inline QReadWriteLock s_lock;
    static inline T* s_instance = nullptr;
};
