// Prints the layers that this processor runs, the fastest first, for the build to choose among them.
#include <cstdio>

#include "frame/dispatch/processor.cpp"

int main() {
  for (const lum::Layer layer : lum::all_layers) {
    if (lum::ProcessorRuns(layer)) std::puts(lum::NameOf(layer));
  }
}
