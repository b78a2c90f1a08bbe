#pragma once

#include "items.h"

#include <QIcon>
#include <QImage>
#include <map>

namespace Qv {

/// The pixels of an image of the host; null when there is none.
QImage toImage(RCShdPtr<WsManagedImage> const& image);

/// The icons that are registered for the types of items.
class Icons {
public:
  /// The icon of the item's type or, for the root of a scheme, of the scheme. Where a pixel is
  /// smaller than usual, the item's thumbnail gives what the icon is too small for.
  QIcon find(BrBrowsable& item, double pixelRatio);

private:
  using Key = std::pair<WsManagedImage*, WsManagedImage*>;
  struct Entry {
    RCShdPtr<WsManagedImage> icon;
    RCShdPtr<WsManagedImage> thumbnail;
    QIcon drawn;
  };
  std::map<Key, Entry> entries_;
};

} // namespace Qv
