#pragma once

#include <windows.h>

#include <commctrl.h>

#include <utility>

#include "base/NonCopyable.h"

namespace tarvik {

// The only owner of a system handle: closes it when destroyed or reset. Move-only. Policy defines the handle's Type,
// the value that means none, and how it is closed.
template <typename Policy>
class Owner {
 public:
  using Type = typename Policy::Type;

  Owner() = default;
  explicit Owner(Type handle) : handle_(handle) {}
  ~Owner() { reset(); }

  Owner(Owner&& other) noexcept : handle_(other.release()) {}
  Owner& operator=(Owner&& other) noexcept {
    if (this != &other) reset(other.release());
    return *this;
  }
  Owner(const Owner&) = delete;
  Owner& operator=(const Owner&) = delete;

  Type get() const { return handle_; }
  explicit operator bool() const { return handle_ != Policy::None(); }

  // Gives up ownership: the caller closes the handle.
  Type release() { return std::exchange(handle_, Policy::None()); }
  // Closes the handle and takes ownership of another, or of none.
  void reset(Type handle = Policy::None()) {
    const Type former = std::exchange(handle_, handle);
    if (former != Policy::None()) Policy::Close(former);
  }

 private:
  Type handle_ = Policy::None();
};

template <typename Handle>
struct GdiObjectPolicy {
  using Type = Handle;
  static Type None() { return nullptr; }
  static void Close(Type handle) { DeleteObject(handle); }
};
using BitmapHandle = Owner<GdiObjectPolicy<HBITMAP>>;
using BrushHandle = Owner<GdiObjectPolicy<HBRUSH>>;
using FontHandle = Owner<GdiObjectPolicy<HFONT>>;
using PenHandle = Owner<GdiObjectPolicy<HPEN>>;

struct MemoryDcPolicy {
  using Type = HDC;
  static Type None() { return nullptr; }
  static void Close(Type handle) { DeleteDC(handle); }
};
using MemoryDc = Owner<MemoryDcPolicy>;

struct IconPolicy {
  using Type = HICON;
  static Type None() { return nullptr; }
  static void Close(Type handle) { DestroyIcon(handle); }
};
using IconHandle = Owner<IconPolicy>;

struct ImageListPolicy {
  using Type = HIMAGELIST;
  static Type None() { return nullptr; }
  static void Close(Type handle) { ImageList_Destroy(handle); }
};
using ImageListHandle = Owner<ImageListPolicy>;

struct MenuPolicy {
  using Type = HMENU;
  static Type None() { return nullptr; }
  static void Close(Type handle) { DestroyMenu(handle); }
};
// A menu that belongs to no window; its sub-menus are destroyed with it.
using MenuHandle = Owner<MenuPolicy>;

struct FilePolicy {
  using Type = HANDLE;
  static Type None() { return INVALID_HANDLE_VALUE; }
  static void Close(Type handle) { CloseHandle(handle); }
};
using FileHandle = Owner<FilePolicy>;

struct KernelObjectPolicy {
  using Type = HANDLE;
  static Type None() { return nullptr; }
  static void Close(Type handle) { CloseHandle(handle); }
};
// A process, a thread, a job, an event: none is null, not INVALID_HANDLE_VALUE as for a file.
using KernelHandle = Owner<KernelObjectPolicy>;

struct FindPolicy {
  using Type = HANDLE;
  static Type None() { return INVALID_HANDLE_VALUE; }
  static void Close(Type handle) { FindClose(handle); }
};
using FindHandle = Owner<FindPolicy>;

struct RegistryKeyPolicy {
  using Type = HKEY;
  static Type None() { return nullptr; }
  static void Close(Type handle) { RegCloseKey(handle); }
};
using RegistryKey = Owner<RegistryKeyPolicy>;

// A window's device context, released when this object is destroyed.
class WindowDc : NonCopyable {
 public:
  explicit WindowDc(HWND window) : window_(window), dc_(GetDC(window)) {}
  ~WindowDc() { ReleaseDC(window_, dc_); }

  HDC get() const { return dc_; }

 private:
  HWND window_;
  HDC dc_;
};

// An object selected into a device context; the former one is restored when this object is destroyed.
class SelectedObject : NonCopyable {
 public:
  SelectedObject(HDC dc, HGDIOBJ object) : dc_(dc), former_(SelectObject(dc, object)) {}
  ~SelectedObject() { SelectObject(dc_, former_); }

 private:
  HDC dc_;
  HGDIOBJ former_;
};

}  // namespace tarvik
