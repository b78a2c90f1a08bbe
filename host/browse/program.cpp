#include "program.h"

#include <sstream>

namespace Qv {

Program::Program()
    : app_("Browses the schemes that a module adds to the asset browser.", "qvbrowse") {
  app_.set_version_flag("--version", "qvbrowse " QV_VERSION, "Print the version and exit");
  app_.fallthrough();
  app_.require_subcommand(0, 1);
  app_.add_option("--module", sessionOptions_.module, "The module file to load")->type_name("FILE");
  app_.add_option("--tools", sessionOptions_.sources,
                  "A source of tools: frei0r, frei0r:DIR or a JSON catalogue; repeatable")
      ->type_name("SOURCE")
      ->allow_extra_args(false);
  app_.add_flag("--require-isolation", sessionOptions_.scan.requireIsolation,
                "Read no plug-in unless it can be isolated completely");
  app_.add_flag("--no-pager", noPager_, "Do not page the output");
  app_.add_flag("--json", json_, "Print JSON");
}

CLI::App& Program::addCommand(char const* name, char const* help, Command const& command) {
  CLI::App& subcommand = *app_.add_subcommand(name, help);
  subcommand.add_flag("--json", json_, "Print JSON");
  subcommand.callback([this, command] { command_ = command; });
  return subcommand;
}

ExitStatus Program::run(int argc, char const* const* argv) {
  app_.footer("Without a command, prints the trees of all schemes. The options above may also "
              "follow a command.\n"
              "Exit status:\n"
              "  0  success\n"
              "  1  failure, or nothing found\n"
              "  2  wrong usage\n"
              "  3  success, but some plug-ins could not be read");
  try {
    app_.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    if (error.get_exit_code() != Success) {
      printProblem(fmt::format("{}; see --help", error.what()));
      return Usage;
    }
    std::ostringstream help;
    app_.exit(error, help);
    Output output(Terminal::ofStandardOutput(), false, false);
    output.write(help.str());
    output.finish();
    return Success;
  }
  return runCommand();
}

ExitStatus Program::runCommand() {
  Output output(Terminal::ofStandardOutput(), json_, !noPager_);
  if (sessionless_) {
    ExitStatus const status = sessionless_(output);
    output.finish();
    return status;
  }
  sessionOptions_.scan.progress = [&output](std::string const& text) { output.setProgress(text); };
  sessionOptions_.scan.notice = [&output](std::string const& text) { output.printProblem(text); };
  Session const session(sessionOptions_);
  bool partial = false;
  for (ToolSource::Plugin const& plugin : session.getPlugins()) {
    if (plugin.failure.empty())
      continue;
    partial = true;
    output.printProblem(fmt::format("the plug-in \"{}\" is left out: {}{}", plugin.file.string(),
                                    plugin.failure,
                                    plugin.cached ? "; \"plugins --retry\" tries it again" : ""));
  }

  output.setProgress("listing");
  ExitStatus const status = command_(output, session);
  output.finish();
  return status == Success && partial ? Partial : status;
}

} // namespace Qv
