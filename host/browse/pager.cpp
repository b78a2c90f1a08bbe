#include "pager.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <system_error>

namespace Qv {

std::unique_ptr<Pager> Pager::start() {
  char const* const named = std::getenv("PAGER");
  std::string const command =
      named ? named : "if command -v less >/dev/null; then less; else cat; fi";
  if (command.empty())
    return nullptr;
  // The shell outlives an interrupt, which is for the pager. One that cannot be run has read
  // nothing.
  std::string const line = "trap : INT QUIT\n" + command + "\ncase $? in 126 | 127) cat ;; esac";
  // Ends by itself when all fits on the screen, passes colours on and leaves the text there.
  setenv("LESS", "FRX", 0);
  FILE* const stream = popen(line.c_str(), "we");
  return stream ? std::make_unique<Pager>(stream) : nullptr;
}

Pager::Pager(FILE* stream) : stream_(stream) {
  std::signal(SIGPIPE, SIG_IGN);
  std::signal(SIGINT, SIG_IGN);
  std::signal(SIGQUIT, SIG_IGN);
}

Pager::~Pager() { pclose(stream_); }

void Pager::write(std::string const& text) {
  if (left_ || std::fwrite(text.data(), 1, text.size(), stream_) == text.size())
    return;
  if (errno != EPIPE)
    throw std::system_error(errno, std::generic_category(), "cannot write to the pager");
  left_ = true;
  std::signal(SIGINT, SIG_DFL);
  std::signal(SIGQUIT, SIG_DFL);
}

} // namespace Qv
