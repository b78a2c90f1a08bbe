#pragma once

#include "qvExport.h"

#include <string>

namespace Qv {

/// The host's string; usable wherever a standard string is expected.
class QV_EXPORT LiString : public std::string {
public:
  LiString();
  LiString(char const* text);
  LiString(std::string const& text);
  LiString(LiString const& other);
  ~LiString();

  LiString& operator=(LiString const& other);
};

} // namespace Qv
