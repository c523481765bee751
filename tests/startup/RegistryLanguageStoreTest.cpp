#include "startup/RegistryLanguageStore.h"

#include <gtest/gtest.h>
#include <windows.h>

#include <string>

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

}  // namespace
}  // namespace tarvik
