#include "readToolSources.h"

#include "frei0rTools.h"
#include "toolCatalogue.h"

#include <string_view>

namespace Qv {

std::vector<ToolSource> readToolSources(std::vector<std::string> const& names,
                                        ScanOptions const& options) {
  constexpr std::string_view Frei0r = "frei0r";
  constexpr std::string_view Frei0rDirectory = "frei0r:";
  std::vector<ToolSource> sources;
  PluginCache cache(PluginCache::getUserFile());
  for (std::string const& name : names) {
    options.progress("reading tools");
    if (name == Frei0r)
      sources.push_back(readFrei0rTools(frei0rDirectory, cache, options));
    else if (name.starts_with(Frei0rDirectory))
      sources.push_back(readFrei0rTools(name.substr(Frei0rDirectory.size()), cache, options));
    else
      sources.push_back(readToolCatalogue(name));
  }
  return sources;
}

} // namespace Qv
