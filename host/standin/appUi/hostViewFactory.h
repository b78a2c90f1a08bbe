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

  /// Adds a view after the existing ones.
  /// @throws HostError when the name is not a single path component or exists already.
  void addView(View const& view);
  void clear();

  Vector<std::string> const& getNames() const { return names_; }
  /// The label of the view of that name; null when there is no such view.
  std::string const* findLabel(std::string const& name) const;

private:
  Vector<std::string> names_;
  std::unordered_map<std::string, std::string> labels_;
};

} // namespace Qv
