#include "images.h"

#include "hostBrRegistry.h"
#include "hostImage.h"

#include <QPixmap>
#include <cctype>

namespace Qv {

QImage toImage(RCShdPtr<WsManagedImage> const& image) {
  auto const held = image.dynamicCast<HostImage>();
  if (!held)
    return QImage();
  return QImage(reinterpret_cast<uchar const*>(held->getPixels().data()), int(held->getWidth()),
                int(held->getHeight()), QImage::Format_RGBA8888_Premultiplied)
      .copy();
}

QIcon Icons::find(BrBrowsable& item, double pixelRatio) {
  HostBrRegistry const& registry = HostBrRegistry::getInstance();
  RCShdPtr<WsManagedImage> icon;
  RCShdPtr<WsManagedImage> thumbnail;
  if (std::string scheme = item.getSchemeName(); item.getPath().empty() && !scheme.empty()) {
    // Under which name packages register the icon of a scheme.
    scheme[0] = char(std::toupper(static_cast<unsigned char>(scheme[0])));
    icon = registry.getIcon(scheme + "SchemeIcon");
  }
  if (!icon) {
    icon = registry.getIcon(getAttribute(item, BrBrowsable::BROWSABLE_TYPE));
    if (pixelRatio > 1)
      thumbnail = item.getImage(int(BrBrowsable::THUMBNAIL), {128, 128});
  }

  auto const [entry, added] =
      entries_.try_emplace({icon.get(), thumbnail.get()}, Entry{icon, thumbnail, QIcon()});
  if (added)
    for (RCShdPtr<WsManagedImage> const& image : {icon, thumbnail})
      if (image)
        entry->second.drawn.addPixmap(QPixmap::fromImage(toImage(image)));
  return entry->second.drawn;
}

} // namespace Qv
