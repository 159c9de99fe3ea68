#ifndef STORE_LOCK_H
#define STORE_LOCK_H

#include <QMutex>

#if defined(__SANITIZE_THREAD__)
#include <sanitizer/tsan_interface.h>
#endif

/**
 * A `QMutex` that the thread sanitizer can see: Qt's library is built without it, so a lock taken
 * there orders nothing in its eyes. Used with std::lock_guard; not recursive.
 */
class store_lock
{
public:
    void lock()
    {
        mutex.lock();
#if defined(__SANITIZE_THREAD__)
        __tsan_acquire(&mutex);
#endif
    }

    void unlock()
    {
#if defined(__SANITIZE_THREAD__)
        __tsan_release(&mutex);
#endif
        mutex.unlock();
    }

private:
    QMutex mutex;
};

#endif // STORE_LOCK_H
