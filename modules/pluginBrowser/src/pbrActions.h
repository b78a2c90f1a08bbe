#pragma once

namespace Qv {

/// Registers "Open", then "Open in Window", which open a view in the workspace.
void registerBrowserActions();
/// Does nothing: the registry owns the actions.
void unregisterBrowserActions();

} // namespace Qv
