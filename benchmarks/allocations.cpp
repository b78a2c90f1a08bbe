#include "allocations.h"

#include <cstdlib>
#include <dlfcn.h>
#include <execinfo.h>
#include <new>
#include <string_view>

namespace Qv {

namespace {

bool counting = false;
std::array<Allocations, 3> allocations;

Owner findOwner(void* const* begin, void* const* end) {
  for (void* const* frame = begin; frame != end; ++frame) {
    Dl_info info;
    if (!dladdr(*frame, &info))
      continue;
    std::string_view const file(info.dli_fname);
    if (file.find("libQVpluginBrowser") != std::string_view::npos)
      return Owner::Module;
    if (file.find("libQV") != std::string_view::npos)
      return Owner::StandIn;
    if (file.find("libstdc++") == std::string_view::npos)
      break;
  }
  return Owner::Program;
}

[[gnu::noinline]] void count(std::size_t size) {
  // Walking the stack may allocate too.
  counting = false;
  std::array<void*, 16> frames;
  int const depth = backtrace(frames.data(), frames.size());
  // The first two are this function's and operator new's.
  Owner const owner = findOwner(frames.data() + 2, frames.data() + depth);
  Allocations& owned = allocations.at(std::size_t(owner));
  ++owned.blocks;
  owned.bytes += std::int64_t(size);
  counting = true;
}

} // namespace

void startCounting() { counting = true; }
void stopCounting() { counting = false; }
std::array<Allocations, 3> const& getAllocations() { return allocations; }

} // namespace Qv

void* operator new(std::size_t size) {
  if (Qv::counting)
    Qv::count(size);
  if (void* const block = std::malloc(size))
    return block;
  throw std::bad_alloc();
}
void operator delete(void* block) noexcept { std::free(block); }
void operator delete(void* block, std::size_t /*size*/) noexcept { std::free(block); }
