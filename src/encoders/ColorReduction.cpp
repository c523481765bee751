#include "encoders/ColorReduction.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <iterator>
#include <limits>
#include <optional>

namespace tarvik {
namespace {

constexpr std::size_t channels = 3;
using Point = std::array<double, channels>;

Point PointOf(Color color) {
  return {static_cast<double>(RedOf(color)), static_cast<double>(GreenOf(color)), static_cast<double>(BlueOf(color))};
}

Color RoundToColor(const Point& point) {
  const auto round = [](double value) { return static_cast<Color>(std::lround(value)); };
  return round(point[0]) + 256 * round(point[1]) + 65536 * round(point[2]);
}

double SquareDistance(const Point& a, const Point& b) {
  const double red = a[0] - b[0];
  const double green = a[1] - b[1];
  const double blue = a[2] - b[2];
  return red * red + green * green + blue * blue;
}

// The number of pixels, and the sums of their channels.
struct Sums {
  double weight = 0;
  Point sum{};

  void Add(const CountedColor& counted) {
    const auto count = static_cast<double>(counted.count);
    const Point point = PointOf(counted.color);
    weight += count;
    for (std::size_t c = 0; c < channels; ++c) sum[c] += count * point[c];
  }
  void Add(const Sums& other) {
    weight += other.weight;
    for (std::size_t c = 0; c < channels; ++c) sum[c] += other.sum[c];
  }
  Sums Minus(const Sums& part) const {
    return {weight - part.weight, {sum[0] - part.sum[0], sum[1] - part.sum[1], sum[2] - part.sum[2]}};
  }
  Point Mean() const { return {sum[0] / weight, sum[1] / weight, sum[2] / weight}; }
  // The squared error of pixels drawn in their mean colour is the sum of their squares minus this.
  double SavedError() const { return (sum[0] * sum[0] + sum[1] * sum[1] + sum[2] * sum[2]) / weight; }
};

// Where a box is cut in two: colours whose channel is at most `last` go to the first part.
struct Cut {
  std::size_t channel = 0;
  std::size_t last = 0;
  double gain = 0;  // the reduction of the squared error
};

// The colours of one future entry of the palette.
struct Box {
  std::span<CountedColor> colors;
  Sums sums;
  Cut cut;
};

std::size_t ChannelOf(Color color, std::size_t channel) {
  return color >> (8 * channel) & 0xFFU;
}

// The best cut across one channel, or a cut without gain if all colours have the same value there.
Cut BestCutAcross(const Box& box, std::size_t channel) {
  std::size_t min = 255;
  std::size_t max = 0;
  for (const CountedColor& counted : box.colors) {
    const std::size_t value = ChannelOf(counted.color, channel);
    min = std::min(min, value);
    max = std::max(max, value);
  }
  // Most boxes are small: levels outside their range are neither cleared nor read.
  std::array<Sums, 256> levels;  // NOLINT(cppcoreguidelines-pro-type-member-init)
  std::fill(&levels[min], &levels[max] + 1, Sums{});
  for (const CountedColor& counted : box.colors) levels[ChannelOf(counted.color, channel)].Add(counted);
  Cut best{.channel = channel};
  Sums first;
  const double whole = box.sums.SavedError();
  for (std::size_t level = min; level < max; ++level) {
    if (levels[level].weight == 0) continue;
    first.Add(levels[level]);
    const double gain = first.SavedError() + box.sums.Minus(first).SavedError() - whole;
    if (gain > best.gain) best = {channel, level, gain};
  }
  return best;
}

Box MakeBox(std::span<CountedColor> colors) {
  Box box{.colors = colors, .sums = {}, .cut = {}};
  for (const CountedColor& counted : colors) box.sums.Add(counted);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    const Cut cut = BestCutAcross(box, channel);
    if (cut.gain > box.cut.gain) box.cut = cut;
  }
  return box;
}

// Cuts the colours into at most `maxColors` boxes and returns their means. Reorders the colours.
std::vector<Point> CutIntoBoxes(std::span<CountedColor> colors, std::size_t maxColors) {
  const auto gainsLess = [](const Box& a, const Box& b) { return a.cut.gain < b.cut.gain; };
  // A heap: the box whose cut gains most comes first.
  std::vector<Box> boxes{MakeBox(colors)};
  while (boxes.size() < maxColors && boxes.front().cut.gain > 0) {
    std::ranges::pop_heap(boxes, gainsLess);
    const std::span<CountedColor> whole = boxes.back().colors;
    const Cut cut = boxes.back().cut;
    const auto isFirst = [&](const CountedColor& counted) { return ChannelOf(counted.color, cut.channel) <= cut.last; };
    const auto second = std::partition(whole.begin(), whole.end(), isFirst);
    boxes.back() = MakeBox({whole.begin(), second});
    std::ranges::push_heap(boxes, gainsLess);
    boxes.push_back(MakeBox({second, whole.end()}));
    std::ranges::push_heap(boxes, gainsLess);
  }
  std::vector<Point> means;
  means.reserve(boxes.size());
  for (const Box& box : boxes) means.push_back(box.sums.Mean());
  return means;
}

// Finds the nearest of some points. They are sorted by the sum of their channels: a point whose sum differs by d is at
// least d / sqrt(3) away, so the search outward from the colour's own sum can stop early, and the better the first
// guess the earlier.
class NearestSearch {
 public:
  explicit NearestSearch(std::span<const Point> points) : points_(points) {
    entries_.reserve(points.size());
    for (std::size_t i = 0; i < points.size(); ++i) entries_.push_back({SumOf(points[i]), points[i], i});
    std::ranges::sort(entries_, {}, &Entry::sum);
  }

