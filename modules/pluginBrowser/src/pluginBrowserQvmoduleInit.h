#pragma once

#include "pbrInstances.h"

#include "inInit.h"

namespace QvInit {
/// Names this package.
class QV_EXPORT pluginBrowserQvmodule {};
} // namespace QvInit

namespace Qv {

template <> InInit<QvInit::pluginBrowserQvmodule>::InInit();
/// Registers the build information, then everything that the module contributes, and keeps nothing
/// of it. Whatever a host call throws passes; what was registered before stays registered.
template <> void InInit<QvInit::pluginBrowserQvmodule>::initialize();
/// Withdraws nothing: the host's registries own what was registered.
template <> void InInit<QvInit::pluginBrowserQvmodule>::uninitialize();

extern template class InInit<QvInit::pluginBrowserQvmodule>;

} // namespace Qv
