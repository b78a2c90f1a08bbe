#include "commands.h"
#include "frei0rTools.h"
#include "hostJournal.h"
#include "hostModule.h"
#include "hostResources.h"
#include "output.h"
#include "progress.h"
#include "readToolSources.h"

#include <CLI/CLI.hpp>
#include <algorithm>
#include <boost/dll/runtime_symbol_info.hpp>
#include <sstream>

namespace fs = std::filesystem;

namespace Qv {

namespace {

constexpr int Success = 0;
constexpr int Failure = 1;
constexpr int Usage = 2;
/// Done, but for plug-ins that could not be read.
constexpr int Partial = 3;

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
  bool requireIsolation = false;
  Request request;
  void (*command)(Request const&) = &showTrees;
  /// Whether the command goes on with further paths.
  bool takesPaths = false;
  bool paged = true;
};

bool isOption(std::string const& argument) { return argument.size() > 1 && argument[0] == '-'; }

/// @throws CLI::ParseError that names the first of the arguments that nothing takes.
[[noreturn]] void refuseArguments(CLI::App const& app, std::vector<std::string> const& arguments) {
  auto const option = std::find_if(arguments.begin(), arguments.end(), isOption);
  std::string reason;
  if (option != arguments.end())
    reason = fmt::format("there is no option \"{}\" here", *option);
  else if (app.get_subcommands().empty())
    reason = fmt::format("there is no command \"{}\"", arguments.front());
  else
    reason = fmt::format("the argument \"{}\" is one too many", arguments.front());
  throw CLI::ParseError(reason, CLI::ExitCodes::ExtrasError);
}

void declare(CLI::App& app, CommandLine& line) {
  Request& request = line.request;
  app.set_version_flag("--version", "qvbrowse " QV_VERSION);
  app.failure_message([](CLI::App const*, CLI::Error const& error) {
    return fmt::format("qvbrowse: {}; --help tells what there is\n", printable(error.what()));
  });
  app.fallthrough();
  app.footer(
      "Without a command, the trees of all schemes are shown. --module and --tools may stand "
      "after a command as well.\n"
      "Exit status:\n"
      "  0  all is well\n"
      "  1  the command failed or found nothing\n"
      "  2  the command line is wrong\n"
      "  3  the command is done, but plug-ins that could not be read are left out");
  app.add_option("--module", line.module, "The module file to load")->type_name("FILE");
  app.add_option("--tools", line.tools,
                 "Where the tools come from, repeatable: frei0r, frei0r:DIR or a JSON catalogue")
      ->type_name("SOURCE")
      ->allow_extra_args(false);
  app.add_flag("--require-isolation", line.requireIsolation,
               "Read no plug-in unless it can be isolated completely");
  app.add_flag_callback(
      "--no-pager", [&line] { line.paged = false; }, "Never show the output through $PAGER");
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
  CLI::App* const search = addCommand(
      "search", "Find the items of a scheme whose name or label holds a text", &searchItems);
  search->add_option("SCHEME", request.scheme, "The name of the scheme")->required();
  search->add_option("TEXT", request.text, "The text, in upper or lower case")
      ->required()
      ->check([](std::string const& text) {
        return text.empty() ? "the text to search for is empty" : "";
      });
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
        refuseArguments(app, app.remaining());
      line.takesPaths = true;
    });
  };
  addItems(addCommand("drag", "Drag items out of the browser", &dragItems));
  CLI::App* const detail =
      addCommand("detail", "Show items on one detail page, one after the other", &showDetail);
  addItems(detail);
  detail->add_flag("--dump", request.dump, "Show the widgets as well");

  CLI::App* const plugins =
      addCommand("plugins", "Show the plug-in files, and why some are left out", &showPlugins);
  plugins->add_flag("--retry", request.retry, "Try those again that failed before");

  addCommand("packages", "Show the packages and their build information", &showPackages);
}

/// Takes the arguments that no option took as further paths. @throws CLI::ParseError.
void takePaths(CLI::App const& app, CommandLine& line) {
  std::vector<std::string> const rest = app.remaining();
  bool const option = std::any_of(rest.begin(), rest.end(), isOption);
  if (!rest.empty() && (option || !line.takesPaths))
    refuseArguments(app, rest);
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
void registerTools(CommandLine& line) {
  std::vector<ToolSource> sources =
      readToolSources(line.tools, {.retry = line.request.retry,
                                   .requireIsolation = line.requireIsolation,
                                   .progress = &setProgress});
  bool const viewsGiven = std::any_of(sources.begin(), sources.end(), [](ToolSource const& source) {
    return !source.views.empty();
  });
  if (!viewsGiven)
    sources.push_back(ownViews());
  std::vector<ToolSource::Plugin>& plugins = line.request.plugins;
  for (ToolSource const& source : sources)
    plugins.insert(plugins.end(), source.plugins.begin(), source.plugins.end());
  registerToolSources(sources);
}

/// Names each plug-in that is left out. @returns whether there is one.
bool reportFailures(std::vector<ToolSource::Plugin> const& plugins) {
  bool failed = false;
  for (auto const& [file, failure, cached] : plugins) {
    if (failure.empty())
      continue;
    failed = true;
    printProblem(fmt::format("the plug-in \"{}\" is left out: {}{}", file.string(), failure,
                             cached ? "; the command \"plugins --retry\" tries it again" : ""));
  }
  return failed;
}

int run(CommandLine& line) {
  fs::path const resources = resourceDirectory();
  HostResources::getInstance().setDirectory(resources);
  if (line.tools.empty()) {
    fs::path const sample = resources / "sampleCatalogue.json";
    line.tools = {hasFrei0rTools(frei0rDirectory) ? "frei0r" : sample.string()};
  }
  Progress const progress;
  registerTools(line);
  bool const partial = reportFailures(line.request.plugins);

  HostJournal::getInstance().start();
  HostModule const module(line.module);
  HostJournal::getInstance().stop();

  setProgress("listing");
  std::optional<Paging> paging;
  if (line.paged && !line.request.json)
    paging.emplace();
  line.command(line.request);
  flushOutput();
  if (paging)
    paging->end();
  return partial ? Partial : Success;
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
    return run(line);
  } catch (std::bad_alloc const&) {
    printProblem("there is not enough memory");
    return Failure;
  } catch (std::exception const& error) {
    printProblem(error.what());
    return Failure;
  }
}
