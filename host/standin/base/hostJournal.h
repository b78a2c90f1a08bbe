#pragma once

#include "qvExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qv {

/// The calls to all registries of the host, in order. A registry records each call before it
/// changes anything, so failures of the host are injected here.
class QV_EXPORT HostJournal {
public:
  /// A call.
  struct Entry {
    std::string operation;
    std::string key;
    std::string detail;

    bool operator==(Entry const&) const = default;
  };

  static HostJournal& getInstance();

  /// Discards all entries and starts recording.
  void start();
  /// Stops recording and injecting failures.
  void stop();
  /// Makes the call of entry `index`, counted from 0, throw, until start() or stop().
  void failAt(std::size_t index) { failAt_ = index; }

  /// Adds an entry while recording. @throws HostError for an injected failure.
  void record(char const* operation, std::string_view key = {}, std::string_view detail = {});

  std::vector<Entry> const& getEntries() const { return entries_; }

private:
  bool recording_ = false;
  std::optional<std::size_t> failAt_;
  std::vector<Entry> entries_;
};

} // namespace Qv
