#include "commands.h"
#include "safeText.h"

#include <array>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <map>
#include <sys/wait.h>

namespace fs = std::filesystem;

namespace Qv {

namespace {

struct Options {
  std::string only;
  unsigned seconds = 60;
};

/// Runs qvcheck, and calls `f` with each line that it writes. @returns its status.
template <class F> int runChecker(std::string const& arguments, F f) {
  FILE* const checker = popen(("exec \"$QV_CHECKER\" " + arguments).c_str(), "re");
  for (std::array<char, 4096> line; checker && std::fgets(line.data(), line.size(), checker);)
    f(std::string(line.data(), std::strlen(line.data()) - 1));
  return checker ? pclose(checker) : -1;
}

/// Makes a check, and says what came of it.
void make(Json& check, unsigned seconds) {
  // What the last line of each letter says.
  std::map<char, std::string> said;
  int const status =
      runChecker(fmt::format("{} {} \"$QV_MODULE\"", check["check"].get<std::string>(), seconds),
                 [&](std::string const& line) { said[line[0]] = line.substr(1); });
  std::string happened = said['P'] + said['F'] + said['S'];
  bool const ended = happened.empty() || WIFSIGNALED(status);
  if (WIFSIGNALED(status) && WTERMSIG(status) == SIGALRM)
    happened = fmt::format("not done after {} seconds", seconds);
  else if (WIFSIGNALED(status))
    happened = fmt::format("ends the process: {}", strsignal(WTERMSIG(status)));
  else if (ended)
    happened = fmt::format("ends the process with status {}", WEXITSTATUS(status));
  bool const failed = ended || !said['F'].empty();
  check["result"] = failed ? "fail" : said['S'].empty() ? "pass" : "skipped";
  check["happened"] = failed && !said['L'].empty() ? said['L'] + ": " + happened : happened;
}

/// The checks whose names begin so.
Json listChecks(std::string const& only) {
  Json checks = Json::array();
  int const status = runChecker("", [&](std::string const& line) {
    if (Json check = Json::parse(line); check["check"].get<std::string>().starts_with(only))
      checks.push_back(std::move(check));
  });
  if (status != 0)
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
