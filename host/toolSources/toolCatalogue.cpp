#include "toolCatalogue.h"

#include "descriptor.h"
#include "hostError.h"
#include "hostPath.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstring>
#include <fcntl.h>
#include <fmt/format.h>
#include <nlohmann/json.hpp>
#include <span>
#include <system_error>
#include <unordered_map>
#include <unordered_set>

namespace Qv {

namespace fs = std::filesystem;

namespace {

using Json = nlohmann::json;

/// What is wrong with the catalogue, and where.
struct Fault {
  std::string place;
  std::string reason;
};

/// The bytes of a file, read block by block.
class Input {
public:
  explicit Input(fs::path const& file) : file_(open(file.c_str(), O_RDONLY | O_CLOEXEC)) {
    check(file_.get());
  }

  bool atEnd() { return next_ == end_ && !readBlock(); }
  char get() const { return *next_; }
  void advance() { ++next_; }

  /// Line and column, both from 1, of the character that the byte at `offset` belongs to. It is the
  /// last byte that was read, or the end.
  std::string placeOf(std::size_t offset) {
    count(block_.data() + std::min(offset - start_, std::size_t(end_ - block_.data())));
    return fmt::format("line {}, column {}", line_ + 1, column_ + 1);
  }

private:
  static void check(ssize_t status) {
    if (status < 0)
      throw std::system_error(errno, std::generic_category());
  }

  bool readBlock() {
    count(end_);
    start_ += std::size_t(end_ - block_.data());
    ssize_t size = 0;
    do
      size = read(file_.get(), block_.data(), block_.size());
    while (size < 0 && errno == EINTR);
    check(size);
    next_ = block_.data();
    end_ = next_ + size;
    // The parser would take it for the end of the text.
    if (auto const* const zero = std::find(next_, end_, '\0'); zero != end_)
      throw Fault{placeOf(start_ + std::size_t(zero - next_)), "zero byte"};
    return size > 0;
  }

  /// Counts the lines, and the characters of the last one, up to a byte of the block.
  void count(char const* end) {
    char const* begin = block_.data();
    line_ += std::size_t(std::count(begin, end, '\n'));
    if (void const* const newline = memrchr(begin, '\n', std::size_t(end - begin))) {
      column_ = 0;
      begin = static_cast<char const*>(newline) + 1;
    }
    auto const startsCharacter = [](char c) { return (c & 0xC0) != 0x80; };
    column_ += std::size_t(std::count_if(begin, end, startsCharacter));
  }

  Descriptor file_;
  std::array<char, 1 << 16> block_;
  char const* next_ = block_.data();
  char const* end_ = block_.data();
  /// Where the block starts in the file, in bytes, and in lines and columns.
  std::size_t start_ = 0;
  std::size_t line_ = 0;
  std::size_t column_ = 0;
};

/// Iterates over the bytes of an input; null is the end.
struct InputIterator {
  using iterator_category = std::input_iterator_tag;
  using value_type = char;
  using difference_type = std::ptrdiff_t;
  using pointer = char const*;
  using reference = char;

  char operator*() const { return input->get(); }
  InputIterator& operator++() {
    input->advance();
    return *this;
  }
  bool operator!=(InputIterator const& /*end*/) const { return !input->atEnd(); }

  Input* input;
};

enum Type : std::uint8_t { Object, Array, String, Flag };
constexpr char const* TypeNames[] = {"an object", "an array", "a string", "true or false"};

/// A key that an object may have.
struct Key {
  char const* name;
  Type type;
  /// What the value names; null unless it is a name. Names are required.
  char const* component = nullptr;
};

constexpr Key RootKeys[] = {{"categories", Array}, {"tools", Array}, {"views", Array}};
constexpr Key ToolKeys[] = {{"name", String, "tool name"},
                            {"category", String, "category name"},
                            {"active", Flag},
                            {"internal", Flag},
                            {"superTool", Flag},
                            {"texts", Array},
                            {"tooltip", String}};
constexpr Key ViewKeys[] = {{"name", String, "view name"}, {"label", String}, {"tooltip", String}};

/// Builds a source from the events of the JSON parser.
class Parser {
public:
  explicit Parser(Input& input) : input_(input) {}

