#pragma once

#include <type_traits>

namespace tarvik {

// The untyped form of SurvivesFault: calls call(context).
bool CallSurvivesFault(void (*call)(void* context), void* context);

// Makes `call` and says whether it came back. False where it was cut off by a fault of memory or of division: the
// system reads files through mappings, and it faults where a share or a stick goes away while it reads, or where it
// trusts an offset, a count or a size in a damaged file. Any other exception goes its usual way.
//
// A call that is cut off leaks what it held, and destructors in it do not run: `call` makes one system call that
// does nothing but read, stores plain values, and throws nothing. Calls are not nested.
template <typename Call>
bool SurvivesFault(Call&& call) {
  using Callee = std::remove_reference_t<Call>;
  return CallSurvivesFault([](void* context) { (*static_cast<Callee*>(context))(); }, &call);
}

}  // namespace tarvik
