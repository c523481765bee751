#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/ByteSource.h"
#include "search/icons/IconSource.h"

namespace tarvik {

// An icon source that takes the icons of a file up to 64 at a time if they are asked for one after the other, because
// each call opens and reads the file from scratch. Whoever asks gets the same icons as without it.
//
// It does so between the start and the end of InTurn alone, and holds at most 64 icons, of one file. They are dropped
// when another file is asked for, by LetGo, and by LetGoIfChanged if the file is not as it was. So that little is taken
// for nothing where that is often, a group is then as large as what was used of the last one, and grows again. A file
// that does not give a whole group is taken one by one as long as it stays as it is, and so are animations. Within
// InTurn, a file is counted once as long as it stays as it is.
class IconsAhead final : public IconSource {
 public:
  // `source` outlives this object.
  explicit IconsAhead(IconSource& source) : source_(source) {}

  bool Takes(const std::string& path) const override { return source_.Takes(path); }
  int CountIcons(const std::string& path) override;
  std::unique_ptr<ExtractedIcon> Extract(const std::string& path, int index) override;
  Finally InTurn() override;
  void LetGo() override;
  void LetGoIfChanged() override;

 private:
  struct Count {
    FileStamp stamp;
    int icons = 0;
  };

  void Drop();
  void TurnTo(const std::string& path, int next);
  int CountOf(const std::string& path);
  bool IsBroken(const std::string& path) const;
  void TakeGroup(int first, int count);

  IconSource& source_;
  int users_ = 0;  // of InTurn

  std::string path_;                                  // the file asked for last
  std::optional<FileStamp> stamp_;                    // of it, when it was counted
  std::optional<int> count_;                          // of its icons, if nothing happened since it was counted
  int next_ = 0;                                      // the index that would go on in turn
  std::vector<std::unique_ptr<ExtractedIcon>> held_;  // icons next_ and after, the nearest last
  int groupSize_ = 0;                                 // of the group that they are from
  int maxTaken_ = 0;                                  // at a time

  std::unordered_map<std::string, Count> counts_;      // by path; of one InTurn
  std::unordered_map<std::string, FileStamp> broken_;  // files that did not give a group; of the whole run
};

}  // namespace tarvik
