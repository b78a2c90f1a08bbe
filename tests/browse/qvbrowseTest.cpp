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

std::string linesOf(Strings const& lines) {
  std::string text;
  for (std::string const& line : lines)
    text += line + "\n";
  return text;
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
  /// What a command prints as JSON under a name.
  json browseJson(std::string const& arguments, char const* name = "items") const {
    return json::parse(result(browse("--json " + arguments))).at(name);
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
                testing::AllOf(HasSubstr("Usage: qvbrowse " + command + " "),
                               HasSubstr("\n  --json  "), HasSubstr("\n  --tools SOURCE  ")));
  }
  for (std::string const option : {"--version", "-V"})
    EXPECT_THAT(result(run(option)), MatchesRegex("qvbrowse [0-9]+\\.[0-9.]+\n"));
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
        "tree tools --depth 1e99", "ls tools --filter few", "drag views plan --prune",
        "ls tools --color pink", "ls tools --plugin-timeout 0", "tree --json tools --paths"})
    expectUsageError(lastIsWrong, lastIsWrong.substr(lastIsWrong.rfind(' ') + 1));
  expectUsageError("surplus drag views plan", "surplus");
  for (char const* const tooShort :
       {"ls", "show tools", "drag tools", "detail tools", "run-action Open", "search tools",
        "--tools", "--module", "tree tools --depth"})
    expectUsageError(tooShort, "required");
  expectUsageError("tree --paths", "SCHEME");
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
           {"ls --unso", "--unsorted"},
           {"ls --co", "--color"},
           {"ls --color ", "auto,always,never"},
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
             {"tree tools a/b/c", {"tools: \"a/b/c\" has more than two components"}},
             {"show views a/b --unlisted", {"views: \"a/b\" has more than one component"}},
             {"drag tools Wood/saw Wood/sow", {"\"Wood/sow\"", "did you mean \"Wood/saw\"?"}},
             {"detail tools Wood/lathe", {"\"Wood/lathe\""}},
             {"actions tools wood", {"did you mean \"Wood\"?"}},
             {"ls tools Wod", {"did you mean \"Wood\"?"}},
             {"show tools 'Wo\\x6fd\\\\'", {R"("Wood\\")"}},
             {"run-action Open views 'Site plan'", {"did you mean \"plan\"?"}},
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
      browseJson("--tools more.json --tools frei0r:plugins tree tools").at(0).at("children");
  EXPECT_THAT(all(tools, "name"), ElementsAre("Wood", "Kit", "Empty", "Wood", "Source"));
  EXPECT_THAT(all(tools[0]["children"], "name"),
              ElementsAre("saw", "größe", "axe", "größe", "saw"));
  for (auto const& [tool, tooltip] :
       Cases{{"saw", {"Cuts wood.", "Mind your", "fingers."}}, {"größe", {"", "Late"}}})
    EXPECT_EQ(browseJson("--tools more.json show tools Wood/" + tool).at(0).at("tooltip"), tooltip);
}

TEST_F(QvBrowse, readsThePluginsOfThisMachineByDefault) {
  std::vector<std::string> const files =
      all(json::parse(run("plugins --json").out).at("plugins"), "file");
  EXPECT_THAT(files, Not(testing::IsEmpty()));
  EXPECT_THAT(files, testing::Each(testing::StartsWith("/usr/lib/frei0r-1/")));
}

