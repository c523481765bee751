#include "forms/SystemTaskBar.h"

#include "base/RuntimeError.h"
#include "platform/SystemFunctions.h"

namespace tarvik {
namespace {

TBPFLAG FlagOf(TaskBar::State state) {
  switch (state) {
    case TaskBar::State::None:
      return TBPF_NOPROGRESS;
    case TaskBar::State::Indeterminate:
      return TBPF_INDETERMINATE;
    case TaskBar::State::Normal:
      return TBPF_NORMAL;
    case TaskBar::State::Error:
      return TBPF_ERROR;
  }
  return TBPF_NOPROGRESS;
}

ITaskbarList3* MakeList() {
  void* object = nullptr;
  if (FAILED(late::CoCreateInstance(CLSID_TaskbarList, nullptr, CLSCTX_INPROC_SERVER, IID_ITaskbarList3, &object)))
    return nullptr;
  return static_cast<ITaskbarList3*>(object);
}

}  // namespace

void SystemTaskBar::SetState(HWND window, State state) {
  if (ITaskbarList3* list = List()) list->SetProgressState(window, FlagOf(state));
}

void SystemTaskBar::SetShare(HWND window, int done, int total) {
  if (ITaskbarList3* list = List())
    list->SetProgressValue(window, static_cast<ULONGLONG>(done), static_cast<ULONGLONG>(total));
}

ITaskbarList3* SystemTaskBar::List() {
  if (asked_) return list_.get();
  asked_ = true;
  try {
    use_.emplace();
    list_.reset(MakeList());
  } catch (const RuntimeError&) {
    return nullptr;  // a system without COM
  }
  if (list_ && FAILED(list_->HrInit())) list_.reset();
  return list_.get();
}

}  // namespace tarvik
