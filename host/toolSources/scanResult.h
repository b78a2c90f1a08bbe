#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

namespace Qv {

/// The categories of plug-ins, in the order in which they are listed.
inline constexpr std::array<char const*, 4> PluginCategories = {"Source", "Filter", "Mixer2",
                                                                "Mixer3"};

/// What reading one plug-in file came to.
struct ScanResult {
  /// Why there is no tool; empty when there is one.
  std::string failure;
  /// Of the tool; one of PluginCategories.
  std::string category;
  /// Name, explanation, and author with version, as the plug-in gives them.
  std::array<std::string, 3> infoTexts;
  /// A line for each parameter.
  std::string tooltip;

  /// Appends the form on the wire and in the cache: texts that each end in a zero byte.
  void appendTo(std::string& bytes) const;
  /// Removes a result from the front of bytes that anybody may have written.
  /// @returns nothing when they start with anything else.
  static std::optional<ScanResult> takeFrom(std::string_view& bytes);
};

/// Appends a text and a zero byte.
void appendText(std::string& bytes, std::string_view text);
/// Removes a text and its zero byte from the front. @returns nothing when there is none.
std::optional<std::string_view> takeText(std::string_view& bytes);

} // namespace Qv
