#pragma once

#include "uiPane.h"

namespace Qv {

class UiResTable;

/// A pane that other panes share.
class QV_EXPORT UiSplitPane : public UiPane {
public:
  /// How the panes lie beside each other; the module passes 2.
  enum Orientation : int {};

  /// @param parent null for a pane of its own. @param resources null for the standard look.
  static RCShdPtr<UiSplitPane> create(RCShdPtr<UiContainer> const& parent, char const* name,
                                      UiResTable const* resources);

  /// Says how the panes lie beside each other.
  void setOrientation(Orientation orientation);
  /// Shows these panes and no others. @param sizes one number a pane; null leaves them to the host.
  void setPanes(Vector<RCShdPtr<UiPane>> const& panes, Vector<float> const* sizes);
  /// Opens one of the panes. Returns false when it is none of them.
  bool openPane(RCShdPtr<UiPane> const& pane);

  /// @name Stand-in only
  /// @{
  Orientation getOrientation() const { return orientation_; }
  /// Null as long as none has been opened.
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
