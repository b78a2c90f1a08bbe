#pragma once

#include "rcShdPtr.h"

#include <string>

namespace Qv {

/// The application's windows.
class QV_EXPORT UiWorkspace : public RCBase<LkCounter<int>> {
public:
  /// May be null.
  static RCShdPtr<UiWorkspace> getCurrentWorkspace();

  /// Opens a view. @param flag the module passes true.
  void openViewInWindow(std::string const& name, bool flag);
  void openViewInNewWindow(std::string const& name);

protected:
  ~UiWorkspace() override;
};

} // namespace Qv
