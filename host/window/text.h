#pragma once

#include <QString>
#include <string_view>

namespace Qv {

/// Where a text is shown.
enum class Place {
  /// In one line of plain text.
  Line,
  /// In a box of plain text.
  Box,
  /// In a tooltip, where "<br>" starts a new line.
  Tooltip,
  /// In a menu or on a tab, where "&" marks a letter.
  Label
};

/// A text of a module or a plug-in as a widget may be given it. All of them pass here: markup is
/// not interpreted, nothing passes for another text, and none is longer than Qt lays out at once.
QString shown(std::string_view text, Place place = Place::Line);

} // namespace Qv
