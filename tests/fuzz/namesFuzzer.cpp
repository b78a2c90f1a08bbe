// The first line of an input is a path, each one after it a name for a category, a tool and a view.
// A name that the host accepts must be one component of a path; a path is browsed or refused.

#include "assertions.h"
#include "browse.h"
#include "hostError.h"
#include "omUtil.h"

#include <cstdint>
#include <sstream>

namespace Qv {

namespace {

/// Whether the host accepts the name.
template <class Add> bool adds(std::string const& name, Add add) {
  try {
    add();
  } catch (HostError const&) {
    return false;
  }
  OsFilePath path(std::string("parent"));
  path += OsFilePath(name);
  Iterator<std::string> components = OmUtil::parsePath(OsFilePath(std::string(path.getChars())));
  require(components.getCardinality() == 2);
  components.next();
  require(components.item() == name);
  return true;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(std::uint8_t const* data, std::size_t size) {
  HostToolRegistry& tools = HostToolRegistry::getInstance();
  HostViewFactory& factory = HostViewFactory::getInstance();
  std::istringstream input(std::string(reinterpret_cast<char const*>(data), size));
  std::string path;
  std::getline(input, path);
  int categories = 0;
  int views = 0;
  for (std::string name; std::getline(input, name);) {
    categories += adds(name, [&] { tools.addCategory(name); });
    bool const odd = name.size() % 2 != 0;
    adds(name, [&] { tools.addTool({.name = name, .category = name, .superTool = odd}); });
    views += adds(name, [&] { factory.addView({name, odd ? name : ""}); });
  }
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers())
    try {
      LiString message;
      server->getNode(path, message)->getBrowsable()->get(int(BrBrowsable::NAME), &message);
    } catch (ExProgramAborted const&) {
      // It has too many components.
    }
  browseAll(categories, views);
  return 0;
}

} // namespace Qv
