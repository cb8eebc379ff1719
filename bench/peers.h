// The vector functions of other libraries, found at run time, each wrapped in a loop over arrays.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "support/library.h"

namespace lum::bench {

struct Peer {
  std::string name;  // sleef_u10, sleef_u35, sleef_u05, sleef_u15, libmvec
  std::function<void(const support::Arguments&)> loop;
};

// The peers' functions for the instructions of a library, "k0" or "a2", as far as they have the function and type.
std::vector<Peer> FindPeers(const support::Export& entry, std::string_view library);
std::vector<Peer> FindAvx2Peers(const support::Export& entry);

// Functions that no peer has, composed of a peer's functions for AVX-512: composed_sleef_u10 and the like.
std::vector<Peer> FindComposedPeers(const support::Export& entry);

// Complex products by the plain formulas, vectorised by the compiler for AVX-512.
std::vector<Peer> FindPlainPeers(const support::Export& entry);

// A line for each peer library that is not there.
std::vector<std::string> AbsentPeers();

}  // namespace lum::bench
