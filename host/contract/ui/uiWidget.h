#pragma once

#include "coRgbColorTyped.h"
#include "containers.h"
#include "rcShdPtr.h"

#include <map>
#include <optional>
#include <string>

namespace Qv {

/// A part of the user interface. A widget holds its children.
class QV_EXPORT UiWidget : public RCBase<LkCounter<int>> {
protected:
  ~UiWidget() override;

public:
  /// The colour property of what lies behind the widget's content.
  static char const* const BackgroundColor;

  /// Sets the colour of a property, for instance BackgroundColor.
  virtual void setColor(char const* property, CoRgbColorTyped<float> const& color);

  /// @name Stand-in only
  /// @{
  std::string const& getName() const { return name_; }
  /// In pixels; 0 leaves a side to the layout.
  int getWidth() const { return width_; }
  int getHeight() const { return height_; }
  /// What a resource says of the widget. @param width in pixels, as is `height`; 0 leaves a side to
  /// the layout.
  void setLook(int width, int height, std::optional<CoRgbColorTyped<float>> const& background);
  /// The colours that have been set, by property.
  std::map<std::string, CoRgbColorTyped<float>> const& getColors() const { return colors_; }
  Vector<RCShdPtr<UiWidget>> const& getChildren() const { return children_; }
  /// The widget that holds this one; null when none does.
  UiWidget* getParent() const { return parent_; }
  /// @}

protected:
  explicit UiWidget(std::string const& name);

  /// @name Stand-in only
  /// @{
  /// Takes a child in after the existing ones, out of the widget that held it before.
  void addChild(RCShdPtr<UiWidget> const& child);
  /// Lets go of all children.
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
