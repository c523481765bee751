// The program's real windows against the model, in random sequences.
#include <windows.h>

#include <gtest/gtest.h>
#include <rapidcheck.h>

#include <algorithm>
#include <cstdlib>
#include <iostream>
#include <string>
#include <vector>

#include "model/Driver.h"

namespace tarvik::model {

void showValue(const Action& action, std::ostream& out) {
  out << "{" << action.what << ", " << action.a << ", " << action.b << ", " << action.c << "}";
}

}  // namespace tarvik::model

namespace rc {

template <>
struct Arbitrary<tarvik::model::Action> {
  static Gen<tarvik::model::Action> arbitrary() {
    using tarvik::model::Action;
    const auto number = gen::inRange(0, 1 << 15);
    return gen::build<Action>(gen::set(&Action::what, number), gen::set(&Action::a, number),
                              gen::set(&Action::b, number), gen::set(&Action::c, number));
  }
};

}  // namespace rc

namespace tarvik::model {
namespace {

// Steps in one run of the tests, and the most in one sequence. TARVIK_MODEL_STEPS asks for another number of them.
constexpr int usualSteps = 50000;
constexpr int longestSequence = 300;
constexpr std::uint64_t usualSeed = 20240611;

int WantedSteps() {
  const char* wanted = std::getenv("TARVIK_MODEL_STEPS");
  return wanted != nullptr ? std::atoi(wanted) : usualSteps;
}

std::string LastSteps(const std::vector<std::string>& log) {
  std::string lines;
  for (std::size_t i = 0; i < log.size(); ++i) lines += std::to_string(i + 1) + "  " + log[i] + "\n";
  return lines;
}

TEST(Model, TheWindowsShowWhatTheModelKnowsAfterEachStep) {
  std::size_t steps = 0;
  const auto sequences = rc::gen::container<std::vector<Action>>(rc::gen::arbitrary<Action>());
  const auto isAsTheModel = [&] {
    const int language = *rc::gen::inRange(0, 3);
    const std::vector<Action> actions = *sequences;
    Driver driver(static_cast<Tongue>(language), actions);
    const std::string difference = driver.Run();
    steps += driver.Log().size();
    if (getenv("TARVIK_MODEL_TALK")) { FILETIME a,b,c,d; GetProcessTimes(GetCurrentProcess(),&a,&b,&c,&d);
  std::cerr<<"steps "<<steps<<" user "<<d.dwLowDateTime/10000<<" kernel "<<c.dwLowDateTime/10000<<" at "<<GetTickCount64()<<"\n";}
    if (!difference.empty()) RC_FAIL(difference + LastSteps(driver.Log()));
  };
  rc::detail::TestParams params = rc::detail::configuration().testParams;
  if (std::getenv("RC_PARAMS") == nullptr) {
    params.seed = usualSeed;
    params.maxSize = longestSequence;
    params.maxSuccess = std::max(1, WantedSteps() * 2 / longestSequence + 1);
  }
  const auto result = rc::detail::checkTestable(isAsTheModel, rc::detail::TestMetadata{}, params);
  rc::detail::printResultMessage(result, std::cerr);
  EXPECT_TRUE(result.template is<rc::detail::SuccessResult>());
  std::cout << steps << " steps\n";
}

}  // namespace
}  // namespace tarvik::model
