#pragma once

#include <cstdlib>
#include <cxxabi.h>
#include <memory>
#include <string>
#include <typeinfo>

namespace Qv {

/// The demangled name of a type, for instance `Qv::PiTool const*`.
inline std::string typeName(std::type_info const& type) {
  std::unique_ptr<char, decltype(&std::free)> const name(
      abi::__cxa_demangle(type.name(), nullptr, nullptr, nullptr), &std::free);
  return name ? name.get() : type.name();
}

} // namespace Qv
