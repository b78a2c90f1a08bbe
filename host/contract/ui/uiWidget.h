#pragma once

#include "coRgbColorTyped.h"
#include "containers.h"
#include "rcShdPtr.h"

#include <map>
#include <optional>
#include <string>

namespace Qv {

/// A user-interface element; holds references to its children.
class QV_EXPORT UiWidget : public RCBase<LkCounter<int>> {
protected:
  ~UiWidget() override;

public:
  /// The background's colour property.
  static char const* const BackgroundColor;

  /// Sets the colour of a property, for instance BackgroundColor.
  virtual void setColor(char const* property, CoRgbColorTyped<float> const& color);

  /// @name Stand-in only
  /// @{
  std::string const& getName() const { return name_; }
  /// In pixels; 0 leaves it to the layout.
  int getWidth() const { return width_; }
  int getHeight() const { return height_; }
  /// Applies a resource. @param width in pixels, like `height`; 0 leaves it to the layout.
  void setLook(int width, int height, std::optional<CoRgbColorTyped<float>> const& background);
  /// The colours set, by property.
  std::map<std::string, CoRgbColorTyped<float>> const& getColors() const { return colors_; }
  Vector<RCShdPtr<UiWidget>> const& getChildren() const { return children_; }
  /// Null for a top-level widget.
  UiWidget* getParent() const { return parent_; }
  /// @}

protected:
  /// @name Stand-in only
  /// @{
  explicit UiWidget(std::string const& name);

  /// Appends a child and removes it from its previous parent.
  void addChild(RCShdPtr<UiWidget> const& child);
  void removeChildren() noexcept;
  /// @}

private:
  UiWidget* parent_ = nullptr;
  Vector<RCShdPtr<UiWidget>> children_;
  std::string name_;
  int width_ = 0;
  int height_ = 0;
  std::map<std::string, CoRgbColorTyped<float>> colors_;
};

} // namespace Qv
