#pragma once

#include "iterator.h"
#include "piToolPredicates.h"

namespace Qv {

/// The host's registry of plug-in tools. The host has further operations before and between
/// these, which the module does not call.
class QV_EXPORT PiToolRegistry {
public:
  static PiToolRegistry& getInstance();

  /// Null when no tool has that name. @param flag the module passes false.
  virtual RCShdPtr<PiTool const> findTool(std::string const& name, bool flag) = 0;
  /// The tool that a drag carries under that name; null when there is none.
  virtual RCShdPtr<PiTool const> getTool(std::string const& name) = 0;
  /// Every tool for which `predicate` holds, in the order in which they are shown; none is null.
  /// @param flag the module passes true.
  virtual Iterator<RCShdPtr<PiTool const>>
  getTools(PrdPredicate<RCShdPtr<PiTool const>> const& predicate, bool flag) = 0;
  /// The names of the categories, in the order in which they are shown.
  virtual Iterator<std::string> getCategories() = 0;
  /// Whether it is the name of a super tool; any name may be asked about.
  virtual bool isSuperTool(std::string const& name) = 0;

protected:
  ~PiToolRegistry() = default;
};

} // namespace Qv
