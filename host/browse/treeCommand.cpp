#include "arguments.h"
#include "commands.h"
#include "hostBrRegistry.h"
#include "safeText.h"
#include "values.h"

namespace Qv {

namespace {

/// Walks through trees, down to a depth, and prints lines or, if only asked for them, paths.
class TreeWalk {
public:
  TreeWalk(std::optional<int> depth, bool paths, Output& output)
      : depth_(depth), paths_(paths), output_(output) {}

  Json collect(BrBrowsable& item, int level = 0) const {
    Json json = toJson(item);
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

  /// Prints the path as well where it does not end in the name, or alone.
  void printLine(BrBrowsable& item) const {
    if (paths_)
      return printPath(item, output_);
    auto const style = item.isAContainer() ? fg(fmt::terminal_color::blue) | fmt::emphasis::bold
                                           : fmt::text_style();
    std::string const name = getAttribute(item, BrBrowsable::NAME);
    std::string const type = "[" + getAttribute(item, BrBrowsable::BROWSABLE_TYPE) + "]";
    output_.print("{}  {}{}\n", output_.styled(style, escaped(name)),
                  output_.styled(fmt::emphasis::faint, escaped(type)),
                  showsPath(item) ? "" : "  " + escaped(item.getPath()));
  }

  void printBelow(BrBrowsable& item, std::string const& indent, int level) const {
    if (!goesBelow(item, level))
      return;
    Items const children = getChildren(item);
    for (RCShdPtr<BrBrowsable> const& child : children) {
      bool const last = &child == &children.back();
      if (!paths_)
        output_.print("{}{}", indent, last ? "└── " : "├── ");
      printLine(*child);
      printBelow(*child, indent + (last ? "    " : "│   "), level + 1);
    }
  }

  std::optional<int> depth_;
  bool paths_;
  Output& output_;
};

struct Options {
  ItemArguments items;
  std::optional<int> depth;
  bool paths = false;
};

ExitStatus showTree(Options const& options, Session const& /*session*/, Output& output) {
  TreeWalk const walk(options.depth, options.paths, output);
  Items roots;
  if (options.items.scheme)
    roots = findItems(options.items);
  else
    for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers())
      roots.push_back(server->getRootNode()->getBrowsable());
  Json trees = Json::array();
  for (RCShdPtr<BrBrowsable> const& root : roots)
    if (output.isJson())
      trees.push_back(walk.collect(*root));
    else
      walk.print(*root);
  if (output.isJson())
    output.printJson({{"items", trees}});
  return Success;
}

} // namespace

void addTreeCommand(Program& program) {
  auto const [command, options] =
      program.addCommand("tree", "Show the tree below an item, or of all schemes", &showTree);
  CLI::Option* const scheme = addScheme(program, command, options.items);
  addPath(command, options.items);
  addPathsFlag(command, options.paths)->needs(scheme);
  command.add_option("--depth", options.depth, "How many levels below the item")
      ->check(CLI::Range(0, 1000))
      ->option_text("N");
  program.setDefault(
      [](Session const& session, Output& output) { return showTree({}, session, output); });
}

} // namespace Qv
