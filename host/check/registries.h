#pragma once

#include "hostActRegistry.h"
#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostDndRegistry.h"

#include <map>
#include <string>

namespace Qv {

/// The number of objects in the registries, by the call that registers them.
inline std::map<std::string, std::size_t> registered() {
  HostBrRegistry const& browser = HostBrRegistry::getInstance();
  return {{"InBuildInfoUtil::registerInfo", HostBuildInfoRegistry::getInstance().getInfos().size()},
          {"BrDndRegistry::addHandler", HostDndRegistry::getInstance().getEntries().size()},
          {"BrRegistry::registerView", browser.getViews().size()},
          {"BrRegistry::registerServer", browser.getServers().size()},
          {"BrRegistry::registerIcon", browser.getIcons().size()},
          {"ActRegistry::registerAction", HostActRegistry::getInstance().getEntries().size()}};
}

} // namespace Qv
