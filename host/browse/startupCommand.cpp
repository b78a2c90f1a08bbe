#include "commands.h"

namespace Qv {

namespace {

ExitStatus showStartup(Session const& session, Output& output) {
  Json entries = Json::array();
  for (auto const& [operation, key, detail] : session.getStartup())
    entries.push_back({{"number", entries.size() + 1},
                       {"operation", operation},
                       {"key", key},
                       {"detail", detail}});
  output.printList("entries", entries, {"number", "operation", "key", "detail"});
  return Success;
}

} // namespace

void addStartupCommand(Program& program) {
  program.addCommand("startup", "Show what the module did to the host at its start",
                     PluginUse::None, &showStartup);
}

} // namespace Qv
