#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace Qv {

/// The categories of plug-ins, in the order in which they are listed.
inline constexpr std::array<char const*, 4> PluginCategories = {"Source", "Filter", "Mixer2",
                                                                "Mixer3"};

/// More than any honest plug-in has.
inline constexpr int MostParameters = 1000;

/// A parameter of a plug-in, as the plug-in describes it.
struct PluginParameter {
  std::string name;
  /// "bool", "double", "color", "position", "string" or "unknown type".
  std::string type;
  std::string explanation;
};

/// The result of reading one plug-in file.
struct ScanResult {
  /// Why there is no tool; empty when there is one.
  std::string failure = {};
  /// Whether another attempt may succeed, as after a time-out.
  bool passing = false;
  /// One of PluginCategories, when there is a tool.
  std::string category = {};
  std::string name = {};
  std::string explanation = {};
  std::string author = {};
  std::string version = {};
  std::vector<PluginParameter> parameters = {};

  /// Appends the form on the wire and in the cache: texts that each end in a zero byte.
  void appendTo(std::string& bytes) const;
  /// Removes a result from the front of untrusted bytes.
  /// @returns nothing when they start with anything else.
  static std::optional<ScanResult> takeFrom(std::string_view& bytes);
};

/// Appends a text and a zero byte.
void appendText(std::string& bytes, std::string_view text);
/// Removes a text and its zero byte from the front. @returns nothing when there is none.
std::optional<std::string_view> takeText(std::string_view& bytes);

} // namespace Qv
