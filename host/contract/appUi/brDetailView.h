#pragma once

#include "brView.h"
#include "osFilePath.h"

namespace Qv {

class UiPane;

/// A page of the browser that shows one item in detail.
class QV_EXPORT BrDetailView : public BrView {
public:
  ~BrDetailView() override;
  /// Adds the page with the information about the item.
  virtual void setDetailInfo() = 0;
  virtual RCShdPtr<VpPlayer> const getMiniPlayer() const;

  /// Loads the resource table from `resourceFile`. @param name names the view.
  BrDetailView(LiString const& name, OsFilePath const& resourceFile);

  /// Adds a page under a title.
  void addDetailInfoPage(RCShdPtr<UiWidget> page, LiString const& title);
  /// Installs the pane that shows the item's icon.
  void setIconPane(RCShdPtr<UiPane> pane);
};

} // namespace Qv
