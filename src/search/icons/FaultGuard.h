#pragma once

#include <type_traits>

namespace tarvik {

// The untyped form of SurvivesFault: calls call(context).
bool CallSurvivesFault(void (*call)(void* context), void* context);

// Makes `call`, a call of the system that reads a file, and returns whether it finished. Returns false if a memory
// fault or a division fault in the system's own code aborted it: the system reads files through mappings, and faults if
// a share or a stick is removed while it reads, or if it trusts an offset, a count or a size in a damaged file.
//
// Every other exception takes its usual way and ends the program unless a handler catches it: a fault of an instruction
// of this program, a jump to an address without code, and every other kind of exception, wherever it comes from.
//
// An aborted call leaks what it had allocated, and destructors in it do not run. So `call` makes one system call that
// only reads, stores plain values, and throws nothing. Calls are not nested.
template <typename Call>
bool SurvivesFault(Call&& call) {
  using Callee = std::remove_reference_t<Call>;
  return CallSurvivesFault([](void* context) { (*static_cast<Callee*>(context))(); }, &call);
}

}  // namespace tarvik
