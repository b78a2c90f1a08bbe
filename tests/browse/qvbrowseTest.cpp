#include "runProgram.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <algorithm>
#include <iomanip>
#include <nlohmann/json.hpp>
#include <sstream>

namespace Qv {

namespace {

using nlohmann::json;
using nlohmann::literals::operator""_json;
using testing::AllOf;
using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::MatchesRegex;
using testing::Not;

using Strings = std::vector<std::string>;
/// What is given and what is expected.
using Cases = std::vector<std::pair<std::string, Strings>>;

constexpr char Catalogue[] = R"({
  "categories": ["Wood", "Kit", "Empty", "Wood"],
  "tools": [
    {"name": "saw", "category": "Wood", "texts": ["Hand saw", "Cuts wood.", "Workshop, 2.1"],
     "tooltip": "Mind your<br>fingers."},
    {"name": "größe", "category": "Wood"},
    {"name": "lathe", "category": "Wood", "active": false},
    {"name": "cache", "category": "Wood", "internal": true},
    {"name": "Kit", "category": "Kit", "superTool": true}],
  "views": [
    {"name": "plan", "label": "Site plan", "tooltip": "From above."},
    {"name": "übersichtsplan", "label": "Overview"}]})";

/// The words of a command line; double quotes keep blanks in a word.
Strings words(std::string const& line) {
  Strings result;
  std::istringstream stream(line);
  for (std::string word; stream >> std::quoted(word);)
    result.push_back(word);
  return result;
}

/// What a terminal shows, without its styles and with the line ends of a file.
std::string withoutStyles(std::string text) {
  for (std::size_t style = 0; (style = text.find("\x1b[", style)) != std::string::npos;)
    text.erase(style, text.find('m', style) + 1 - style);
  std::erase(text, '\r');
  return text;
}

/// A member of each element of an array.
Strings all(json const& array, char const* key) {
  Strings values;
  for (json const& element : array)
    values.push_back(element.at(key));
  return values;
}

/// The output of a run that has to succeed and to say nothing else.
std::string result(ProgramRun const& run) {
  EXPECT_EQ(run.status, 0);
  EXPECT_EQ(run.err, "");
  return run.out;
}

void expectFailure(ProgramRun const& run, Strings const& reasons) {
  EXPECT_EQ(run.status, 1);
  EXPECT_EQ(run.out, "");
  EXPECT_THAT(run.err, MatchesRegex("qvbrowse: [^\n]+\n"));
  for (std::string const& reason : reasons)
    EXPECT_THAT(run.err, HasSubstr(reason));
}

/// Runs the program in a directory that holds a catalogue.
class QvBrowse : public TemporaryDirectory {
protected:
  QvBrowse() { write("catalogue.json", Catalogue); }

  ProgramRun run(std::string const& arguments, std::string const& prefix = "",
                 Stdout kind = Stdout::Pipe) const {
    return runProgram(words(prefix + " \"" QVBROWSE_FILE "\" " + arguments), directory_, kind);
  }
  ProgramRun browse(std::string const& arguments) const {
    return run("--tools catalogue.json " + arguments);
  }
  json browseJson(std::string const& arguments) const {
    return json::parse(result(browse("--json " + arguments)));
  }
  void install(char const* plugin, char const* name) const {
    std::filesystem::create_directories(directory_ / "plugins");
    std::filesystem::copy_file(plugin, directory_ / "plugins" / name);
  }
};

class QvBrowseCall : public QvBrowse {};

TEST_F(QvBrowseCall, ExplainsItself) {
  std::string const overview = result(run("--help"));
  for (std::string const command : {"tree", "ls", "show", "schemes", "startup", "packages",
                                    "actions", "run-action", "drag", "detail"}) {
    EXPECT_THAT(overview, HasSubstr("\n  " + command + " "));
    EXPECT_THAT(result(run(command + " --help")),
                AllOf(HasSubstr("Usage: qvbrowse " + command + " "), HasSubstr("--json")));
  }
  EXPECT_THAT(result(run("--version")), MatchesRegex("qvbrowse [0-9]+\\.[0-9.]+\n"));
}

