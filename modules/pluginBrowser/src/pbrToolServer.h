#pragma once

#include "pbrInstances.h"

#include "brServer.h"

namespace Qv {

/// The server of the tool scheme: its name, its columns, and the node for a path.
class QV_EXPORT PbrToolServer : public BrServer {
public:
  PbrToolServer();
  ~PbrToolServer() override;

  BrServer* clone() const override;
  /// @param message stays as it is.
  /// @throws ExProgramAborted when the path has three or more components.
  RCShdPtr<BrNode> getNode(LiString const& path, LiString& message) override;
  LiString getSchemeName() const override;
  bool isObservable() const override;

private:
  void initializeAttribList(RCShdPtr<BrAttribList> list);
};

} // namespace Qv
