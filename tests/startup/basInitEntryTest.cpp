#include "startup/basInitEntry.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "startup/MessageTexts.h"

namespace tarvik::basInitEntry {
namespace {

using Calls = std::vector<std::string>;

constexpr const char* englishColorRefusal =
    "Brindle Tarvik requires at least high color mode.\r\n\r\nPlease adjust your color mode and try again.";

// A computer that logs the calls of the start in order. Each answer differs from all others.
struct FakeComputer {
  StartUpSystem System() {
    return {[this](const std::string& name) { return Log("read " + name, language); },
            [this] { return Log("depth", NextDepth()); },
            [this] { return Log("width", width); },
            [this] { return Log("height", height); },
            [this](const std::string& text, const std::string& title) {
              calls.emplace_back("message");
              texts.push_back(text);
              titles.push_back(title);
            },
            [this] { return Log("system folder", std::string(R"(D:\Winter\System32)")); },
            [this] { return Log("temporary folder", std::string("D:\\Leaves\\")); },
            [this] { calls.emplace_back("start-up window"); }};
  }

  template <typename Answer>
  Answer Log(const std::string& call, Answer answer) {
    calls.push_back(call);
    return answer;
  }
  int NextDepth() {
    const int depth = depths.front();
    if (depths.size() > 1) depths.erase(depths.begin());
    return depth;
  }

  std::string language = "CHT";
  std::vector<int> depths{24};  // one answer per call; the last one repeats
  int width = 1024;
  int height = 768;
  Calls calls;
  Calls texts;
  Calls titles;
};

class Start : public ::testing::Test {
 protected:
  void Run() { Main(state, computer.System()); }
  bool CheckColors(const std::string& code, int depth) {
    state.CurrentLanguage = code;
    computer.depths = {depth};
    return CheckColorMode(state, computer.System());
  }
  bool CheckSize(const std::string& code, int width, int height) {
    state.CurrentLanguage = code;
    computer.width = width;
    computer.height = height;
    return CheckScreenResolution(state, computer.System());
  }

