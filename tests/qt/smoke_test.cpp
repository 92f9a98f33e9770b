#include <gtest/gtest.h>

TEST(QtSmoke, Placeholder) { SUCCEED(); }
