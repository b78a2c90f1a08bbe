#pragma once

#include "pbrInstances.h"

#include "brServer.h"

namespace Qv {

/// The view scheme: its name, its columns, and the node for a path.
class QV_EXPORT PbrViewServer : public BrServer {
public:
  PbrViewServer();
  ~PbrViewServer() override;

  BrServer* clone() const override;
  /// @param message is left unchanged.
  /// @throws ExProgramAborted if the path has two or more components.
  RCShdPtr<BrNode> getNode(LiString const& path, LiString& message) override;
  LiString getSchemeName() const override;
  bool isObservable() const override;

private:
  void initializeAttribList(RCShdPtr<BrAttribList> list);
};

} // namespace Qv
