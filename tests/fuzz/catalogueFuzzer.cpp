// An input is a catalogue: it is registered completely and can then be browsed, or not at all.

#include "browse.h"
#include "hostError.h"
#include "toolCatalogue.h"

#include <cstdint>
#include <sys/mman.h>
#include <unistd.h>

namespace Qv {

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  static int const file = memfd_create("catalogue", 0);
  require(ftruncate(file, 0) == 0 && pwrite(file, data, size, 0) == ssize_t(size));
  int tools = 0;
  int views = 0;
  try {
    ToolSource const source = readToolCatalogue("/proc/self/fd/" + std::to_string(file));
    registerToolSources({source});
    tools = int(source.categories.size());
    views = int(source.views.size());
  } catch (HostError const&) {
    // Nothing may be registered then.
  }
  browseAll(tools, views);
  return 0;
}

} // namespace Qv
