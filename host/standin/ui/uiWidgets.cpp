#include "hostJournal.h"
#include "uiLabel.h"
#include "uiPane.h"
#include "uiTextEditor.h"

#include <algorithm>

namespace Qv {

char const* const UiWidget::BackgroundColor = "background";

UiWidget::UiWidget(std::string const& name) : name_(name) {}

UiWidget::~UiWidget() { removeChildren(); }

void UiWidget::addChild(RCShdPtr<UiWidget> const& child) {
  // `child` may refer to the old parent's own pointer.
  RCShdPtr<UiWidget> const added = child; // NOLINT(performance-unnecessary-copy-initialization)
  UiWidget* const before = added->parent_;
  children_.push_back(added); // The only step that can throw.
  if (before)
    before->children_.erase(std::find(before->children_.begin(), before->children_.end(), added));
  added->parent_ = this;
}

void UiWidget::removeChildren() noexcept {
  for (RCShdPtr<UiWidget> const& child : children_)
    child->parent_ = nullptr;
  children_.clear();
}

void UiWidget::setColor(char const* property, CoRgbColorTyped<float> const& color) {
  HostJournal::getInstance().record("UiWidget::setColor", name_, property);
  colors_[property] = color;
}

void UiWidget::setLook(int width, int height,
                       std::optional<CoRgbColorTyped<float>> const& background) {
  if (background)
    colors_[BackgroundColor] = *background;
  width_ = width;
  height_ = height;
}

void UiString::setString(char const* text) { text_ = text; }

UiLabel::UiLabel(std::string const& name) : UiWidget(name) {}

UiLabel::~UiLabel() = default;

UiString& UiLabel::getLabel() const { return label_; }

UiTextEditor::UiTextEditor(std::string const& name) : UiWidget(name) {}

UiTextEditor::~UiTextEditor() = default;

void UiTextEditor::setString(LiString const& text) { text_ = text; }

void UiTextEditor::setEditable(bool editable) {
  HostJournal::getInstance().record("UiTextEditor::setEditable", getName(),
                                    editable ? "true" : "false");
  editable_ = editable;
}

UiPane::UiPane(std::string const& name) : UiWidget(name) {}

UiPane::~UiPane() = default;

void UiPane::add(RCShdPtr<UiWidget> const& widget) { addChild(widget); }

void UiPane::setImage(RCShdPtr<WsManagedImage> const& image) { image_ = image; }

UiContainer::UiContainer(std::string const& name) : UiPane(name) {}

UiContainer::~UiContainer() = default;

} // namespace Qv
