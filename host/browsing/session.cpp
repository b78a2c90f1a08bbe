#include "session.h"

#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "hostWorkspace.h"
#include "piBrowserSchemes.h"
#include "readToolSources.h"

#include <algorithm>

namespace fs = std::filesystem;

namespace Qv {

namespace {

/// Where the file of this program is.
fs::path programDirectory() { return fs::read_symlink("/proc/self/exe").parent_path(); }

fs::path standardModule() {
  return programDirectory() / LIBRARY_DIRECTORY / "libQVpluginBrowser.qvmodule";
}

/// The views that are offered where no source names any.
ToolSource standardViews() {
  ToolSource source;
  source.views = {{"browser", "Asset Browser", "The trees of all schemes"},
                  {"toolDetail", "Tool Detail", "The detail page of a tool"},
                  {"startupJournal", "Start-up Journal", "What the module did while it started"},
                  {"packages", "Packages", "The packages and their build information"}};
  return source;
}

fs::path resourceDirectory() { return programDirectory().parent_path() / "share" / "qvbrowse"; }

} // namespace

std::vector<ToolSource> Session::read(Options const& options) {
  std::vector<ToolSource> sources =
      readToolSources(options.sources, options.scan, resourceDirectory() / "sampleCatalogue.json");
  if (std::all_of(sources.begin(), sources.end(),
                  [](ToolSource const& source) { return source.views.empty(); }))
    sources.push_back(standardViews());
  return sources;
}

Session::Session(Options const& options, std::vector<ToolSource> sources) {
  HostResources::getInstance().setDirectory(resourceDirectory());
  refill(std::move(sources));

  HostJournal& journal = HostJournal::getInstance();
  journal.start();
  module_.emplace(options.module ? *options.module : standardModule());
  journal.stop();
  startup_ = journal.getEntries();
}

void Session::refill(std::vector<ToolSource> sources) {
  Registries::clear();
  plugins_.clear();
  for (ToolSource const& source : sources)
    plugins_.insert(plugins_.end(), source.plugins.begin(), source.plugins.end());
  registerToolSources(std::move(sources));
}

ToolSource::Plugin const* Session::findPlugin(BrBrowsable const& item) const {
  if (item.getSchemeName() != PiBrowserSchemes::PluginToolScheme)
    return nullptr;
  std::string const path = item.getPath();
  // Of tools of one name, the details of the first are shown.
  auto const found = std::find_if(plugins_.begin(), plugins_.end(), [&](auto const& plugin) {
    return path == plugin.category + "/" + plugin.tool;
  });
  return found == plugins_.end() ? nullptr : &*found;
}

Session::Registries::~Registries() {
  HostJournal::getInstance().start();
  HostJournal::getInstance().stop();
  HostWorkspace::setCurrent(RCShdPtr<HostWorkspace>());
  clear();
}

void Session::Registries::clear() {
  HostToolRegistry::getInstance().clear();
  HostViewFactory::getInstance().clear();
  HostTtServer::getInstance().clear();
}

} // namespace Qv
