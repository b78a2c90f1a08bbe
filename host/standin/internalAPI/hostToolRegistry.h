#pragma once

#include "containers.h"
#include "hostTool.h"
#include "piToolRegistry.h"

#include <unordered_map>
#include <unordered_set>

namespace Qv {

/// Keeps the tools, by name and by category, so that no question needs a walk over all of them.
class QV_EXPORT HostToolRegistry final : public PiToolRegistry {
public:
  static HostToolRegistry& getInstance();

  /// Adds a category after the existing ones; the same name may be added again.
  /// @throws HostError when the name is not a single path component.
  void addCategory(std::string const& name);
  /// Adds a tool after the existing ones. Of tools of the same name, look-ups find the first.
  /// @throws HostError when the name or the category is not a single path component.
  void addTool(HostToolInfo const& info);
  void clear();

  RCShdPtr<PiTool const> findTool(std::string const& name, bool flag) override;
  RCShdPtr<PiTool const> getTool(std::string const& name) override;
  Iterator<RCShdPtr<PiTool const>> getTools(PrdPredicate<RCShdPtr<PiTool const>> const& predicate,
                                            bool flag) override;
  Iterator<std::string> getCategories() override;
  bool isSuperTool(std::string const& name) override;

private:
  using Tools = Vector<RCShdPtr<PiTool const>>;

  RCShdPtr<PiTool const> find(std::string const& name) const;

  Vector<std::string> categories_;
  Tools tools_;
  std::unordered_map<std::string, Tools> toolsByCategory_;
  std::unordered_map<std::string, RCShdPtr<PiTool const>> toolsByName_;
  /// The names under which look-ups find a super tool.
  std::unordered_set<std::string> superTools_;
};

} // namespace Qv
