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
  /// @throws HostError when the file cannot be loaded as a shared library, registers no package or
  /// one that exists already, or throws what is not a std::exception. Other exceptions of a package
  /// pass; their class must not be defined in the module, which is unloaded by then.
  explicit HostModule(std::filesystem::path const& file);
  /// Uninitialises all packages, so that the host lets go of the module's objects, and unloads it.
  ~HostModule();

private:
  std::unique_ptr<boost::dll::shared_library> library_;
};

} // namespace Qv
