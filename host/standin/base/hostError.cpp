#include "hostError.h"

namespace Qv {

HostError::~HostError() = default;

} // namespace Qv
