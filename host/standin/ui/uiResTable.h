#pragma once

#include "osFilePath.h"
#include "uiWidget.h"

#include <map>
#include <optional>
#include <string>

namespace Qv {

/// The widgets that a resource file describes, by name.
class QV_EXPORT UiResTable {
public:
  enum Kind { Page, Label, TextEditor };

  /// The description of a widget.
  struct Resource {
    Kind kind;
    std::string text;
    /// In pixels; 0 leaves it to the layout.
    int width;
    int height;
    std::optional<CoRgbColorTyped<float>> background;
  };

  /// Reads a resource file from the resource directory.
  /// @throws ExBase if the file is missing or malformed.
  explicit UiResTable(OsFilePath const& file);

  /// Applies the size and the background described under the widget's name.
  /// @returns the whole description. @throws ExBase if there is none or it is of another kind.
  Resource const& apply(Kind kind, UiWidget& widget) const;

private:
  std::string file_;
  std::map<std::string, Resource> resources_;
};

} // namespace Qv
