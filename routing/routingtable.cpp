// Route entries and the table store: ownership by Index, the (DestIp,
// DestMask) network map that longest-prefix lookups probe, the classful
// major-network bookkeeping, and the gateway-of-last-resort choice.
#include "netloom/routingtable.h"

#include <algorithm>
#include <strings.h>

#include "address/supernetwalk.h"

namespace netloom::detail {

constexpr unsigned short kUnknownDistance = 65535;
constexpr unsigned int kUnknownNumber = 0xFFFFFFFFu;

// Orders for the sorts; a null entry sorts last instead of crashing.
template <class Less>
auto NullLast(Less less) {
    return [less](const RoutingTableEntry* a, const RoutingTableEntry* b) {
        if (a == nullptr || b == nullptr) return a != nullptr && b == nullptr;
        return less(*a, *b);
    };
}

int BgpPathId(const RoutingTableEntry* e) {
    const auto* bgp = dynamic_cast<const RoutingCostBgp*>(e->Cost);
    return bgp != nullptr ? bgp->m_pathId : -1;
}

std::string ActionWord(int action) {
    switch (action) {
        case RA_ADD: return " ADD ";
        case RA_DELETE: return " DELETE ";
        case RA_WITHDRAW: return " WITHDRAW ";
        case RA_REQUEST: return " REQUEST ";
        case RA_POSSIBLEDOWN: return " POSSIBLEDOWN ";
        default: return "";
    }
}

}  // namespace netloom::detail

using namespace netloom::detail;

// ---------------------------------------------------------------- LiveRtEntry

TW_RoutingAlgorithm LiveRtEntry::getAlg() const {
    if (RouteType == 3) return RT_ALG_CONNECTED;
    switch (RouteProto) {
        case 2:
        case 3: return RT_ALG_STATIC;
        case 8: return RT_ALG_RIP;
        case 9: return RT_ALG_ISIS;
        case 11:
        case 16: return RT_ALG_EIGRP;
        case 13: return RT_ALG_OSPF;
        case 14: return RT_ALG_BGP;
        default: return RT_ALG_UNKNOWN;
    }
}

std::string LiveRtEntry::ciscoText() const {
    std::string text = RoutingTable::GetAlgorithmNameByType(getAlg()) + " " + DestText + "/" + MaskText + " [0/0] ";
    if (getAlg() == RT_ALG_CONNECTED) return text + "is directly connected " + IfName;
    return text + " via " + GatewayText + ", " + IfName;
}

// ---------------------------------------------------------------- RoutingTableEntry

RoutingTableEntry::RoutingTableEntry(const RoutingTableEntry& other) { *this = other; }

RoutingTableEntry::RoutingTableEntry(const LiveRtEntry& live)
    : Index(static_cast<unsigned int>(live.Index)),
      DestIp(live.DestText),
      DestMask(live.MaskText),
      NextHop(live.NextHopText),
      OutIf(live.IfName),
      Alg(live.getAlg()) {}

RoutingTableEntry::~RoutingTableEntry() { delete Cost; }

RoutingTableEntry& RoutingTableEntry::operator=(const RoutingTableEntry& other) {
    if (this == &other) return *this;
    // Index stays: it is the key the owning table gave this entry.
    DestIp = other.DestIp;
    DestMask = other.DestMask;
    NextHop = other.NextHop;
    OutIf = other.OutIf;
    Distance = other.Distance;
    Metric = other.Metric;
    Alg = other.Alg;
    CandidateDefault = other.CandidateDefault;
    SecondFlag = other.SecondFlag;
    SpareFlag1 = other.SpareFlag1;
    SpareFlag2 = other.SpareFlag2;
    TimeStamp = other.TimeStamp;
    Reserved = other.Reserved;
    Action = other.Action;
    RoutingCost* cost = other.Cost != nullptr ? other.Cost->clone() : nullptr;
    delete Cost;
    Cost = cost;
    NextDevice = other.NextDevice;
    OriginalAlg = other.OriginalAlg;
    DestText = other.DestText;
    MaskText = other.MaskText;
    ExtraText = other.ExtraText;
    ExtraCode = other.ExtraCode;
    return *this;
}

int RoutingTableEntry::compare(const RoutingTableEntry& other) const {
    if (Cost != nullptr && other.Cost != nullptr) {
        int r = Cost->compare(other.Cost);
        if (r != 0 && Cost->m_protocol == other.Cost->m_protocol) return r;
        if (Distance != other.Distance) return Distance < other.Distance ? 1 : -1;
        r = Cost->compareProtocol(other.Cost);
        if (r != 0) return r;
    } else if (Distance != other.Distance) {
        return Distance < other.Distance ? 1 : -1;
    }
    if (Metric != other.Metric) return Metric < other.Metric ? 1 : -1;
    return 0;
}

