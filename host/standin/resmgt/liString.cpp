#include "liString.h"

namespace Qv {

LiString::LiString() = default;

LiString::LiString(char const* text) : std::string(text) {}

LiString::LiString(std::string const& text) : std::string(text) {}

LiString::LiString(LiString const& other) = default;

LiString::~LiString() = default;

LiString& LiString::operator=(LiString const& other) = default;

} // namespace Qv
