#pragma once

#include "oPtr.h"

namespace Qv {

class UiResTable;

/// Owns the resource table that its widgets are built from.
class QV_EXPORT UiResHolder {
public:
  virtual ~UiResHolder();

  /// Lives as long as the holder; may be null.
  UiResTable const* getResTable() const;

protected:
  /// @name Stand-in only
  /// @{
  UiResHolder();

  OPtr<UiResTable> resTable_;
  /// @}
};

} // namespace Qv