int RoutingTableEntry::compare(const RoutingTableEntry& other, const std::vector<CompareItem>& items) const {
    auto order = [](auto a, auto b) { return a < b ? -1 : (b < a ? 1 : 0); };
    for (CompareItem item : items) {
        int r = 0;
        switch (item) {
            case CI_DEST_IP: r = order(DestIp.bitForm(), other.DestIp.bitForm()); break;
            case CI_DEST_MASK: r = order(DestMask.bitForm(), other.DestMask.bitForm()); break;
            case CI_NEXT_HOP: r = order(NextHop.bitForm(), other.NextHop.bitForm()); break;
            // Alg, Distance and Metric keys order by the interface text too;
            // stored comparison results were made this way.
            case CI_OUT_IF:
            case CI_ALG:
            case CI_DISTANCE:
            case CI_METRIC: r = order(OutIf, other.OutIf); break;
            default: break;
        }
        if (r != 0) return r;
    }
    return 0;
}

int RoutingTableEntry::compareDefRoute(const RoutingTableEntry* other) const {
    if (other == nullptr) return 1;
    if (Distance < other->Distance) return 1;
    if (other->Metric != 0) return 1;
    if (!DestIp.isNull() && other->DestIp.isNull()) return 1;
    return -1;
}

bool RoutingTableEntry::lessADMetric(const RoutingTableEntry& other) const {
    if (Distance != other.Distance) return Distance < other.Distance;
    return Metric < other.Metric;
}

bool RoutingTableEntry::operator<(const RoutingTableEntry& other) const {
    if (DestIp != other.DestIp) return DestIp < other.DestIp;
    return DestMask < other.DestMask;
}

bool RoutingTableEntry::operator==(const RoutingTableEntry& other) const {
    return DestIp == other.DestIp && DestMask == other.DestMask && NextHop == other.NextHop &&
           OutIf == other.OutIf && Distance == other.Distance && Metric == other.Metric && Alg == other.Alg &&
           CandidateDefault == other.CandidateDefault && SecondFlag == other.SecondFlag;
}

std::string RoutingTableEntry::getAlg() const {
    if (!OriginalAlg.empty()) return OriginalAlg;
    return RoutingTable::GetAlgorithmNameByType(Alg, CandidateDefault);
}

std::string RoutingTableEntry::ciscoText() const {
    std::string text = getAlg() + " " + DestIp.textForm() + "/" +
                       std::to_string(IpAddress::getMaskLength(DestMask.bitForm())) + " ";
    const bool timed = TimeStamp != 0 && TimeStamp != kUnknownNumber;
    if (Alg == RT_ALG_CONNECTED || (Alg == RT_ALG_STATIC && NextHop.isNull()))
        return text + "is directly connected, " + OutIf;
    if (strcasecmp(OutIf.c_str(), "Null0") == 0) {
        text += "is a summary,via null0, ";
        if (timed) text += RoutingTable::FormatSecondToTime(TimeStamp) + ", ";
        return text;
    }
    text += "[";
    if (Distance != kUnknownDistance) text += std::to_string(Distance);
    text += "/";
    if (Metric != kUnknownNumber) text += std::to_string(Metric);
    text += "]  via ";
    if (!NextHop.isNull()) text += NextHop.textForm();
    text += ", ";
    if (timed) text += RoutingTable::FormatSecondToTime(TimeStamp) + ", ";
    return text + OutIf;
}

std::string RoutingTableEntry::toString() const {
    return getAlg() + " " + DestIp.textForm() + "/" + std::to_string(IpAddress::getMaskLength(DestMask.bitForm())) +
           " [/] " + ActionWord(Action);
}

void RoutingTableEntry::SetCostInfo(RoutingCost* cost) {
    if (cost == nullptr || cost == Cost) return;
    delete Cost;
    Cost = cost;
}

RoutingProtocolType RoutingTableEntry::getProtocolByRouteType(const RoutingTableEntry& entry) {
    return getProtocolByRouteType(entry.Alg);
}