TEST_F(QvBrowse, offersViewsOfItsOwnWhereNoSourceHasAny) {
  write("none.json", R"({"views": []})");
  for (auto const& [sources, views] :
       Cases{{"--tools none.json", {"browser", "toolDetail", "startupJournal", "packages"}},
             {"--tools none.json --tools catalogue.json", {"plan", "übersichtsplan"}}})
    EXPECT_EQ(result(run(sources + " ls views --unsorted --paths")), linesOf(views));
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

TEST_F(QvBrowse, reportsPluginsThatCannotBeReadOnce) {
  install("\xe9");
  install("print");
  install("abort");
  write("plugins/text\n.so", "no plug-in");
  std::string const place = directory_.string() + "/plugins/";
  std::string const news = "qvbrowse: the plug-in \"" + place +
                           "abort.so\" is left out: crashed with SIGABRT (Aborted)\n"
                           "qvbrowse: the plug-in \"" +
                           place + "text\\n.so\" is left out: file too short\n";
  std::string const known = "qvbrowse: 2 plug-ins are left out; see qvbrowse plugins\n";
  for (auto const& [arguments, status, report] :
       std::vector<std::tuple<std::string, int, std::string>>{{"schemes", 0, ""},
                                                              {"ls views", 0, ""},
                                                              {"ls tools Source", 3, news},
                                                              {"show tools Source/print", 0, known},
                                                              {"", 0, known},
                                                              {"startup", 0, ""},
                                                              {"plugins", 0, ""},
                                                              {"plugins --retry", 3, news}}) {
    ProgramRun const shown = run("--tools frei0r:plugins " + arguments);
    EXPECT_EQ(shown.status, status) << arguments;
    EXPECT_EQ(shown.err, report) << arguments;
  }
  json const plugins =
      json::parse(result(run("--tools frei0r:plugins plugins --json"))).at("plugins");
  EXPECT_EQ(all(plugins, "state"), (Strings{"failed", "read", "failed", "read"}));
  EXPECT_EQ(plugins[0]["reason"], "crashed with SIGABRT (Aborted)");
  EXPECT_EQ(plugins[1]["parameters"].size(), 6U);
  EXPECT_EQ(plugins[1]["place"], directory_.string() + "/plugins");
  for (auto const& [key, value] :
       {std::pair{"category", "Source"}, {"tool", "print"}, {"version", "2.10"}, {"reason", ""}})
    EXPECT_EQ(plugins[1][key], value);
  // Without a cache directory it is a first run each time.
  setenv("XDG_CACHE_HOME", "/dev/null", 1);
  EXPECT_EQ(run("--tools frei0r:plugins ls tools").status, 3);
}

TEST_F(QvBrowse, listsChildren) {
  for (auto const& [arguments, paths] :
       Cases{{"tools", {"Empty", "Kit", "Wood", "Wood"}},
             {"tools --unsorted", {"Wood", "Kit", "Empty", "Wood"}},
             {"tools --filter items", {}},
             {"tools //Wood/", {"Wood/größe", "Wood/saw"}},
             {"tools Wood --unsorted --filter items", {"Wood/saw", "Wood/größe"}},
             {"tools Nowhere --unlisted", {}},
             {"views", {"übersichtsplan", "plan"}},
             {"views --unsorted --filter items", {"plan", "übersichtsplan"}}}) {
    EXPECT_EQ(all(browseJson("ls " + arguments), "path"), paths) << arguments;
    EXPECT_EQ(result(browse("ls --paths " + arguments)), linesOf(paths)) << arguments;
  }
  EXPECT_EQ(browseJson("ls views").at(1),
            R"({"scheme": "views", "path": "plan", "name": "Site plan", "type": "View"})"_json);
}

TEST_F(QvBrowse, takesBackThePathsThatItPrints) {
  Strings const names = {"e e", "e\\nb", "e\nb", "e'\"", "e\xe2\x80\xae", "[e]", "--de"};
  json views = json::array();
  for (std::string const& name : names)
    views.push_back({{"name", name}});
  write("odd.json", json{{"views", views}}.dump());
  for (std::string const printed : {"ls --unsorted views", "tree views", "search views e"})
    EXPECT_EQ(
        all(json::parse(result(runInShell(commandLine("--tools odd.json " + printed +
                                                      " --paths | xargs -d '\\n' ") +
                                          commandLine("--tools odd.json --json drag views --"))))
                .at("items"),
            "name"),
        names)
        << printed;
}

TEST_F(QvBrowse, showsTreesDownToADepth) {
  json const kit = R"({"scheme": "tools", "path": "Kit", "name": "Kit", "type": "Super Tool",
                       "children": [{"scheme": "tools", "path": "Kit/Kit", "name": "Kit",
                                     "type": "Super Tool", "children": []}]})"_json;
  EXPECT_EQ(browseJson("tree tools Kit"), json::array({kit}));
  EXPECT_EQ(result(browse("tree tools Kit --paths")), "Kit\nKit/Kit\n");
  EXPECT_EQ(result(browse("tree views --paths")), "plan\nübersichtsplan\n");
  json tools = browseJson("tree tools");
  EXPECT_EQ(tools[0]["children"][1], kit);
  EXPECT_EQ(browseJson(""), json::array({tools[0], browseJson("tree views")[0]}));
  EXPECT_EQ(browseJson("tree tools --depth 3"), tools);

  for (json& category : tools[0]["children"])
    category.erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 1"), tools);
  tools[0].erase("children");
  EXPECT_EQ(browseJson("tree tools --depth 0"), tools);
}

