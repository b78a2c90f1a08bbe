#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// A path, made of components.
class QV_EXPORT OsFilePath {
public:
  explicit OsFilePath(std::string const& path);
  OsFilePath(OsFilePath const& other);
  ~OsFilePath();

  /// Appends `other` as a further component.
  OsFilePath& operator+=(OsFilePath const& other);

  /// Valid while the path lives and does not change.
  char const* getChars() const;

private:
  std::string path_;
};

} // namespace Qv
