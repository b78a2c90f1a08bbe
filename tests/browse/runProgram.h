#pragma once

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <filesystem>
#include <memory>
#include <spawn.h>
#include <string>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>
#include <vector>

namespace Qv {

/// How a program ended and what it wrote.
struct ProgramRun {
  /// The exit status, or the negative number of the signal that ended the program.
  int status;
  std::string out;
  std::string err;
};

/// What the program takes its stdout for.
enum class Stdout { Pipe, Terminal };

namespace detail {

inline int checked(int result, char const* call) {
  if (result < 0)
    throw std::system_error(errno, std::generic_category(), call);
  return result;
}

/// Two descriptors: what is written to the second one is read from the first one.
inline std::array<int, 2> openChannel(Stdout kind) {
  std::array<int, 2> ends;
  if (kind == Stdout::Pipe) {
    checked(pipe2(ends.data(), O_CLOEXEC), "pipe2");
    return ends;
  }
  constexpr int Flags = O_RDWR | O_NOCTTY | O_CLOEXEC;
  ends[0] = checked(posix_openpt(Flags), "posix_openpt");
  checked(grantpt(ends[0]), "grantpt");
  checked(unlockpt(ends[0]), "unlockpt");
  ends[1] = checked(open(ptsname(ends[0]), Flags), "open");
  return ends;
}

/// Everything up to the end, which is an error at a terminal.
inline std::string readAll(int descriptor) {
  std::string text;
  std::array<char, 4096> buffer;
  for (ssize_t size; (size = read(descriptor, buffer.data(), buffer.size())) > 0;)
    text.append(buffer.data(), std::size_t(size));
  return text;
}

} // namespace detail

/// Runs a program, which is looked up in PATH, in a directory and waits for its end. Its stdin is
/// empty.
/// @throws std::system_error when it cannot be run.
inline ProgramRun runProgram(std::vector<std::string> command,
                             std::filesystem::path const& directory, Stdout kind) {
  using namespace detail;
  // No second pipe: while one is read to its end, the other might fill up.
  std::unique_ptr<FILE, int (*)(FILE*)> const errors(std::tmpfile(), &std::fclose);
  int const err = errors ? fileno(errors.get()) : checked(-1, "tmpfile");
  auto const [readEnd, writeEnd] = openChannel(kind);

  std::vector<char*> arguments;
  for (std::string& argument : command)
    arguments.push_back(argument.data());
  arguments.push_back(nullptr);
  posix_spawn_file_actions_t actions;
  posix_spawn_file_actions_init(&actions);
  posix_spawn_file_actions_addchdir_np(&actions, directory.c_str());
  posix_spawn_file_actions_addopen(&actions, STDIN_FILENO, "/dev/null", O_RDONLY, 0);
  posix_spawn_file_actions_adddup2(&actions, writeEnd, STDOUT_FILENO);
  posix_spawn_file_actions_adddup2(&actions, err, STDERR_FILENO);
  pid_t process = 0;
  int const error =
      posix_spawnp(&process, arguments[0], &actions, nullptr, arguments.data(), environ);
  posix_spawn_file_actions_destroy(&actions);
  close(writeEnd);

  ProgramRun run;
  run.out = readAll(readEnd);
  close(readEnd);
  if (error != 0)
    throw std::system_error(error, std::generic_category(), arguments[0]);
  int status = 0;
  checked(waitpid(process, &status, 0), "waitpid");
  run.status = WIFEXITED(status) ? WEXITSTATUS(status) : -WTERMSIG(status);
  std::rewind(errors.get());
  run.err = readAll(err);
  return run;
}

} // namespace Qv
