#include "driver/Costs.h"

#include <sstream>
#include <stdexcept>
#include <string>

#include "driver/UnixProgram.h"
#include "platform/Text.h"

namespace tarvik::end_to_end {

Costs CostsOf(const Program& program) {
  // The process is found by the path of its copy of the program, which no other process runs. The path is in the script
  // alone, so the shell's own command line does not contain it.
  const std::string path = ToUtf8(program.Path().wstring());
  const UnixAnswer answer = RunUnix("for p in /proc/[0-9]*; do grep -qzsF '" + path +
                                    "' $p/cmdline || continue\n"
                                    "sed -n 's/^rchar: //p' $p/io && sed -n 's/^VmHWM:[^0-9]*\\([0-9]*\\) kB/\\1/p' "
                                    "$p/status; done");
  std::istringstream numbers(answer.output);
  Costs costs{};
  std::uint64_t kilobytes = 0;
  std::string more;
  if (!(numbers >> costs.bytesRead >> kilobytes) || numbers >> more)
    throw std::runtime_error("the host system does not report what the program used: " + answer.output);
  costs.peakMemory = kilobytes * 1024;
  return costs;
}

}  // namespace tarvik::end_to_end
