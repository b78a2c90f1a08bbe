#pragma once

#include "qvExport.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace Qv {

/// Path syntax: components, separated by any number of separators.
class QV_EXPORT HostPath {
public:
  static constexpr char Separator = '/';

  /// Removes and returns the first component; empty if there is none.
  static std::string_view takeComponent(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(Separator), path.size()));
    std::string_view const component = path.substr(0, path.find(Separator));
    path.remove_prefix(component.size());
    return component;
  }

  /// Joins with exactly one separator, or none if a side is empty.
  static std::string join(std::string_view left, std::string_view right);

  /// @param what the kind of name, for instance "tool name". @throws HostError if the name is empty
  /// or contains a separator or a zero byte.
  static void requireComponent(std::string const& name, char const* what);
};

} // namespace Qv
