#pragma once

#include "descriptor.h"
#include "isolation.h"
#include "scanResult.h"

#include <array>
#include <poll.h>
#include <sys/types.h>

namespace Qv {

/// Writes all of a text, or ends this process.
void writeOrExit(int pipe, std::string_view text);

/// How much processor time a plug-in may use, and how long it may take.
struct Limits {
  std::chrono::seconds processorTime;
  std::chrono::milliseconds time;
};

/// A child process that reads one plug-in.
class PluginProcess {
public:
  using Clock = std::chrono::steady_clock;

  /// @throws std::system_error when no process can be started.
  PluginProcess(std::string file, Isolation const& isolation, Limits const& limits);
  PluginProcess(PluginProcess const&) = delete;
  PluginProcess& operator=(PluginProcess const&) = delete;
  ~PluginProcess();

  std::string const& getFile() const { return file_; }
  pid_t getId() const { return process_; }
  Clock::time_point getDeadline() const { return deadline_; }
  std::array<pollfd, 2> getEvents() const {
    return {{{replies_.get(), POLLIN, 0}, {end_.get(), POLLIN, 0}}};
  }

  /// Reads what has been replied so far.
  /// @param ended says whether the process has ended.
  /// @returns whether there is nothing more to wait for.
  bool receive(bool ended);
  /// Ends the process. To be called when there is nothing more to wait for.
  ScanResult takeResult();

private:
  /// Takes the reply if it is whole and nothing else was written.
  void parseReply();
  /// Ends the process, if that is not done yet. @returns its status.
  int finish();
  std::string describeFailure(int status) const;

  std::string file_;
  Limits limits_;
  Clock::time_point deadline_;
  pid_t process_ = -1;
  /// The read end of a pipe; none when the other end is closed.
  Descriptor replies_;
  /// Readable when the process has ended.
  Descriptor end_;
  bool ended_ = false;
  std::string reply_;
  std::optional<ScanResult> result_;
};

} // namespace Qv
