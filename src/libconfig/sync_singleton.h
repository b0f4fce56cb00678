#pragma once

#include <QMutex>

#include <atomic>
#include <memory>

/*
 * The one instance of T, constructed at its first use, whichever thread comes first, and destroyed when the
 * process exits.
 */
template <typename T>
class SyncSingleton
{
public:
    /* The instance; safe to call from several threads at once. */
    static T &instance()
    {
        if (!instance_pointer.load(std::memory_order_acquire))
            createInstance();
        return *instance_pointer.load(std::memory_order_acquire);
    }

    /* Creates the instance unless there is one. An exception of T's constructor goes to the caller. */
    static void createInstance();

private:
    template <typename Held>
    struct Destroyer
    {
        std::unique_ptr<Held> held;
    };

    static std::atomic<T *> instance_pointer;
    static QMutex instance_mutex;
    // Defined after the mutex, so destroyed before it.
    static Destroyer<T> instance_destroyer;
};

template <typename T>
std::atomic<T *> SyncSingleton<T>::instance_pointer = nullptr;
template <typename T>
QMutex SyncSingleton<T>::instance_mutex;
template <typename T>
typename SyncSingleton<T>::template Destroyer<T> SyncSingleton<T>::instance_destroyer;

template <typename T>
void SyncSingleton<T>::createInstance()
{
    // Not a scoped lock: a constructor that throws leaves it locked, since what failed half-way through its
    // one construction is not tried again.
    instance_mutex.lock();
    if (!instance_pointer.load(std::memory_order_relaxed)) {
        instance_destroyer.held = std::make_unique<T>();
        instance_pointer.store(instance_destroyer.held.get(), std::memory_order_release);
    }
    instance_mutex.unlock();
}
