#pragma once

#include "rcShdPtr.h"

#include <string>

namespace Qv {

/// The windows of the application.
class QV_EXPORT UiWorkspace : public RCBase<LkCounter<int>> {
protected:
  ~UiWorkspace() override;

public:
  /// Null when there is none.
  static RCShdPtr<UiWorkspace> getCurrentWorkspace();

  /// Opens the view of that name. @param flag the module passes true.
  virtual void openViewInWindow(std::string const& name, bool flag) = 0;
  /// Opens the view of that name in a new window.
  virtual void openViewInNewWindow(std::string const& name) = 0;
};

} // namespace Qv
