// Makes one check of a module file, in a process of its own.
//
//   qvcheck                        lists the checks, each as a line of JSON
//   qvcheck NAME SECONDS MODULE    makes one; an empty MODULE is that of this project
//
// Each line that it writes then starts with a letter: L is what is being looked at. The last one is
// what came of it, and says something: P passed, F failed or S skipped.

#include "check.h"

#include "hostModule.h"
#include "hostResources.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "readToolSources.h"

#include <algorithm>
#include <array>
#include <cstdlib>
#include <optional>
#include <sys/resource.h>
#include <unistd.h>

namespace fs = std::filesystem;

namespace Qv {

namespace {

int output = STDOUT_FILENO;
fs::path file;

/// A host with the sample catalogue, and with names that do not fit into a string object, so that
/// copying them allocates.
void fillRegistries(fs::path const& resources) {
  constexpr char Name[] = "a name that is longer than a string object";
  HostResources::getInstance().setDirectory(resources);
  registerToolSources(readToolSources({resources / "sampleCatalogue.json"}, {}));
  HostToolRegistry& tools = HostToolRegistry::getInstance();
  tools.addCategory(Name);
  tools.addTool({.name = Name, .category = Name, .infoTexts = {Name, Name, Name}});
  tools.addTool({.name = Name + std::string("r"), .category = Name, .superTool = true});
  HostViewFactory::getInstance().addView({Name, Name});
  HostTtServer::getInstance().addTooltip(Name, Name);
}

/// Allocates nothing.
void writeLine(char letter, std::string_view text) {
  std::array<char, 1024> line = {letter};
  std::size_t const size = text.copy(line.data() + 1, line.size() - 2) + 1;
  std::replace_if(
      line.begin(), line.begin() + size, [](char c) { return c == '\n' || c == 0; }, ' ');
  line[size] = '\n';
  static_cast<void>(!write(output, line.data(), size + 1));
}

void run(Check const& check) {
  std::optional<HostModule> module;
  try {
    if (check.needsStart)
      module.emplace(file);
    writeLine('P', check.run());
  } catch (Skipped const& skipped) {
    writeLine('S', skipped.what());
  } catch (...) {
    writeLine('F', describeException());
  }
}

} // namespace

fs::path const& moduleFile() { return file; }

void lookAt(std::string_view what) { writeLine('L', what); }

} // namespace Qv

int main(int argc, char** argv) {
  using namespace Qv;

  std::vector<Check> checks;
  for (auto const& group : {moduleChecks(), schemeChecks(), useChecks()})
    checks.insert(checks.end(), group.begin(), group.end());
  if (argc < 4) {
    for (Check const& check : checks)
      fmt::print(R"({{"check":"{}","result":"","happened":"","expected":"{}",)"
                 R"("see":"docs/host-contract.md, \"{}\""}})"
                 "\n",
                 check.name, check.expected, check.heading);
    return EXIT_SUCCESS;
  }
  alarm(unsigned(std::atoi(argv[2]))); // NOLINT(cert-err34-c): qvbrowse writes a number.
  rlimit const noCore = {0, 0};
  setrlimit(RLIMIT_CORE, &noCore);
  // What the module prints is not the result.
  output = dup(STDOUT_FILENO);
  dup2(STDERR_FILENO, STDOUT_FILENO);

  fs::path const self = fs::read_symlink("/proc/self/exe").parent_path();
  file = *argv[3] ? fs::absolute(argv[3]) : (self / MODULE).lexically_normal();
  fillRegistries(self / RESOURCES);
  for (Check const& check : checks)
    if (std::string_view(check.name) == argv[1])
      run(check);
  return EXIT_SUCCESS;
}
