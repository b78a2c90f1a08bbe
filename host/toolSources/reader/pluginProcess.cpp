#include "pluginProcess.h"

#include "frei0rPlugin.h"

#include <cerrno>
#include <csignal>
#include <cstdlib>
#include <cstring>
#include <fcntl.h>
#include <sstream>
#include <sys/wait.h>
#include <system_error>
#include <unistd.h>

// glibc's header lacks this.
extern "C" {
#include <sys/pidfd.h>
}

namespace Qv {

namespace {

/// More than any honest plug-in replies.
constexpr std::size_t LongestReply = 1 << 20;

/// Starts a reply. Whatever the plug-in wrote itself comes before it.
constexpr std::string_view ReplyStart = "reply";

void reply(int pipe, ScanResult const& result) {
  std::string text;
  appendText(text, ReplyStart);
  result.appendTo(text);
  writeOrExit(pipe, text);
  close(pipe);
}

std::string signalName(int signal) {
  // Not all signals have one.
  char const* const name = sigabbrev_np(signal);
  return name ? std::string("SIG") + name : "signal " + std::to_string(signal);
}

/// Runs in the child process. An exception of the plug-in ends it, and no exit handlers run, since
/// the plug-in may have installed some.
[[noreturn]] void readPlugin(std::string const& file, int pipe) noexcept {
  readFrei0rPlugin(file.c_str(), [&](ScanResult const& result) { reply(pipe, result); });
  _exit(EXIT_SUCCESS);
}

} // namespace

void writeOrExit(int pipe, std::string_view text) {
  while (!text.empty()) {
    ssize_t const written = write(pipe, text.data(), text.size());
    if (written < 0)
      _exit(EXIT_FAILURE);
    text.remove_prefix(std::size_t(written));
  }
}

PluginProcess::PluginProcess(std::string file, Isolation const& isolation, Limits const& limits)
    : file_(std::move(file)), limits_(limits), deadline_(Clock::now() + limits.time) {
  std::array<int, 2> ends = {-1, -1};
  bool ready = pipe2(ends.data(), O_CLOEXEC) == 0;
  replies_.reset(ends[0]);
  Descriptor const pipe(ends[1]);
  ready = ready && fcntl(replies_.get(), F_SETFL, O_NONBLOCK) == 0;
  pid_t const parent = getpid();
  process_ = ready ? fork() : -1;
  if (process_ == 0) {
    if (isolation.closeIn(pipe.get(), limits_.processorTime) && getppid() == parent)
      readPlugin(file_, pipe.get());
    reply(pipe.get(), {.failure = std::string("cannot be isolated: ") + std::strerror(errno)});
    _exit(EXIT_SUCCESS);
  }
  if (process_ > 0)
    end_.reset(pidfd_open(process_, 0));
  if (end_.get() < 0) {
    int const reason = errno;
    finish();
    throw std::system_error(reason, std::generic_category(), "cannot start a process");
  }
}

PluginProcess::~PluginProcess() { finish(); }

bool PluginProcess::receive(bool ended) {
  ended_ = ended;
  std::array<char, 1 << 12> buffer;
  while (replies_.get() >= 0 && reply_.size() <= LongestReply) {
    ssize_t const count = ::read(replies_.get(), buffer.data(), buffer.size());
    if (count > 0)
      reply_.append(buffer.data(), std::size_t(count));
    else if (count < 0 && errno == EAGAIN)
      break;
    else if (count == 0 || errno != EINTR)
      replies_.reset();
  }
  // A whole reply is enough; otherwise it matters how the process ends. A process that the plug-in
  // started may keep the pipe open.
  if (ended_ || replies_.get() < 0)
    parseReply();
  return ended_ || result_ || Clock::now() >= deadline_ || reply_.size() > LongestReply;
}

ScanResult PluginProcess::takeResult() {
  int const status = finish();
  if (result_)
    return *result_;
  return {.failure = describeFailure(status), .passing = !ended_ && reply_.size() <= LongestReply};
}

void PluginProcess::parseReply() {
  std::string_view rest = reply_;
  if (takeText(rest) != ReplyStart)
    return;
  std::optional<ScanResult> result = ScanResult::takeFrom(rest);
  if (rest.empty())
    result_ = std::move(result);
}

std::string PluginProcess::describeFailure(int status) const {
  std::ostringstream text;
  if (reply_.size() > LongestReply)
    text << "replied with more than " << LongestReply << " bytes";
  else if (!ended_)
    text << "no reply within " << double(limits_.time.count()) / 1000 << " s";
  else if (WIFSIGNALED(status) && WTERMSIG(status) == SIGXCPU)
    text << "used more than " << limits_.processorTime.count() << " s of processor time";
  else if (WIFSIGNALED(status) && WTERMSIG(status) == SIGSYS)
    text << "made a forbidden system call";
  else if (WIFSIGNALED(status))
    text << "crashed with " << signalName(WTERMSIG(status)) << " (" << strsignal(WTERMSIG(status))
         << ")";
  else if (reply_.empty() || WEXITSTATUS(status) != EXIT_SUCCESS)
    text << "exited with status " << WEXITSTATUS(status) << " without replying";
  else
    text << "malformed reply";
  return text.str();
}

int PluginProcess::finish() {
  int status = 0;
  if (process_ <= 0)
    return status;
  kill(process_, SIGKILL);
  waitpid(process_, &status, 0);
  process_ = -1;
  return status;
}

} // namespace Qv