TEST_F(QvBrowse, showsItems) {
  json const items = browseJson("show tools Wood/saw Wood \"\"");
  json saw = items[0];
  EXPECT_EQ(saw["detail"]["fields"][0]["value"], "Hand saw");
  saw.erase("detail");
  EXPECT_EQ(saw, R"({
    "scheme": "tools", "path": "Wood/saw", "name": "saw", "type": "Tool",
    "attributes": {"ROOT_NAME": "Plugin Registry", "OWNER": "Not available",
                   "LMTIME": "Not available", "CREATION_TIME": "Not available",
                   "BROWSABLE_ROLE": ""},
    "container": false, "hasChildren": false, "hasContainerChildren": false, "picklistable": true,
    "icon": {"file": "tool.tif", "width": 32, "height": 32},
    "thumbnail": {"file": "toolThumbnail.tif", "width": 128, "height": 128},
    "tooltip": ["Cuts wood.", "Mind your", "fingers."], "plugin": null})"_json);
  for (char const* const property : {"container", "hasChildren"})
    EXPECT_EQ(items[1][property], true) << property;
  for (char const* const property : {"hasContainerChildren", "picklistable"})
    EXPECT_EQ(items[1][property], false) << property;
  EXPECT_EQ(items[1]["detail"], nullptr);
  EXPECT_EQ(items[2]["hasContainerChildren"], true);
  EXPECT_EQ(browseJson("show --unlisted tools Wood/lathe")[0]["detail"]["fields"][3]["value"],
            "Inactive");
}

TEST_F(QvBrowse, showsThePluginOfATool) {
  json const items = json::parse(run("--json show tools Filter/sopsat Filter").out).at("items");
  json const plugin = items[0]["plugin"];
  EXPECT_EQ(plugin["file"], "/usr/lib/frei0r-1/sopsat.so");
  EXPECT_THAT(plugin["version"].get<std::string>(), MatchesRegex("[0-9]+\\.[0-9]+"));
  EXPECT_EQ(plugin["parameters"][0], R"({"name": "rSlope", "type": "double",
    "explanation": "Slope of the red color component"})"_json);
  EXPECT_EQ(items[1]["plugin"], nullptr);
  EXPECT_THAT(run("detail tools Filter/sopsat").out,
              HasSubstr("\nrSlope      double  Slope of the red color component\n"));
  for (auto const& [text, hit] : Cases{{"SOP/sat", {"detail", "Full name"}},
                                       {"rslope", {"tooltip"}},
                                       {"Sopsat", {"name"}},
                                       {"Slope/Offset", {"detail", "Description"}},
                                       {"eugster (granjow), version 0.3", {"detail", "Origin"}}}) {
    json const found = json::parse(run("--json search tools '" + text + "'").out).at("items");
    EXPECT_THAT(all(found, "path"), testing::Contains("Filter/sopsat")) << text;
    EXPECT_EQ(found[0]["in"], hit[0]) << text;
    EXPECT_EQ(found[0]["field"], hit.size() > 1 ? json(hit[1]) : json(nullptr)) << text;
  }
}

