#include "refusedCalls.h"
#include "temporaryDirectory.h"

#include <gmock/gmock.h>

#include <nlohmann/json.hpp>
#include <sys/wait.h>
#include <unistd.h>

namespace Qv {

namespace {

using nlohmann::json;
using namespace nlohmann::literals;
using testing::ElementsAre;
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

/// How a program ended and what it wrote.
struct ProgramRun {
  int status;
  std::string out;
  std::string err;
};

/// What a terminal shows, without its styles and with the line ends of a file.
std::string withoutStyles(std::string text) {
  for (std::size_t style = 0; (style = text.find("\x1b[", style)) != std::string::npos;)
    text.erase(style, text.find('m', style) + 1 - style);
  std::erase(text, '\r');
  return text;
}

/// A member of each element of an array.
template <class T = std::string> std::vector<T> all(json const& array, char const* key) {
  std::vector<T> values;
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
class QvBrowse : public testing::Test, protected TemporaryDirectory {
protected:
  QvBrowse() {
    write("catalogue.json", Catalogue);
    setenv("XDG_CACHE_HOME", (directory_ / "cache").c_str(), 1);
    setenv("PAGER", "cat", 1);
  }

  /// Has the shell run a command in the directory.
  ProgramRun runInShell(std::string const& command) const {
    std::string const line =
        "cd '" + directory_.string() + "' && (" + command + ") >out 2>err </dev/null";
    int const status = std::system(line.c_str());
    return {WEXITSTATUS(status), read("out"), read("err")};
  }
  static std::string commandLine(std::string const& arguments) {
    return "\"" QVBROWSE_FILE "\" " + arguments;
  }
  ProgramRun run(std::string const& arguments) const { return runInShell(commandLine(arguments)); }
  ProgramRun browse(std::string const& arguments) const {
    return run("--tools catalogue.json " + arguments);
  }
  json browseJson(std::string const& arguments) const {
    return json::parse(result(browse("--json " + arguments)));
  }
  /// Runs it on a terminal, to which both of its outputs go.
  ProgramRun runOnTerminal(std::string const& environment, std::string const& arguments) const {
    return runInShell("script -qec '" + std::string("env ") + environment + " " +
                      commandLine(arguments) + "' /dev/null");
  }
  /// Runs it with a terminal for its result alone, so that it does not tell what takes long.
  ProgramRun runOntoTerminal(std::string const& environment, std::string const& arguments) const {
    ProgramRun run = runOnTerminal(environment, arguments + " 2>problems");
    run.err = read("problems");
    return run;
  }
  /// Adds a plug-in that acts by its name.
  void install(std::string const& name) const {
    std::filesystem::create_directories(directory_ / "plugins");
    std::filesystem::copy_file(ACTORPLUGIN_FILE, directory_ / "plugins" / (name + ".so"));
  }
};

TEST_F(QvBrowse, explainsItself) {
  std::string const overview = result(run("--help"));
  for (std::string const command :
       {"tree", "ls", "show", "schemes", "search", "startup", "packages", "plugins", "actions",
        "run-action", "drag", "detail", "check"}) {
    EXPECT_THAT(overview, HasSubstr("\n  " + command + " "));
    EXPECT_THAT(result(run(command + " --help")),
                testing::AllOf(HasSubstr("Usage: qvbrowse " + command + " "), HasSubstr("--json")));
  }
  EXPECT_THAT(result(run("--version")), MatchesRegex("qvbrowse [0-9]+\\.[0-9.]+\n"));
}

TEST_F(QvBrowse, hasAStatusOfItsOwnForWrongUsage) {
  auto const expectUsageError = [&](std::string const& arguments, std::string const& fault) {
    SCOPED_TRACE(arguments);
    ProgramRun const wrong = run(arguments);
    EXPECT_EQ(wrong.status, 2);
    EXPECT_EQ(wrong.out, "");
    EXPECT_THAT(wrong.err, testing::AllOf(MatchesRegex("qvbrowse: [^\n]+\n"), HasSubstr(fault)));
  };
  for (std::string const lastIsWrong :
       {"prune", "--tools catalogue.json prune", "--prune", "ls tools --prune", "schemes packages",
        "ls tools a surplus", "tree tools --depth -1", "tree tools --depth two",
        "tree tools --depth 1e99", "ls tools --filter few", "drag views plan --prune"})
    expectUsageError(lastIsWrong, lastIsWrong.substr(lastIsWrong.rfind(' ') + 1));
  expectUsageError("surplus drag views plan", "surplus");
  for (char const* const tooShort :
       {"ls", "show tools", "drag tools", "detail tools", "run-action Open", "search tools",
        "--tools", "--module", "tree tools --depth"})
    expectUsageError(tooShort, "required");
  expectUsageError("search tools \"\"", "empty");
}

TEST_F(QvBrowse, takesOptionsAfterTheCommand) {
  std::string const listed = result(browse("--json ls tools"));
  EXPECT_EQ(result(run("ls --tools catalogue.json tools --json")), listed);
  EXPECT_EQ(result(run("ls tools --json --module \"" PLUGINBROWSERQVMODULE_FILE
                       "\" --tools catalogue.json")),
            listed);
}

TEST_F(QvBrowse, isCompletedByBash) {
  write("complete.bash", R"bash(
    . /usr/share/bash-completion/bash_completion
    . "$1"
    COMP_LINE=$2 COMP_POINT=${#2}
    eval "COMP_WORDS=($2)"
    [[ $2 == *' ' ]] && COMP_WORDS+=('')
    COMP_CWORD=$((${#COMP_WORDS[@]} - 1))
    _qvbrowse 2>/dev/null # Its options can be changed while bash completes only.
    (IFS=,; echo -n "${COMPREPLY[*]}"))bash");
  for (auto const& [typed, offered] : std::vector<std::pair<std::string, std::string>>{
           {"s", "schemes,show,search,startup"},
           {"ls --uns", "--unsorted"},
           {"--no", "--no-pager"},
           {"ls ", "tools,views"},
           {"--tools cata", "catalogue.json"},
           {"--tools catalogue.json show views ", "übersichtsplan,plan"},
           {"--tools catalogue.json ls tools K", "Kit/"},
           {"--tools catalogue.json drag tools Kit/Kit Wood/s", "Wood/saw"},
           {"--tools catalogue.json ls tools Wood/saw ", ""},
           {"run-action Open", "Open,Open\\ in\\ Window"},
           {"run-action Open\\ in\\ Window views packa", "packages"}})
    EXPECT_EQ(result(runInShell("bash complete.bash '" COMPLETION_FILE "' '" QVBROWSE_FILE " " +
                                typed + "'")),
              offered)
        << typed;
}

TEST_F(QvBrowse, failsWhenTheResultCannotBeWritten) {
  for (std::string const arguments : {"tree tools", "drag tools Wood"})
    expectFailure(browse(arguments + " >/dev/full"), {"cannot write", "No space left"});
}

TEST_F(QvBrowse, reportsAFailureInOneSentence) {
  write("faulty.json", R"({"tools": {}})");
  write("views.json", R"({"views": [{"name": "plan"}]})");
  for (auto const& [arguments, reasons] :
       Cases{{"--tools faulty.json", {"\"faulty.json\"", "/tools", "expected an array"}},
             {"--tools views.json", {"\"views.json\"", "\"plan\"", "\"catalogue.json\""}},
             {"--tools frei0r:missing", {"\"missing\"", "No such file"}},
             {"--module \"\" schemes", {"module \"\"", "Invalid argument"}},
             {"--module missing.qvmodule schemes", {"\"missing.qvmodule\"", "No such file"}},
             {"ls \"a\x1b\nb\"", {R"("a\x1b\nb")"}},
             {"tree \"\"", {"\"\""}},
             {"ls parts", {"\"parts\"", "\"tools\", \"views\""}},
             {"drag parts a", {"\"parts\""}},
             {"tree tools a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"show views a/b", {"\"views\"", "\"a/b\""}},
             {"drag tools Wood/saw a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"detail tools Wood/saw a/b/c", {"\"tools\"", "\"a/b/c\""}},
             {"detail tools Wood \"\"", {"\"tools\"", "no detail view"}},
             {"run-action Close views plan", {"unknown action \"Close\"", "\"Open\", "}},
             {"run-action Open tools Wood/saw", {"\"Open\"", "not valid"}}}) {
    SCOPED_TRACE(arguments);
    expectFailure(browse(arguments), reasons);
  }
}

TEST_F(QvBrowse, combinesSources) {
  install("clouds");
  write("more.json", R"({"tools": [{"name": "axe", "category": "Wood"},
                                   {"name": "größe", "category": "Wood", "tooltip": "Late"},
                                   {"name": "saw", "category": "Wood", "tooltip": "Another"}]})");
  json const tools =
      browseJson("--tools more.json --tools frei0r:plugins tree tools").at("children");
  EXPECT_THAT(all(tools, "name"), ElementsAre("Wood", "Kit", "Empty", "Wood", "Source"));
  EXPECT_THAT(all(tools[0]["children"], "name"),
              ElementsAre("saw", "größe", "axe", "größe", "saw"));
  for (auto const& [tool, tooltip] :
       {std::pair{"saw", "Cuts wood.<br>Mind your<br>fingers."}, {"größe", "<br>Late"}})
    EXPECT_EQ(browseJson(std::string("--tools more.json show tools Wood/") + tool).at("tooltip"),
              tooltip);
}

TEST_F(QvBrowse, readsThePluginsOfThisMachineByDefault) {
  std::vector<std::string> const files = all(json::parse(run("plugins --json").out), "file");
  EXPECT_THAT(files, Not(testing::IsEmpty()));
  EXPECT_THAT(files, testing::Each(testing::StartsWith("/usr/lib/frei0r-1/")));
}

TEST_F(QvBrowse, offersViewsOfItsOwnWhereNoSourceHasAny) {
  write("none.json", R"({"views": []})");
  for (auto const& [sources, views] :
       Cases{{"--tools none.json", {"browser", "toolDetail", "startupJournal", "packages"}},
             {"--tools none.json --tools catalogue.json", {"plan", "übersichtsplan"}}})
    EXPECT_EQ(all(json::parse(result(run(sources + " --json ls views --unsorted"))), "path"),
              views);
}

TEST_F(QvBrowse, keepsPluginsAwayFromAllThatIsOpen) {
  install("garble");
  install("print");
  ProgramRun const shown =
      runOnTerminal("-u NO_COLOR", "--tools frei0r:plugins plugins 3>other 9>&3");
  EXPECT_EQ(shown.status, 3);
  EXPECT_THAT(shown.out, Not(HasSubstr("whim")));
  EXPECT_EQ(read("other"), "");
}

TEST_F(QvBrowse, tellsWherePluginsCannotBeIsolated) {
  install("clouds");
  std::string const source = "--tools frei0r:plugins ";
  EXPECT_THAT(result(run(source + "--require-isolation ls tools")), HasSubstr("Source"));
  std::filesystem::remove_all(directory_ / "cache");
  runWithoutCalls({SCMP_SYS(landlock_create_ruleset)}, [&] {
    expectFailure(run(source + "--require-isolation ls tools"), {"isolated", "Landlock"});
    ProgramRun const plugins = run(source + "plugins");
    EXPECT_EQ(plugins.status, 0);
    EXPECT_THAT(plugins.err, MatchesRegex("qvbrowse: [^\n]+Landlock[^\n]+\n"));
    EXPECT_EQ(run(source + "ls tools").err, "");
  });
}

TEST_F(QvBrowse, leavesOutPluginsThatCannotBeRead) {
  install("\xe9");
  install("print");
  install("abort");
  write("plugins/text\n.so", "no plug-in");
  std::string const source = "--tools frei0r:plugins ";
  for (std::string const hint : {"", "; \"plugins --retry\" tries it again"}) {
    ProgramRun const shown = run(source + "ls tools Source");
    EXPECT_EQ(shown.status, 3);
    EXPECT_EQ(shown.out, "Type  Tool\nTool  print\nTool  \\xe9\n");
    std::string const plugins = "qvbrowse: the plug-in \"" + directory_.string() + "/plugins/";
    EXPECT_EQ(shown.err, plugins + "abort.so\" is left out: crashed with SIGABRT (Aborted)" + hint +
                             "\n" + plugins + "text\\n.so\" is left out: file too short" + hint +
                             "\n");
  }
  EXPECT_EQ(json::parse(run(source + "detail tools Source/\xe9 --json").out)
                .at("/0/pages/0/fields/0/value"_json_pointer),
            "caf\ufffd");

  EXPECT_THAT(run(source + "plugins").out, HasSubstr("failed  yes"));
  ProgramRun const retried = run(source + "plugins --retry --json");
  EXPECT_EQ(retried.status, 3);
  json const plugins = json::parse(retried.out);
  EXPECT_EQ(all<bool>(plugins, "cached"), (std::vector{false, true, false, true}));
  EXPECT_EQ(all<bool>(plugins, "read"), (std::vector{false, true, false, true}));
  EXPECT_EQ(plugins[1]["failure"], nullptr);
  EXPECT_EQ(plugins[2]["failure"], "file too short");
  // Without a cache directory it is a first run each time.
  setenv("XDG_CACHE_HOME", "/dev/null", 1);
  EXPECT_THAT(run(source + "ls tools").err, Not(HasSubstr("--retry")));
}

TEST_F(QvBrowse, listsChildren) {
  for (auto const& [arguments, paths] :
       Cases{{"tools", {"Empty", "Kit", "Wood", "Wood"}},
             {"tools --unsorted", {"Wood", "Kit", "Empty", "Wood"}},
             {"tools --filter items", {}},
             {"tools Wood", {"Wood/größe", "Wood/saw"}},
             {"tools Wood --unsorted --filter items", {"Wood/saw", "Wood/größe"}},
             {"views", {"übersichtsplan", "plan"}},
             {"views --unsorted --filter items", {"plan", "übersichtsplan"}}})
    EXPECT_EQ(all(browseJson("ls " + arguments), "path"), paths) << arguments;
  EXPECT_EQ(browseJson("ls views").at(1),
            R"({"path": "plan", "columns": {"Type": "View", "View": "Site plan"}})"_json);
}

TEST_F(QvBrowse, showsTreesDownToADepth) {
  json const kit = R"({"name": "Kit", "type": "Super Tool", "path": "Kit", "children": [
      {"name": "Kit", "type": "Super Tool", "path": "Kit/Kit", "children": []}]})"_json;
  EXPECT_EQ(browseJson("tree tools Kit"), kit);
  json tools = browseJson("tree tools");
  EXPECT_EQ(tools["children"][1], kit);
  EXPECT_EQ(browseJson(""), json::array({tools, browseJson("tree views")}));
  EXPECT_EQ(browseJson("tree tools --depth 3"), tools);

