#pragma once

#include "qvExport.h"

#include <algorithm>
#include <string>
#include <string_view>

namespace Qv {

/// The grammar of paths: components, separated by any number of separators.
class QV_EXPORT HostPath {
public:
  static constexpr char Separator = '/';

  /// Takes the first component off a path; empty when there is none.
  static std::string_view takeComponent(std::string_view& path) {
    path.remove_prefix(std::min(path.find_first_not_of(Separator), path.size()));
    std::string_view const component = path.substr(0, path.find(Separator));
    path.remove_prefix(component.size());
    return component;
  }

  /// Both paths with exactly one separator between them, and none beside an empty one.
  static std::string join(std::string_view left, std::string_view right);

  /// Accepts a name that is one whole component. @param what says what the name is for, for
  /// instance "tool name". @throws HostError when the name is empty or holds a separator or a zero
  /// byte.
  static void requireComponent(std::string const& name, char const* what);
};

} // namespace Qv
