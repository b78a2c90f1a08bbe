#include "inPackageInit.h"

#include "hostError.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "typeName.h"

namespace Qv {

InPackageInitBase::~InPackageInitBase() = default;

InPackageInit::InPackageInit(char const* name) : name_(name) {}

InPackageInit::~InPackageInit() { HostPackageManager::getInstance().remove(*this); }

void InPackageInit::addDependency(InVariableBase* /*variable*/) {
  throw HostError("package \"" + name_ + "\": dependencies on variables are not supported");
}

void InPackageInit::removeDependency(InVariableBase* /*variable*/) {
  throw HostError("package \"" + name_ + "\": dependencies on variables are not supported");
}

char const* InPackageInit::getName() const { return name_.c_str(); }

void InPackageInit::registerPackage() { HostPackageManager::getInstance().add(*this); }

void InPackageInit::addDependency(std::type_info const* package) {
  HostJournal::getInstance().record("InPackageInit::addDependency", name_, typeName(*package));
  dependencies_.push_back(package);
}

} // namespace Qv
