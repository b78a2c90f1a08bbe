#include "session.h"

#include "frei0rTools.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "hostWorkspace.h"
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

} // namespace

Session::Session(Options const& options) {
  fs::path const resources = programDirectory().parent_path() / "share" / "qvbrowse";
  HostResources::getInstance().setDirectory(resources);
  std::vector<std::string> names = options.sources;
  if (names.empty())
    names = {hasFrei0rTools(frei0rDirectory) ? "frei0r" : resources / "sampleCatalogue.json"};
  std::vector<ToolSource> sources = readToolSources(names, options.scan);
  if (std::all_of(sources.begin(), sources.end(),
                  [](ToolSource const& source) { return source.views.empty(); }))
    sources.push_back(standardViews());
  for (ToolSource const& source : sources)
    plugins_.insert(plugins_.end(), source.plugins.begin(), source.plugins.end());
  registerToolSources(sources);

  HostJournal& journal = HostJournal::getInstance();
  journal.start();
  module_.emplace(options.module ? *options.module : standardModule());
  journal.stop();
  startup_ = journal.getEntries();
}

Session::Registries::~Registries() {
  HostJournal::getInstance().start();
  HostJournal::getInstance().stop();
  HostWorkspace::setCurrent(RCShdPtr<HostWorkspace>());
  HostToolRegistry::getInstance().clear();
  HostViewFactory::getInstance().clear();
  HostTtServer::getInstance().clear();
}

} // namespace Qv