TEST_F(QvBrowse, describesTheColumnsOfTheSchemes) {
  json const schemes = browseJson("schemes", "schemes");
  EXPECT_EQ(all(schemes, "scheme"), (Strings{"tools", "views"}));
  EXPECT_EQ(schemes[0]["observable"], true);
  EXPECT_EQ(schemes[0]["columns"][0]["dataType"], "icon");
  EXPECT_EQ(schemes[0]["columns"][1], R"-({
    "title": "Tool", "attribute": "NAME", "dataType": "string", "minimumWidth": 40,
    "maximumWidth": 2000, "currentWidth": 365, "shown": true,
    "flags": ["AttribAttributes(0)", "AttribAttributes(2)", "AttribAttributes(5)",
              "AttribAttributes(7)", "AttribAttributes(8)"],
    "sortKey": true, "auxFlag": true, "auxText": "none"})-"_json);
}

TEST_F(QvBrowse, showsTheStartAndThePackages) {
  json const entries = browseJson("startup", "entries");
  EXPECT_EQ(entries.front()["operation"], "InPackageInit::registerPackage");
  EXPECT_EQ(entries.back(), R"({"number": 51, "operation": "ActRegistry::registerAction",
                                "key": "Open in Window", "detail": "0"})"_json);

  json const packages = browseJson("packages", "packages");
  EXPECT_EQ(packages.back(), R"({
    "package": "pluginBrowserQvmodule",
    "dependencies": ["appUi", "ui", "datamgt", "gfx", "framework", "internalAPI", "pluginAPI",
                     "resmgt", "base"]})"_json);
  EXPECT_EQ(packages.size(), 10U);
  EXPECT_EQ(browseJson("packages", "buildInfos"), R"([{
    "product": "Halvard Ostrel Library", "library": "libQvpluginBrowserQvmodule",
    "release": "2013", "version": "8.0", "stage": "", "major": 8, "minor": 0, "stageCode": 42,
    "buildNumber": "2600", "buildDate": "Jun 12 2012",
    "buildFlavor": "opt.x86_64.intel"}])"_json);
}

TEST_F(QvBrowse, showsWhichActionsAreValidAndWhatTheyOpen) {
  for (auto const& [item, valid] : {std::pair{"views plan", true}, {"tools Wood/saw", false}}) {
    json expected = R"-({"name": "Open", "display": "Open", "dynamicState": "DynamicState(0)",
                         "options": []})-"_json;
    expected["valid"] = valid;
    json const actions = browseJson(std::string("actions ") + item, "actions");
    EXPECT_EQ(actions.at(0), expected) << item;
    EXPECT_EQ(all(actions, "name"), (Strings{"Open", "Open in Window"}));
  }
  EXPECT_EQ(browseJson("run-action Open views plan", "opened"),
            R"([{"view": "plan", "newWindow": false, "flag": true}])"_json);
  EXPECT_EQ(browseJson("run-action \"Open in Window\" views plan", "opened"),
            R"([{"view": "plan", "newWindow": true, "flag": false}])"_json);
}

TEST_F(QvBrowse, showsWhatADragCarries) {
  EXPECT_EQ(browseJson("drag views plan"), R"([{
    "scheme": "views", "path": "plan", "name": "Site plan", "type": "View",
    "handler": "Qv::PbrViewDndHandler", "accepted": true, "cut": false, "copy": true,
    "drop": false, "arrives": ["view \"plan\""]}])"_json);
  EXPECT_EQ(browseJson("drag --dump views plan").at("/0/dump"_json_pointer),
            R"(["Item:      Qv::SnItemBasic<Qv::UiViewIdentifier>",
                "Data:      view \"plan\""])"_json);
  EXPECT_THAT(all(browseJson("drag --unlisted views [a,b] plan [c]"), "path"),
              ElementsAre("[a,b]", "plan", "[c]"));

  ProgramRun const drags = browse("--json drag tools Wood/saw Wood Kit \"\"");
  EXPECT_EQ(drags.status, 1);
  EXPECT_EQ(drags.err, "qvbrowse: cannot be dragged out of the scheme \"tools\": \"Wood\", \"\"\n");
  json const carried = json::parse(drags.out).at("items");
  EXPECT_EQ(all<bool>(carried, "accepted"), (std::vector{true, false, true, false}));
  EXPECT_EQ(carried[0]["arrives"][0], "tool \"saw\"");
}

