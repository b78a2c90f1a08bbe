#include "hostPackageManager.h"

#include "hostError.h"
#include "hostJournal.h"
#include "typeName.h"

#include <algorithm>
#include <boost/dll/runtime_symbol_info.hpp>
#include <utility>

namespace Qv {

namespace {

bool contains(Vector<InPackageInit*> const& packages, InPackageInit const& package) {
  return std::find(packages.begin(), packages.end(), &package) != packages.end();
}

} // namespace

HostPackageManager& HostPackageManager::getInstance() {
  static HostPackageManager manager;
  return manager;
}

InPackageInit* HostPackageManager::find(std::type_info const& packageClass) const {
  auto const found =
      std::find_if(packages_.begin(), packages_.end(),
                   [&](InPackageInit const* package) { return typeid(*package) == packageClass; });
  return found == packages_.end() ? nullptr : *found;
}

void HostPackageManager::initialize(InPackageInit& package) {
  std::string const name = package.getName();
  if (contains(started_, package))
    throw HostError("package \"" + name + "\" depends on itself or has failed before");
  if (contains(initialized_, package))
    return;

  started_.push_back(&package);
  for (std::type_info const* const needed : package.getDependencies()) {
    InPackageInit* const dependency = find(*needed);
    if (!dependency)
      throw HostError(
          "package \"" + name + "\" in \"" + boost::dll::symbol_location_ptr(&package).string() +
          "\" depends on the package " + typeName(*needed) + ", which no loaded library provides");
    initialize(*dependency);
  }
  HostJournal::getInstance().record("InPackageInit::initialize", name);
  // Before the call: a package that fails half-way is uninitialised too.
  initialized_.push_back(&package);
  package.initialize();
  std::erase(started_, &package);
}

void HostPackageManager::uninitializeAll() noexcept {
  started_.clear();
  while (!initialized_.empty()) {
    InPackageInit* const package = initialized_.back();
    initialized_.pop_back();
    package->uninitialize();
  }
}

void HostPackageManager::add(InPackageInit& package) {
  HostJournal::getInstance().record("InPackageInit::registerPackage", package.getName());
  packages_.push_back(&package);
}

void HostPackageManager::remove(InPackageInit& package) noexcept {
  std::erase(packages_, &package);
  std::erase(initialized_, &package);
  std::erase(started_, &package);
}

void HostPackageManager::keepLoadFailure() noexcept {
  if (!loadFailure_)
    loadFailure_ = std::current_exception();
}

void HostPackageManager::throwLoadFailure() {
  if (std::exception_ptr const failure = std::exchange(loadFailure_, nullptr))
    std::rethrow_exception(failure);
}

} // namespace Qv
