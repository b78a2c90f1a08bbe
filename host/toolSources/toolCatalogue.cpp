#include "toolCatalogue.h"

#include "hostError.h"
#include "hostPath.h"
#include "readFile.h"

#include <algorithm>
#include <fmt/format.h>
#include <initializer_list>
#include <nlohmann/json.hpp>
#include <string_view>
#include <unordered_set>
#include <utility>

namespace Qv {

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::json;

/// What is wrong with the catalogue, and where.
struct Fault {
  std::string place;
  std::string reason;
};

/// Line and column, both from 1, of the character that the byte at `offset` belongs to.
std::string lineAndColumn(std::string const& text, std::size_t offset) {
  auto const end = text.begin() + std::ptrdiff_t(std::min(offset, text.size()));
  auto const line = std::find(std::reverse_iterator(end), text.rend(), '\n').base();
  auto const startsCharacter = [](char c) { return (c & 0xC0) != 0x80; };
  return fmt::format("line {}, column {}", 1 + std::count(text.begin(), line, '\n'),
                     1 + std::count_if(line, end, startsCharacter));
}

/// Builds the value of a JSON text, in which no object may repeat a key. The library's own builder
/// keeps the last of them; with a callback that could refuse, it needs quadratic time.
class Builder final : public nlohmann::json_sax<Json> {
public:
  static Json build(std::string const& text) {
    Builder builder(text);
    Json::sax_parse(text, static_cast<nlohmann::json_sax<Json>*>(&builder));
    return std::move(builder.root_);
  }

private:
  /// An object or array that is not closed yet.
  struct Level {
    Json* value;
    /// Of the member that comes next; unused in an array.
    std::string key;
  };

  explicit Builder(std::string const& text) : text_(text) {}

  Json& add(Json value) {
    if (levels_.empty())
      return root_ = std::move(value);
    auto& [parent, key] = levels_.back();
    Json& slot = parent->is_array() ? parent->emplace_back() : (*parent)[key];
    return slot = std::move(value);
  }
  bool addLeaf(Json value) {
    add(std::move(value));
    return true;
  }
  bool open(Json value) {
    levels_.push_back({&add(std::move(value)), {}});
    return true;
  }
  bool close() {
    levels_.pop_back();
    return true;
  }

  bool null() override { return addLeaf(nullptr); }
  bool boolean(bool value) override { return addLeaf(value); }
  bool number_integer(Json::number_integer_t value) override { return addLeaf(value); }
  bool number_unsigned(Json::number_unsigned_t value) override { return addLeaf(value); }
  bool number_float(Json::number_float_t value, std::string const&) override {
    return addLeaf(value);
  }
  bool string(std::string& value) override { return addLeaf(std::move(value)); }
  bool binary(Json::binary_t& value) override { return addLeaf(std::move(value)); }
  bool start_object(std::size_t) override { return open(Json::object()); }
  bool end_object() override { return close(); }
  bool start_array(std::size_t) override { return open(Json::array()); }
  bool end_array() override { return close(); }

  bool key(std::string& key) override {
    bool const repeated = levels_.back().value->contains(key);
    levels_.back().key = std::move(key);
    if (!repeated)
      return true;
    Json::json_pointer place;
    for (auto const& [value, key] : levels_)
      value->is_array() ? place /= value->size() - 1 : place /= key;
    throw Fault{place.to_string(), "this key was given before"};
  }

  bool parse_error(std::size_t bytesRead, std::string const& lastToken,
                   Json::exception const& error) override {
    std::string reason = error.what();
    reason.erase(0, reason.find("] ") + 2);
    if (reason.starts_with("parse error"))
      reason.erase(0, reason.find(": ") + 2);
    // The token may be as long as the file and hold any byte.
    std::string const lastRead = "; last read: '" + lastToken + "'";
    if (auto const at = reason.find(lastRead); at != std::string::npos)
      reason.erase(at, lastRead.size());
    throw Fault{lineAndColumn(text_, bytesRead - 1), reason};
  }

  std::string const& text_;
  Json root_;
  std::vector<Level> levels_;
};

/// Where a value is in the catalogue, written out only when it is at fault.
class Place {
public:
  Place() = default;
  Place(Place const& parent, std::string step) : parent_(&parent), step_(std::move(step)) {}

  Fault fault(std::string reason) const {
    std::string const place = pointer().to_string();
    return {place.empty() ? "the root" : place, std::move(reason)};
  }
  Fault wrongType(char const* expected, Json const& value) const {
    return fault(fmt::format("expected {}, found {}", expected, value.type_name()));
  }

private:
  Json::json_pointer pointer() const {
    return parent_ ? parent_->pointer() / step_ : Json::json_pointer();
  }

