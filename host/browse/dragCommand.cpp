#include "commands.h"

#include "browser.h"
#include "drCarrier.h"
#include "hostDndRegistry.h"
#include "hostDndTool.h"
#include "hostError.h"
#include "output.h"
#include "snItemBasic.h"
#include "uiViewIdentifier.h"

#include <sstream>

namespace Qv {

namespace {

/// What a consumer finds in a selection item.
std::string arrival(RCShdPtr<SnItem const> const& item) {
  if (auto const tool = item.dynamicCast<SnItemBasic<RCShdPtr<PiNodeDndInterface const>> const>())
    return fmt::format("tool \"{}\"",
                       tool->getValue().checkedCast<HostDndTool const>()->getTool()->getName());
  if (auto const view = item.dynamicCast<SnItemBasic<UiViewIdentifier> const>())
    return fmt::format("view \"{}\"", view->getValue().getName());
  return "something unknown";
}

/// Drags an item and tells what happened.
Json drag(RCShdPtr<BrBrowsable> const& item) {
  Json json = {{"path", item->getPath()}, {"handler", nullptr}, {"accepted", false}};
  RCShdPtr<BrDndHandler> const handler = HostDndRegistry::getInstance().findHandler(*item);
  if (!handler)
    return json;
  BrDndHandler const& found = *handler;
  RCShdPtr<DrCarrier> const carrier(new DrCarrier(SnSelection::create()));
  json["handler"] = typeName(typeid(found));
  json["accepted"] = handler->willPopulateSelection(item);
  json["cut"] = handler->willCut(item);
  json["copy"] = handler->willCopy(item);
  json["drop"] = handler->willConsumeSelection(item, carrier);
  if (!json["accepted"])
    return json;

  handler->populateSelection(item, carrier);
  json["items"] = Json::array();
  for (RCShdPtr<SnItem const> const& dragged : carrier->getSelection()->getItems()) {
    std::ostringstream dump;
    dragged->dump(dump);
    json["items"].push_back({{"arrives", arrival(dragged)}, {"dump", dump.str()}});
  }
  return json;
}

void print(Json const& json) {
  printText("\"{}\"\n", printable(json["path"]));
  if (json["handler"].is_null()) {
    printText("  handler: none\n");
    return;
  }
  printText("  handler: {}\n  accepted: {}, cut: {}, copy: {}, drop: {}\n",
            json["handler"].get<std::string>(), yesOrNo(json["accepted"]), yesOrNo(json["cut"]),
            yesOrNo(json["copy"]), yesOrNo(json["drop"]));
  if (!json["accepted"])
    return;
  if (json["items"].empty())
    printText("  arrives: nothing\n");
  for (Json const& item : json["items"]) {
    printText("  arrives: {}\n", printable(item["arrives"]));
    std::istringstream dump(item["dump"].get<std::string>());
    for (std::string line; std::getline(dump, line);)
      printText("  {}\n", printable(line));
  }
}

} // namespace

void dragItems(Request const& request) {
  // All paths are looked up before the first item is dragged.
  std::vector<RCShdPtr<BrBrowsable>> items;
  for (std::string const& path : request.paths)
    items.push_back(findItem(request.scheme, path));

  Json drags = Json::array();
  std::string refused;
  for (RCShdPtr<BrBrowsable> const& item : items) {
    drags.push_back(drag(item));
    if (!drags.back()["accepted"])
      refused += fmt::format("{}\"{}\"", refused.empty() ? "" : ", ", std::string(item->getPath()));
  }
  if (request.json)
    printJson(drags);
  else
    for (Json const& json : drags)
      print(json);
  flushOutput();
  if (!refused.empty())
    throw HostError(
        fmt::format("not to be dragged out of the scheme \"{}\": {}", request.scheme, refused));
}

} // namespace Qv
