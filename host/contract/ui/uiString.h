#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// A text on the screen.
class QV_EXPORT UiString {
public:
  /// @param text is copied; it ends in a zero byte.
  void setString(char const* text);

  /// @name Stand-in only
  /// @{
  std::string const& getString() const { return text_; }
  /// @}

private:
  std::string text_;
};

} // namespace Qv
