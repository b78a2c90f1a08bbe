#pragma once

#include "uiPane.h"

namespace Qv {

class UiResTable;

/// A pane that is split into others.
class QV_EXPORT UiSplitPane : public UiPane {
public:
  /// How the panes are laid out; the module passes 2.
  enum Orientation : int {};

  /// @param parent null for a top-level pane. @param resources null for the default look.
  static RCShdPtr<UiSplitPane> create(RCShdPtr<UiContainer> const& parent, char const* name,
                                      UiResTable const* resources);

  void setOrientation(Orientation orientation);
  /// Replaces the panes. @param sizes one per pane; null leaves them to the host.
  void setPanes(Vector<RCShdPtr<UiPane>> const& panes, Vector<float> const* sizes);
  /// Opens one of the panes; returns false if it is not among them.
  bool openPane(RCShdPtr<UiPane> const& pane);

  /// @name Stand-in only
  /// @{
  Orientation getOrientation() const { return orientation_; }
  /// Null until one is opened.
  RCShdPtr<UiPane> const& getOpenPane() const { return openPane_; }
  /// @}

protected:
  ~UiSplitPane() override;

private:
  explicit UiSplitPane(std::string const& name);

  Orientation orientation_{};
  RCShdPtr<UiPane> openPane_;
};

} // namespace Qv
