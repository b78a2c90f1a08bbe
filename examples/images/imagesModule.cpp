// A module that adds a scheme to the asset browser: the images in a directory, which is
// $XDG_PICTURES_DIR or, without it, the current one.

#include "assertions.h"
#include "brRegistry.h"
#include "inInit.imp.h"
#include "iteratorSTL.imp.h"
#include "omUtil.h"
#include "uiIconRegistry.h"

#include <cstdlib>
#include <dirent.h>
#include <filesystem>
#include <memory>
#include <set>

namespace fs = std::filesystem;

namespace QvInit {
/// Names the package.
class QV_EXPORT images {};
} // namespace QvInit

namespace Qv {

namespace {

LiString const SchemeName("images");
// What an item is called, and the key of its icon.
LiString const FolderType("Image Folder");
LiString const ImageType("Image");

fs::path directory() {
  char const* const chosen = std::getenv("XDG_PICTURES_DIR");
  return chosen ? chosen : ".";
}

/// The names of the images, sorted. What cannot be read is not shown.
std::set<std::string> imageNames() {
  std::set<std::string> names;
  // The iterator of std::filesystem ends the process when it cannot allocate.
  std::unique_ptr<DIR, int (*)(DIR*)> const files(opendir(directory().c_str()), &closedir);
  while (dirent const* const file = files ? readdir(files.get()) : nullptr) {
    std::string const name = file->d_name;
    for (char const* const extension : {".exr", ".jpeg", ".jpg", ".png", ".tif", ".tiff"})
      if (name.ends_with(extension))
        names.insert(name);
  }
  return names;
}

/// The folder, whose path is empty, or an image, whose path is its file name.
class ImageItem final : public BrBrowsable {
public:
  ImageItem(BrServer* server, LiString const& path) : BrBrowsable(server), path_(path) {
    Iterator<std::string> const components = OmUtil::parsePath(OsFilePath(path));
    if (components.getCardinality() > 1)
      Assertions::throwProgramAborted("imagesModule", __LINE__, "an image has no children");
    if (!components.atEnd())
      name_ = *components;
  }

  LiString const& getSchemeName() const override { return SchemeName; }
  LiString getPath() const override { return path_; }

  using BrBrowsable::get;
  void get(int attributeId, LiString* value) override {
    auto const id = static_cast<unsigned int>(attributeId);
    if (id == NAME)
      *value = isAContainer() ? LiString("Images") : name_;
    else if (id == BROWSABLE_TYPE)
      *value = isAContainer() ? FolderType : ImageType;
    else
      BrBrowsable::get(attributeId, value);
  }
  RCShdPtr<WsManagedImage> getImage(int imageId, GeVector2<int> const& /*size*/) override {
    if (static_cast<unsigned int>(imageId) != THUMBNAIL || !isAContainer())
      return RCShdPtr<WsManagedImage>();
    return BrRegistry::getInstance().getThumbnail(BrRegistry::FolderThumbnail, "");
  }
  std::string getTooltip(int /*attributeId*/) const override {
    std::error_code error;
    auto const size = isAContainer() ? 0 : fs::file_size(directory() / name_.c_str(), error);
    return isAContainer() || error ? "" : std::to_string(size) + " bytes";
  }

  bool isAContainer() const override { return name_.empty(); }
  bool hasChildren(ChildSearchType type, ChildSearchOption /*option*/) const override {
    // 1 asks for containers.
    return isAContainer() && type != 1;
  }
  RCShdPtr<BrChildrenQuery> getChildren(FindFilter filter) override;
  bool isPicklistable() const override { return !isAContainer(); }

  /// An item of another scheme may be asked about, too.
  bool isEqualTo(BrBrowsable const& other) const override {
    auto const* const image = dynamic_cast<ImageItem const*>(&other);
    return image && image->name_ == name_;
  }

private:
  LiString path_;
  LiString name_;
};

/// All children in the first sequence.
class ImageQuery final : public BrChildrenQuery {
public:
  explicit ImageQuery(ImageItem* item) : BrChildrenQuery(item), item_(item) {}

  void reset() override { pending_ = true; }
  Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() override {
    RCStrongPtr<List<RCShdPtr<BrBrowsable>>> const children(new List<RCShdPtr<BrBrowsable>>);
    if (pending_ && item_->isAContainer())
      for (std::string const& name : imageNames())
        children->push_back(
            RCShdPtr<BrBrowsable>(new ImageItem(item_->getServer(), LiString(name))));
    // Only now: a failure leaves the query as it was.
    pending_ = false;
    return makeIterator(children);
  }

private:
  /// The host keeps it for as long as the query.
  ImageItem* item_;
  bool pending_ = true;
};

RCShdPtr<BrChildrenQuery> ImageItem::getChildren(FindFilter /*filter*/) {
  return RCShdPtr<BrChildrenQuery>(new ImageQuery(this));
}

class ImageServer final : public BrServer {
public:
  ImageServer() {
    using Flag = BrAttrib::AttribAttributes;
    RCShdPtr<BrAttrib> const name = BrAttrib::create(
        "Image", BrBrowsable::NAME, BrBrowsable::STRING, BrAttrib::DEFAULT_MIN_WIDTH,
        BrAttrib::DEFAULT_MAX_WIDTH, Flag(0), Flag(2), Flag(5), Flag(7), Flag(8));
    name->setDisplayed(true);
    getAttributesList()->append(name);
    getAttributesList()->singleSort(static_cast<int>(BrBrowsable::NAME));
  }

  /// A new server makes columns of its own.
  BrServer* clone() const override { return new ImageServer; }
  RCShdPtr<BrNode> getNode(LiString const& path, LiString& /*message*/) override {
    return BrNode::create(RCShdPtr<BrBrowsable>(new ImageItem(this, path)));
  }
  LiString getSchemeName() const override { return SchemeName; }
};

} // namespace

template <> InInit<QvInit::images>::InInit() : InPackageInit("images") {
  registerPackage();
  addDependency(InInit<QvInit::appUi>::getType());
  addDependency(InInit<QvInit::ui>::getType());
  addDependency(InInit<QvInit::datamgt>::getType());
}

// Whatever the host throws passes: what it has received is its own by then.
template <> void InInit<QvInit::images>::initialize() {
  BrRegistry& browser = BrRegistry::getInstance();
  browser.registerServer(OPtr<BrServer>(new ImageServer));
  UiIconRegistry& icons = UiIconRegistry::getInstance();
  browser.registerIcon(FolderType, icons.loadImage(OsFilePath("folder.tif")), "");
  browser.registerIcon(ImageType, icons.loadImage(OsFilePath("view.tif")), "");
}

template class InInit<QvInit::images>;

namespace {
InInit<QvInit::images> package;
}

} // namespace Qv