RoutingProtocolType RoutingTableEntry::getProtocolByRouteType(TW_RoutingAlgorithm alg) {
    switch (static_cast<int>(alg)) {
        case 0: return RPT_RIP;
        case 1: return RPT_IGRP;
        case 2: return RPT_STATIC;
        case 3: return RPT_DIRECT;
        case 4:
        case 5: return RPT_EIGRP;
        case 9:
        case 10:
        case 11:
        case 12:
        case 13:
        case 14: return RPT_OSPF;
        case 15:
        case 16:
        case 17: return RPT_BGP;
        case 27: return RPT_FIXUP;
        default: return RPT_UNKNOWN;
    }
}

// ---------------------------------------------------------------- RoutingTable: life

RoutingTable::RoutingTable(const char* deviceName) : m_deviceName(deviceName != nullptr ? deviceName : "") {}

RoutingTable::RoutingTable(const RoutingTable& other)
    : m_lastResortGateway(other.m_lastResortGateway),
      m_lastResortNetwork(other.m_lastResortNetwork),
      m_deviceName(other.m_deviceName),
      m_description(other.m_description) {
    for (const auto& [index, entry] : other.m_entryIndexMap) {
        if (entry == nullptr) continue;
        auto* copy = new RoutingTableEntry(*entry);
        copy->Index = index;
        AddEntry(copy);
    }
}

RoutingTable::RoutingTable(const std::string& deviceName, std::vector<RoutingTableEntry*>& entries)
    : m_deviceName(deviceName) {
    for (RoutingTableEntry* e : entries) RoutingTable::AddRoute(e);
    GenerateNetworkMap();
}

RoutingTable& RoutingTable::operator=(const RoutingTable& other) {
    if (this == &other) return *this;
    RoutingTable copy(other);
    DeleteAllEntries();
    m_defaultRoute = copy.m_defaultRoute;
    m_networkMap.swap(copy.m_networkMap);
    m_entryIndexMap.swap(copy.m_entryIndexMap);
    m_majorNetworkMap.swap(copy.m_majorNetworkMap);
    copy.m_defaultRoute = nullptr;
    m_lastResortGateway = other.m_lastResortGateway;
    m_lastResortNetwork = other.m_lastResortNetwork;
    m_deviceName = other.m_deviceName;
    m_description = other.m_description;
    return *this;
}

RoutingTable::~RoutingTable() { DeleteAllEntries(); }

void RoutingTable::DeleteAllEntries() {
    for (auto& [index, entry] : m_entryIndexMap) delete entry;
    m_entryIndexMap.clear();
    m_networkMap.clear();
    m_defaultRoute = nullptr;
}

// ---------------------------------------------------------------- RoutingTable: changes

unsigned int RoutingTable::GetMaxIndex() const {
    return m_entryIndexMap.empty() ? 0 : m_entryIndexMap.rbegin()->first;
}

void RoutingTable::AddRoute(const RoutingTableEntry* entry) {
    if (entry == nullptr) return;
    auto* copy = new RoutingTableEntry(*entry);
    copy->Index = GetMaxIndex() + 1;
    AddEntry(copy);
}

void RoutingTable::AppendRoute(const RoutingTableEntry* entry) {
    if (entry == nullptr) return;
    auto* copy = new RoutingTableEntry(*entry);
    copy->Index = entry->Index != 0 ? entry->Index : GetMaxIndex() + 1;
    AddEntry(copy);
}

bool RoutingTable::AddRouteIfDestNotExist(const RoutingTableEntry* entry) {
    if (entry == nullptr) return false;
    if (m_networkMap.count(IpLocation(entry->DestIp, entry->DestMask)) != 0) return false;
    AddRoute(entry);
    return true;
}

void RoutingTable::AddEntry(RoutingTableEntry* entry) {
    // The index map owns; an Index already taken keeps its first entry and
    // the newcomer is dropped rather than left owned by nobody.
    if (!m_entryIndexMap.emplace(entry->Index, entry).second) {
        delete entry;
        return;
    }
    m_networkMap[IpLocation(entry->DestIp, entry->DestMask)].push_back(entry);
    AddToMajorNetwork(entry);

    if (!entry->CandidateDefault || entry->Alg == RT_ALG_CONNECTED) return;
    if (entry->Alg == RT_ALG_STATIC) {
        const auto* fixed = dynamic_cast<const RoutingCostStatic*>(entry->Cost);
        if (fixed != nullptr && fixed->m_staticType == 1) return;
    }
    // compareDefRoute never answers 0, so the candidate added last wins.
    if (m_defaultRoute == nullptr || entry->compareDefRoute(m_defaultRoute) != 0) m_defaultRoute = entry;
}

