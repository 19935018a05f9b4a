#include "bench/Kvantily.h"

#include <algorithm>
#include <cmath>

namespace zvonika::bench {

double kvantil(std::vector<double> vzorky, double podil) {
    if (vzorky.empty()) return 0;
    const double poradi = std::ceil(podil * double(vzorky.size()));
    const auto misto = vzorky.begin() + std::max<std::ptrdiff_t>(0, std::ptrdiff_t(poradi) - 1);
    std::nth_element(vzorky.begin(), misto, vzorky.end());
    return *misto;
}

void zapisVzorky(benchmark::State& stav, const std::string& jmeno, const std::vector<double>& ms) {
    stav.counters[jmeno + "_median_ms"] = kvantil(ms, 0.5);
    stav.counters[jmeno + "_p99_ms"] = kvantil(ms, 0.99);
    stav.counters[jmeno + "_max_ms"] = kvantil(ms, 1);
}

} // namespace zvonika::bench
