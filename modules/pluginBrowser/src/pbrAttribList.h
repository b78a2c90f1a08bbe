#pragma once

#include "pbrInstances.h"

#include "brAttribList.h"

namespace Qv {

/// Appends the columns that both schemes have, the type icon and the name (titled `nameTitle`), and
/// sorts by name.
void appendColumns(RCShdPtr<BrAttribList> const& list, LiString const& nameTitle);

} // namespace Qv
