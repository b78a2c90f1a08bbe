#include "frei0rTools.h"
#include "isolationGaps.h"
#include "refusal.h"
#include "refusedCalls.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <csignal>
#include <fcntl.h>
#include <fmt/format.h>
#include <poll.h>
#include <sys/stat.h>
#include <sys/wait.h>

namespace Qv {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::Each;
using testing::ElementsAre;
using testing::HasSubstr;

using namespace std::string_literals;

/// Plug-ins that act by their names, in a directory beside a home that is not for them.
class Frei0rPlugins : public testing::Test, protected TemporaryDirectory {
protected:
  Frei0rPlugins() {
    fs::create_directory(plugins_);
    fs::create_directory(directory_ / "home");
    write("home/secret", "");
    mkfifo(life_.c_str(), 0600);
  }

  void install(std::string const& name) const {
    fs::path const file = plugins_ / (name + ".so");
    fs::create_directories(file.parent_path());
    fs::copy_file(ACTORPLUGIN_FILE, file);
  }
  /// Reads the directory as a run of its own.
  ToolSource read(ScanOptions const& options = {}) const {
    PluginCache cache(directory_ / "cache", {});
    return Frei0rTools(cache, options).read(plugins_);
  }

  fs::path const plugins_ = directory_ / "plugins";
  /// A pipe that plug-ins hold.
  fs::path const life_ = plugins_ / "life";
};

TEST_F(Frei0rPlugins, SayWhatThePluginSays) {
  install("clouds");
  install("mute");
  // From the plug-ins, and from the cache.
  for (int run = 0; run < 2; ++run) {
    ToolSource const source = read();
    EXPECT_THAT(source.categories, ElementsAre("Source", "Mixer2"));
    EXPECT_EQ(source.plugins[0].version, "2.10");
    EXPECT_EQ(source.plugins[0].parameters.at(2).name, "Sky");
    auto const& tools = source.tools;
    ASSERT_EQ(tools.size(), 2U);
    EXPECT_THAT(tools[0].tool->getInfo().infoTexts,
                ElementsAre("Clouds/Sky", "Paints clouds.", "A. Painter, version 2.10"));
    EXPECT_EQ(tools[0].tooltip, "Moving (bool): Whether they move<br>"
                                "Density (double)<br>"
                                "Sky (color): Between the clouds<br>"
                                "Sun (position)<br>"
                                "Kind (string): cirrus or cumulus<br>"
                                "unnamed (unknown type)");
    EXPECT_THAT(tools[1].tool->getInfo().infoTexts, ElementsAre("", "", "version 0.0"));
    EXPECT_EQ(tools[1].tooltip, "");
  }
}

TEST_F(Frei0rPlugins, AreFoundWhereTheInterfaceSays) {
  install("../a/clouds");
  install("../a/b.x");
  write("a/readme.txt", "not a plug-in");
  write("a/mute.so", "not a plug-in");
  install("../b/mute");
  install("../b/vendor/deep/clouds");
  install("../b/vendor/deep/deeper/out");
  install("../home/.frei0r-1/lib/clouds");
  fs::create_directory(directory_ / "b/folder.so");
  fs::create_symlink("nowhere", directory_ / "b/dangling.so");
  fs::create_symlink(".", directory_ / "b/self");
  mkfifo((directory_ / "b/fifo.so").c_str(), 0600);

  auto const readPlaces = [&](std::string const& places) {
    setenv("FREI0R_PATH", places.c_str(), 1);
    std::string found;
    PluginCache cache("", {});
    ScanOptions const options = {
        .notice = [&](std::string const& notice) { found += notice + "\n"; }};
    for (auto const& plugin : Frei0rTools(cache, options).read().plugins)
      found += fmt::format("{} {} {} {} {} {}\n", plugin.file.string(), plugin.place.string(),
                           plugin.tool, plugin.category, plugin.failure, plugin.hiddenBy.string());
    for (std::size_t at = 0; (at = found.find(directory_)) != std::string::npos;)
      found.erase(at, directory_.native().size() + 1);
    return found;
  };
  std::string const root = directory_;
  EXPECT_EQ(readPlaces(root + "/a::" + root + "/missing:" + root + "/b:" + root + "/a"),
            "cannot search for plug-ins in \"missing\": No such file or directory\n"
            "a/b.x.so a b.x Source  \n"
            "a/clouds.so a clouds Source  \n"
            "a/mute.so a   file too short \n"
            "b/mute.so b mute Mixer2  \n"
            "b/vendor/deep/clouds.so b    a/clouds.so\n");
  for (auto const& [places, reason] : {std::pair(root + "/missing", "missing\": No such file"),
                                       {root + "/b/folder.so", "folder.so\": no plug-in file"},
                                       {"", "FREI0R_PATH"}})
    EXPECT_THAT(refusalOf([&, &places = places] { readPlaces(places); }), HasSubstr(reason));

  unsetenv("FREI0R_PATH");
  setenv("HOME", (root + "/home").c_str(), 1);
  PluginCache cache("", {});
  EXPECT_EQ(Frei0rTools(cache, {}).read().plugins.at(0).file,
            directory_ / "home/.frei0r-1/lib/clouds.so");
}

TEST_F(Frei0rPlugins, NeedTheirReader) {
  install("clouds");
  EXPECT_THAT(refusalOf([&] { read({.reader = directory_ / "missing"}); }),
              AllOf(HasSubstr("missing\""), HasSubstr("No such file")));
  EXPECT_THAT(refusalOf([&] { read({.reader = "/bin/true"}); }), HasSubstr("ended before"));
}

TEST_F(Frei0rPlugins, CostOnlyThemselvesWhateverTheyDo) {
  write("plugins/caller", std::to_string(getpid()));
  write("plugins/text.so", "not a plug-in");
  write("plugins/foreign.so", "\x7f"
                              "ELF\2\1\1"s +
                                  std::string(9, '\0') + "\3\0\xb7\0"s);

  constexpr char Refused[] = "Operation not permitted";
  constexpr char Forbidden[] = "made a forbidden system call";
  // Why one is left out, or what came of what it tried.
  std::map<std::string, std::string> const expected = {
      {"unnamed", "no name"},
      {"mistyped", "unknown type 17"},
      {"owing", "claims to have -1 parameters"},
      {"boasting", "claims to have 1001 parameters"},
      {"half", "no function f0r_get_plugin_info"},
      {"text", "file too short"},
      {"foreign", "built for aarch64, not x86-64"},
      {"tinted", "unknown color model 3"},
      {"modern", "needs version 2 of the plug-in interface, newer than 1"},
      {"\xe9", "Paints clouds."},

      {"abort", "crashed with SIGABRT (Aborted)"},
      {"crash", "crashed with SIGSEGV (Segmentation fault)"},
      {"throw", "crashed with SIGABRT (Aborted)"},
      {"leave", "exited with status 3 without replying"},
      {"loop", "used more than 1 s of processor time"},
      {"loopOn", "crashed with SIGKILL (Killed)"},
      {"garble", "malformed reply"},
      {"flood", "replied with more than 1048576 bytes"},
      {"forge", "malformed reply"},
      {"forgeAndCrash", ""},
      {"crashLate", "Paints clouds."},
      {"loopLate", "Paints clouds."},
      {"print", "Paints clouds."},

      {"writeHere", Refused},
      {"writeBeside", Refused},
      {"writeAtHome", Refused},
      {"truncate", Refused},
      {"remove", Refused},
      {"expose", Refused},
      {"read", "Permission denied"},
      {"readEnvironment", "No such file or directory"},
      {"connect", Refused},
      {"connectLocally", Refused},
      {"signal", Forbidden},
      {"signalParent", Forbidden},
      {"signalByPipe", Refused},
      {"trace", Forbidden},
      {"daemon", Refused},
      {"execute", Forbidden},
#ifndef QV_SANITIZED
      {"memory", "Cannot allocate memory"},
#endif
      {"thread", "done"}};
  for (auto const& [name, outcome] : expected)
    if (name != "text" && name != "half" && name != "foreign")
      install(name);
  fs::copy_file(HALFPLUGIN_FILE, plugins_ / "half.so");

  for (bool const cached : {false, true}) {
    ToolSource const source = read({.processorTime = std::chrono::seconds(1)});
    std::map<std::string, std::string> outcomes;
    for (ToolSource::Plugin const& plugin : source.plugins) {
      outcomes[plugin.file.stem()] = plugin.failure;
      EXPECT_EQ(plugin.cached, cached);
    }
    for (ToolSource::Tool const& tool : source.tools)
      outcomes[tool.tool->getInfo().name] = tool.tool->getInfo().infoTexts[1];
    EXPECT_EQ(outcomes, expected);
  }
  for (char const* const file : {"written", "plugins/written", "home/written", "home/executed"})
    EXPECT_FALSE(fs::exists(directory_ / file)) << file;
}

TEST_F(Frei0rPlugins, ThatDoNotReplyInTimeAreTriedAgain) {
  install("sleep");
  for (int run = 0; run < 2; ++run) {
    std::string progress;
    ToolSource const source =
        read({.timeout = std::chrono::milliseconds(100),
              .progress = [&](std::string const& text) { progress += text; }});
    EXPECT_EQ(source.plugins.at(0).failure, "no reply within 0.1 s");
    EXPECT_FALSE(source.plugins.at(0).cached);
    EXPECT_THAT(progress, HasSubstr("0 of 1: sleep.so"));
  }
}

TEST_F(Frei0rPlugins, EndWithWhoeverReadsThem) {
  install("sleep");
  pid_t const child = fork();
  if (child == 0) {
    read();
    _exit(EXIT_SUCCESS);
  }
  // It can be opened once the plug-in has opened it.
  int life = -1;
  while ((life = open(life_.c_str(), O_WRONLY | O_NONBLOCK)) < 0 &&
         waitpid(child, nullptr, WNOHANG) == 0)
    usleep(1000);
  ASSERT_GE(life, 0);
  kill(child, SIGKILL);
  waitpid(child, nullptr, 0);
  pollfd lives = {life, 0, 0};
  EXPECT_EQ(poll(&lives, 1, 60'000), 1) << "the plug-in still runs";
  close(life);
}

TEST_F(Frei0rPlugins, LeaveNothingBehindWhereTheyCannotBeIsolated) {
  EXPECT_THAT(findIsolationGaps(), testing::IsEmpty());
  install("daemon");
  pollfd lives = {open(life_.c_str(), O_RDONLY | O_NONBLOCK), POLLIN, 0};
  runWithoutCalls({SCMP_SYS(landlock_create_ruleset), SCMP_SYS(seccomp)}, [&] {
    EXPECT_THAT(findIsolationGaps(),
                AllOf(testing::SizeIs(2), Each(HasSubstr("Function not implemented"))));
    EXPECT_THAT(refusalOf([&] { read({.requireIsolation = true}); }),
                AllOf(HasSubstr("Landlock"), HasSubstr("seccomp")));
    EXPECT_EQ(read().tools.at(0).tool->getInfo().infoTexts[1], "done");
  });
  // It would still hold the pipe if it lived.
  EXPECT_EQ(poll(&lives, 1, 0), 1);
  EXPECT_EQ(lives.revents, POLLHUP);
  close(lives.fd);
}

} // namespace

} // namespace Qv
