#pragma once

#include "pbrInstances.h"

#include "brServer.h"

namespace Qv {

/// The tool scheme: its name, its columns, and the node for a path.
class QV_EXPORT PbrToolServer : public BrServer {
public:
  PbrToolServer();
  ~PbrToolServer() override;

  BrServer* clone() const override;
  /// @param message is left unchanged.
  /// @throws ExProgramAborted if the path has three or more components.
  RCShdPtr<BrNode> getNode(LiString const& path, LiString& message) override;
  LiString getSchemeName() const override;
  bool isObservable() const override;

private:
  void initializeAttribList(RCShdPtr<BrAttribList> list);
};

} // namespace Qv
