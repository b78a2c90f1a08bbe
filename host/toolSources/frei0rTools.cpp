#include "frei0rTools.h"

#include "hostError.h"
#include "hostFiles.h"

#include <algorithm>
#include <fmt/format.h>
#include <span>

extern "C" {
#include <frei0r.h>
}

namespace Qv {

namespace fs = std::filesystem;

namespace {

/// What a plug-in says, without the blanks around it. A plug-in says nothing with null, too.
std::string saidBy(char const* text) {
  std::string said = text ? text : "";
  constexpr char Blanks[] = " \t\r\n";
  said.erase(said.find_last_not_of(Blanks) + 1);
  said.erase(0, said.find_first_not_of(Blanks));
  return said;
}

/// A loaded plug-in, between its initialisation and its end.
class Plugin {
public:
  explicit Plugin(fs::path const& file)
      : library_(loadLibrary(file)), init_(entry<int()>("f0r_init")),
        deinit_(entry<void()>("f0r_deinit")),
        getPluginInfo_(entry<void(f0r_plugin_info_t*)>("f0r_get_plugin_info")),
        getParamInfo_(entry<void(f0r_param_info_t*, int)>("f0r_get_param_info")) {
    init_();
  }
  Plugin(Plugin const&) = delete;
  Plugin& operator=(Plugin const&) = delete;
  ~Plugin() { deinit_(); }

  /// The texts belong to the plug-in.
  f0r_plugin_info_t getInfo() const {
    f0r_plugin_info_t info = {};
    getPluginInfo_(&info);
    return info;
  }
  f0r_param_info_t getParamInfo(int index) const {
    f0r_param_info_t info = {};
    getParamInfo_(&info, index);
    return info;
  }

private:
  template <class Function> Function& entry(char const* name) const {
    if (!library_.has(name))
      throw HostError(fmt::format("it has no function {}", name));
    return library_.get<Function>(name);
  }

  boost::dll::shared_library library_;
  int (&init_)();
  void (&deinit_)();
  void (&getPluginInfo_)(f0r_plugin_info_t*);
  void (&getParamInfo_)(f0r_param_info_t*, int);
};

/// A number of the plug-in interface and what people call it.
struct Named {
  int number;
  char const* name;
};

/// The types of plug-ins, in the order in which they are listed.
constexpr Named Categories[] = {{F0R_PLUGIN_TYPE_SOURCE, "Source"},
                                {F0R_PLUGIN_TYPE_FILTER, "Filter"},
                                {F0R_PLUGIN_TYPE_MIXER2, "Mixer2"},
                                {F0R_PLUGIN_TYPE_MIXER3, "Mixer3"}};

/// More than any plug-in has.
constexpr int MostParameters = 1000;

constexpr Named ParameterTypes[] = {{F0R_PARAM_BOOL, "bool"},
                                    {F0R_PARAM_DOUBLE, "double"},
                                    {F0R_PARAM_COLOR, "color"},
                                    {F0R_PARAM_POSITION, "position"},
                                    {F0R_PARAM_STRING, "string"}};

/// Null when the number is none of them.
char const* nameOf(int number, std::span<Named const> all) {
  auto const found = std::find_if(all.begin(), all.end(),
                                  [&](Named const& named) { return named.number == number; });
  return found == all.end() ? nullptr : found->name;
}

std::string describe(f0r_param_info_t const& parameter) {
  char const* const type = nameOf(parameter.type, ParameterTypes);
  std::string const name = saidBy(parameter.name);
  std::string const explanation = saidBy(parameter.explanation);
  return fmt::format("{} ({}){}{}", name.empty() ? "unnamed" : name, type ? type : "unknown type",
                     explanation.empty() ? "" : ": ", explanation);
}

/// Absolute paths.
std::vector<fs::path> findPlugins(fs::path const& directory) {
  std::vector<fs::path> files;
  try {
    for (fs::directory_entry const& entry :
         fs::directory_iterator(fs::absolute(directory).lexically_normal()))
      if (entry.path().extension() == ".so")
        files.push_back(entry.path());
  } catch (fs::filesystem_error const& error) {
    throw HostError(fmt::format("cannot read the plug-in directory \"{}\": {}", directory.string(),
                                error.code().message()));
  }
  if (files.empty())
    throw HostError(fmt::format("the plug-in directory \"{}\" holds no plug-in file (*.so)",
                                directory.string()));
  // Of one directory, the texts have the order of the paths, and are faster to compare.
  std::sort(files.begin(), files.end(), [](fs::path const& left, fs::path const& right) {
    return left.native() < right.native();
  });
  return files;
}

} // namespace

bool hasFrei0rTools(fs::path const& directory) {
  try {
    findPlugins(directory);
    return true;
  } catch (HostError const&) {
    return false;
  }
}

ToolSource::Tool readFrei0rTool(fs::path const& file) {
  Plugin const plugin(file);
  f0r_plugin_info_t const info = plugin.getInfo();
  char const* const category = nameOf(info.plugin_type, Categories);
  if (!info.name)
    throw HostError("it gives no name");
  if (!category)
    throw HostError(fmt::format("its type {} is unknown", info.plugin_type));
  if (info.num_params < 0 || info.num_params > MostParameters)
    throw HostError(fmt::format("it claims to have {} parameters", info.num_params));

  ToolSource::Tool tool;
  tool.facts.category = category;
  std::string const author = saidBy(info.author);
  tool.facts.infoTexts = {saidBy(info.name), saidBy(info.explanation),
                          fmt::format("{}{}version {}.{}", author, author.empty() ? "" : ", ",
                                      info.major_version, info.minor_version)};
  for (int index = 0; index < info.num_params; ++index)
    tool.tooltip += (index == 0 ? "" : "<br>") + describe(plugin.getParamInfo(index));
  return tool;
}

ToolSource readFrei0rTools(fs::path const& directory, PluginCache& cache,
                           ScanOptions const& options) {
  ToolSource source;
  source.origin = directory;
  std::vector<std::string> stamps;
  std::vector<fs::path> unread;
  for (fs::path const& file : findPlugins(directory)) {
    stamps.push_back(PluginCache::getStamp(file));
    PluginCache::Entry const* const kept = cache.find(file, stamps.back());
    bool const again = kept && kept->earlier && !kept->reading.failure.empty() && options.retry;
    if (!kept || again)
      unread.push_back(file);
    source.plugins.push_back({.file = file});
  }

  std::vector<PluginReading> const readings = scanPlugins(unread, &readFrei0rTool, options);
  std::size_t next = 0;
  auto stamp = stamps.begin();
  for (ToolSource::Plugin& plugin : source.plugins) {
    if (next < unread.size() && unread[next] == plugin.file)
      cache.keep(plugin.file, *stamp, readings[next++]);
    PluginCache::Entry const& kept = *cache.find(plugin.file, *stamp++);
    plugin.failure = kept.reading.failure;
    plugin.cached = kept.earlier;
    if (!plugin.failure.empty())
      continue;
    source.tools.push_back(kept.reading.tool);
    source.tools.back().facts.name = plugin.file.stem();
  }
  if (!unread.empty())
    cache.save();

  for (Named const& category : Categories)
    if (std::any_of(source.tools.begin(), source.tools.end(), [&](ToolSource::Tool const& tool) {
          return tool.facts.category == category.name;
        }))
      source.categories.emplace_back(category.name);
  return source;
}

} // namespace Qv
