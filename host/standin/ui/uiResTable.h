#pragma once

#include "osFilePath.h"
#include "uiWidget.h"

#include <map>
#include <optional>
#include <string>

namespace Qv {

/// What widgets are made from, by name, as a resource file describes it.
class QV_EXPORT UiResTable {
public:
  /// What is made from a resource.
  enum Kind { Page, Label, TextEditor };

  /// What a widget is made from.
  struct Resource {
    Kind kind;
    std::string text;
    /// In pixels; 0 leaves a side to the layout.
    int width;
    int height;
    std::optional<CoRgbColorTyped<float>> background;
  };

  /// Reads a resource file from the resource directory.
  /// @throws ExBase when there is no such file or it has a fault.
  explicit UiResTable(OsFilePath const& file);

  /// Gives a widget the size and the background that the file describes under its name.
  /// @returns the whole description. @throws ExBase when there is none or it is of another kind.
  Resource const& apply(Kind kind, UiWidget& widget) const;

private:
  std::string file_;
  std::map<std::string, Resource> resources_;
};

} // namespace Qv
