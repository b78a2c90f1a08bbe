#include "arguments.h"
#include "commands.h"
#include "hostBrRegistry.h"
#include "values.h"

namespace Qv {

namespace {

Json describe(RCShdPtr<BrBrowsable> const& item, Session const& session) {
  Json json = toJson(*item);
  for (auto const& [name, id] : getAttributes())
    if (id != BrBrowsable::NAME && id != BrBrowsable::BROWSABLE_TYPE)
      json["attributes"][name] = getAttribute(*item, id);
  json["container"] = item->isAContainer();
  json["hasChildren"] = hasChildren(*item);
  json["hasContainerChildren"] = hasContainerChildren(*item);
  json["picklistable"] = item->isPicklistable();
  json["icon"] = toJson(HostBrRegistry::getInstance().getIcon(json["type"]));
  json["thumbnail"] = toJson(item->getImage(int(BrBrowsable::THUMBNAIL), {128, 128}));
  json["tooltip"] = getTooltipLines(*item);
  std::optional<DetailPage> page = DetailPage::create(item);
  addDetail(json, item, session, page);
  return json;
}

ExitStatus showItems(ItemArguments const& options, Session const& session, Output& output) {
  Json shown = Json::array();
  for (RCShdPtr<BrBrowsable> const& item : findItems(options))
    shown.push_back(describe(item, session));
  if (output.isJson()) {
    output.printJson({{"items", shown}});
    return Success;
  }
  for (Json const& item : shown) {
    if (&item != &shown.front())
      output.print("\n");
    // These have tables of their own.
    Json properties = item;
    properties.erase("plugin");
    properties.erase("detail");
    output.printProperties(properties);
    printDetail(item, output);
  }
  return Success;
}

} // namespace

void addShowCommand(Program& program) {
  auto const [command, options] = program.addCommand("show", "Show items in full", &showItems);
  addScheme(program, command, options)->required();
  addPaths(command, options);
}

} // namespace Qv
