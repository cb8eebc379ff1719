// Which layers of vector operations the processor and the operating system run.
#pragma once

namespace lum {

// From the fastest to the one that every processor runs.
enum class Layer { avx512, avx2, portable };
inline constexpr Layer all_layers[] = {Layer::avx512, Layer::avx2, Layer::portable};

// As lumvmGetLayer() names it.
constexpr const char* NameOf(Layer layer) {
  return layer == Layer::avx512 ? "avx512" : layer == Layer::avx2 ? "avx2" : "portable";
}

// Whether the processor has the instructions that the layer's objects are compiled for, and the operating system saves their
// registers.
bool ProcessorRuns(Layer layer);

}  // namespace lum
