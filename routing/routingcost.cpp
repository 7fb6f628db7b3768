// Route cost objects: per-protocol preference rules. Only OSPF has a real
// intra-protocol comparison here; BGP best-path selection is deliberately
// not applied (a BGP compare says "no preference").
#include "netloom/routingcost.h"

namespace netloom::detail {

inline int SignedOrder(int a, int b) { return a < b ? 1 : (a > b ? -1 : 0); }

// Lower is better: 1 when mine is less.
inline int LowerWins(unsigned int mine, unsigned int theirs) {
    return mine < theirs ? 1 : (mine > theirs ? -1 : 0);
}

inline bool IsType2External(int routeType) { return routeType == RT_ALG_OSPF_N2 || routeType == RT_ALG_OSPF_E2; }

}  // namespace netloom::detail

using namespace netloom::detail;

const unsigned int RoutingCostEigrp::gEigrpInfinityCost = 0xFFFFFFFFu;
const unsigned int RoutingCostIgrp::gIgrpInfinityCost = 0xFFFFFFu;
const unsigned int RoutingCostOspf::gOspfInfinityCost = 0xFFFFFFu;
const unsigned int RoutingCostRip::gRipInfinityCost = 16;

// ---------------------------------------------------------------- base

RoutingCost::~RoutingCost() = default;

int RoutingCost::compare(RoutingCost*) { return 0; }

int RoutingCost::compareProtocol(RoutingCost* other) {
    if (other == nullptr) return 0;
    return SignedOrder(m_protocol, other->m_protocol);
}

int RoutingCost::compareProcessID(RoutingCost*) { return 0; }

bool RoutingCost::typeMatch(const RoutingCost* other) const {
    return other != nullptr && other->protocolOf() == protocolOf();
}

bool RoutingCost::typeMatch(RoutingProtocolType type, int, int) const { return type == protocolOf(); }

unsigned int RoutingCost::getAs() { return 0; }

// ---------------------------------------------------------------- simple classes

RoutingCostDirect::RoutingCostDirect() { m_protocol = RPT_DIRECT; }

RoutingCost* RoutingCostDirect::clone() const { return new RoutingCostDirect(*this); }

RoutingCostStatic::RoutingCostStatic(int staticType) : m_staticType(staticType) {
    m_protocol = RPT_STATIC;
    m_metric = -1;
}

RoutingCost* RoutingCostStatic::clone() const { return new RoutingCostStatic(*this); }

RoutingCostRip::RoutingCostRip(int metric) : RoutingCost(metric) { m_protocol = RPT_RIP; }

RoutingCost* RoutingCostRip::clone() const { return new RoutingCostRip(*this); }

// ---------------------------------------------------------------- IGRP / EIGRP

RoutingCostIgrp::RoutingCostIgrp(unsigned int as) : m_as(as) {
    m_protocol = RPT_IGRP;
    m_routeType = RT_ALG_IGRP;
}

RoutingCost* RoutingCostIgrp::clone() const { return new RoutingCostIgrp(*this); }

bool RoutingCostIgrp::typeMatch(const RoutingCost* other) const {
    const auto* same = dynamic_cast<const RoutingCostIgrp*>(other);
    return same != nullptr && same->m_protocol == m_protocol && same->m_as == m_as;
}

bool RoutingCostIgrp::typeMatch(RoutingProtocolType type, int a, int) const {
    return type == m_protocol && (a == -1 || static_cast<unsigned int>(a) == m_as);
}

unsigned int RoutingCostIgrp::cost() const {
    // An unset bandwidth has no defined cost; report it as unreachable
    // rather than divide by zero.
    if (m_bandwidth == 0) return 0xFFFFFFFFu;
    unsigned int bw = 10000000u / static_cast<unsigned int>(m_bandwidth);
    return bw * static_cast<unsigned int>(m_k1) +
           static_cast<unsigned int>(m_k3) * static_cast<unsigned int>(m_delay);
}

RoutingCostEigrp::RoutingCostEigrp(unsigned int as) : RoutingCostIgrp(as) {
    m_protocol = RPT_EIGRP;
    m_routeType = RT_ALG_IGRP;
}

RoutingCost* RoutingCostEigrp::clone() const { return new RoutingCostEigrp(*this); }

int RoutingCostEigrp::compareProcessID(RoutingCost* other) {
    if (other == nullptr) return 0;
    return SignedOrder(static_cast<int>(m_as), static_cast<int>(other->getAs()));
}

unsigned int RoutingCostEigrp::cost() const {
    if (m_bandwidth == 0) return 0xFFFFFFFFu;
    unsigned int bw = 10000000u / static_cast<unsigned int>(m_bandwidth);
    return ((bw * static_cast<unsigned int>(m_k1)) << 8) +
           static_cast<unsigned int>(m_k3) * static_cast<unsigned int>(m_delay);
}

// ---------------------------------------------------------------- OSPF

