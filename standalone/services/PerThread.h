#ifndef PerThread_H
#define PerThread_H

/**
 * @file
 * State that every thread has for itself.
 */

/**
 * One object of a kind per thread, made on first use. It can be asked for at any time of a thread's life, also by code
 * that runs while the process ends: what is asked for after the thread has cleaned up is made again.
 */
template <class State> class PerThread
{
public:
    static State& Get()
    {
        static thread_local Cleaner cleaner;
        cleaner.Watch();
        if (s_state == nullptr)
            s_state = new State;
        return *s_state;
    }

private:
    struct Cleaner
    {
        /// Naming the object is what makes it.
        void Watch() noexcept {}

        ~Cleaner()
        {
            delete s_state;
            s_state = nullptr;
        }
    };

    static thread_local State* s_state;
};

template <class State> thread_local State* PerThread<State>::s_state = nullptr;

#endif
