#include "listing.h"

#include <algorithm>
#include <iterator>

namespace Qv {

namespace {

void sortByAttribute(Items& items, unsigned int attributeId) {
  std::vector<std::pair<std::string, RCShdPtr<BrBrowsable>>> keyed;
  keyed.reserve(items.size());
  for (RCShdPtr<BrBrowsable>& item : items) {
    std::string key = getAttribute(*item, attributeId);
    keyed.emplace_back(std::move(key), std::move(item));
  }
  std::stable_sort(keyed.begin(), keyed.end(),
                   [](auto const& left, auto const& right) { return left.first < right.first; });
  std::transform(keyed.begin(), keyed.end(), items.begin(),
                 [](auto& entry) { return std::move(entry.second); });
}

} // namespace

Listing listChildren(BrBrowsable& item, BrBrowsable::FindFilter filter, bool sorted) {
  RCShdPtr<BrAttribList> const list = item.getServer()->getAttributesList();
  Listing listing;
  std::copy_if(list->getAttribs().begin(), list->getAttribs().end(),
               std::back_inserter(listing.columns),
               [](RCShdPtr<BrAttrib> const& column) { return column->isDisplayed(); });

  Items children = getChildren(item, filter);
  if (std::optional<int> const key = list->getSortKey(); key && sorted)
    sortByAttribute(children, unsigned(*key));
  listing.rows.reserve(children.size());
  for (RCShdPtr<BrBrowsable>& child : children) {
    std::vector<std::string> cells;
    for (RCShdPtr<BrAttrib> const& column : listing.columns)
      cells.push_back(getAttribute(*child, column->getAttributeId()));
    listing.rows.push_back({std::move(child), std::move(cells)});
  }
  return listing;
}

} // namespace Qv
