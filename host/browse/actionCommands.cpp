#include "commands.h"

#include "brBrowser.h"
#include "browser.h"
#include "hostActRegistry.h"
#include "hostWorkspace.h"
#include "output.h"
#include "snItemBasic.h"

namespace Qv {

namespace {

/// The selection items from which an action takes a browser and a node.
struct ActionInput {
  explicit ActionInput(Request const& request)
      : browser(new SnItemBasic<RCShdPtr<BrBrowser>>(RCShdPtr<BrBrowser>(new BrBrowser),
                                                     RCShdPtr<SnParts>())),
        node(new SnItemBasic<RCShdPtr<BrNode>>(
            BrNode::create(findItem(request.scheme, request.path)), RCShdPtr<SnParts>())) {}

  RCShdPtr<SnItem const> browser;
  RCShdPtr<SnItem const> node;
};

} // namespace

void listActions(Request const& request) {
  ActionInput const input(request);
  Json actions = Json::array();
  for (HostActRegistry::Entry const& entry : HostActRegistry::getInstance().getEntries()) {
    ActAction& action = *entry.action;
    bool const valid = HostActRegistry::isValid(action, input.browser, input.node);
    actions.push_back(
        {{"name", action.getName()},
         {"display", action.getDisplayString()},
         {"valid", valid},
         {"dynamicState", int(entry.state)},
         {"options", HostActRegistry::getOptions(action, input.browser, input.node)}});
  }
  if (request.json)
    return printJson(actions);

  std::vector<std::vector<std::string>> rows;
  for (Json const& action : actions)
    rows.push_back({action["name"], yesOrNo(action["valid"]), action["dynamicState"].dump()});
  Terminal().printTable({"Action", "Valid", "Dynamic state"}, rows);
}

void runAction(Request const& request) {
  RCShdPtr<HostWorkspace> const workspace(request.noWorkspace ? nullptr : new HostWorkspace);
  HostWorkspace::setCurrent(workspace);
  ActionInput const input(request);
  HostActRegistry::getInstance().perform(request.action, input.browser, input.node);

  Json opened = Json::array();
  for (HostWorkspace::Request const& view : workspace->getRequests())
    opened.push_back({{"view", view.view}, {"newWindow", view.newWindow}, {"flag", view.flag}});
  if (request.json)
    return printJson(opened);

  std::vector<std::vector<std::string>> rows;
  for (Json const& view : opened)
    rows.push_back({view["view"], view["newWindow"] ? "new window" : "window",
                    view["newWindow"] ? "" : view["flag"].dump()});
  Terminal().printTable({"Opened view", "In", "Flag"}, rows);
}

} // namespace Qv
