#include "frei0rPlugin.h"

#include <algorithm>
#include <cstring>
#include <dlfcn.h>
#include <elf.h>
#include <endian.h>
#include <fstream>
#include <span>
#include <stdexcept>

extern "C" {
#include <frei0r.h>
}

namespace Qv {

namespace {

/// Says why a plug-in cannot be read.
class PluginError : public std::runtime_error {
public:
  using std::runtime_error::runtime_error;
};

/// A constant of the plug-in interface or of ELF, and its name.
struct Named {
  int number;
  char const* name;
};

constexpr Named PluginTypes[] = {{F0R_PLUGIN_TYPE_SOURCE, PluginCategories[0]},
                                 {F0R_PLUGIN_TYPE_FILTER, PluginCategories[1]},
                                 {F0R_PLUGIN_TYPE_MIXER2, PluginCategories[2]},
                                 {F0R_PLUGIN_TYPE_MIXER3, PluginCategories[3]}};

constexpr Named ParameterTypes[] = {{F0R_PARAM_BOOL, "bool"},
                                    {F0R_PARAM_DOUBLE, "double"},
                                    {F0R_PARAM_COLOR, "color"},
                                    {F0R_PARAM_POSITION, "position"},
                                    {F0R_PARAM_STRING, "string"}};

constexpr Named Processors[] = {{EM_386, "i386"},        {EM_ARM, "arm"},     {EM_X86_64, "x86-64"},
                                {EM_AARCH64, "aarch64"}, {EM_RISCV, "riscv"}, {EM_PPC64, "ppc64"},
                                {EM_S390, "s390"}};

/// Null when the number is none of them.
char const* nameOf(int number, std::span<Named const> all) {
  auto const found = std::find_if(all.begin(), all.end(),
                                  [&](Named const& named) { return named.number == number; });
  return found == all.end() ? nullptr : found->name;
}

/// The text without the blanks around it. Null counts as empty.
std::string trimmed(char const* text) {
  std::string result = text ? text : "";
  constexpr char Blanks[] = " \t\r\n";
  result.erase(result.find_last_not_of(Blanks) + 1);
  result.erase(0, result.find_first_not_of(Blanks));
  return result;
}

/// The ELF header of this program, defined by the linker.
// NOLINTNEXTLINE(bugprone-reserved-identifier): the linker's name.
extern "C" Elf64_Ehdr const __ehdr_start __attribute__((visibility("hidden")));

std::string processorOf(Elf64_Ehdr const& header) {
  bool const swapped = header.e_ident[EI_DATA] == ELFDATA2MSB;
  int const machine = swapped ? be16toh(header.e_machine) : le16toh(header.e_machine);
  char const* const name = nameOf(machine, Processors);
  return (name ? name : "processor " + std::to_string(machine)) +
         (header.e_ident[EI_CLASS] == ELFCLASS32 ? ", 32 bits" : "");
}

void* load(char const* file) {
  if (void* const library = dlopen(file, RTLD_NOW | RTLD_LOCAL))
    return library;
  std::string reason = dlerror();
  // The loader says of a library for another processor that it does not exist.
  Elf64_Ehdr header = {};
  std::ifstream(file, std::ios::binary).read(reinterpret_cast<char*>(&header), sizeof header);
  if (std::memcmp(header.e_ident, ELFMAG, SELFMAG) == 0)
    if (std::string const processor = processorOf(header); processor != processorOf(__ehdr_start))
      throw PluginError("built for " + processor + ", not " + processorOf(__ehdr_start));
  // The loader starts with the path that it was given.
  std::string const prefix = std::string(file) + ": ";
  if (reason.starts_with(prefix))
    reason.erase(0, prefix.size());
  throw PluginError(reason);
}

template <class Function> Function* entry(void* library, char const* name) {
  if (void* const address = dlsym(library, name))
    return reinterpret_cast<Function*>(address);
  throw PluginError(std::string("no function ") + name);
}

ScanResult describe(void* library) {
  auto* const getPluginInfo = entry<void(f0r_plugin_info*)>(library, "f0r_get_plugin_info");
  auto* const getParamInfo = entry<void(f0r_param_info*, int)>(library, "f0r_get_param_info");
  entry<int()>(library, "f0r_init")();
  f0r_plugin_info_t info = {};
  getPluginInfo(&info);
  char const* const category = nameOf(info.plugin_type, PluginTypes);
  if (!info.name)
    throw PluginError("no name");
  if (!category)
    throw PluginError("unknown type " + std::to_string(info.plugin_type));
  if (info.color_model < F0R_COLOR_MODEL_BGRA8888 || info.color_model > F0R_COLOR_MODEL_PACKED32)
    throw PluginError("unknown color model " + std::to_string(info.color_model));
  if (info.frei0r_version > FREI0R_MAJOR_VERSION)
    throw PluginError("needs version " + std::to_string(info.frei0r_version) +
                      " of the plug-in interface, newer than " +
                      std::to_string(FREI0R_MAJOR_VERSION));
  if (info.num_params < 0 || info.num_params > MostParameters)
    throw PluginError("claims to have " + std::to_string(info.num_params) + " parameters");

  ScanResult result = {.category = category,
                       .name = trimmed(info.name),
                       .explanation = trimmed(info.explanation),
                       .author = trimmed(info.author),
                       .version = std::to_string(info.major_version) + "." +
                                  std::to_string(info.minor_version)};
  for (int index = 0; index < info.num_params; ++index) {
    f0r_param_info_t parameter = {};
    getParamInfo(&parameter, index);
    char const* const type = nameOf(parameter.type, ParameterTypes);
    result.parameters.push_back(
        {trimmed(parameter.name), type ? type : "unknown type", trimmed(parameter.explanation)});
  }
  return result;
}

} // namespace

void readFrei0rPlugin(char const* file, std::function<void(ScanResult const&)> const& reply) {
  ScanResult result;
  void (*end)() = [] {};
  try {
    void* const library = load(file);
    end = entry<void()>(library, "f0r_deinit");
    result = describe(library);
  } catch (PluginError const& error) {
    result.failure = error.what();
  }
  reply(result);
  end();
}

} // namespace Qv
