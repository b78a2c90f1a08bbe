#pragma once

#include "pbrInstances.h"

#include "brAttribList.h"

namespace Qv {

/// Fills the columns of a server: the item's type as an icon, then its name under `nameTitle`.
void initializeAttribList(RCShdPtr<BrAttribList> const& list, LiString const& nameTitle);

} // namespace Qv
