#include "hostModule.h"

#include "hostError.h"
#include "hostPackageManager.h"
#include "typeName.h"

#include <boost/dll/runtime_symbol_info.hpp>
#include <boost/dll/shared_library.hpp>
#include <cxxabi.h>
#include <dlfcn.h>
#include <set>
#include <string_view>
#include <system_error>

namespace Qv {

namespace {

/// @throws HostError with only the reason.
boost::dll::shared_library loadLibrary(std::filesystem::path const& file) {
  std::error_code error;
  std::filesystem::path const absolute = std::filesystem::absolute(file, error);
  if (error)
    throw HostError(error.message());
  boost::dll::shared_library library(absolute, boost::dll::load_mode::rtld_now, error);
  if (!error)
    return library;
  char const* const text = dlerror();
  std::string reason = text ? text : "unknown loader error";
  // The loader's text starts with the path.
  std::string const prefix = absolute.string() + ": ";
  if (reason.starts_with(prefix))
    reason.erase(0, prefix.size());
  throw HostError(reason);
}

} // namespace

HostModule::HostModule(std::filesystem::path const& file) {
  try {
    library_ = std::make_unique<boost::dll::shared_library>(loadLibrary(file));
  } catch (HostError const& error) {
    throw HostError("cannot load the module \"" + file.string() + "\": " + error.what());
  }

  HostPackageManager& manager = HostPackageManager::getInstance();
  manager.throwLoadFailure();
  Vector<InPackageInit*> own;
  std::set<std::string_view> names;
  for (InPackageInit* const package : manager.getPackages()) {
    std::error_code notInAFile;
    if (boost::dll::symbol_location_ptr(package, notInAFile) == library_->location())
      own.push_back(package);
    else
      names.insert(package->getName());
  }
  if (own.empty())
    throw HostError("the module \"" + file.string() + "\" registers no package");
  for (InPackageInit const* const package : own)
    if (!names.insert(package->getName()).second)
      throw HostError("the module \"" + file.string() + "\" registers a duplicate package \"" +
                      package->getName() + "\"");

  try {
    for (InPackageInit* const package : own)
      manager.initialize(*package);
  } catch (std::exception const&) {
    manager.uninitializeAll();
    throw;
  } catch (...) {
    std::type_info const* const type = abi::__cxa_current_exception_type();
    manager.uninitializeAll();
    throw HostError("the module \"" + file.string() + "\" throws a non-exception: " +
                    (type ? typeName(*type) : "of another language"));
  }
}

HostModule::~HostModule() {
  // The host must release the module's objects while their code is still loaded.
  HostPackageManager::getInstance().uninitializeAll();
}

} // namespace Qv
