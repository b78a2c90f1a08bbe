#include "hostModule.h"

#include "hostError.h"
#include "hostPackageManager.h"

#include <boost/dll/shared_library.hpp>
#include <dlfcn.h>
#include <set>
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

private:
  boost::dll::shared_library library_;
};

HostModule::HostModule(fs::path const& file) {
  std::error_code error;
  fs::path const absolute = fs::absolute(file, error);
  if (error || !fs::exists(absolute, error))
    throw HostError("cannot load the module \"" + file.string() +
                    "\": " + (error ? error.message() : "there is no such file"));

  HostPackageManager& manager = HostPackageManager::getInstance();
  std::size_t const before = manager.getPackages().size();
  library_ = std::make_unique<Library>(absolute);

  Vector<InPackageInit*> const& packages = manager.getPackages();
  if (packages.size() == before)
    throw HostError("the module \"" + file.string() + "\" registers no package");
  std::set<std::string_view> names;
  for (std::size_t index = 0; index < packages.size(); ++index)
    if (!names.insert(packages[index]->getName()).second && index >= before)
      throw HostError("the module \"" + file.string() + "\" registers a package \"" +
                      packages[index]->getName() + "\", which exists already");

  try {
    for (std::size_t index = before; index < packages.size(); ++index)
      manager.initialize(*packages[index]);
  } catch (...) {
    manager.uninitializeAll();
    throw;
  }
}

HostModule::~HostModule() {
  // The host must let go of the module's objects while their code is still there.
  HostPackageManager::getInstance().uninitializeAll();
}

} // namespace Qv
