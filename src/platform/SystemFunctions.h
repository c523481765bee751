#pragma once

#include <windows.h>

#include <commdlg.h>
#include <objbase.h>
#include <oleacc.h>
#include <oleauto.h>
#include <shellapi.h>
#include <winnetwk.h>

#include "platform/SystemLibrary.h"

// The functions of the system that the first window does not need, each under its own name. Call them through this
// namespace: a direct call would make the system load the DLL at every start, which scripts/check-exe refuses.
namespace tarvik::late {
// NOLINTBEGIN(readability-identifier-naming): each has its function's name

inline constinit const LateFunction<decltype(&::GetOpenFileNameA)> GetOpenFileNameA("comdlg32.dll", "GetOpenFileNameA");
inline constinit const LateFunction<decltype(&::GetSaveFileNameA)> GetSaveFileNameA("comdlg32.dll", "GetSaveFileNameA");

inline constinit const LateFunction<decltype(&::WNetGetConnectionW)> WNetGetConnectionW("mpr.dll",
                                                                                        "WNetGetConnectionW");

inline constinit const LateFunction<decltype(&::CreateStdAccessibleObject)> CreateStdAccessibleObject(
    "oleacc.dll", "CreateStdAccessibleObject");
inline constinit const LateFunction<decltype(&::LresultFromObject)> LresultFromObject("oleacc.dll",
                                                                                      "LresultFromObject");

inline constinit const LateFunction<decltype(&::CLSIDFromProgID)> CLSIDFromProgID("ole32.dll", "CLSIDFromProgID");
inline constinit const LateFunction<decltype(&::CoCreateInstance)> CoCreateInstance("ole32.dll", "CoCreateInstance");
inline constinit const LateFunction<decltype(&::CoInitializeEx)> CoInitializeEx("ole32.dll", "CoInitializeEx");
inline constinit const LateFunction<decltype(&::CoUninitialize)> CoUninitialize("ole32.dll", "CoUninitialize");

inline constinit const LateFunction<decltype(&::SysAllocStringLen)> SysAllocStringLen("oleaut32.dll",
                                                                                      "SysAllocStringLen");
inline constinit const LateFunction<decltype(&::VariantClear)> VariantClear("oleaut32.dll", "VariantClear");

inline constinit const LateFunction<decltype(&::DragFinish)> DragFinish("shell32.dll", "DragFinish");
inline constinit const LateFunction<decltype(&::DragQueryFileW)> DragQueryFileW("shell32.dll", "DragQueryFileW");
inline constinit const LateFunction<decltype(&::ExtractIconExA)> ExtractIconExA("shell32.dll", "ExtractIconExA");
inline constinit const LateFunction<decltype(&::ShellExecuteW)> ShellExecuteW("shell32.dll", "ShellExecuteW");
// NOLINTEND(readability-identifier-naming)
}  // namespace tarvik::late