  for (json& category : tools["children"])
    category.erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 1"), tools);
  tools.erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 0"), tools);
}

TEST_F(QvBrowse, showsAnItem) {
  json shown = browseJson("show tools Wood/saw");
  EXPECT_EQ(shown["detail"]["pages"][0]["fields"][0]["value"], "Hand saw");
  shown.erase("detail");
  EXPECT_EQ(shown, R"({
    "scheme": "tools", "path": "Wood/saw",
    "attributes": {"NAME": "saw", "BROWSABLE_TYPE": "Tool", "ROOT_NAME": "Plugin Registry",
                   "OWNER": "Not available", "LMTIME": "Not available",
                   "CREATION_TIME": "Not available", "BROWSABLE_ROLE": ""},
    "container": false, "hasChildren": false, "hasContainerChildren": false, "picklistable": true,
    "icon": {"file": "tool.tif", "width": 32, "height": 32},
    "thumbnail": {"file": "toolThumbnail.tif", "width": 128, "height": 128},
    "tooltip": "Cuts wood.<br>Mind your<br>fingers."})"_json);

  json const category = browseJson("show tools Wood");
  for (char const* const property : {"container", "hasChildren"})
    EXPECT_EQ(category[property], true) << property;
  for (char const* const property : {"hasContainerChildren", "picklistable"})
    EXPECT_EQ(category[property], false) << property;
  EXPECT_EQ(category["detail"], nullptr);
  EXPECT_EQ(browseJson("show tools \"\"")["hasContainerChildren"], true);
}

