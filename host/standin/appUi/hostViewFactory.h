#pragma once

#include "containers.h"
#include "uiViewFactory.h"

#include <string>
#include <unordered_map>

namespace Qv {

/// The views behind UiViewFactory.
class QV_EXPORT HostViewFactory {
public:
  /// A view of the application.
  struct View {
    std::string name;
    std::string label;
  };

  static HostViewFactory& getInstance();

  /// @throws HostError if the name is a duplicate or not a single path component.
  void addView(View const& view);
  void clear();

  Vector<std::string> const& getNames() const { return names_; }
  /// Null if there is no such view.
  std::string const* findLabel(std::string const& name) const;

private:
  Vector<std::string> names_;
  std::unordered_map<std::string, std::string> labels_;
};

} // namespace Qv
