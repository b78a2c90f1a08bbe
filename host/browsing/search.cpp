#include "search.h"

#include "safeText.h"

#include <algorithm>

namespace Qv {

Search::Search(BrBrowsable& root, std::string const& text)
    : text_(folded(text)), levels_{{getChildren(root), 0}} {}

bool Search::step() {
  while (!levels_.empty() && levels_.back().next == levels_.back().items.size())
    levels_.pop_back();
  if (levels_.empty())
    return false;

  // Let go of at once: there may be a million.
  RCShdPtr<BrBrowsable> const item = std::move(levels_.back().items[levels_.back().next++]);
  if (std::optional<Found> found = findBestMatch(item);
      found && paths_.insert(item->getPath()).second)
    found_.push_back(std::move(*found));
  if (hasChildren(*item))
    levels_.push_back({getChildren(*item), 0});
  return true;
}

std::vector<Search::Found> Search::getResult() const {
  std::vector<Found> result = found_;
  auto const rank = [](Found const& found) {
    return std::pair(found.place >= Place::Detail, found.match);
  };
  std::stable_sort(result.begin(), result.end(),
                   [&](Found const& left, Found const& right) { return rank(left) < rank(right); });
  return result;
}

std::optional<Search::Found> Search::findBestMatch(RCShdPtr<BrBrowsable> const& item) {
  std::optional<Found> best;
  auto const consider = [&](Place place, std::string const& title, std::string const& text) {
    std::string const candidate = folded(text);
    std::size_t const at = candidate.find(text_);
    Match const match = at > 0                            ? Match::Substring
                        : candidate.size() > text_.size() ? Match::Prefix
                                                          : Match::Exact;
    if (at != std::string::npos && (!best || match < best->match))
      best = {item, place, match, title, text};
  };
  std::string const name = getLastName(item->getPath());
  std::string const label = getAttribute(*item, BrBrowsable::NAME);
  consider(Place::Name, "", name);
  if (name != label)
    consider(Place::Label, "", label);
  if (best)
    return best;

  auto const [page, added] =
      pages_.try_emplace(getAttribute(*item, BrBrowsable::BROWSABLE_TYPE), std::nullopt);
  if (added)
    page->second = DetailPage::create(item);
  if (page->second)
    for (DetailPage::Content::Field const& field : page->second->show(item).fields)
      consider(Place::Detail, field.title, field.value);
  for (std::string const& line : getTooltipLines(*item))
    consider(Place::Tooltip, "", line);
  return best;
}

} // namespace Qv
