#include "toolSource.h"

#include "hostError.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"

#include <fmt/format.h>
#include <unordered_map>
#include <unordered_set>

namespace Qv {

void registerToolSources(std::vector<ToolSource> sources) {
  std::unordered_map<std::string, std::string> origins;
  for (ToolSource const& source : sources)
    for (ToolSource::View const& view : source.views)
      if (auto const [first, added] = origins.emplace(view.name, source.origin); !added)
        throw HostError(fmt::format("\"{}\" and \"{}\" have a view of the same name, \"{}\"",
                                    first->second, source.origin, view.name));

  HostToolRegistry& registry = HostToolRegistry::getInstance();
  HostTtServer& tooltips = HostTtServer::getInstance();
  std::unordered_set<std::string> known;
  for (ToolSource& source : sources) {
    for (std::string const& category : source.categories)
      if (!known.contains(category))
        registry.addCategory(category);
    known.insert(source.categories.begin(), source.categories.end());
    for (auto& [tool, tooltip] : source.tools) {
      registry.addTool(tool);
      if (!tooltip.empty())
        tooltips.addTooltip(tool->getInfo().name, std::move(tooltip));
    }
    for (auto& [name, label, tooltip] : source.views) {
      if (!tooltip.empty())
        tooltips.addTooltip(name, std::move(tooltip));
      HostViewFactory::getInstance().addView({std::move(name), std::move(label)});
    }
  }
}

} // namespace Qv
