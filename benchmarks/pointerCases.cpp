#include "cases.h"
#include "iterator.h"

#include <boost/smart_ptr/intrusive_ptr.hpp>
#include <boost/smart_ptr/intrusive_ref_counter.hpp>

#include <array>
#include <memory>

namespace Qv {

namespace {

template <class Counter> struct Peer : boost::intrusive_ref_counter<Peer<Counter>, Counter> {
  virtual ~Peer() = default;
};

template <class Counter> class Counted : public RCBase<Counter> {
protected:
  ~Counted() override = default;
};

template <class Make> auto copy(Make make) {
  return [make](auto& loop) {
    auto const pointer = make();
    for ([[maybe_unused]] auto _ : loop) {
      auto copied(pointer);
      benchmark::DoNotOptimize(copied);
    }
  };
}

/// Moves a pointer around a ring of owners. With only two owners, the processor's store forwarding
/// would be measured.
template <class Make> auto handOver(Make make) {
  return [make](auto& loop) {
    std::array<decltype(make()), 64> owners;
    owners.front() = make();
    std::size_t owner = 0;
    for ([[maybe_unused]] auto _ : loop) {
      auto pointer = std::move(owners[owner]);
      owner = (owner + 1) % owners.size();
      owners[owner] = std::move(pointer);
      benchmark::ClobberMemory();
    }
  };
}

} // namespace

void Cases::addPointers() {
  auto const atomic = [] { return RCShdPtr(new Counted<LkCounter<int>>); };
  auto const plain = [] { return RCShdPtr(new Counted<int>); };
  auto const atomicPeer = [] { return boost::intrusive_ptr(new Peer<boost::thread_safe_counter>); };
  auto const plainPeer = [] {
    return boost::intrusive_ptr(new Peer<boost::thread_unsafe_counter>);
  };
  auto const shared = [] { return std::make_shared<int>(); };

  add("copy/atomic/RCShdPtr", copy(atomic));
  add("copy/atomic/intrusive_ptr", copy(atomicPeer));
  add("copy/atomic/shared_ptr", copy(shared));
  add("copy/plain/RCShdPtr", copy(plain));
  add("copy/plain/intrusive_ptr", copy(plainPeer));
  add("move/atomic/RCShdPtr", handOver(atomic));
  add("move/atomic/intrusive_ptr", handOver(atomicPeer));
  add("move/atomic/shared_ptr", handOver(shared));
}

} // namespace Qv
