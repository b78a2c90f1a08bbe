#include "cases.h"

#include "hostBrRegistry.h"
#include "hostModule.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "omUtil.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <vector>

namespace Qv {

namespace {

constexpr char Category[] = "Category0";

/// The loaded module, and a tool registry with categories of `tools` tools each. The name of a tool
/// fits the short-string buffer, its path does not.
class Host {
public:
  Host(int categories, int tools) : module_(MODULE_FILE) {
    auto const numbered = [](char const* name, int number) {
      return name + std::to_string(number);
    };
    HostToolRegistry& registry = HostToolRegistry::getInstance();
    for (int category = 0; category < categories; ++category) {
      registry.addCategory(numbered("Category", category));
      for (int tool = 0; tool < tools; ++tool)
        registry.addTool({.name = numbered("Tool", category * tools + tool),
                          .category = numbered("Category", category),
                          .infoTexts = {"Short", "Short", "Short"}});
    }
    HostTtServer::getInstance().addTooltip("Tool0", "Tip");
  }
  ~Host() {
    HostTtServer::getInstance().clear();
    HostToolRegistry::getInstance().clear();
  }
  Host(Host const&) = delete;
  Host& operator=(Host const&) = delete;

  RCShdPtr<BrBrowsable> item(LiString const& path) {
    return HostBrRegistry::getInstance().getServer("tools").getNode(path, message_)->getBrowsable();
  }

private:
  HostModule module_;
  LiString message_;
};

template <class Use> void forEachChild(BrBrowsable& item, Use use) {
  RCShdPtr<BrChildrenQuery> const query = item.getChildren(BrBrowsable::FindFilter{0});
  for (;;) {
    Iterator<RCShdPtr<BrBrowsable>> children = query->getNextChildSequence();
    if (children.atEnd())
      return;
    for (; !children.atEnd(); children.next())
      use(*children.item());
  }
}

void readNameAndType(BrBrowsable& item, LiString& text) {
  item.get(int(BrBrowsable::NAME), &text);
  benchmark::DoNotOptimize(text);
  item.get(int(BrBrowsable::BROWSABLE_TYPE), &text);
  benchmark::DoNotOptimize(text);
}

/// A minimal item with the same strings.
struct HandWritten : boost::intrusive_ref_counter<HandWritten> {
  HandWritten(std::string const& category, std::string toolName)
      : name(std::move(toolName)), path(category + '/' + name),
        superTool(PiToolRegistry::getInstance().isSuperTool(name)) {}
  /// The same through the host calls that an item has to make.
  HandWritten(OsFilePath const& category, std::string const& toolName) {
    OsFilePath child(category);
    child += OsFilePath(toolName);
    path = child.getChars();
    Iterator<std::string> components = OmUtil::parsePath(OsFilePath(path));
    if (components.getCardinality() == 2)
      name = components.next().item();
    superTool = PiToolRegistry::getInstance().isSuperTool(name);
  }

  std::string name;
  std::string path;
  bool superTool = false;
};

/// @param path the category as the items take it.
template <class Path> void listByHand(Path const& path, std::string& text) {
  Iterator<RCShdPtr<PiTool const>> tools = PiToolRegistry::getInstance().getTools(
      PiToolPredicates::isCategory(Category) && !PiToolPredicates::isInternal() &&
          PiToolPredicates::isActive(),
      true);
  std::vector<boost::intrusive_ptr<HandWritten>> items;
  items.reserve(tools.getCardinality());
  for (; !tools.atEnd(); tools.next())
    items.emplace_back(new HandWritten(path, tools.item()->getName()));
  for (auto const& item : items) {
    text = item->name;
    benchmark::DoNotOptimize(text);
    text = item->superTool ? "Super Tool" : "Tool";
    benchmark::DoNotOptimize(text);
  }
}

/// Calls `use` with the item of a tool in each pass.
template <class Use> auto withTool(Use use) {
  return [use](auto& loop) {
    Host host(1, 100);
    RCShdPtr<BrBrowsable> const tool = host.item("Category0/Tool0");
    LiString text;
    for ([[maybe_unused]] auto _ : loop) {
      use(*tool, text);
      benchmark::DoNotOptimize(text);
    }
  };
}

} // namespace

void Cases::addModule() {
  for (int const tools : {100, 1'000, 10'000, 100'000, 1'000'000}) {
    add("list/module/" + std::to_string(tools), [tools](auto& loop) {
      Host host(1, tools);
      LiString text;
      for ([[maybe_unused]] auto _ : loop)
        forEachChild(*host.item(Category), [&](auto& child) { readNameAndType(child, text); });
    });
    add("list/hand-written/" + std::to_string(tools), [tools](auto& loop) {
      Host const host(1, tools);
      std::string text;
      for ([[maybe_unused]] auto _ : loop)
        listByHand(std::string(Category), text);
    });
    add("list/host-calls/" + std::to_string(tools), [tools](auto& loop) {
      Host const host(1, tools);
      std::string text;
      for ([[maybe_unused]] auto _ : loop)
        listByHand(OsFilePath(std::string(Category)), text);
    });
  }

  for (auto const& [categories, tools] :
       {std::pair(100, 100), std::pair(100, 1'000), std::pair(1'000, 1'000), std::pair(10, 100'000),
        std::pair(100'000, 10)})
    add("tree/module/" + std::to_string(categories) + "x" + std::to_string(tools),
        [categories = categories, tools = tools](auto& loop) {
          Host host(categories, tools);
          LiString text;
          for ([[maybe_unused]] auto _ : loop)
            forEachChild(*host.item(""), [&](auto& category) {
              readNameAndType(category, text);
              forEachChild(category, [&](auto& tool) { readNameAndType(tool, text); });
            });
        });

  add("item/node", [](auto& loop) {
    Host host(1, 100);
    LiString const path("Category0/Tool0");
    for ([[maybe_unused]] auto _ : loop)
      benchmark::DoNotOptimize(host.item(path));
  });
  auto const attribute = [](unsigned int id) {
    return withTool([id](BrBrowsable& tool, LiString& text) { tool.get(int(id), &text); });
  };
  add("item/name", attribute(BrBrowsable::NAME));
  add("item/type", attribute(BrBrowsable::BROWSABLE_TYPE));
  add("item/owner", attribute(BrBrowsable::OWNER));
  add("item/tooltip", withTool([](BrBrowsable& tool, LiString& text) {
        text = tool.getTooltip(int(BrBrowsable::NAME));
      }));
}

} // namespace Qv
