#include "platform/SystemLibrary.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

#include "base/FolderPath.h"
#include "base/NonCopyable.h"
#include "platform/Paths.h"
#include "platform/TemporaryFolder.h"
#include "platform/Text.h"

namespace tarvik {
namespace {

// Both ways to load a library: the usual one and that of an old Windows 7.
class EachWayOfLoading : public ::testing::TestWithParam<HMODULE (*)(const char*)> {};

std::string PathOf(HMODULE module) {
  std::wstring path(MAX_PATH, L'\0');
  path.resize(GetModuleFileNameW(module, path.data(), MAX_PATH));
  return ToUtf8(path);
}

// A DLL in this program's folder and in the current folder while the object lives.
class PlantedLibrary : NonCopyable {
 public:
  explicit PlantedLibrary(const std::string& name) : name_(name), beside_(ToWide(JoinPath(ProgramFolder(), name))) {
    const std::wstring intact = ToWide(JoinPath(SystemFolder(), "version.dll"));
    CopyFileW(intact.c_str(), beside_.c_str(), FALSE);
    CopyFileW(intact.c_str(), ToWide(folder_.In(name)).c_str(), FALSE);
    former_.resize(GetCurrentDirectoryW(MAX_PATH, former_.data()));
    SetCurrentDirectoryW(ToWide(folder_.Path()).c_str());
  }
  ~PlantedLibrary() {
    SetCurrentDirectoryW(former_.c_str());
    DeleteFileW(beside_.c_str());
  }

  const std::string& Name() const { return name_; }
  // Whether the DLL is valid: it loads by its full path.
  bool LoadsByItsPath() const {
    const HMODULE module = LoadLibraryW(beside_.c_str());
    if (module != nullptr) FreeLibrary(module);
    return module != nullptr;
  }

 private:
  support::TemporaryFolder folder_;
  std::string name_;
  std::wstring beside_;
  std::wstring former_ = std::wstring(MAX_PATH, L'\0');
};

TEST_P(EachWayOfLoading, TakesTheSystemsLibrary) {
  ASSERT_EQ(GetModuleHandleW(L"cabinet.dll"), nullptr) << "it would not be looked for";
  const HMODULE library = GetParam()("cabinet.dll");
  ASSERT_NE(library, nullptr);
  EXPECT_STRCASEEQ(PathOf(library).c_str(), JoinPath(SystemFolder(), "cabinet.dll").c_str());
  FreeLibrary(library);
}

TEST_P(EachWayOfLoading, TakesNoLibraryFromTheProgramsFolderOrTheCurrentOne) {
  const PlantedLibrary planted("planted" + std::to_string(GetCurrentProcessId()) + ".dll");
  ASSERT_TRUE(planted.LoadsByItsPath());
  EXPECT_EQ(GetParam()(planted.Name().c_str()), nullptr);
}

INSTANTIATE_TEST_SUITE_P(SystemLibrary, EachWayOfLoading,
                         ::testing::Values(&LoadSystemLibrary, &LoadSystemLibraryByPath), [](const auto& way) {
                           return way.param == &LoadSystemLibrary ? "ByTheLoadersSearch" : "ByPath";
                         });

TEST(LateFunction, IsCalledLikeTheFunctionItself) {
  const LateFunction<decltype(&::MulDiv)> mulDiv("kernel32.dll", "MulDiv");
  EXPECT_EQ(mulDiv(6, 7, 2), 21);
  EXPECT_EQ(mulDiv.Get(), mulDiv.Find());
}

TEST(LateFunction, LoadsItsLibraryWithTheFirstCall) {
  ASSERT_EQ(GetModuleHandleW(L"avifil32.dll"), nullptr);
  using AviFileInit = void(WINAPI*)();
  const LateFunction<AviFileInit> init("avifil32.dll", "AVIFileInit");
  EXPECT_EQ(GetModuleHandleW(L"avifil32.dll"), nullptr);
  init();
  EXPECT_NE(GetModuleHandleW(L"avifil32.dll"), nullptr);
}

// The text of the error that a call throws, apart from its type.
std::string ErrorOf(const char* library, const char* name) {
  const LateFunction<int(WINAPI*)()> function(library, name);
  EXPECT_EQ(function.Find(), nullptr);
  try {
    function();
  } catch (const MissingFunctionError& error) {
    return error.Detail();
  }
  return "no error";
}

TEST(LateFunction, SaysWhichFunctionOfWhichLibraryIsMissing) {
  EXPECT_EQ(ErrorOf("kernel32.dll", "NoSuchFunction"), "NoSuchFunction (kernel32.dll)");
  EXPECT_EQ(ErrorOf("nosuch.dll", "MulDiv"), "MulDiv (nosuch.dll)");
}

}  // namespace
}  // namespace tarvik
