#include "omUtil.h"

#include "iteratorSTL.imp.h"

#include <boost/container/small_vector.hpp>
#include <string_view>

namespace Qv {

namespace {

/// The components with their count, in one block as long as they are few.
class Components final : public RCBase<LkCounter<int>>,
                         public boost::container::small_vector<std::string, 2> {
  ~Components() override = default;
};

} // namespace

Iterator<std::string> OmUtil::parsePath(OsFilePath const& path) {
  RCShdPtr<Components> const components(new Components);
  std::string_view rest(path.getChars());
  while (!rest.empty()) {
    std::size_t const length = std::min(rest.find('/'), rest.size());
    if (length > 0)
      components->emplace_back(rest.substr(0, length));
    rest.remove_prefix(std::min(length + 1, rest.size()));
  }

  using Engine = IteratorSTL<Components, RCShdPtr<Components>, IteratorAccessorPassthrough>;
  return Iterator<std::string>(RCPvtEngPtr<IteratorImp<std::string>>(new Engine(components)));
}

} // namespace Qv
