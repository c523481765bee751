#include "search/icons/FaultGuard.h"

#include <windows.h>

#include <csetjmp>

namespace tarvik {
namespace {

// The return point of the guarded call of this thread; null outside a guarded call.
thread_local jmp_buf* returnPoint = nullptr;

[[noreturn]] void LeaveCall() {
  jmp_buf* const point = returnPoint;
  returnPoint = nullptr;
  std::longjmp(*point, 1);
}

// Faults that a damaged file can cause: an offset or a count beyond its end, a file removed from under its mapping, a
// division by a size of 0, or a quotient that does not fit. Every other exception means that more is wrong than a file:
// an illegal instruction, a breakpoint, a stack overflow, or a jump to an address without code.
bool IsFaultOfReading(const EXCEPTION_RECORD& exception) {
  switch (exception.ExceptionCode) {
    case EXCEPTION_ACCESS_VIOLATION:
      return exception.NumberParameters == 0 || exception.ExceptionInformation[0] != EXCEPTION_EXECUTE_FAULT;
    case EXCEPTION_IN_PAGE_ERROR:
    case EXCEPTION_INT_DIVIDE_BY_ZERO:
    case EXCEPTION_INT_OVERFLOW:
      return true;
    default:
      return false;
  }
}

// The module that the instruction is in; null if it is in none.
void* ModuleOf(PVOID instruction) {
  void* module = nullptr;
  return RtlPcToFileHeader(instruction, &module);
}

// Whether the instruction is this program's own, whose faults must not be hidden. All others are the system's,
// including those in no module: Wine reads files partly in libraries of the host system, which are not modules.
bool IsOfProgram(PVOID instruction) {
  return ModuleOf(instruction) == ModuleOf(reinterpret_cast<void*>(&LeaveCall));
}

// Makes the thread continue in LeaveCall instead of at the fault. The jump is made there and not here, so that the
// system finishes its own exception handling first.
LONG CALLBACK OnException(EXCEPTION_POINTERS* exception) {
  if (returnPoint == nullptr) return EXCEPTION_CONTINUE_SEARCH;
  const EXCEPTION_RECORD& record = *exception->ExceptionRecord;
  if (!IsFaultOfReading(record) || IsOfProgram(record.ExceptionAddress)) return EXCEPTION_CONTINUE_SEARCH;

  // A function is entered with its stack 8 bytes off a multiple of 16, above the caller's space for four arguments.
  constexpr DWORD64 argumentRoom = 32;
  constexpr DWORD64 returnAddressSize = 8;
  CONTEXT& state = *exception->ContextRecord;
  state.Rsp = (state.Rsp - argumentRoom) / 16 * 16 - returnAddressSize;
  state.Rip = reinterpret_cast<DWORD64>(&LeaveCall);
  return EXCEPTION_CONTINUE_EXECUTION;
}

}  // namespace

bool CallSurvivesFault(void (*call)(void* context), void* context) {
  // First in the chain and installed for the whole run; outside a guarded call it passes every exception on.
  [[maybe_unused]] static void* const handler = AddVectoredExceptionHandler(1, OnException);

  jmp_buf point;
  // No frame is given, so that the jump restores the registers and unwinds nothing: the aborted frames of the system
  // need not be unwindable.
  if (_setjmp(point, nullptr) != 0) return false;
  returnPoint = &point;
  call(context);
  returnPoint = nullptr;
  return true;
}

}  // namespace tarvik
