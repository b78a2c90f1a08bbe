#include "allocations.h"
#include "check.h"
#include "hostBrRegistry.h"
#include "typeName.h"

#include <algorithm>
#include <random>

namespace Qv {

namespace {

template <void check(BrServer&)> std::string forEachServer() {
  auto const& servers = HostBrRegistry::getInstance().getServers();
  if (servers.empty())
    throw Skipped("registers no scheme");
  for (OPtr<BrServer> const& server : servers) {
    lookAt(server->getSchemeName());
    check(*server);
  }
  return fmt::format("{} schemes", servers.size());
}

void checkColumns(BrServer& server) {
  auto const& columns = server.getAttributesList()->getAttribs();
  for (RCShdPtr<BrAttrib> const& column : columns) {
    require(!column->getName().empty(), "a column has no title");
    unsigned int const type = column->getDataType();
    require(type == BrBrowsable::ICON || type == BrBrowsable::STRING,
            "the column \"{}\" has the unknown data type {}", column->getName(), type);
    require(0 <= column->getMinW() && column->getMinW() <= column->getMaxW(),
            "the column \"{}\" is from {} to {} wide", column->getName(), column->getMinW(),
            column->getMaxW());
  }
  int const key = server.getAttributesList()->getSortKey().value_or(-1);
  require(std::any_of(columns.begin(), columns.end(),
                      [key](auto const& column) { return int(column->getAttributeId()) == key; }),
          "it is sorted by attribute {}, which no column shows", key);
}

std::string describeColumns(BrServer const& server) {
  std::string text = server.getSchemeName() + ": ";
  for (RCShdPtr<BrAttrib> const& column : server.getAttributesList()->getAttribs())
    text += fmt::format("{} {}, ", column->getName(), column->getAttributeId());
  return text;
}

void checkClone(BrServer& server) {
  OPtr<BrServer> const clone(server.clone());
  require(clone.get() && clone.get() != &server, "clone returns no new server");
  std::string const columns = describeColumns(server);
  require(describeColumns(*clone) == columns, "its clone has different columns");
  clone->getAttributesList()->append(clone->getAttributesList()->getAttribs().at(0));
  require(describeColumns(server) == columns, "a column added to its clone is added to it as well");
}

void checkRoot(BrServer& server) {
  RCShdPtr<BrNode> const node = server.getRootNode();
  require(node && node->getBrowsable(), "getRootNode returns no item");
  BrBrowsable const& root = *node->getBrowsable();
  require(root.isAContainer(), "the root is not a container");
  require(root.getServer() == &server && root.getSchemeName() == server.getSchemeName(),
          "the root belongs to another server or scheme");
  require(root.isEqualTo(*itemAt(server, server.getRootPath(""))),
          "the root is not the item at the root path");
}

void checkPaths(BrServer& server) {
  constexpr int Paths = 1000;
  std::vector<std::string> pieces = {"/",  "//",   ".",        "..",     " ",
                                     "\n", "%n%s", "\xff\xfe", "no such"};
  pieces.emplace_back(1, '\0');
  pieces.emplace_back(5000, 'x');
  for (Item const& item : findItems())
    pieces.push_back(item->getPath());
  // The same paths every time and everywhere.
  std::mt19937 random(1); // NOLINT(cert-msc32-c,cert-msc51-cpp)
  for (int count = 0; count < Paths; ++count) {
    std::string path;
    for (auto length = random() % 5; length != 0; --length)
      path += pieces[random() % pieces.size()];
    lookAt(fmt::format("{}, path \"{}\"", server.getSchemeName(), path));
    mayRefuse([&] {
      Item const item = itemAt(server, path);
      read(*item);
      nextSequence(*item->getChildren(AllChildren));
    });
  }
}

void checkAnswers(Item const& item) {
  require(read(*item).find(Unanswered) == std::string::npos, "does not answer for an attribute");
  for (unsigned int const id : {BrBrowsable::NAME, BrBrowsable::BROWSABLE_TYPE})
    require(!getAttribute(*item, id).empty(), "its name or type is empty");
}

void checkChildren(Item const& item) {
  Items const children = nextSequence(*item->getChildren(AllChildren));
  if (children.empty())
    return;
  require(item->isAContainer(), "is not a container but has {} children", children.size());
  for (int const option : {0, 1})
    require(
        item->hasChildren(BrBrowsable::ChildSearchType(0), BrBrowsable::ChildSearchOption(option)),
        "hasChildren denies the {} children that its query lists", children.size());
}

void checkSequences(Item const& item) {
  for (BrBrowsable::FindFilter const filter : {AllChildren, ItemsOnly}) {
    RCShdPtr<BrChildrenQuery> const query = item->getChildren(filter);
    Items const children = nextSequence(*query);
    require(nextSequence(*query).empty(), "the second sequence of its query is not empty");
    query->reset();
    Items const again = nextSequence(*query);
    require(std::equal(children.begin(), children.end(), again.begin(), again.end(),
                       [](Item const& a, Item const& b) { return a->isEqualTo(*b); }),
            "after reset, its query lists {} items that differ from the {} before", again.size(),
            children.size());
  }
}

void checkPath(Item const& item) {
  Item const found = itemAt(*item->getServer(), item->getPath());
  require(found->isEqualTo(*item) && read(*found) == read(*item),
          "a different item is at its path");
}

void checkEquality(Item const& item) {
  require(item->isEqualTo(*item), "does not equal itself");
  for (Item const& other : findItems())
    // Of one of another scheme, it may say anything.
    require(item->isEqualTo(*other) == other->isEqualTo(*item) ||
                other->getServer() != item->getServer(),
            "whether it equals \"{}\" depends on which of the two is asked", other->getPath());
}

std::string browse() {
  return useItems([](Item const& item) {
    std::string result = OPtr<BrServer>(item->getServer()->clone())->getSchemeName() + read(*item);
    for (BrBrowsable::FindFilter const filter : {AllChildren, ItemsOnly})
      for (Item const& child : nextSequence(*item->getChildren(filter)))
        result += child->getPath();
    return result;
  });
}

std::string checkLifetimes() {
  browse();
  long const before = liveAllocations();
  browse();
  require(liveAllocations() == before, "{} allocations leaked", liveAllocations() - before);
  return "nothing leaked";
}

} // namespace

std::vector<Check> schemeChecks() {
  return {{"schemes.columns", "A scheme has columns, and one of them is the sort key.", "Schemes",
           forEachServer<checkColumns>},
          {"schemes.clone", "A clone equals its server but shares nothing with it.", "Schemes",
           forEachServer<checkClone>},
          {"schemes.root", "A scheme has a root that is a container.", "Schemes",
           forEachServer<checkRoot>},
          {"schemes.paths", "Any path yields an item or an exception of the base library.",
           "Schemes", forEachServer<checkPaths>},
          {"items.answers", "An item answers for any attribute, image and tooltip.", "Items",
           [] { return forEachItem(checkAnswers); }},
          {"items.children", "An item with children is a container and reports them.", "Items",
           [] { return forEachItem(checkChildren); }},
          {"items.sequences",
           "A query returns all children at once, then none; after reset, the same again.", "Items",
           [] { return forEachItem(checkSequences); }},
          {"items.path", "The path of an item leads to an equal item.", "Items",
           [] { return forEachItem(checkPath); }},
          {"items.equality", "Equality within a scheme is symmetric.", "Items",
           [] { return forEachItem(checkEquality); }},
          {"items.lifetimes", "Released items are destroyed.", "Lifetimes", checkLifetimes},
          {"items.failures",
           "A failure while browsing throws, leaks nothing, and does not affect the next run.",
           "What may be thrown", [] {
             return fmt::format("{}, with at most {} items", sweepFailures(browse), MaxSweptItems);
           }}};
}

} // namespace Qv
