#pragma once

#include "containers.h"
#include "qvExport.h"

#include <typeinfo>

namespace Qv {

class InVariableBase;

/// What the package manager may ask of any package.
class QV_EXPORT InPackageInitBase {
public:
  virtual ~InPackageInitBase();
  /// @{
  /// The module leaves these to the host.
  virtual void addDependency(InVariableBase* variable) = 0;
  virtual void removeDependency(InVariableBase* variable) = 0;
  /// @}
  /// The name, which lives as long as the package.
  virtual char const* getName() const = 0;
  /// @{
  /// Called when the host likes; the module does nothing.
  virtual void packageHookA() = 0;
  virtual void packageHookB() = 0;
  /// @}
  /// Called once, after the packages that this one needs. Whatever it throws passes.
  virtual void initialize() = 0;
  /// Called before the package goes.
  virtual void uninitialize() = 0;
  /// Stores the flag.
  virtual void setPackageFlag(bool flag) = 0;
};

/// A package under a name, with the packages that it needs.
class QV_EXPORT InPackageInit : public InPackageInitBase {
public:
  /// @param name is not copied.
  explicit InPackageInit(char const* name);
  /// Withdraws the package from the package manager.
  ~InPackageInit() override;
  InPackageInit(InPackageInit const&) = delete;
  InPackageInit& operator=(InPackageInit const&) = delete;

  void addDependency(InVariableBase* variable) override;
  void removeDependency(InVariableBase* variable) override;
  char const* getName() const override;

  // A package calls these two while its library is loaded, when nothing may be thrown: the package
  // manager keeps a failure for whoever loads.

  /// Makes the package known to the package manager; called once.
  void registerPackage() noexcept;
  /// Records that this package needs the package whose package class is `package`.
  void addDependency(std::type_info const* package) noexcept;

  /// @name Stand-in only
  /// @{
  /// The package classes needed, in the order of declaration.
  Vector<std::type_info const*> const& getDependencies() const { return dependencies_; }
  /// @}

private:
  char const* name_;
  Vector<std::type_info const*> dependencies_;
};

} // namespace Qv
