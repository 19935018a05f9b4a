#pragma once

#include <benchmark/benchmark.h>
#include <string>
#include <vector>

namespace zvonika::bench {

/// The value below which `podil` (0..1] of the samples lie, by nearest rank; 0 without samples.
double kvantil(std::vector<double> vzorky, double podil);

/// Adds the counters "<jmeno>_median_ms", "<jmeno>_p99_ms" and "<jmeno>_max_ms" to a benchmark's results.
void zapisVzorky(benchmark::State& stav, const std::string& jmeno, const std::vector<double>& ms);

} // namespace zvonika::bench