TEST_F(QvBrowseCall, WrongUseHasItsOwnStatus) {
  auto const expectUsageError = [&](std::string const& arguments, std::string const& fault) {
    SCOPED_TRACE(arguments);
    ProgramRun const wrong = run(arguments);
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.out, "");
    EXPECT_THAT(wrong.err, HasSubstr(fault));
  };
  for (std::string const lastIsWrong :
       {"prune", "--tools catalogue.json prune", "--prune", "ls tools --prune", "schemes packages",
        "ls tools a surplus", "tree tools --depth -1", "tree tools --depth two",
        "tree tools --depth 1e99", "ls tools --filter few"})
    expectUsageError(lastIsWrong, words(lastIsWrong).back());
  for (char const* const tooShort :
       {"ls", "show tools", "drag tools", "detail tools", "run-action Open", "--tools", "--module",
        "tree tools --depth"})
    expectUsageError(tooShort, "required");
}

TEST_F(QvBrowseCall, OptionsMayStandAfterTheCommand) {
  std::string const listed = result(browse("--json ls tools"));
  EXPECT_EQ(result(run("ls --tools catalogue.json tools --json")), listed);
  EXPECT_EQ(result(run("ls tools --json --module \"" PLUGINBROWSERQVMODULE_FILE
                       "\" --tools catalogue.json")),
            listed);
}

TEST_F(QvBrowseCall, FailsWhenTheResultCannotBeWritten) {
  for (std::string const arguments : {"tree tools", "drag tools Wood"})
    expectFailure(
        run("--tools catalogue.json " + arguments, R"(sh -c "exec \"$0\" \"$@\" >/dev/full")"),
        {"cannot write", "No space left"});
}

class QvBrowseRefuses : public QvBrowse {};

TEST_F(QvBrowseRefuses, AModuleThatIsNone) {
  for (auto const& [file, reasons] :
       Cases{{"missing.qvmodule", {"\"missing.qvmodule\"", "no such file"}},
             {"catalogue.json", {"catalogue.json\"", "ELF header"}},
             {EMPTYMODULE_FILE, {EMPTYMODULE_FILE, "registers no package"}},
             {LOSTMODULE_FILE, {"\"lost\"", "QvInit::nowhere", "no loaded library provides"}}}) {
    SCOPED_TRACE(file);
    expectFailure(browse("--module \"" + file + "\" schemes"), reasons);
  }
}

TEST_F(QvBrowseRefuses, ASourceWithAFault) {
  for (auto const& [text, reasons] :
       Cases{{"{\n  parts: []}", {"\"faulty.json\"", "line 2, column 3", "invalid literal"}},
             {R"({"tools": {}})", {"/tools", "expected an array, found object"}},
             {R"({"categories": [""]})", {"/categories/0", "empty"}},
             {R"({"tools": [{"name": "a/b", "category": "c"}]})", {"/tools/0/name", "\"a/b\""}},
             {R"({"categories": ["c"], "tools": [{"name": "t", "category": "d"}]})",
              {"/tools/0/category", "\"d\" is not listed"}}}) {
    SCOPED_TRACE(text);
    write("faulty.json", text);
    for (char const* const before : {"", "--tools catalogue.json "})
      expectFailure(run(before + std::string("--tools faulty.json")), reasons);
  }
  for (std::string const source : {"missing", "frei0r:missing"})
    expectFailure(run("--tools " + source), {"\"missing\"", "No such file"});
  expectFailure(run("--tools frei0r:."), {"\".\"", "no plug-in file"});
}

TEST_F(QvBrowseRefuses, WhatIsNotThere) {
  for (auto const& [arguments, reasons] :
       Cases{{"ls \"a\x1b\nb\"", {R"("a\x1b\nb")"}},
             {"ls parts", {"\"parts\"", "\"tools\", \"views\""}},
             {"drag parts a", {"\"parts\""}},
             {"tree tools a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"show views a/b", {"\"views\"", "\"a/b\""}},
             {"drag tools Wood/saw a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"detail tools Wood/saw a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"detail tools Wood \"\"", {"\"tools\"", "no detail view"}},
             {"run-action Close views plan", {"no action \"Close\""}},
             {"run-action Open tools Wood/saw", {"\"Open\"", "not valid"}},
             {"run-action Open views plan --no-workspace", {"Qv::UiWorkspace*"}},
             {"run-action \"Open in Window\" views plan --no-workspace", {"Qv::UiWorkspace*"}}}) {
    SCOPED_TRACE(arguments);
    expectFailure(browse(arguments), reasons);
  }
}

class QvBrowseSources : public QvBrowse {};

