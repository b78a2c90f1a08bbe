#pragma once

#include "qvExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qv {

/// What the host was asked to do, across all its registries, in order. Every registry records a
/// call before it changes anything, so this is also where failures of the host are injected.
class QV_EXPORT HostJournal {
public:
  /// One call.
  struct Entry {
    std::string operation;
    std::string key;
    std::string detail;

    bool operator==(Entry const&) const = default;
  };

  static HostJournal& getInstance();

  /// Discards all entries and starts recording.
  void start();
  /// Ends recording and injected failures.
  void stop();
  /// Makes the call of entry `index`, counted from 0, fail, until start() or stop().
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