  ProgramState state;
  FakeComputer computer;
};

using MainTest = Start;
using CheckColorModeTest = Start;
using CheckScreenResolutionTest = Start;

TEST_F(MainTest, GoesThroughItsStepsInOrder) {
  Run();
  EXPECT_EQ(computer.calls, (Calls{"read Language", "read Language", "depth", "depth", "width", "height",
                                   "system folder", "temporary folder", "start-up window"}));
}

TEST_F(MainTest, SettlesTheLanguageBeforeTheFirstMessage) {
  computer.depths = {8};
  Run();
  EXPECT_EQ(state.CurrentLanguage, "CHT");
  EXPECT_EQ(computer.titles, Calls{"Brindle Tarvik - 錯誤"});
}

TEST_F(MainTest, PreparesTheTwoPaths) {
  Run();
  EXPECT_EQ(state.Shell32Path, R"(D:\Winter\System32\Shell32.dll)");
  EXPECT_EQ(state.TempIconPath, R"(D:\Leaves\Abcdwxyz.ico)");
}

TEST_F(MainTest, OpensTheStartUpWindowAsSuchAndNotAsAboutBox) {
  Run();
  EXPECT_FALSE(state.ShowAsAbout);
}

TEST_F(MainTest, StartsASecondTimeLikeTheFirst) {
  Run();
  const Calls first = computer.calls;
  computer.calls.clear();
  Run();
  EXPECT_EQ(computer.calls, first);
}

TEST_F(MainTest, EndsBeforeAnyWindowWhereColorsAreTooFew) {
  computer.depths = {8};
  Run();
  EXPECT_EQ(computer.calls, (Calls{"read Language", "read Language", "depth", "depth", "message"}));
  EXPECT_EQ(state.Shell32Path, "");
}

TEST_F(MainTest, EndsBeforeAnyWindowWhereTheScreenIsTooSmall) {
  computer.height = 599;
  Run();
  EXPECT_EQ(computer.calls, (Calls{"read Language", "read Language", "depth", "depth", "width", "height", "message"}));
  EXPECT_EQ(state.TempIconPath, "");
}

TEST_F(MainTest, ShowsTheColorMessageAloneWhereBothChecksFail) {
  computer.language = "ENG";
  computer.depths = {4};
  computer.width = 640;
  computer.height = 480;
  Run();
  EXPECT_EQ(computer.texts, Calls{englishColorRefusal});
}

TEST_F(CheckColorModeTest, PassesAboveEightBits) {
  for (const int depth : {9, 15, 16, 24, 32}) EXPECT_TRUE(CheckColors("ENG", depth)) << depth;
  EXPECT_EQ(computer.texts, Calls{});
}

TEST_F(CheckColorModeTest, FailsUpToEightBits) {
  for (const int depth : {8, 4, 1, 0, -1}) EXPECT_FALSE(CheckColors("ENG", depth)) << depth;
  EXPECT_EQ(computer.texts.size(), 5U);
}

TEST_F(CheckColorModeTest, SaysWhyInEachLanguage) {
  struct Row {
    const char* code;
    const char* text;
    const char* title;
  };
  const Row rows[] = {
      {"ENG", englishColorRefusal, "Brindle Tarvik - Error"},
      {"CHS", "Brindle Tarvik 颜色模式需设置为真彩色.\r\n\r\n请在调整颜色模式后重新运行程序.", "Brindle Tarvik - 错误"},
      {"CHT", "Brindle Tarvik 顏色模式需設置為真彩色.\r\n\r\n請在調整顏色模式後重新運行程式.",
       "Brindle Tarvik - 錯誤"}};
  for (const Row& row : rows) {
    EXPECT_FALSE(CheckColors(row.code, 8));
    EXPECT_EQ(computer.texts.back(), row.text);
    EXPECT_EQ(computer.titles.back(), row.title);
  }
}

TEST_F(CheckColorModeTest, FailsWithoutAMessageInAnUnknownLanguage) {
  for (const char* code : {"CHI", "  C", "", "eng"}) EXPECT_FALSE(CheckColors(code, 8)) << code;
  EXPECT_EQ(computer.texts, Calls{});
}

TEST_F(CheckColorModeTest, KeepsTheFirstAnswerAndDecidesByTheSecond) {
  computer.depths = {8, 16};
  EXPECT_TRUE(CheckColorMode(state, computer.System()));
  EXPECT_EQ(state.ScreenBitsPerPixel, 8);
}

TEST_F(CheckColorModeTest, FailsWithoutAMessageForADepthBeyondSixteenBits) {
  EXPECT_FALSE(CheckColors("ENG", 32768));
  EXPECT_EQ(computer.texts, Calls{});
  EXPECT_TRUE(CheckColors("ENG", 32767));
}

TEST_F(CheckScreenResolutionTest, PassesFrom800By600) {
  EXPECT_TRUE(CheckSize("ENG", 800, 600));
  EXPECT_TRUE(CheckSize("ENG", 32767, 32767));
  EXPECT_EQ(computer.texts, Calls{});
}

TEST_F(CheckScreenResolutionTest, FailsOnePixelBelow) {
  EXPECT_FALSE(CheckSize("ENG", 800, 599));
  EXPECT_FALSE(CheckSize("ENG", 799, 600));
  EXPECT_FALSE(CheckSize("ENG", 600, 800));
  EXPECT_EQ(computer.texts.size(), 3U);
}

TEST_F(CheckScreenResolutionTest, SaysWhyInEachLanguage) {
  struct Row {
    const char* code;
    const char* text;
    const char* title;
  };
  const Row rows[] = {{"ENG",
                       "Brindle Tarvik requires a screen resolution of at least 800 x 600 pixels.\r\n\r\n"
                       "Please adjust your screen resolution and try again.",
                       "Brindle Tarvik - Error"},
                      {"CHS", "Brindle Tarvik 显示屏分辨率需设置为800×600以上.\r\n\r\n请在调整分辨率后重新运行程序.",
                       "Brindle Tarvik - 错误"},
                      {"CHT", "Brindle Tarvik 顯示幕解析度需設置為800×600以上.\r\n\r\n請在調整解析度後重新運行程式.",
                       "Brindle Tarvik - 錯誤"}};
  for (const Row& row : rows) {
    EXPECT_FALSE(CheckSize(row.code, 640, 480));
    EXPECT_EQ(computer.texts.back(), row.text);
    EXPECT_EQ(computer.titles.back(), row.title);
  }
}

TEST_F(CheckScreenResolutionTest, FailsWithoutAMessageInAnUnknownLanguage) {
  for (const char* code : {"CHI", "  C", "", "eng"}) EXPECT_FALSE(CheckSize(code, 640, 480)) << code;
  EXPECT_EQ(computer.texts, Calls{});
}

TEST_F(CheckScreenResolutionTest, FailsWithoutAMessageForASideBeyondSixteenBits) {
  EXPECT_FALSE(CheckSize("ENG", 32768, 1000));
  EXPECT_FALSE(CheckSize("ENG", 1000, 32768));
  EXPECT_EQ(computer.texts, Calls{});
}

// The texts for a refused copy exist in each language, and the start of a second copy shows none of them.
TEST(MessageTexts, NameACopyThatRunsAlready) {
  EXPECT_EQ(Pick(alreadyRunningText, "ENG"), "Program is running !");
  EXPECT_EQ(Pick(alreadyRunningText, "CHS"), "请不要重复运行程序！");
  EXPECT_EQ(Pick(alreadyRunningText, "CHT"), "請不要重複運行程式！");
  EXPECT_EQ(Pick(alreadyRunningTitle, "ENG"), "error!");
  EXPECT_EQ(Pick(alreadyRunningTitle, "CHS"), "错误!");
  EXPECT_EQ(Pick(alreadyRunningTitle, "CHT"), "錯誤!");
}

}  // namespace
}  // namespace tarvik::basInitEntry
