#include "cases.h"

#include "hostModule.h"

#include <boost/dll/shared_library.hpp>

namespace Qv {

namespace {

auto loadAndUnload(char const* file) {
  return [file](auto& loop) {
    for ([[maybe_unused]] auto _ : loop)
      boost::dll::shared_library const library(file, boost::dll::load_mode::rtld_now);
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
