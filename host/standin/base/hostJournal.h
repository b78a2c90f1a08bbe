#pragma once

#include "qvExport.h"

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qv {

/// What the host was asked to do, across all its registries, in order. Every registry reports a
/// call here before it changes anything, so the journal is also where failures of the host are
/// made.
class QV_EXPORT HostJournal {
public:
  /// One call: the operation, what it was about, and what else it said.
  struct Entry {
    std::string operation;
    std::string key;
    std::string detail;

    bool operator==(Entry const&) const = default;
  };

  static HostJournal& getInstance();

  /// Forgets everything and keeps what comes from now on.
  void start();
  /// Keeps no further entry and fails no further call.
  void stop();
  /// Lets the call that makes entry `index`, counted from 0, fail. Lasts until start() or stop().
  void failAt(std::size_t index) { failAt_ = index; }

  /// Adds an entry while the journal is kept. @throws HostError where told to fail.
  void record(char const* operation, std::string_view key = {}, std::string_view detail = {});

  std::vector<Entry> const& getEntries() const { return entries_; }

private:
  bool recording_ = false;
  std::optional<std::size_t> failAt_;
  std::vector<Entry> entries_;
};

} // namespace Qv
