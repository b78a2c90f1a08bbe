#include "arguments.h"
#include "commands.h"
#include "hostBrRegistry.h"
#include "safeText.h"

namespace Qv {

namespace {

/// Walks through trees, down to a depth.
class TreeWalk {
public:
  TreeWalk(std::optional<int> depth, Output& output) : depth_(depth), output_(output) {}

  Json collect(BrBrowsable& item, int level = 0) const {
    Json json = {{"name", getAttribute(item, BrBrowsable::NAME)},
                 {"type", getAttribute(item, BrBrowsable::BROWSABLE_TYPE)},
                 {"path", item.getPath()}};
    if (goesBelow(item, level)) {
      Json& children = json["children"] = Json::array();
      for (RCShdPtr<BrBrowsable> const& child : getChildren(item))
        children.push_back(collect(*child, level + 1));
    }
    return json;
  }

  void print(BrBrowsable& item) const {
    printLine(item);
    printBelow(item, "", 0);
  }

private:
  bool goesBelow(BrBrowsable const& item, int level) const {
    return (!depth_ || level < *depth_) && hasChildren(item);
  }

  /// Prints the path as well where it does not end in the name.
  void printLine(BrBrowsable& item) const {
    auto const style = item.isAContainer() ? fg(fmt::terminal_color::blue) | fmt::emphasis::bold
                                           : fmt::text_style();
    std::string const name = getAttribute(item, BrBrowsable::NAME);
    std::string const type = "[" + getAttribute(item, BrBrowsable::BROWSABLE_TYPE) + "]";
    std::string const path = item.getPath();
    bool const named = path.empty() || path == name || path.ends_with("/" + name);
    output_.print("{}  {}{}\n", output_.styled(style, escaped(name)),
                  output_.styled(fmt::emphasis::faint, escaped(type)),
                  named ? "" : "  " + escaped(path));
  }

  void printBelow(BrBrowsable& item, std::string const& indent, int level) const {
    if (!goesBelow(item, level))
      return;
    Items const children = getChildren(item);
    for (RCShdPtr<BrBrowsable> const& child : children) {
      bool const last = &child == &children.back();
      output_.print("{}{}", indent, last ? "└── " : "├── ");
      printLine(*child);
      printBelow(*child, indent + (last ? "    " : "│   "), level + 1);
    }
  }

  std::optional<int> depth_;
  Output& output_;
};

struct Options {
  std::optional<std::string> scheme;
  std::string path;
  std::optional<int> depth;
};

ExitStatus showTree(Options const& options, Output& output) {
  TreeWalk const walk(options.depth, output);
  if (options.scheme) {
    RCShdPtr<BrBrowsable> const item = findItem(*options.scheme, options.path);
    if (output.isJson())
      output.printJson(walk.collect(*item));
    else
      walk.print(*item);
    return Success;
  }

  Json trees = Json::array();
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    RCShdPtr<BrBrowsable> const root = server->getRootNode()->getBrowsable();
    if (output.isJson())
      trees.push_back(walk.collect(*root));
    else
      walk.print(*root);
  }
  if (output.isJson())
    output.printJson(trees);
  return Success;
}

} // namespace

void addTreeCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("tree", "Show the tree below an item, or those of all schemes", &showTree);
  command.add_option("SCHEME", options.scheme, "The name of the scheme");
  addPath(command, options.path);
  command.add_option("--depth", options.depth, "How many levels below the item")
      ->check(CLI::Range(0, 1000))
      ->option_text("N");
  program.setDefault([](Output& output, Session const&) { return showTree({}, output); });
}

} // namespace Qv
