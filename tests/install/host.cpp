// Loads the installed module and lists a category. The exit status says what failed.

#include "hostBrRegistry.h"
#include "hostModule.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "piBrowserSchemes.h"

#include <iostream>

using namespace Qv;

int main() {
  HostResources::getInstance().setDirectory(RESOURCE_DIR);
  HostToolRegistry& tools = HostToolRegistry::getInstance();
  tools.addCategory("Colour");
  tools.addTool({.name = "invert", .category = "Colour"});
  tools.addTool({.name = "probe", .category = "Colour", .internal = true});

  HostModule const module(MODULE_FILE);
  HostBrRegistry& browser = HostBrRegistry::getInstance();
  LiString message;
  auto const node =
      browser.getServer(PiBrowserSchemes::PluginToolScheme).getNode("Colour", message);
  auto const query = node->getBrowsable()->getChildren(BrBrowsable::FindFilter(0));
  std::string listed;
  for (auto children = query->getNextChildSequence(); !children.atEnd(); children.next())
    listed += children.item()->getPath() + "\n";
  std::cout << listed;
  if (listed != "Colour/invert\n")
    return 1;
  return browser.getIcon("Tool") ? 0 : 2;
}
