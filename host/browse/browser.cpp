#include "browser.h"

#include "hostBrRegistry.h"
#include "hostError.h"

#include <algorithm>
#include <fmt/format.h>

namespace Qv {

RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path) {
  BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
  LiString message;
  try {
    return server.getNode(path, message)->getBrowsable();
  } catch (ExBase const& refusal) {
    throw HostError(
        fmt::format("the scheme \"{}\" refuses the path \"{}\": {}", scheme, path, refusal.what()));
  }
}

void forEachChild(BrBrowsable& item, BrBrowsable::FindFilter filter,
                  std::function<void(RCShdPtr<BrBrowsable> const&)> const& visit) {
  RCShdPtr<BrChildrenQuery> const query = item.getChildren(filter);
  for (;;) {
    Iterator<RCShdPtr<BrBrowsable>> sequence = query->getNextChildSequence();
    if (sequence.atEnd())
      return;
    for (; !sequence.atEnd(); sequence.next())
      visit(sequence.item());
  }
}

std::string getAttribute(BrBrowsable& item, unsigned int attributeId) {
  LiString value;
  item.get(static_cast<int>(attributeId), &value);
  return value;
}

std::vector<Attribute> const& getAttributes() {
  static std::vector<Attribute> const attributes = {
      {"NAME", BrBrowsable::NAME},
      {"BROWSABLE_TYPE", BrBrowsable::BROWSABLE_TYPE},
      {"ROOT_NAME", BrBrowsable::ROOT_NAME},
      {"OWNER", BrBrowsable::OWNER},
      {"LMTIME", BrBrowsable::LMTIME},
      {"CREATION_TIME", BrBrowsable::CREATION_TIME},
      {"BROWSABLE_ROLE", BrBrowsable::BROWSABLE_ROLE},
  };
  return attributes;
}

std::string getAttributeName(unsigned int attributeId) {
  auto const& attributes = getAttributes();
  auto const found =
      std::find_if(attributes.begin(), attributes.end(),
                   [&](Attribute const& attribute) { return attribute.id == attributeId; });
  return found == attributes.end() ? std::to_string(attributeId) : found->name;
}

} // namespace Qv
