#include "commands.h"

#include "isolationGaps.h"

namespace Qv {

namespace {

ExitStatus showPlugins(Output& output, Session const& session) {
  if (std::vector<std::string> const gaps = findIsolationGaps(); !gaps.empty())
    output.printProblem(fmt::format("plug-ins cannot be isolated completely on this machine: {}",
                                    fmt::join(gaps, ", ")));
  Json plugins = Json::array();
  for (ToolSource::Plugin const& plugin : session.getPlugins()) {
    Json json = {{"file", plugin.file.string()},
                 {"read", plugin.failure.empty()},
                 {"cached", plugin.cached}};
    json["failure"] = plugin.failure.empty() ? Json(nullptr) : Json(plugin.failure);
    plugins.push_back(json);
  }
  output.printList(plugins, {"State", "Cached", "File", "Reason"},
                   [](Json const& plugin) -> Output::Row {
                     return {plugin["read"] ? "read" : "failed", yesOrNo(plugin["cached"]),
                             plugin["file"], plugin["read"] ? "" : plugin["failure"]};
                   });
  return Success;
}

} // namespace

void addPluginsCommand(Program& program) {
  CLI::App& command = program.addCommand(
      "plugins", "Show the plug-in files and why some are left out", &showPlugins);
  command.add_flag("--retry", program.getSessionOptions().scan.retry,
                   "Try again those that failed before");
}

} // namespace Qv
