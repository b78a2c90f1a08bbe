#include "frei0rTools.h"
#include "refusal.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <dlfcn.h>

namespace Qv {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class Frei0rTools : public testing::Test, protected TemporaryDirectory {
protected:
  fs::path install(fs::path const& plugin, char const* name) const {
    fs::copy_file(plugin, directory_ / name);
    return directory_ / name;
  }
  /// Reads the directory as a run of its own.
  ToolSource read(ScanOptions const& options = {}) const {
    PluginCache cache(cache_);
    return readFrei0rTools(directory_, cache, options);
  }

  fs::path const cache_ = directory_ / "cache" / "plugins";
};

TEST_F(Frei0rTools, AreListedByFileAndByType) {
  install(MUTEPLUGIN_FILE, "a.so");
  install(CLOUDSPLUGIN_FILE, "c.so");
  install(CLOUDSPLUGIN_FILE, "b.x.so");
  write("readme.txt", "no plug-in");

  ToolSource const source = read();
  std::vector<std::string> names;
  for (ToolSource::Tool const& tool : source.tools)
    names.push_back(tool.facts.name + " in " + tool.facts.category);
  EXPECT_THAT(names, ElementsAre("a in Mixer2", "b.x in Source", "c in Source"));
  EXPECT_THAT(source.categories, ElementsAre("Source", "Mixer2"));
}

TEST_F(Frei0rTools, SayWhatThePluginSays) {
  fs::path const file = install(CLOUDSPLUGIN_FILE, "clouds.so");
  unsetenv("QV_CLOUDS_ENDED");
  // In this process, from a child process, and from the cache.
  for (ToolSource::Tool const& tool :
       {readFrei0rTool(file), read().tools.at(0), read().tools.at(0)}) {
    EXPECT_THAT(tool.facts.infoTexts,
                ElementsAre("Clouds/Sky", "Paints clouds.", "A. Painter, version 2.10"));
    EXPECT_EQ(tool.tooltip, "Moving (bool): Whether they move<br>"
                            "Density (double)<br>"
                            "Sky (color): Between the clouds<br>"
                            "Sun (position)<br>"
                            "Kind (string): cirrus or cumulus<br>"
                            "Later (unknown type)");
  }
  EXPECT_STREQ(getenv("QV_CLOUDS_ENDED"), "yes");
  EXPECT_EQ(dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD), nullptr) << "it is still loaded";
}

TEST_F(Frei0rTools, ThatSayNothingHaveEmptyTexts) {
  ToolSource::Tool const tool = readFrei0rTool(MUTEPLUGIN_FILE);
  EXPECT_THAT(tool.facts.infoTexts, ElementsAre("", "", "version 0.0"));
  EXPECT_EQ(tool.tooltip, "unnamed (double)");
}

TEST_F(Frei0rTools, AreNeededInTheDirectory) {
  auto const reading = [](fs::path const& directory) {
    PluginCache cache("");
    return refusalOf([&] { readFrei0rTools(directory, cache); });
  };
  EXPECT_THAT(reading(directory_), AllOf(HasSubstr(directory_.string()), HasSubstr("no plug-in")));
  EXPECT_THAT(reading(directory_ / "missing"),
              AllOf(HasSubstr("missing\""), HasSubstr("No such file")));
}

TEST_F(Frei0rTools, SurviveTheBadOnesAmongThem) {
  std::vector<std::pair<std::string, fs::path>> const plugins = {
      {"it crashed with SIGABRT (Aborted)", install(ABORTPLUGIN_FILE, "a.so")},
      {"it crashed with SIGSEGV (Segmentation fault)", install(CRASHPLUGIN_FILE, "b.so")},
      {"it did not answer within 2.5 seconds", install(LOOPPLUGIN_FILE, "c.so")},
      {"it exited with status 3 in place of an answer", install(LEAVEPLUGIN_FILE, "d.so")},
      {"it garbles its answer", install(GARBLEPLUGIN_FILE, "e.so")},
      {"it answers with more than 1048576 bytes", install(FLOODPLUGIN_FILE, "f.so")},
      {"it gives no name", install(UNNAMEPLUGIN_FILE, "g.so")},
      {"its type 17 is unknown", install(MISTYPEPLUGIN_FILE, "h.so")},
      {"it claims to have -1 parameters", install(OWEPLUGIN_FILE, "i.so")},
      {"it claims to have 1001 parameters", install(BOASTPLUGIN_FILE, "j.so")},
      {"it has no function f0r_get_plugin_info", install(HALFPLUGIN_FILE, "k.so")},
      {"file too short", write("l.so", "no plug-in")},
      {"invalid ELF header", write("m.so", std::string(1000, 'x'))},
      {"", install(RENAMEPLUGIN_FILE, "n.so")},
      {"", install(PRINTPLUGIN_FILE, "o.so")},
      {"", install(FORKPLUGIN_FILE, "p.so")},
      {"", install(CLOUDSPLUGIN_FILE, "q.so")}};

  for (bool const cached : {false, true}) {
    ToolSource const source = read({.limit = std::chrono::milliseconds(2500)});
    ASSERT_EQ(source.plugins.size(), plugins.size());
    for (std::size_t index = 0; index < plugins.size(); ++index) {
      EXPECT_EQ(source.plugins[index].file, plugins[index].second);
      EXPECT_EQ(source.plugins[index].failure, plugins[index].first);
      EXPECT_EQ(source.plugins[index].cached, cached);
    }
    ASSERT_EQ(source.tools.size(), 4U);
    EXPECT_EQ(source.tools[0].facts.infoTexts[0], "caf\xe9");
    EXPECT_EQ(source.tools[3].facts.name, "q");
  }
}

