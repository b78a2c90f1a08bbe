#include "commands.h"

#include "browser.h"
#include "hostError.h"
#include "output.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <unordered_set>
#include <utf8proc.h>

namespace Qv {

namespace {

/// How well an item matches, the best first.
enum class Match { Exact, Prefix, Substring, None };

char const* nameOf(Match match) {
  if (match == Match::Exact)
    return "exact";
  return match == Match::Prefix ? "prefix" : "substring";
}

/// The text as a person reads it, without the difference of upper and lower case and of composed
/// and decomposed letters.
std::string folded(std::string const& text) {
  std::string const shown = printable(text);
  utf8proc_uint8_t* result = nullptr;
  utf8proc_ssize_t const size = utf8proc_map(
      reinterpret_cast<utf8proc_uint8_t const*>(shown.data()), utf8proc_ssize_t(shown.size()),
      &result, utf8proc_option_t(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
  if (size < 0)
    throw HostError(utf8proc_errmsg(size));
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> const owner(result, &std::free);
  return std::string(reinterpret_cast<char const*>(result), std::size_t(size));
}

/// Walks through a scheme and collects what matches, each path once.
class Search {
public:
  explicit Search(std::string const& text) : text_(folded(text)) {}

  void collectBelow(BrBrowsable& item) {
    forEachChild(item, AllChildren, [&](RCShdPtr<BrBrowsable> const& child) {
      std::string const path = child->getPath();
      std::string const label = getAttribute(*child, BrBrowsable::NAME);
      std::string const name = path.substr(path.rfind('/') + 1);
      Match match = getMatch(label);
      if (name != label)
        match = std::min(match, getMatch(name));
      if (match != Match::None && paths_.insert(path).second)
        found_.push_back({match, label, getAttribute(*child, BrBrowsable::BROWSABLE_TYPE), path});
      if (child->hasChildren(AnyChildren, NoOption))
        collectBelow(*child);
    });
  }

  /// The best matches first; of equal ones, in the order of the scheme.
  Json takeResult() {
    std::stable_sort(found_.begin(), found_.end(), [](Found const& left, Found const& right) {
      return left.match < right.match;
    });
    Json result = Json::array();
    for (auto const& [match, label, type, path] : found_)
      result.push_back({{"name", label}, {"type", type}, {"path", path}, {"match", nameOf(match)}});
    return result;
  }

private:
  struct Found {
    Match match;
    std::string label;
    std::string type;
    std::string path;
  };

  Match getMatch(std::string const& name) const {
    std::string const candidate = folded(name);
    std::size_t const at = candidate.find(text_);
    if (at == std::string::npos)
      return Match::None;
    if (at > 0)
      return Match::Substring;
    return candidate.size() == text_.size() ? Match::Exact : Match::Prefix;
  }

  std::string text_;
  std::vector<Found> found_;
  std::unordered_set<std::string> paths_;
};

} // namespace

void searchItems(Request const& request) {
  RCShdPtr<BrBrowsable> const root = findItem(request.scheme, "");
  Search search(request.text);
  search.collectBelow(*root);
  Json const result = search.takeResult();
  if (request.json) {
    printJson(result);
  } else if (!result.empty()) {
    std::vector<std::vector<std::string>> rows;
    for (Json const& item : result)
      rows.push_back({item["type"], item["name"], item["path"]});
    Terminal().printTable({"Type", "Name", "Path"}, rows);
  }
  flushOutput();
  if (result.empty())
    throw HostError(fmt::format("nothing in the scheme \"{}\" has \"{}\" in its name or label",
                                request.scheme, request.text));
}

} // namespace Qv
