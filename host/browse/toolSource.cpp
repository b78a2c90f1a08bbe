#include "toolSource.h"

#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"

namespace Qv {

void registerToolSource(ToolSource const& source) {
  HostToolRegistry& registry = HostToolRegistry::getInstance();
  HostTtServer& tooltips = HostTtServer::getInstance();
  for (std::string const& category : source.categories)
    registry.addCategory(category);
  for (ToolSource::Tool const& tool : source.tools) {
    registry.addTool(tool.facts);
    if (!tool.tooltip.empty())
      tooltips.setTooltip(tool.facts.name, tool.tooltip);
  }
  for (ToolSource::View const& view : source.views) {
    HostViewFactory::getInstance().addView({view.name, view.label});
    if (!view.tooltip.empty())
      tooltips.setTooltip(view.name, view.tooltip);
  }
}

} // namespace Qv