TEST_F(QvBrowseSources, AreCombined) {
  install(CLOUDSPLUGIN_FILE, "clouds.so");
  write("more.json", R"({"tools": [{"name": "axe", "category": "Wood"}]})");
  json const tools =
      browseJson("--tools more.json --tools frei0r:plugins tree tools").at("children");
  EXPECT_THAT(all(tools, "name"), ElementsAre("Wood", "Kit", "Empty", "Wood", "Wood", "Source"));
  EXPECT_THAT(all(tools[0]["children"], "name"), ElementsAre("saw", "größe", "axe"));
}

TEST_F(QvBrowseSources, BringViewsOrGetTheOwnOnes) {
  write("none.json", R"({"views": []})");
  for (auto const& [sources, views] :
       Cases{{"--tools none.json", {"browser", "toolDetail", "startupJournal", "packages"}},
             {"--tools none.json --tools catalogue.json", {"plan", "übersichtsplan"}}})
    EXPECT_EQ(all(json::parse(result(run(sources + " --json ls views --unsorted"))), "path"),
              views);
}

TEST_F(QvBrowseSources, LeaveOutPluginsThatCannotBeRead) {
  install(CLOUDSPLUGIN_FILE, "clouds.so");
  install(HALFPLUGIN_FILE, "half.so");
  install(MUTEPLUGIN_FILE, "mute.so");
  write("plugins/text\n.so", "no plug-in");
  ProgramRun const shown = run("--tools frei0r:plugins tree tools");
  EXPECT_EQ(shown.status, 0);
  EXPECT_EQ(shown.out, "Tools  [Tools Folder]\n"
                       "├── Source  [Tool Category]\n"
                       "│   └── clouds  [Tool]\n"
                       "└── Mixer2  [Tool Category]\n"
                       "    └── mute  [Tool]\n");
  EXPECT_THAT(shown.err,
              MatchesRegex("qvbrowse: [^\n]*\"plugins/half.so\"[^\n]*f0r_get_plugin_info\n"
                           "qvbrowse: [^\n]*\"plugins/text\\\\n.so\"[^\n]*file too short\n"));
}

TEST_F(QvBrowseSources, OfManyToolsAreShownWhole) {
  json tools;
  for (int tool = 0; tool < 100 * 200; ++tool)
    tools.push_back({{"name", "tool" + std::to_string(tool)},
                     {"category", "category" + std::to_string(tool / 200)}});
  write("many.json", json{{"tools", tools}}.dump());
  std::string const tree = result(run("--tools many.json tree tools"));
  EXPECT_EQ(std::count(tree.begin(), tree.end(), '\n'), 1 + 100 + 100 * 200);
  EXPECT_THAT(tree, EndsWith("    └── tool19999  [Tool]\n"));
}

class QvBrowseJson : public QvBrowse {};

TEST_F(QvBrowseJson, ListsChildren) {
  for (auto const& [arguments, paths] :
       Cases{{"tools", {"Empty", "Kit", "Wood", "Wood"}},
             {"tools --unsorted", {"Wood", "Kit", "Empty", "Wood"}},
             {"tools --unsorted --filter all", {"Wood", "Kit", "Empty", "Wood"}},
             {"tools --filter items", {}},
             {"tools Wood", {"Wood/größe", "Wood/saw"}},
             {"tools Wood --unsorted --filter items", {"Wood/saw", "Wood/größe"}},
             {"tools Wood/saw", {}},
             {"views", {"übersichtsplan", "plan"}},
             {"views --unsorted --filter items", {"plan", "übersichtsplan"}}})
    EXPECT_EQ(all(browseJson("ls " + arguments), "path"), paths) << arguments;
  EXPECT_EQ(browseJson("ls views").at(1),
            R"({"path": "plan", "columns": {"Type": "View", "View": "Site plan"}})"_json);
}

