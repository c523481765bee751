#pragma once

#include "platform/TemporaryFolder.h"

namespace tarvik::bench {

// The argument with which find_bench is a process that shows the main window, searches the DLLs of the system folder
// and ends.
inline constexpr const char* searchOnce = "--search-once";

// Prints how long such a process takes, against wrestool taking the same icons out of the same files; or why not.
void CompareWholeProcesses(const support::TemporaryFolder& folder);

}  // namespace tarvik::bench
