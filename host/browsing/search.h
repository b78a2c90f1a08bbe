#pragma once

#include "items.h"

#include <unordered_set>

namespace Qv {

/// Searches the items below another one for those whose name or label holds a text. Upper and lower
/// case count as equal, and so do composed and decomposed letters.
class Search {
public:
  /// How well an item matches, the best first.
  enum class Match { Exact, Prefix, Substring, None };
  struct Found {
    Match match;
    std::string label;
    std::string type;
    std::string path;
  };

  /// Below `root`, whose server must outlive the search.
  Search(BrBrowsable& root, std::string const& text);

  /// Looks at the next item. Returns false when there is none left.
  bool step();

  /// What has been found so far, each path once: the best matches first, of equal ones in the order
  /// of the scheme.
  std::vector<Found> getResult() const;

private:
  /// The children of an item and the next one to look at.
  struct Level {
    Items items;
    std::size_t next;
  };

  Match getMatch(std::string const& name) const;

  std::string text_;
  std::vector<Level> levels_;
  std::vector<Found> found_;
  std::unordered_set<std::string> paths_;
};

} // namespace Qv
