// Runs a piece of work as a host with many threads may: on a small stack.
#ifndef TESTS_SUPPORT_SMALLSTACK_H_
#define TESTS_SUPPORT_SMALLSTACK_H_

#include <gtest/gtest.h>
#include <pthread.h>

#include <cstddef>

namespace test {

template <class Work>
void onASmallStack(Work work) {
  constexpr std::size_t size = 256 * 1024;
  pthread_attr_t attributes;
  ASSERT_EQ(pthread_attr_init(&attributes), 0);
  ASSERT_EQ(pthread_attr_setstacksize(&attributes, size), 0);
  const auto run = [](void* it) -> void* {
    (*static_cast<Work*>(it))();
    return nullptr;
  };
  pthread_t thread;
  ASSERT_EQ(pthread_create(&thread, &attributes, run, &work), 0);
  ASSERT_EQ(pthread_join(thread, nullptr), 0);
  pthread_attr_destroy(&attributes);
}

}  // namespace test

#endif  // TESTS_SUPPORT_SMALLSTACK_H_
