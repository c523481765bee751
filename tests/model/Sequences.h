#pragma once

#include <rapidcheck.h>

#include <ostream>

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
