#include "hostModule.h"

#include "hostError.h"
#include "hostPackageManager.h"

#include <boost/dll/shared_library.hpp>
#include <dlfcn.h>
#include <string_view>

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// Why the system's loader could not load `file`, without the path that it starts with.
std::string loaderError(fs::path const& file) {
  char const* const text = dlerror();
  std::string error = text ? text : "the loader gives no reason";
  std::string const prefix = file.string() + ": ";
  if (error.starts_with(prefix))
    error.erase(0, prefix.size());
  return error;
}

} // namespace

class HostModule::Library {
public:
  explicit Library(fs::path const& file) {
    std::error_code error;
    library_.load(file, boost::dll::load_mode::rtld_now, error);
    if (error)
      throw HostError("cannot load the module \"" + file.string() + "\": " + loaderError(file));
  }
  /// The host must let go of the module's objects while their code is still there.
  ~Library() { HostPackageManager::getInstance().uninitializeAll(); }

private:
  boost::dll::shared_library library_;
};

HostModule::HostModule(fs::path const& file) {
  if (!fs::exists(file))
    throw HostError("cannot load the module \"" + file.string() + "\": there is no such file");

  HostPackageManager& manager = HostPackageManager::getInstance();
  Vector<InPackageInit*> const before = manager.getPackages();
  library_ = std::make_unique<Library>(fs::absolute(file));

  Vector<InPackageInit*> const& after = manager.getPackages();
  Vector<InPackageInit*> const added(after.begin() + std::ptrdiff_t(before.size()), after.end());
  if (added.empty())
    throw HostError("the module \"" + file.string() + "\" registers no package");
  for (InPackageInit* const package : added) {
    for (InPackageInit const* const other : before)
      if (std::string_view(other->getName()) == package->getName())
        throw HostError("the module \"" + file.string() + "\" registers a package \"" +
                        package->getName() + "\", which exists already");
    manager.initialize(*package);
  }
}

HostModule::~HostModule() = default;

} // namespace Qv
