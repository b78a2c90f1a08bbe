#include "commands.h"

#include "hostBuildInfoRegistry.h"
#include "hostPackageManager.h"
#include "typeName.h"

namespace Qv {

namespace {

ExitStatus showPackages(Session const& /*session*/, Output& output) {
  HostPackageManager const& manager = HostPackageManager::getInstance();
  Json packages = Json::array();
  for (InPackageInit const* const package : manager.getPackages()) {
    Json dependencies = Json::array();
    for (std::type_info const* const needed : package->getDependencies()) {
      InPackageInit const* const dependency = manager.find(*needed);
      dependencies.push_back(dependency ? dependency->getName() : typeName(*needed));
    }
    packages.push_back({{"package", package->getName()}, {"dependencies", dependencies}});
  }
  Json infos = Json::array();
  for (OPtr<InBuildInfo> const& info : HostBuildInfoRegistry::getInstance().getInfos())
    infos.push_back({{"product", info->getProductName()},
                     {"library", info->getLibraryName()},
                     {"release", info->getReleaseName()},
                     {"version", info->getVersionString()},
                     {"stage", info->getStageName()},
                     {"major", info->getMajorVersion()},
                     {"minor", info->getMinorVersion()},
                     {"stageCode", info->getStageCode()},
                     {"buildNumber", info->getBuildNumber()},
                     {"buildDate", info->getBuildDate()},
                     {"buildFlavor", info->getBuildFlavor()}});
  if (output.isJson()) {
    output.printJson({{"packages", packages}, {"buildInfos", infos}});
    return Success;
  }

  output.printTable({"package", "dependencies"}, packages);
  for (Json const& info : infos) {
    output.print("\n");
    output.printProperties(info);
  }
  return Success;
}

} // namespace

void addPackagesCommand(Program& program) {
  program.addCommand("packages", "Show the packages and their build information", PluginUse::None,
                     &showPackages);
}

} // namespace Qv
