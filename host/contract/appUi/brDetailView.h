#pragma once

#include "brView.h"
#include "osFilePath.h"
#include "uiPane.h"

namespace Qv {

template <class Event> class CbHandler;

/// A browser page that shows one item in detail.
class QV_EXPORT BrDetailView : public BrView {
public:
  ~BrDetailView() override;
  /// Not overridden by the module.
  virtual void setFullScreenHandler(CbHandler<EvEvent>* handler);
  /// Adds the page with the item's information.
  virtual void setDetailInfo() = 0;
  /// Not overridden by the module.
  virtual RCShdPtr<VpPlayer> const getMiniPlayer() const;

  /// Loads the resource table from `resourceFile`.
  /// @throws ExBase if the file is missing or malformed.
  BrDetailView(LiString const& name, OsFilePath const& resourceFile);

  void addDetailInfoPage(RCShdPtr<UiWidget> page, LiString const& title);
  /// Sets the pane that shows the item's icon.
  void setIconPane(RCShdPtr<UiPane> pane);

  /// @name Stand-in only
  /// @{

  /// A page and its title.
  struct Page {
    LiString title;
    RCShdPtr<UiWidget> widget;
  };
  LiString const& getName() const { return name_; }
  /// In the order added.
  Vector<Page> const& getPages() const { return pages_; }
  RCShdPtr<UiPane> const& getIconPane() const { return iconPane_; }
  /// @}

private:
  LiString name_;
  Vector<Page> pages_;
  RCShdPtr<UiPane> iconPane_;
};

} // namespace Qv
