#pragma once

#include "brServer.h"
#include "brView.h"

namespace Qv {

/// The registry of the asset browser.
class QV_EXPORT BrRegistry {
public:
  /// @{
  /// The key of a standard thumbnail of the host.
  static LiString const FolderThumbnail;
  static LiString const ToolThumbnail;
  static LiString const SuperToolThumbnail;
  static LiString const ViewThumbnail;
  /// @}

  static BrRegistry& getInstance();

  /// Offers the scheme named by the server.
  virtual void registerServer(OPtr<BrServer> server) = 0;
  /// Keeps a prototype, which the browser clones, under a role.
  virtual void registerView(OPtr<BrView> view, LiString role) = 0;
  /// The image kept under `key`; null when there is none. @param variant the module passes "".
  virtual RCShdPtr<WsManagedImage> getThumbnail(LiString const& key, LiString const& variant) = 0;
  /// Keeps the image, which may be null, under `key`: a browsable type string or a name.
  /// @param variant the module passes "".
  virtual void registerIcon(LiString const& key, RCShdPtr<WsManagedImage> const& image,
                            LiString const& variant) = 0;

protected:
  ~BrRegistry() = default;
};

} // namespace Qv