TEST_F(QvBrowse, showsItemsOnOneDetailPage) {
  json const shown = browseJson("detail tools Wood/saw Kit/Kit Wood");
  EXPECT_THAT(all(shown, "path"), ElementsAre("Wood/saw", "Kit/Kit", "Wood"));
  EXPECT_EQ(all<bool>(all<json>(shown, "detail"), "understood"), (std::vector{true, true, false}));
  EXPECT_EQ(shown.at("/0/detail/fields/1"_json_pointer),
            R"({"page": "Information", "title": "Description", "value": "Cuts wood.",
                "editable": false, "background": "#404040"})"_json);
  EXPECT_EQ(shown.at("/2/detail/image/file"_json_pointer), "folderThumbnail.tif");
  EXPECT_FALSE(shown[0].contains("widgets"));

  json const widgets = browseJson("detail --dump tools Wood/saw").at("/0/widgets"_json_pointer);
  EXPECT_THAT(all(widgets.at("/0/children/0/children"_json_pointer), "text"),
              ElementsAre("Full name", "Hand saw", "Description", "Cuts wood.", "Origin",
                          "Workshop, 2.1", "State", "Active"));
  EXPECT_EQ(widgets.at(1).at("class"), "Qv::UiSplitPane");
  EXPECT_EQ(widgets.at(1).at("orientation"), "Orientation(2)");
}

TEST_F(QvBrowse, findsItemsByAllTheirTexts) {
  EXPECT_EQ(browseJson("search views \"SITE P\""),
            R"([{"scheme": "views", "path": "plan", "name": "Site plan", "type": "View",
                 "match": "prefix", "in": "label", "field": null, "text": "Site plan"}])"_json);
  EXPECT_EQ(all(browseJson("search views PLAN"), "match"), (Strings{"exact", "substring"}));
  EXPECT_EQ(result(browse("search tools wo --paths")), "Wood\nWood/saw\n");

  ProgramRun const nothing = browse("--json search tools hammer");
  EXPECT_EQ(nothing.status, 1);
  EXPECT_EQ(json::parse(nothing.out).at("items"), json::array());
  expectFailure(browse("search tools hammer"), {"\"tools\"", "\"hammer\""});
}

TEST_F(QvBrowse, printsJsonAsItsSchemaSays) {
  install("print");
  install("abort");
  for (std::string const arguments : {"",
                                      "schemes",
                                      "ls tools",
                                      "ls views",
                                      "tree tools --depth 1",
                                      "show tools Wood/saw Wood \"\"",
                                      "show views plan",
                                      "search tools a",
                                      "search tools nothing",
                                      "detail tools Wood/saw Wood",
                                      "detail --dump tools Kit",
                                      "actions views plan",
                                      "run-action Open views plan",
                                      "startup",
                                      "drag tools Wood/saw Wood",
                                      "drag --dump views plan",
                                      "packages",
                                      "--tools frei0r:plugins plugins",
                                      "--tools frei0r:plugins show tools Source/print",
                                      "check --only file."}) {
    std::string const command = "--tools catalogue.json --json " + arguments;
    run(command);
    write("result.json", run(command).out);
    std::string const validate = "/usr/bin/python3 -m jsonschema \"" SCHEMA_FILE "\" -i ";
    ProgramRun const valid = runInShell(validate + "result.json");
    EXPECT_EQ(valid.status, 0) << arguments << "\n" << valid.err;
    if (arguments.find("--dump") == std::string::npos) {
      EXPECT_EQ(run(command).out, read("result.json"));
    }
    json other = json::parse(read("result.json"));
    for (json& list : other)
      if (list.is_array())
        list.push_back({{"scheme", "tools"}});
    write("other.json", other.dump());
    EXPECT_EQ(runInShell(validate + "other.json").status, 1) << arguments;
  }
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
            "View            New window  Flag\n"
            "übersichtsplan  no          yes\n");
  EXPECT_EQ(result(browse("ls views")), "Type  View       Path\n"
                                        "View  Overview   übersichtsplan\n"
                                        "View  Site plan  plan\n");
  EXPECT_THAT(result(browse("show tools Wood/saw")),
              HasSubstr("\nTooltip                 Cuts wood.\n"
                        "                        Mind your\n"
                        "                        fingers.\n"));
}

