// The interface in three languages, and with a language in the registry that it does not support.

#include <windows.h>

#include <gmock/gmock.h>

#include "end_to_end/EndToEndTest.h"
#include "platform/IconFiles.h"
#include "platform/Text.h"
#include "startup/RegistryLanguageStore.h"

namespace tarvik::end_to_end {
namespace {

using support::IconFileOf;

struct Texts {
  const char* caption;
  const char* chkSubDir;
  const char* CmdFind;
  const char* CmdClose;
  const char* CmdOk;
  const char* Label3;
  const char* lblInfo;
  const char* SkinLabel1;
  const char* SkinLabel2;
  const char* OptView0;
  const char* OptView1;
};

constexpr Texts english{"Brindle Tarvik",
                        "Include SubDir",
                        "&Find",
                        "&Close",
                        "&OK",
                        "File Type:",
                        "Icon No 1 Selected.",
                        "&Automatically stop after listing",
                        "icons to save memory",
                        "Icon",
                        "List"};
constexpr Texts simplified{"布林德图标搜索", "包含子目录",   "查找(&F)",
                           "关闭(&C)",       "确定(&O)",     "文件类型:",
                           "选中NO.1 图标.", "每次允许最大", "个图标出现在结果列表中",
                           "图标",           "列表"};
constexpr Texts traditional{"布林德圖示搜尋", "包含子目錄",   "查找(&F)",
                            "關閉(&C)",       "確定(&O)",     "文件類型:",
                            "選中NO.1 圖示.", "每次允許最大", "個圖示出現在結果列表中",
                            "圖示",           "列表"};
constexpr Texts design{"Find Icons",
                       "Include SubDir",
                       "&Find",
                       "&Close",
                       "&OK",
                       "File Type:",
                       "Icon No 1 Selected.",
                       "&Automatically stop after listing",
                       "icons to save memory",
                       "Show Icon",
                       "Show List"};

struct LanguageRow {
  std::optional<std::string> value;  // as stored in the registry
  const Texts* texts;
  friend void PrintTo(const LanguageRow& row, std::ostream* out) {
    *out << (row.value ? '"' + *row.value + '"' : "no value");
  }
};

class Language : public EndToEnd, public ::testing::WithParamInterface<LanguageRow> {};

TEST_P(Language, SetsTheTextsOfTheMainWindow) {
  const LanguageValue language(GetParam().value);
  Start();
  const Texts& texts = *GetParam().texts;
  EXPECT_EQ(Caption(), texts.caption);
  const std::pair<int, const char*> rows[] = {
      {FrmFindIcon_chkSubDir, texts.chkSubDir},   {FrmFindIcon_CmdFind, texts.CmdFind},
      {FrmFindIcon_CmdClose, texts.CmdClose},     {FrmFindIcon_CmdOk, texts.CmdOk},
      {FrmFindIcon_Label3, texts.Label3},         {FrmFindIcon_lblInfo, texts.lblInfo},
      {FrmFindIcon_SkinLabel1, texts.SkinLabel1}, {FrmFindIcon_SkinLabel2, texts.SkinLabel2},
      {FrmFindIcon_OptView0, texts.OptView0},     {FrmFindIcon_OptView1, texts.OptView1}};
  for (const auto& [id, text] : rows) EXPECT_EQ(TextOf(id), text) << id;
}

INSTANTIATE_TEST_SUITE_P(Values, Language,
                         ::testing::Values(LanguageRow{std::nullopt, &english}, LanguageRow{"English", &english},
                                           LanguageRow{"chs", &simplified}, LanguageRow{"CHT-TW", &traditional},
                                           LanguageRow{"  CHT  ", &design}, LanguageRow{" chs", &design},
                                           LanguageRow{"Chinese", &design}, LanguageRow{"中文", &design},
                                           // The value exists, and so does its terminating zero.
                                           LanguageRow{"", &design}));

class LanguageValues : public EndToEnd {};

TEST_F(LanguageValues, OfOtherKindsThanATextLeaveTheProgramUsable) {
  const LanguageValue language("CHS");
  const std::string huge(std::size_t{1} << 20U, 'C');
  const struct {
    DWORD kind;
    std::string bytes;
    const Texts* texts;
  } rows[] = {{REG_DWORD, std::string("\1\0\0\0", 4), &design},
              {REG_BINARY, "CHT", &traditional},
              {REG_MULTI_SZ, std::string("C\0H\0S\0\0\0\0\0", 10), &simplified},
              {REG_EXPAND_SZ, std::string("C\0H\0S\0", 6), &simplified},
              {REG_SZ, huge, &english}};
  tree_.MakeFile("a.ico", IconFileOf(0xFF));
  for (const auto& row : rows) {
    SCOPED_TRACE(row.kind);
    ASSERT_EQ(RegSetKeyValueW(HKEY_LOCAL_MACHINE, ToWide(registryLanguageKey).c_str(), L"Language", row.kind,
                              row.bytes.data(), static_cast<DWORD>(row.bytes.size())),
              ERROR_SUCCESS);
    Start();
    EXPECT_EQ(Caption(), row.texts->caption);
    EXPECT_EQ(TextOf(FrmFindIcon_CmdFind), row.texts->CmdFind);
    Find();
    EXPECT_EQ(List().RowCount(), 1);
    EXPECT_EQ(program_.Close(), 0U);
  }
}

class SearchTexts : public EndToEnd {
 protected:
  void MakeIcons(int count) const {
    for (int i = 0; i < count; ++i) tree_.MakeFile(std::to_string(i) + ".ico", IconFileOf(0xFF));
  }
};

struct FoundRow {
  const char* language;
  const char* count;
  const char* status;
  const char* info;
  friend void PrintTo(const FoundRow& row, std::ostream* out) { *out << row.language; }
};

class FoundTexts : public SearchTexts, public ::testing::WithParamInterface<FoundRow> {};

TEST_P(FoundTexts, TellWhatASearchFound) {
  const LanguageValue language(GetParam().language);
  MakeIcons(2);
  Start();
  Find();
  EXPECT_EQ(Caption(), "Brindle Tarvik - " + tree_.Path() + " - 2" + GetParam().count);
  EXPECT_EQ(Status(), GetParam().status);
  EXPECT_EQ(TextOf(FrmFindIcon_lblInfo), GetParam().info);
}

INSTANTIATE_TEST_SUITE_P(
    Languages, FoundTexts,
    ::testing::Values(FoundRow{"CHS", " 个图标", "2个图标被加入列表.双击图标可以浏览.", "选中NO.1 图标."},
                      FoundRow{"CHT", " 個圖示", "2個圖示被加入列表.雙擊圖示可以流覽.", "選中NO.1 圖示."}));

struct RefusedRow {
  const char* language;
  const char* noIcons;  // after the folder
  const char* raise;
  const char* narrow;
  friend void PrintTo(const RefusedRow& row, std::ostream* out) { *out << row.language; }
};

class RefusedTexts : public SearchTexts, public ::testing::WithParamInterface<RefusedRow> {};

TEST_P(RefusedTexts, SayWhyASearchListsNothing) {
  const LanguageValue language(GetParam().language);
  Start();
  EXPECT_EQ(FindAndReadMessage(), tree_.Path().substr(0, 20) + GetParam().noIcons);
  MakeIcons(3);
  SetLimit("2");
  EXPECT_EQ(FindAndReadMessage(), GetParam().raise);
  for (const char* name : {"a.dll", "b.dll"}) CopyTwoThousandIcons(In(name));
  Tick({Dll});
  EXPECT_EQ(FindAndReadMessage(), GetParam().narrow);
}

INSTANTIATE_TEST_SUITE_P(
    Languages, RefusedTexts,
    ::testing::Values(RefusedRow{"CHS", "中没有图标.",
                                 "共搜索到3个图标.\r\n每次搜索只支持最大2个图标,请增大每次搜索图标数再重试!",
                                 "共搜索到4000个图标.\r\n每次搜索只支持最大2400个图标,请缩小目录层次后再重试!"},
                      RefusedRow{"CHT", "中沒有圖示.",
                                 "共搜索到3個圖示.\r\n每次搜索只支援最大2個圖示,請增大每次搜索圖示數再重試!",
                                 "共搜索到4000個圖示.\r\n每次搜索只支援最大2400個圖示,請縮小目錄層次後再重試!"}));

TEST_F(SearchTexts, AnUnknownLanguageLeavesEveryTextButTheListsAlone) {
  const LanguageValue language("Chinese");
  MakeIcons(2);
  Start();
  Find();
  EXPECT_EQ(List().RowCount(), 2);
  EXPECT_EQ(Status(), "Click the Start button to start search");
  EXPECT_EQ(TextOf(FrmFindIcon_lblInfo), "Icon No 1 Selected.");
}

TEST_F(SearchTexts, AnUnknownLanguageRefusesWithoutAMessage) {
  const LanguageValue language("Chinese");
  Start();
  Find();  // would wait forever for a message box to close
  EXPECT_FALSE(program_.FindBox());
  EXPECT_EQ(List().Columns().size(), 3U);
  EXPECT_TRUE(IsEnabled(FrmFindIcon_CmdFind));
  EXPECT_FALSE(IsEnabled(FrmFindIcon_CmdOk));
}

}  // namespace
}  // namespace tarvik::end_to_end