void RoutingTable::AddToMajorNetwork(const RoutingTableEntry* entry) {
    const IpAddress classMask = entry->DestIp.classMask();
    // Supernets and default routes make no major network.
    if (entry->DestMask < classMask || entry->DestIp.isNull()) return;
    const unsigned int key = entry->DestIp.bitForm() & entry->DestIp.classMaskBits();
    const bool subnetted = entry->DestMask > classMask;
    auto [it, inserted] = m_majorNetworkMap.emplace(key, subnetted);
    if (!inserted && !it->second && subnetted) it->second = true;
}

void RoutingTable::GenerateNetworkMap() {
    m_networkMap.clear();
    for (const auto& [index, entry] : m_entryIndexMap) {
        if (entry == nullptr) continue;
        m_networkMap[IpLocation(entry->DestIp, entry->DestMask)].push_back(entry);
        AddToMajorNetwork(entry);
    }
}

bool RoutingTable::DeleteRoute(const RoutingTableEntry* entry) {
    if (entry == nullptr) return false;
    auto slot = m_networkMap.find(IpLocation(entry->DestIp, entry->DestMask));
    if (slot == m_networkMap.end()) return false;
    const bool bgp = entry->Alg == RT_ALG_BGP;
    const int pathId = bgp ? BgpPathId(entry) : 0;
    EntryList& list = slot->second;
    auto hit = std::find_if(list.begin(), list.end(), [&](const RoutingTableEntry* e) {
        if (e->NextHop != entry->NextHop || e->OutIf != entry->OutIf) return false;
        return !bgp || (e->Alg == RT_ALG_BGP && BgpPathId(e) == pathId);
    });
    if (hit != list.end()) {
        RoutingTableEntry* victim = *hit;
        list.erase(hit);
        auto owned = m_entryIndexMap.find(victim->Index);
        if (owned != m_entryIndexMap.end() && owned->second == victim) m_entryIndexMap.erase(owned);
        // Never leave the default route pointing at freed memory.
        if (m_defaultRoute == victim) m_defaultRoute = nullptr;
        delete victim;  // may be `entry` itself: not read below
        if (list.empty()) m_networkMap.erase(slot);
    }
    return true;
}

bool RoutingTable::DeleteRoutes(IpLocation& location) {
    auto slot = m_networkMap.find(location);
    if (slot == m_networkMap.end()) return false;
    for (RoutingTableEntry* victim : slot->second) {
        auto owned = m_entryIndexMap.find(victim->Index);
        if (owned != m_entryIndexMap.end() && owned->second == victim) m_entryIndexMap.erase(owned);
        if (m_defaultRoute == victim) m_defaultRoute = nullptr;
        delete victim;
    }
    m_networkMap.erase(slot);
    return true;
}

bool RoutingTable::ModifyRTEntry(const RoutingTableEntry* entry) {
    if (entry == nullptr) return false;
    auto it = m_entryIndexMap.find(entry->Index);
    if (it == m_entryIndexMap.end() || it->second == nullptr) return false;
    *it->second = *entry;
    return true;
}

void RoutingTable::SetRTEntryList(std::vector<RoutingTableEntry*>& entries) {
    DeleteAllEntries();
    for (RoutingTableEntry* e : entries) AddRoute(e);
    GenerateNetworkMap();
}

void RoutingTable::CleanUp() {
    DeleteAllEntries();
    m_majorNetworkMap.clear();
    m_description.clear();
}

void RoutingTable::CopyRTEntryList(const std::vector<RoutingTableEntry*>& from, std::vector<RoutingTableEntry*>& to) {
    for (const RoutingTableEntry* e : from) {
        if (e == nullptr) continue;
        auto* copy = new RoutingTableEntry(*e);
        copy->Index = e->Index;
        to.push_back(copy);
    }
}

void RoutingTable::CopyRTEntryList(const std::map<unsigned int, RoutingTableEntry*>& from,
                                   std::map<unsigned int, RoutingTableEntry*>& to) {
    for (const auto& [index, e] : from) {
        if (e == nullptr || to.count(index) != 0) continue;
        auto* copy = new RoutingTableEntry(*e);
        copy->Index = e->Index;
        to.emplace(index, copy);
    }
}

void RoutingTable::DeleteRTEntryList(std::vector<RoutingTableEntry*>& entries) {
    for (RoutingTableEntry* e : entries) delete e;
    entries.clear();
}

