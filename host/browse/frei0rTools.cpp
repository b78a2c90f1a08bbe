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

ToolSource::Tool readTool(fs::path const& file) {
  Plugin const plugin(file);
  f0r_plugin_info_t const info = plugin.getInfo();
  char const* const category = nameOf(info.plugin_type, Categories);
  if (!category)
    throw HostError(fmt::format("its type {} is unknown", info.plugin_type));

  ToolSource::Tool tool;
  tool.facts.name = file.stem();
  tool.facts.category = category;
  std::string const author = saidBy(info.author);
  tool.facts.infoTexts = {saidBy(info.name), saidBy(info.explanation),
                          fmt::format("{}{}version {}.{}", author, author.empty() ? "" : ", ",
                                      info.major_version, info.minor_version)};
  for (int index = 0; index < info.num_params; ++index)
    tool.tooltip += (index == 0 ? "" : "<br>") + describe(plugin.getParamInfo(index));
  return tool;
}

std::vector<fs::path> findPlugins(fs::path const& directory) {
  std::vector<fs::path> files;
  try {
    for (fs::directory_entry const& entry : fs::directory_iterator(directory))
      if (entry.path().extension() == ".so")
        files.push_back(entry.path());
  } catch (fs::filesystem_error const& error) {
    throw HostError(fmt::format("cannot read the plug-in directory \"{}\": {}", directory.string(),
                                error.code().message()));
  }
  if (files.empty())
    throw HostError(fmt::format("the plug-in directory \"{}\" holds no plug-in file (*.so)",
                                directory.string()));
  std::sort(files.begin(), files.end());
  return files;
}

} // namespace

ToolSource readFrei0rTools(fs::path const& directory) {
  ToolSource source;
  source.origin = directory;
  for (fs::path const& file : findPlugins(directory)) {
    try {
      source.tools.push_back(readTool(file));
    } catch (HostError const& error) {
      source.warnings.push_back(
          fmt::format("the plug-in \"{}\" is left out: {}", file.string(), error.what()));
    }
  }
  for (Named const& category : Categories)
    if (std::any_of(source.tools.begin(), source.tools.end(), [&](ToolSource::Tool const& tool) {
          return tool.facts.category == category.name;
        }))
      source.categories.emplace_back(category.name);
  return source;
}

} // namespace Qv
