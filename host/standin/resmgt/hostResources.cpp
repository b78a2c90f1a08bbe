#include "hostResources.h"

namespace Qv {

HostResources& HostResources::getInstance() {
  static HostResources resources;
  return resources;
}

} // namespace Qv
