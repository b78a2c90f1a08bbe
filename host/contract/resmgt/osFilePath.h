#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// A path of components.
class QV_EXPORT OsFilePath {
public:
  explicit OsFilePath(std::string const& path);
  OsFilePath(OsFilePath const& other);
  ~OsFilePath();

  /// Appends `other` as a further component.
  OsFilePath& operator+=(OsFilePath const& other);

  /// Valid until the path changes or is destroyed.
  char const* getChars() const;

private:
  std::string path_;
};

} // namespace Qv
