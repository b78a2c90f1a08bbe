#include "typeName.h"

#include <cstdlib>
#include <cxxabi.h>
#include <memory>

namespace Qv {

std::string typeName(std::type_info const& type) {
  std::unique_ptr<char, decltype(&std::free)> const name(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
  return name ? name.get() : type.name();
}

} // namespace Qv
