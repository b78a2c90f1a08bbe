#include "hostPath.h"

#include "hostError.h"

#include <algorithm>

namespace Qv {

std::string HostPath::join(std::string_view left, std::string_view right) {
  std::string joined;
  joined.reserve(left.size() + 1 + right.size());
  if (left.empty() || right.empty())
    return joined.append(left).append(right);
  joined.append(left, 0, left.find_last_not_of(Separator) + 1).append(1, Separator);
  return joined.append(right, std::min(right.find_first_not_of(Separator), right.size()));
}

void HostPath::requireComponent(std::string const& name, char const* what) {
  if (name.empty())
    throw HostError(std::string("the ") + what + " is empty");
  if (name.find(Separator) != std::string::npos)
    throw HostError(std::string("the ") + what + " \"" + name + "\" contains a \"/\"");
  // A path passed on as a C string would end there.
  if (std::size_t const end = name.find('\0'); end != std::string::npos)
    throw HostError(std::string("the ") + what + " \"" + name.substr(0, end) +
                    "...\" contains a zero byte");
}

} // namespace Qv
