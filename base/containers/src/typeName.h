#pragma once

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <string>
#include <typeinfo>

namespace Qv {

/// The name of a type as it is written in the source, for instance `Qv::PiTool const*`.
inline std::string typeName(std::type_info const& type) {
  std::unique_ptr<char, decltype(&std::free)> const name(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
  return name ? name.get() : type.name();
}

} // namespace Qv
