#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// The tooltip server.
class QV_EXPORT TtServer {
public:
  static TtServer& getInstance();

  /// The text registered under `key`; empty if there is none.
  virtual std::string lookupTooltip(std::string const& key) = 0;

protected:
  ~TtServer() = default;
};

} // namespace Qv
