#pragma once

#include "inPackageInit.h"

#include <exception>

namespace Qv {

/// Initialises packages after those they depend on.
class QV_EXPORT HostPackageManager {
public:
  static HostPackageManager& getInstance();

  /// In order of registration; a package lives as long as its library is loaded.
  Vector<InPackageInit*> const& getPackages() const { return packages_; }
  /// Null if there is no such package.
  InPackageInit* find(std::type_info const& packageClass) const;

  /// Initialises the package's dependencies, then the package, each once.
  /// @throws HostError if a dependency is missing, circular or has failed before.
  void initialize(InPackageInit& package);
  /// Uninitialises in reverse order, which empties the host's registries.
  void uninitializeAll() noexcept;

  /// Does not take ownership; the library owns the package.
  void add(InPackageInit& package);
  /// Removes a package that is being destroyed.
  void remove(InPackageInit& package) noexcept;

  /// Keeps the exception being handled, unless there is one already.
  void keepLoadFailure() noexcept;
  /// Rethrows the kept exception, if any, and forgets it.
  void throwLoadFailure();

private:
  Vector<InPackageInit*> packages_;
  Vector<InPackageInit*> initialized_;
  /// Packages whose initialisation has started but not succeeded.
  Vector<InPackageInit*> started_;
  std::exception_ptr loadFailure_;
};

} // namespace Qv
