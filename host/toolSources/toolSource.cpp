#include "toolSource.h"

#include "hostError.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"

#include <fmt/format.h>
#include <unordered_map>
#include <unordered_set>

namespace Qv {

void registerToolSources(std::vector<ToolSource> const& sources) {
  std::unordered_map<std::string, std::string> origins;
  for (ToolSource const& source : sources)
    for (ToolSource::View const& view : source.views)
      if (auto const [first, added] = origins.emplace(view.name, source.origin); !added)
        throw HostError(fmt::format("\"{}\" has a view \"{}\", which \"{}\" has already",
                                    source.origin, view.name, first->second));

  HostToolRegistry& registry = HostToolRegistry::getInstance();
  std::unordered_set<std::string> known;
  std::unordered_map<std::string, std::string> tooltips;
  for (ToolSource const& source : sources) {
    for (std::string const& category : source.categories)
      if (!known.contains(category))
        registry.addCategory(category);
    known.insert(source.categories.begin(), source.categories.end());
    for (ToolSource::Tool const& tool : source.tools) {
      registry.addTool(tool.info);
      if (!tool.tooltip.empty())
        tooltips.emplace(tool.info.name, tool.tooltip);
    }
    for (ToolSource::View const& view : source.views) {
      HostViewFactory::getInstance().addView({view.name, view.label});
      if (!view.tooltip.empty())
        tooltips.emplace(view.name, view.tooltip);
    }
  }
  for (auto const& [name, tooltip] : tooltips)
    HostTtServer::getInstance().setTooltip(name, tooltip);
}

} // namespace Qv
