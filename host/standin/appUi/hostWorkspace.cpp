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

void HostWorkspace::openViewInWindow(std::string const& name, bool flag) {
  HostJournal::getInstance().record("UiWorkspace::openViewInWindow", name, flag ? "true" : "false");
  requests_.push_back({name, false, flag});
}

void HostWorkspace::openViewInNewWindow(std::string const& name) {
  HostJournal::getInstance().record("UiWorkspace::openViewInNewWindow", name);
  requests_.push_back({name, true, false});
}

} // namespace Qv
