#pragma once

#include "uiWidget.h"
#include "wsManagedImage.h"

namespace Qv {

/// An area with widgets, one below the other.
class QV_EXPORT UiPane : public UiWidget {
public:
  /// @name Stand-in only
  /// @{
  explicit UiPane(std::string const& name);

  /// Adds a widget after the existing ones.
  void add(RCShdPtr<UiWidget> const& widget);
  /// Shows an image behind the widgets; null shows none.
  void setImage(RCShdPtr<WsManagedImage> const& image);
  RCShdPtr<WsManagedImage> const& getImage() const { return image_; }
  /// @}

protected:
  ~UiPane() override;

private:
  RCShdPtr<WsManagedImage> image_;
};

/// A pane that others are built into.
class QV_EXPORT UiContainer : public UiPane {
public:
  /// @name Stand-in only
  /// @{
  explicit UiContainer(std::string const& name);
  /// @}

protected:
  ~UiContainer() override;
};

} // namespace Qv
