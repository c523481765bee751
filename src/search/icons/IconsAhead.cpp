#include "search/icons/IconsAhead.h"

#include <algorithm>
#include <utility>

#include "search/icons/IconList.h"

namespace tarvik {
namespace {

constexpr int maxHeld = 64;
constexpr std::size_t maxCounts = 100'000;  // how many files are remembered
constexpr std::size_t maxBroken = 10'000;

}  // namespace

int IconsAhead::CountIcons(const std::string& path) {
  if (users_ == 0) return source_.CountIcons(path);
  TurnTo(path, 0);
  count_ = CountOf(path);
  return *count_;
}

std::unique_ptr<ExtractedIcon> IconsAhead::Extract(const std::string& path, int index) {
  if (users_ == 0 || IsAnimatedCursorName(path)) return source_.Extract(path, index);
  const bool goesOn = path == path_ && index == next_;
  if (!goesOn) TurnTo(path, index);
  if (goesOn && held_.empty() && !IsBroken(path)) {
    const int count = count_ ? *count_ : CountOf(path);
    TakeGroup(index, std::min(maxTaken_, count - index));
  }
  count_.reset();
  next_ = index + 1;
  if (held_.empty()) return source_.Extract(path, index);
  auto icon = std::move(held_.back());
  held_.pop_back();
  if (held_.empty()) maxTaken_ = std::min(maxHeld, maxTaken_ + maxTaken_ / 4 + 1);
  return icon;
}

Finally IconsAhead::InTurn() {
  if (users_++ == 0) maxTaken_ = maxHeld;
  return Finally([this] {
    if (--users_ != 0) return;
    TurnTo({}, 0);
    counts_.clear();
  });
}

void IconsAhead::LetGo() {
  if (!held_.empty()) maxTaken_ = std::max(2, groupSize_ - static_cast<int>(held_.size()));
  Drop();
}

void IconsAhead::LetGoIfChanged() {
  if (held_.empty()) return;
  if (!stamp_ || source_.StampOf(path_) != stamp_) Drop();
}

void IconsAhead::Drop() {
  held_.clear();
  count_.reset();
}

void IconsAhead::TurnTo(const std::string& path, int next) {
  Drop();
  path_ = path;
  stamp_.reset();
  next_ = next;
}

// How many icons the file has: the earlier count if the file has not changed. Its stamp is taken before it is counted,
// so that a change in between is noticed the next time.
int IconsAhead::CountOf(const std::string& path) {
  stamp_ = source_.StampOf(path);
  const auto known = counts_.find(path);
  if (stamp_ && known != counts_.end() && known->second.stamp == *stamp_) return known->second.icons;
  const int icons = source_.CountIcons(path);
  if (stamp_ && counts_.size() < maxCounts) counts_.insert_or_assign(path, Count{*stamp_, icons});
  return icons;
}

bool IconsAhead::IsBroken(const std::string& path) const {
  const auto broken = broken_.find(path);
  return broken != broken_.end() && stamp_ == broken->second;
}

void IconsAhead::TakeGroup(int first, int count) {
  if (count < 2 || IsBroken(path_)) return;
  held_ = source_.ExtractGroup(path_, first, count);
  std::ranges::reverse(held_);
  groupSize_ = count;
  if (!held_.empty() || !stamp_) return;
  if (broken_.size() >= maxBroken) broken_.clear();
  broken_.insert_or_assign(path_, *stamp_);
}

}  // namespace tarvik
