#include "commands.h"

#include "browser.h"
#include "detailPage.h"
#include "hostBrRegistry.h"
#include "hostBuildInfoRegistry.h"
#include "hostJournal.h"
#include "hostPackageManager.h"
#include "typeName.h"

#include <algorithm>

namespace Qv {

namespace {

constexpr BrBrowsable::FindFilter ItemsOnly{2};
constexpr BrBrowsable::ChildSearchType ContainerChildren{1};

std::string dataTypeName(unsigned int dataType) {
  if (dataType == BrBrowsable::ICON)
    return "icon";
  if (dataType == BrBrowsable::STRING)
    return "string";
  return std::to_string(dataType);
}

Json describeColumn(BrAttrib const& column, BrAttribList const& list) {
  Json flags = Json::array();
  for (BrAttrib::AttribAttributes const flag : column.getAttributes())
    flags.push_back(int(flag));
  return {{"title", column.getName()},
          {"attribute", getAttributeName(column.getAttributeId())},
          {"dataType", dataTypeName(column.getDataType())},
          {"minimumWidth", column.getMinW()},
          {"maximumWidth", column.getMaxW()},
          {"currentWidth", column.getCurrentW()},
          {"attributes", flags},
          {"shown", column.isDisplayed()},
          {"sortKey", list.getSortKey() == int(column.getAttributeId())},
          {"auxFlag", column.auxFlag},
          {"auxText", column.auxText}};
}

/// Prints or collects the tree below an item, level by level as the queries give it.
class TreeWalk {
public:
  explicit TreeWalk(Request const& request) : depth_(request.depth) {}

  Json collect(BrBrowsable& item, int level = 0) const {
    Json json = {{"name", getAttribute(item, BrBrowsable::NAME)},
                 {"type", getAttribute(item, BrBrowsable::BROWSABLE_TYPE)},
                 {"path", item.getPath()}};
    if (goesBelow(item, level)) {
      Json& children = json["children"] = Json::array();
      forEachChild(item, AllChildren, [&](RCShdPtr<BrBrowsable> const& child) {
        children.push_back(collect(*child, level + 1));
      });
    }
    return json;
  }

  void print(BrBrowsable& item) const {
    printLine(item);
    printChildren(item, "", 0);
  }

private:
  bool goesBelow(BrBrowsable const& item, int level) const {
    return (!depth_ || level < *depth_) && item.hasChildren(AnyChildren, NoOption);
  }

  /// The path is printed where it does not end in what a person reads.
  void printLine(BrBrowsable& item) const {
    auto const style = item.isAContainer() ? fg(fmt::terminal_color::blue) | fmt::emphasis::bold
                                           : fmt::text_style();
    std::string const name = getAttribute(item, BrBrowsable::NAME);
    std::string const type = "[" + getAttribute(item, BrBrowsable::BROWSABLE_TYPE) + "]";
    std::string const path = item.getPath();
    printText("{}  {}{}\n", terminal_.styled(style, printable(name)),
              terminal_.styled(fmt::emphasis::faint, printable(type)),
              path.empty() || ("/" + path).ends_with("/" + name) ? "" : "  " + printable(path));
  }

  void printChildren(BrBrowsable& item, std::string const& indent, int level) const {
    if (!goesBelow(item, level))
      return;
    // A child is printed when the next one is known, since the last one gets another branch.
    RCShdPtr<BrBrowsable> pending;
    auto const printPending = [&](bool last) {
      if (!pending)
        return;
      printText("{}{}", indent, last ? "└── " : "├── ");
      printLine(*pending);
      printChildren(*pending, indent + (last ? "    " : "│   "), level + 1);
    };
    forEachChild(item, AllChildren, [&](RCShdPtr<BrBrowsable> const& child) {
      printPending(false);
      pending = child;
    });
    printPending(true);
  }

