#include "platform/FaultGuard.h"

#include <gtest/gtest.h>
#include <windows.h>

namespace tarvik {
namespace {

// A page that nobody may read.
class ForbiddenPage {
 public:
  ForbiddenPage() : page_(VirtualAlloc(nullptr, 4096, MEM_RESERVE | MEM_COMMIT, PAGE_NOACCESS)) {}
  ~ForbiddenPage() { VirtualFree(page_, 0, MEM_RELEASE); }
  ForbiddenPage(const ForbiddenPage&) = delete;
  ForbiddenPage& operator=(const ForbiddenPage&) = delete;

  char Read() const { return *static_cast<volatile char*>(page_); }

 private:
  void* page_;
};

TEST(FaultGuard, LetsACallThatFaultsNotBeTheEnd) {
  const ForbiddenPage page;
  bool finished = false;
  EXPECT_FALSE(SurvivesFault([&] {
    page.Read();
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
  for (int i = 0; i < 1000; ++i) faults += SurvivesFault([&] { page.Read(); }) ? 0 : 1;
  EXPECT_EQ(faults, 1000);
}

TEST(FaultGuard, CatchesAnErrorOnReadingAMappedFile) {
  EXPECT_FALSE(SurvivesFault([] { RaiseException(EXCEPTION_IN_PAGE_ERROR, 0, 0, nullptr); }));
}

TEST(FaultGuard, CatchesADivisionByZero) {
  volatile int size = 0;
  volatile int result = 0;
  EXPECT_FALSE(SurvivesFault([&] { result = 100 / size; }));
}

// Counts exceptions that the guard passed on, and lets the thread go on after each.
int passedOn = 0;
LONG CALLBACK CountAndGoOn(EXCEPTION_POINTERS*) {
  ++passedOn;
  return EXCEPTION_CONTINUE_EXECUTION;
}

TEST(FaultGuard, PassesOtherExceptionsOn) {
  SurvivesFault([] {});  // so that the guard stands before the counter
  PVOID const counter = AddVectoredExceptionHandler(0, CountAndGoOn);
  passedOn = 0;
  EXPECT_TRUE(SurvivesFault([] { RaiseException(EXCEPTION_BREAKPOINT, 0, 0, nullptr); }));
  RaiseException(EXCEPTION_ACCESS_VIOLATION, 0, 0, nullptr);  // not in a guarded call
  RemoveVectoredExceptionHandler(counter);
  EXPECT_EQ(passedOn, 2);
}

}  // namespace
}  // namespace tarvik
