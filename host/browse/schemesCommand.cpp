#include "commands.h"

#include "hostBrRegistry.h"
#include "items.h"

#include <algorithm>

namespace Qv {

namespace {

std::string attributeName(unsigned int attributeId) {
  std::vector<Attribute> const attributes = getAttributes();
  auto const found =
      std::find_if(attributes.begin(), attributes.end(),
                   [&](Attribute const& attribute) { return attribute.id == attributeId; });
  return found == attributes.end() ? fmt::format("attribute {}", attributeId) : found->name;
}

std::string dataTypeName(unsigned int dataType) {
  if (dataType == BrBrowsable::ICON)
    return "icon";
  if (dataType == BrBrowsable::STRING)
    return "string";
  return fmt::format("data type {}", dataType);
}

Json describe(BrAttrib const& column, BrAttribList const& list) {
  Json flags = Json::array();
  // Only the host knows what its numbers stand for.
  for (BrAttrib::AttribAttributes const flag : column.getAttributes())
    flags.push_back(fmt::format("AttribAttributes({})", int(flag)));
  return {{"title", column.getName()},
          {"attribute", attributeName(column.getAttributeId())},
          {"dataType", dataTypeName(column.getDataType())},
          {"minimumWidth", column.getMinW()},
          {"maximumWidth", column.getMaxW()},
          {"currentWidth", column.getCurrentW()},
          {"flags", flags},
          {"shown", column.isDisplayed()},
          {"sortKey", list.getSortKey() == int(column.getAttributeId())},
          {"auxFlag", column.auxFlag},
          {"auxText", column.auxText}};
}

ExitStatus showSchemes(Session const& /*session*/, Output& output) {
  Json schemes = Json::array();
  Json rows = Json::array();
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    RCShdPtr<BrAttribList> const list = server->getAttributesList();
    Json& scheme = schemes.emplace_back(Json{{"scheme", server->getSchemeName()},
                                             {"observable", server->isObservable()},
                                             {"columns", Json::array()}});
    for (RCShdPtr<BrAttrib> const& column : list->getAttribs()) {
      scheme["columns"].push_back(describe(*column, *list));
      rows.push_back(scheme["columns"].back());
      rows.back()["scheme"] = scheme["scheme"];
    }
  }
  if (output.isJson())
    output.printJson({{"schemes", schemes}});
  else
    output.printTable({"scheme", "title", "attribute", "dataType", "minimumWidth", "maximumWidth",
                       "currentWidth", "shown", "sortKey"},
                      rows);
  return Success;
}

} // namespace

void addSchemesCommand(Program& program) {
  program.addCommand("schemes", "Show the schemes and their columns", PluginUse::None,
                     &showSchemes);
}

} // namespace Qv
