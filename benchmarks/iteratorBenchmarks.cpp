#include "iteratorSTL.imp.h"

#include <benchmark/benchmark.h>
#include <boost/range/any_range.hpp>

#include <string>

namespace Qv {
namespace {

using Strings = Vector<std::string>;
using Engine = IteratorSTL<Strings, RCStrongPtr<Strings>, IteratorAccessorPassthrough>;
using AnyRange = boost::any_range<std::string, boost::bidirectional_traversal_tag,
                                  std::string const&, std::ptrdiff_t>;

Strings strings(std::size_t size) { return Strings(size, "a string of some length"); }

Iterator<std::string> sequence(std::size_t size) {
  RCStrongPtr<Strings> const container(new Strings(strings(size)));
  return Iterator<std::string>(RCPvtEngPtr<IteratorImp<std::string>>(new Engine(container)));
}

void loopIterator(benchmark::State& state) {
  Iterator<std::string> const source = sequence(state.range());
  for (auto _ : state) {
    std::size_t characters = 0;
    for (Iterator<std::string> it(source); !it.atEnd(); it.next())
      characters += it.item().size();
    benchmark::DoNotOptimize(characters);
  }
}

template <class Range> void loopRange(benchmark::State& state) {
  Strings const source = strings(state.range());
  Range const range(source);
  for (auto _ : state) {
    std::size_t characters = 0;
    for (std::string const& text : range)
      characters += text.size();
    benchmark::DoNotOptimize(characters);
  }
}

BENCHMARK(loopIterator)->Name("iteratorLoop/Iterator")->Arg(10)->Arg(1000);
BENCHMARK_TEMPLATE(loopRange, AnyRange)->Name("iteratorLoop/any_range")->Arg(10)->Arg(1000);
BENCHMARK_TEMPLATE(loopRange, Strings const&)->Name("iteratorLoop/vector")->Arg(10)->Arg(1000);

template <class Source> void copy(benchmark::State& state, Source const& source) {
  for (auto _ : state) {
    Source copied(source);
    benchmark::DoNotOptimize(copied);
  }
}

void copyIterator(benchmark::State& state) { copy(state, sequence(10)); }
void copyAnyIterator(benchmark::State& state) {
  Strings const source = strings(10);
  copy(state, AnyRange(source).begin());
}
BENCHMARK(copyIterator)->Name("iteratorCopy/Iterator");
BENCHMARK(copyAnyIterator)->Name("iteratorCopy/any_iterator");

} // namespace
} // namespace Qv
