#pragma once

#include "brRegistry.h"

#include <map>

namespace Qv {

/// Holds the schemes, views and icons, and loads the standard thumbnails.
class QV_EXPORT HostBrRegistry final : public BrRegistry {
public:
  /// A view and its role.
  struct View {
    LiString role;
    OPtr<BrView> view;
  };
  /// By key and variant.
  using Images = std::map<std::pair<std::string, std::string>, RCShdPtr<WsManagedImage>>;

  static HostBrRegistry& getInstance();

  /// In order of registration.
  Vector<OPtr<BrServer>> const& getServers() const { return servers_; }
  /// @throws HostError if the scheme is unknown.
  BrServer& getServer(std::string const& scheme) const;
  /// In order of registration.
  Vector<View> const& getViews() const { return views_; }
  Images const& getIcons() const { return icons_; }
  /// The icon under `key`, or null.
  RCShdPtr<WsManagedImage> getIcon(std::string const& key) const;
  /// A new clone of the detail view that understands the item; null if there is none.
  OPtr<BrView> createDetailView(RCShdPtr<BrBrowsable> const& item) const;
  void clear();

  void registerServer(OPtr<BrServer> server) override;
  void registerView(OPtr<BrView> view, LiString role) override;
  RCShdPtr<WsManagedImage> getThumbnail(LiString const& key, LiString const& variant) override;
  void registerIcon(LiString const& key, RCShdPtr<WsManagedImage> const& image,
                    LiString const& variant) override;

private:
  BrServer* find(std::string const& scheme) const;

  Vector<OPtr<BrServer>> servers_;
  Vector<View> views_;
  Images icons_;
  std::map<std::string, RCShdPtr<WsManagedImage>> thumbnails_;
};

} // namespace Qv
