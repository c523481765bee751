// The system's Save dialog, as each command that saves one icon opens it.

#include <gmock/gmock.h>

#include "driver/SeenFiles.h"
#include "end_to_end/SavingTest.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {
namespace {

using support::ReadAll;
using ::testing::ElementsAre;
using ::testing::StartsWith;

class Save : public Saving {};

// The titles of the dialogs that saving opens, in one language.
struct Titles {
  const char* language;
  const char* saveAs;
  const char* saveAsImage;
  const char* saveAsCursor;
  const char* hotSpot;
  const char* jpeg;
  const char* comment;
  const char* gif;
  const char* folder;
  const char* newFolder;  // before and after the parent's path
  const char* newFolderEnd;
  const char* newFolderName;
  const char* progress;
  friend void PrintTo(const Titles& titles, std::ostream* out) { *out << titles.language; }
};

constexpr Titles titlesInAllLanguages[] = {
    {"ENG", "Brindle Tarvik - Save As", "Brindle Tarvik - Save As Image", "Brindle Tarvik - Save As Cursor",
     "Select Hot Spot", "JPEG Compression Settings", "Comment", "Convert File To Gif", "Store To Directory...",
     "Create In ", "", "New Folder", "Saving..."},
    {"CHS", "Brindle Tarvik - 另存为", "Brindle Tarvik - 另存为图像", "Brindle Tarvik - 另存为图标", "选择热区",
     "JPEG 压缩选项", "内容", "另存为Gif", "存储目录...", "在", "中创建子文件夹", "新建文件夹", "正在保存..."},
    {"CHT", "Brindle Tarvik - 另存為", "Brindle Tarvik - 另存為圖像", "Brindle Tarvik - 另存為圖示", "選擇熱區",
     "JPEG 壓縮選項", "內容", "另存為Gif", "存儲目錄...", "在", "中創建子文件夾", "新建文件夾", "正在存儲..."},
};

class SaveInLanguage : public Saving, public ::testing::WithParamInterface<Titles> {
 protected:
  void ExpectTitlesOfOneIcon() {
    const Titles& titles = GetParam();
    program_.Command(FrmFindIcon_mnuSaveAs);
    const SaveDialog icon(program_);
    EXPECT_EQ(icon.Title(), titles.saveAs);
    EXPECT_EQ(Status(), titles.progress);
    icon.Cancel();
    ExpectAsFound();

    program_.Command(FrmFindIcon_MnuSaveAsCursor);
    const Dialog hotSpot(program_, FrmHotSpot_PicCursor);
    EXPECT_EQ(hotSpot.Title(), titles.hotSpot);
    hotSpot.End(FrmHotSpot_CmdOk);
    const SaveDialog cursor(program_);
    EXPECT_EQ(cursor.Title(), titles.saveAsCursor);
    cursor.Cancel();
    ExpectAsFound();
  }

  void ExpectTitlesOfImages() {
    const Titles& titles = GetParam();
    program_.Command(FrmFindIcon_MnuSaveAsBitmap);
    const SaveDialog jpegName(program_);
    EXPECT_EQ(jpegName.Title(), titles.saveAsImage);
    jpegName.SaveAs(Out("a.jpg"));
    const Dialog jpeg(program_, fSaveJPG_CboSize);
    EXPECT_EQ(jpeg.Title(), titles.jpeg);
    jpeg.Press(fSaveJPG_cmdComment);
    const Dialog comment(program_, fComment_txtComment);
    EXPECT_EQ(comment.Title(), titles.comment);
    comment.EndByCloseBox();
    jpeg.End(fSaveJPG_cmdFinish0);
    ExpectAsFound();

    SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.gif"));
    const Dialog gif(program_, FrmConvertGIF_Option1);
    EXPECT_EQ(gif.Title(), titles.gif);
    gif.End(FrmConvertGIF_CmdCancel);
    ExpectAsFound();
  }

  void ExpectTitlesOfFolders() {
    const Titles& titles = GetParam();
    const FolderChooser chooser = AskForFolder(FrmFindIcon_mnuSaveAll);
    EXPECT_EQ(chooser.Title(), titles.folder);
    const NewFolderDialog newFolder(program_, chooser);
    EXPECT_EQ(newFolder.Title(), titles.newFolder + tree_.Path() + titles.newFolderEnd);
    EXPECT_EQ(newFolder.Name(), titles.newFolderName);
    newFolder.End(frmDirCreate_CmdCancel);
    chooser.Cancel();
    ExpectAsFound();
  }
};

TEST_P(SaveInLanguage, EveryDialogHasItsTitleAndCancelWritesNothing) {
  const LanguageValue language(GetParam().language);
  FindPictures();
  ExpectTitlesOfOneIcon();
  ExpectTitlesOfImages();
  ExpectTitlesOfFolders();
  EXPECT_THAT(SavedNames(), ElementsAre());
}

INSTANTIATE_TEST_SUITE_P(AllLanguages, SaveInLanguage, ::testing::ValuesIn(titlesInAllLanguages),
                         [](const auto& row) { return row.param.language; });

TEST_F(Save, ANameWithoutAnExtensionGetsThatOfTheChosenType) {
  FindPictures();
  SaveAs(FrmFindIcon_mnuSaveAs, Out("图标"));
  ExpectAsFound();
  SaveAs(FrmFindIcon_MnuSaveAsCursor, Out("指针"));
  ExpectAsFound();

  constexpr std::array extensions{"bmp", "gif", "jpg", "png", "wbmp", "tif", "tga", "wmf", "emf"};
  for (int filter = 0; filter < static_cast<int>(extensions.size()); ++filter) {
    program_.Command(FrmFindIcon_MnuSaveAsBitmap);
    const SaveDialog dialog(program_);
    EXPECT_EQ(dialog.Filter(), 0);
    if (filter != 0) dialog.ChooseFilter(filter);
    dialog.SaveAs(Out("图像"));
    const std::string extension = extensions.at(static_cast<std::size_t>(filter));
    if (extension == "jpg") Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1);
    if (extension == "gif") Dialog(program_, FrmConvertGIF_Option1).End(FrmConvertGIF_CmdOk);
    ExpectAsFound();
    const std::string bytes = ReadAll(Out("图像." + extension));
    EXPECT_THAT(bytes, StartsWith(extension == "jpg" ? "\xFF\xD8" : extension == "gif" ? "GIF8" : "BM")) << extension;
  }
  EXPECT_THAT(SavedNames(), ElementsAre("图像.bmp", "图像.emf", "图像.gif", "图像.jpg", "图像.png", "图像.tga",
                                        "图像.tif", "图像.wbmp", "图像.wmf", "图标.ico", "指针.cur"));
}

