#pragma once

#include "brAttribList.h"
#include "brNode.h"
#include "obSubject.h"

namespace Qv {

class CmCommandStack;

/// A scheme of the asset browser.
class QV_EXPORT BrServer : public ObSubject<BrServer> {
public:
  /// Ignored by the module.
  enum FilterOptions : int {};

  ~BrServer() override;
  /// A new server of the same class, owned by the caller.
  virtual BrServer* clone() const = 0;
  /// The node for a scheme path. @param message not changed by the module.
  virtual RCShdPtr<BrNode> getNode(LiString const& path, LiString& message) = 0;
  /// The node for an item of this server.
  virtual RCShdPtr<BrNode> getNodeFromBrowsable(RCShdPtr<BrBrowsable> const& browsable,
                                                LiString& message) const;
  /// The name under which the browser offers the scheme.
  virtual LiString getSchemeName() const = 0;
  /// @{
  /// Path syntax; not overridden by the module.
  virtual LiString getRootPath(LiString const& path) const;
  virtual RCShdPtr<BrNode> getRootNode();
  virtual LiString getDefaultPath() const;
  virtual LiString resolvePath(LiString const& path) const;
  virtual char const* getPathSeparator() const;
  virtual std::string getPathInvalidChars() const;
  /// @}
  /// Whether the browser may watch the scheme for changes.
  virtual bool isObservable() const;
  /// @{
  /// Not overridden by the module.
  virtual LiString getParentPath(LiString const& path) const;
  virtual bool supportsSequences() const;
  virtual bool updateSequenceInfo(RCShdPtr<BrNode> const& parent,
                                  Vector<RCShdPtr<BrNode>> const& nodes,
                                  Vector<RCShdPtr<BrNode>>& sequences, bool flag);
  virtual FilterOptions getFilterOptions() const;
  virtual std::string getBrowserRole() const;
  virtual void expandSequences(RCShdPtr<BrNode> const& parent,
                               Vector<RCShdPtr<BrNode>> const& sequences,
                               Vector<RCShdPtr<BrNode>>& nodes);
  /// @}
  /// The server's own list, initially empty; appending to it defines the columns.
  virtual RCShdPtr<BrAttribList> getAttributesList() const;
  /// @{
  /// Not overridden by the module.
  virtual bool isDetailBelow() const;
  virtual void selected(RCShdPtr<RCBase<LkCounter<int>>> const& object);
  virtual void unselected(RCShdPtr<RCBase<LkCounter<int>>> const& object);
  virtual void nodeExpanded(RCShdPtr<BrNode> const& node);
  virtual void parentNodeExpanded(RCShdPtr<BrNode> const& node);
  virtual void nodeCollapsed(RCShdPtr<BrNode> const& node);
  virtual void parentNodeCollapsed(RCShdPtr<BrNode> const& node);
  virtual RCShdPtr<CmCommandStack> getCommandStack() const;
  virtual void rescanPerformed();
  virtual bool isChildrenScanForeground() const;
  /// @}

  BrServer();

private:
  RCShdPtr<BrAttribList> attributes_;
};

} // namespace Qv
