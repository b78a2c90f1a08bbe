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
  return found == attributes.end() ? std::to_string(attributeId) : found->name;
}

std::string dataTypeName(unsigned int dataType) {
  if (dataType == BrBrowsable::ICON)
    return "icon";
  if (dataType == BrBrowsable::STRING)
    return "string";
  return std::to_string(dataType);
}

Json describe(BrAttrib const& column, BrAttribList const& list) {
  Json flags = Json::array();
  for (BrAttrib::AttribAttributes const flag : column.getAttributes())
    flags.push_back(int(flag));
  return {{"title", column.getName()},
          {"attribute", attributeName(column.getAttributeId())},
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

ExitStatus showSchemes(Output& output, Session const& /*session*/) {
  Json schemes = Json::array();
  for (OPtr<BrServer> const& server : HostBrRegistry::getInstance().getServers()) {
    RCShdPtr<BrAttribList> const list = server->getAttributesList();
    Json columns = Json::array();
    for (RCShdPtr<BrAttrib> const& column : list->getAttribs())
      columns.push_back(describe(*column, *list));
    schemes.push_back({{"scheme", server->getSchemeName()},
                       {"observable", server->isObservable()},
                       {"columns", columns}});
  }
  if (output.isJson()) {
    output.printJson(schemes);
    return Success;
  }

  std::vector<Output::Row> rows;
  for (Json const& scheme : schemes)
    for (Json const& column : scheme["columns"])
      rows.push_back({scheme["scheme"], column["title"], column["attribute"], column["dataType"],
                      fmt::format("{} to {}, now {}", column["minimumWidth"].dump(),
                                  column["maximumWidth"].dump(), column["currentWidth"].dump()),
                      yesOrNo(column["shown"]), yesOrNo(column["sortKey"])});
  output.printTable({"Scheme", "Title", "Attribute", "Data type", "Width", "Shown", "Sort key"},
                    std::move(rows));
  return Success;
}

} // namespace

void addSchemesCommand(Program& program) {
  program.addCommand("schemes", "Show the schemes and their columns", &showSchemes);
}

} // namespace Qv