  std::optional<int> depth_;
  Terminal terminal_;
};

} // namespace

void showSchemes(Request const& request) {
  Json schemes = Json::array();
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    RCShdPtr<BrAttribList> const list = server->getAttributesList();
    Json columns = Json::array();
    for (RCShdPtr<BrAttrib> const& column : list->getAttribs())
      columns.push_back(describeColumn(*column, *list));
    schemes.push_back({{"scheme", server->getSchemeName()},
                       {"observable", server->isObservable()},
                       {"columns", columns}});
  }
  if (request.json)
    return printJson(schemes);

  std::vector<std::vector<std::string>> rows;
  for (Json const& scheme : schemes)
    for (Json const& column : scheme["columns"])
      rows.push_back({scheme["scheme"], column["title"], column["attribute"], column["dataType"],
                      fmt::format("{} to {}, now {}", column["minimumWidth"].dump(),
                                  column["maximumWidth"].dump(), column["currentWidth"].dump()),
                      yesOrNo(column["shown"]), yesOrNo(column["sortKey"])});
  Terminal().printTable({"Scheme", "Title", "Attribute", "Data type", "Width", "Shown", "Sort key"},
                        rows);
}

void listChildren(Request const& request) {
  RCShdPtr<BrBrowsable> const item = findItem(request.scheme, request.path);
  RCShdPtr<BrAttribList> const list = item->getServer()->getAttributesList();

  std::vector<RCShdPtr<BrBrowsable>> children;
  forEachChild(*item, request.itemsOnly ? ItemsOnly : AllChildren,
               [&](RCShdPtr<BrBrowsable> const& child) { children.push_back(child); });
  if (std::optional<int> const key = list->getSortKey(); key && !request.unsorted)
    std::stable_sort(children.begin(), children.end(),
                     [&](RCShdPtr<BrBrowsable> const& left, RCShdPtr<BrBrowsable> const& right) {
                       return getAttribute(*left, unsigned(*key)) <
                              getAttribute(*right, unsigned(*key));
                     });

  std::vector<std::string> titles;
  std::vector<std::vector<std::string>> rows(children.size());
  for (RCShdPtr<BrAttrib> const& column : list->getAttribs()) {
    if (!column->isDisplayed())
      continue;
    titles.push_back(column->getName());
    for (std::size_t row = 0; row < children.size(); ++row)
      rows[row].push_back(getAttribute(*children[row], column->getAttributeId()));
  }

  if (request.json) {
    Json json = Json::array();
    for (std::size_t row = 0; row < rows.size(); ++row) {
      Json& cells = json.emplace_back(Json::object());
      cells["path"] = children[row]->getPath();
      for (std::size_t column = 0; column < titles.size(); ++column)
        cells["columns"][titles[column]] = rows[row][column];
    }
    return printJson(json);
  }
  Terminal().printTable(titles, rows);
}

void showTree(Request const& request) {
  RCShdPtr<BrBrowsable> const root = findItem(request.scheme, request.path);
  TreeWalk const walk(request);
  if (request.json)
    return printJson(walk.collect(*root));
  walk.print(*root);
}

void showTrees(Request const& request) {
  TreeWalk const walk(request);
  Json trees = Json::array();
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    RCShdPtr<BrBrowsable> const root = server->getRootNode()->getBrowsable();
    if (request.json)
      trees.push_back(walk.collect(*root));
    else
      walk.print(*root);
  }
  if (request.json)
    printJson(trees);
}

