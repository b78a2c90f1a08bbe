#pragma once

#include "pbrInstances.h"

#include "brBrowsable.h"

namespace Qv {

class PbrToolBrowsable;

/// Lists the children of an item of the tool scheme, all in the first sequence.
class QV_EXPORT PbrToolChildrenQuerys : public BrChildrenQuery {
public:
  /// @param browsable is not owned and must outlive the query.
  PbrToolChildrenQuerys(PbrToolBrowsable* browsable, BrBrowsable::FindFilter filter);

protected:
  ~PbrToolChildrenQuerys() override;

public:
  void reset() override;
  Iterator<RCShdPtr<BrBrowsable>> getNextChildSequence() override;

private:
  PbrToolBrowsable* browsable_;
  BrBrowsable::FindFilter filter_;
  bool pending_ = true;
};

} // namespace Qv
