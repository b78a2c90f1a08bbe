#pragma once

#include "allocations.h"

#include <gtest/gtest.h>

namespace Qv {

/// A test that must not leak. The destructor of a derived class must free what its
/// constructor allocates.
class NoLeaks : public testing::Test {
protected:
  NoLeaks() {
    // A thread's first trace allocates what the thread then keeps.
    { SCOPED_TRACE(""); }
    before_ = liveAllocations();
  }
  ~NoLeaks() override {
    // Recording a failure allocates too.
    if (!HasFailure()) {
      EXPECT_EQ(liveAllocations() - before_, 0) << "allocations leaked";
    }
  }

private:
  long before_ = 0;
};

} // namespace Qv
