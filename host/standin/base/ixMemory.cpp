#include "ixMemory.h"

namespace Qv {

IxMemory::~IxMemory() = default;

} // namespace Qv
