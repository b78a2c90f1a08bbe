#pragma once

#include "rcBase.h"

// Classes of the host that the contract names and of which the stand-in makes no object. They are
// complete so that null pointers to them can be returned.

namespace Qv {

class BrThumbnailDetailList : public RCBase<LkCounter<int>> {};
class CmCommandStack : public RCBase<LkCounter<int>> {};
class VpPlayer : public RCBase<LkCounter<int>> {};

} // namespace Qv
