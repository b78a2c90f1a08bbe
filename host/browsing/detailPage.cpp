#include "detailPage.h"

#include "hostBrRegistry.h"
#include "snSelection.h"
#include "typeName.h"
#include "uiLabel.h"
#include "uiSplitPane.h"
#include "uiTextEditor.h"

#include <cmath>
#include <fmt/format.h>

namespace Qv {

namespace {

std::string colorText(CoRgbColorTyped<float> const& color) {
  auto const byte = [](float component) { return std::lround(component * 255); };
  return fmt::format("#{:02x}{:02x}{:02x}", byte(color.red), byte(color.green), byte(color.blue));
}

Widget describe(RCShdPtr<UiWidget> const& widget) {
  UiWidget const& self = *widget;
  Widget result;
  result.className = typeName(typeid(self));
  result.name = self.getName();
  result.width = self.getWidth();
  result.height = self.getHeight();
  for (auto const& [property, color] : self.getColors())
    result.colors[property] = colorText(color);
  if (auto const label = widget.dynamicCast<UiLabel>())
    result.text = label->getLabel().getString();
  if (auto const editor = widget.dynamicCast<UiTextEditor>()) {
    result.text = editor->getString();
    result.editable = editor->isEditable();
  }
  if (auto const pane = widget.dynamicCast<UiPane>())
    result.image = pane->getImage();
  if (auto const split = widget.dynamicCast<UiSplitPane>()) {
    result.split = Widget::Split{split->getOrientation(), {}};
    if (split->getOpenPane())
      result.split->open = split->getOpenPane()->getName();
  }
  for (RCShdPtr<UiWidget> const& child : self.getChildren())
    result.children.push_back(describe(child));
  return result;
}

Widget describeOutermost(RCShdPtr<UiWidget> widget) {
  while (UiWidget* const parent = widget->getParent())
    widget = RCShdPtr<UiWidget>(parent);
  return describe(widget);
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

DetailPage::Content DetailPage::show(RCShdPtr<BrBrowsable> const& item) {
  view_->setContent(item, RCShdPtr<SnSelection>());
  Content content = {view_->getName(), view_->understands(item), {}, {}};
  for (BrDetailView::Page const& page : view_->getPages()) {
    // A title stands before each value.
    std::vector<Widget> const widgets = describe(page.widget).children;
    for (std::size_t title = 0; title + 1 < widgets.size(); title += 2) {
      Widget const& value = widgets[title + 1];
      auto const background = value.colors.find(UiWidget::BackgroundColor);
      content.fields.push_back({page.title, widgets[title].text.value_or(""),
                                value.text.value_or(""), value.editable.value_or(false),
                                background == value.colors.end() ? "" : background->second});
    }
  }
  if (view_->getIconPane())
    content.iconPane = describe(view_->getIconPane());
  return content;
}

std::vector<Widget> DetailPage::getWidgets() const {
  std::vector<Widget> widgets;
  for (BrDetailView::Page const& page : view_->getPages())
    widgets.push_back(describeOutermost(page.widget));
  if (view_->getIconPane())
    widgets.push_back(describeOutermost(view_->getIconPane()));
  return widgets;
}

} // namespace Qv
