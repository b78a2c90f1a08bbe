#pragma once

#include "uiWidget.h"
#include "wsManagedImage.h"

namespace Qv {

/// An area that stacks its widgets vertically.
class QV_EXPORT UiPane : public UiWidget {
public:
  /// @name Stand-in only
  /// @{
  explicit UiPane(std::string const& name);

  void add(RCShdPtr<UiWidget> const& widget);
  /// Sets the image behind the widgets; null for none.
  void setImage(RCShdPtr<WsManagedImage> const& image);
  RCShdPtr<WsManagedImage> const& getImage() const { return image_; }
  /// @}

protected:
  ~UiPane() override;

private:
  RCShdPtr<WsManagedImage> image_;
};

/// A pane that others are built in.
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
