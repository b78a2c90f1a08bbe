#pragma once

#include "brServer.h"
#include "brView.h"

namespace Qv {

/// The asset browser's registry.
class QV_EXPORT BrRegistry {
public:
  /// @{
  /// Keys of the host's standard thumbnails.
  static LiString const FolderThumbnail;
  static LiString const ToolThumbnail;
  static LiString const SuperToolThumbnail;
  static LiString const ViewThumbnail;
  /// @}

  static BrRegistry& getInstance();

  /// Adds a scheme, named by its server.
  virtual void registerServer(OPtr<BrServer> server) = 0;
  /// Adds a prototype, which the browser clones, under a role.
  virtual void registerView(OPtr<BrView> view, LiString role) = 0;
  /// The image under `key`, or null. @param variant the module passes "".
  virtual RCShdPtr<WsManagedImage> getThumbnail(LiString const& key, LiString const& variant) = 0;
  /// Adds an image, which may be null, under a browsable type string or another name.
  /// @param variant the module passes "".
  virtual void registerIcon(LiString const& key, RCShdPtr<WsManagedImage> const& image,
                            LiString const& variant) = 0;

protected:
  ~BrRegistry() = default;
};

} // namespace Qv
