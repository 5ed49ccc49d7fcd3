// Tests of the exception classes as a client meets them.
#include <gtest/gtest.h>
