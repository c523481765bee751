#include "platform/FaultGuard.h"

#include <windows.h>

#include <csetjmp>

namespace tarvik {
namespace {

// Where the guarded call of this thread was made; null while there is none.
thread_local jmp_buf* returnPlace = nullptr;

[[noreturn]] void LeaveCall() {
  jmp_buf* const place = returnPlace;
  returnPlace = nullptr;
  std::longjmp(*place, 1);
}

// What a damaged file can lead to: an offset or a count beyond it, the file gone from under its mapping, a size of 0
// that something is divided by.
bool IsFault(DWORD code) {
  return code == EXCEPTION_ACCESS_VIOLATION || code == EXCEPTION_IN_PAGE_ERROR ||
         code == EXCEPTION_INT_DIVIDE_BY_ZERO || code == EXCEPTION_INT_OVERFLOW;
}

// Lets the thread go on in LeaveCall instead of where it faulted. It leaves from there and not from here, so that
// the system ends its own work on the exception first.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  if (returnPlace == nullptr || !IsFault(exception->ExceptionRecord->ExceptionCode)) return EXCEPTION_CONTINUE_SEARCH;

  // A function is entered with its stack 8 bytes off a multiple of 16, above the caller's room for four arguments.
  constexpr DWORD64 argumentRoom = 32;
  constexpr DWORD64 returnAddressSize = 8;
  CONTEXT& state = *exception->ContextRecord;
  state.Rsp = (state.Rsp - argumentRoom) / 16 * 16 - returnAddressSize;
  state.Rip = reinterpret_cast<DWORD64>(&LeaveCall);
  return EXCEPTION_CONTINUE_EXECUTION;
}

}  // namespace

bool CallSurvivesFault(void (*call)(void* context), void* context) {
  // First in line and for the whole run; without a guarded call it passes every exception on.
  [[maybe_unused]] static void* const handler = AddVectoredExceptionHandler(1, OnException);

  jmp_buf place;
  // No frame is given, so that the jump restores the registers and unwinds nothing: frames of the system that were
  // cut off need not be unwindable.
  if (_setjmp(place, nullptr) != 0) return false;
  returnPlace = &place;
  call(context);
  returnPlace = nullptr;
  return true;
}

}  // namespace tarvik
