#include "startup/RegistryLanguageStore.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <initializer_list>
#include <string>
#include <string_view>

#include "base/NonCopyable.h"
#include "platform/Handles.h"
#include "startup/Language.h"

namespace tarvik {
namespace {

// Deletes the language key, with anything that an aborted test may have left in it.
void DeleteKey() {
  for (const char* key : {registryLanguageKey, R"(Software\Vornhold\Brindle Tarvik)", R"(Software\Vornhold)"})
    RegDeleteKeyA(HKEY_LOCAL_MACHINE, key);
}

// A language key, new and without a value, while this object lives.
class LanguageKey : NonCopyable {
 public:
  LanguageKey() {
    DeleteKey();
    HKEY key = nullptr;
    DWORD disposition = 0;
    EXPECT_EQ(RegCreateKeyExA(HKEY_LOCAL_MACHINE, registryLanguageKey, 0, nullptr, 0, KEY_ALL_ACCESS, nullptr, &key,
                              &disposition),
              ERROR_SUCCESS);
    key_.reset(key);
  }
  ~LanguageKey() {
    key_.reset();
    DeleteKey();
  }

  void Set(const std::string& value) const {
    EXPECT_EQ(RegSetValueExA(key_.get(), "Language", 0, REG_SZ, reinterpret_cast<const BYTE*>(value.c_str()),
                             static_cast<DWORD>(value.size() + 1)),
              ERROR_SUCCESS);
  }
  // A value of any kind, with exactly these bytes as the registry stores them.
  void SetBytes(DWORD kind, std::string_view bytes) const {
    EXPECT_EQ(RegSetValueExW(key_.get(), L"Language", 0, kind, reinterpret_cast<const BYTE*>(bytes.data()),
                             static_cast<DWORD>(bytes.size())),
              ERROR_SUCCESS);
  }

 private:
  RegistryKey key_;
};

std::string Read() {
  return ReadRegistryLanguage("Language");
}

TEST(RegistryLanguageStore, GivesTheValueInABufferOfBlanks) {
  const LanguageKey key;
  key.Set(" chs");
  EXPECT_EQ(Read(), std::string(" chs\0", 5) + std::string(255, ' '));
}

TEST(RegistryLanguageStore, GivesUtf8) {
  const LanguageKey key;
  key.Set("简体");
  EXPECT_EQ(Read(), std::string("简体\0", 7) + std::string(253, ' '));
}

TEST(RegistryLanguageStore, GivesBlanksWhereThereIsNoValue) {
  const LanguageKey key;
  EXPECT_EQ(Read(), std::string(260, ' '));
}

TEST(RegistryLanguageStore, GivesNothingWhereThereIsNoKey) {
  DeleteKey();
  EXPECT_EQ(Read(), "");
}

TEST(RegistryLanguageStore, LeavesTheBufferBlankForAValueThatIsTooLong) {
  const LanguageKey key;
  key.Set(std::string(300, 'E'));
  EXPECT_EQ(Read(), std::string(260, ' '));
}

TEST(RegistryLanguageStore, SettlesTheLanguageTogetherWithTheRule) {
  const LanguageKey key;
  EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), "ENG");
  key.Set("chs");
  EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), "CHS");
  key.Set("  CHT  ");
  EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), "  C");
}

// Texts are stored in UTF-16, so each letter is followed by a zero byte.
TEST(RegistryLanguageStore, TakesTheFirstThreeBytesOfAValueOfAnyKind) {
  using namespace std::string_view_literals;
  struct Row {
    DWORD kind;
    std::string_view bytes;
    std::string_view language;
  };
  constexpr Row rows[] = {
      {REG_SZ, "C\0H\0S\0"sv, "CHS"sv},  // without its terminating zero
      {REG_EXPAND_SZ, "C\0H\0S\0\0\0"sv, "CHS"sv},
      {REG_EXPAND_SZ, "%\0T\0E\0M\0P\0%\0\0\0"sv, "%TE"sv},
      {REG_MULTI_SZ, "C\0H\0T\0\0\0C\0H\0S\0\0\0\0\0"sv, "CHT"sv},
      {REG_MULTI_SZ, "\0\0"sv, "\0  "sv},
      {REG_DWORD, "\1\0\0\0"sv, "\1\0\0"sv},
      {REG_DWORD, "CHS\0"sv, "CHS"sv},
      {REG_QWORD, "\0\0\0\0\0\0\0\0"sv, "\0\0\0"sv},
      {REG_BINARY, "chs"sv, "CHS"sv},
      {REG_BINARY, "\xFF\xFE\xC0\x80"sv, "\xFF\xFE\xC0"sv},
      {REG_BINARY, "   "sv, "ENG"sv},
      {REG_NONE, "CHT"sv, "CHT"sv},
  };
  const LanguageKey key;
  for (const Row& row : rows) {
    key.SetBytes(row.kind, row.bytes);
    EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), row.language) << row.kind << ' ' << row.bytes;
  }
}

TEST(RegistryLanguageStore, IsEnglishForAValueLongerThanTheBuffer) {
  const LanguageKey key;
  key.SetBytes(REG_BINARY, std::string(260, 'C'));
  EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), "CCC");
  for (const std::size_t size : {std::size_t{261}, std::size_t{1} << 20U}) {
    for (const DWORD kind : std::initializer_list<DWORD>{REG_BINARY, REG_SZ, REG_MULTI_SZ}) {
      key.SetBytes(kind, std::string(2 * size, 'C'));
      EXPECT_EQ(ChooseLanguage(ReadRegistryLanguage), "ENG") << kind << ' ' << size;
    }
  }
}

}  // namespace
}  // namespace tarvik
