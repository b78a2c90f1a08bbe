#include "program.h"

#include <sstream>

namespace Qv {

namespace {

/// Lists the options of the whole program in the help of each command as well.
class Help : public CLI::Formatter {
public:
  Help() {
    label("SUBCOMMAND", "COMMAND");
    column_width(29);
  }

  std::string make_option_opts(CLI::Option const* option) const override {
    return " " + option->get_option_text();
  }
  // What stands last.
  std::string make_subcommands(CLI::App const* app, CLI::AppFormatMode mode) const override {
    CLI::App const* const program = app->get_parent();
    if (!program)
      return Formatter::make_subcommands(app, mode);
    return make_group("Global options", false, program->get_options([&](auto const* option) {
      return option != program->get_help_ptr() && option != program->get_version_ptr();
    }));
  }
};

} // namespace

Program::Program()
    : app_("Browses the schemes that a module adds to the asset browser.", "qvbrowse") {
  app_.formatter(std::make_shared<Help>());
  app_.set_help_flag("-h,--help", "Print this help and exit");
  app_.set_version_flag("-V,--version", "qvbrowse " QV_VERSION, "Print the version and exit");
  app_.fallthrough();
  app_.require_subcommand(0, 1);
  app_.add_option("--module", sessionOptions_.module, "The module file to load")
      ->option_text("FILE");
  app_.add_option("--tools", sessionOptions_.sources,
                  "frei0r, frei0r:DIR or a JSON catalogue; repeatable")
      ->allow_extra_args(false)
      ->option_text("SOURCE");
  app_.add_flag("--require-isolation", sessionOptions_.scan.requireIsolation,
                "Fail where plug-ins cannot be isolated completely");
  app_.add_option("--plugin-timeout", "How long reading one plug-in may take; by default 30")
      ->check(CLI::Range(1, 3600))
      ->option_text("SECONDS")
      ->each([this](std::string const& seconds) {
        sessionOptions_.scan.setTimeout(std::chrono::seconds(std::stoi(seconds)));
      });
  app_.add_flag("--json", outputOptions_.json, "Print JSON");
  app_.add_flag("--no-pager", outputOptions_.noPager, "Do not page the output");
  app_.add_option("--color", outputOptions_.color, "When to use colours, by default auto")
      ->check(CLI::IsMember({"auto", "always", "never"}))
      ->option_text("auto|always|never");
}

CLI::App& Program::addCommand(char const* name, char const* help, PluginUse use,
                              Command const& command) {
  CLI::App& subcommand = *app_.add_subcommand(name, help)->group("Commands");
  subcommand.callback([this, use, command] {
    command_ = command;
    // Those that may show tools say themselves when they do not.
    if (use != PluginUse::Tools)
      pluginUse_ = use;
  });
  return subcommand;
}

ExitStatus Program::run(int argc, char const* const* argv) {
  // Set earlier, the commands would have it, too.
  app_.footer("Without a command, prints the trees of all schemes.\n"
              "Options may also stand behind the command.\n"
              "Exit status:\n"
              "  0  success\n"
              "  1  failure, or nothing found\n"
              "  2  wrong usage\n"
              "  3  success, but plug-ins turned out to be unreadable");
  try {
    app_.parse(argc, argv);
  } catch (CLI::ParseError const& error) {
    if (error.get_exit_code() != Success) {
      printProblem(fmt::format("{}; see --help", error.what()));
      return Usage;
    }
    std::ostringstream help;
    app_.exit(error, help);
    Output output({.noPager = true});
    output.write(help.str());
    output.finish();
    return Success;
  }
  return runCommand();
}

ExitStatus Program::runCommand() {
  Output output(outputOptions_);
  if (sessionless_) {
    ExitStatus const status = sessionless_(output);
    output.finish();
    return status;
  }
  sessionOptions_.scan.skip = pluginUse_ == PluginUse::None;
  sessionOptions_.scan.progress = [&output](std::string const& text) { output.setProgress(text); };
  sessionOptions_.scan.notice = [&output](std::string const& text) { output.printProblem(text); };
  Session const session(sessionOptions_);
  bool const partial = reportFailures(session, output);
  output.setProgress("listing");
  ExitStatus const status = command_(session, output);
  output.finish();
  return status == Success && partial ? Partial : status;
}

bool Program::reportFailures(Session const& session, Output& output) const {
  bool isNews = false;
  int known = 0;
  for (ToolSource::Plugin const& plugin : session.getPlugins())
    if (!plugin.failure.empty() && plugin.cached) {
      ++known;
    } else if (!plugin.failure.empty()) {
      isNews = true;
      output.printProblem(
          fmt::format("the plug-in \"{}\" is left out: {}", plugin.file.string(), plugin.failure));
    }
  if (known > 0 && pluginUse_ != PluginUse::Report)
    output.printProblem(fmt::format("{} plug-in{} left out; see qvbrowse plugins", known,
                                    known == 1 ? " is" : "s are"));
  return isNews;
}

} // namespace Qv
