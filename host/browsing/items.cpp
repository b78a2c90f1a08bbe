#include "items.h"

#include "assertions.h"
#include "hostBrRegistry.h"
#include "hostPath.h"

#include <algorithm>
#include <array>
#include <fmt/format.h>
#include <stdexcept>

namespace Qv {

namespace {

constexpr BrBrowsable::ChildSearchType AnyChildren{0};
constexpr BrBrowsable::ChildSearchType ContainerChildren{1};
constexpr BrBrowsable::ChildSearchOption NoOption{0};

/// Null when the scheme refuses the path.
RCShdPtr<BrBrowsable> tryPath(BrServer& server, std::string const& path) {
  LiString message;
  try {
    return server.getNode(path, message)->getBrowsable();
  } catch (ExProgramAborted const&) {
    // It names a line of the module, which means nothing to a user.
    return RCShdPtr<BrBrowsable>();
  }
}

} // namespace

RCShdPtr<BrBrowsable> findItem(std::string const& scheme, std::string const& path) {
  BrServer& server = HostBrRegistry::getInstance().getServer(scheme);
  if (RCShdPtr<BrBrowsable> item = tryPath(server, path))
    return item;
  // A path is refused for its length.
  std::string allowed = getParentPath(normalise(path));
  while (!allowed.empty() && !tryPath(server, allowed))
    allowed = getParentPath(allowed);
  auto const components =
      std::count(allowed.begin(), allowed.end(), HostPath::Separator) + (allowed.empty() ? 0 : 1);
  constexpr std::array<char const*, 4> Numbers = {"no", "one", "two", "three"};
  throw std::invalid_argument(fmt::format("{}: \"{}\" has more than {} component{}", scheme, path,
                                          components < std::ssize(Numbers)
                                              ? Numbers[std::size_t(components)]
                                              : std::to_string(components),
                                          components == 1 ? "" : "s"));
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

std::string normalise(std::string_view path) {
  std::string result;
  for (std::string_view name = HostPath::takeComponent(path); !name.empty();
       name = HostPath::takeComponent(path))
    result = HostPath::join(result, name);
  return result;
}

std::string getParentPath(std::string const& path) {
  std::size_t const end = path.rfind(HostPath::Separator);
  return end == std::string::npos ? "" : path.substr(0, end);
}

std::string getLastName(std::string const& path) {
  return path.substr(path.rfind(HostPath::Separator) + 1);
}

std::string getAttribute(BrBrowsable& item, unsigned int attributeId) {
  LiString value;
  item.get(static_cast<int>(attributeId), &value);
  return value;
}

std::vector<std::string> getTooltipLines(BrBrowsable const& item) {
  constexpr std::string_view LineEnd = "<br>";
  std::vector<std::string> lines;
  std::string rest = item.getTooltip(int(BrBrowsable::NAME));
  for (std::size_t end = 0; end != std::string::npos;) {
    end = rest.find(LineEnd);
    lines.push_back(rest.substr(0, end));
    rest.erase(0, end == std::string::npos ? end : end + LineEnd.size());
  }
  return lines;
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
