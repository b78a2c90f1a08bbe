#pragma once

#include "pbrInstances.h"

#include "brBrowsable.h"

namespace Qv {

class PbrViewBrowsable;

/// Lists the views in the views folder, all in the first sequence.
class QV_EXPORT PbrViewChildrenQuery : public BrChildrenQuery {
public:
  /// @param browsable is not owned and must outlive the query.
  PbrViewChildrenQuery(PbrViewBrowsable* browsable, BrBrowsable::FindFilter filter);

protected:
  ~PbrViewChildrenQuery() override;

public:
  void reset() override;
  Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() override;

private:
  PbrViewBrowsable* browsable_;
  BrBrowsable::FindFilter filter_;
  bool pending_ = true;
};

} // namespace Qv
