#include "readToolSources.h"

#include "frei0rTools.h"
#include "toolCatalogue.h"

#include <string_view>

namespace Qv {

namespace fs = std::filesystem;

std::vector<ToolSource> readToolSources(std::vector<std::string> const& names,
                                        ScanOptions const& options,
                                        fs::path const& sampleCatalogue) {
  constexpr std::string_view Frei0r = "frei0r";
  constexpr std::string_view Frei0rDirectory = "frei0r:";
  options.progress("reading tools");
  PluginCache cache(PluginCache::getUserFile(), options.notice);
  Frei0rTools plugins(cache, options);
  std::vector<ToolSource> sources;
  for (std::string const& name : names)
    if (name == Frei0r)
      sources.push_back(plugins.read());
    else if (name.starts_with(Frei0rDirectory))
      sources.push_back(plugins.read(name.substr(Frei0rDirectory.size())));
    else
      sources.push_back(readToolCatalogue(name));
  if (names.empty())
    try {
      sources.push_back(plugins.read());
    } catch (NoPluginsError const& error) {
      options.notice(std::string(error.what()) + "; the sample catalogue is shown instead");
      sources.push_back(readToolCatalogue(sampleCatalogue));
    }
  return sources;
}

} // namespace Qv
