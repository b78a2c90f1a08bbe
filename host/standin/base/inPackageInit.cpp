#include "inPackageInit.h"

#include "hostError.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "typeName.h"

namespace Qv {

namespace {

[[noreturn]] void refuseVariables(std::string const& package) {
  throw HostError("package \"" + package + "\": dependencies on variables are not supported");
}

} // namespace

InPackageInitBase::~InPackageInitBase() = default;

InPackageInit::InPackageInit(char const* name) : name_(name) {}

InPackageInit::~InPackageInit() { HostPackageManager::getInstance().remove(*this); }

void InPackageInit::addDependency(InVariableBase* /*variable*/) { refuseVariables(name_); }

void InPackageInit::removeDependency(InVariableBase* /*variable*/) { refuseVariables(name_); }

char const* InPackageInit::getName() const { return name_; }

void InPackageInit::registerPackage() noexcept {
  HostPackageManager& manager = HostPackageManager::getInstance();
  try {
    manager.add(*this);
  } catch (...) {
    manager.keepLoadFailure();
  }
}

void InPackageInit::addDependency(std::type_info const* package) noexcept {
  try {
    HostJournal::getInstance().record("InPackageInit::addDependency", name_, typeName(*package));
    dependencies_.push_back(package);
  } catch (...) {
    HostPackageManager::getInstance().keepLoadFailure();
  }
}

} // namespace Qv
