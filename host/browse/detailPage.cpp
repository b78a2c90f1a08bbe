#include "detailPage.h"

#include "hostBrRegistry.h"
#include "snSelection.h"
#include "uiLabel.h"
#include "uiSplitPane.h"
#include "uiTextEditor.h"

#include <cmath>

namespace Qv {

namespace {

std::string colorText(CoRgbColorTyped<float> const& color) {
  auto const byte = [](float component) { return std::lround(component * 255); };
  return fmt::format("#{:02x}{:02x}{:02x}", byte(color.red), byte(color.green), byte(color.blue));
}

/// The widget itself, without its children.
Json describeWidget(RCShdPtr<UiWidget> const& widget) {
  UiWidget const& self = *widget;
  Json json = {{"class", typeName(typeid(self))}, {"name", self.getName()}};
  if (auto const label = widget.dynamicCast<UiLabel>())
    json["text"] = label->getLabel().getString();
  if (auto const editor = widget.dynamicCast<UiTextEditor>()) {
    json["text"] = editor->getString();
    json["editable"] = editor->isEditable();
  }
  json["width"] = widget->getWidth();
  json["height"] = widget->getHeight();
  json["colors"] = Json::object();
  for (auto const& [property, color] : widget->getColors())
    json["colors"][property] = colorText(color);
  if (auto const pane = widget.dynamicCast<UiPane>(); pane && pane->getImage())
    json["image"] = describeImage(pane->getImage());
  if (auto const split = widget.dynamicCast<UiSplitPane>()) {
    json["orientation"] = int(split->getOrientation());
    json["open"] = split->getOpenPane() ? Json(split->getOpenPane()->getName()) : Json(nullptr);
  }
  return json;
}

Json describeTree(RCShdPtr<UiWidget> const& widget) {
  Json json = describeWidget(widget);
  json["children"] = Json::array();
  for (RCShdPtr<UiWidget> const& child : widget->getChildren())
    json["children"].push_back(describeTree(child));
  return json;
}

/// The widget that holds this one and all around it.
RCShdPtr<UiWidget> topOf(RCShdPtr<UiWidget> const& widget) {
  RCShdPtr<UiWidget> top = widget;
  while (UiWidget* const parent = top->getParent())
    top = RCShdPtr<UiWidget>(parent);
  return top;
}

/// A value that may be missing, as text.
std::string textOf(Json const& json, char const* key) {
  auto const found = json.find(key);
  if (found == json.end() || found->is_null())
    return "";
  return found->is_string() ? found->get<std::string>() : found->dump();
}

} // namespace

DetailPage::DetailPage(OPtr<BrDetailView> view) : view_(std::move(view)) {
  view_->buildUi(RCShdPtr<SnSelection>());
  view_->setDetailInfo();
}

std::optional<DetailPage> DetailPage::create(RCShdPtr<BrBrowsable> const& item) {
  OPtr<BrView> clone = HostBrRegistry::getInstance().createDetailView(item);
  auto* const view = dynamic_cast<BrDetailView*>(clone.get());
  if (!view)
    return std::nullopt;
  static_cast<void>(clone.release());
  return DetailPage(OPtr<BrDetailView>(view));
}

Json DetailPage::show(RCShdPtr<BrBrowsable> const& item) {
  view_->setContent(item, RCShdPtr<SnSelection>());
  Json json = {{"view", view_->getName()}, {"understood", view_->understands(item)}};
  json["pages"] = Json::array();
  for (BrDetailView::Page const& page : view_->getPages()) {
    Json fields = Json::array();
    // A title stands before each value.
    Vector<RCShdPtr<UiWidget>> const& widgets = page.widget->getChildren();
    for (std::size_t title = 0; title + 1 < widgets.size(); title += 2) {
      Json const value = describeWidget(widgets[title + 1]);
      fields.push_back({{"title", textOf(describeWidget(widgets[title]), "text")},
                        {"value", textOf(value, "text")},
                        {"editable", value.value("editable", false)},
                        {"background", textOf(value["colors"], UiWidget::BackgroundColor)}});
    }
    json["pages"].push_back({{"title", page.title}, {"fields", fields}});
  }
  json["iconPane"] = view_->getIconPane() ? describeTree(view_->getIconPane()) : Json(nullptr);
  return json;
}

Json DetailPage::dump() const {
  Json widgets = Json::array();
  for (BrDetailView::Page const& page : view_->getPages())
    widgets.push_back(describeTree(topOf(page.widget)));
  if (view_->getIconPane())
    widgets.push_back(describeTree(topOf(view_->getIconPane())));
  return widgets;
}

void DetailPage::print(Json const& page) {
  std::vector<std::vector<std::string>> rows;
  for (Json const& part : page["pages"])
    for (Json const& field : part["fields"])
      rows.push_back({part["title"], field["title"], yesOrNo(field["editable"]),
                      field["background"], field["value"]});
  Terminal().printTable({"Page", "Title", "Editable", "Background", "Value"}, rows);

  Json const& icon = page["iconPane"];
  if (icon.is_null() || icon["open"].is_null())
    return;
  for (Json const& pane : icon["children"])
    if (pane["name"] == icon["open"])
      printText("\nIcon pane \"{}\": \"{}\" is open and shows {}\n", textOf(icon, "name"),
                textOf(pane, "name"), imageText(pane.value("image", Json(nullptr))));
}

void DetailPage::printDump(Json const& widgets) {
  auto const printWidget = [](auto const& self, Json const& widget,
                              std::string const& indent) -> void {
    std::string line =
        fmt::format("{}{} \"{}\"", indent, textOf(widget, "class"), textOf(widget, "name"));
    for (auto const& [key, value] : widget.items())
      if (key != "class" && key != "name" && key != "children")
        line += fmt::format(" {}={}", key,
                            printable(value.dump(-1, ' ', false, Json::error_handler_t::replace)));
    printText("{}\n", line);
    for (Json const& child : widget["children"])
      self(self, child, indent + "  ");
  };
  for (Json const& widget : widgets)
    printWidget(printWidget, widget, "");
}

} // namespace Qv