TEST_F(Save, EachCommandOffersItsTypes) {
  FindPictures();
  const auto filtersOf = [this](int command) {
    const SaveDialog dialog = AskForName(command);
    EXPECT_EQ(dialog.Name(), "");
    Names filters = dialog.Filters();
    dialog.Cancel();
    ExpectAsFound();
    return filters;
  };
  EXPECT_THAT(filtersOf(FrmFindIcon_mnuSaveAs), ElementsAre("Windows Icon (*.ico)"));
  EXPECT_THAT(filtersOf(FrmFindIcon_MnuSaveAsCursor), ElementsAre("Windows Cursor (*.cur)"));
  EXPECT_THAT(filtersOf(FrmFindIcon_MnuSaveAsBitmap),
              ElementsAre("Windows Bitmap (*.bmp)", "GIF Files (*.gif)", "JPG Files (*.jpg)", "PNG Files (*.png)",
                          "WBMP Files (*.wbmp)", "TIF Files (*.tif)", "TGA Files (*.tga)", "WMF Files (*.wmf)",
                          "EMF Files (*.emf)"));
}

TEST_F(Save, ATypedExtensionStaysAndChoosesTheFormat) {
  FindPictures();
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.png"));
  ExpectAsFound();
  EXPECT_THAT(ReadAll(Out("a.png")), StartsWith("BM"));
  SaveAs(FrmFindIcon_MnuSaveAsBitmap, Out("a.Jpg"));
  Dialog(program_, fSaveJPG_CboSize).End(fSaveJPG_cmdFinish1);
  ExpectAsFound();
  EXPECT_THAT(ReadAll(Out("a.Jpg")), StartsWith("\xFF\xD8"));
  SaveAs(FrmFindIcon_mnuSaveAs, Out("a.icon"));
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre("a.Jpg", "a.icon", "a.png"));
}

TEST_F(Save, ALongChinesePathIsTakenWhole) {
  FindPictures();
  // As long as a file name may be on the host system below Wine, in bytes: with its folder the path has more bytes than
  // MAX_PATH.
  std::string name;
  for (int i = 0; i < 80; ++i) name += "长";
  ASSERT_GT(Out(name).size(), static_cast<std::size_t>(MAX_PATH));
  SaveAs(FrmFindIcon_mnuSaveAs, Out(name));
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre(name + ".ico"));
}

TEST_F(Save, AFileOfThatNameIsReplacedOnlyWhereTheUserAgrees) {
  FindPictures();
  tree_.MakeFile(std::string(outName) + "\\有.ico", "kept");
  program_.Command(FrmFindIcon_mnuSaveAs);
  const SaveDialog dialog(program_);
  dialog.Save(Out("有.ico"));
  const Box refused = program_.WaitForBox();
  EXPECT_THAT(refused.Buttons(), ElementsAre(IDYES, IDNO));
  refused.Press(IDNO);
  EXPECT_TRUE(dialog.IsOpen());
  EXPECT_EQ(ReadAll(Out("有.ico")), "kept");
  dialog.Save(Out("有.ico"));
  program_.WaitForBox().Press(IDYES);
  dialog.WaitForEnd();
  ExpectAsFound();
  EXPECT_EQ(SeeFiles(Out())["有.ico"].pixels, IconPixels(0));
}

TEST_F(Save, AFolderThatIsNotThereIsRefusedAndTheDialogStays) {
  FindPictures();
  program_.Command(FrmFindIcon_MnuSaveAsBitmap);
  const SaveDialog dialog(program_);
  dialog.Save(In("no such folder\\a.bmp"));
  const Box refusal = program_.WaitForBox();
  EXPECT_NE(refusal.Text(), "");
  refusal.Press(IDOK);
  EXPECT_TRUE(dialog.IsOpen());
  dialog.SaveAs(Out("a.bmp"));
  ExpectAsFound();
  EXPECT_THAT(SavedNames(), ElementsAre("a.bmp"));
  EXPECT_EQ(GetFileAttributesW(ToWide(In("no such folder")).c_str()), INVALID_FILE_ATTRIBUTES);
}

}  // namespace
}  // namespace tarvik::end_to_end
