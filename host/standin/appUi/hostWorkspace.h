#pragma once

#include "containers.h"
#include "uiWorkspace.h"

namespace Qv {

/// Records the requests to open a view.
class QV_EXPORT HostWorkspace final : public UiWorkspace {
public:
  /// A request to open a view.
  struct Request {
    std::string view;
    bool newWindow;
    /// The flag of openViewInWindow(); false for a new window.
    bool flag;

    bool operator==(Request const&) const = default;
  };

  HostWorkspace();

  /// @param workspace may be null.
  static void setCurrent(RCShdPtr<UiWorkspace> const& workspace);

  Vector<Request> const& getRequests() const { return requests_; }

private:
  friend UiWorkspace;

  ~HostWorkspace() override;

  Vector<Request> requests_;
};

} // namespace Qv
