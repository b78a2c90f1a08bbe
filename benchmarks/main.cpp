#include <benchmark/benchmark.h>

#include <algorithm>
#include <ostream>
#include <string>
#include <vector>

namespace {

/// Prints, below the table, how the first subject of each group compares with its peers. The runs
/// are named `group/subject`; of several repetitions the fastest counts.
class RatioReporter : public benchmark::ConsoleReporter {
public:
  void ReportRuns(std::vector<Run> const& runs) override {
    ConsoleReporter::ReportRuns(runs);
    for (Run const& run : runs)
      if (run.run_type == Run::RT_Iteration && !run.error_occurred)
        add(run);
  }

  void Finalize() override {
    ConsoleReporter::Finalize();
    for (auto const& peer : results_) {
      auto const first = std::ranges::find(results_, peer.group, &Result::group);
      if (first->subject != peer.subject)
        GetOutputStream() << peer.group << ": " << first->subject << " / " << peer.subject << " = "
                          << first->time / peer.time << '\n';
    }
  }

private:
  struct Result {
    std::string group;
    std::string subject;
    double time;
  };

  void add(Run const& run) {
    std::string const& name = run.run_name.function_name;
    auto const slash = name.find('/');
    std::string const& args = run.run_name.args;
    std::string const group = name.substr(0, slash) + (args.empty() ? "" : " over " + args);
    std::string const subject = name.substr(slash + 1);
    double const time = run.GetAdjustedCPUTime();
    for (auto& result : results_)
      if (result.group == group && result.subject == subject) {
        result.time = std::min(result.time, time);
        return;
      }
    results_.push_back({group, subject, time});
  }

  std::vector<Result> results_;
};

} // namespace

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv))
    return 1;
  RatioReporter reporter;
  benchmark::RunSpecifiedBenchmarks(&reporter);
}
