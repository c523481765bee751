#include "search/icons/FaultGuard.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <array>

#include "base/NonCopyable.h"

namespace tarvik {
namespace {

// A page without access rights.
class ForbiddenPage : NonCopyable {
 public:
  ForbiddenPage() : page_(VirtualAlloc(nullptr, 4096, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS)) {}
  ~ForbiddenPage() { VirtualFree(page_, 0, MEM_RELEASE); }

  // The page is read by an instruction of this program.
  char Read() const { return *static_cast<volatile char*>(page_); }
  // The page is read by an instruction of the system.
  void HaveSystemRead() const { RtlCompareMemory(page_, other_.data(), other_.size()); }

 private:
  void* page_;
  std::array<char, 16> other_{};
};

// Overflows the stack if `depth` is large enough.
int Deep(int depth) {
  volatile char room[4096];
  room[0] = 1;
  return depth == 0 ? 0 : Deep(depth - 1) + room[0];
}

// Matches a program that ended by an exception: the exception's code is its exit code.
class EndedBy {
 public:
  explicit EndedBy(DWORD exception) : exception_(exception) {}
  bool operator()(int exitCode) const { return static_cast<DWORD>(exitCode) == exception_; }

 private:
  DWORD exception_;
};

TEST(FaultGuard, LetsACallThatFaultsNotBeTheEnd) {
  const ForbiddenPage page;
  bool finished = false;
  EXPECT_FALSE(SurvivesFault([&] {
    page.HaveSystemRead();
    finished = true;
  }));
  EXPECT_FALSE(finished);
}

TEST(FaultGuard, SaysThatACallCameBack) {
  int value = 0;
  EXPECT_TRUE(SurvivesFault([&] { value = 7; }));
  EXPECT_EQ(value, 7);
}

TEST(FaultGuard, ServesManyFaultsOneAfterTheOther) {
  const ForbiddenPage page;
  int faults = 0;
  for (int i = 0; i < 1000; ++i) faults += SurvivesFault([&] { page.HaveSystemRead(); }) ? 0 : 1;
  EXPECT_EQ(faults, 1000);
}

// Each is raised by an instruction of the system.
TEST(FaultGuard, CatchesEachKindOfFaultThatADamagedFileLeadsTo) {
  for (const DWORD kind :
       {EXCEPTION_ACCESS_VIOLATION, EXCEPTION_IN_PAGE_ERROR, EXCEPTION_INT_DIVIDE_BY_ZERO, EXCEPTION_INT_OVERFLOW}) {
    EXPECT_FALSE(SurvivesFault([&] { RaiseException(kind, 0, 0, nullptr); })) << std::hex << kind;
  }
}

class FaultGuardDeathTest : public ::testing::Test {
 protected:
  void SetUp() override {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    SetUnhandledExceptionFilter(EndAtOnce);
  }
  void TearDown() override { SetUnhandledExceptionFilter(nullptr); }

 private:
  // Ends the program without the system's error box, and without a debugger that prints a trace.
  static LONG WINAPI EndAtOnce(EXCEPTION_POINTERS* /*exception*/) { return EXCEPTION_EXECUTE_HANDLER; }
};

// A fault while a function was loaded was once taken for a damaged file, and from then on no file had icons.
TEST_F(FaultGuardDeathTest, LetsAFaultOfTheProgramsOwnEndIt) {
  EXPECT_EXIT(
      {
        const ForbiddenPage page;
        SurvivesFault([&] { page.Read(); });
      },
      EndedBy(EXCEPTION_ACCESS_VIOLATION), "");
  EXPECT_EXIT(
      {
        volatile int size = 0;
        volatile int result = 0;
        SurvivesFault([&] { result = 100 / size; });
      },
      EndedBy(EXCEPTION_INT_DIVIDE_BY_ZERO), "");
}

TEST_F(FaultGuardDeathTest, LetsACallOfNoFunctionEndTheProgram) {
  using Function = void (*)();
  EXPECT_EXIT(
      {
        const volatile Function none = nullptr;
        SurvivesFault([&] { none(); });
      },
      EndedBy(EXCEPTION_ACCESS_VIOLATION), "");
}

TEST_F(FaultGuardDeathTest, LetsEveryOtherKindOfExceptionEndTheProgram) {
  for (const DWORD kind : {EXCEPTION_ILLEGAL_INSTRUCTION, EXCEPTION_PRIV_INSTRUCTION, EXCEPTION_BREAKPOINT,
                           EXCEPTION_GUARD_PAGE, EXCEPTION_NONCONTINUABLE_EXCEPTION}) {
    EXPECT_EXIT(SurvivesFault([&] { RaiseException(kind, 0, 0, nullptr); }), EndedBy(kind), "") << std::hex << kind;
  }
}

TEST_F(FaultGuardDeathTest, LetsAStackThatOverflowsEndTheProgram) {
  EXPECT_EXIT(SurvivesFault([] { Deep(1000000); }), EndedBy(EXCEPTION_STACK_OVERFLOW), "");
}

TEST_F(FaultGuardDeathTest, LeavesFaultsOutsideAGuardedCallAlone) {
  EXPECT_EXIT(
      {
        const ForbiddenPage page;
        SurvivesFault([] {});
        page.HaveSystemRead();
      },
      EndedBy(EXCEPTION_ACCESS_VIOLATION), "");
}

}  // namespace
}  // namespace tarvik