  struct Found {
    std::size_t index = 0;
    double squareDistance = 0;
  };

  // `guess` is the index of any of the points.
  Found Find(const Point& point, std::size_t guess) const {
    const double sum = SumOf(point);
    Found best{guess, SquareDistance(points_[guess], point)};
    // Returns false if no point further in that direction can be nearer.
    const auto look = [&](const Entry& entry) {
      const double apart = entry.sum - sum;
      if (apart * apart >= static_cast<double>(channels) * best.squareDistance) return false;
      const double distance = SquareDistance(entry.point, point);
      if (distance < best.squareDistance) best = {entry.index, distance};
      return true;
    };
    const auto start = std::ranges::lower_bound(entries_, sum, {}, &Entry::sum);
    for (auto above = start; above != entries_.end() && look(*above);) ++above;
    for (auto below = start; below != entries_.begin() && look(*std::prev(below));) --below;
    return best;
  }

 private:
  struct Entry {
    double sum = 0;
    Point point{};
    std::size_t index = 0;
  };
  static double SumOf(const Point& point) { return point[0] + point[1] + point[2]; }

  std::span<const Point> points_;
  std::vector<Entry> entries_;
};

// Moves each centre to the mean of the colours nearest to it, until the error no longer falls noticeably. Sets
// `nearest` to the index of the nearest centre of each colour in the last step.
void MoveToMeans(std::span<const CountedColor> colors, std::vector<Point>& centres, std::vector<std::size_t>& nearest) {
  constexpr int maxRounds = 4;
  constexpr double worthwhile = 0.98;
  double error = std::numeric_limits<double>::max();
  for (int round = 0; round < maxRounds; ++round) {
    const NearestSearch search(centres);
    std::vector<Sums> sums(centres.size());
    double newError = 0;
    for (std::size_t i = 0; i < colors.size(); ++i) {
      const NearestSearch::Found found = search.Find(PointOf(colors[i].color), nearest[i]);
      nearest[i] = found.index;
      sums[found.index].Add(colors[i]);
      newError += static_cast<double>(colors[i].count) * found.squareDistance;
    }
    for (std::size_t i = 0; i < centres.size(); ++i)
      if (sums[i].weight > 0) centres[i] = sums[i].Mean();
    if (newError >= error * worthwhile) break;
    error = newError;
  }
}

}  // namespace

Reduction ReduceColors(std::span<const CountedColor> colors, std::size_t maxColors) {
  std::vector<CountedColor> sorted(colors.begin(), colors.end());
  std::vector<Point> centres = CutIntoBoxes(sorted, maxColors);
  std::vector<std::size_t> nearest(colors.size(), 0);
  MoveToMeans(colors, centres, nearest);

  Reduction reduction;
  reduction.palette.reserve(centres.size());
  for (Point& centre : centres) {
    reduction.palette.push_back(RoundToColor(centre));
    centre = PointOf(reduction.palette.back());
  }
  const NearestSearch search(centres);
  reduction.indexes.reserve(colors.size());
  for (std::size_t i = 0; i < colors.size(); ++i) {
    const std::size_t index = search.Find(PointOf(colors[i].color), nearest[i]).index;
    reduction.indexes.push_back(static_cast<std::uint8_t>(index));
  }
  return reduction;
}

}  // namespace tarvik
