#pragma once

#include <mutex>
#include <string>
#include <thread>

namespace Qv {

/// A progress line on stderr: on a terminal only, and not before half a second has passed.
class Progress {
public:
  Progress();
  ~Progress();
  Progress(Progress const&) = delete;
  Progress& operator=(Progress const&) = delete;

  /// Sets what is under way, in a text much shorter than a line.
  void set(std::string const& text);
  /// Takes the line away until it is time to write it again.
  void erase();
  /// Takes the line away for good.
  void stop();

private:
  void writeLines(std::stop_token const& stop);

  /// Guards the line.
  std::mutex mutex_;
  std::string line_;
  bool shown_ = false;
  /// Writes the line again and again, in case something else was written since.
  std::jthread writer_;
};

} // namespace Qv
