#include "hostBrRegistry.h"

#include "hostError.h"
#include "hostImage.h"
#include "hostJournal.h"
#include "hostPath.h"
#include "hostResources.h"

namespace Qv {

// The key of a standard thumbnail is the stem of its file.
LiString const BrRegistry::FolderThumbnail("folderThumbnail");
LiString const BrRegistry::ToolThumbnail("toolThumbnail");
LiString const BrRegistry::SuperToolThumbnail("superToolThumbnail");
LiString const BrRegistry::ViewThumbnail("viewThumbnail");

BrRegistry& BrRegistry::getInstance() { return HostBrRegistry::getInstance(); }

HostBrRegistry& HostBrRegistry::getInstance() {
  static HostBrRegistry registry;
  return registry;
}

BrServer* HostBrRegistry::find(std::string const& scheme) const {
  for (OPtr<BrServer> const& server : servers_)
    if (server->getSchemeName() == scheme)
      return server.get();
  return nullptr;
}

BrServer& HostBrRegistry::getServer(std::string const& scheme) const {
  if (BrServer* const server = find(scheme))
    return *server;
  std::string known;
  for (OPtr<BrServer> const& server : servers_)
    known += (known.empty() ? "\"" : ", \"") + server->getSchemeName() + "\"";
  throw HostError("unknown scheme \"" + scheme + "\" (known: " + (known.empty() ? "none" : known) +
                  ")");
}

RCShdPtr<WsManagedImage> HostBrRegistry::getIcon(std::string const& key) const {
  auto const found = icons_.find({key, ""});
  return found == icons_.end() ? RCShdPtr<WsManagedImage>() : found->second;
}

OPtr<BrView> HostBrRegistry::createDetailView(RCShdPtr<BrBrowsable> const& item) const {
  for (View const& entry : views_) {
    if (entry.role != BrView::DETAIL)
      continue;
    OPtr<BrView> clone = entry.view->clone();
    if (clone->understands(item))
      return clone;
  }
  return OPtr<BrView>();
}

void HostBrRegistry::clear() {
  thumbnails_.clear();
  icons_.clear();
  views_.clear();
  servers_.clear();
}

void HostBrRegistry::registerServer(OPtr<BrServer> server) {
  LiString const scheme = server->getSchemeName();
  HostJournal::getInstance().record("BrRegistry::registerServer", scheme);
  HostPath::requireComponent(scheme, "scheme name");
  if (find(scheme))
    throw HostError("duplicate scheme \"" + scheme + "\"");
  servers_.push_back(std::move(server));
}

void HostBrRegistry::registerView(OPtr<BrView> view, LiString role) {
  BrView const& prototype = *view;
  HostJournal::getInstance().record("BrRegistry::registerView", role, typeName(typeid(prototype)));
  views_.push_back({role, std::move(view)});
}

RCShdPtr<WsManagedImage> HostBrRegistry::getThumbnail(LiString const& key,
                                                      LiString const& variant) {
  HostJournal::getInstance().record("BrRegistry::getThumbnail", key, variant);
  auto found = thumbnails_.find(key);
  if (found == thumbnails_.end())
    found =
        thumbnails_.emplace(key, HostImage::read(HostResources::getInstance().locate(key + ".tif")))
            .first;
  return found->second;
}

void HostBrRegistry::registerIcon(LiString const& key, RCShdPtr<WsManagedImage> const& image,
                                  LiString const& variant) {
  HostJournal::getInstance().record("BrRegistry::registerIcon", key, variant);
  icons_[{key, variant}] = image;
}

} // namespace Qv
