#pragma once

#include "pbrInstances.h"

#include "brBrowsable.h"

namespace Qv {

/// An item of the tool scheme: the tools folder, a category or a tool. An immutable snapshot of the
/// tool registry.
class QV_EXPORT PbrToolBrowsable : public BrBrowsable {
public:
  /// The level of an item: the number of components of its path. A super tool is a CATEGORY or a
  /// TOOL whose super-tool flag is set.
  enum Type : int { FOLDER = 0, CATEGORY = 1, TOOL = 2 };

  // Browsable type strings, also the keys of the type icons. Defined with the module's other
  // statics in pluginBrowserQvmoduleInit.cpp.
  static LiString const FolderId;
  static LiString const CategoryId;
  static LiString const SuperToolId;
  static LiString const ToolId;

  /// The item at a scheme path. @param server is not owned and must outlive the item.
  /// @throws ExProgramAborted if the path has three or more components.
  static RCShdPtr<PbrToolBrowsable> create(BrServer* server, std::string const& path);
  /// The prototype of the class for the drag-and-drop registry.
  static RCShdPtr<PbrToolBrowsable> createBrowsableType();

  /// "Tools" for the folder, otherwise the name of the category or tool.
  std::string const& getToolName() const;
  bool isSuperTool() const;
  Type getToolBrowsableType() const;
  /// The children's names, in a new container for each call.
  Iterator<std::string> getChildren();

protected:
  ~PbrToolBrowsable() override;

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
  /// Compares the paths byte by byte, regardless of class and scheme.
  bool isEqualTo(BrBrowsable const& other) const override;
  bool isPicklistable() const override;

protected:
  PbrToolBrowsable(BrServer* server, std::string const& path);
  PbrToolBrowsable();

private:
  LiString const& getTypeString() const;
  LiString const& getThumbnailKey() const;

  std::string toolName_;
  std::string path_;
  bool superTool_;
  Type type_;
  Vector<LiString> childNames_;
};

} // namespace Qv
