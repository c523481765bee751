#pragma once

#include <type_traits>

namespace tarvik {

// The untyped form of SurvivesFault: calls call(context).
bool CallSurvivesFault(void (*call)(void* context), void* context);

// Makes `call`, a call of the system that reads a file, and returns whether it came back. False if a fault of memory or
// of division in the system's own code cut it off: the system reads files through mappings, and faults if a share or a
// stick goes away while it reads, or if it trusts an offset, a count or a size in a damaged file.
//
// Every other exception goes its usual way and ends the program unless somebody handles it: a fault of an instruction
// of this program, a jump to where there is no code, and every other kind of exception, wherever it comes from.
//
// A call that is cut off leaks what it held, and destructors in it do not run: `call` makes one system call that
// does nothing but read, stores plain values, and throws nothing. Calls are not nested.
template <typename Call>
bool SurvivesFault(Call&& call) {
  using Callee = std::remove_reference_t<Call>;
  return CallSurvivesFault([](void* context) { (*static_cast<Callee*>(context))(); }, &call);
}

}  // namespace tarvik
