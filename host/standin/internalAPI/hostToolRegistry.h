#pragma once

#include "containers.h"
#include "hostTool.h"
#include "piToolRegistry.h"

#include <unordered_map>
#include <unordered_set>

namespace Qv {

/// Indexes the tools by name and by category, so that no look-up scans all of them.
class QV_EXPORT HostToolRegistry final : public PiToolRegistry {
public:
  static HostToolRegistry& getInstance();

  /// Appends a category; duplicates are allowed.
  /// @throws HostError if the name is not a single path component.
  void addCategory(std::string const& name);
  /// Appends a tool. Of several tools of one name, look-ups find the first.
  /// @throws HostError if the name or the category is not a single path component.
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
  /// Names for which look-ups find a super tool.
  std::unordered_set<std::string> superTools_;
};

} // namespace Qv