void RoutingTable::DeleteRTEntryList(std::map<unsigned int, RoutingTableEntry*>& entries) {
    for (auto& [index, e] : entries) delete e;
    entries.clear();
}

// ---------------------------------------------------------------- RoutingTable: lookups

std::vector<RoutingTableEntry*> RoutingTable::GetPossibleEntry(IpLocation& location) {
    std::vector<RoutingTableEntry*> found;
    WalkSupernets(location, [&](const IpLocation& probe) {
        auto it = m_networkMap.find(probe);
        if (it == m_networkMap.end()) return false;
        found = it->second;
        return true;
    });
    return found;
}

std::vector<RoutingTableEntry*> RoutingTable::LookUp(const IpAddress& address, bool classless) {
    IpLocation host(address, IpAddress(0xFFFFFFFFu));
    std::vector<RoutingTableEntry*> found = GetPossibleEntry(host);
    if (found.empty() && m_defaultRoute != nullptr) found.push_back(m_defaultRoute);
    if (!found.empty() && !classless) {
        // Classful forwarding: a known major network is never reached
        // through a summary or the default route.
        if (m_majorNetworkMap.count(address.networkForm()) != 0) {
            const RoutingTableEntry* match = found.front();
            if (match->DestMask < match->DestIp.classMask() || match->DestIp.isNull()) found.clear();
        }
    }
    return found;
}

bool RoutingTable::GetMatchedRoutingEntry(IpAddress& address, std::vector<RoutingTableEntry*>& out) {
    out = LookUp(address, true);
    if (out.empty()) return false;
    // An unknown Distance (65535) wins over every known one.
    unsigned short best = kUnknownDistance;
    bool unknown = false;
    for (const RoutingTableEntry* e : out) {
        if (e->Distance == kUnknownDistance) unknown = true;
        best = std::min(best, e->Distance);
    }
    if (unknown) best = kUnknownDistance;
    out.erase(std::remove_if(out.begin(), out.end(), [best](const RoutingTableEntry* e) { return e->Distance != best; }),
              out.end());
    return true;
}

RoutingTableEntry* RoutingTable::IpRTLookUpFirst(IpAddress address, bool classless) {
    std::vector<RoutingTableEntry*> found = LookUp(address, classless);
    if (found.empty()) return nullptr;
    for (RoutingTableEntry* e : found)
        if (!e->OutIf.empty()) return e;

    const RoutingTableEntry* first = found.front();
    const RoutingTableEntry* current = first;
    // Recursion through next hops, bounded so that a loop of static routes
    // cannot hold the caller.
    for (int n = 0;; ++n) {
        if (!current->OutIf.empty()) return nullptr;
        std::vector<RoutingTableEntry*> next = LookUp(current->NextHop, false);
        if (next.empty()) return nullptr;
        for (RoutingTableEntry* e : next) {
            if (e->DestIp == first->DestIp && e->DestMask == first->DestMask) return nullptr;
            const bool hopOutsideOwnNet = !IpLocation(e->DestIp, e->DestMask).inSameNet(e->NextHop);
            if (hopOutsideOwnNet && e->NextHop != e->DestIp && !e->OutIf.empty()) return e;
        }
        current = next.front();
        if (current->NextHop == current->DestIp) return nullptr;
        if (n > 10) return nullptr;
    }
}

std::vector<RoutingTableEntry*> RoutingTable::GetPossibleEntry(std::vector<RoutingTableEntry*>& sorted,
                                                               IpLocation& location) {
    auto destOf = [](const RoutingTableEntry* e) { return e != nullptr ? e->DestIp.bitForm() : 0u; };
    std::vector<RoutingTableEntry*> found;
    for (const IpAddress& probe : location.unmaskedAddress().getAllPossibleSubnets()) {
        auto hit = std::lower_bound(sorted.begin(), sorted.end(), probe.bitForm(),
                                    [&](const RoutingTableEntry* e, unsigned int v) { return destOf(e) < v; });
        if (hit == sorted.end() || *hit == nullptr || (*hit)->DestIp != probe) continue;
        // The run of routes with the hit's prefix, last one first.
        const RoutingTableEntry* key = *hit;
        auto same = [key](const RoutingTableEntry* e) {
            return e != nullptr && e->DestIp == key->DestIp && e->DestMask == key->DestMask;
        };
        auto lo = hit, hi = hit;
        while (lo != sorted.begin() && same(*(lo - 1))) --lo;
        while (hi + 1 != sorted.end() && same(*(hi + 1))) ++hi;
        for (auto it = hi;; --it) {
            found.push_back(*it);
            if (it == lo) break;
        }
        return found;
    }
    return found;
}

