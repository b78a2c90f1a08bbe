#include "uiResTable.h"

#include "hostError.h"
#include "hostJournal.h"
#include "hostResources.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <fmt/format.h>
#include <pugixml.hpp>

namespace Qv {

namespace {

constexpr std::array<char const*, 3> kindNames = {"page", "label", "textEditor"};

int readNumber(pugi::xml_attribute const& attribute) {
  std::string_view const text = attribute.value();
  int number = 0;
  auto const [end, error] = std::from_chars(text.begin(), text.end(), number);
  if (error != std::errc() || end != text.end() || number < 0)
    throw HostError(fmt::format("the {} \"{}\" is not a pixel count", attribute.name(), text));
  return number;
}

CoRgbColorTyped<float> readColor(std::string_view text) {
  unsigned int rgb = 0;
  std::string_view const digits = text.substr(std::min<std::size_t>(text.size(), 1));
  auto const [end, error] = std::from_chars(digits.begin(), digits.end(), rgb, 16);
  if (text.size() != 7 || text[0] != '#' || error != std::errc() || end != digits.end())
    throw HostError(fmt::format("the background \"{}\" is not #rrggbb", text));
  auto const component = [&](int shift) { return float((rgb >> shift) & 0xFF) / 255; };
  return {component(16), component(8), component(0)};
}

UiResTable::Resource readResource(pugi::xml_node const& element) {
  std::string_view const kindName = element.name();
  auto const* const kind = std::find(kindNames.begin(), kindNames.end(), kindName);
  if (kind == kindNames.end())
    throw HostError(fmt::format("unknown kind <{}>", kindName));
  UiResTable::Resource resource = {UiResTable::Kind(kind - kindNames.begin()), "", 0, 0, {}};
  for (pugi::xml_attribute const attribute : element.attributes()) {
    std::string_view const key = attribute.name();
    if (key == "text" && resource.kind != UiResTable::Page)
      resource.text = attribute.value();
    else if (key == "width")
      resource.width = readNumber(attribute);
    else if (key == "height")
      resource.height = readNumber(attribute);
    else if (key == "background")
      resource.background = readColor(attribute.value());
    else if (key != "name")
      throw HostError(fmt::format("unknown attribute {}", key));
  }
  return resource;
}

} // namespace

UiResTable::UiResTable(OsFilePath const& file) : file_(file.getChars()) {
  HostJournal::getInstance().record("UiResTable::load", file_);
  pugi::xml_document document;
  auto const result = document.load_file(HostResources::getInstance().locate(file_).c_str());
  if (!result)
    throw HostError(fmt::format("cannot read the resource file \"{}\": {} (byte {})", file_,
                                result.description(), result.offset));
  for (pugi::xml_node const element : document.document_element().children()) {
    std::string const name = element.attribute("name").value();
    try {
      if (!resources_.emplace(name, readResource(element)).second)
        throw HostError("duplicate name");
    } catch (HostError const& error) {
      throw HostError(
          fmt::format("resource file \"{}\": resource \"{}\": {}", file_, name, error.what()));
    }
  }
}

UiResTable::Resource const& UiResTable::apply(Kind kind, UiWidget& widget) const {
  std::string const& name = widget.getName();
  auto const found = resources_.find(name);
  if (found == resources_.end())
    throw HostError(
        fmt::format("resource file \"{}\" has no {} \"{}\"", file_, kindNames[kind], name));
  if (found->second.kind != kind)
    throw HostError(fmt::format("resource file \"{}\" describes \"{}\" as a {}, not as a {}", file_,
                                name, kindNames[found->second.kind], kindNames[kind]));
  Resource const& resource = found->second;
  widget.setLook(resource.width, resource.height, resource.background);
  return resource;
}

} // namespace Qv