TEST_F(QvBrowseJson, GivesTreesDownToADepth) {
  json const whole = browseJson("tree tools");
  json const wood = R"({"name": "Wood", "type": "Tool Category", "path": "Wood", "children": [
      {"name": "saw", "type": "Tool", "path": "Wood/saw"},
      {"name": "größe", "type": "Tool", "path": "Wood/größe"}]})"_json;
  json expected = R"({"name": "Tools", "type": "Tools Folder", "path": "", "children": [null,
    {"name": "Kit", "type": "Super Tool", "path": "Kit", "children": [
      {"name": "Kit", "type": "Super Tool", "path": "Kit/Kit", "children": []}]},
    {"name": "Empty", "type": "Tool Category", "path": "Empty", "children": []}, null]})"_json;
  expected["children"][0] = expected["children"][3] = wood;
  EXPECT_EQ(whole, expected);
  EXPECT_EQ(browseJson("tree tools --depth 9"), whole);
  EXPECT_EQ(browseJson("tree tools Wood"), wood);
  EXPECT_EQ(browseJson(""), json::array({whole, browseJson("tree views")}));
  EXPECT_EQ(browseJson("tree"), browseJson(""));

  for (json& category : expected["children"])
    category.erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 1"), expected);
  expected.erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 0"), expected);
}

TEST_F(QvBrowseJson, ShowsAnItem) {
  for (auto const& [item, facts] :
       Cases{{"tools \"\"",
              {"Tools", "Tools Folder", "folder.tif", "folderThumbnail.tif", "Tools",
               "container hasChildren hasContainerChildren"}},
             {"tools Wood",
              {"Wood", "Tool Category", "folder.tif", "folderThumbnail.tif", "Wood",
               "container hasChildren"}},
             {"tools Kit",
              {"Kit", "Super Tool", "supertool.tif", "superToolThumbnail.tif", "",
               "container hasChildren picklistable detail"}},
             {"tools Wood/saw",
              {"saw", "Tool", "tool.tif", "toolThumbnail.tif",
               "Cuts wood.<br>Mind your<br>fingers.", "picklistable detail"}},
             {"views \"\"",
              {"Views", "Views Folder", "folder.tif", "folderThumbnail.tif", "",
               "container hasChildren"}},
             {"views plan",
              {"Site plan", "View", "view.tif", "viewThumbnail.tif", "From above.",
               "picklistable"}}}) {
    json const shown = browseJson("show " + item);
    EXPECT_EQ((Strings{shown["scheme"], shown["path"]}), words(item));
    json const& attributes = shown["attributes"];
    std::string flags;
    for (std::string const flag :
         {"container", "hasChildren", "hasContainerChildren", "picklistable", "detail"})
      if (json const value = shown.at(flag); value != false && value != nullptr)
        flags += (flags.empty() ? "" : " ") + flag;
    EXPECT_EQ((Strings{attributes["NAME"], attributes["BROWSABLE_TYPE"], shown["icon"]["file"],
                       shown["thumbnail"]["file"], shown["tooltip"], flags}),
              facts);
    EXPECT_EQ(attributes["ROOT_NAME"], "Plugin Registry");
    EXPECT_EQ(shown["icon"]["width"], 32);
    EXPECT_EQ(shown["thumbnail"]["height"], 128);
  }
}

TEST_F(QvBrowseJson, DescribesTheColumnsOfTheSchemes) {
  auto const expected = [](char const* scheme, char const* title) {
    json columns = R"([
      {"title": "Type", "attribute": "BROWSABLE_TYPE", "dataType": "icon", "minimumWidth": 32,
       "maximumWidth": 32, "currentWidth": 32, "attributes": [1, 3, 5, 6, 9], "shown": true,
       "sortKey": false, "auxFlag": false, "auxText": ""},
      {"attribute": "NAME", "dataType": "string", "minimumWidth": 40, "maximumWidth": 2000,
       "currentWidth": 365, "attributes": [0, 2, 5, 7, 8], "shown": true, "sortKey": true,
       "auxFlag": true, "auxText": "none"}])"_json;
    columns[1]["title"] = title;
    return json{{"scheme", scheme}, {"observable", true}, {"columns", columns}};
  };
  EXPECT_EQ(browseJson("schemes"),
            json::array({expected("tools", "Tool"), expected("views", "View")}));
}

