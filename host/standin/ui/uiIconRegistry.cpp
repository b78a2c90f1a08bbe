#include "uiIconRegistry.h"

#include "hostImage.h"
#include "hostJournal.h"
#include "hostResources.h"

namespace Qv {

UiIconRegistry& UiIconRegistry::getInstance() {
  static UiIconRegistry registry;
  return registry;
}

RCShdPtr<WsManagedImage> UiIconRegistry::loadImage(OsFilePath const& file) {
  RCShdPtr<HostImage> const image =
      HostImage::read(HostResources::getInstance().locate(file.getChars()));
  HostJournal::getInstance().record("UiIconRegistry::loadImage", file.getChars(),
                                    image ? "" : "no such image");
  return image;
}

} // namespace Qv
