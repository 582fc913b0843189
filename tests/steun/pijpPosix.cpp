#include <gtest/gtest.h>
#include <sys/stat.h>

#include "tests/steun/pijp.h"

bool maakPijp(std::string const& pad) {
  EXPECT_EQ(mkfifo(pad.c_str(), S_IRUSR | S_IWUSR), 0) << pad;
  return true;
}
