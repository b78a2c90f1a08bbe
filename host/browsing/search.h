#pragma once

#include "detailPage.h"

#include <map>
#include <unordered_set>

namespace Qv {

/// Searches the items below another one for those that have a text in their name, label, detail
/// page or tooltip. Upper and lower case count as equal, and so do composed and decomposed letters.
class Search {
public:
  /// Where a text was found: first the best.
  enum class Place { Name, Label, Detail, Tooltip };
  /// How well it matches, the best first.
  enum class Match { Exact, Prefix, Substring };
  /// An item, with its best match.
  struct Found {
    RCShdPtr<BrBrowsable> item;
    Place place;
    Match match;
    /// The title of the field of the detail page; empty in other places.
    std::string title;
    /// The name, the field's value or the line that holds the text.
    std::string text;
  };

  /// Below `root`, whose server must outlive the search.
  Search(BrBrowsable& root, std::string const& text);

  /// Looks at the next item. Returns false when there is none left.
  bool step();

  /// What has been found so far, each path once: names and labels before other texts, of these the
  /// best matches first, of equal ones in the order of the scheme.
  std::vector<Found> getResult() const;

private:
  /// The children of an item and the next one to look at.
  struct Level {
    Items items;
    std::size_t next;
  };

  std::optional<Found> findBestMatch(RCShdPtr<BrBrowsable> const& item);

  std::string text_;
  std::vector<Level> levels_;
  std::vector<Found> found_;
  std::unordered_set<std::string> paths_;
  /// By the type of the items that they show.
  std::map<std::string, std::optional<DetailPage>> pages_;
};

} // namespace Qv
