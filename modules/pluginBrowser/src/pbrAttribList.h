#pragma once

#include "pbrInstances.h"

#include "brAttribList.h"

namespace Qv {

/// Appends the columns of both schemes, the item's type as an icon, then its name under
/// `nameTitle`, and sorts the list by the name.
void appendColumns(RCShdPtr<BrAttribList> const& list, LiString const& nameTitle);

} // namespace Qv
