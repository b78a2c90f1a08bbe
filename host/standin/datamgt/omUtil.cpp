#include "omUtil.h"

#include "hostPath.h"
#include "iteratorSTL.imp.h"

#include <boost/container/small_vector.hpp>
#include <string_view>

namespace Qv {

namespace {

/// The components and their reference count, in one allocation for up to two.
class Components final : public RCBase<LkCounter<int>>,
                         public boost::container::small_vector<std::string, 2> {
  ~Components() override = default;
};

} // namespace

Iterator<std::string> OmUtil::parsePath(OsFilePath const& path) {
  RCShdPtr<Components> const components(new Components);
  std::string_view rest(path.getChars());
  for (std::string_view name = HostPath::takeComponent(rest); !name.empty();
       name = HostPath::takeComponent(rest))
    components->emplace_back(name);

  using Engine = IteratorSTL<Components, RCShdPtr<Components>, IteratorAccessorPassthrough>;
  return Iterator<std::string>(RCPvtEngPtr<IteratorImp<std::string>>(new Engine(components)));
}

} // namespace Qv
