#include "toolCatalogue.h"
#include "hostToolRegistry.h"
#include "hostTtServer.h"
#include "hostViewFactory.h"
#include "refusal.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <cstdlib>
#include <sys/resource.h>

namespace Qv {

namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;

using namespace std::string_literals;

std::string refusal(std::filesystem::path const& file) {
  return refusalOf([&] { readToolCatalogue(file); });
}

struct Refused {
  char const* name;
  std::string text;
  char const* place;
  char const* reason;
};

void PrintTo(Refused const& refused, std::ostream* stream) { *stream << refused.name; }

Refused const Faults[] = {
    {"NothingAtAll", "", "line 1, column 1", "end of input"},
    {"CutOff", "{\n  \"views\": [\n", "line 3, column 1", "end of input"},
    {"LastComma", "{\n  \"tools\": [],\n}", "line 3, column 1", "'}'"},
    {"ColumnInCharacters", "{\"views\": [{\"name\": \"äöü\", x}]}", "line 1, column 28", "literal"},
    {"NoUtf8", "{\"views\": \"\xff\"}", "line 1, column 12", "UTF-8"},
    {"NumberTooLarge", "{\n\"tools\": 1e999}", "line 2, column 14", "overflow"},
    {"SecondValue", "{}\n{}", "line 2, column 1", "end of input"},
    {"ZeroByte", "{\n\0}"s, "line 2, column 1", "zero byte"},
    {"ZeroByteAtTheEnd", "{}\0"s, "line 1, column 3", "zero byte"},
    {"FarDownALongLine", "{\n" + std::string(200'000, ' ') + "ä", "line 2, column 200001", "key"},
    {"FarDown", std::string(200'000, '\n') + "{ä", "line 200001, column 2", "key"},

    {"NoObject", "[]", "the root", "found array"},
    {"UnknownKey", R"({"tool": []})", "/tool", "unknown"},
    {"NoArray", R"({"views": {}})", "/views", "found object"},
    {"RepeatedKey", R"({"tools": [], "tools": []})", "/tools", "duplicate key"},
    {"RepeatedKeyDeepDown",
     R"({"views": [{"name": "v"}, {"name": "w", "label": "", "name": "x"}]})", "/views/1/name",
     "duplicate key"},

    {"CategoryOfWrongType", R"({"categories": ["a", 1]})", "/categories/1", "found number"},
    {"CategoryWithSlash", R"({"categories": ["a/b"]})", "/categories/0", "\"a/b\" contains"},
    {"CategoryNotListed",
     R"({"categories": ["a"], "tools": [{"name": "t", "category": "a"},
                                        {"name": "t", "category": "b"}]})",
     "/tools/1/category", "\"b\" is not listed"},

    {"ToolNoObject", R"({"tools": [null]})", "/tools/0", "found null"},
    {"ToolWithoutCategory", R"({"tools": [{"name": "t"}]})", "/tools/0/category", "missing"},
    {"ToolNameEmpty", R"({"tools": [{"name": "", "category": "c"}]})", "/tools/0/name", "empty"},
    {"ToolCategoryEmpty", R"({"tools": [{"name": "t", "category": ""}]})", "/tools/0/category",
     "empty"},
    {"ToolWithUnknownKey", R"({"tools": [{"name": "t", "category": "c", "a/b~": 1}]})",
     "/tools/0/a~1b~0", "unknown"},
    {"FlagOfWrongType", R"({"tools": [{"name": "t", "category": "c", "active": 1}]})",
     "/tools/0/active", "found number"},
    {"TwoTexts", R"({"tools": [{"name": "t", "category": "c", "texts": ["", ""]}]})",
     "/tools/0/texts", "found 2"},
    {"FourTexts", R"({"tools": [{"name": "t", "category": "c", "texts": ["", "", "", ""]}]})",
     "/tools/0/texts", "found 4"},
    {"TextOfWrongType", R"({"tools": [{"name": "t", "category": "c", "texts": ["", "", []]}]})",
     "/tools/0/texts/2", "found array"},
    {"TooltipOfWrongType", R"({"tools": [{"name": "t", "category": "c", "tooltip": true}]})",
     "/tools/0/tooltip", "found boolean"},

    {"ViewWithSlash", R"({"views": [{"name": "v/w"}]})", "/views/0/name", "contains"},
    {"ViewRepeated", R"({"views": [{"name": "v"}, {"name": "w"}, {"name": "v"}]})", "/views/2/name",
     "duplicate view \"v\""},
    {"LabelOfWrongType", R"({"views": [{"name": "v", "label": null}]})", "/views/0/label",
     "found null"},
};

class ToolCatalogueFaults : public testing::TestWithParam<Refused>, protected TemporaryDirectory {};

TEST_P(ToolCatalogueFaults, AreNamedWithFileAndPlace) {
  std::filesystem::path const file = write("catalogue.json", GetParam().text);
  EXPECT_THAT(refusal(file),
              AllOf(HasSubstr("\"" + file.string() + "\""),
                    HasSubstr(std::string(" at ") + GetParam().place + ": "),
                    HasSubstr(GetParam().reason), testing::Not(HasSubstr("exception"))));
}

INSTANTIATE_TEST_SUITE_P(, ToolCatalogueFaults, testing::ValuesIn(Faults),
                         [](auto const& test) { return std::string(test.param.name); });

class ToolCatalogue : public testing::Test, protected TemporaryDirectory {
protected:
  ~ToolCatalogue() override {
    HostToolRegistry::getInstance().clear();
    HostTtServer::getInstance().clear();
    HostViewFactory::getInstance().clear();
  }
};

TEST_F(ToolCatalogue, ThatCannotBeReadIsRefused) {
  EXPECT_THAT(refusal(directory_ / "missing.json"),
              AllOf(HasSubstr("missing.json\""), HasSubstr("No such file")));
  EXPECT_THAT(refusal(directory_), AllOf(HasSubstr(directory_.string()), HasSubstr("directory")));
}

/// The info of each tool, in words.
std::vector<std::string> toolsOf(ToolSource const& source) {
  std::vector<std::string> result;
  for (auto const& [tool, tooltip] : source.tools) {
    HostToolInfo const& info = tool->getInfo();
    result.push_back(info.name + " in " + info.category + (info.active ? ", active" : "") +
                     (info.internal ? ", internal" : "") + (info.superTool ? ", super" : "") +
                     ": " + info.infoTexts[0] + "/" + info.infoTexts[1] + "/" + info.infoTexts[2] +
                     "; " + tooltip);
  }
  return result;
}

TEST_F(ToolCatalogue, HasDefaultsForAllButNames) {
  ToolSource const source =
      readToolCatalogue(write("catalogue.json", R"({"tools": [{"name": "b", "category": "y"},
                                            {"name": "a", "category": "x"},
                                            {"name": "b", "category": "y"}],
                                  "views": [{"name": "v"}]})"));
  EXPECT_THAT(source.categories, ElementsAre("y", "x"));
  EXPECT_THAT(toolsOf(source),
              ElementsAre("b in y, active: //; ", "a in x, active: //; ", "b in y, active: //; "));
  ASSERT_EQ(source.views.size(), 1U);
  EXPECT_EQ(source.views[0].label, "v");
  EXPECT_EQ(source.views[0].tooltip, "");
}

TEST_F(ToolCatalogue, IsTakenAsItSays) {
  ToolSource const source = readToolCatalogue(write("catalogue.json", R"({
    "tools": [{"name": "t", "category": "a", "active": false, "superTool": true,
               "texts": ["one", "two", "\u0033"], "tooltip": "tool tip"},
              {"name": "u", "category": "z", "internal": true}],
    "categories": ["z", "a", "z"],
    "views": [{"name": "v", "label": "", "tooltip": "view tip"}]})"));
  EXPECT_THAT(source.categories, ElementsAre("z", "a", "z"));
  EXPECT_THAT(toolsOf(source),
              ElementsAre("t in a, super: one/two/3; tool tip", "u in z, active, internal: //; "));
  ASSERT_EQ(source.views.size(), 1U);
  EXPECT_EQ(source.views[0].label, "");

  registerToolSources({source});
  HostToolRegistry& registry = HostToolRegistry::getInstance();
  EXPECT_EQ(registry.getCategories().getCardinality(), 3);
  EXPECT_TRUE(registry.isSuperTool("t"));
  ASSERT_EQ(HostViewFactory::getInstance().getNames().size(), 1U);
  EXPECT_EQ(HostViewFactory::getInstance().getNames()[0], "v");
  EXPECT_EQ(HostTtServer::getInstance().lookupTooltip("t"), "tool tip");
  EXPECT_EQ(HostTtServer::getInstance().lookupTooltip("v"), "view tip");
}

#ifndef QV_SANITIZED
TEST_F(ToolCatalogue, ThatDoesNotFitIntoMemoryIsRefused) {
  std::string const text(64 << 20, 'x');
  std::filesystem::path const file = write("catalogue.json", R"({"views": [{"name": ")" + text);
  EXPECT_EXIT(
      {
        rlimit limit = {};
        limit.rlim_cur = limit.rlim_max = 256 << 20;
        setrlimit(RLIMIT_AS, &limit);
        std::fputs(refusal(file).c_str(), stderr);
        std::exit(EXIT_SUCCESS);
      },
      testing::ExitedWithCode(EXIT_SUCCESS), "^cannot read .*json\": out of memory$");
}
#endif

TEST_F(ToolCatalogue, SampleIsWithoutFault) {
  EXPECT_NO_THROW(readToolCatalogue(std::filesystem::path(RESOURCE_DIR) / "sampleCatalogue.json"));
}

} // namespace

} // namespace Qv
