#include "hostJournal.h"
#include "hostPackageManager.h"
#include "liString.h"
#include "osFilePath.h"

#include <dlfcn.h>
#include <gmock/gmock.h>

// The constructors and destructors below stand before those of the host's libraries, so the module
// calls them. They do the same, and note each object that lies in the module itself.

/// Standing before the library's definitions means two tables of virtual functions for one class,
/// which the address sanitizer would report.
extern "C" char const* __asan_default_options() { // NOLINT(bugprone-reserved-identifier)
  return "detect_odr_violation=0";
}

namespace Qv {

namespace {

struct Note {
  std::string text;
  /// How much the host had been asked to do by then.
  std::size_t calls;

  bool operator==(Note const&) const = default;
};

void PrintTo(Note const& note, std::ostream* os) { *os << note.text << " after " << note.calls; }

bool noting = false;

std::vector<Note>& notes() {
  static std::vector<Note> list;
  return list;
}

void note(void const* object, std::string const& text) {
  Dl_info info;
  if (noting && dladdr(object, &info) && std::string(info.dli_fname).ends_with(".qvmodule"))
    notes().push_back({text, HostJournal::getInstance().getEntries().size()});
}

} // namespace

InPackageInit::InPackageInit(char const* name) : name_(name) { note(this, name_); }

InPackageInit::~InPackageInit() {
  HostPackageManager::getInstance().remove(*this);
  note(this, std::string("~") + name_);
}

OsFilePath::OsFilePath(std::string const& path) : path_(path) { note(this, path_); }

OsFilePath::~OsFilePath() { note(this, "~" + path_); }

LiString::LiString(char const* text) : std::string(text) { note(this, *this); }

LiString::~LiString() { note(this, "~" + *this); }

namespace {

TEST(Statics, areMadeInOrderAndDestroyedInReverse) {
  HostJournal::getInstance().start();
  noting = true;
  void* const module = dlopen(PLUGINBROWSERQVMODULE_FILE, RTLD_NOW | RTLD_LOCAL);
  ASSERT_TRUE(module) << dlerror();
  std::vector<Note> const made = std::exchange(notes(), {});
  dlclose(module);
  noting = false;
  HostJournal::getInstance().stop();

  // The package is registered with its nine dependencies before the second static is made.
  std::vector<std::string> const order = {"pluginBrowserQvmodule", "scheme.tif", "Tools Folder",
                                          "Tool Category",         "Super Tool", "Tool",
                                          "Views Folder",          "View",       "bvTool.xml"};
  std::vector<Note> expected;
  for (std::string const& text : order)
    expected.push_back({text, expected.empty() ? 0U : 10U});
  EXPECT_EQ(made, expected);

  std::vector<Note> reverse;
  for (std::string const& text : std::vector<std::string>(order.rbegin(), order.rend()))
    reverse.push_back({"~" + text, 10});
  EXPECT_EQ(notes(), reverse);
}

} // namespace

} // namespace Qv
