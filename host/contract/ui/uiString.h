#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// A displayed text.
class QV_EXPORT UiString {
public:
  /// @param text is copied; null-terminated.
  void setString(char const* text);

  /// @name Stand-in only
  /// @{
  std::string const& getString() const { return text_; }
  /// @}

private:
  std::string text_;
};

} // namespace Qv
