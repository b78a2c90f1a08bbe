#include "allocations.h"
#include "brDetailView.h"
#include "check.h"
#include "hostJournal.h"
#include "hostModule.h"
#include "hostPackageManager.h"
#include "registries.h"
#include "typeName.h"

#include <algorithm>
#include <array>
#include <boost/core/demangle.hpp>
#include <boost/dll/runtime_symbol_info.hpp>
#include <boost/dll/shared_library.hpp>
#include <cstdlib>
#include <dlfcn.h>
#include <fmt/ranges.h>
#include <fstream>
#include <link.h>
#include <set>

namespace fs = std::filesystem;

namespace Qv {

namespace {

std::string checkImports() {
  fs::path const host = boost::dll::symbol_location(HostJournal::getInstance).parent_path();
  char const* const others = std::getenv("LD_LIBRARY_PATH");
  std::string const path = host.string() + (others ? ":" + std::string(others) : "");
  setenv("LD_LIBRARY_PATH", path.c_str(), 1);
  setenv("QV_MODULE", moduleFile().c_str(), 1);
  // The loader itself names all that it misses, and runs nothing of the file.
  std::unique_ptr<FILE, decltype(&pclose)> const loader(popen("ldd -r \"$QV_MODULE\" 2>&1", "r"),
                                                        &pclose);
  constexpr std::string_view Undefined = "undefined symbol: ";
  std::set<std::string> missing;
  for (std::array<char, 8192> line; loader && std::fgets(line.data(), line.size(), loader.get());) {
    std::string_view text = line.data();
    if (std::size_t const library = text.find(" => not found"); library != std::string_view::npos) {
      missing.insert("the library " + std::string(text.substr(1, library - 1)));
    } else if (text.starts_with(Undefined)) {
      text.remove_prefix(Undefined.size());
      std::string const name(text.substr(0, text.find_first_of("\t,")));
      // A sanitizer's are in the program.
      if (!dlsym(RTLD_DEFAULT, name.c_str()))
        missing.insert(boost::core::demangle(name.c_str()));
    }
  }
  require(missing.empty(), "no library provides {}", fmt::join(missing, ", "));
  bool const loaded = dlopen(moduleFile().c_str(), RTLD_NOW);
  require(loaded, "{}", loaded ? "" : dlerror());
  return "all found";
}

std::string checkPackages() {
  HostPackageManager& manager = HostPackageManager::getInstance();
  std::set<std::string> names;
  for (InPackageInit const* const package : manager.getPackages())
    names.insert(package->getName());
  std::size_t const hosts = manager.getPackages().size();
  boost::dll::shared_library const library(moduleFile(), boost::dll::load_mode::rtld_now);
  manager.throwLoadFailure();
  std::vector<std::string> problems;
  for (std::size_t index = hosts; index < manager.getPackages().size(); ++index) {
    InPackageInit const& package = *manager.getPackages()[index];
    if (!names.insert(package.getName()).second)
      problems.push_back(fmt::format("duplicate package \"{}\"", package.getName()));
    for (std::type_info const* const needed : package.getDependencies())
      if (!manager.find(*needed))
        problems.push_back("no loaded library provides the package " + typeName(*needed));
  }
  require(problems.empty(), "{}", fmt::join(problems, "; "));
  require(names.size() > hosts, "registers no package");
  return fmt::format("{} registered", names.size() - hosts);
}

std::string start() {
  HostModule const started(moduleFile());
  std::size_t objects = 0;
  for (auto const& [call, count] : registered())
    objects += count;
  return fmt::format("{} objects registered", objects);
}

std::string checkStart() {
  // The class of an exception may be the module's.
  static boost::dll::shared_library const kept(moduleFile(), boost::dll::load_mode::rtld_now);
  return start();
}

/// Compares an object's table with the host's of the class `T`: what is inherited must be in its
/// own place. What overrides cannot be told from an address. A sanitizer guards the room behind.
template <class T> [[gnu::no_sanitize_address]] int compareTable(T const& object) {
  auto const* const host = static_cast<void* const*>(
      dlsym(RTLD_DEFAULT, (std::string("_ZTV") + typeid(T).name()).c_str()));
  Dl_info library;
  void* symbol = nullptr;
  require(host && dladdr1(host, &library, &symbol, RTLD_DL_SYMENT), "the host has no vtable of {}",
          typeName(typeid(T)));
  lookAt(typeName(typeid(object)));
  auto const* const table = *reinterpret_cast<void* const* const*>(&object);
  // The offset to the top and the type information come first.
  std::size_t const size = static_cast<ElfW(Sym) const*>(symbol)->st_size / sizeof(void*) - 2;
  for (std::size_t word = 0; word < size; ++word) {
    // An abstract class leaves its destructor out, and a sanitizer some room behind.
    if (!host[word + 2])
      continue;
    Dl_info function;
    require(dladdr(table[word], &function) != 0, "word {} of its vtable is not a function", word);
    require(table[word] == host[word + 2] || function.dli_fbase != library.dli_fbase,
            "word {} of its vtable is {}, which is elsewhere in that of {}", word,
            function.dli_sname ? boost::core::demangle(function.dli_sname) : "a hidden function",
            typeName(typeid(T)));
  }
  return 1;
}

std::string checkSlots() {
  int count = 0;
  for (Item const& item : findItems()) {
    count += compareTable<BrBrowsable>(*item) + compareTable<BrServer>(*item->getServer());
    count += compareTable<BrChildrenQuery>(*item->getChildren(AllChildren));
  }
  for (auto const& [type, handler] : HostDndRegistry::getInstance().getEntries())
    count += compareTable<BrDndHandler>(*handler);
  for (auto const& [role, view] : HostBrRegistry::getInstance().getViews())
    if (auto const* const detail = dynamic_cast<BrDetailView const*>(view.get()))
      count += compareTable<BrDetailView>(*detail);
  for (auto const& [action, state] : HostActRegistry::getInstance().getEntries())
    if (auto const* const typed = dynamic_cast<BrowserAction const*>(action.get()))
      count += compareTable<BrowserAction>(*typed);
  return fmt::format("vtables of {} objects", count);
}

std::string checkRepeats() {
  constexpr int Times = 100;
  auto const count = [] {
    std::ifstream maps("/proc/self/maps");
    return std::array<long, 3>{
        liveAllocations(),
        std::distance(fs::directory_iterator("/proc/self/task"), fs::directory_iterator()),
        std::count(std::istreambuf_iterator<char>(maps), {}, '\n')};
  };
  start();
  auto const [allocations, threads, mappings] = count();
  for (int time = 0; time < Times; ++time)
    start();
  auto const [allocationsNow, threadsNow, mappingsNow] = count();
  require(!dlopen(moduleFile().c_str(), RTLD_NOW | RTLD_NOLOAD),
          "stays in memory after it is unloaded; g++ needs -fno-gnu-unique");
  // The allocator maps on its own account, but not at each start.
  require(allocationsNow == allocations && threadsNow == threads && mappingsNow - mappings < Times,
          "{} starts leak {} allocations, {} threads and {} mappings", Times,
          allocationsNow - allocations, threadsNow - threads, mappingsNow - mappings);
  return fmt::format("{} starts", Times);
}

} // namespace

std::vector<Check> moduleChecks() {
  constexpr char const* Packages = "Packages (`libQVbase`; `getType` in each of the nine)";
  return {{"file.imports", "Every imported name is provided by a library.", "Symbols", checkImports,
           false},
          {"file.packages", "It registers packages whose dependencies exist.", Packages,
           checkPackages, false},
          {"start.initialises", "It loads and initialises.", Packages, checkStart, false},
          {"start.slots", "Inherited functions are in the host's slots of its vtables.", "Slots",
           checkSlots},
          {"start.failures", "A failed start throws and leaks nothing, and the next one succeeds.",
           "What may be thrown", [] { return sweepFailures(start); }, false},
          {"start.repeats", "Unloading leaves nothing behind.", "Lifetimes", checkRepeats, false}};
}

} // namespace Qv
