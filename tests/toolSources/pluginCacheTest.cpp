#include "pluginCache.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <sys/stat.h>

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
  /// Reads plug-ins as a run of its own; reading the second one fails.
  /// @param during is called after each result.
  /// @returns the names of those that had to be read.
  Strings read(
      std::vector<fs::path> const& plugins, bool retry = false,
      std::function<void()> const& during = [] {}) {
    Strings names;
    auto const scan = [&](std::vector<fs::path> const& unread, TakeResult const& take) {
      for (fs::path const& plugin : unread) {
        names.push_back(plugin.filename());
        bool const fails = plugin == second_;
        take(plugin, {.failure = fails ? "fails" : "",
                      .passing = passing_,
                      .category = fails ? "" : "Source",
                      .version = "2.10"});
        during();
      }
    };
    PluginCache cache(cache_, [&](std::string const& notice) { notices_.push_back(notice); });
    entries_ = cache.read(plugins, retry, scan);
    return names;
  }
  Strings read(bool retry = false) { return read({first_, second_}, retry); }

  fs::path const cache_ = directory_ / "cache" / "plugins";
  fs::path const first_ = write("first.so", "");
  fs::path const second_ = write("second.so", "");
  fs::path const third_ = write("third.so", "");
  bool passing_ = false;
  std::vector<PluginCache::Entry> entries_;
  Strings notices_;
};

TEST_F(PluginCacheFile, SparesTheReadingOfWhatDidNotChange) {
  for (bool const cached : {false, true}) {
    EXPECT_EQ(read(), cached ? Strings() : (Strings{"first.so", "second.so"}));
    ASSERT_EQ(entries_.size(), 2U);
    EXPECT_EQ(entries_[0].result.version, "2.10");
    EXPECT_EQ(entries_[1].result.failure, "fails");
    EXPECT_EQ(entries_[0].cached, cached);
  }

  auto const modified = fs::last_write_time(first_);
  // Another file of the same size and age.
  fs::rename(write("other", ""), first_);
  fs::last_write_time(first_, modified);
  EXPECT_THAT(read(), ElementsAre("first.so"));
  // One nanosecond is enough.
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
  passing_ = true;
  EXPECT_THAT(read(true), ElementsAre("second.so"));
  EXPECT_THAT(read(), ElementsAre("second.so"));
}

TEST_F(PluginCacheFile, KeepsWhatWasReadBeforeAnInterruption) {
  struct Interruption {};
  EXPECT_THROW(read({first_, second_}, false, [] { throw Interruption(); }), Interruption);
  EXPECT_THAT(read(), ElementsAre("second.so"));
}

TEST_F(PluginCacheFile, KeepsWhatProgramsReadAtTheSameTime) {
  read({first_}, false, [&] { read({second_}, false, [&] { read({third_}); }); });
  EXPECT_THAT(read({first_, second_, third_}), IsEmpty());
}

TEST_F(PluginCacheFile, IsIgnoredWhereItIsDamaged) {
  read();
  std::string const whole = TemporaryDirectory::read("cache/plugins");
  std::string other = whole;
  other[other.find('\0') - 1] = '0';
  std::string evil = whole;
  evil.replace(evil.find("Source"), 6, "Evil");
  std::string const cut = whole.substr(0, whole.size() - 1);
  for (auto const& [damaged, count] : {std::pair(std::string(), 2),
                                       {"garbage", 2},
                                       {other, 2},
                                       {evil, 2},
                                       {cut, 1},
                                       {whole.substr(0, whole.find("second") + 20), 1}}) {
    write("cache/plugins", damaged);
    EXPECT_EQ(read().size(), count);
    EXPECT_EQ(TemporaryDirectory::read("cache/plugins"), whole);
  }
  EXPECT_THAT(notices_, IsEmpty());
}

TEST_F(PluginCacheFile, IsDoneWithoutWhereItCannotBeUsed) {
  fs::create_directories(cache_ / "full");
  read();
  fs::remove_all(cache_);
  mkfifo(cache_.c_str(), 0600);
  read();
  fs::remove_all(cache_.parent_path());
  write("cache", "");
  EXPECT_EQ(read().size(), 2U);
  EXPECT_THAT(notices_, ElementsAre(HasSubstr("not a regular file"),
                                    HasSubstr("not a regular file"), HasSubstr("Not a directory")));
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
