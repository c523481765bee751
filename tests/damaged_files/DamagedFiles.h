#pragma once

#include <string>
#include <vector>

#include "platform/TemporaryFolder.h"

namespace tarvik::support {

// Files of one kind with the same damage, in a folder of their own and folders below it.
struct DamagedFolder {
  std::string kind;    // "icon", "16-bit library" ...
  std::string damage;  // "lies" ...
  std::string path;
  std::vector<std::string> damaged;  // paths
  std::vector<std::string> intact;   // intact files among them: one icon each
};

// Makes at least 10,000 damaged files of every kind that holds icons, the same ones each time. Each kind of damage of
// each kind of file gets a folder of its own in `folder`.
std::vector<DamagedFolder> MakeDamagedFiles(const TemporaryFolder& folder);
// The same with 5,000 damaged 16-bit modules, with intact modules among them.
std::vector<DamagedFolder> MakeDamagedModules(const TemporaryFolder& folder);

}  // namespace tarvik::support
