#include "hostBuildInfoRegistry.h"

#include "hostJournal.h"

namespace Qv {

InBuildInfo::~InBuildInfo() = default;

InBuildInfo const& InBuildInfoUtil::registerInfo(OPtr<InBuildInfo> info) {
  return HostBuildInfoRegistry::getInstance().add(std::move(info));
}

HostBuildInfoRegistry& HostBuildInfoRegistry::getInstance() {
  static HostBuildInfoRegistry registry;
  return registry;
}

InBuildInfo const& HostBuildInfoRegistry::add(OPtr<InBuildInfo> info) {
  HostJournal::getInstance().record("InBuildInfoUtil::registerInfo", info->getLibraryName(),
                                    info->getVersionString());
  infos_.push_back(std::move(info));
  return *infos_.back();
}

} // namespace Qv
