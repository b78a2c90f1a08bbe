#pragma once

#include "inPackageInit.h"

#include <exception>

namespace Qv {

/// Knows the packages and initialises them after those they depend on.
class QV_EXPORT HostPackageManager {
public:
  static HostPackageManager& getInstance();

  /// All packages, in order of registration; each lives as long as its library is loaded.
  Vector<InPackageInit*> const& getPackages() const { return packages_; }
  /// The package of that package class; null when there is none.
  InPackageInit* find(std::type_info const& packageClass) const;

  /// Initialises what the package depends on, then the package itself; each one once.
  /// @throws HostError when a dependency is missing, leads back to the package or failed before.
  void initialize(InPackageInit& package);
  /// Uninitialises in reverse order, which empties the registries of the host.
  void uninitializeAll() noexcept;

  /// Adds a package, which its library owns.
  void add(InPackageInit& package);
  /// Forgets a package that is about to go.
  void remove(InPackageInit& package) noexcept;

  /// Keeps the exception that is being handled, if it is the first one.
  void keepLoadFailure() noexcept;
  /// Throws the exception that was kept, and forgets it.
  void throwLoadFailure();

private:
  Vector<InPackageInit*> packages_;
  Vector<InPackageInit*> initialized_;
  /// Packages whose initialisation has started but not succeeded.
  Vector<InPackageInit*> started_;
  std::exception_ptr loadFailure_;
};

} // namespace Qv
