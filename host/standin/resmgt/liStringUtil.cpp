#include "liStringUtil.h"

namespace Qv {

std::string LiStringUtil::convertNb(int number) { return std::to_string(number); }

} // namespace Qv
