#include "commands.h"
#include "frei0rTools.h"
#include "hostError.h"
#include "hostJournal.h"
#include "hostModule.h"
#include "hostResources.h"
#include "output.h"
#include "toolCatalogue.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <boost/dll/runtime_symbol_info.hpp>
#include <cstring>
#include <sstream>

namespace fs = std::filesystem;

namespace Qv {

namespace {

constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int Usage = 2;

/// In the folder `share` beside that of this program.
fs::path resourceDirectory() {
  return fs::read_symlink("/proc/self/exe").parent_path().parent_path() / "share" / "qvbrowse";
}

/// Beside the host's libraries.
fs::path standardModule() {
  fs::path const library = boost::dll::symbol_location_ptr(&HostJournal::getInstance());
  return fs::canonical(library).replace_filename("libQVpluginBrowser.qvmodule");
}

/// What the command line says.
struct CommandLine {
  fs::path module = standardModule();
  std::vector<std::string> tools;
  Request request;
  void (*command)(Request const&) = &showTrees;
  /// Whether the command goes on with further paths.
  bool takesPaths = false;
};

void declare(CLI::App& app, CommandLine& line) {
  Request& request = line.request;
  app.set_version_flag("--version", "qvbrowse " QV_VERSION);
  app.fallthrough();
  app.footer(
      "Without a command, the trees of all schemes are shown. --module and --tools may stand "
      "after a command as well.");
  app.add_option("--module", line.module, "The module file to load")->type_name("FILE");
  app.add_option("--tools", line.tools,
                 "Where the tools come from, repeatable: frei0r, frei0r:DIR or a JSON catalogue")
      ->type_name("SOURCE")
      ->allow_extra_args(false);
  app.require_subcommand(0, 1);
  // An option of several values would take a path in square brackets for a list.
  app.allow_extras();

  auto const addCommand = [&](char const* name, char const* help, void (*command)(Request const&)) {
    CLI::App* const subcommand = app.add_subcommand(name, help);
    subcommand->add_flag("--json", request.json, "Print JSON for a machine");
    subcommand->callback([&line, command] { line.command = command; });
    return subcommand;
  };
  auto const addItem = [&](CLI::App* subcommand, bool pathRequired, bool schemeRequired = true) {
    subcommand->add_option("SCHEME", request.scheme, "The name of the scheme")
        ->required(schemeRequired);
    subcommand->add_option("PATH", request.path, "The path of the item; \"\" is the root")
        ->required(pathRequired);
  };

  app.add_flag("--json", request.json, "Print JSON for a machine");
  addCommand("schemes", "Show the schemes and their columns", &showSchemes);

  CLI::App* const ls = addCommand("ls", "List the children of an item", &listChildren);
  addItem(ls, false);
  ls->add_flag("--unsorted", request.unsorted, "Keep the order of the query");
  ls->add_option_function<std::string>(
        "--filter", [&](std::string const& filter) { request.itemsOnly = filter == "items"; },
        "Which children: all, or the items at the scheme's item depth")
      ->check(CLI::IsMember({"all", "items"}))
      ->option_text("all|items");

  CLI::App* const tree =
      addCommand("tree", "Show the tree below an item, or of all schemes", &showTree);
  addItem(tree, false, false);
  tree->callback([&line, tree] { line.command = tree->count("SCHEME") ? &showTree : &showTrees; });
  tree->add_option("--depth", request.depth, "How many levels below the item")
      ->check(CLI::Range(0, 1000))
      ->option_text("N");

  addItem(addCommand("show", "Show one item", &showItem), true);
  addCommand("startup", "Show what the module did to the host while it started", &showStartup);

  addItem(addCommand("actions", "List the actions for an item", &listActions), false);
  CLI::App* const action = addCommand("run-action", "Perform an action on an item", &runAction);
  action->add_option("NAME", request.action, "The name of the action")->required();
  addItem(action, true);
  action->add_flag("--no-workspace", request.noWorkspace, "Run without a workspace");
  auto const addItems = [&](CLI::App* subcommand) {
    subcommand->add_option("SCHEME", request.scheme, "The name of the scheme")->required();
    subcommand->add_option("PATH", request.path, "The path of an item; more may follow")
        ->required();
    subcommand->preparse_callback([&app, &line](std::size_t) {
      if (app.remaining_size() > 0)
        throw CLI::ExtrasError(app.remaining());
      line.takesPaths = true;
    });
  };
  addItems(addCommand("drag", "Drag items out of the browser", &dragItems));
  CLI::App* const detail =
      addCommand("detail", "Show items on one detail page, one after the other", &showDetail);
  addItems(detail);
  detail->add_flag("--dump", request.dump, "Show the widgets as well");

  addCommand("packages", "Show the packages and their build information", &showPackages);
}

/// Takes the arguments that no option took as further paths. @throws CLI::ExtrasError.
void takePaths(CLI::App const& app, CommandLine& line) {
  std::vector<std::string> const rest = app.remaining();
  bool const option = std::any_of(rest.begin(), rest.end(), [](std::string const& argument) {
    return argument.size() > 1 && argument[0] == '-';
  });
  if (!rest.empty() && (option || !line.takesPaths))
    throw CLI::ExtrasError(rest);
  line.request.paths = {line.request.path};
  line.request.paths.insert(line.request.paths.end(), rest.begin(), rest.end());
}

/// The views that this program offers where no source names any.
ToolSource ownViews() {
  ToolSource source;
  source.views = {{"browser", "Asset Browser", "The trees of all schemes"},
                  {"toolDetail", "Tool Detail", "The detail page of a tool"},
                  {"startupJournal", "Start-up Journal", "What the module did while it started"},
                  {"packages", "Packages", "The packages and their build information"}};
  return source;
}

/// Reads all sources before the first one is registered.
void registerTools(std::vector<std::string> const& names) {
  std::vector<ToolSource> sources;
  for (std::string const& name : names) {
    if (name == "frei0r")
      sources.push_back(readFrei0rTools(frei0rDirectory));
    else if (name.starts_with("frei0r:"))
      sources.push_back(readFrei0rTools(name.substr(std::strlen("frei0r:"))));
    else
      sources.push_back(readToolCatalogue(name));
  }
  bool const viewsGiven = std::any_of(sources.begin(), sources.end(), [](ToolSource const& source) {
    return !source.views.empty();
  });
  if (!viewsGiven)
    sources.push_back(ownViews());
  for (ToolSource const& source : sources)
    for (std::string const& warning : source.warnings)
      printProblem(warning);
  registerToolSources(sources);
}

void run(CommandLine& line) {
  fs::path const resources = resourceDirectory();
  HostResources::getInstance().setDirectory(resources);
  if (line.tools.empty()) {
    std::error_code error;
    bool const none = fs::is_empty(frei0rDirectory, error) || error;
    line.tools = {none ? resources / "sampleCatalogue.json" : "frei0r"};
  }
  registerTools(line.tools);

  HostJournal::getInstance().start();
  HostModule const module(line.module);
  HostJournal::getInstance().stop();

  line.command(line.request);
  flushOutput();
}

} // namespace

} // namespace Qv

int main(int argc, char** argv) {
  using namespace Qv;

  try {
    CLI::App app("Browses the schemes that a module adds to the asset browser.", "qvbrowse");
    CommandLine line;
    try {
      declare(app, line);
      app.parse(argc, argv);
      takePaths(app, line);
    } catch (CLI::ParseError const& error) {
      std::ostringstream help;
      int const status = app.exit(error, help) == Success ? Success : Usage;
      writeText(help.str());
      flushOutput();
      return status;
    }
    run(line);
    return Success;
  } catch (std::exception const& error) {
    printProblem(error.what());
    return Failure;
  }
}
