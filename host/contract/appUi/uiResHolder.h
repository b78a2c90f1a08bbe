#pragma once

#include "qvExport.h"

namespace Qv {

class UiResTable;

/// Holds the table of resources that its widgets are made from.
class QV_EXPORT UiResHolder {
public:
  virtual ~UiResHolder();

  /// The table lives as long as the holder; null when there is none.
  UiResTable const* getResTable() const { return resTable_; }

protected:
  UiResTable const* resTable_ = nullptr;
};

} // namespace Qv
