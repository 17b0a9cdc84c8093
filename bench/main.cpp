// velmora-bench: each case against its baseline in the same run; the counter
// "ratio" is the figure to look at.

#include <benchmark/benchmark.h>
#include <sys/resource.h>

#include <cstdio>

int main(int argc, char** argv) {
  benchmark::Initialize(&argc, argv);
  if (benchmark::ReportUnrecognizedArguments(argc, argv)) return 2;
  benchmark::RunSpecifiedBenchmarks();
  rusage usage{};
  getrusage(RUSAGE_SELF, &usage);
  std::printf("Peak memory of this run: %ld MB\n", usage.ru_maxrss / 1024);
}
