#pragma once

// What the tests and their skin component share. The component is a DLL that the test's own process loads, or a program
// that the test starts: it is told what to do through the environment, and what it does it writes to a file.
namespace tarvik::support {

inline constexpr const wchar_t* skinClassId = L"{6F0C3B52-7D1E-4C0A-9E57-2B1F5A8C9D10}";

// What the component is to do: one of the words below, or nothing for a component that works.
inline constexpr const wchar_t* skinBehaviour = L"TARVIK_TEST_SKIN_BEHAVIOUR";
inline constexpr const wchar_t* failsInLoadSkin = L"fails in LoadSkin";
inline constexpr const wchar_t* failsInApplySkin = L"fails in ApplySkin";
inline constexpr const wchar_t* lacksApplySkin = L"lacks ApplySkin";

// Names the file to which it adds what it did: "made", "LoadSkin PATH", "ApplySkin HANDLE" (decimal) and "gone", each
// with a bar behind it; UTF-8.
inline constexpr const wchar_t* skinDiary = L"TARVIK_TEST_SKIN_DIARY";

}  // namespace tarvik::support
