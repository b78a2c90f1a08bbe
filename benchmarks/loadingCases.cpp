#include "cases.h"

#include "hostFiles.h"
#include "hostModule.h"

namespace Qv {

namespace {

auto loadAndUnload(char const* file) {
  return [file](auto& loop) {
    for ([[maybe_unused]] auto _ : loop)
      loadLibrary(file);
  };
}

} // namespace

void Cases::addLoading() {
  add("load/empty", loadAndUnload(EMPTY_LIBRARY_FILE));
  add("load/module", loadAndUnload(MODULE_FILE));
  add("initialise/module", [](auto& loop) {
    for ([[maybe_unused]] auto _ : loop)
      HostModule const module(MODULE_FILE);
  });
}

} // namespace Qv
