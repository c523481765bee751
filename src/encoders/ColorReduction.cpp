#include "encoders/ColorReduction.h"

#include <algorithm>
#include <array>
#include <cmath>
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

struct WeightedPoint {
  Point point{};
  double weight = 0;
};

// How many pixels, and the sums of their channels.
struct Sums {
  double weight = 0;
  Point sum{};

  void Add(const WeightedPoint& p) {
    weight += p.weight;
    for (std::size_t c = 0; c < channels; ++c) sum[c] += p.weight * p.point[c];
  }
  void Add(const Sums& other) {
    weight += other.weight;
    for (std::size_t c = 0; c < channels; ++c) sum[c] += other.sum[c];
  }
  Sums Without(const Sums& part) const {
    return {weight - part.weight, {sum[0] - part.sum[0], sum[1] - part.sum[1], sum[2] - part.sum[2]}};
  }
  Point Mean() const { return {sum[0] / weight, sum[1] / weight, sum[2] / weight}; }
  // The error of pixels drawn in their mean is the sum of their squares less this.
  double Saved() const { return (sum[0] * sum[0] + sum[1] * sum[1] + sum[2] * sum[2]) / weight; }
};

// Where to cut a box in two: colours whose channel is at most `last` go to the first part.
struct Cut {
  std::size_t channel = 0;
  double last = 0;
  double gain = 0;  // by how much the squared error falls
};

// The colours of one future palette entry.
struct Box {
  std::span<WeightedPoint> points;
  Sums sums;
  Cut cut;
};

// The best cut across one channel, or one without gain where all points have the same value there.
Cut BestCutAcross(const Box& box, std::size_t channel) {
  std::array<Sums, 256> levels{};
  for (const WeightedPoint& p : box.points) levels[static_cast<std::size_t>(p.point[channel])].Add(p);
  Cut best{.channel = channel};
  Sums first;
  const double whole = box.sums.Saved();
  for (std::size_t level = 0; level < levels.size(); ++level) {
    if (levels[level].weight == 0) continue;
    first.Add(levels[level]);
    const Sums second = box.sums.Without(first);
    if (second.weight == 0) break;
    const double gain = first.Saved() + second.Saved() - whole;
    if (gain > best.gain) best = {channel, static_cast<double>(level), gain};
  }
  return best;
}

Box MakeBox(std::span<WeightedPoint> points) {
  Box box{.points = points, .sums = {}, .cut = {}};
  for (const WeightedPoint& p : points) box.sums.Add(p);
  for (std::size_t channel = 0; channel < channels; ++channel) {
    const Cut cut = BestCutAcross(box, channel);
    if (cut.gain > box.cut.gain) box.cut = cut;
  }
  return box;
}

// Cuts the points into at most `most` boxes and gives their means. The points change their order.
std::vector<Point> CutIntoBoxes(std::span<WeightedPoint> points, std::size_t most) {
  std::vector<Box> boxes{MakeBox(points)};
  while (boxes.size() < most) {
    const auto chosen = std::ranges::max_element(boxes, {}, [](const Box& box) { return box.cut.gain; });
    const Cut cut = chosen->cut;
    if (cut.gain <= 0) break;
    const auto second = std::partition(chosen->points.begin(), chosen->points.end(),
                                       [&](const WeightedPoint& p) { return p.point[cut.channel] <= cut.last; });
    const std::span<WeightedPoint> rest(second, chosen->points.end());
    *chosen = MakeBox(chosen->points.first(chosen->points.size() - rest.size()));
    boxes.push_back(MakeBox(rest));
  }
  std::vector<Point> means;
  means.reserve(boxes.size());
  for (const Box& box : boxes) means.push_back(box.sums.Mean());
  return means;
}

// Finds the nearest of some points. They are sorted by the sum of their channels: a point whose sum is d away is at
// least d / sqrt(3) away, so a search outward from the own sum ends early.
class NearestSearch {
 public:
  explicit NearestSearch(std::span<const Point> points) {
    for (std::size_t i = 0; i < points.size(); ++i) entries_.push_back({SumOf(points[i]), points[i], i});
    std::ranges::sort(entries_, {}, &Entry::sum);
  }

  struct Found {
    std::size_t place = 0;
    double squareDistance = 0;
  };

  Found Find(const Point& point) const {
    const double sum = SumOf(point);
    const auto start = std::ranges::lower_bound(entries_, sum, {}, &Entry::sum);
    std::optional<Found> best;
    // True while a point of that sum could still be nearer.
    const auto look = [&](const Entry& entry) {
      const double apart = entry.sum - sum;
      if (best && apart * apart >= static_cast<double>(channels) * best->squareDistance) return false;
      const double distance = SquareDistance(entry.point, point);
      if (!best || distance < best->squareDistance) best = {entry.place, distance};
      return true;
    };
    auto above = start;
    auto below = start;
    bool goAbove = above != entries_.end();
    bool goBelow = below != entries_.begin();
    while (goAbove || goBelow) {
      if (goAbove) goAbove = look(*above) && ++above != entries_.end();
      if (goBelow) goBelow = look(*--below) && below != entries_.begin();
    }
    return *best;
  }

 private:
  struct Entry {
    double sum = 0;
    Point point{};
    std::size_t place = 0;
  };
  static double SumOf(const Point& point) { return point[0] + point[1] + point[2]; }

  std::vector<Entry> entries_;
};

// Moves each centre to the mean of the points nearest to it, until the error falls no further to speak of.
void MoveToMeans(std::span<const WeightedPoint> points, std::vector<Point>& centres) {
  constexpr int mostRounds = 12;
  constexpr double worthwhile = 0.995;
  double error = std::numeric_limits<double>::max();
  for (int round = 0; round < mostRounds; ++round) {
    const NearestSearch search(centres);
    std::vector<Sums> sums(centres.size());
    double newError = 0;
    for (const WeightedPoint& p : points) {
      const NearestSearch::Found found = search.Find(p.point);
      sums[found.place].Add(p);
      newError += p.weight * found.squareDistance;
    }
    for (std::size_t i = 0; i < centres.size(); ++i)
      if (sums[i].weight > 0) centres[i] = sums[i].Mean();
    if (newError >= error * worthwhile) break;
    error = newError;
  }
}

}  // namespace

std::vector<Color> ReduceToPalette(std::span<const CountedColor> colors, std::size_t most) {
  std::vector<WeightedPoint> points;
  points.reserve(colors.size());
  for (const CountedColor& counted : colors)
    points.push_back({PointOf(counted.color), static_cast<double>(counted.count)});
  std::vector<Point> centres = CutIntoBoxes(points, most);
  MoveToMeans(points, centres);
  std::vector<Color> palette;
  palette.reserve(centres.size());
  for (const Point& centre : centres) palette.push_back(RoundToColor(centre));
  return palette;
}

std::vector<std::uint8_t> NearestPlaces(std::span<const CountedColor> colors, std::span<const Color> palette) {
  std::vector<Point> points;
  points.reserve(palette.size());
  for (const Color color : palette) points.push_back(PointOf(color));
  const NearestSearch search(points);
  std::vector<std::uint8_t> places;
  places.reserve(colors.size());
  for (const CountedColor& counted : colors)
    places.push_back(static_cast<std::uint8_t>(search.Find(PointOf(counted.color)).place));
  return places;
}

}  // namespace tarvik
