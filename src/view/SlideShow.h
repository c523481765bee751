#pragma once

namespace tarvik {

// When the slide show ticks. The clock itself is the window's timer, which uses this interval.
class SlideShow {
 public:
  bool IsEnabled() const { return isEnabled_; }
  // Milliseconds from tick to tick: 5000 at first, and always a whole number of seconds from 1000 to 65000.
  int Interval() const { return interval_; }

  void Start() { isEnabled_ = true; }
  void Stop() { isEnabled_ = false; }

  // Changes the interval by a second if it stays within its bounds; whether the show runs does not change. Returns true
  // if the interval changed; the time to the next tick then starts again.
  bool Faster();
  bool Slower();

 private:
  static constexpr int initialInterval = 5000;
  static constexpr int step = 1000;
  static constexpr int minForFaster = 1001;     // a shorter interval is not reduced
  static constexpr int boundForSlower = 65000;  // an interval of this length is not raised

  bool isEnabled_ = false;
  int interval_ = initialInterval;
};

}  // namespace tarvik
