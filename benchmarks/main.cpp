#include "allocations.h"
#include "cases.h"

#include "hostResources.h"

#include <chrono>
#include <iostream>
#include <thread>

// benchmarks [--benchmark_...]: takes the time of the cases.
// benchmarks --repeat CASE TIMES: runs one case that often, for whoever counts instructions.
// benchmarks --allocations CASE TIMES: prints the blocks and bytes that this took from the heap,
// for the module, the stand-in and the program.
int main(int argc, char** argv) {
  using namespace Qv;
  // A process that never started a thread counts shared pointers without atomics. It sleeps, so that
  // joining it always takes the same instructions, those of having to wait.
  std::thread([] { std::this_thread::sleep_for(std::chrono::milliseconds(20)); }).join();
  HostResources::getInstance().setDirectory(RESOURCE_DIR);

  Cases cases;
  cases.addPointers();
  cases.addIterators();
  cases.addModule();
  cases.addLoading();

  if (std::string_view const mode(argc == 4 ? argv[1] : ""); mode == "--repeat") {
    cases.run(argv[2], CountedLoop(std::stol(argv[3])));
  } else if (mode == "--allocations") {
    cases.run(argv[2], CountedLoop(std::stol(argv[3]), true));
    for (Allocations const& owned : getAllocations())
      std::cout << owned.blocks << ' ' << owned.bytes << '\n';
  } else {
    benchmark::Initialize(&argc, argv);
    if (benchmark::ReportUnrecognizedArguments(argc, argv))
      return 1;
    benchmark::RunSpecifiedBenchmarks();
  }
}
