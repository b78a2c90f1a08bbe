#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// Converts numbers to text.
class QV_EXPORT LiStringUtil {
public:
  /// The number in decimal.
  static std::string convertNb(int number);
};

} // namespace Qv
