#pragma once

#include "rcShdPtr.h"

#include <string>

namespace Qv {

/// The windows of the application.
class QV_EXPORT UiWorkspace : public RCBase<LkCounter<int>> {
public:
  /// Null when there is none.
  static RCShdPtr<UiWorkspace> getCurrentWorkspace();

  /// Opens the view of that name. @param flag the module passes true.
  void openViewInWindow(std::string const& name, bool flag);
  /// Opens the view of that name in a new window.
  void openViewInNewWindow(std::string const& name);

protected:
  ~UiWorkspace() override;
};

} // namespace Qv
