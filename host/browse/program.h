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
  /// Success, but for plug-ins that could not be read.
  Partial
};

/// Reads the command line, opens the session and runs one command.
class Program {
public:
  /// Writes the result of a command.
  using Command = std::function<ExitStatus(Output& output, Session const& session)>;

  Program();
  Program(Program const&) = delete;
  Program& operator=(Program const&) = delete;

  /// Adds a command. Its own options are added to the result.
  CLI::App& addCommand(char const* name, char const* help, Command const& command);
  /// Adds a command with options of its own, which are bound to the fields of the second result.
  template <class Options>
  std::pair<CLI::App&, Options&> addCommand(char const* name, char const* help,
                                            ExitStatus (*run)(Options const&, Output&)) {
    auto const options = std::make_shared<Options>();
    return {
        addCommand(name, help, Command([options, run](Output& output, Session const& /*session*/) {
                     return run(*options, output);
                   })),
        *options};
  }
  /// Chooses what runs when the command line names no command.
  void setDefault(Command command) { command_ = std::move(command); }
  /// Has `run` run in place of a command.
  void runWithoutSession(std::function<ExitStatus(Output&)> run) { sessionless_ = std::move(run); }
  /// How the session will be opened. A command may bind options to it.
  Session::Options& getSessionOptions() { return sessionOptions_; }

  ExitStatus run(int argc, char const* const* argv);

private:
  ExitStatus runCommand();

  CLI::App app_;
  Session::Options sessionOptions_;
  bool json_ = false;
  bool noPager_ = false;
  Command command_;
  std::function<ExitStatus(Output&)> sessionless_;
};

} // namespace Qv
