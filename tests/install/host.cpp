// Loads the installed module and lists the tool scheme. Its exit status says what was wrong.

#include "hostBrRegistry.h"
#include "hostModule.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "piBrowserSchemes.h"

#include <iostream>

namespace {

using namespace Qv;

/// The paths of all items below `item`, one a line.
std::string paths(BrBrowsable& item) {
  std::string result;
  auto children = item.getChildren(BrBrowsable::FindFilter(0))->getNextChildSequence();
  for (; !children.atEnd(); children.next())
    result += children.item()->getPath() + "\n" + paths(*children.item());
  return result;
}

} // namespace

int main() {
  HostResources::getInstance().setDirectory(RESOURCE_DIR);
  HostToolRegistry& tools = HostToolRegistry::getInstance();
  tools.addCategory("Colour");
  tools.addTool({.name = "invert", .category = "Colour"});
  tools.addTool({.name = "probe", .category = "Colour", .internal = true});

  HostModule const module(MODULE_FILE);
  HostBrRegistry& browser = HostBrRegistry::getInstance();
  LiString message;
  auto const root = browser.getServer(PiBrowserSchemes::PluginToolScheme).getNode("", message);
  std::string const listed = paths(*root->getBrowsable());
  std::cout << listed;
  if (listed != "Colour\nColour/invert\n")
    return 1;
  return browser.getIcon("Tool") ? 0 : 2;
}
