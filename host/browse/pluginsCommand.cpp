#include "commands.h"
#include "isolationGaps.h"
#include "values.h"

namespace Qv {

namespace {

ExitStatus showPlugins(Session const& session, Output& output) {
  if (std::vector<std::string> const gaps = findIsolationGaps(); !gaps.empty())
    output.printProblem(fmt::format("plug-ins cannot be isolated completely on this machine: {}",
                                    fmt::join(gaps, ", ")));
  Json plugins = Json::array();
  for (ToolSource::Plugin const& plugin : session.getPlugins())
    plugins.push_back(toJson(plugin));
  output.printList("plugins", plugins, {"state", "category", "tool", "version", "file", "reason"});
  return Success;
}

} // namespace

void addPluginsCommand(Program& program) {
  CLI::App& command =
      program.addCommand("plugins", "Show the plug-in files and why some are left out",
                         PluginUse::Report, &showPlugins);
  command.add_flag("--retry", program.getSessionOptions().scan.retry,
                   "Try again those that failed before");
}

} // namespace Qv
