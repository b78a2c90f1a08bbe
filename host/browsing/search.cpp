#include "search.h"

#include "safeText.h"

#include <algorithm>
#include <cstdlib>
#include <memory>
#include <stdexcept>
#include <utf8proc.h>

namespace Qv {

namespace {

/// The form of a text in which equal ones are the same bytes. It is well-formed UTF-8.
std::string folded(std::string const& text) {
  std::string const safe = escaped(text);
  utf8proc_uint8_t* result = nullptr;
  utf8proc_ssize_t const size = utf8proc_map(
      reinterpret_cast<utf8proc_uint8_t const*>(safe.data()), utf8proc_ssize_t(safe.size()),
      &result, utf8proc_option_t(UTF8PROC_STABLE | UTF8PROC_COMPOSE | UTF8PROC_CASEFOLD));
  if (size < 0)
    throw std::runtime_error(utf8proc_errmsg(size));
  std::unique_ptr<utf8proc_uint8_t, decltype(&std::free)> const owner(result, &std::free);
  return std::string(reinterpret_cast<char const*>(result), std::size_t(size));
}

} // namespace

Search::Search(BrBrowsable& root, std::string const& text)
    : text_(folded(text)), levels_{{getChildren(root), 0}} {}

bool Search::step() {
  while (!levels_.empty() && levels_.back().next == levels_.back().items.size())
    levels_.pop_back();
  if (levels_.empty())
    return false;

  // Let go of at once: there may be a million.
  RCShdPtr<BrBrowsable> const item = std::move(levels_.back().items[levels_.back().next++]);
  std::string const path = item->getPath();
  std::string const label = getAttribute(*item, BrBrowsable::NAME);
  std::string const name = path.substr(path.rfind('/') + 1);
  Match match = getMatch(label);
  if (name != label)
    match = std::min(match, getMatch(name));
  if (match != Match::None && paths_.insert(path).second)
    found_.push_back({match, label, getAttribute(*item, BrBrowsable::BROWSABLE_TYPE), path});
  if (hasChildren(*item))
    levels_.push_back({getChildren(*item), 0});
  return true;
}

std::vector<Search::Found> Search::getResult() const {
  std::vector<Found> result = found_;
  std::stable_sort(result.begin(), result.end(),
                   [](Found const& left, Found const& right) { return left.match < right.match; });
  return result;
}

Search::Match Search::getMatch(std::string const& name) const {
  std::string const candidate = folded(name);
  std::size_t const at = candidate.find(text_);
  if (at == std::string::npos)
    return Match::None;
  if (at > 0)
    return Match::Substring;
  return candidate.size() == text_.size() ? Match::Exact : Match::Prefix;
}

} // namespace Qv
