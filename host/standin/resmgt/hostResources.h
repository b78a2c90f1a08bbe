#pragma once

#include "qvExport.h"

#include <filesystem>

namespace Qv {

/// Where the host looks for the files that packages name without a directory.
class QV_EXPORT HostResources {
public:
  static HostResources& getInstance();

  /// To be called before a package is initialised; until then, it is the current directory.
  void setDirectory(std::filesystem::path const& directory) { directory_ = directory; }
  /// The path of the file of that name, whether there is one or not.
  std::filesystem::path locate(std::string const& fileName) const { return directory_ / fileName; }

private:
  std::filesystem::path directory_;
};

} // namespace Qv
