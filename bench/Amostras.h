#pragma once
// Sample layouts shared by the benchmarks.
#include "document/Layout.h"

namespace lumeta::bench {

// `bandas` bands of `itens` items each, mixing every item type, fonts, lines
// and backgrounds like a real report; every other band has automatic height.
LayoutDocumento LayoutGrande(int bandas, int itens);

}  // namespace lumeta::bench