  Place const* parent_ = nullptr;
  std::string step_;
};

std::string takeString(Json& value, Place const& place) {
  if (!value.is_string())
    throw place.wrongType("a string", value);
  return std::move(value.get_ref<std::string&>());
}

/// @param what says what the name is for, for instance "tool name".
std::string takeName(Json& value, Place const& place, char const* what) {
  std::string name = takeString(value, place);
  try {
    HostPath::requireComponent(name, what);
  } catch (HostError const& error) {
    throw place.fault(error.what());
  }
  return name;
}

/// Calls `take` with each element of an array and its place.
template <class Take> void forEach(Json& array, Place const& place, Take take) {
  if (!array.is_array())
    throw place.wrongType("an array", array);
  std::size_t index = 0;
  for (Json& element : array)
    take(element, Place(place, std::to_string(index++)));
}

/// An object whose keys are all known.
class Object {
public:
  Object(Json& value, Place const& place, std::initializer_list<std::string_view> known)
      : value_(value), place_(place) {
    if (!value.is_object())
      throw place.wrongType("an object", value);
    for (auto const& [key, member] : value.get_ref<Json::object_t const&>())
      if (std::find(known.begin(), known.end(), key) == known.end())
        throw Place(place, key).fault("this key is unknown");
  }

  /// Calls `take` with the member and its place; does nothing when there is no such member.
  template <class Take> bool with(char const* key, Take take) {
    auto const member = value_.find(key);
    if (member == value_.end())
      return false;
    take(*member, Place(place_, key));
    return true;
  }
  std::string takeName(char const* key, char const* what) {
    std::string name;
    auto const take = [&](Json& value, Place const& place) {
      name = Qv::takeName(value, place, what);
    };
    if (!with(key, take))
      throw Place(place_, key).fault("this key is missing");
    return name;
  }
  std::string takeText(char const* key, std::string text = "") {
    with(key, [&](Json& value, Place const& place) { text = takeString(value, place); });
    return text;
  }
  bool takeFlag(char const* key, bool flag) {
    with(key, [&](Json& value, Place const& place) {
      if (!value.is_boolean())
        throw place.wrongType("true or false", value);
      flag = value.get<bool>();
    });
    return flag;
  }

private:
  Json& value_;
  Place const& place_;
};

ToolSource::Tool takeTool(Json& value, Place const& place) {
  Object object(value, place,
                {"name", "category", "active", "internal", "superTool", "texts", "tooltip"});
  ToolSource::Tool tool;
  HostToolInfo& info = tool.info;
  info.name = object.takeName("name", "tool name");
  info.category = object.takeName("category", "category name");
  info.active = object.takeFlag("active", true);
  info.internal = object.takeFlag("internal", false);
  info.superTool = object.takeFlag("superTool", false);
  object.with("texts", [&](Json& texts, Place const& textsPlace) {
    if (texts.is_array() && texts.size() != info.infoTexts.size())
      throw textsPlace.fault(fmt::format("expected three texts, found {}", texts.size()));
    auto text = info.infoTexts.begin();
    forEach(texts, textsPlace,
            [&](Json& element, Place const& at) { *text++ = takeString(element, at); });
  });
  tool.tooltip = object.takeText("tooltip");
  return tool;
}

ToolSource::View takeView(Json& value, Place const& place) {
  Object object(value, place, {"name", "label", "tooltip"});
  ToolSource::View view;
  view.name = object.takeName("name", "view name");
  view.label = object.takeText("label", view.name);
  view.tooltip = object.takeText("tooltip");
  return view;
}

ToolSource takeCatalogue(Json& value) {
  Place const root;
  Object object(value, root, {"categories", "tools", "views"});
  ToolSource source;
  std::unordered_set<std::string> known;
  bool const listed = object.with("categories", [&](Json& categories, Place const& place) {
    forEach(categories, place, [&](Json& category, Place const& at) {
      source.categories.push_back(takeName(category, at, "category name"));
      known.insert(source.categories.back());
    });
  });
  object.with("tools", [&](Json& tools, Place const& place) {
    forEach(tools, place, [&](Json& tool, Place const& at) {
      source.tools.push_back(takeTool(tool, at));
      std::string const& category = source.tools.back().info.category;
      if (!known.insert(category).second)
        return;
      if (listed)
        throw Place(at, "category")
            .fault(fmt::format("the category \"{}\" is not listed", category));
      source.categories.push_back(category);
    });
  });
  object.with("views", [&](Json& views, Place const& place) {
    std::unordered_set<std::string> names;
    forEach(views, place, [&](Json& view, Place const& at) {
      source.views.push_back(takeView(view, at));
      std::string const& name = source.views.back().name;
      if (!names.insert(name).second)
        throw Place(at, "name").fault(fmt::format("there is a view \"{}\" before", name));
    });
  });
  return source;
}

} // namespace

ToolSource readToolCatalogue(fs::path const& file) {
  std::string text;
  try {
    text = readFile(file);
  } catch (HostError const& error) {
    throw HostError(
        fmt::format("cannot read the catalogue \"{}\": {}", file.string(), error.what()));
  }
  try {
    Json catalogue = Builder::build(text);
    ToolSource source = takeCatalogue(catalogue);
    source.origin = file;
    return source;
  } catch (Fault& fault) {
    // An error's text would end at a zero byte of a key.
    for (std::size_t at = 0; (at = fault.place.find('\0')) != std::string::npos;)
      fault.place.replace(at, 1, "\\x00");
    throw HostError(fmt::format("the catalogue \"{}\" has a fault at {}: {}", file.string(),
                                fault.place, fault.reason));
  }
}

} // namespace Qv
