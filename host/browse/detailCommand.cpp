#include "arguments.h"
#include "commands.h"
#include "safeText.h"
#include "values.h"

namespace Qv {

namespace {

struct Options {
  ItemArguments items;
  bool dump = false;
};

void printWidget(Json const& widget, std::string const& indent, Output& output) {
  std::string line = fmt::format("{}{} \"{}\"", indent, widget["class"].get<std::string>(),
                                 widget["name"].get<std::string>());
  for (auto const& [key, value] : widget.items())
    if (key != "class" && key != "name" && key != "children")
      line +=
          fmt::format(" {}={}", key, value.dump(-1, ' ', false, Json::error_handler_t::replace));
  output.print("{}\n", escaped(line));
  for (Json const& child : widget["children"])
    printWidget(child, indent + "  ", output);
}

ExitStatus showDetail(Options const& options, Session const& session, Output& output) {
  Items const items = findItems(options.items);
  std::optional<DetailPage> page;
  for (RCShdPtr<BrBrowsable> const& item : items)
    if (!page)
      page = DetailPage::create(item);
  if (!page) {
    output.printProblem(
        fmt::format("the scheme \"{}\" has no detail view for these items", *options.items.scheme));
    return Failure;
  }

  Json shown = Json::array();
  for (RCShdPtr<BrBrowsable> const& item : items) {
    Json& json = shown.emplace_back(toJson(*item));
    addDetail(json, item, session, page);
    if (options.dump)
      for (Widget const& widget : page->getWidgets())
        json["widgets"].push_back(toJson(widget));
    if (output.isJson())
      continue;
    output.print("{}\"{}\"\n", &item == &items.front() ? "" : "\n", escaped(item->getPath()));
    printDetail(json, output);
    if (options.dump)
      for (Json const& widget : json["widgets"])
        printWidget(widget, "", output);
  }
  if (output.isJson())
    output.printJson({{"items", shown}});
  return Success;
}

} // namespace

void addDetailCommand(Program& program) {
  auto const [command, options] = program.addCommand(
      "detail", "Show items on one detail page, one after the other", &showDetail);
  addScheme(program, command, options.items)->required();
  addPaths(command, options.items);
  command.add_flag("--dump", options.dump, "Show the widgets as well");
}

} // namespace Qv
