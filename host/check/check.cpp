#include "check.h"

#include "allocations.h"
#include "hostBrRegistry.h"
#include "hostError.h"
#include "hostJournal.h"
#include "registries.h"
#include "typeName.h"

#include <algorithm>
#include <climits>
#include <cxxabi.h>

namespace Qv {

namespace {

constexpr long long UnansweredNumber = -7777;

/// Runs `use` with call `index` of the host failing. @returns whether there was such a call.
bool failCall(std::function<std::string()> const& use, std::size_t index) {
  HostJournal& journal = HostJournal::getInstance();
  journal.start();
  journal.failAt(index);
  std::string thrown = "nothing";
  try {
    use();
  } catch (HostError const& error) {
    thrown = error.what();
  } catch (...) {
    thrown = describeException();
  }
  bool const reached = journal.getEntries().size() > index;
  if (reached) {
    std::string const failure = journal.getEntries()[index].operation + ": injected failure";
    require(thrown == failure, "call {} fails ({}), but {} is thrown", index + 1, failure, thrown);
  }
  journal.start();
  journal.stop();
  return reached;
}

} // namespace

std::string describeException() {
  try {
    throw;
  } catch (Fault const& fault) {
    return fault.what();
  } catch (std::exception const& error) {
    return fmt::format("throws {}: {}", typeName(typeid(error)), error.what());
  } catch (...) {
    std::type_info const* const type = abi::__cxa_current_exception_type();
    return "throws a non-exception: " + (type ? typeName(*type) : "of another language");
  }
}

Item itemAt(BrServer& server, LiString const& path) {
  LiString message("untouched");
  RCShdPtr<BrNode> const node = server.getNode(path, message);
  require(node && node->getBrowsable(), "getNode returns no item");
  require(message == "untouched", "getNode writes the message");
  return node->getBrowsable();
}

Items nextSequence(BrChildrenQuery& query) {
  Items items;
  // Each step leaves a copy behind, and so takes an engine of its own.
  for (Iterator<Item> next = query.getNextChildSequence();
       !next.atEnd() && items.size() < MaxItems;)
    items.push_back((next++).item());
  return items;
}

std::string read(BrBrowsable& item) {
  std::string result = item.getSchemeName() + ", " + item.getPath();
  for (unsigned int const id :
       {BrBrowsable::NAME, BrBrowsable::BROWSABLE_TYPE, BrBrowsable::ROOT_NAME, BrBrowsable::OWNER,
        BrBrowsable::LMTIME, BrBrowsable::CREATION_TIME, BrBrowsable::BROWSABLE_ROLE,
        BrBrowsable::THUMBNAIL, 0U, 0xFFFFU, unsigned(INT_MAX), unsigned(INT_MIN)}) {
    LiString text(Unanswered);
    long long number = UnansweredNumber;
    item.get(int(id), &text);
    item.get(int(id), &number);
    result +=
        ", " + (number == UnansweredNumber ? Unanswered : text) + ", " + item.getTooltip(int(id));
    result += item.getImage(int(id), {64, 64}) ? ", image" : "";
  }
  return result;
}

Items findItems(std::size_t most) {
  Items items;
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers())
    items.push_back(itemAt(*server, server->getRootPath("")));
  for (std::size_t next = 0; next < items.size(); ++next) {
    // The item must outlive its query.
    Item const item = items[next];
    Items const children = nextSequence(*item->getChildren(AllChildren));
    items.insert(items.end(), children.begin(), children.end());
    items.resize(std::min(items.size(), most));
  }
  return items;
}

std::string forEachItem(std::function<void(Item const&)> const& f, std::size_t most) {
  Items const items = findItems(most);
  for (Item const& item : items) {
    lookAt(fmt::format("{} \"{}\"", item->getSchemeName(), item->getPath()));
    f(item);
  }
  lookAt("");
  return fmt::format("{}{} items", items.size() < most ? "" : "the first ", items.size());
}

std::string useItems(std::function<std::string(Item const&)> const& use) {
  std::string results;
  forEachItem([&](Item const& item) { results += use(item); }, MaxSweptItems);
  return results;
}

std::string sweepFailures(std::function<std::string()> const& use) {
  // What is made once and kept is made here.
  std::string const expected = use();
  failCall(use, std::size_t(-1));
  auto const before = registered();
  long const live = liveAllocations();
  failCall(use, std::size_t(-1));
  if (liveAllocations() != live)
    throw Skipped("leaks even without a failure");

  auto const check = [&] {
    require(registered() == before, "the registries have changed");
    require(use() == expected, "the next run differs from the first");
  };
  std::size_t calls = 0;
  for (; failCall(use, calls); ++calls) {
    check();
    require(liveAllocations() == live, "allocations leaked when call {} failed: {}", calls + 1,
            liveAllocations() - live);
  }
  constexpr int Most = 3000;
  int const allocations = forEachFailingAllocation(use, check, Most);
  return fmt::format("{} calls and {}{} allocations failed", calls,
                     allocations < Most ? "" : "the first ", allocations);
}

} // namespace Qv
