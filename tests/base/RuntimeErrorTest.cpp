#include "base/RuntimeError.h"

#include <gtest/gtest.h>

#include <new>
#include <stdexcept>
#include <system_error>
#include <vector>

namespace tarvik {
namespace {

TEST(AsRuntimeError, KeepsARunTimeErrorWithItsDetailAndItsFile) {
  MissingFunctionError missing("Function", "some.dll");
  missing.SetFile("C:\\a.dll");
  const RuntimeError error = AsRuntimeError(missing);
  EXPECT_EQ(error.Kind(), RuntimeErrorKind::MissingFunction);
  EXPECT_EQ(error.Detail(), "Function (some.dll)");
  EXPECT_EQ(error.File(), "C:\\a.dll");
}

TEST(AsRuntimeError, TakesWhatNoMemoryCanHoldForALackOfIt) {
  EXPECT_EQ(AsRuntimeError(std::bad_alloc()).Kind(), RuntimeErrorKind::OutOfMemory);
  EXPECT_EQ(AsRuntimeError(std::bad_array_new_length()).Kind(), RuntimeErrorKind::OutOfMemory);
  try {
    std::vector<int> longest;
    longest.reserve(longest.max_size() + 1);
    FAIL() << "there was room";
  } catch (const std::exception& error) {
    EXPECT_EQ(AsRuntimeError(error).Kind(), RuntimeErrorKind::OutOfMemory);
  }
}

TEST(AsRuntimeError, TellsWhatAnyOtherExceptionSays) {
  const std::system_error cause(std::make_error_code(std::errc::io_error), "disk");
  const RuntimeError error = AsRuntimeError(cause);
  EXPECT_EQ(error.Kind(), RuntimeErrorKind::Unexpected);
  EXPECT_EQ(error.Detail(), cause.what());
}

TEST(RuntimeError, SaysItsKindInATrace) {
  EXPECT_STREQ(OverflowError().what(), "Overflow");
  EXPECT_STREQ(TypeMismatchError().what(), "Type mismatch");
  EXPECT_STREQ(OutOfMemoryError().what(), "Out of memory");
  EXPECT_STREQ(MissingFunctionError("Function", "some.dll").what(), "Missing function");
  EXPECT_STREQ(NoWindowError().what(), "No window");
  EXPECT_STREQ(AsRuntimeError(std::runtime_error("disk")).what(), "Unexpected error");
}

}  // namespace
}  // namespace tarvik
