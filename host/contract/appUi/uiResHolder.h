#pragma once

#include "oPtr.h"

namespace Qv {

class UiResTable;

/// Holds the table of resources that its widgets are made from.
class QV_EXPORT UiResHolder {
public:
  virtual ~UiResHolder();

  /// The table lives as long as the holder; null when there is none.
  UiResTable const* getResTable() const;

protected:
  /// @name Stand-in only
  /// @{
  UiResHolder();

  /// What getResTable() answers.
  OPtr<UiResTable> resTable_;
  /// @}
};

} // namespace Qv
