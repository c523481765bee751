#pragma once

namespace tarvik {

// The progress of a long command.
struct Progress {
  enum class Kind {
    None,     // no such command runs
    Unknown,  // it runs, and its total is unknown
    Share,    // `done` of `total` is done
  };

  Kind kind = Kind::None;
  int done = 0;  // from 0 to total
  int total = 0;
  friend bool operator==(const Progress&, const Progress&) = default;
};

}  // namespace tarvik