TEST_F(QvBrowse, describesTheColumnsOfTheSchemes) {
  json const schemes = browseJson("schemes");
  EXPECT_EQ(all(schemes, "scheme"), (Strings{"tools", "views"}));
  EXPECT_EQ(schemes[0]["observable"], true);
  EXPECT_EQ(schemes[0]["columns"][0]["dataType"], "icon");
  EXPECT_EQ(schemes[0]["columns"][1], R"({
    "title": "Tool", "attribute": "NAME", "dataType": "string", "minimumWidth": 40,
    "maximumWidth": 2000, "currentWidth": 365, "attributes": [0, 2, 5, 7, 8], "shown": true,
    "sortKey": true, "auxFlag": true, "auxText": "none"})"_json);
}

TEST_F(QvBrowse, showsTheStartAndThePackages) {
  json const entries = browseJson("startup");
  EXPECT_EQ(entries.front()["operation"], "InPackageInit::registerPackage");
  EXPECT_EQ(entries.back(), R"({"operation": "ActRegistry::registerAction",
                                "key": "Open in Window", "detail": "0"})"_json);

  json const packages = browseJson("packages");
  EXPECT_EQ(packages["packages"].back(), R"({
    "package": "pluginBrowserQvmodule",
    "dependencies": ["appUi", "ui", "datamgt", "gfx", "framework", "internalAPI", "pluginAPI",
                     "resmgt", "base"]})"_json);
  EXPECT_EQ(packages["packages"].size(), 10U);
  EXPECT_EQ(packages.at("buildInfos"), R"([{
    "product": "Halvard Ostrel Library", "library": "libQvpluginBrowserQvmodule",
    "release": "2013", "version": "8.0", "stage": "", "major": 8, "minor": 0, "stageCode": 42,
    "buildNumber": "2600", "buildDate": "Jun 12 2012",
    "buildFlavor": "opt.x86_64.intel"}])"_json);
}

