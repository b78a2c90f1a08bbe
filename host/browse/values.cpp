#include "values.h"

#include "hostImage.h"

namespace Qv {

bool showsPath(BrBrowsable& item) {
  return item.getPath().empty() ||
         getLastName(item.getPath()) == getAttribute(item, BrBrowsable::NAME);
}

Json toJson(BrBrowsable& item) {
  return {{"scheme", item.getSchemeName()},
          {"path", item.getPath()},
          {"name", getAttribute(item, BrBrowsable::NAME)},
          {"type", getAttribute(item, BrBrowsable::BROWSABLE_TYPE)}};
}

Json toJson(RCShdPtr<WsManagedImage> const& image) {
  auto const hostImage = image.dynamicCast<HostImage>();
  if (!hostImage)
    return nullptr;
  return {{"file", hostImage->getName()},
          {"width", hostImage->getWidth()},
          {"height", hostImage->getHeight()}};
}

Json toJson(Widget const& widget) {
  Json json = {{"class", widget.className}, {"name", widget.name}};
  if (widget.text)
    json["text"] = *widget.text;
  if (widget.editable)
    json["editable"] = *widget.editable;
  json["width"] = widget.width;
  json["height"] = widget.height;
  json["colors"] = widget.colors;
  if (widget.image)
    json["image"] = toJson(widget.image);
  if (widget.split) {
    // Only the host knows what its numbers stand for.
    json["orientation"] = fmt::format("Orientation({})", widget.split->orientation);
    json["open"] = widget.split->open ? Json(*widget.split->open) : Json(nullptr);
  }
  json["children"] = Json::array();
  for (Widget const& child : widget.children)
    json["children"].push_back(toJson(child));
  return json;
}

Json toJson(ToolSource::Plugin const& plugin) {
  char const* const state = !plugin.failure.empty()   ? "failed"
                            : plugin.hiddenBy.empty() ? "read"
                                                      : "hidden";
  Json json = {{"file", plugin.file.string()},
               {"place", plugin.place.string()},
               {"state", state},
               {"category", plugin.category},
               {"tool", plugin.tool},
               {"version", plugin.version},
               {"parameters", Json::array()},
               {"reason", plugin.failure}};
  for (auto const& [name, type, explanation] : plugin.parameters)
    json["parameters"].push_back({{"name", name}, {"type", type}, {"explanation", explanation}});
  if (!plugin.hiddenBy.empty())
    json["reason"] = fmt::format("hidden by \"{}\"", plugin.hiddenBy.string());
  return json;
}

void addDetail(Json& json, RCShdPtr<BrBrowsable> const& item, Session const& session,
               std::optional<DetailPage>& page) {
  ToolSource::Plugin const* const plugin = session.findPlugin(*item);
  json["plugin"] = plugin ? toJson(*plugin) : Json(nullptr);
  json["detail"] = nullptr;
  if (!page)
    return;
  DetailPage::Content const content = page->show(item);
  Json fields = Json::array();
  for (auto const& [onPage, title, value, editable, background] : content.fields)
    fields.push_back({{"page", onPage},
                      {"title", title},
                      {"editable", editable},
                      {"background", background},
                      {"value", value}});
  json["detail"] = {{"view", content.view},
                    {"understood", content.understood},
                    {"fields", fields},
                    {"iconPane", nullptr},
                    {"image", nullptr}};
  if (content.iconPane && content.iconPane->split)
    for (Widget const& pane : content.iconPane->children)
      if (pane.name == content.iconPane->split->open)
        json["detail"].update({{"iconPane", pane.name}, {"image", toJson(pane.image)}});
}

void printDetail(Json const& item, Output& output) {
  Json const& plugin = item["plugin"];
  if (!plugin.is_null()) {
    output.print("\n");
    output.printTable({"file", "version"}, Json::array({plugin}));
    output.print("\n");
    output.printTable({"name", "type", "explanation"}, plugin["parameters"]);
  }
  Json const& detail = item["detail"];
  if (!detail.is_null()) {
    output.print("\n");
    output.printTable({"page", "title", "editable", "background", "value"}, detail["fields"]);
    output.print("\n");
    output.printTable({"view", "understood", "iconPane", "image"}, Json::array({detail}));
  }
}

} // namespace Qv
