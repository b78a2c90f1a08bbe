#include "commands.h"

#include "browser.h"
#include "detailPage.h"
#include "hostError.h"

namespace Qv {

void showDetail(Request const& request) {
  std::vector<RCShdPtr<BrBrowsable>> items;
  for (std::string const& path : request.paths)
    items.push_back(findItem(request.scheme, path));
  std::optional<DetailPage> page;
  for (RCShdPtr<BrBrowsable> const& item : items)
    if (!page)
      page = DetailPage::create(item);
  if (!page)
    throw HostError(fmt::format("no detail view of the scheme \"{}\" understands any of the items",
                                request.scheme));

  Json shown = Json::array();
  for (RCShdPtr<BrBrowsable> const& item : items) {
    Json json = {{"path", item->getPath()}};
    json.update(page->show(item));
    if (request.dump)
      json["widgets"] = page->dump();
    shown.push_back(json);
  }
  if (request.json)
    return printJson(shown);
  for (Json const& json : shown) {
    printText("{}\"{}\"{}\n", &json == &shown.front() ? "" : "\n", printable(json["path"]),
              json["understood"] ? "" : " (not understood by the view)");
    DetailPage::print(json);
    if (request.dump)
      DetailPage::printDump(json["widgets"]);
  }
}

} // namespace Qv
