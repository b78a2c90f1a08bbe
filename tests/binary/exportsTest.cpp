#include "vtables.h"

#include <cstdio>
#include <gmock/gmock.h>
#include <memory>
#include <regex>
#include <set>
#include <sstream>

namespace Qv {

namespace {

/// The names that the module defines for others.
std::set<std::string> exportedNames() {
  std::unique_ptr<FILE, decltype(&pclose)> const nm(
      popen("nm --dynamic --defined-only --format=posix '" PLUGINBROWSERQVMODULE_FILE "'", "r"),
      &pclose);
  std::set<std::string> names;
  char line[4096];
  while (nm && std::fgets(line, sizeof line, nm.get())) {
    std::string symbol;
    std::istringstream(line) >> symbol;
    // What the compilers make of the standard library is merged at load, as type identities are.
    if (!std::regex_search(symbol, std::regex("^_Z(Z?N?K?St|NK?9__gnu_cxx|TI|TS)")))
      names.insert(readable(symbol.c_str()));
  }
  return names;
}

/// The instances and classes of the interface. A name that ends in "::" stands for all members.
std::vector<std::string> const& interface() {
  static std::vector<std::string> const names = [] {
    std::vector<std::string> result = {
        "InInit<QvInit::pluginBrowserQvmodule>::",
        "PbrToolBrowsable::",
        "PbrToolChildrenQuerys::",
        "PbrToolDndHandler::",
        "PbrToolServer::",
        "PbrToolView::",
        "PbrViewBrowsable::",
        "PbrViewChildrenQuery::",
        "PbrViewDndHandler::",
        "PbrViewServer::",
        "SnItemBasic<RCShdPtr<PiNodeDndInterface const>>::",
        "SnItemBasic<UiViewIdentifier>::",
        "IteratorImp<std::string>::",
        "IteratorImp<RCShdPtr<BrBrowsable>>::",
    };
    std::string const children = "List<RCShdPtr<BrBrowsable>>";
    std::string const strings = "Vector<std::string>";
    for (std::string const& container : {children, strings}) {
      std::string const engine = "IteratorSTL<" + container + ", RCStrongPtr<" + container +
                                 ">, IteratorAccessorPassthrough>";
      result.push_back("RCStrongBasePtr<" + container + ", LkCounter<int>>::");
      result.push_back("RCStrongPtr<" + container + ">::");
      result.push_back(engine + "::");
      result.push_back("RCPvtEngPtr<" + engine + ">::");
    }
    for (std::string const element :
         {"std::string", "RCShdPtr<BrBrowsable>", "RCShdPtr<PiTool const>", "LiString"}) {
      result.push_back("Iterator<" + element + ">::");
      result.push_back("RCPvtEngPtr<IteratorImp<" + element + ">>::");
    }
    for (std::string const pointee :
         {"RCSWCount<LkCounter<int>>", "BrChildrenQuery", "PbrToolBrowsable", "PbrViewBrowsable",
          "PbrToolDndHandler", "PbrViewDndHandler", "PiTool const", "PiDndTool const",
          "PiNodeDndInterface const", "WsManagedImage", "IxMemory", "SnItem", "SnItem const",
          "SnItemBasic<RCShdPtr<PiNodeDndInterface const>>", "SnItemBasic<UiViewIdentifier>",
          "SnSelection", "SnParts"})
      result.push_back("RCShdPtr<" + pointee + ">::~RCShdPtr()");
    for (std::string const pointee :
         {"PiNodeDndInterface const", "PbrToolDndHandler", "PbrViewBrowsable", "PbrViewDndHandler"})
      result.push_back("RCBasePtr<" + pointee + ">::dump(std::ostream&) const");
    return result;
  }();
  return names;
}

bool belongsTo(std::string const& name, std::string const& entry) {
  return entry.ends_with("::") ? name.starts_with(entry) : name == entry;
}

TEST(Exports, holdEveryInstanceAndClass) {
  std::set<std::string> const names = exportedNames();
  for (std::string const& entry : interface())
    EXPECT_TRUE(std::any_of(names.begin(), names.end(), [&](std::string const& name) {
      return belongsTo(name, entry);
    })) << entry;
  for (char const* member : {"PbrToolBrowsable::FolderId", "PbrToolBrowsable::CategoryId",
                             "PbrToolBrowsable::SuperToolId", "PbrToolBrowsable::ToolId",
                             "PbrViewBrowsable::FolderId", "PbrViewBrowsable::ViewsId"})
    EXPECT_THAT(names, testing::Contains(member));
  EXPECT_THAT(names, testing::Contains("InInit<QvInit::pluginBrowserQvmodule>::getType()"));
}

TEST(Exports, holdNothingElseOfTheModule) {
  for (std::string name : exportedNames()) {
    if (name.starts_with("vtable for "))
      name = name.substr(std::string("vtable for ").size()) + "::";
    EXPECT_TRUE(std::any_of(interface().begin(), interface().end(), [&](std::string const& entry) {
      return belongsTo(name, entry) || name == "RCSWCount<LkCounter<int>>::";
    })) << name;
  }
}

} // namespace

} // namespace Qv