RoutingCostOspf::RoutingCostOspf(int area) : m_word1(3), m_area(area), m_sourceArea(area) {
    m_protocol = RPT_OSPF;
    m_routeType = RT_ALG_UNKNOWN;
}

RoutingCostOspf::RoutingCostOspf(int processId, unsigned int metric, int area, TW_RoutingAlgorithm routeType,
                                 bool seenAreaZero)
    : m_processId(processId),
      m_ospfMetric(metric),
      m_ospfMetric2(metric),
      m_ospfMetricCopy(metric),
      m_area(area),
      m_sourceArea(area),
      m_seenAreaZero(seenAreaZero) {
    m_protocol = RPT_OSPF;
    m_routeType = routeType;
}

RoutingCost* RoutingCostOspf::clone() const { return new RoutingCostOspf(*this); }

int RoutingCostOspf::compare(RoutingCost* base) {
    auto* other = dynamic_cast<RoutingCostOspf*>(base);
    if (other == nullptr) return 0;
    const int a = m_routeType, b = other->m_routeType;
    const bool t2 = IsType2External(a);
    const int byMetric = LowerWins(m_ospfMetric, other->m_ospfMetric);
    const int bySecond = LowerWins(m_ospfMetric2, other->m_ospfMetric2);

    if (a > b) {
        // An external beats its NSSA twin unless its metrics say otherwise.
        bool twins = (a == RT_ALG_OSPF_E1 && b == RT_ALG_OSPF_N1) || (a == RT_ALG_OSPF_E2 && b == RT_ALG_OSPF_N2);
        if (!twins) return 1;
        if (m_sourceArea == other->m_area) return 1;
        if (byMetric < 0) return -1;
        if (byMetric == 0 && t2 && bySecond < 0) return -1;
        return 1;
    }
    if (a == b) {
        if (a == RT_ALG_OSPF_IA && m_area != other->m_area) {
            if (m_area == 0) return 1;
            if (other->m_area == 0) return -1;
        }
        if (byMetric != 0) return byMetric;
        return t2 ? bySecond : 0;
    }
    bool twins = (a == RT_ALG_OSPF_N1 && b == RT_ALG_OSPF_E1) || (a == RT_ALG_OSPF_N2 && b == RT_ALG_OSPF_E2);
    if (!twins) return -1;
    if (byMetric != 0) return byMetric;
    if (!t2) return -1;
    return bySecond > 0 ? 1 : -1;
}

int RoutingCostOspf::compareMetric(RoutingCostOspf* other) {
    if (other == nullptr) return 0;
    int byMetric = LowerWins(m_ospfMetric, other->m_ospfMetric);
    if (byMetric != 0) return byMetric;
    if (!IsType2External(m_routeType)) return 0;
    return LowerWins(m_ospfMetric2, other->m_ospfMetric2);
}

bool RoutingCostOspf::typeMatch(const RoutingCost* base) const {
    const auto* other = dynamic_cast<const RoutingCostOspf*>(base);
    return other != nullptr && other->m_protocol == m_protocol && other->m_processId == m_processId &&
           other->m_area == m_area;
}

bool RoutingCostOspf::typeMatch(RoutingProtocolType type, int a, int b) const {
    return type == RPT_OSPF && a == m_processId && b == m_area;
}

// ---------------------------------------------------------------- BGP

RoutingCostBgp::RoutingCostBgp() {
    m_protocol = RPT_BGP;
    m_routeType = RT_ALG_UNKNOWN;
}

RoutingCost* RoutingCostBgp::clone() const { return new RoutingCostBgp(*this); }

bool RoutingCostBgp::typeMatch(const RoutingCost* other) const {
    const auto* same = dynamic_cast<const RoutingCostBgp*>(other);
    return same != nullptr && same->m_protocol == m_protocol && same->m_as == m_as;
}

bool RoutingCostBgp::typeMatch(RoutingProtocolType type, int a, int) const {
    return type == RPT_BGP && (a == -1 || static_cast<unsigned int>(a) == m_as);
}

int RoutingCostBgp::compareMed(RoutingCostBgp* other) {
    if (other == nullptr) return 0;
    return LowerWins(m_med, other->m_med);
}

std::string RoutingCostBgp::getAsPath(std::vector<unsigned int>& path) {
    std::string out;
    for (auto it = path.rbegin(); it != path.rend(); ++it) out += std::to_string(*it) + " ";
    return out;
}

std::string RoutingCostBgp::getAsSet(std::set<unsigned int>& asSet) {
    std::string out;
    for (auto it = asSet.rbegin(); it != asSet.rend(); ++it) out += std::to_string(*it) + " ";
    return out;
}

std::string RoutingCostBgp::getCommunityList(std::set<unsigned long>& communities) {
    std::string out;
    for (unsigned long c : communities) out += std::to_string(c) + " ";
    return out;
}
