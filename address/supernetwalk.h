// The supernet walk of a location, shared by IpLocation::getAllPossibleSupnets
// and the route table's longest-match probe, so that the hot lookup path
// visits exactly the locations the public list names, without allocating.
#pragma once

#include "netloom/ipaddress.h"

namespace netloom::detail {

// Calls probe(location) for the location itself, then for each supernet one
// bit shorter (the address reduced cumulatively), stopping once the address
// is 0, and finally for 0.0.0.0/0. A probe returning true ends the walk.
template <class Probe>
void WalkSupernets(const IpLocation& location, Probe&& probe) {
    unsigned int a = location.unmaskedAddress().bitForm();
    if (a == 0) {
        probe(IpLocation(0u, 0u));
        return;
    }
    if (probe(location)) return;
    const unsigned int stored = location.subnetMask().bitForm();
    for (int n = 33 - location.getMaskLen(); n <= 31; ++n) {
        unsigned int mask = stored & (0xFFFFFFFFu << n);
        a &= mask;
        if (probe(IpLocation(a, mask))) return;
        if (a == 0) break;
    }
    probe(IpLocation(0u, 0u));
}

}  // namespace netloom::detail
