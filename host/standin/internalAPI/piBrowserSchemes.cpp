#include "piBrowserSchemes.h"

namespace Qv {

LiString const PiBrowserSchemes::PluginToolScheme("tools");
LiString const PiBrowserSchemes::PluginViewScheme("views");

} // namespace Qv
