#pragma once

#include <windows.h>

#include <filesystem>
#include <string>

#include "driver/Controls.h"
#include "platform/Handles.h"

namespace tarvik::end_to_end {

// The installer's default folder for the program.
inline const std::filesystem::path home = L"C:\\Program Files\\Brindle Tarvik";

// Starts a program in its own folder with the rights of this process.
KernelHandle Start(const std::filesystem::path& program, const std::wstring& arguments = {});

// The same with the rights of a user who is not an administrator.
KernelHandle StartAsOrdinaryUser(const std::filesystem::path& program);

// Whether a process has the rights of an administrator.
bool IsOfAdministrator(HANDLE process);

// Waits for a visible top-level window that has a control with that id, of that process if one is given.
Control WaitForWindowWith(int id, HANDLE process = nullptr);

// The process that owns a window, with the rights to query it and to wait for it.
KernelHandle ProcessOf(Control window);

// The id of the process that started that one, which may have ended. 0 if the process itself has ended.
DWORD ParentOf(HANDLE process);

}  // namespace tarvik::end_to_end
