#include "rcBase.h"

namespace Qv {

template class RCBase<LkCounter<int>>;
template class RCBase<int>;

} // namespace Qv