std::vector<RoutingTableEntry*> RoutingTable::GetRouteEntry(IpLocation& location) {
    auto it = m_networkMap.find(location);
    if (it == m_networkMap.end()) return {};
    std::vector<RoutingTableEntry*> found = it->second;
    SortRTByAdMetric(found);
    return found;
}

RoutingTableEntry* RoutingTable::GetRTEntryByIndex(unsigned int index) {
    auto it = m_entryIndexMap.find(index);
    return it == m_entryIndexMap.end() ? nullptr : it->second;
}

std::vector<RoutingTableEntry*> RoutingTable::GetRTEntryList(std::set<unsigned int>* indexes) {
    std::vector<RoutingTableEntry*> out;
    if (indexes == nullptr) {
        for (const auto& [index, e] : m_entryIndexMap)
            if (e != nullptr) out.push_back(e);
        return out;
    }
    for (unsigned int index : *indexes)
        if (RoutingTableEntry* e = GetRTEntryByIndex(index)) out.push_back(e);
    return out;
}

RoutingTableEntry* RoutingTable::GetAllZeroDefRoute() {
    auto it = m_networkMap.find(IpLocation(0u, 0u));
    if (it == m_networkMap.end() || it->second.empty()) return nullptr;
    return it->second.front();
}

bool RoutingTable::HasMajorNetwork(IpAddress& address) { return m_majorNetworkMap.count(address.networkForm()) != 0; }

bool RoutingTable::IsSubnetted(IpAddress& address) {
    auto it = m_majorNetworkMap.find(address.networkForm());
    return it != m_majorNetworkMap.end() && it->second;
}

// ---------------------------------------------------------------- RoutingTable: filters and sorts

namespace netloom::detail {

template <class Keep>
std::set<unsigned int> FilterEntries(RoutingTable& table, std::set<unsigned int>* indexes, Keep keep) {
    std::set<unsigned int> out;
    for (RoutingTableEntry* e : table.GetRTEntryList(indexes))
        if (keep(*e)) out.insert(e->Index);
    return out;
}

}  // namespace netloom::detail

std::set<unsigned int> RoutingTable::FilterAlg(TW_RoutingAlgorithm alg, std::set<unsigned int>* indexes) {
    return FilterEntries(*this, indexes, [alg](const RoutingTableEntry& e) { return e.Alg == alg; });
}

std::set<unsigned int> RoutingTable::FilterNextRouter(unsigned int nextHop, std::set<unsigned int>* indexes) {
    return FilterEntries(*this, indexes, [nextHop](const RoutingTableEntry& e) { return e.NextHop.bitForm() == nextHop; });
}

std::set<unsigned int> RoutingTable::FilterOutIfName(std::string& outIf, std::set<unsigned int>* indexes) {
    return FilterEntries(*this, indexes, [&outIf](const RoutingTableEntry& e) { return e.OutIf == outIf; });
}

std::set<unsigned int> RoutingTable::FilterTimeStamp(unsigned int time, CompareType type,
                                                     std::set<unsigned int>* indexes) {
    return FilterEntries(*this, indexes, [time, type](const RoutingTableEntry& e) {
        if (e.TimeStamp == kUnknownNumber) return false;
        switch (static_cast<int>(type)) {
            case CT_EQUAL: return e.TimeStamp == time;
            case CT_GREATER: return e.TimeStamp > time;
            case CT_LESS: return e.TimeStamp < time;
            default: return false;
        }
    });
}

void RoutingTable::SortRTByAdMetric(std::vector<RoutingTableEntry*>& entries) {
    std::stable_sort(entries.begin(), entries.end(),
                     NullLast([](const RoutingTableEntry& a, const RoutingTableEntry& b) { return a.lessADMetric(b); }));
}

void RoutingTable::SortRTEntryList(std::vector<RoutingTableEntry*>& entries) {
    std::stable_sort(entries.begin(), entries.end(),
                     NullLast([](const RoutingTableEntry& a, const RoutingTableEntry& b) { return a < b; }));
}

void RoutingTable::SortRTEntryList(std::vector<RoutingTableEntry*>& entries, const std::vector<CompareItem>& items) {
    std::stable_sort(entries.begin(), entries.end(), NullLast([&items](const RoutingTableEntry& a, const RoutingTableEntry& b) {
                         return a.compare(b, items) < 0;
                     }));
}
