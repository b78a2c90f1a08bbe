#include "detailOutput.h"

#include "hostImage.h"

namespace Qv {

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
  json["colors"] = Json::object();
  for (auto const& [property, color] : widget.colors)
    json["colors"][property] = color;
  if (widget.image)
    json["image"] = toJson(widget.image);
  if (widget.split) {
    json["orientation"] = widget.split->orientation;
    json["open"] = widget.split->open ? Json(*widget.split->open) : Json(nullptr);
  }
  json["children"] = Json::array();
  for (Widget const& child : widget.children)
    json["children"].push_back(toJson(child));
  return json;
}

Json toJson(DetailPage::Content const& content) {
  Json json = {{"view", content.view}, {"understood", content.understood}};
  json["pages"] = Json::array();
  for (auto const& [title, fields] : content.pages) {
    Json& page = json["pages"].emplace_back(Json{{"title", title}, {"fields", Json::array()}});
    for (auto const& [name, value, editable, background] : fields)
      page["fields"].push_back(
          {{"title", name}, {"value", value}, {"editable", editable}, {"background", background}});
  }
  json["iconPane"] = content.iconPane ? toJson(*content.iconPane) : Json(nullptr);
  return json;
}

std::string toText(RCShdPtr<WsManagedImage> const& image) {
  auto const hostImage = image.dynamicCast<HostImage>();
  if (!hostImage)
    return "none";
  return fmt::format("{} ({} x {})", hostImage->getName(), hostImage->getWidth(),
                     hostImage->getHeight());
}

void print(DetailPage::Content const& content, Output& output) {
  std::vector<Output::Row> rows;
  for (auto const& [title, fields] : content.pages)
    for (auto const& [name, value, editable, background] : fields)
      rows.push_back({title, name, yesOrNo(editable), background, value});
  output.printTable({"Page", "Title", "Editable", "Background", "Value"}, std::move(rows));

  if (!content.iconPane || !content.iconPane->split)
    return;
  for (Widget const& pane : content.iconPane->children)
    if (pane.name == content.iconPane->split->open)
      output.print("\nIcon pane \"{}\": \"{}\" is open and shows {}\n", content.iconPane->name,
                   pane.name, toText(pane.image));
}

} // namespace Qv
