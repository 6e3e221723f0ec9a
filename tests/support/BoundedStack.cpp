#include "BoundedStack.h"

#include <exception>
#include <pthread.h>

#include <gtest/gtest.h>

#include "Sanitized.h"

namespace
{
constexpr std::size_t SanitizerFactor = IsSanitized ? 8 : 1;

struct Run
{
    const std::function<void()>& body;
    std::exception_ptr thrown;
};

void* Start(void* ioRun)
{
    Run& run = *static_cast<Run*>(ioRun);
    try
    {
        run.body();
    }
    catch (...)
    {
        run.thrown = std::current_exception();
    }
    return nullptr;
}
} // namespace

void OnBoundedStack(std::size_t iKibibytes, const std::function<void()>& iBody)
{
    Run run{iBody, nullptr};
    pthread_attr_t attributes;
    pthread_t thread;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, iKibibytes * 1024 * SanitizerFactor), 0);
    const int status = pthread_create(&thread, &attributes, &Start, &run);
    pthread_attr_destroy(&attributes);
    ASSERT_EQ(status, 0);
    pthread_join(thread, nullptr);
    if (run.thrown)
        std::rethrow_exception(run.thrown);
}
