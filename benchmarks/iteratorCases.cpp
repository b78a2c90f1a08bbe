#include "cases.h"
#include "iteratorSTL.imp.h"

#include <boost/range/any_range.hpp>

#include <memory>
#include <utility>

namespace Qv {

namespace {

constexpr int Elements = 100'000;

/// Three virtual calls per element and nothing else: the lower bound for iterators with an engine
/// chosen at run time.
template <class T> class Cursor {
public:
  virtual ~Cursor() = default;
  virtual bool atEnd() const = 0;
  virtual T const& item() const = 0;
  virtual void next() = 0;
};

template <class Container>
class ContainerCursor final : public Cursor<typename Container::value_type> {
public:
  using Element = typename Container::value_type;

  explicit ContainerCursor(Container const& container)
      : position_(container.begin()), end_(container.end()) {}

  bool atEnd() const override { return position_ == end_; }
  Element const& item() const override { return *position_; }
  void next() override { ++position_; }

private:
  typename Container::const_iterator position_;
  typename Container::const_iterator end_;
};

// The compiler must not see the type of the engine, range or cursor.

template <class Container>
[[gnu::noinline]] Iterator<typename Container::value_type>
iteratorOver(RCStrongPtr<Container> const& container) {
  return makeIterator(container);
}

template <class T>
using AnyRange = boost::any_range<T, boost::bidirectional_traversal_tag, T const&, std::ptrdiff_t>;

template <class Container>
[[gnu::noinline]] AnyRange<typename Container::value_type>
rangeOver(RCStrongPtr<Container> const& container) {
  return std::as_const(*container);
}

template <class Container>
[[gnu::noinline]] std::unique_ptr<Cursor<typename Container::value_type>>
cursorOver(RCStrongPtr<Container> const& container) {
  return std::make_unique<ContainerCursor<Container>>(*container);
}

template <class Container> RCStrongPtr<Container> makeContainer() {
  RCStrongPtr<Container> const container(new Container);
  for (int value = 0; value < Elements; ++value)
    container->push_back(value);
  return container;
}

template <class Container> void addWalks(Cases& cases, std::string const& engine) {
  // Each pass calls `sum`, which iterates over the container in its own way.
  auto const add = [&](std::string const& name, auto sum) {
    cases.add("walk/" + engine + "/" + name + "/" + std::to_string(Elements), [sum](auto& loop) {
      auto const container = makeContainer<Container>();
      for ([[maybe_unused]] auto _ : loop)
        benchmark::DoNotOptimize(sum(container));
    });
  };
  auto const sumOf = [](auto const& range) {
    int sum = 0;
    for (int const& element : range)
      sum += element;
    return sum;
  };

  add("Iterator", [](auto const& container) {
    int sum = 0;
    for (Iterator<int> it = iteratorOver(container); !it.atEnd(); it.next())
      sum += it.item();
    return sum;
  });
  add("any_range", [=](auto const& container) { return sumOf(rangeOver(container)); });
  add("three-calls", [](auto const& container) {
    int sum = 0;
    for (auto const cursor = cursorOver(container); !cursor->atEnd(); cursor->next())
      sum += cursor->item();
    return sum;
  });
  add("loop", [=](auto const& container) { return sumOf(*container); });
}

} // namespace

void Cases::addIterators() {
  addWalks<List<int>>(*this, "list");
  addWalks<Vector<int>>(*this, "vector");

  add("copy/Iterator", [](auto& loop) {
    Iterator<int> const shared = iteratorOver(makeContainer<List<int>>());
    for ([[maybe_unused]] auto _ : loop) {
      Iterator<int> copied(shared);
      benchmark::DoNotOptimize(copied);
    }
  });
  add("unshare/Iterator", [](auto& loop) {
    Iterator<int> const shared = iteratorOver(makeContainer<List<int>>());
    for ([[maybe_unused]] auto _ : loop) {
      Iterator<int> copied(shared);
      copied.next();
      benchmark::DoNotOptimize(copied);
    }
  });
}

} // namespace Qv
