#include "rcShdPtr.h"

#include <benchmark/benchmark.h>
#include <boost/intrusive_ptr.hpp>

#include <atomic>

namespace Qv {
namespace {

class Counted : public RCBase<LkCounter<int>> {
protected:
  ~Counted() override = default;
};

/// Counts as strictly as Counted does.
class PeerCounted {
  friend void intrusive_ptr_add_ref(PeerCounted const* object) { object->count_.fetch_add(1); }
  friend void intrusive_ptr_release(PeerCounted const* object) {
    if (object->count_.fetch_sub(1) == 1)
      delete object;
  }

protected:
  virtual ~PeerCounted() = default;

private:
  mutable std::atomic<int> count_{0};
};

template <class Pointer, class Pointee> void copyPointer(benchmark::State& state) {
  Pointer const pointer(new Pointee);
  for (auto _ : state) {
    Pointer copy(pointer);
    benchmark::DoNotOptimize(copy);
  }
}
BENCHMARK_TEMPLATE(copyPointer, RCShdPtr<Counted>, Counted)->Name("pointerCopy/RCShdPtr");
BENCHMARK_TEMPLATE(copyPointer, boost::intrusive_ptr<PeerCounted>, PeerCounted)
    ->Name("pointerCopy/intrusive_ptr");

} // namespace
} // namespace Qv
