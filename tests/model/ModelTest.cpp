// The program's real windows compared with the model, in random sequences.
#include <windows.h>

#include <gtest/gtest.h>
#include <uxtheme.h>

#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "model/Driver.h"
#include "model/Sequences.h"

namespace tarvik::model {
namespace {

// Steps in one run of the tests, in all parts together. TARVIK_MODEL_STEPS sets another total.
constexpr int usualSteps = 50000;
constexpr int parts = 8;
constexpr int longestSequence = 300;

// The other parts draw their controls without visual styles, as under a classic theme: under Wine that takes less time.
constexpr std::uint64_t themedPart = 1;

int WantedSteps() {
  const char* wanted = std::getenv("TARVIK_MODEL_STEPS");
  return wanted != nullptr ? std::atoi(wanted) : usualSteps;
}

// The clipboard belongs to the process's window station, so in one of its own this process shares it with no other
// test. The station has a name of this process: without a name, all processes of one user would get the same.
class ModelTest : public ::testing::TestWithParam<std::uint64_t> {
 protected:
  static void SetUpTestSuite() {
    const std::wstring name = L"tarvik-model-" + std::to_wstring(GetCurrentProcessId());
    const HWINSTA own = CreateWindowStationW(name.c_str(), CWF_CREATE_ONLY, MAXIMUM_ALLOWED, nullptr);
    USEROBJECTFLAGS visible{FALSE, FALSE, WSF_VISIBLE};  // otherwise Wine lets it have no display
    ASSERT_NE(SetUserObjectInformationW(own, UOI_FLAGS, &visible, sizeof visible), FALSE);
    ASSERT_NE(SetProcessWindowStation(own), FALSE);
  }
};

TEST_P(ModelTest, TheWindowsShowWhatTheModelKnowsAfterEachStep) {
  const Wanted wanted{.steps = WantedSteps() / parts, .longestSequence = longestSequence, .seed = GetParam()};
  if (GetParam() != themedPart) SetThemeAppProperties(0);
  const Outcome outcome = RunSequences(wanted, [](int first, const std::vector<Action>& actions) {
    Driver driver(static_cast<Tongue>(first % 3), actions);
    const std::string difference = driver.Run();
    return Told{.steps = driver.StepsDone(), .difference = difference, .log = driver.Log()};
  });
  EXPECT_TRUE(outcome.failure.empty()) << outcome.failure;
  std::cout << outcome.steps << " steps\n";
}

// Each part has its own seed.
INSTANTIATE_TEST_SUITE_P(Part, ModelTest, ::testing::Range<std::uint64_t>(1, parts + 1));

}  // namespace
}  // namespace tarvik::model
