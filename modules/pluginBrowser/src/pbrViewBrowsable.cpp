#include "pbrViewBrowsable.h"

#include "assertions.h"
#include "brRegistry.h"
#include "omUtil.h"
#include "pbrViewChildrenQuery.h"
#include "piBrowserSchemes.h"
#include "ttServer.h"
#include "uiViewFactory.h"

namespace Qv {

PbrViewBrowsable::PbrViewBrowsable(BrServer* server, LiString const& path)
    : BrBrowsable(server), path_(path) {
  Iterator<std::string> const components = OmUtil::parsePath(OsFilePath(path));
  switch (components.getCardinality()) {
  case 0:
    type_ = FOLDER;
    viewName_ = "Views";
    break;
  case 1:
    type_ = VIEW;
    viewName_ = *components;
    break;
  default:
    Assertions::throwProgramAborted(R"(modules\pluginBrowser\src\pbrViewBrowsable)", 113, nullptr);
  }
}

PbrViewBrowsable::PbrViewBrowsable() : type_(VIEW) {}

PbrViewBrowsable::~PbrViewBrowsable() = default;

RCShdPtr<PbrViewBrowsable> PbrViewBrowsable::create(BrServer* server, LiString const& path) {
  return RCShdPtr<PbrViewBrowsable>(new PbrViewBrowsable(server, path));
}

RCShdPtr<PbrViewBrowsable> PbrViewBrowsable::createBrowsableType() {
  return RCShdPtr<PbrViewBrowsable>(new PbrViewBrowsable);
}

PbrViewBrowsable::Type PbrViewBrowsable::getViewBrowsableType() const { return type_; }

LiString const& PbrViewBrowsable::getViewName() const { return viewName_; }

LiString const& PbrViewBrowsable::getSchemeName() const {
  return PiBrowserSchemes::PluginViewScheme;
}

LiString PbrViewBrowsable::getPath() const { return path_; }

void PbrViewBrowsable::set(int /*attributeId*/, long long /*value*/) {}

void PbrViewBrowsable::set(int /*attributeId*/, LiString const& /*value*/) {}

void PbrViewBrowsable::get(int attributeId, long long* value) {
  BrBrowsable::get(attributeId, value);
}

void PbrViewBrowsable::get(int attributeId, LiString* value) {
  auto const id = static_cast<unsigned int>(attributeId);
  if (id == BROWSABLE_TYPE)
    *value = type_ == VIEW ? ViewsId : FolderId;
  else if (id == NAME)
    *value = type_ == VIEW ? UiViewFactory::getViewLabel(viewName_) : viewName_;
  else if (id == ROOT_NAME)
    *value = "Plugin Registry";
  else if (id == LMTIME || id == CREATION_TIME || id == OWNER)
    *value = NotAvailableString;
  else
    BrBrowsable::get(attributeId, value);
}

RCShdPtr<WsManagedImage> PbrViewBrowsable::getImage(int imageId, GeVector2<int> const& /*size*/) {
  if (static_cast<unsigned int>(imageId) != THUMBNAIL)
    return RCShdPtr<WsManagedImage>();
  return BrRegistry::getInstance().getThumbnail(
      type_ == FOLDER ? BrRegistry::FolderThumbnail : BrRegistry::ViewThumbnail, LiString(""));
}

std::string PbrViewBrowsable::getTooltip(int /*attributeId*/) const {
  return TtServer::getInstance().lookupTooltip(viewName_);
}

bool PbrViewBrowsable::isAContainer() const { return type_ == FOLDER; }

bool PbrViewBrowsable::hasChildren(ChildSearchType type, ChildSearchOption /*option*/) const {
  // Views are not containers.
  return type != 1 && isAContainer();
}

RCShdPtr<BrChildrenQuery> PbrViewBrowsable::getChildren(FindFilter filter) {
  return RCShdPtr<BrChildrenQuery>(new PbrViewChildrenQuery(this, filter));
}

bool PbrViewBrowsable::isEqualTo(BrBrowsable const& other) const {
  auto const* const view = dynamic_cast<PbrViewBrowsable const*>(&other);
  return view && view->viewName_ == viewName_;
}

bool PbrViewBrowsable::isPicklistable() const { return !isAContainer(); }

} // namespace Qv
