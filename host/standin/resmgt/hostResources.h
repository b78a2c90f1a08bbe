#pragma once

#include "qvExport.h"

#include <filesystem>

namespace Qv {

/// The directory of the files that packages refer to by bare name.
class QV_EXPORT HostResources {
public:
  static HostResources& getInstance();

  /// Call before initialising packages; the default is the current directory.
  void setDirectory(std::filesystem::path const& directory) { directory_ = directory; }
  /// The file need not exist.
  std::filesystem::path locate(std::string const& fileName) const { return directory_ / fileName; }

private:
  std::filesystem::path directory_;
};

} // namespace Qv
