#pragma once

#include "containers.h"
#include "qvExport.h"

#include <typeinfo>

namespace Qv {

class InVariableBase;

/// The package manager's interface to a package.
class QV_EXPORT InPackageInitBase {
public:
  virtual ~InPackageInitBase();
  /// @{
  /// Not overridden by the module.
  virtual void addDependency(InVariableBase* variable) = 0;
  virtual void removeDependency(InVariableBase* variable) = 0;
  /// @}
  /// Lives as long as the package.
  virtual char const* getName() const = 0;
  /// @{
  /// May be called at any time; no-ops in the module.
  virtual void packageHookA() = 0;
  virtual void packageHookB() = 0;
  /// @}
  /// Called once, after the dependencies. Exceptions propagate.
  virtual void initialize() = 0;
  /// Called before the package is destroyed.
  virtual void uninitialize() = 0;
  virtual void setPackageFlag(bool flag) = 0;
};

/// A named package and its dependencies.
class QV_EXPORT InPackageInit : public InPackageInitBase {
public:
  /// @param name is not copied.
  explicit InPackageInit(char const* name);
  /// Removes the package from the package manager.
  ~InPackageInit() override;
  InPackageInit(InPackageInit const&) = delete;
  InPackageInit& operator=(InPackageInit const&) = delete;

  void addDependency(InVariableBase* variable) override;
  void removeDependency(InVariableBase* variable) override;
  char const* getName() const override;

  // These are called while the library is loading, so they must not throw: the package manager
  // keeps an exception for whoever loads the library.

  /// Adds the package to the package manager; called once.
  void registerPackage() noexcept;
  /// Adds a dependency on the package of the class `package`.
  void addDependency(std::type_info const* package) noexcept;

  /// @name Stand-in only
  /// @{

  /// Package classes, in order of declaration.
  Vector<std::type_info const*> const& getDependencies() const { return dependencies_; }
  /// @}

private:
  char const* name_;
  Vector<std::type_info const*> dependencies_;
};

} // namespace Qv
