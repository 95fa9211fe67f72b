#pragma once
// Sample layouts shared by the benchmarks.
#include "document/Layout.h"

#include <benchmark/benchmark.h>
#include <cstddef>

namespace lumeta::bench {

// `bandas` bands of `itens` items each, mixing every item type, fonts, lines
// and backgrounds like a real report; every other band has automatic height.
LayoutDocumento LayoutGrande(int bandas, int itens);

// The baseline of the ratios: memcpy of `bytes` bytes, each iteration.
void MedirMemcpy(benchmark::State &st, size_t bytes);

}  // namespace lumeta::bench
