// The vector functions of other libraries, found at run time, each wrapped in a loop over arrays.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "support/library.h"

namespace lum::bench {

struct Peer {
  std::string name;  // sleef_u10, sleef_u35, sleef_u05, sleef_u15, libmvec
  std::function<void(const support::Arguments&)> loop;
};

// The peers that have the function and type. None on a processor without AVX-512.
std::vector<Peer> FindPeers(const support::Export& entry);

// Functions that no peer has, composed of a peer's functions: composed_sleef_u10 and the like.
std::vector<Peer> FindComposedPeers(const support::Export& entry);

// Complex products by the plain formulas, vectorised by the compiler.
std::vector<Peer> FindPlainPeers(const support::Export& entry);

// A line for each peer library that is not there.
std::vector<std::string> AbsentPeers();

}  // namespace lum::bench
