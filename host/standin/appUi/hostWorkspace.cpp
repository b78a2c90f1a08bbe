#include "hostWorkspace.h"

#include "hostJournal.h"

namespace Qv {

namespace {

RCShdPtr<UiWorkspace>& current() {
  static RCShdPtr<UiWorkspace> workspace;
  return workspace;
}

} // namespace

UiWorkspace::~UiWorkspace() = default;

RCShdPtr<UiWorkspace> UiWorkspace::getCurrentWorkspace() { return current(); }

HostWorkspace::HostWorkspace() = default;

HostWorkspace::~HostWorkspace() = default;

void HostWorkspace::setCurrent(RCShdPtr<UiWorkspace> const& workspace) { current() = workspace; }

// Every workspace is a HostWorkspace.

void UiWorkspace::openViewInWindow(std::string const& name, bool flag) {
  HostJournal::getInstance().record("UiWorkspace::openViewInWindow", name, flag ? "true" : "false");
  static_cast<HostWorkspace&>(*this).requests_.push_back({name, false, flag});
}

void UiWorkspace::openViewInNewWindow(std::string const& name) {
  HostJournal::getInstance().record("UiWorkspace::openViewInNewWindow", name);
  static_cast<HostWorkspace&>(*this).requests_.push_back({name, true, false});
}

} // namespace Qv
