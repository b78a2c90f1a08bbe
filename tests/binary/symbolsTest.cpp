#include "expectations.h"
#include "vtables.h"

#include <algorithm>
#include <cstdio>
#include <gmock/gmock.h>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

namespace Qv {

namespace {

/// The names in the module's dynamic table that `nm` shows with an option.
std::set<std::string> dynamicNames(std::string const& option) {
  std::string const command =
      "nm --dynamic --format=posix " + option + " '" PLUGINBROWSERQVMODULE_FILE "'";
  std::unique_ptr<FILE, decltype(&pclose)> const nm(popen(command.c_str(), "r"), &pclose);
  std::set<std::string> names;
  char line[4096];
  while (nm && std::fgets(line, sizeof line, nm.get())) {
    std::string symbol;
    std::istringstream(line) >> symbol;
    names.insert(symbol);
  }
  return names;
}

/// The names that the module defines for others.
std::set<std::string> exportedNames() {
  // What the compilers make of the standard library is merged at load, as type identities are; the
  // rest counts what runs, for the coverage and the fuzzers.
  std::regex const others("^(_Z(Z?N?K?St|NK?9__gnu_cxx|TI|TS)|__.*(llvm_pr|sancov)|lprof)");
  std::set<std::string> names;
  for (std::string const& symbol : dynamicNames("--defined-only"))
    if (!std::regex_search(symbol, others))
      names.insert(readable(symbol.c_str()));
  return names;
}

/// The names that the module needs from the host's libraries.
std::set<std::string> importedNames() {
  std::set<std::string> names;
  for (std::string const& symbol : dynamicNames("--undefined-only"))
    if (symbol.find("2Qv") != std::string::npos)
      names.insert(readable(symbol.c_str()));
  return names;
}

bool belongsTo(std::string const& name, std::string const& entry) {
  return entry.ends_with("::") ? name.starts_with(entry) : name == entry;
}

TEST(Exports, holdEveryInstanceAndClass) {
  std::set<std::string> const names = exportedNames();
  for (std::string const& entry : expectations("exports.txt"))
    EXPECT_TRUE(std::ranges::any_of(names, [&](std::string const& name) {
      return belongsTo(name, entry);
    })) << entry;
}

TEST(Exports, holdNothingElseOfTheModule) {
  std::vector<std::string> const entries = expectations("exports.txt");
  for (std::string name : exportedNames()) {
    if (name.starts_with("vtable for "))
      name = name.substr(std::string("vtable for ").size()) + "::";
    EXPECT_TRUE(std::ranges::any_of(entries, [&](std::string const& entry) {
      return belongsTo(name, entry) || name == "RCSWCount<LkCounter<int>>::";
    })) << name;
  }
}

TEST(Imports, areThoseThatTheHostIsBoundToHave) {
  std::set<std::string> names = importedNames();
  for (std::string const& entry : expectations("imports.txt")) {
    bool const optional = entry.starts_with("? ");
    std::string const name = optional ? entry.substr(2) : entry;
    EXPECT_TRUE(names.erase(name) == 1 || optional) << name << " is not imported";
  }
  EXPECT_THAT(names, testing::IsEmpty()) << "what no host is bound to have";
}

} // namespace

} // namespace Qv
