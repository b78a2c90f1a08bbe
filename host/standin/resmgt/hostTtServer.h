#pragma once

#include "ttServer.h"

#include <unordered_map>

namespace Qv {

/// Holds the tooltip texts.
class QV_EXPORT HostTtServer final : public TtServer {
public:
  static HostTtServer& getInstance();

  /// Replaces an earlier text.
  void setTooltip(std::string const& key, std::string const& text) { tooltips_[key] = text; }
  void clear() { tooltips_.clear(); }

  std::string lookupTooltip(std::string const& key) override;

private:
  std::unordered_map<std::string, std::string> tooltips_;
};

} // namespace Qv
