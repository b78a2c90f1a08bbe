#pragma once

#include "brBrowsable.h"
#include "oPtr.h"
#include "uiResHolder.h"

namespace Qv {

class EvEvent;

/// A view of the asset browser.
class QV_EXPORT BrView : public UiResHolder {
public:
  /// The role under which a detail view is registered.
  static LiString DETAIL;

  ~BrView() override;
  virtual OPtrRet<BrView> clone() const = 0;
  /// Whether the view can show the item.
  virtual bool understands(RCShdPtr<BrBrowsable> const& item) = 0;
  virtual void setContent(RCShdPtr<BrBrowsable> const& item,
                          RCShdPtr<SnSelection> const& selection) = 0;
  virtual void externalClose() = 0;
  virtual void buildUi(RCShdPtr<SnSelection> const& selection) = 0;
  virtual bool setFullScreen();
  virtual void setFullScreenFocus();

protected:
  virtual void map();
  virtual void unMap();

private:
  virtual void mapCb(EvEvent& event);
  virtual void unMapCb(EvEvent& event);
};

} // namespace Qv
