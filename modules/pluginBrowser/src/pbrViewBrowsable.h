#pragma once

#include "pbrInstances.h"

#include "brBrowsable.h"

namespace Qv {

/// An item of the view scheme: the views folder or a view. Immutable.
class QV_EXPORT PbrViewBrowsable : public BrBrowsable {
public:
  enum Type : int { FOLDER = 0, VIEW = 1 };

  // Browsable type strings, also the keys of the type icons. Defined with the module's other
  // statics in pluginBrowserQvmoduleInit.cpp.
  static LiString const FolderId;
  static LiString const ViewsId;

  /// The item at a scheme path. @param server is not owned and must outlive the item.
  /// @throws ExProgramAborted if the path has two or more components.
  static RCShdPtr<PbrViewBrowsable> create(BrServer* server, LiString const& path);
  /// The prototype of the class for the drag-and-drop registry.
  static RCShdPtr<PbrViewBrowsable> createBrowsableType();

  Type getViewBrowsableType() const;
  /// "Views" for the folder, otherwise the view's name in the view factory.
  LiString const& getViewName() const;

protected:
  ~PbrViewBrowsable() override;

public:
  LiString const& getSchemeName() const override;
  LiString getPath() const override;
  using BrBrowsable::set;
  void set(int attributeId, long long value) override;
  void set(int attributeId, LiString const& value) override;
  using BrBrowsable::get;
  void get(int attributeId, long long* value) override;
  void get(int attributeId, LiString* value) override;
  RCShdPtr<WsManagedImage> getImage(int imageId, GeVector2<int> const& size) override;
  std::string getTooltip(int attributeId) const override;
  bool isAContainer() const override;
  bool hasChildren(ChildSearchType type, ChildSearchOption option) const override;
  RCShdPtr<BrChildrenQuery> getChildren(FindFilter filter) override;
  /// Compares only the view names; false for an item of another class.
  bool isEqualTo(BrBrowsable const& other) const override;
  bool isPicklistable() const override;

protected:
  PbrViewBrowsable(BrServer* server, LiString const& path);
  PbrViewBrowsable();

private:
  LiString viewName_;
  LiString path_;
  Type type_;
};

} // namespace Qv
