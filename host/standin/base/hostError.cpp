#include "hostError.h"

namespace Qv {

HostError::~HostError() = default;

void requireComponent(std::string const& name, char const* what) {
  if (name.empty())
    throw HostError(std::string("the ") + what + " is empty");
  if (name.find('/') != std::string::npos)
    throw HostError(std::string("the ") + what + " \"" + name +
                    "\" holds a \"/\", so it is no single path component");
  // A path ends there when it is handed on as characters.
  if (name.find('\0') != std::string::npos)
    throw HostError(std::string("the ") + what + " \"" + name.substr(0, name.find('\0')) +
                    "...\" holds a zero byte, so it is no single path component");
}

} // namespace Qv