  ToolSource parse() {
    Json::sax_parse(InputIterator{&input_}, InputIterator{}, this);
    return std::move(source_);
  }

  bool null() { refuse("null"); }
  bool number_integer(Json::number_integer_t) { refuse("number"); }
  bool number_unsigned(Json::number_unsigned_t) { refuse("number"); }
  bool number_float(Json::number_float_t, std::string const&) { refuse("number"); }
  bool binary(Json::binary_t&) { refuse("binary"); }

  bool boolean(bool value) {
    expect(Flag, "boolean");
    *std::array{&tool_.active, &tool_.internal, &tool_.superTool}[levels_.back().index - 2] = value;
    return true;
  }

  bool string(std::string const& value) {
    expect(String, "string");
    Level& level = levels_.back();
    if (!level.keys.empty()) {
      Key const& key = level.keys[level.index];
      if (key.component)
        requireComponent(value, key.component);
      *textAt(level.index) = value;
    } else if (levels_.size() == 2) {
      requireComponent(value, "category name");
      source_.categories.push_back(value);
      ++level.index;
    } else {
      if (level.index < tool_.infoTexts.size())
        tool_.infoTexts[level.index] = value;
      ++level.index;
    }
    return true;
  }

  bool start_array(std::size_t) {
    expect(Array, "array");
    levels_.push_back({});
    return true;
  }

  bool end_array() {
    std::size_t const size = levels_.back().index;
    levels_.pop_back();
    if (levels_.size() == 3 && size != 3)
      throw fault(fmt::format("expected three texts, found {}", size));
    return true;
  }

  bool start_object(std::size_t) {
    expect(Object, "object");
    if (levels_.empty())
      levels_.push_back({RootKeys});
    else if (inTools()) {
      levels_.push_back({ToolKeys});
      tool_ = {};
      tooltip_.clear();
    } else {
      levels_.push_back({ViewKeys});
      source_.views.emplace_back();
    }
    return true;
  }

  bool key(std::string const& name) {
    Level& level = levels_.back();
    auto const found = std::find_if(level.keys.begin(), level.keys.end(),
                                    [&](Key const& key) { return name == key.name; });
    if (found == level.keys.end()) {
      levels_.pop_back();
      throw Fault{(place() / name).to_string(), "unknown key"};
    }
    level.index = std::size_t(found - level.keys.begin());
    if (level.has(level.index))
      throw fault("duplicate key");
    level.seen |= 1U << level.index;
    return true;
  }

  bool end_object() {
    Level& level = levels_.back();
    bool const labelled = level.has(1);
    for (level.index = 0; level.index < level.keys.size(); ++level.index)
      if (level.keys[level.index].component && !level.has(level.index))
        throw fault("missing key");
    if (levels_.size() == 1) {
      finish(level.has(0));
    } else {
      levels_.pop_back();
      inTools() ? finishTool() : finishView(labelled);
      ++levels_.back().index;
    }
    return true;
  }

  [[noreturn]] bool parse_error(std::size_t bytesRead, std::string const& lastToken,
                                Json::exception const& error) {
    std::string reason = error.what();
    reason.erase(0, reason.find("] ") + 2);
    if (reason.starts_with("parse error"))
      reason.erase(0, reason.find(": ") + 2);
    // The token may be as long as the file and hold any byte.
    std::string const lastRead = "; last read: '" + lastToken + "'";
    if (auto const at = reason.find(lastRead); at != std::string::npos)
      reason.erase(at, lastRead.size());
    throw Fault{input_.placeOf(bytesRead - 1), reason};
  }

private:
  /// An object or array that is not closed yet.
  struct Level {
    /// Empty for an array.
    std::span<Key const> keys = {};
    /// Of the key or element that is read.
    std::size_t index = 0;
    /// The keys that were read, a bit each.
    unsigned seen = 0;

