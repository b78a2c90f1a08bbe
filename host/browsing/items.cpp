#include "items.h"

#include "assertions.h"
#include "hostBrRegistry.h"

#include <fmt/format.h>
#include <stdexcept>

namespace Qv {

namespace {

constexpr BrBrowsable::ChildSearchType AnyChildren{0};
constexpr BrBrowsable::ChildSearchType ContainerChildren{1};
constexpr BrBrowsable::ChildSearchOption NoOption{0};

} // namespace

RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path) {
  BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
  LiString message;
  try {
    return server.getNode(path, message)->getBrowsable();
  } catch (ExProgramAborted const&) {
    // It names a line of the module, which means nothing to a user.
    throw std::invalid_argument(
        fmt::format("the scheme \"{}\" has no item with the path \"{}\"", scheme, path));
  }
}

Items getChildren(BrBrowsable& item, BrBrowsable::FindFilter filter) {
  Items children;
  RCShdPtr<BrChildrenQuery> const query = item.getChildren(filter);
  for (;;) {
    Iterator<RCShdPtr<BrBrowsable>> sequence = query->getNextChildSequence();
    if (sequence.atEnd())
      return children;
    for (; !sequence.atEnd(); sequence.next())
      children.push_back(sequence.item());
  }
}

bool hasChildren(BrBrowsable const& item) { return item.hasChildren(AnyChildren, NoOption); }

bool hasContainerChildren(BrBrowsable const& item) {
  return item.hasChildren(ContainerChildren, NoOption);
}

std::string getAttribute(BrBrowsable& item, unsigned int attributeId) {
  LiString value;
  item.get(static_cast<int>(attributeId), &value);
  return value;
}

std::vector<Attribute> getAttributes() {
  return {
      {"NAME", BrBrowsable::NAME},
      {"BROWSABLE_TYPE", BrBrowsable::BROWSABLE_TYPE},
      {"ROOT_NAME", BrBrowsable::ROOT_NAME},
      {"OWNER", BrBrowsable::OWNER},
      {"LMTIME", BrBrowsable::LMTIME},
      {"CREATION_TIME", BrBrowsable::CREATION_TIME},
      {"BROWSABLE_ROLE", BrBrowsable::BROWSABLE_ROLE},
  };
}

} // namespace Qv
