#include "lookup.h"

#include "safeText.h"

#include <algorithm>
#include <fmt/format.h>
#include <map>
#include <numeric>
#include <set>
#include <stdexcept>

namespace Qv {

namespace {

/// How many bytes have to be added, removed or replaced to make one text of the other, or 1 at most
/// when one holds the other.
std::size_t getDistance(std::string const& name, std::string const& text) {
  // Of what is read so far of the text, to each beginning of the name.
  std::vector<std::size_t> edits(name.size() + 1);
  std::iota(edits.begin(), edits.end(), 0);
  for (char const character : text) {
    std::size_t diagonal = edits[0]++;
    for (std::size_t at = 0; at < name.size(); ++at) {
      std::size_t const replaced = diagonal + (character == name[at] ? 0 : 1);
      diagonal = edits[at + 1];
      edits[at + 1] = std::min({replaced, edits[at] + 1, diagonal + 1});
    }
  }
  return name.find(text) == std::string::npos ? edits.back()
                                              : std::min<std::size_t>(edits.back(), 1);
}

/// The paths of those items whose name or label is nearest to that of a path.
std::vector<std::string> findNearest(Items const& items, std::string const& path) {
  constexpr std::size_t Most = 3;
  std::string const wanted = folded(getLastName(path));
  std::set<std::pair<std::size_t, std::string>> nearest;
  for (RCShdPtr<BrBrowsable> const& item : items) {
    std::size_t const distance =
        std::min(getDistance(folded(getLastName(item->getPath())), wanted),
                 getDistance(folded(getAttribute(*item, BrBrowsable::NAME)), wanted));
    if (distance < wanted.size())
      nearest.emplace(distance, item->getPath());
    if (nearest.size() > Most)
      nearest.erase(std::prev(nearest.end()));
  }
  std::vector<std::string> paths;
  for (auto const& [distance, near] : nearest)
    if (distance <= nearest.begin()->first + 1)
      paths.push_back(near);
  return paths;
}

} // namespace

Items findListedItems(std::string const& scheme, std::vector<std::string> const& paths) {
  Items items;
  // By parent, for each path where its item belongs.
  std::map<std::string, std::multimap<std::string, std::size_t>> wanted;
  for (std::string const& path : paths) {
    std::string const normalised = normalise(path);
    items.push_back(findItem(scheme, normalised));
    if (!normalised.empty())
      wanted[getParentPath(normalised)].emplace(normalised, items.size() - 1);
  }
  for (auto& [parent, places] : wanted) {
    Items const siblings = getChildren(*findItem(scheme, parent));
    for (RCShdPtr<BrBrowsable> const& sibling : siblings) {
      auto const [first, last] = places.equal_range(sibling->getPath());
      for (auto place = first; place != last; place = places.erase(place))
        items[place->second] = sibling;
    }
    if (places.empty())
      continue;
    std::string const& missing = places.begin()->first;
    std::vector<std::string> const nearest = findNearest(siblings, missing);
    throw std::invalid_argument(fmt::format(
        "{}: no item \"{}\" is listed{}", scheme, missing,
        nearest.empty() ? ""
                        : fmt::format("; did you mean \"{}\"?", fmt::join(nearest, "\" or \""))));
  }
  return items;
}

} // namespace Qv
