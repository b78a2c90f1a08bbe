#pragma once

#include "brView.h"
#include "osFilePath.h"
#include "uiPane.h"

namespace Qv {

template <class Event> class CbHandler;

/// A page of the browser that shows one item in detail.
class QV_EXPORT BrDetailView : public BrView {
public:
  ~BrDetailView() override;
  /// The module leaves this to the host.
  virtual void setFullScreenHandler(CbHandler<EvEvent>* handler);
  /// Adds the page with the information about the item.
  virtual void setDetailInfo() = 0;
  /// The module leaves this to the host.
  virtual RCShdPtr<VpPlayer> const getMiniPlayer() const;

  /// Loads the resource table from `resourceFile`. @param name names the view.
  /// @throws ExBase when the file is missing or has a fault.
  BrDetailView(LiString const& name, OsFilePath const& resourceFile);

  /// Adds a page under a title.
  void addDetailInfoPage(RCShdPtr<UiWidget> page, LiString const& title);
  /// Installs the pane that shows the item's icon.
  void setIconPane(RCShdPtr<UiPane> pane);

  /// @name Stand-in only
  /// @{
  /// A page with its title.
  struct Page {
    LiString title;
    RCShdPtr<UiWidget> widget;
  };
  LiString const& getName() const { return name_; }
  /// In the order in which they were added.
  Vector<Page> const& getPages() const { return pages_; }
  RCShdPtr<UiPane> const& getIconPane() const { return iconPane_; }
  /// @}

private:
  LiString name_;
  Vector<Page> pages_;
  RCShdPtr<UiPane> iconPane_;
};

} // namespace Qv
