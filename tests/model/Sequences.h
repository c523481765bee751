#pragma once

#include <rapidcheck.h>

#include <chrono>
#include <cstdint>
#include <cstdlib>
#include <iostream>
#include <optional>
#include <ostream>
#include <sstream>
#include <string>
#include <vector>

#include "model/Action.h"

// How RapidCheck generates steps, and prints them.
namespace tarvik::model {

inline void showValue(const Action& action, std::ostream& out) {
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

// What one run of a sequence tells.
struct Told {
  int steps = 0;  // performed; a step that was not possible at its moment does not count
  std::string difference;
  std::vector<std::string> log;
};

struct Wanted {
  int steps = 0;            // at least so many are performed
  int longestSequence = 0;  // sequences of all lengths up to it are equally frequent
  std::uint64_t seed = 0;
};

struct Outcome {
  int steps = 0;
  std::string failure;  // empty if there is none
};

// How long a sequence that fails is shrunk: then the shortest one found so far is reported, well before the test's
// time-out.
inline constexpr std::chrono::minutes maxShrinking{3};

// Runs random sequences until they have performed the wanted number of steps. Prints the first that fails at once, and
// shrinks it; the outcome has the difference and the steps of the shortest that failed. RC_PARAMS in the environment
// replaces the seed and the number of sequences.
template <typename Run>
Outcome RunSequences(const Wanted& wanted, Run run) {
  rc::detail::TestParams parameters = rc::detail::configuration().testParams;
  const bool isAgain = std::getenv("RC_PARAMS") != nullptr;
  if (!isAgain) {
    parameters.seed = wanted.seed;
    parameters.disableShrinking = std::getenv("TARVIK_MODEL_NO_SHRINKING") != nullptr;
    // More than needed: half of the longest is the usual length, and not each step is possible.
    parameters.maxSuccess = 20 + 6 * wanted.steps / wanted.longestSequence;
  }
  Outcome outcome;
  using Clock = std::chrono::steady_clock;
  std::optional<Clock::time_point> failedAt;  // from then on, sequences are repeated to shrink the one that failed
  std::string shortest;                       // the failure of the shortest sequence so far
  const auto isAsTheModel = [&] {
    const int first = *rc::gen::inRange(0, 1 << 15);
    const auto actions =
        *rc::gen::resize(wanted.longestSequence, rc::gen::container<std::vector<Action>>(rc::gen::arbitrary<Action>()));
    if (!failedAt && !isAgain && outcome.steps >= wanted.steps) return;
    if (failedAt && Clock::now() - *failedAt > maxShrinking) return;
    const Told told = run(first, actions);
    outcome.steps += told.steps;
    if (told.difference.empty()) return;
    shortest = told.difference + Numbered(told.log);
    if (!failedAt) std::cout << "failed, and is shrunk now:\n" << shortest << std::endl;
    if (!failedAt) failedAt = Clock::now();
    RC_FAIL(shortest);
  };
  const auto result = rc::detail::checkTestable(isAsTheModel, rc::detail::TestMetadata{}, parameters);
  if (!result.template is<rc::detail::SuccessResult>()) {
    std::ostringstream text;
    rc::detail::printResultMessage(result, text);
    // RapidCheck runs the shortest sequence once more for its text. What depends on the timing passes then.
    text << "\n\n"
         << shortest << "\nagain with RC_PARAMS=\"seed=" << parameters.seed << " max_success=" << parameters.maxSuccess
         << "\"";
    outcome.failure = text.str();
  } else if (!isAgain && outcome.steps < wanted.steps) {
    outcome.failure = "only " + std::to_string(outcome.steps) + " steps";
  }
  return outcome;
}

}  // namespace tarvik::model