TEST_F(QvBrowseJson, TellsOfTheStartAndThePackages) {
  Strings const dependencies =
      words("appUi ui datamgt gfx framework internalAPI pluginAPI resmgt base");
  std::string const package = "pluginBrowserQvmodule";
  json expected = {
      {{"operation", "InPackageInit::registerPackage"}, {"key", package}, {"detail", ""}}};
  for (std::string const& dependency : dependencies)
    expected.push_back({{"operation", "InPackageInit::addDependency"},
                        {"key", package},
                        {"detail", "Qv::InInit<QvInit::" + dependency + ">"}});
  json const entries = browseJson("startup");
  ASSERT_GT(entries.size(), 10U);
  EXPECT_EQ(json(entries.begin(), entries.begin() + 10), expected);
  EXPECT_EQ(entries.back(), R"({"operation": "ActRegistry::registerAction",
                                "key": "Open in Window", "detail": "0"})"_json);

  json const packages = browseJson("packages");
  EXPECT_THAT(all(packages.at("packages"), "package"),
              testing::IsSupersetOf(dependencies.begin(), dependencies.end()));
  EXPECT_EQ(packages["packages"].back(),
            (json{{"package", package}, {"dependencies", dependencies}}));
  EXPECT_EQ(packages.at("buildInfos"), R"([{
    "product": "Halvard Ostrel Library", "library": "libQvpluginBrowserQvmodule",
    "release": "2013", "version": "8.0", "stage": "", "major": 8, "minor": 0, "stageCode": 42,
    "buildNumber": "2600", "buildDate": "Jun 12 2012",
    "buildFlavor": "opt.x86_64.intel"}])"_json);
}

TEST_F(QvBrowseJson, TellsWhichActionsAreValidAndWhatTheyOpen) {
  for (auto const& [item, valid] :
       {std::pair{"views plan", true}, {"tools Wood/saw", false}, {"tools", false}}) {
    json expected = json::array();
    for (char const* const name : {"Open", "Open in Window"})
      expected.push_back({{"name", name},
                          {"display", name},
                          {"valid", valid},
                          {"dynamicState", 0},
                          {"options", json::array()}});
    EXPECT_EQ(browseJson(std::string("actions ") + item), expected) << item;
  }
  EXPECT_EQ(browseJson("run-action Open views plan"),
            R"([{"view": "plan", "newWindow": false, "flag": true}])"_json);
  EXPECT_EQ(browseJson("run-action \"Open in Window\" views plan"),
            R"([{"view": "plan", "newWindow": true, "flag": false}])"_json);
}

TEST_F(QvBrowseJson, TellsWhatADragCarries) {
  EXPECT_EQ(browseJson("drag views plan"), R"([{
    "path": "plan", "handler": "Qv::PbrViewDndHandler",
    "accepted": true, "cut": false, "copy": true, "drop": false,
    "items": [{
      "arrives": "view \"plan\"",
      "dump": "Item:      Qv::SnItemBasic<Qv::UiViewIdentifier>\nData:      view \"plan\"\n"
    }]}])"_json);

  EXPECT_THAT(all(browseJson("drag views [a,b] plan [c]"), "path"),
              ElementsAre("[a,b]", "plan", "[c]"));

  ProgramRun const drags = browse("--json drag tools Wood/saw Wood Kit \"\"");
  EXPECT_EQ(drags.status, 1);
  EXPECT_EQ(drags.err, "qvbrowse: not to be dragged out of the scheme \"tools\": \"Wood\", \"\"\n");
  Strings arrivals;
  for (json const& drag : json::parse(drags.out))
    arrivals.push_back(drag.at("path").get<std::string>() + ": " +
                       (drag.at("accepted") == true
                            ? drag.at("items").at(0).at("arrives").get<std::string>()
                            : "refused"));
  EXPECT_THAT(arrivals, ElementsAre("Wood/saw: tool \"saw\"", "Wood: refused", "Kit: tool \"Kit\"",
                                    ": refused"));
}

TEST_F(QvBrowseJson, ShowsItemsOnOneDetailPage) {
  json const shown = browseJson("detail tools Wood/saw Wood/lathe Wood");
  auto const fields = [&](std::size_t item) {
    return shown.at(item).at("pages").at(0).at("fields");
  };
  EXPECT_THAT(all(shown, "path"), ElementsAre("Wood/saw", "Wood/lathe", "Wood"));
  EXPECT_THAT(all(fields(0), "value"),
              ElementsAre("Hand saw", "Cuts wood.", "Workshop, 2.1", "Active"));
  EXPECT_THAT(all(fields(1), "value"), ElementsAre("", "", "", "Inactive"));
  EXPECT_THAT(all(fields(2), "value"), ElementsAre("", "", "", ""));
  EXPECT_EQ(shown[1]["understood"], true);
  EXPECT_EQ(shown[2]["understood"], false);
  EXPECT_EQ(fields(0)[1], R"({"title": "Description", "value": "Cuts wood.", "editable": false,
                              "background": "#404040"})"_json);
  EXPECT_EQ(shown[2]["iconPane"]["children"][0]["image"]["file"], "folderThumbnail.tif");
  EXPECT_FALSE(shown[0].contains("widgets"));

  json const widgets = browseJson("detail --dump tools Wood/saw").at(0).at("widgets");
  Strings texts;
  json const flat = widgets.flatten();
  for (auto const& [pointer, value] : flat.items())
    if (pointer.ends_with("/text"))
      texts.push_back(value);
  EXPECT_THAT(texts, ElementsAre("Full name", "Hand saw", "Description", "Cuts wood.", "Origin",
                                 "Workshop, 2.1", "State", "Active"));
  EXPECT_EQ(widgets.at(1).at("class"), "Qv::UiSplitPane");
}

