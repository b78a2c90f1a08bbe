#include "commands.h"

namespace Qv {

namespace {

ExitStatus showStartup(Output& output, Session const& session) {
  Json entries = Json::array();
  for (auto const& [operation, key, detail] : session.getStartup())
    entries.push_back({{"operation", operation}, {"key", key}, {"detail", detail}});
  output.printList(
      entries, {"#", "Operation", "Key", "Detail"},
      [number = 0](Json const& entry) mutable -> Output::Row {
        return {std::to_string(++number), entry["operation"], entry["key"], entry["detail"]};
      });
  return Success;
}

} // namespace

void addStartupCommand(Program& program) {
  program.addCommand("startup", "Show what the module did to the host while it started",
                     &showStartup);
}

} // namespace Qv