TEST_F(QvBrowse, showsWhichActionsAreValidAndWhatTheyOpen) {
  for (auto const& [item, valid] : {std::pair{"views plan", true}, {"tools Wood/saw", false}}) {
    json expected = R"({"name": "Open", "display": "Open", "dynamicState": 0, "options": []})"_json;
    expected["valid"] = valid;
    json const actions = browseJson(std::string("actions ") + item);
    EXPECT_EQ(actions.at(0), expected) << item;
    EXPECT_EQ(all(actions, "name"), (Strings{"Open", "Open in Window"}));
  }
  EXPECT_EQ(browseJson("run-action Open views plan"),
            R"([{"view": "plan", "newWindow": false, "flag": true}])"_json);
  EXPECT_EQ(browseJson("run-action \"Open in Window\" views plan"),
            R"([{"view": "plan", "newWindow": true, "flag": false}])"_json);
}

TEST_F(QvBrowse, showsWhatADragCarries) {
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
  EXPECT_EQ(drags.err, "qvbrowse: cannot be dragged out of the scheme \"tools\": \"Wood\", \"\"\n");
  json const carried = json::parse(drags.out);
  EXPECT_EQ(all<bool>(carried, "accepted"), (std::vector{true, false, true, false}));
  EXPECT_EQ(carried[0]["items"][0]["arrives"], "tool \"saw\"");
}

