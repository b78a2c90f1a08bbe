#pragma once

#include "iterator.h"
#include "piToolPredicates.h"

namespace Qv {

/// The host's registry of plug-in tools. The host has further slots before and between these,
/// which the module does not call.
class QV_EXPORT PiToolRegistry {
public:
  static PiToolRegistry& getInstance();

  /// Null if no tool has that name. @param flag the module passes false.
  virtual RCShdPtr<PiTool const> findTool(std::string const& name, bool flag) = 0;
  /// The tool that a drag of `name` carries, or null.
  virtual RCShdPtr<PiTool const> getTool(std::string const& name) = 0;
  /// The tools for which `predicate` holds, in display order; none is null.
  /// @param flag the module passes true.
  virtual Iterator<RCShdPtr<PiTool const>>
  getTools(PrdPredicate<RCShdPtr<PiTool const>> const& predicate, bool flag) = 0;
  /// The category names, in display order.
  virtual Iterator<std::string> getCategories() = 0;
  /// Whether `name` is a super tool; any name is allowed.
  virtual bool isSuperTool(std::string const& name) = 0;

protected:
  ~PiToolRegistry() = default;
};

} // namespace Qv
