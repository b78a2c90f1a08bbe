#pragma once

#include "pbrInstances.h"

#include "inInit.h"

namespace QvInit {
/// The tag of this package.
class QV_EXPORT pluginBrowserQvmodule {};
} // namespace QvInit

namespace Qv {

template <> InInit<QvInit::pluginBrowserQvmodule>::InInit();
/// Registers the build information, then everything that the module contributes, and keeps no
/// references. Exceptions of the host propagate; what was registered before stays registered.
template <> void InInit<QvInit::pluginBrowserQvmodule>::initialize();
/// Does nothing: the host's registries own what was registered.
template <> void InInit<QvInit::pluginBrowserQvmodule>::uninitialize();

extern template class InInit<QvInit::pluginBrowserQvmodule>;

} // namespace Qv
