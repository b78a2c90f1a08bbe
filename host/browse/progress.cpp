#include "progress.h"

#include <chrono>
#include <condition_variable>
#include <mutex>
#include <thread>
#include <unistd.h>

namespace Qv {

namespace {

constexpr std::chrono::milliseconds Delay(500);
constexpr std::chrono::milliseconds Interval(100);

/// Guards what follows but for the thread.
std::mutex mutex;
std::string line;
bool shown = false;
/// Writes the line, again and again, in case something else was written since.
std::jthread writer;

void write(std::string const& text) {
  // A line that cannot be written is not missed.
  [[maybe_unused]] ssize_t const written = ::write(STDERR_FILENO, text.data(), text.size());
}

void writeLines(std::stop_token const& stop) {
  std::unique_lock lock(mutex);
  std::condition_variable_any stopped;
  for (auto pause = Delay;; pause = Interval) {
    stopped.wait_for(lock, stop, pause, [] { return false; });
    if (stop.stop_requested())
      return;
    write(line);
    shown = true;
  }
}

} // namespace

Progress::Progress() {
  if (isatty(STDERR_FILENO))
    writer = std::jthread(writeLines);
}

Progress::~Progress() { stopProgress(); }

void setProgress(std::string const& text) {
  std::scoped_lock const lock(mutex);
  line = "\r" + text + " ...\x1b[K";
}

void eraseProgress() {
  std::scoped_lock const lock(mutex);
  if (shown)
    write("\r\x1b[K");
  shown = false;
}

void stopProgress() {
  writer = {};
  eraseProgress();
}

} // namespace Qv
