#pragma once

#include <cstddef>
#include <span>

namespace tarvik {

// Returns true if a reparse point's data (REPARSE_DATA_BUFFER: tag, lengths, then names in UTF-16) is that of a volume
// mounted in a folder. Such a point and a junction have the same tag; a mounted volume's target is the root of a volume
// named by its GUID, a junction's is a path.
bool IsVolumeMount(std::span<const std::byte> reparseData);

}  // namespace tarvik
