#include "commands.h"

#include "isolationGaps.h"
#include "output.h"

namespace Qv {

void showPlugins(Request const& request) {
  if (std::vector<std::string> const gaps = findIsolationGaps(); !gaps.empty())
    printProblem(fmt::format("plug-ins cannot be isolated completely on this machine: {}",
                             fmt::join(gaps, ", ")));
  Json plugins = Json::array();
  for (auto const& [file, failure, cached] : request.plugins) {
    Json json = {{"file", file.string()}, {"read", failure.empty()}, {"cached", cached}};
    json["failure"] = failure.empty() ? Json(nullptr) : Json(failure);
    plugins.push_back(json);
  }
  if (request.json)
    return printJson(plugins);

  std::vector<std::vector<std::string>> rows;
  for (auto const& [file, failure, cached] : request.plugins)
    rows.push_back({failure.empty() ? "read" : "failed", yesOrNo(cached), file, failure});
  Terminal().printTable({"State", "Cached", "File", "Reason"}, rows);
}

} // namespace Qv
