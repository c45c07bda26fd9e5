// A thread whose stack leaves no room for recursion with the depth of an input.
#pragma once

#include <gtest/gtest.h>

#ifdef _WIN32
#include <windows.h>
#else
#include <pthread.h>
#endif

namespace kovra::test {

constexpr size_t small_stack = size_t{64} * 1024;

#ifdef _WIN32
template <class Action> DWORD WINAPI enter(void *argument) {
    (*static_cast<Action *>(argument))();
    return 0;
}
#endif

template <class Action> void run_on_small_stack(Action action) {
#ifdef _WIN32
    HANDLE thread =
        CreateThread(nullptr, small_stack, enter<Action>, &action, STACK_SIZE_PARAM_IS_A_RESERVATION, nullptr);
    ASSERT_NE(thread, nullptr);
    WaitForSingleObject(thread, INFINITE);
    CloseHandle(thread);
#else
    const auto enter = [](void *argument) -> void * {
        (*static_cast<Action *>(argument))();
        return nullptr;
    };
    pthread_attr_t attributes;
    pthread_t thread;
    ASSERT_EQ(pthread_attr_init(&attributes), 0);
    ASSERT_EQ(pthread_attr_setstacksize(&attributes, small_stack), 0);
    ASSERT_EQ(pthread_create(&thread, &attributes, enter, &action), 0);
    pthread_join(thread, nullptr);
    pthread_attr_destroy(&attributes);
#endif
}

} // namespace kovra::test
