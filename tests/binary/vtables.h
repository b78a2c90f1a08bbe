#pragma once

#include <string>
#include <typeinfo>
#include <vector>

namespace Qv {

/// The slots of a class's virtual table in the loaded libraries, in order: the name of the function
/// in each, without namespace and ABI tags; "pure" for a pure virtual one; "~" for a destructor,
/// which takes two slots. @throws std::runtime_error when no library exports the table.
std::vector<std::string> slots(std::type_info const& type);

/// A demangled symbol as the tests write it.
std::string readable(char const* symbol);

} // namespace Qv
