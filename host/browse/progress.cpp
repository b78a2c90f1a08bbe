#include "progress.h"

#include <chrono>
#include <condition_variable>
#include <unistd.h>

namespace Qv {

namespace {

constexpr std::chrono::milliseconds Delay(500);
constexpr std::chrono::milliseconds Interval(100);

void writeText(std::string const& text) {
  // A line that cannot be written is not missed.
  [[maybe_unused]] ssize_t const written = write(STDERR_FILENO, text.data(), text.size());
}

} // namespace

Progress::Progress() {
  if (isatty(STDERR_FILENO))
    writer_ = std::jthread([this](std::stop_token const& stop) { writeLines(stop); });
}

Progress::~Progress() { stop(); }

void Progress::set(std::string const& text) {
  std::scoped_lock const lock(mutex_);
  line_ = "\r" + text + " ...\x1b[K";
}

void Progress::erase() {
  std::scoped_lock const lock(mutex_);
  if (shown_)
    writeText("\r\x1b[K");
  shown_ = false;
}

void Progress::stop() {
  writer_ = {};
  erase();
}

void Progress::writeLines(std::stop_token const& stop) {
  std::unique_lock lock(mutex_);
  std::condition_variable_any stopped;
  for (auto pause = Delay;; pause = Interval) {
    stopped.wait_for(lock, stop, pause, [] { return false; });
    if (stop.stop_requested())
      return;
    writeText(line_);
    shown_ = true;
  }
}

} // namespace Qv
