#pragma once

#include "qvExport.h"

#include <filesystem>
#include <memory>

namespace boost::dll {
class shared_library;
} // namespace boost::dll

namespace Qv {

/// A module file, loaded and initialised for the lifetime of this object. One at a time: the host's
/// registries can only be emptied as a whole.
class QV_EXPORT HostModule {
public:
  /// Loads the file and initialises each package that it registers.
  /// @throws HostError if the file is not a loadable shared library, registers no package or a
  /// duplicate one, or throws anything but a std::exception. A std::exception propagates; its class
  /// must not be defined in the module, which is unloaded by then.
  explicit HostModule(std::filesystem::path const& file);
  /// Uninitialises all packages, so that the host releases the module's objects, and unloads it.
  ~HostModule();

private:
  std::unique_ptr<boost::dll::shared_library> library_;
};

} // namespace Qv