/// One plug-in counts how often it is loaded, another one crashes until it is mended.
class Frei0rCache : public Frei0rTools {
protected:
  Frei0rCache() {
    setenv("QV_LOADS", (directory_ / "loads").c_str(), 1);
    unsetenv("QV_MENDED");
  }
  /// How often plug-ins were loaded so far.
  std::ptrdiff_t loads() const {
    std::string const text = TemporaryDirectory::read("loads");
    return std::count(text.begin(), text.end(), ',');
  }

  fs::path const counting_ = install(COUNTPLUGIN_FILE, "counting.so");
  fs::path const recovering_ = install(RECOVERPLUGIN_FILE, "recovering.so");
};

TEST_F(Frei0rCache, SparesTheReadingOfWhatDidNotChange) {
  read();
  EXPECT_EQ(loads(), 1);
  EXPECT_EQ(read().tools.size(), 1U);
  EXPECT_EQ(loads(), 1);

  // One nanosecond is enough.
  fs::last_write_time(counting_, fs::last_write_time(counting_) + std::chrono::nanoseconds(1));
  EXPECT_EQ(read().tools.size(), 1U);
  EXPECT_EQ(loads(), 2);
  auto const modified = fs::last_write_time(counting_);
  std::ofstream(counting_, std::ios::app) << "more";
  fs::last_write_time(counting_, modified);
  EXPECT_EQ(read().tools.size(), 1U);
  EXPECT_EQ(loads(), 3);

  fs::remove(counting_);
  EXPECT_EQ(read({.retry = true}).tools.size(), 0U);
  EXPECT_THAT(TemporaryDirectory::read("cache/plugins"),
              AllOf(HasSubstr("recovering.so"), Not(HasSubstr("counting.so"))));
}

TEST_F(Frei0rCache, IsIgnoredWhenItCannotBeUnderstood) {
  // The last text of the file is not empty.
  install(CLOUDSPLUGIN_FILE, "z.so");
  read();
  std::string const whole = TemporaryDirectory::read("cache/plugins");
  std::string other = whole;
  other[other.find('\0') - 1] = '0';
  std::ptrdiff_t expected = 1;
  for (std::string const& damaged :
       {std::string(), std::string("garbage"), other, whole.substr(0, whole.size() - 1),
        whole.substr(0, whole.find("counting") + 20)}) {
    write("cache/plugins", damaged);
    EXPECT_EQ(read().tools.size(), 2U);
    EXPECT_EQ(loads(), ++expected);
    EXPECT_EQ(TemporaryDirectory::read("cache/plugins"), whole);
  }
  // A directory in place of the file, and in place of its directory a file.
  fs::remove(cache_);
  fs::create_directories(cache_ / "full");
  EXPECT_EQ(read().tools.size(), 2U);
  fs::remove_all(cache_.parent_path());
  write("cache", "");
  EXPECT_EQ(read().tools.size(), 2U);
  EXPECT_EQ(loads(), expected + 2);
}

TEST_F(Frei0rCache, IsTheUsersOwnFile) {
  using User = std::array<char const*, 3>;
  for (auto const& [cache, home, file] :
       {User{"/c", "/h", "/c/qvbrowse/plugins"}, User{"c", nullptr, ""}, User{nullptr, "", ""},
        User{"", "/h", "/h/.cache/qvbrowse/plugins"}, User{"c", "/h", "/h/.cache/qvbrowse/plugins"},
        User{nullptr, "/h", "/h/.cache/qvbrowse/plugins"}}) {
    cache ? setenv("XDG_CACHE_HOME", cache, 1) : unsetenv("XDG_CACHE_HOME");
    home ? setenv("HOME", home, 1) : unsetenv("HOME");
    EXPECT_EQ(PluginCache::getUserFile(), file);
  }
}

TEST_F(Frei0rCache, KeepsFailuresUntilTheyAreRetried) {
  read();
  setenv("QV_MENDED", "yes", 1);
  EXPECT_EQ(read().tools.size(), 1U);
  EXPECT_EQ(read({.retry = true}).tools.size(), 2U);
  EXPECT_EQ(read().tools.size(), 2U);
  EXPECT_EQ(loads(), 1);
}

} // namespace

} // namespace Qv
