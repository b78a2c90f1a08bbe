#pragma once

#include "inPackageInit.h"

/// The tags that name the host's packages.
namespace QvInit {
class QV_EXPORT appUi {};
class QV_EXPORT base {};
class QV_EXPORT datamgt {};
class QV_EXPORT framework {};
class QV_EXPORT gfx {};
class QV_EXPORT internalAPI {};
class QV_EXPORT pluginAPI {};
class QV_EXPORT resmgt {};
class QV_EXPORT ui {};
} // namespace QvInit

namespace Qv {

/// The package class of the package that the tag class `Package` names.
///
/// A package specialises the constructor, and initialize() and uninitialize() where it has work to
/// do; instantiates the class from inInit.imp.h, and keeps the one object of it, all in one source
/// file of its library. Everyone else takes getType() from the library of the package.
template <class Package> class QV_EXPORT InInit : public InPackageInit {
public:
  /// Names and registers the package, and declares what it needs.
  InInit();
  ~InInit() override;

  void packageHookA() override;
  void packageHookB() override;
  void initialize() override;
  void uninitialize() override;
  void setPackageFlag(bool flag) override;

  /// The identity by which other packages declare that they need this one.
  static std::type_info const* getType();

private:
  static bool packageFlag_;
};

extern template std::type_info const* InInit<QvInit::appUi>::getType();
extern template std::type_info const* InInit<QvInit::base>::getType();
extern template std::type_info const* InInit<QvInit::datamgt>::getType();
extern template std::type_info const* InInit<QvInit::framework>::getType();
extern template std::type_info const* InInit<QvInit::gfx>::getType();
extern template std::type_info const* InInit<QvInit::internalAPI>::getType();
extern template std::type_info const* InInit<QvInit::pluginAPI>::getType();
extern template std::type_info const* InInit<QvInit::resmgt>::getType();
extern template std::type_info const* InInit<QvInit::ui>::getType();

} // namespace Qv
