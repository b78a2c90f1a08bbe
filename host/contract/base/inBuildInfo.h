#pragma once

#include "oPtr.h"
#include "qvExport.h"

namespace Qv {

/// A library's build information. The strings live as long as the library.
class QV_EXPORT InBuildInfo {
public:
  virtual ~InBuildInfo();
  /// The label of the library's product.
  virtual char const* getProductName() const = 0;
  virtual char const* getLibraryName() const = 0;
  virtual char const* getReleaseName() const = 0;
  /// Major and minor version, for instance "8.0".
  virtual char const* getVersionString() const = 0;
  /// Empty for a final release.
  virtual char const* getStageName() const = 0;
  virtual int getMajorVersion() const = 0;
  virtual int getMinorVersion() const = 0;
  virtual int getStageCode() const = 0;
  virtual char const* getBuildNumber() const = 0;
  /// Month, day and year, for instance "Jun 12 2012".
  virtual char const* getBuildDate() const = 0;
  /// Optimisation level, architecture and compiler, separated by dots.
  virtual char const* getBuildFlavor() const = 0;
};

/// Registers build information.
class QV_EXPORT InBuildInfoUtil {
public:
  /// Takes ownership of `info`; the result lives as long as its registration.
  static InBuildInfo const& registerInfo(OPtr<InBuildInfo> info);
};

} // namespace Qv
