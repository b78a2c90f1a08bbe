#pragma once

#include "hostActRegistry.h"
#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostDndRegistry.h"
#include "hostImage.h"
#include "hostJournal.h"
#include "typeName.h"

namespace Qv {

/// What was asked of the host, in order.
using Calls = std::vector<HostJournal::Entry>;

inline void PrintTo(HostJournal::Entry const& entry, std::ostream* os) {
  *os << entry.operation << "(" << entry.key << ", " << entry.detail << ")";
}

/// What the registries hold that a module registers, each as the call that put it there: registry
/// by registry, and each in order of registration but the icons, which are in order of their keys
/// and say as the detail what image it is.
inline Calls registered() {
  auto const nameOf = [](auto const& object) { return typeName(typeid(object)); };
  Calls calls;
  for (auto const& info : HostBuildInfoRegistry::getInstance().getInfos())
    calls.push_back(
        {"InBuildInfoUtil::registerInfo", info->getLibraryName(), info->getVersionString()});
  for (auto const& [type, handler] : HostDndRegistry::getInstance().getEntries())
    calls.push_back({"BrDndRegistry::addHandler", nameOf(*type), nameOf(*handler)});
  HostBrRegistry const& browser = HostBrRegistry::getInstance();
  for (auto const& [role, view] : browser.getViews())
    calls.push_back({"BrRegistry::registerView", role, nameOf(*view)});
  for (auto const& server : browser.getServers())
    calls.push_back({"BrRegistry::registerServer", server->getSchemeName(), ""});
  for (auto const& [key, icon] : browser.getIcons()) {
    auto const image = icon.checkedCast<HostImage>();
    calls.push_back({"BrRegistry::registerIcon", key.first,
                     key.second + (image ? image->getName() : "no image")});
  }
  for (auto const& [action, state] : HostActRegistry::getInstance().getEntries())
    calls.push_back({"ActRegistry::registerAction", action->getName(), std::to_string(state)});
  return calls;
}

} // namespace Qv
