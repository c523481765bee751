#pragma once

#include <memory>
#include <optional>
#include <string>
#include <unordered_map>
#include <vector>

#include "base/ByteSource.h"
#include "search/icons/IconSource.h"

namespace tarvik {

// An icon source that extracts up to 64 icons of a file at a time if they are requested one after the other, because
// each call opens and reads the file from scratch. The caller gets the same icons as without it.
//
// It does so only while an object returned by InTurn exists, and holds at most 64 icons, of one file. They are dropped
// if another file is requested, by LetGo, and by LetGoIfChanged if the file has changed. To waste little if icons
// are often dropped, the next group is only as large as what was used of the last one, and grows again. A file that
// does not yield a whole group is extracted one by one until it changes, and so are animations. Within InTurn, a file
// is counted once until it changes.
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
  int users_ = 0;  // objects returned by InTurn

  std::string path_;                                  // the file requested last
  std::optional<FileStamp> stamp_;                    // its stamp when it was counted
  std::optional<int> count_;                          // of its icons, if nothing happened since they were counted
  int next_ = 0;                                      // the next index in sequence
  std::vector<std::unique_ptr<ExtractedIcon>> held_;  // icons next_ and after, the nearest last
  int groupSize_ = 0;                                 // size of the group that they are from
  int maxTaken_ = 0;                                  // the most at a time

  std::unordered_map<std::string, Count> counts_;      // by path; of one InTurn
  std::unordered_map<std::string, FileStamp> broken_;  // files that did not yield a whole group; for the whole run
};

}  // namespace tarvik
