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

/// Reads a resource file; every error names the file and the resource.
class ResourceReader {
public:
  explicit ResourceReader(std::string file) : file_(std::move(file)) {}

  std::map<std::string, UiResTable::Resource> read(std::filesystem::path const& path) {
    pugi::xml_document document;
    pugi::xml_parse_result const result = document.load_file(path.c_str());
    if (result.status == pugi::status_file_not_found || result.status == pugi::status_io_error)
      fail(fmt::format("cannot be read in \"{}\"", path.parent_path().string()));
    if (!result)
      fail(fmt::format("not well-formed XML at byte {}: {}", result.offset, result.description()));
    pugi::xml_node const root = document.document_element();
    if (std::string_view(root.name()) != "resources")
      fail(fmt::format("the root is <{}>, not <resources>", root.name()));
    if (root.next_sibling() || root.first_attribute())
      fail("unexpected content beside <resources>");

    std::map<std::string, UiResTable::Resource> resources;
    for (pugi::xml_node const element : root.children()) {
      if (element.type() != pugi::node_element)
        fail("text outside of a resource");
      std::string const name = element.attribute("name").value();
      if (name.empty())
        fail(fmt::format("a <{}> has no name", element.name()));
      if (!resources.emplace(name, readResource(element, name)).second)
        fail(fmt::format("duplicate resource \"{}\"", name));
    }
    return resources;
  }

private:
  [[noreturn]] void fail(std::string const& reason) const {
    throw HostError(fmt::format("resource file \"{}\": {}", file_, reason));
  }

  UiResTable::Resource readResource(pugi::xml_node const& element, std::string const& name) const {
    auto const* const kind =
        std::find(std::begin(kindNames), std::end(kindNames), std::string_view(element.name()));
    if (kind == std::end(kindNames))
      fail(fmt::format("\"{}\" is of the unknown kind <{}>", name, element.name()));
    UiResTable::Resource resource = {UiResTable::Kind(kind - std::begin(kindNames)), "", 0, 0,
                                     std::nullopt};
    if (element.first_child())
      fail(fmt::format("\"{}\" is not empty", name));
    for (pugi::xml_attribute const attribute : element.attributes()) {
      std::string_view const key = attribute.name();
      std::string_view const value = attribute.value();
      if (element.attribute(attribute.name()) != attribute)
        fail(fmt::format("\"{}\" has a duplicate attribute {}", name, key));
      if (key == "text" && resource.kind != UiResTable::Page)
        resource.text = value;
      else if (key == "width")
        resource.width = readNumber(name, key, value);
      else if (key == "height")
        resource.height = readNumber(name, key, value);
      else if (key == "background")
        resource.background = readColor(name, value);
      else if (key != "name")
        fail(fmt::format("\"{}\" has an unknown attribute {}", name, key));
    }
    return resource;
  }

  int readNumber(std::string const& name, std::string_view key, std::string_view text) const {
    int number = 0;
    auto const [end, error] = std::from_chars(text.begin(), text.end(), number);
    if (error != std::errc() || end != text.end() || number < 0)
      fail(fmt::format("\"{}\" has the {} \"{}\", which is not a pixel count", name, key, text));
    return number;
  }

  CoRgbColorTyped<float> readColor(std::string const& name, std::string_view text) const {
    unsigned int rgb = 0;
    std::string_view const digits = text.substr(std::min<std::size_t>(text.size(), 1));
    auto const [end, error] = std::from_chars(digits.begin(), digits.end(), rgb, 16);
    if (text.size() != 7 || text[0] != '#' || error != std::errc() || end != digits.end())
      fail(fmt::format("\"{}\" has the background \"{}\", which is not #rrggbb", name, text));
    auto const component = [&](int shift) { return float((rgb >> shift) & 0xFF) / 255; };
    return {component(16), component(8), component(0)};
  }

  std::string file_;
};

} // namespace

UiResTable::UiResTable(OsFilePath const& file) : file_(file.getChars()) {
  HostJournal::getInstance().record("UiResTable::load", file_);
  resources_ = ResourceReader(file_).read(HostResources::getInstance().locate(file_));
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
