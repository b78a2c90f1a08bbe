#pragma once

#include "inPackageInit.h"

/// Tags that name the host's packages.
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

/// The class of the package that the tag `Package` names.
///
/// A package specialises the constructor and, if needed, initialize() and uninitialize(),
/// instantiates the class from inInit.imp.h and defines its only object, all in one source file.
/// Others import getType() from the package's library.
template <class Package> class QV_EXPORT InInit : public InPackageInit {
public:
  /// Names and registers the package and declares its dependencies.
  InInit();
  ~InInit() override;

  void packageHookA() override;
  void packageHookB() override;
  void initialize() override;
  void uninitialize() override;
  void setPackageFlag(bool flag) override;

  /// Identifies the package where others depend on it.
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
