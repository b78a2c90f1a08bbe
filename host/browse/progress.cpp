#include "progress.h"

#include <cerrno>
#include <csignal>
#include <sys/time.h>
#include <unistd.h>

namespace Qv {

namespace {

constexpr suseconds_t Delay = 500'000;
constexpr suseconds_t Interval = 100'000;

// The alarm's; touched by others only while it is blocked.
std::string line;
bool shown = false;

void writeLine(std::string const& text) {
  // A line that cannot be written is not missed.
  [[maybe_unused]] ssize_t const written = write(STDERR_FILENO, text.data(), text.size());
}

void onAlarm(int) {
  int const before = errno;
  writeLine(line);
  shown = true;
  errno = before;
}

/// While it lives, no alarm comes.
class Quiet {
public:
  Quiet() {
    sigset_t alarm;
    sigemptyset(&alarm);
    sigaddset(&alarm, SIGALRM);
    sigprocmask(SIG_BLOCK, &alarm, &before_);
  }
  Quiet(Quiet const&) = delete;
  Quiet& operator=(Quiet const&) = delete;
  ~Quiet() { sigprocmask(SIG_SETMASK, &before_, nullptr); }

private:
  sigset_t before_{};
};

void setTimer(suseconds_t delay) {
  itimerval const timer = {{0, Interval}, {0, delay}};
  setitimer(ITIMER_REAL, &timer, nullptr);
}

} // namespace

Progress::Progress() {
  if (!isatty(STDERR_FILENO))
    return;
  // Only the wait for plug-ins sees that it was interrupted.
  struct sigaction action = {};
  action.sa_handler = onAlarm;
  action.sa_flags = SA_RESTART;
  sigaction(SIGALRM, &action, nullptr);
  setTimer(Delay);
}

Progress::~Progress() { stopProgress(); }

void sayProgress(std::string const& text) {
  Quiet const quiet;
  line = "\r" + text + " ...\x1b[K";
}

void eraseProgress() {
  Quiet const quiet;
  if (shown)
    writeLine("\r\x1b[K");
  shown = false;
}

void stopProgress() {
  setTimer(0);
  eraseProgress();
}

} // namespace Qv