void showItem(Request const& request) {
  RCShdPtr<BrBrowsable> const item = findItem(request.scheme, request.path);
  Json attributes = Json::object();
  for (Attribute const& attribute : getAttributes())
    attributes[attribute.name] = getAttribute(*item, attribute.id);
  Json json = {
      {"scheme", item->getSchemeName()}, {"path", item->getPath()}, {"attributes", attributes}};
  json["container"] = item->isAContainer();
  json["hasChildren"] = item->hasChildren(AnyChildren, NoOption);
  json["hasContainerChildren"] = item->hasChildren(ContainerChildren, NoOption);
  json["picklistable"] = item->isPicklistable();
  json["icon"] = describeImage(HostBrRegistry::getInstance().getIcon(attributes["BROWSABLE_TYPE"]));
  json["thumbnail"] = describeImage(item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128}));
  json["tooltip"] = item->getTooltip(int(BrBrowsable::NAME));
  std::optional<DetailPage> detail = DetailPage::create(item);
  json["detail"] = detail ? detail->show(item) : Json(nullptr);
  if (request.json)
    return printJson(json);

  std::vector<std::vector<std::string>> rows = {
      {"scheme", json["scheme"]}, {"path", fmt::format("\"{}\"", json["path"].get<std::string>())}};
  for (auto const& [name, value] : attributes.items())
    rows.push_back({name, value});
  rows.push_back({"container", yesOrNo(json["container"])});
  rows.push_back({"has children", yesOrNo(json["hasChildren"])});
  rows.push_back({"has container children", yesOrNo(json["hasContainerChildren"])});
  rows.push_back({"picklistable", yesOrNo(json["picklistable"])});
  rows.push_back({"icon", imageText(json["icon"])});
  rows.push_back({"thumbnail", imageText(json["thumbnail"])});
  // A tooltip separates its lines by a tag.
  std::string tooltip = json["tooltip"];
  for (char const* property = "tooltip";; property = "") {
    std::size_t const end = tooltip.find("<br>");
    rows.push_back({property, tooltip.substr(0, end)});
    if (end == std::string::npos)
      break;
    tooltip.erase(0, end + std::string_view("<br>").size());
  }
  Terminal().printTable({"Property", "Value"}, rows);
  if (detail) {
    printText("\n");
    DetailPage::print(json["detail"]);
  }
}

void showStartup(Request const& request) {
  Json entries = Json::array();
  for (HostJournal::Entry const& entry : HostJournal::getInstance().getEntries())
    entries.push_back(
        {{"operation", entry.operation}, {"key", entry.key}, {"detail", entry.detail}});
  if (request.json)
    return printJson(entries);

  std::vector<std::vector<std::string>> rows;
  for (Json const& entry : entries)
    rows.push_back(
        {std::to_string(rows.size() + 1), entry["operation"], entry["key"], entry["detail"]});
  Terminal().printTable({"#", "Operation", "Key", "Detail"}, rows);
}

void showPackages(Request const& request) {
  HostPackageManager const& manager = HostPackageManager::getInstance();
  Json packages = Json::array();
  for (InPackageInit const* const package : manager.getPackages()) {
    Json dependencies = Json::array();
    for (std::type_info const* const needed : package->getDependencies()) {
      InPackageInit const* const dependency = manager.find(*needed);
      dependencies.push_back(dependency ? dependency->getName() : typeName(*needed));
    }
    packages.push_back({{"package", package->getName()}, {"dependencies", dependencies}});
  }
  Json infos = Json::array();
  for (OPtr<InBuildInfo> const& info : HostBuildInfoRegistry::getInstance().getInfos())
    infos.push_back({{"product", info->getProductName()},
                     {"library", info->getLibraryName()},
                     {"release", info->getReleaseName()},
                     {"version", info->getVersionString()},
                     {"stage", info->getStageName()},
                     {"major", info->getMajorVersion()},
                     {"minor", info->getMinorVersion()},
                     {"stageCode", info->getStageCode()},
                     {"buildNumber", info->getBuildNumber()},
                     {"buildDate", info->getBuildDate()},
                     {"buildFlavor", info->getBuildFlavor()}});
  if (request.json)
    return printJson({{"packages", packages}, {"buildInfos", infos}});

  Terminal const terminal;
  std::vector<std::vector<std::string>> rows;
  for (Json const& package : packages) {
    std::vector<std::string> const dependencies = package["dependencies"];
    rows.push_back({package["package"], fmt::format("{}", fmt::join(dependencies, ", "))});
  }
  terminal.printTable({"Package", "Depends on"}, rows);
  for (Json const& info : infos) {
    printText("\n");
    rows.clear();
    for (auto const& [name, value] : info.items())
      rows.push_back({name, value.is_string() ? value.get<std::string>() : value.dump()});
    terminal.printTable({"Build information", ""}, rows);
  }
}

} // namespace Qv