TEST_F(QvBrowse, showsItemsOnOneDetailPage) {
  json const shown = browseJson("detail tools Wood/saw Wood/lathe Wood");
  EXPECT_THAT(all(shown, "path"), ElementsAre("Wood/saw", "Wood/lathe", "Wood"));
  EXPECT_EQ(all<bool>(shown, "understood"), (std::vector{true, true, false}));
  EXPECT_EQ(shown.at("/0/pages/0/fields/1"_json_pointer),
            R"({"title": "Description", "value": "Cuts wood.", "editable": false,
                "background": "#404040"})"_json);
  EXPECT_EQ(shown.at("/1/pages/0/fields/3/value"_json_pointer), "Inactive");
  EXPECT_EQ(shown.at("/2/iconPane/children/0/image/file"_json_pointer), "folderThumbnail.tif");
  EXPECT_FALSE(shown[0].contains("widgets"));

  json const widgets = browseJson("detail --dump tools Wood/saw").at("/0/widgets"_json_pointer);
  EXPECT_THAT(all(widgets.at("/0/children/0/children"_json_pointer), "text"),
              ElementsAre("Full name", "Hand saw", "Description", "Cuts wood.", "Origin",
                          "Workshop, 2.1", "State", "Active"));
  EXPECT_EQ(widgets.at(1).at("class"), "Qv::UiSplitPane");
}

