#pragma once

#include "qvExport.h"

#include <filesystem>
#include <memory>

namespace boost::dll {
class shared_library;
} // namespace boost::dll

namespace Qv {

/// A module file that is loaded and initialised for as long as this object lives. One at a time:
/// the registries of the host can only let go of everything.
class QV_EXPORT HostModule {
public:
  /// Loads the file and initialises each package that it registers.
  /// @throws HostError when there is no such file, it is no shared library, it registers no package
  /// or one that exists already. Whatever a package throws passes; its class must not be the
  /// module's own. Nothing stays loaded then.
  explicit HostModule(std::filesystem::path const& file);
  /// Uninitialises all packages, so that the host lets go of the module's objects, and unloads it.
  ~HostModule();

private:
  std::unique_ptr<boost::dll::shared_library> library_;
};

} // namespace Qv
