#pragma once

#include "actTypedAction.h"
#include "exBase.h"
#include "items.h"
#include "oPtr.h"

#include <filesystem>
#include <fmt/format.h>
#include <functional>
#include <stdexcept>

namespace Qv {

struct Check {
  char const* name;
  /// What a module has to do, and the heading in docs/host-contract.md under which it says so.
  char const* expected;
  char const* heading;
  /// @returns what was looked at. @throws Fault, Skipped.
  std::string (*run)();
  /// Whether the module is started for it; otherwise it does so itself.
  bool needsStart = true;
};

std::vector<Check> moduleChecks();
std::vector<Check> schemeChecks();
std::vector<Check> useChecks();

/// What a module does wrong.
struct Fault : std::runtime_error {
  using std::runtime_error::runtime_error;
};
/// Why there is nothing to check.
struct Skipped : std::runtime_error {
  using std::runtime_error::runtime_error;
};

template <class... Args>
void require(bool holds, fmt::format_string<Args...> fault, Args const&... values) {
  if (!holds)
    throw Fault(fmt::vformat(fault, fmt::make_format_args(values...)));
}

/// Runs `f`, which may throw exceptions of the base library.
template <class F> void mayRefuse(F f) {
  try {
    f();
  } catch (ExBase const&) {
    // It may.
  }
}

/// The file under check, an absolute path.
std::filesystem::path const& moduleFile();

/// Tells who started this program what is being looked at, since the module may end it. Allocates
/// nothing.
void lookAt(std::string_view what);

/// What the exception that is being handled says.
std::string describeException();

using Item = RCShdPtr<BrBrowsable>;
using BrowserAction = ActTypedAction<RCShdPtr<BrBrowser>, RCShdPtr<BrNode>>;

/// The item at a path of a scheme. @throws Fault when there is none, or the message is written.
Item itemAt(BrServer& server, LiString const& path);
/// The children in the next sequence of a query.
Items nextSequence(BrChildrenQuery& query);
/// In place of what an item does not answer.
inline LiString const Unanswered("unanswered");
/// Whatever a browser reads of an item.
std::string read(BrBrowsable& item);

/// How many items are looked at in time, and how many while everything fails once.
inline constexpr std::size_t MaxItems = 200;
inline constexpr std::size_t MaxSweptItems = 30;
/// Items of all schemes, level by level.
Items findItems(std::size_t most = MaxItems);
/// Calls `f` with each of them. @returns how many there were.
std::string forEachItem(std::function<void(Item const&)> const& f, std::size_t most = MaxItems);
/// What `use` returns for each of those that are swept.
std::string useItems(std::function<std::string(Item const&)> const& use);

/// Runs `use` with each call of the host failing once, then with each allocation. The failure must
/// come out, nothing may be lost, and the next run must return what the first one did.
/// @returns how much failed. @throws Fault, or Skipped when nothing can be said.
std::string sweepFailures(std::function<std::string()> const& use);

} // namespace Qv
