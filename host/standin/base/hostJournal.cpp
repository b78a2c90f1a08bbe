#include "hostJournal.h"

#include "hostError.h"

namespace Qv {

HostJournal& HostJournal::getInstance() {
  static HostJournal journal;
  return journal;
}

void HostJournal::start() {
  entries_.clear();
  failAt_.reset();
  recording_ = true;
}

void HostJournal::stop() {
  failAt_.reset();
  recording_ = false;
}

void HostJournal::record(char const* operation, std::string_view key, std::string_view detail) {
  if (!recording_)
    return;
  entries_.push_back({operation, std::string(key), std::string(detail)});
  if (entries_.size() - 1 == failAt_)
    throw HostError(std::string(operation) + ": injected failure");
}

} // namespace Qv
