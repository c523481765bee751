#include "driver/Controls.h"

#include <commctrl.h>

#include <stdexcept>
#include <string_view>

#include "base/NonCopyable.h"
#include "driver/Waiting.h"
#include "platform/Handles.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

constexpr int textCapacity = 2048;  // characters of a cell or panel, terminating zero included

// Memory in the process that owns a window, for messages whose pointers the system does not marshal.
class RemoteMemory : NonCopyable {
 public:
  RemoteMemory(HWND window, std::size_t size) {
    DWORD process = 0;
    GetWindowThreadProcessId(window, &process);
    process_.reset(OpenProcess(PROCESS_VM_OPERATION | PROCESS_VM_READ | PROCESS_VM_WRITE, FALSE, process));
    address_ = VirtualAllocEx(process_.get(), nullptr, size, MEM_COMMIT | MEM_RESERVE, PAGE_READWRITE);
    if (address_ == nullptr) throw std::runtime_error("no memory in the other process");
  }
  ~RemoteMemory() { VirtualFreeEx(process_.get(), address_, 0, MEM_RELEASE); }

  void* At(std::size_t offset) const { return static_cast<std::byte*>(address_) + offset; }

  template <typename Value>
  void Write(std::size_t offset, const Value& value) const {
    if (WriteProcessMemory(process_.get(), At(offset), &value, sizeof value, nullptr) == 0)
      throw std::runtime_error("memory of the other process cannot be written");
  }
  template <typename Value>
  void Read(std::size_t offset, Value& value) const {
    if (ReadProcessMemory(process_.get(), At(offset), &value, sizeof value, nullptr) == 0)
      throw std::runtime_error("memory of the other process cannot be read");
  }
  std::string ReadText(std::size_t offset) const {
    wchar_t text[textCapacity] = {};
    Read(offset, text);
    text[textCapacity - 1] = L'\0';
    return ToUtf8(text);
  }

 private:
  KernelHandle process_;
  void* address_ = nullptr;
};

LPARAM Pointer(const void* address) {
  return reinterpret_cast<LPARAM>(address);
}

// The wParam of the message by which a drop-down list notifies its parent of a choice.
WPARAM ChoiceOf(HWND comboBox) {
  return MAKEWPARAM(static_cast<WORD>(GetDlgCtrlID(comboBox)), CBN_SELCHANGE);
}

}  // namespace

LRESULT Control::Send(UINT message, WPARAM wParam, LPARAM lParam) const {
  DWORD_PTR result = 0;
  const auto wait = static_cast<UINT>(std::chrono::milliseconds(patience).count());
  if (SendMessageTimeoutW(window_, message, wParam, lParam, SMTO_NORMAL, wait, &result) == 0)
    throw std::runtime_error("the window does not answer message " + std::to_string(message));
  return static_cast<LRESULT>(result);
}

void Control::Post(UINT message, WPARAM wParam, LPARAM lParam) const {
  if (PostMessageW(window_, message, wParam, lParam) == 0) throw std::runtime_error("the window takes no message");
}

std::string Control::Text() const {
  std::wstring text(static_cast<std::size_t>(Send(WM_GETTEXTLENGTH)) + 1, L'\0');
  const LRESULT length = Send(WM_GETTEXT, text.size(), Pointer(text.data()));
  return ToUtf8(std::wstring_view(text).substr(0, static_cast<std::size_t>(length)));
}

void Control::SetText(const std::string& text) const {
  Send(WM_SETTEXT, 0, Pointer(ToWide(text).c_str()));
}

RECT Control::Bounds() const {
  RECT bounds{};
  GetWindowRect(window_, &bounds);
  return bounds;
}

RECT Control::Inside() const {
  RECT inside{};
  GetClientRect(window_, &inside);
  MapWindowPoints(window_, nullptr, reinterpret_cast<POINT*>(&inside), 2);
  return inside;
}

std::optional<Control> Control::FindChild(int id) const {
  struct Search {
    int id;
    HWND found;
  } search{.id = id, .found = nullptr};
  EnumChildWindows(
      window_,
      [](HWND child, LPARAM data) {
        auto& wanted = *reinterpret_cast<Search*>(data);
        if (GetDlgCtrlID(child) != wanted.id) return TRUE;
        wanted.found = child;
        return FALSE;
      },
      Pointer(&search));
  return search.found != nullptr ? std::optional(Control(search.found)) : std::nullopt;
}

Control Control::Child(int id) const {
  if (const auto child = FindChild(id)) return *child;
  throw std::runtime_error("the window has no control " + std::to_string(id));
}

void Control::ChooseComboItem(int index) const {
  Send(CB_SETCURSEL, static_cast<WPARAM>(index));
  Control(GetParent(window_)).Send(WM_COMMAND, ChoiceOf(window_), Pointer(window_));
}

void Control::PostComboChoice(int index) const {
  Send(CB_SETCURSEL, static_cast<WPARAM>(index));
  Control(GetParent(window_)).Post(WM_COMMAND, ChoiceOf(window_), Pointer(window_));
}

