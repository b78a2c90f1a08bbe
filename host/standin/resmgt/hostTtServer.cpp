#include "hostTtServer.h"

#include "hostJournal.h"

namespace Qv {

TtServer& TtServer::getInstance() { return HostTtServer::getInstance(); }

HostTtServer& HostTtServer::getInstance() {
  static HostTtServer server;
  return server;
}

std::string HostTtServer::lookupTooltip(std::string const& key) {
  HostJournal::getInstance().record("TtServer::lookupTooltip", key);
  auto const found = tooltips_.find(key);
  return found == tooltips_.end() ? "" : found->second;
}

} // namespace Qv
