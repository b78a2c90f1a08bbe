#include "pager.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <stdexcept>
#include <sys/wait.h>
#include <system_error>
#include <utility>

namespace Qv {

namespace {

/// The statuses of a shell that cannot run a program or does not find it.
constexpr int NotRun = 126;
constexpr int NotFound = 127;

} // namespace

std::unique_ptr<Pager> Pager::start() {
  char const* const named = std::getenv("PAGER");
  std::string command =
      named ? named : "if command -v less >/dev/null; then exec less; else exec cat; fi";
  if (command.empty())
    return nullptr;
  // Ends by itself when all fits on the screen, passes colours on and leaves the text there.
  setenv("LESS", "FRX", 0);
  FILE* const stream = popen(command.c_str(), "we");
  return stream ? std::make_unique<Pager>(std::move(command), stream) : nullptr;
}

Pager::Pager(std::string command, FILE* stream) : command_(std::move(command)), stream_(stream) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGQUIT, SIG_IGN);
}

Pager::~Pager() {
  if (stream_)
    pclose(stream_);
}

void Pager::write(std::string const& text) {
  if (left_ || std::fwrite(text.data(), 1, text.size(), stream_) == text.size())
    return;
  if (errno != EPIPE)
    throw std::system_error(errno, std::generic_category(), "cannot write to the pager");
  left_ = true;
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGQUIT, SIG_DFL);
}

void Pager::finish() {
  int const status = pclose(std::exchange(stream_, nullptr));
  if (WIFEXITED(status) && (WEXITSTATUS(status) == NotRun || WEXITSTATUS(status) == NotFound))
    throw std::runtime_error("cannot run the pager \"" + command_ + "\"; set PAGER to another one");
}

} // namespace Qv
