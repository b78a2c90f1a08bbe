#pragma once

#include "ttServer.h"

#include <unordered_map>
#include <utility>

namespace Qv {

/// Holds the tooltip texts.
class QV_EXPORT HostTtServer final : public TtServer {
public:
  static HostTtServer& getInstance();

  /// Keeps an earlier text.
  void addTooltip(std::string key, std::string text) {
    tooltips_.emplace(std::move(key), std::move(text));
  }
  void clear() { tooltips_.clear(); }

  std::string lookupTooltip(std::string const& key) override;

private:
  std::unordered_map<std::string, std::string> tooltips_;
};

} // namespace Qv
