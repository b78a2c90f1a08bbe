#pragma once

#include "liString.h"

#include <ostream>

namespace Qv {

/// Identifies a view by its name.
class QV_EXPORT UiViewIdentifier {
public:
  explicit UiViewIdentifier(LiString const& name);
  UiViewIdentifier(UiViewIdentifier const& other);

  bool operator==(UiViewIdentifier const& other) const;

  /// @name Stand-in only
  /// @{
  LiString const& getName() const { return name_; }
  /// @}

private:
  LiString name_;
};

QV_EXPORT std::ostream& operator<<(std::ostream& os, UiViewIdentifier const& view);

} // namespace Qv