TEST_F(QvBrowse, findsItemsByNameAndLabel) {
  EXPECT_EQ(browseJson("search views \"SITE P\""),
            R"([{"name": "Site plan", "type": "View", "path": "plan", "match": "prefix"}])"_json);
  EXPECT_EQ(all(browseJson("search views PLAN"), "match"), (Strings{"exact", "substring"}));

  ProgramRun const nothing = browse("--json search tools hammer");
  EXPECT_EQ(nothing.status, 1);
  EXPECT_EQ(nothing.out, "[]\n");
  expectFailure(browse("search tools hammer"), {"\"tools\"", "\"hammer\""});
}

TEST_F(QvBrowse, drawsTreesAndAlignsTables) {
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

TEST_F(QvBrowse, printsEachResultAsText) {
  write("wide.json", R"({"tools": [{"name": "漢字", "category": "e\u0301"}]})");
  for (auto const& [arguments, lines] : Cases{
           {"startup",
            {"#   Operation                       Key                         Detail\n",
             "\n21  InBuildInfoUtil::registerInfo   libQvpluginBrowserQvmodule  8.0\n"}},
           {"packages",
            {"Package                Depends on\n", "\ndatamgt                base, resmgt\n",
             "\nproduct            Halvard Ostrel Library\n",
             "\nbuildFlavor        opt.x86_64.intel\n"}},
           {"plugins", {"State  Cached  File  Reason\n"}},
           {"search tools wood", {"Type           Name  Path\nTool Category  Wood  Wood\n"}},
           // In columns of the terminal.
           {"--tools wide.json search tools 漢", {"Type  Name  Path\nTool  漢字  e\u0301/漢字\n"}},
           {"actions views plan",
            {"Action          Valid  Dynamic state\nOpen            yes    0\n"}},
           {"detail tools Wood/saw Wood",
            {"\"Wood/saw\"\nPage ", "\n\n\"Wood\" (not understood by the view)\nPage "}},
           {"detail --dump tools Wood/saw",
            {"\n    Qv::UiLabel \"FieldValue0\" text=\"Hand saw\" width=340 height=24 "
             "colors={}\n"}},
           {"drag views plan", {"\n  arrives: view \"plan\"\n"}}}) {
    std::string const text = result(browse(arguments));
    for (std::string const& line : lines)
      EXPECT_THAT(text, HasSubstr(line)) << arguments;
  }
  EXPECT_EQ(browse("drag tools Wood").out, "\"Wood\"\n  handler: Qv::PbrToolDndHandler\n"
                                           "  accepted: no, cut: no, copy: no, drop: no\n");
}

TEST_F(QvBrowse, escapesControlCharacters) {
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
  std::string const dump = result(run("--tools raw.json detail --dump " + tool));
  EXPECT_EQ(dump.find_first_of("\x1b\x7f"), std::string::npos);
}

TEST_F(QvBrowse, usesColoursOnATerminalOnly) {
  for (std::string arguments :
       {"tree tools", "ls tools", "show tools Wood/saw", "schemes", "detail tools Wood/saw"}) {
    SCOPED_TRACE(arguments);
    arguments.insert(0, "--tools catalogue.json ");
    std::string const piped = result(run(arguments));
    EXPECT_THAT(piped, Not(HasSubstr("\x1b")));
    std::string const coloured = result(runOntoTerminal("-u NO_COLOR", arguments));
    EXPECT_THAT(coloured, HasSubstr("\x1b["));
    EXPECT_EQ(withoutStyles(coloured), piped);
    for (ProgramRun const& plain : {runOntoTerminal("NO_COLOR=1", arguments),
                                    runOntoTerminal("-u NO_COLOR", arguments + " --json")})
      EXPECT_THAT(result(plain), Not(HasSubstr("\x1b")));
  }
}

TEST_F(QvBrowse, pagesTheOutputOnATerminal) {
  auto const runWithPager = [&](std::string const& pager, std::string const& arguments) {
    return runOntoTerminal("PAGER=\"" + pager + "\"", "--tools catalogue.json " + arguments);
  };
  std::string const listed = result(browse("ls tools Wood"));
  std::string const paged = result(runWithPager("sed s/^/paged:/", "ls tools Wood"));
  EXPECT_EQ(withoutStyles(paged), "paged:Type  Tool\npaged:Tool  größe\npaged:Tool  saw\n");
  EXPECT_THAT(paged, HasSubstr("\x1b["));
  for (auto const& [pager, arguments] :
       {std::pair{"", "ls tools Wood"}, {"sed s/^/paged:/", "ls tools Wood --no-pager"}})
    EXPECT_EQ(withoutStyles(result(runWithPager(pager, arguments))), listed);
  EXPECT_THAT(runWithPager("sed s/^/paged:/", "ls tools --json").out, Not(HasSubstr("paged")));

  // Whoever leaves the pager early is left alone, and the status stays that of the command.
  write("many.json",
        json{{"tools", json::array()}, {"categories", std::vector(100000, std::string("category"))}}
            .dump());
  EXPECT_EQ(withoutStyles(result(runWithPager("head -1", "--tools many.json tree tools"))),
            "Tools  [Tools Folder]\n");
  EXPECT_EQ(runWithPager("true", "drag tools Wood").status, 1);

  for (std::string const pager : {"no-such-pager", "./many.json"}) {
    ProgramRun const missing = runWithPager(pager, "ls tools");
    EXPECT_EQ(missing.status, 1);
    EXPECT_THAT(missing.err, HasSubstr("\"" + pager + "\""));
  }
}

TEST_F(QvBrowse, showsProgressOnATerminalOnly) {
  install("doze");
  std::string const arguments = "--tools frei0r:plugins ls tools Source";
  std::string const shown = result(runOnTerminal("-u NO_COLOR", arguments));
  EXPECT_THAT(shown, HasSubstr("\rreading plug-ins, 0 of 1: doze.so ...\x1b[K"));
  EXPECT_THAT(
      shown, testing::EndsWith("\r\x1b[K\x1b[1mType\x1b[0m  \x1b[1mTool\x1b[0m\r\nTool  doze\r\n"));
  EXPECT_EQ(result(runOnTerminal("-u NO_COLOR", arguments)).find("reading plug-ins"),
            std::string::npos);
  std::filesystem::remove_all(directory_ / "cache");
  EXPECT_EQ(result(run(arguments)), "Type  Tool\nTool  doze\n");
}

} // namespace

} // namespace Qv
