#include "frei0rTools.h"
#include "refusal.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <dlfcn.h>

namespace Qv {

namespace {

namespace fs = std::filesystem;

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

class Frei0rTools : public testing::Test, protected TemporaryDirectory {
protected:
  fs::path install(fs::path const& plugin, char const* name) const {
    fs::copy_file(plugin, directory_ / name);
    return directory_ / name;
  }
};

TEST_F(Frei0rTools, AreListedByFileAndByType) {
  install(MUTEPLUGIN_FILE, "a.so");
  install(CLOUDSPLUGIN_FILE, "c.so");
  install(CLOUDSPLUGIN_FILE, "b.x.so");
  write("readme.txt", "no plug-in");

  ToolSource const source = readFrei0rTools(directory_);
  std::vector<std::string> names;
  for (ToolSource::Tool const& tool : source.tools)
    names.push_back(tool.facts.name + " in " + tool.facts.category);
  EXPECT_THAT(names, ElementsAre("a in Mixer2", "b.x in Source", "c in Source"));
  EXPECT_THAT(source.categories, ElementsAre("Source", "Mixer2"));
  EXPECT_THAT(source.warnings, ElementsAre());
}

TEST_F(Frei0rTools, SayWhatThePluginSays) {
  fs::path const file = install(CLOUDSPLUGIN_FILE, "clouds.so");
  unsetenv("QV_CLOUDS_ENDED");

  ToolSource const source = readFrei0rTools(directory_);
  ASSERT_EQ(source.tools.size(), 1U);
  EXPECT_THAT(source.tools[0].facts.infoTexts,
              ElementsAre("Clouds/Sky", "Paints clouds.", "A. Painter, version 2.10"));
  EXPECT_EQ(source.tools[0].tooltip, "Moving (bool): Whether they move<br>"
                                     "Density (double)<br>"
                                     "Sky (color): Between the clouds<br>"
                                     "Sun (position)<br>"
                                     "Kind (string): cirrus or cumulus<br>"
                                     "Later (unknown type)");
  EXPECT_STREQ(getenv("QV_CLOUDS_ENDED"), "yes");
  EXPECT_EQ(dlopen(file.c_str(), RTLD_LAZY | RTLD_NOLOAD), nullptr) << "it is still loaded";
}

TEST_F(Frei0rTools, ThatSayNothingHaveEmptyTexts) {
  install(MUTEPLUGIN_FILE, "mute.so");

  ToolSource const source = readFrei0rTools(directory_);
  ASSERT_EQ(source.tools.size(), 1U);
  EXPECT_THAT(source.tools[0].facts.infoTexts, ElementsAre("", "", "version 0.0"));
  EXPECT_EQ(source.tools[0].tooltip, "unnamed (double)");
}

TEST_F(Frei0rTools, ThatCannotBeReadAreLeftOut) {
  fs::path const half = install(HALFPLUGIN_FILE, "half.so");
  install(MUTEPLUGIN_FILE, "mute.so");
  fs::path const text = write("text.so", "this is text, and long enough to hold a file header, "
                                         "so that the loader looks at what it says");

  ToolSource const source = readFrei0rTools(directory_);
  EXPECT_EQ(source.tools.size(), 1U);
  EXPECT_THAT(source.warnings,
              ElementsAre(AllOf(HasSubstr(half.string()), HasSubstr("f0r_get_plugin_info")),
                          AllOf(HasSubstr(text.string()), HasSubstr("header"))));
}

TEST_F(Frei0rTools, AreNeededInTheDirectory) {
  auto const reading = [](fs::path const& directory) {
    return refusalOf([&] { readFrei0rTools(directory); });
  };
  EXPECT_THAT(reading(directory_), AllOf(HasSubstr(directory_.string()), HasSubstr("no plug-in")));
  EXPECT_THAT(reading(directory_ / "missing"),
              AllOf(HasSubstr("missing\""), HasSubstr("No such file")));
}

} // namespace

} // namespace Qv