POINT Control::ListRowMiddle(int index) const {
  Send(LB_SETTOPINDEX, static_cast<WPARAM>(index));
  RECT row{};
  Send(LB_GETITEMRECT, static_cast<WPARAM>(index), Pointer(&row));
  POINT middle{(row.left + row.right) / 2, (row.top + row.bottom) / 2};
  ClientToScreen(window_, &middle);
  return middle;
}

SCROLLINFO Control::Scroll() const {
  SCROLLINFO info{};
  info.cbSize = sizeof info;
  info.fMask = SIF_ALL;
  Send(SBM_GETSCROLLINFO, 0, Pointer(&info));
  return info;
}

std::vector<std::string> Control::Items(UINT count, UINT length, UINT text) const {
  std::vector<std::string> items;
  const LRESULT rows = Send(count);
  for (LRESULT row = 0; row < rows; ++row) {
    std::wstring item(static_cast<std::size_t>(Send(length, static_cast<WPARAM>(row))) + 1, L'\0');
    Send(text, static_cast<WPARAM>(row), Pointer(item.data()));
    item.pop_back();
    items.push_back(ToUtf8(item));
  }
  return items;
}

int ReportView::RowCount() const {
  return static_cast<int>(control_.Send(LVM_GETITEMCOUNT));
}

std::string ReportView::Cell(int row, int column) const {
  return Cells(row, row + 1, column).front();
}

std::vector<std::string> ReportView::Row(int row) const {
  std::vector<std::string> cells;
  for (int column = 0; column < static_cast<int>(Columns().size()); ++column) cells.push_back(Cell(row, column));
  return cells;
}

std::vector<std::string> ReportView::CellsOf(int column) const {
  return Cells(0, RowCount(), column);
}

std::vector<std::string> ReportView::Cells(int firstRow, int endRow, int column) const {
  const RemoteMemory memory(control_.Window(), sizeof(LVITEMW) + textCapacity * sizeof(wchar_t));
  LVITEMW item{};
  item.iSubItem = column;
  item.cchTextMax = textCapacity;
  item.pszText = static_cast<wchar_t*>(memory.At(sizeof item));
  memory.Write(0, item);
  std::vector<std::string> cells;
  for (int row = firstRow; row < endRow; ++row) {
    control_.Send(LVM_GETITEMTEXTW, static_cast<WPARAM>(row), Pointer(memory.At(0)));
    cells.push_back(memory.ReadText(sizeof item));
  }
  return cells;
}

bool ReportView::IsSelected(int row) const {
  return control_.Send(LVM_GETITEMSTATE, static_cast<WPARAM>(row), LVIS_SELECTED) == LVIS_SELECTED;
}

RECT ReportView::RowBounds(int row) const {
  RECT bounds{};
  bounds.left = LVIR_BOUNDS;
  const RemoteMemory memory(control_.Window(), sizeof bounds);
  memory.Write(0, bounds);
  control_.Send(LVM_GETITEMRECT, static_cast<WPARAM>(row), Pointer(memory.At(0)));
  memory.Read(0, bounds);
  MapWindowPoints(control_.Window(), nullptr, reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

std::vector<ReportView::Column> ReportView::Columns() const {
  std::vector<Column> columns;
  const RemoteMemory memory(control_.Window(), sizeof(LVCOLUMNW) + textCapacity * sizeof(wchar_t));
  for (WPARAM index = 0;; ++index) {
    LVCOLUMNW column{};
    column.mask = LVCF_TEXT | LVCF_WIDTH;
    column.cchTextMax = textCapacity;
    column.pszText = static_cast<wchar_t*>(memory.At(sizeof column));
    memory.Write(0, column);
    if (control_.Send(LVM_GETCOLUMNW, index, Pointer(memory.At(0))) == 0) return columns;
    memory.Read(0, column);
    columns.push_back({.title = memory.ReadText(sizeof column), .width = column.cx});
  }
}

RECT ToolbarView::ButtonBounds(int button) const {
  RECT bounds{};
  const RemoteMemory memory(control_.Window(), sizeof bounds);
  control_.Send(TB_GETRECT, static_cast<WPARAM>(button), Pointer(memory.At(0)));
  memory.Read(0, bounds);
  MapWindowPoints(control_.Window(), nullptr, reinterpret_cast<POINT*>(&bounds), 2);
  return bounds;
}

bool ToolbarView::IsEnabled(int button) const {
  return control_.Send(TB_ISBUTTONENABLED, static_cast<WPARAM>(button)) != 0;
}

std::string ToolbarView::ButtonText(int button) const {
  const RemoteMemory memory(control_.Window(), textCapacity * sizeof(wchar_t));
  control_.Send(TB_GETBUTTONTEXTW, static_cast<WPARAM>(button), Pointer(memory.At(0)));
  return memory.ReadText(0);
}

std::string StatusText(Control statusBar, int panel) {
  const RemoteMemory memory(statusBar.Window(), textCapacity * sizeof(wchar_t));
  statusBar.Send(SB_GETTEXTW, static_cast<WPARAM>(panel), Pointer(memory.At(0)));
  return memory.ReadText(0);
}

}  // namespace tarvik::end_to_end
