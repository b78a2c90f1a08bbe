#pragma once

#include "brBrowsable.h"
#include "oPtr.h"
#include "uiResHolder.h"

namespace Qv {

class EvEvent;

/// A view of the asset browser.
class QV_EXPORT BrView : public UiResHolder {
public:
  /// The role of detail views.
  static LiString DETAIL;

  ~BrView() override;
  /// A new view of the same class, owned by the caller.
  virtual OPtrRet<BrView> clone() const = 0;
  /// Whether the view can show the item.
  virtual bool understands(RCShdPtr<BrBrowsable> const& item) = 0;
  /// Shows the item, after buildUi(). @param selection the browser's selection.
  virtual void setContent(RCShdPtr<BrBrowsable> const& item,
                          RCShdPtr<SnSelection> const& selection) = 0;
  /// Called when the host closes the view.
  virtual void externalClose() = 0;
  /// Builds the widgets, once. @param selection the browser's selection.
  virtual void buildUi(RCShdPtr<SnSelection> const& selection) = 0;
  /// @{
  /// Not overridden by the module.
  virtual bool setFullScreen();
  virtual void setFullScreenFocus();
  /// @}

protected:
  /// @{
  /// Not overridden by the module.
  virtual void map();
  virtual void unMap();
  /// @}

private:
  virtual void mapCb(EvEvent& event);
  virtual void unMapCb(EvEvent& event);
};

} // namespace Qv