class QvBrowseText : public QvBrowse {};

TEST_F(QvBrowseText, DrawsTreesAndAlignsTables) {
  EXPECT_EQ(result(browse("")), "Tools  [Tools Folder]\n"
                                "├── Wood  [Tool Category]\n"
                                "│   ├── saw  [Tool]\n"
                                "│   └── größe  [Tool]\n"
                                "├── Kit  [Super Tool]\n"
                                "│   └── Kit  [Super Tool]\n"
                                "├── Empty  [Tool Category]\n"
                                "└── Wood  [Tool Category]\n"
                                "    ├── saw  [Tool]\n"
                                "    └── größe  [Tool]\n"
                                "Views  [Views Folder]\n"
                                "├── Site plan  [View]  plan\n"
                                "└── Overview  [View]  übersichtsplan\n");
  EXPECT_EQ(result(browse("ls tools")), "Type           Tool\n"
                                        "Tool Category  Empty\n"
                                        "Super Tool     Kit\n"
                                        "Tool Category  Wood\n"
                                        "Tool Category  Wood\n");
  // This name has a letter of two bytes.
  EXPECT_EQ(result(browse("run-action Open views übersichtsplan")),
            "Opened view     In      Flag\n"
            "übersichtsplan  window  true\n");
  EXPECT_THAT(result(browse("show tools Wood/saw")),
              HasSubstr("\ntooltip                 Cuts wood.\n"
                        "                        Mind your\n"
                        "                        fingers.\n"));
}

TEST_F(QvBrowseText, EscapesControlCharacters) {
  std::string const raw = "a\x1b[31m\nb\x7f";
  write("raw.json",
        json{{"tools", {{{"name", raw}, {"category", raw}, {"texts", {raw, raw, raw}}}}},
             {"views", {{{"name", raw}, {"label", raw}, {"tooltip", raw}}}}}
            .dump());
  std::string const view = "views \"" + raw + "\"";
  std::string const tool = "tools \"" + raw + "/" + raw + "\"";
  for (std::string const& arguments :
       {std::string(), std::string("ls tools"), "show " + tool, "show " + view, "drag " + tool,
        "drag " + view, "detail " + tool, "run-action Open " + view}) {
    SCOPED_TRACE(arguments);
    std::string const text = result(run("--tools raw.json " + arguments));
    EXPECT_THAT(text, HasSubstr("a\\x1b[31m\\nb\\x7f"));
    EXPECT_THAT(text, Not(HasSubstr("\nb")));
    EXPECT_EQ(text.find_first_of("\x1b\x7f"), std::string::npos);
  }
}

TEST_F(QvBrowseText, IsColouredOnATerminalOnly) {
  constexpr char Allowed[] = "env -u NO_COLOR";
  for (std::string arguments :
       {"tree tools", "ls tools", "show tools Wood/saw", "schemes", "detail tools Wood/saw"}) {
    SCOPED_TRACE(arguments);
    arguments.insert(0, "--tools catalogue.json ");
    std::string const piped = result(run(arguments, Allowed));
    EXPECT_THAT(piped, Not(HasSubstr("\x1b")));
    std::string const coloured = result(run(arguments, Allowed, Stdout::Terminal));
    EXPECT_THAT(coloured, HasSubstr("\x1b["));
    EXPECT_EQ(withoutStyles(coloured), piped);
    for (auto const& [argument, environment] :
         {std::pair{"", "env NO_COLOR=1"}, {" --json", Allowed}})
      EXPECT_THAT(result(run(arguments + argument, environment, Stdout::Terminal)),
                  Not(HasSubstr("\x1b")));
  }
}

} // namespace

} // namespace Qv
