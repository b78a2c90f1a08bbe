#pragma once

#include "output.h"
#include "session.h"

#include <CLI/CLI.hpp>

namespace Qv {

enum ExitStatus {
  Success,
  /// Also when nothing was found.
  Failure,
  Usage,
  /// Success, but plug-ins turned out to be unreadable.
  Partial
};

/// What a command has to do with plug-ins.
enum class PluginUse {
  /// None are read.
  None,
  /// It shows tools.
  Tools,
  /// It tells itself which are left out.
  Report
};

/// Reads the command line, opens the session and runs one command.
class Program {
public:
  /// Writes the result of a command.
  using Command = std::function<ExitStatus(Session const& session, Output& output)>;

  Program();
  Program(Program const&) = delete;
  Program& operator=(Program const&) = delete;

  /// Adds a command. Its own options are added to the result.
  CLI::App& addCommand(char const* name, char const* help, PluginUse use, Command const& command);
  /// Adds a command with options of its own, which are bound to the fields of the second result.
  template <class Options>
  std::pair<CLI::App&, Options&> addCommand(char const* name, char const* help,
                                            ExitStatus (*run)(Options const&, Session const&,
                                                              Output&)) {
    auto const options = std::make_shared<Options>();
    return {addCommand(name, help, PluginUse::Tools,
                       [options, run](Session const& session, Output& output) {
                         return run(*options, session, output);
                       }),
            *options};
  }
  /// Chooses what runs when the command line names no command.
  void setDefault(Command command) { command_ = std::move(command); }
  /// Has `run` run in place of a command.
  void runWithoutSession(std::function<ExitStatus(Output&)> run) { sessionless_ = std::move(run); }
  void setPluginUse(PluginUse use) { pluginUse_ = use; }
  /// How the session will be opened. A command may bind options to it.
  Session::Options& getSessionOptions() { return sessionOptions_; }

  ExitStatus run(int argc, char const* const* argv);

private:
  ExitStatus runCommand();
  /// Names on stderr the plug-ins that this run found to be unreadable, and counts those that an
  /// earlier one did. Returns whether there are any of the former.
  bool reportFailures(Session const& session, Output& output) const;

  CLI::App app_;
  Session::Options sessionOptions_;
  Output::Options outputOptions_;
  PluginUse pluginUse_ = PluginUse::Tools;
  Command command_;
  std::function<ExitStatus(Output&)> sessionless_;
};

} // namespace Qv
