#include "pluginBrowserQvmoduleInit.h"

#include "brDndRegistry.h"
#include "brRegistry.h"
#include "inBuildInfo.h"
#include "inInit.imp.h"
#include "pbrActions.h"
#include "pbrToolBrowsable.h"
#include "pbrToolDndHandler.h"
#include "pbrToolServer.h"
#include "pbrToolView.h"
#include "pbrViewBrowsable.h"
#include "pbrViewDndHandler.h"
#include "pbrViewServer.h"
#include "uiIconRegistry.h"

namespace Qv {

using PackageInit = InInit<QvInit::pluginBrowserQvmodule>;

template <> PackageInit::InInit() : InPackageInit("pluginBrowserQvmodule") {
  registerPackage();
  addDependency(InInit<QvInit::appUi>::getType());
  addDependency(InInit<QvInit::ui>::getType());
  addDependency(InInit<QvInit::datamgt>::getType());
  addDependency(InInit<QvInit::gfx>::getType());
  addDependency(InInit<QvInit::framework>::getType());
  addDependency(InInit<QvInit::internalAPI>::getType());
  addDependency(InInit<QvInit::pluginAPI>::getType());
  addDependency(InInit<QvInit::resmgt>::getType());
  addDependency(InInit<QvInit::base>::getType());
}

namespace {

class LibraryBuildInfo : public InBuildInfo {
public:
  char const* getProductName() const override { return "Halvard Ostrel Library"; }
  char const* getLibraryName() const override { return "libQvpluginBrowserQvmodule"; }
  char const* getReleaseName() const override { return "2013"; }
  char const* getVersionString() const override { return "8.0"; }
  char const* getStageName() const override { return ""; }
  int getMajorVersion() const override { return 8; }
  int getMinorVersion() const override { return 0; }
  int getStageCode() const override { return 42; }
  char const* getBuildNumber() const override { return "2600"; }
  char const* getBuildDate() const override { return "Jun 12 2012"; }
  char const* getBuildFlavor() const override { return "opt.x86_64.intel"; }
};

} // namespace

// All statics of the module are here, since the language fixes their order only within one source
// file: the package is registered before any other static exists, and destroyed last.

namespace {
PackageInit package;
OsFilePath const schemeIconPath(std::string("scheme.tif"));
} // namespace

LiString const PbrToolBrowsable::FolderId("Tools Folder");
LiString const PbrToolBrowsable::CategoryId("Tool Category");
LiString const PbrToolBrowsable::SuperToolId("Super Tool");
LiString const PbrToolBrowsable::ToolId("Tool");

LiString const PbrViewBrowsable::FolderId("Views Folder");
LiString const PbrViewBrowsable::ViewsId("View");

OsFilePath const PbrToolView::ResourceFile(std::string("bvTool.xml"));

template <> void PackageInit::initialize() {
  InBuildInfoUtil::registerInfo(OPtr<InBuildInfo>(new LibraryBuildInfo));

  UiIconRegistry& icons = UiIconRegistry::getInstance();
  BrRegistry& browser = BrRegistry::getInstance();
  OPtr<BrServer> toolServer(new PbrToolServer);
  OPtr<BrServer> viewServer(new PbrViewServer);
  {
    // Handlers and prototypes are released before the icons are loaded.
    RCShdPtr<PbrToolBrowsable> const toolType = PbrToolBrowsable::createBrowsableType();
    RCShdPtr<PbrToolDndHandler> const toolHandler(new PbrToolDndHandler);
    BrDndRegistry::getInstance().addHandler(toolType, toolHandler);
    RCShdPtr<PbrViewBrowsable> const viewType = PbrViewBrowsable::createBrowsableType();
    RCShdPtr<PbrViewDndHandler> const viewHandler(new PbrViewDndHandler);
    BrDndRegistry::getInstance().addHandler(viewType, viewHandler);

    OPtr<BrView> toolView(new PbrToolView);
    browser.registerView(std::move(toolView), LiString(BrView::DETAIL));
    browser.registerServer(std::move(toolServer));
    browser.registerServer(std::move(viewServer));
  }

  auto const registerIcon = [&](LiString const& key, OsFilePath const& file) {
    RCShdPtr<WsManagedImage> const image = icons.loadImage(file);
    browser.registerIcon(key, image, LiString(""));
  };
  registerIcon(PbrToolBrowsable::FolderId, OsFilePath(std::string("folder.tif")));
  registerIcon(PbrToolBrowsable::CategoryId, OsFilePath(std::string("folder.tif")));
  registerIcon(PbrToolBrowsable::ToolId, OsFilePath(std::string("tool.tif")));
  registerIcon(PbrToolBrowsable::SuperToolId, OsFilePath(std::string("supertool.tif")));
  registerIcon(PbrViewBrowsable::FolderId, OsFilePath(std::string("folder.tif")));
  registerIcon(PbrViewBrowsable::ViewsId, OsFilePath(std::string("view.tif")));
  registerIcon(LiString("ToolsSchemeIcon"), schemeIconPath);
  registerIcon(LiString("ViewsSchemeIcon"), schemeIconPath);

  registerBrowserActions();
}

template <> void PackageInit::uninitialize() { unregisterBrowserActions(); }

template class InInit<QvInit::pluginBrowserQvmodule>;

} // namespace Qv
