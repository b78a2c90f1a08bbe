#include "omUtil.h"

#include "iteratorSTL.imp.h"

#include <string_view>

namespace Qv {

Iterator<std::string> OmUtil::parsePath(OsFilePath const& path) {
  using Components = Vector<std::string>;
  RCStrongPtr<Components> const components(new Components);

  std::string_view rest(path.getChars());
  while (!rest.empty()) {
    std::size_t const length = std::min(rest.find('/'), rest.size());
    if (length > 0)
      components->emplace_back(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }

  return makeIterator(components);
}

} // namespace Qv