    bool has(std::size_t key) const { return (seen >> key & 1U) != 0; }
  };

  /// The JSON pointer of the value that is read.
  Json::json_pointer place() const {
    Json::json_pointer place;
    for (Level const& level : levels_)
      level.keys.empty() ? place /= level.index : place /= level.keys[level.index].name;
    return place;
  }
  Fault fault(std::string reason) const {
    return {levels_.empty() ? "the root" : place().to_string(), std::move(reason)};
  }

  Type expected() const {
    if (levels_.empty())
      return Object;
    if (Level const& level = levels_.back(); !level.keys.empty())
      return level.keys[level.index].type;
    return levels_.size() == 2 && levels_.front().index > 0 ? Object : String;
  }
  void expect(Type type, char const* found) const {
    if (expected() != type)
      refuse(found);
  }
  [[noreturn]] void refuse(char const* found) const {
    throw fault(fmt::format("expected {}, found {}", TypeNames[expected()], found));
  }
  void requireComponent(std::string const& name, char const* what) const {
    try {
      HostPath::requireComponent(name, what);
    } catch (HostError const& error) {
      throw fault(error.what());
    }
  }

  /// Whether what is read is in the list of tools, not of views.
  bool inTools() const { return levels_.front().index == 1; }

  std::string* textAt(std::size_t key) {
    if (!inTools())
      return std::array{&source_.views.back().name, &source_.views.back().label,
                        &source_.views.back().tooltip}[key];
    return key == 0 ? &tool_.name : key == 1 ? &tool_.category : &tooltip_;
  }

  void finishTool() {
    if (known_.insert(tool_.category).second)
      usedCategories_.emplace_back(tool_.category, levels_.back().index);
    source_.tools.push_back(
        {RCShdPtr<HostTool const>(new HostTool(std::move(tool_))), std::move(tooltip_)});
  }

  void finishView(bool labelled) {
    ToolSource::View& view = source_.views.back();
    if (!views_.insert(view.name).second)
      throw Fault{(place() / "name").to_string(), fmt::format("duplicate view \"{}\"", view.name)};
    if (!labelled)
      view.label = view.name;
  }

  void finish(bool listed) {
    std::unordered_set<std::string> const categories(source_.categories.begin(),
                                                     source_.categories.end());
    for (auto const& [category, tool] : usedCategories_)
      if (!listed)
        source_.categories.push_back(category);
      else if (!categories.contains(category))
        throw Fault{fmt::format("/tools/{}/category", tool),
                    fmt::format("the category \"{}\" is not listed", category)};
  }

  Input& input_;
  ToolSource source_;
  /// The tool that is read.
  HostToolInfo tool_;
  std::string tooltip_;
  std::vector<Level> levels_;
  /// The categories of tools, and the first tool of each.
  std::vector<std::pair<std::string, std::size_t>> usedCategories_;
  std::unordered_set<std::string> known_;
  std::unordered_set<std::string> views_;
};

} // namespace

ToolSource readToolCatalogue(fs::path const& file) {
  try {
    Input input(file);
    ToolSource source = Parser(input).parse();
    source.origin = file;
    return source;
  } catch (std::system_error const& error) {
    throw HostError(
        fmt::format("cannot read the catalogue \"{}\": {}", file.string(), error.code().message()));
  } catch (std::bad_alloc const&) {
    throw HostError(fmt::format("cannot read the catalogue \"{}\": out of memory", file.string()));
  } catch (Fault& fault) {
    // A message would end at a zero byte of a key.
    for (std::size_t at = 0; (at = fault.place.find('\0')) != std::string::npos;)
      fault.place.replace(at, 1, "\\x00");
    throw HostError(fmt::format("the catalogue \"{}\" has a fault at {}: {}", file.string(),
                                fault.place, fault.reason));
  }
}

} // namespace Qv
