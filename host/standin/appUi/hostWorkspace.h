#pragma once

#include "containers.h"
#include "uiWorkspace.h"

namespace Qv {

/// Keeps what it was asked to open.
class QV_EXPORT HostWorkspace final : public UiWorkspace {
public:
  /// One request to open a view.
  struct Request {
    std::string view;
    bool newWindow;
    /// The flag of openViewInWindow(); false for a new window.
    bool flag;

    bool operator==(Request const&) const = default;
  };

  HostWorkspace();

  /// Makes `workspace`, which may be null, the current one.
  static void setCurrent(RCShdPtr<UiWorkspace> const& workspace);

  Vector<Request> const& getRequests() const { return requests_; }

private:
  friend UiWorkspace;

  ~HostWorkspace() override;

  Vector<Request> requests_;
};

} // namespace Qv