TEST_F(QvBrowse, printsEachResultAsText) {
  write("wide.json", R"({"tools": [{"name": "漢字", "category": "e\u0301"}]})");
  for (auto const& [arguments, lines] :
       Cases{{"startup",
              {"Number  Operation                       Key                         Detail\n",
               "\n51      ActRegistry::registerAction     Open in Window "}},
             {"packages",
              {"Package                Dependencies\n", "\ndatamgt                base, resmgt\n",
               "\nProduct       Halvard Ostrel Library\n", "\nBuild flavor  opt.x86_64.intel\n"}},
             {"schemes", {"\nviews   View   NAME            string     40             2000 "}},
             {"plugins", {"State  Category  Tool  Version  File  Reason\n"}},
             {"search tools kit",
              {"Type        Name  Path     In    Field  Text\n",
               "\nSuper Tool  Kit   Kit/Kit  name         Kit\n"}},
             // In columns of the terminal.
             {"--tools wide.json search tools 漢",
              {"Type  Name  Path    In    Field  Text\nTool  漢字  e\u0301/漢字  name         "
               "漢字\n"}},
             {"actions views plan",
              {"Name            Valid  Dynamic state\nOpen            yes    DynamicState(0)\n"}},
             {"detail tools Wood/saw Wood", {"\"Wood/saw\"\n\nPage ", "\n\n\"Wood\"\n\nPage "}},
             {"detail --dump tools Wood/saw",
              {"\n    Qv::UiLabel \"FieldValue0\" text=\"Hand saw\" width=340 height=24 "
               "colors={}\n"}},
             {"drag views plan",
              {"Path  Handler                Accepted  Cut  Copy  Drop  Arrives\n"
               "plan  Qv::PbrViewDndHandler  yes       no   yes   no    view \"plan\"\n"}}}) {
    std::string const text = result(browse(arguments));
    for (std::string const& line : lines)
      EXPECT_THAT(text, HasSubstr(line)) << arguments;
  }
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
    for (std::string const& coloured :
         {result(runOntoTerminal("NO_COLOR=", arguments)),
          result(run(arguments + " --color always")),
          result(runOntoTerminal("NO_COLOR=1", arguments + " --color=always"))}) {
      EXPECT_THAT(coloured, HasSubstr("\x1b["));
      EXPECT_EQ(withoutStyles(coloured), piped);
    }
    for (ProgramRun const& plain : {runOntoTerminal("NO_COLOR=1", arguments),
                                    runOntoTerminal("-u NO_COLOR TERM=dumb PAGER=false", arguments),
                                    runOntoTerminal("-u NO_COLOR", arguments + " --color never"),
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

  // One that cannot be run is as good as none.
  for (std::string const pager : {"no-such-pager", "./many.json"}) {
    ProgramRun const missing = runWithPager(pager, "ls tools Wood");
    EXPECT_EQ(missing.status, 0);
    EXPECT_THAT(withoutStyles(missing.out), testing::EndsWith(listed));
  }
}

TEST_F(QvBrowse, fitsTheTerminal) {
  std::string const name(60, 'n');
  write("long.json", json{{"tools",
                           {{{"name", name + "x"},
                             {"category", "C"},
                             {"texts", {"", "one two three four five six seven", ""}}}}}}
                         .dump());
  auto const runAt = [&](std::string const& columns, std::string const& arguments) {
    return withoutStyles(runInShell("script -qec 'stty cols " + columns +
                                    "; env -u NO_COLOR PAGER= " +
                                    commandLine("--tools long.json " + arguments) + "' /dev/null")
                             .out);
  };
  std::string const found = "search tools three";
  EXPECT_THAT(runAt("60", found), HasSubstr("  one two three four five\n  "));
  EXPECT_THAT(runAt("60", found), HasSubstr("…"));
  EXPECT_EQ(runAt("400", found), result(run("--tools long.json " + found)));
  std::istringstream lines(runAt("60", found));
  for (std::string line; std::getline(lines, line);)
    EXPECT_LE(line.size(), 60U + 2 * std::string("…").size()) << line;
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
