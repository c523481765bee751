#pragma once

#include "platform/TemporaryFolder.h"

namespace tarvik::bench {

// The argument that makes find_bench show the main window, search the DLLs of the system folder and end.
inline constexpr const char* searchOnce = "--search-once";

// Prints how long such a process takes, compared with wrestool extracting the same icons from the same files; or why
// that is not possible.
void CompareWholeProcesses(const support::TemporaryFolder& folder);

}  // namespace tarvik::bench
