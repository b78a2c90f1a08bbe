#include "commands.h"
#include "safeText.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace Qv {

namespace {

struct Options {
  std::string only;
  unsigned seconds = 60;
};

/// The last lines that a run of qvcheck writes, and its status.
std::pair<std::vector<std::string>, int> runChecker(std::string const& arguments) {
  FILE* const checker = popen(("exec \"$QV_CHECKER\" " + arguments).c_str(), "re");
  std::vector<std::string> lines;
  for (std::array<char, 4096> line; checker && std::fgets(line.data(), line.size(), checker);) {
    lines.emplace_back(line.data());
    lines.back().pop_back();
    if (lines.size() == 1000)
      lines.erase(lines.begin(), lines.end() - 100);
  }
  return {std::move(lines), checker ? pclose(checker) : -1};
}

/// Makes a check, and says what came of it.
void make(Json& check, unsigned seconds) {
  auto const [lines, status] =
      runChecker(fmt::format("{} {} \"$QV_MODULE\"", check["check"].get<std::string>(), seconds));
  auto line = lines.rbegin();
  char const result = line == lines.rend() || (*line)[0] == 'L' ? 'L' : (*line++)[0];
  std::string const where = line == lines.rend() ? "" : line->substr(1);
  std::string happened = result == 'L' ? "" : lines.back().substr(1);
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
    happened = fmt::format("not done after {} seconds", seconds);
  else if (WIFSIGNALED(status))
    happened = fmt::format("ends the process: {}", strsignal(WTERMSIG(status)));
  else if (result == 'L')
    happened = fmt::format("ends the process with status {}", WEXITSTATUS(status));
  bool const failed = result == 'L' || result == 'F' || WIFSIGNALED(status);
  check["result"] = failed ? "fail" : result == 'P' ? "pass" : "skipped";
  check["happened"] = failed && !where.empty() ? where + ": " + happened : happened;
}

/// The checks whose names begin so.
Json listChecks(std::string const& only) {
  Json checks = Json::array();
  auto const lines = runChecker("").first;
  for (std::size_t line = 0; line + 2 < lines.size(); line += 3)
    if (lines[line].starts_with(only))
      checks.push_back({{"check", lines[line]},
                        {"result", ""},
                        {"happened", ""},
                        {"expected", lines[line + 1]},
                        {"see", "docs/host-contract.md, \"" + lines[line + 2] + "\""}});
  if (lines.empty())
    throw std::runtime_error("cannot start qvcheck, which makes the checks");
  if (checks.empty())
    throw std::invalid_argument(fmt::format("no check's name starts with \"{}\"", only));
  return checks;
}

ExitStatus checkModule(Options const& options, std::optional<fs::path> const& module,
                       Output& output) {
  if (module && !fs::is_regular_file(*module))
    throw std::invalid_argument(fmt::format("no such module file: \"{}\"", module->string()));
  fs::path const own = fs::read_symlink("/proc/self/exe").parent_path();
  setenv("QV_CHECKER", (own / QV_CHECKER).c_str(), 1);
  setenv("QV_MODULE", module ? module->c_str() : "", 1);

  Json checks = listChecks(options.only);
  std::string problems;
  std::string needed;
  for (Json& check : checks) {
    std::string const name = check["check"];
    output.setProgress(name);
    if (needed.empty())
      make(check, options.seconds);
    else
      check.update({{"result", "skipped"}, {"happened", "needs " + needed}});
    if (check["result"] != "fail")
      continue;
    problems +=
        fmt::format("\n{}\n  expected: {}\n  happened: {}\n  see:      {}\n", name,
                    check["expected"].get<std::string>(),
                    escaped(check["happened"].get<std::string>()), check["see"].get<std::string>());
    // A module that does not start cannot be asked for more.
    if (name.starts_with("file.") || name == "start.initialises")
      needed = name;
  }
  output.printList("checks", checks, {"check", "result", "happened"});
  if (!output.isJson())
    output.write(problems);
  return problems.empty() ? Success : Failure;
}

} // namespace

void addCheckCommand(Program& program) {
  auto const options = std::make_shared<Options>();
  CLI::App& command = program.addCommand("check", "Check that a module keeps the contract",
                                         PluginUse::None, Program::Command());
  command.callback([&program, options] {
    program.runWithoutSession([&program, options](Output& output) {
      return checkModule(*options, program.getSessionOptions().module, output);
    });
  });
  command.add_option("--only", options->only, "Only the checks whose names start with NAME")
      ->option_text("NAME");
  command.add_option("--time", options->seconds, "The time limit of each check, by default 60")
      ->check(CLI::Range(1, 3600))
      ->option_text("SECONDS");
}

} // namespace Qv
