#include "commands.h"

#include "isolationGaps.h"

namespace Qv {

namespace {

ExitStatus showPlugins(Output& output, Session const& session) {
  if (std::vector<std::string> const gaps = findIsolationGaps(); !gaps.empty())
    output.printProblem(fmt::format("plug-ins cannot be isolated completely on this machine: {}",
                                    fmt::join(gaps, ", ")));
  Json plugins = Json::array();
  for (auto const& [file, failure, cached] : session.getPlugins()) {
    Json json = {{"file", file.string()}, {"read", failure.empty()}, {"cached", cached}};
    json["failure"] = failure.empty() ? Json(nullptr) : Json(failure);
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
