#pragma once

// Shared by the tests and their skin component. The component is a DLL loaded by the test's own process or by a program
// that the test starts. It gets its orders by environment variables and logs its calls to a file.
namespace tarvik::support {

inline constexpr const wchar_t* skinClassId = L"{6F0C3B52-7D1E-4C0A-9E57-2B1F5A8C9D10}";

// How the component behaves: one of the words below, or empty for a component that works.
inline constexpr const wchar_t* skinBehaviour = L"TARVIK_TEST_SKIN_BEHAVIOUR";
inline constexpr const wchar_t* failsInLoadSkin = L"fails in LoadSkin";
inline constexpr const wchar_t* failsInApplySkin = L"fails in ApplySkin";
inline constexpr const wchar_t* lacksApplySkin = L"lacks ApplySkin";

// Names the file to which it appends its log: "made", "LoadSkin PATH", "ApplySkin HANDLE" (decimal) and "gone", each
// followed by a bar; UTF-8.
inline constexpr const wchar_t* skinDiary = L"TARVIK_TEST_SKIN_DIARY";

}  // namespace tarvik::support
