#pragma once

#include "containers.h"
#include "inBuildInfo.h"

namespace Qv {

/// Owns the libraries' build information.
class QV_EXPORT HostBuildInfoRegistry {
public:
  static HostBuildInfoRegistry& getInstance();

  /// Takes ownership; the result lives until clear().
  InBuildInfo const& add(OPtr<InBuildInfo> info);
  /// In order of registration.
  Vector<OPtr<InBuildInfo>> const& getInfos() const { return infos_; }
  void clear() { infos_.clear(); }

private:
  Vector<OPtr<InBuildInfo>> infos_;
};

} // namespace Qv
