#include "pluginCache.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

namespace Qv {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

using Strings = std::vector<std::string>;

class PluginCacheFile : public testing::Test, protected TemporaryDirectory {
protected:
  /// Reads both plug-ins as a run of its own. The tool's category is `category_`, and reading the
  /// second one fails.
  /// @returns the names of those that had to be read.
  Strings read(bool retry = false) {
    Strings names;
    auto const scan = [&](std::vector<fs::path> const& plugins) {
      ScanResults results;
      for (fs::path const& plugin : plugins) {
        names.push_back(plugin.filename());
        ScanResult& result = results[plugin];
        result.category = category_;
        result.version = "2.10";
        result.failure = plugin == second_ ? "fails" : "";
      }
      return results;
    };
    PluginCache cache(cache_);
    entries_ = cache.read({first_, second_}, retry, scan);
    return names;
  }

  fs::path const cache_ = directory_ / "cache" / "plugins";
  fs::path const first_ = write("first.so", "");
  fs::path const second_ = write("second.so", "");
  std::string category_ = "Source";
  std::vector<PluginCache::Entry> entries_;
};

TEST_F(PluginCacheFile, SparesTheReadingOfWhatDidNotChange) {
  for (bool const cached : {false, true}) {
    EXPECT_EQ(read(), cached ? Strings() : (Strings{"first.so", "second.so"}));
    ASSERT_EQ(entries_.size(), 2U);
    EXPECT_EQ(entries_[0].plugin, first_);
    EXPECT_EQ(entries_[0].result.version, "2.10");
    EXPECT_EQ(entries_[1].result.failure, "fails");
    EXPECT_EQ(entries_[0].cached, cached);
  }

  // One nanosecond is enough.
  auto const modified = fs::last_write_time(first_);
  fs::last_write_time(first_, modified + std::chrono::nanoseconds(1));
  EXPECT_THAT(read(), ElementsAre("first.so"));
  write("first.so", "more");
  fs::last_write_time(first_, modified + std::chrono::nanoseconds(1));
  EXPECT_THAT(read(), ElementsAre("first.so"));
  fs::remove(first_);
  EXPECT_THAT(read(), ElementsAre("first.so"));
  EXPECT_THAT(TemporaryDirectory::read("cache/plugins"),
              AllOf(HasSubstr("second.so"), Not(HasSubstr("first.so"))));
}

TEST_F(PluginCacheFile, KeepsFailuresUntilTheyAreRetried) {
  read();
  EXPECT_THAT(read(true), ElementsAre("second.so"));
  EXPECT_FALSE(entries_[1].cached);
  EXPECT_THAT(read(), IsEmpty());
}

TEST_F(PluginCacheFile, IsIgnoredWhenItCannotBeUnderstood) {
  read();
  std::string const whole = TemporaryDirectory::read("cache/plugins");
  std::string other = whole;
  other[other.find('\0') - 1] = '0';
  std::string evil = whole;
  evil.replace(evil.find("Source"), 6, "Evil");
  for (std::string const& damaged :
       {std::string(), std::string("garbage"), other, evil, whole.substr(0, whole.size() - 1),
        whole.substr(0, whole.find("second") + 20)}) {
    write("cache/plugins", damaged);
    EXPECT_EQ(read().size(), 2U);
    EXPECT_EQ(TemporaryDirectory::read("cache/plugins"), whole);
  }
  // A directory in place of the file, and in place of its directory a file.
  fs::remove(cache_);
  fs::create_directories(cache_ / "full");
  EXPECT_EQ(read().size(), 2U);
  fs::remove_all(cache_.parent_path());
  write("cache", "");
  EXPECT_EQ(read().size(), 2U);
}

TEST_F(PluginCacheFile, IsTheUsersOwn) {
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

} // namespace

} // namespace Qv
