#pragma once

#include "containers.h"
#include "hostTool.h"
#include "piToolRegistry.h"

#include <cstdint>
#include <unordered_map>
#include <unordered_set>
#include <utility>
#include <vector>

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
  void addTool(RCShdPtr<HostTool const> const& tool);
  void addTool(HostToolInfo info) {
    addTool(RCShdPtr<HostTool const>(new HostTool(std::move(info))));
  }
  void clear();

  RCShdPtr<PiTool const> findTool(std::string const& name, bool flag) override;
  RCShdPtr<PiTool const> getTool(std::string const& name) override;
  Iterator<RCShdPtr<PiTool const>> getTools(PrdPredicate<RCShdPtr<PiTool const>> const& predicate,
                                            bool flag) override;
  Iterator<std::string> getCategories() override;
  bool isSuperTool(std::string const& name) override;

private:
  using Tools = Vector<RCShdPtr<PiTool const>>;

  struct Slot {
    /// Of the name.
    std::uint32_t hash;
    /// Position in tools_, from 1; 0 in an unused slot.
    std::uint32_t tool;
  };

  /// The slot of a name, or the unused one that it would get. Null is a name without a slot.
  Slot& slotOf(std::uint32_t hash, std::string const* name);
  RCShdPtr<PiTool const> find(std::string const& name);

  Vector<std::string> categories_;
  Tools tools_;
  std::unordered_map<std::string, Tools> toolsByCategory_;
  /// The first tool of each name: an open hash table, at most half full. With a million names, a
  /// node-based map takes four times as long.
  std::vector<Slot> slots_ = std::vector<Slot>(16);
  std::size_t names_ = 0;
  /// Names for which look-ups find a super tool.
  std::unordered_set<std::string> superTools_;
};

} // namespace Qv
