#include "uiLabel.h"
#include "uiPane.h"
#include "uiTextEditor.h"

namespace Qv {

char const* const UiWidget::BackgroundColor = "background";

UiWidget::UiWidget(std::string const& name) : name_(name) {}

UiWidget::~UiWidget() { removeChildren(); }

void UiWidget::addChild(RCShdPtr<UiWidget> const& child) {
  // The old parent may hold the very pointer that was passed.
  RCShdPtr<UiWidget> const added = child; // NOLINT(performance-unnecessary-copy-initialization)
  if (UiWidget* const before = added->parent_)
    std::erase(before->children_, added);
  children_.push_back(added);
  added->parent_ = this;
}

void UiWidget::removeChildren() noexcept {
  for (RCShdPtr<UiWidget> const& child : children_)
    child->parent_ = nullptr;
  children_.clear();
}

void UiWidget::setColor(char const* property, CoRgbColorTyped<float> const& color) {
  colors_[property] = color;
}

void UiWidget::setSize(int width, int height) {
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

void UiTextEditor::setEditable(bool editable) { editable_ = editable; }

UiPane::UiPane(std::string const& name) : UiWidget(name) {}

UiPane::~UiPane() = default;

void UiPane::add(RCShdPtr<UiWidget> const& widget) { addChild(widget); }

void UiPane::setImage(RCShdPtr<WsManagedImage> const& image) { image_ = image; }

UiContainer::UiContainer(std::string const& name) : UiPane(name) {}

UiContainer::~UiContainer() = default;

} // namespace Qv
