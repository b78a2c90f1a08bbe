#include "arguments.h"
#include "commands.h"
#include "detailOutput.h"
#include "hostBrRegistry.h"

namespace Qv {

namespace {

struct Options {
  std::string scheme;
  std::string path;
};

ExitStatus showItem(Options const& options, Output& output) {
  RCShdPtr<BrBrowsable> const item = findItem(options.scheme, options.path);
  auto const type = getAttribute(*item, BrBrowsable::BROWSABLE_TYPE);
  auto const icon = HostBrRegistry::getInstance().getIcon(type);
  auto const thumbnail = item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128});
  Json json = {{"scheme", item->getSchemeName()}, {"path", item->getPath()}};
  for (Attribute const& attribute : getAttributes())
    json["attributes"][attribute.name] = getAttribute(*item, attribute.id);
  json["container"] = item->isAContainer();
  json["hasChildren"] = hasChildren(*item);
  json["hasContainerChildren"] = hasContainerChildren(*item);
  json["picklistable"] = item->isPicklistable();
  json["icon"] = toJson(icon);
  json["thumbnail"] = toJson(thumbnail);
  json["tooltip"] = item->getTooltip(int(BrBrowsable::NAME));
  std::optional<DetailPage::Content> detail;
  if (std::optional<DetailPage> page = DetailPage::create(item))
    detail = page->show(item);
  json["detail"] = detail ? toJson(*detail) : Json(nullptr);
  if (output.isJson()) {
    output.printJson(json);
    return Success;
  }

  std::vector<Output::Row> rows = {
      {"scheme", json["scheme"]}, {"path", fmt::format("\"{}\"", json["path"].get<std::string>())}};
  for (auto const& [name, value] : json["attributes"].items())
    rows.push_back({name, value});
  rows.push_back({"container", yesOrNo(json["container"])});
  rows.push_back({"has children", yesOrNo(json["hasChildren"])});
  rows.push_back({"has container children", yesOrNo(json["hasContainerChildren"])});
  rows.push_back({"picklistable", yesOrNo(json["picklistable"])});
  rows.push_back({"icon", toText(icon)});
  rows.push_back({"thumbnail", toText(thumbnail)});
  // A tooltip separates its lines by a tag.
  std::string tooltip = json["tooltip"];
  for (char const* property = "tooltip";; property = "") {
    std::size_t const end = tooltip.find("<br>");
    rows.push_back({property, tooltip.substr(0, end)});
    if (end == std::string::npos)
      break;
    tooltip.erase(0, end + std::string_view("<br>").size());
  }
  output.printTable({"Property", "Value"}, std::move(rows));
  if (detail) {
    output.print("\n");
    print(*detail, output);
  }
  return Success;
}

} // namespace

void addShowCommand(Program& program) {
  auto const [command, options] = program.addCommand("show", "Show one item", &showItem);
  addScheme(command, options.scheme)->required();
  addPath(command, options.path)->required();
}

} // namespace Qv
