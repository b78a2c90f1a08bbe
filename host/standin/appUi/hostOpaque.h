#pragma once

#include "rcBase.h"

// Classes that the contract names and the stand-in never instantiates. They are complete so that
// null pointers to them can be returned.

namespace Qv {

class BrThumbnailDetailList : public RCBase<LkCounter<int>> {};
class CmCommandStack : public RCBase<LkCounter<int>> {};
class VpPlayer : public RCBase<LkCounter<int>> {};

} // namespace Qv
