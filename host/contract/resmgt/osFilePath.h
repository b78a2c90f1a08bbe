#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// A path, kept as it was given. Components are separated by "/".
class QV_EXPORT OsFilePath {
public:
  explicit OsFilePath(std::string const& path);
  OsFilePath(OsFilePath const& other);
  ~OsFilePath();

  OsFilePath& operator=(OsFilePath const& other);
  /// Appends `other` as a further component. Exactly one separator stands between two non-empty
  /// sides, none beside an empty one.
  OsFilePath& operator+=(OsFilePath const& other);

  /// Valid while the path lives and does not change.
  char const* getChars() const;

private:
  std::string path_;
};

} // namespace Qv
