#pragma once

#include "iterator.h"
#include "osFilePath.h"

namespace Qv {

/// Splits paths.
class QV_EXPORT OmUtil {
public:
  /// The components of `path`; an empty path has none.
  static Iterator<std::string> parsePath(OsFilePath const& path);
};

} // namespace Qv
