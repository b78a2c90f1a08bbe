#include "pbrToolBrowsable.h"

#include "assertions.h"
#include "brRegistry.h"
#include "omUtil.h"
#include "pbrToolChildrenQuerys.h"
#include "piBrowserSchemes.h"
#include "piToolRegistry.h"
#include "ttServer.h"

#include <utility>

namespace Qv {

namespace {

/// The tools shown in a category.
Iterator<RCShdPtr<PiTool const>> findTools(std::string const& category) {
  // A host's predicate may refer to its operands, so all of them outlive the call.
  LiString const name(category);
  auto const inCategory = PiToolPredicates::isCategory(name);
  return PiToolRegistry::getInstance().getTools(
      (inCategory && !PiToolPredicates::isInternal()) && PiToolPredicates::isActive(), true);
}

} // namespace

PbrToolBrowsable::PbrToolBrowsable(BrServer* server, std::string const& path)
    : BrBrowsable(server), path_(path), superTool_(false) {
  Iterator<std::string> components = OmUtil::parsePath(OsFilePath(path));
  switch (components.getCardinality()) {
  case 0: {
    type_ = FOLDER;
    toolName_ = "Tools";
    Iterator<std::string> categories = PiToolRegistry::getInstance().getCategories();
    for (; !categories.atEnd(); categories.next())
      childNames_.emplace_back(categories.item());
  } break;
  case 1: {
    type_ = CATEGORY;
    // The non-const item() would clone a shared engine.
    toolName_ = std::as_const(components).item();
    Iterator<RCShdPtr<PiTool const>> tools = findTools(toolName_);
    for (; !tools.atEnd(); tools.next())
      childNames_.emplace_back(tools.item()->getName());
    superTool_ = PiToolRegistry::getInstance().isSuperTool(toolName_);
  } break;
  case 2:
    components.next();
    type_ = TOOL;
    toolName_ = components.item();
    childNames_.clear();
    superTool_ = PiToolRegistry::getInstance().isSuperTool(toolName_);
    break;
  default:
    Assertions::throwProgramAborted(R"(modules\pluginBrowser\src\pbrToolBrowsable)", 171, nullptr);
  }
}

PbrToolBrowsable::PbrToolBrowsable()
    : toolName_("unknown"), path_("unknown"), superTool_(false), type_(TOOL) {}

PbrToolBrowsable::~PbrToolBrowsable() = default;

RCShdPtr<PbrToolBrowsable> PbrToolBrowsable::create(BrServer* server, std::string const& path) {
  return RCShdPtr<PbrToolBrowsable>(new PbrToolBrowsable(server, path));
}

RCShdPtr<PbrToolBrowsable> PbrToolBrowsable::createBrowsableType() {
  return RCShdPtr<PbrToolBrowsable>(new PbrToolBrowsable);
}

std::string const& PbrToolBrowsable::getToolName() const { return toolName_; }

bool PbrToolBrowsable::isSuperTool() const { return superTool_; }

PbrToolBrowsable::Type PbrToolBrowsable::getToolBrowsableType() const { return type_; }

Iterator<std::string> PbrToolBrowsable::getChildren() {
  RCStrongPtr<Names> const names(new Names);
  names->reserve(childNames_.size());
  for (LiString const& name : childNames_)
    names->push_back(name);
  return makeIterator(names);
}

LiString const& PbrToolBrowsable::getSchemeName() const {
  return PiBrowserSchemes::PluginToolScheme;
}

LiString PbrToolBrowsable::getPath() const { return path_; }

void PbrToolBrowsable::set(int /*attributeId*/, long long /*value*/) {}

void PbrToolBrowsable::set(int /*attributeId*/, LiString const& /*value*/) {}

void PbrToolBrowsable::get(int attributeId, long long* value) {
  BrBrowsable::get(attributeId, value);
}

void PbrToolBrowsable::get(int attributeId, LiString* value) {
  auto const id = static_cast<unsigned int>(attributeId);
  if (id == BROWSABLE_TYPE)
    *value = getTypeString();
  else if (id == NAME)
    *value = toolName_;
  else if (id == ROOT_NAME)
    *value = "Plugin Registry";
  else if (id == LMTIME || id == CREATION_TIME || id == OWNER)
    *value = NotAvailableString;
  else if (id == BROWSABLE_ROLE)
    *value = "";
  else
    BrBrowsable::get(attributeId, value);
}

RCShdPtr<WsManagedImage> PbrToolBrowsable::getImage(int imageId, GeVector2<int> const& /*size*/) {
  if (static_cast<unsigned int>(imageId) != THUMBNAIL)
    return RCShdPtr<WsManagedImage>();
  return BrRegistry::getInstance().getThumbnail(getThumbnailKey(), LiString(""));
}

std::string PbrToolBrowsable::getTooltip(int /*attributeId*/) const {
  RCShdPtr<PiTool const> const tool = PiToolRegistry::getInstance().findTool(toolName_, false);
  std::string text = toolName_;
  if (tool)
    text = tool->getInfoText2();
  std::string const tooltip = TtServer::getInstance().lookupTooltip(toolName_);
  if (!tooltip.empty())
    text += "<br>" + tooltip;
  return text;
}

bool PbrToolBrowsable::isAContainer() const { return type_ != TOOL || superTool_; }

bool PbrToolBrowsable::hasChildren(ChildSearchType type, ChildSearchOption /*option*/) const {
  return type == 1 ? type_ == FOLDER : isAContainer();
}

RCShdPtr<BrChildrenQuery> PbrToolBrowsable::getChildren(FindFilter filter) {
  return RCShdPtr<BrChildrenQuery>(new PbrToolChildrenQuerys(this, filter));
}

bool PbrToolBrowsable::isEqualTo(BrBrowsable const& other) const {
  return other.getPath() == path_;
}

bool PbrToolBrowsable::isPicklistable() const { return !isAContainer() || superTool_; }

LiString const& PbrToolBrowsable::getTypeString() const {
  if (type_ == FOLDER)
    return FolderId;
  if (superTool_)
    return SuperToolId;
  return type_ == TOOL ? ToolId : CategoryId;
}

LiString const& PbrToolBrowsable::getThumbnailKey() const {
  if (type_ == FOLDER)
    return BrRegistry::FolderThumbnail;
  if (superTool_)
    return BrRegistry::SuperToolThumbnail;
  return type_ == TOOL ? BrRegistry::ToolThumbnail : BrRegistry::FolderThumbnail;
}

} // namespace Qv
