#include "arguments.h"
#include "commands.h"
#include "detailOutput.h"
#include "safeText.h"

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::vector<std::string> paths;
  bool dump = false;
};

void printWidget(Json const& widget, std::string const& indent, Output& output) {
  std::string line = fmt::format("{}{} \"{}\"", indent, widget["class"].get<std::string>(),
                                 widget["name"].get<std::string>());
  for (auto const& [key, value] : widget.items())
    if (key != "class" && key != "name" && key != "children")
      line += fmt::format(" {}={}", key,
                          escaped(value.dump(-1, ' ', false, Json::error_handler_t::replace)));
  output.print("{}\n", line);
  for (Json const& child : widget["children"])
    printWidget(child, indent + "  ", output);
}

ExitStatus showDetail(Options const& options, Output& output) {
  Items const items = findItems(options.scheme, options.paths);
  std::optional<DetailPage> page;
  for (RCShdPtr<BrBrowsable> const& item : items)
    if (!page)
      page = DetailPage::create(item);
  if (!page) {
    output.printProblem(
        fmt::format("the scheme \"{}\" has no detail view for these items", options.scheme));
    return Failure;
  }

  Json shown = Json::array();
  for (RCShdPtr<BrBrowsable> const& item : items) {
    DetailPage::Content const content = page->show(item);
    Json widgets = Json::array();
    if (options.dump)
      for (Widget const& widget : page->getWidgets())
        widgets.push_back(toJson(widget));
    if (output.isJson()) {
      Json& json = shown.emplace_back(Json{{"path", item->getPath()}});
      json.update(toJson(content));
      if (options.dump)
        json["widgets"] = widgets;
      continue;
    }
    output.print("{}\"{}\"{}\n", &item == &items.front() ? "" : "\n", escaped(item->getPath()),
                 content.understood ? "" : " (not understood by the view)");
    print(content, output);
    for (Json const& widget : widgets)
      printWidget(widget, "", output);
  }
  if (output.isJson())
    output.printJson(shown);
  return Success;
}

} // namespace

void addDetailCommand(Program& program) {
  auto const [command, options] = program.addCommand(
      "detail", "Show items on one detail page, one after the other", &showDetail);
  addScheme(command, options.scheme)->required();
  addPaths(command, options.paths);
  command.add_flag("--dump", options.dump, "Show the widgets as well");
}

} // namespace Qv
