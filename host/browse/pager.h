#pragma once

#include <cstdio>
#include <memory>
#include <string>

namespace Qv {

/// The program through which a user reads output on a terminal. Until it ends, the terminal's
/// interrupts are for the pager alone.
class Pager {
public:
  /// Runs the command that PAGER names, or less where it is not set; what cannot be run passes the
  /// output on as it is. Null when PAGER is empty or no process can be started.
  static std::unique_ptr<Pager> start();

  /// @param stream is owned, as popen() returns it.
  explicit Pager(FILE* stream);
  Pager(Pager const&) = delete;
  Pager& operator=(Pager const&) = delete;
  /// Waits until the user has left the pager.
  ~Pager();

  /// What is written after the user has left the pager is lost. @throws std::system_error when
  /// writing fails.
  void write(std::string const& text);

private:
  FILE* stream_;
  bool left_ = false;
};

} // namespace Qv
