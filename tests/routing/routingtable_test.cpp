// The route table store: longest match, classful lookup, ties by Distance,
// the default route choice, recursive next-hop resolution, deletes,
// filters, copies and the text forms of a route.
#include <gtest/gtest.h>

#include "netloom/routingtable.h"

namespace {

unsigned int Ip(const char* text) { return IpAddress(std::string(text)).bitForm(); }

RoutingTableEntry Route(const char* dest, int len, const char* nextHop = "0.0.0.0", const char* outIf = "",
                        unsigned short distance = 1, unsigned int metric = 0,
                        TW_RoutingAlgorithm alg = RT_ALG_STATIC) {
    RoutingTableEntry e;
    e.DestIp = IpAddress(Ip(dest));
    e.DestMask = IpAddress(IpAddress::getBitMaskByLength(len));
    e.NextHop = IpAddress(Ip(nextHop));
    e.OutIf = outIf;
    e.Distance = distance;
    e.Metric = metric;
    e.Alg = alg;
    return e;
}

void Add(RoutingTable& t, std::initializer_list<RoutingTableEntry> routes) {
    for (const auto& r : routes) t.AddRoute(&r);
}

std::string Prefix(const RoutingTableEntry* e) {
    return e == nullptr ? "null" : IpLocation(e->DestIp, e->DestMask).textFormByMaskLen();
}

std::vector<unsigned int> Indexes(const std::vector<RoutingTableEntry*>& v) {
    std::vector<unsigned int> out;
    for (auto* e : v) out.push_back(e->Index);
    return out;
}

}  // namespace

TEST(RouteLookup, SupernetWalkFallsBackAndStopsOnceTheAddressIsZero) {
    RoutingTable t("r1");
    auto r8 = Route("10.0.0.0", 8, "1.1.1.1"), r16 = Route("10.1.0.0", 16, "2.2.2.2");
    Add(t, {r8, r16});
    IpAddress probe(Ip("10.1.2.3"));
    EXPECT_EQ(Prefix(t.LookUp(probe, true).at(0)), "10.1.0.0/16");
    IpLocation key16(Ip("10.1.0.0"), 0xFFFF0000u);
    EXPECT_TRUE(t.DeleteRoutes(key16));
    EXPECT_FALSE(t.DeleteRoutes(key16));
    EXPECT_EQ(Prefix(t.LookUp(probe, true).at(0)), "10.0.0.0/8");

    // 0.0.0.0/4 is probed for addresses below 16.0.0.0 (the step that makes
    // the address 0 is still probed), but 0.0.0.0/2 never is: the walk has
    // stopped by then. 0/0 is the last probe, without any default field.
    RoutingTable w("r1");
    auto r4 = Route("0.0.0.0", 4, "1.1.1.1"), r2 = Route("0.0.0.0", 2, "2.2.2.2");
    Add(w, {r4, r2});
    auto found = w.LookUp(IpAddress(Ip("10.0.0.1")), true);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(Prefix(found[0]), "0.0.0.0/4");
    EXPECT_TRUE(w.LookUp(IpAddress(Ip("20.0.0.1")), true).empty());
    Add(w, {Route("0.0.0.0", 0, "9.9.9.9")});
    EXPECT_EQ(w.GetDefRoute(), nullptr);
    EXPECT_EQ(Prefix(w.LookUp(IpAddress(Ip("20.0.0.1")), true).at(0)), "0.0.0.0/0");
    EXPECT_EQ(w.GetAllZeroDefRoute(), w.GetRTEntryByIndex(3));
    // The address 0.0.0.0 itself probes only 0/0.
    EXPECT_EQ(Prefix(w.LookUp(IpAddress(0u), true).at(0)), "0.0.0.0/0");
}

TEST(RouteLookup, KeyOrderCollisionSharesOneVector) {
    // (A+1, 0) and (A, 0xFFFFFFFF) are one key: the host route's lookups find
    // the odd /0 route too, in the same vector.
    RoutingTable t("r1");
    RoutingTableEntry odd = Route("10.0.0.2", 0, "1.1.1.1");
    RoutingTableEntry host = Route("10.0.0.1", 32, "2.2.2.2");
    Add(t, {odd, host});
    EXPECT_EQ(t.getEntryNetworkMap().size(), 1u);
    auto found = t.LookUp(IpAddress(Ip("10.0.0.1")), true);
    ASSERT_EQ(found.size(), 2u);
    EXPECT_EQ(Indexes(found), (std::vector<unsigned int>{1, 2}));
    EXPECT_FALSE(t.AddRouteIfDestNotExist(&host));
}

TEST(RouteLookup, ChangesThroughTheMapReferenceAreSeen) {
    RoutingTable t("r1");
    Add(t, {Route("10.0.0.0", 8, "1.1.1.1")});
    t.LookUp(IpAddress(Ip("10.2.0.1")), true);  // lookup index built
    // Re-key the routes by hand, as a reader that fills the map itself would.
    auto& map = t.getEntryNetworkMap();
    auto routes = map.begin()->second;
    map.clear();
    map[IpLocation(Ip("10.1.0.0"), 0xFFFF0000u)] = routes;
    EXPECT_TRUE(t.LookUp(IpAddress(Ip("10.2.0.1")), true).empty());
    EXPECT_EQ(t.LookUp(IpAddress(Ip("10.1.0.1")), true).size(), 1u);
    t.getEntryNetworkMap().clear();
    t.GenerateNetworkMap();
    EXPECT_EQ(t.LookUp(IpAddress(Ip("10.2.0.1")), true).size(), 1u);
}

TEST(RouteLookup, ClassfulLookupIgnoresSummariesForKnownMajorNetworks) {
    RoutingTable t("r1");
    auto zero = Route("0.0.0.0", 0, "9.9.9.9"), sub = Route("10.2.0.0", 16, "1.1.1.1");
    Add(t, {zero, sub});
    IpAddress probe(Ip("10.1.2.3"));
    EXPECT_TRUE(t.LookUp(probe, false).empty());
    EXPECT_EQ(Prefix(t.LookUp(probe, true).at(0)), "0.0.0.0/0");
    // An unknown major network still uses the default.
    EXPECT_EQ(t.LookUp(IpAddress(Ip("11.1.1.1")), false).size(), 1u);
    // So does a supernet, which makes no major network itself.
    Add(t, {Route("172.16.0.0", 12, "3.3.3.3")});
    EXPECT_EQ(Prefix(t.LookUp(IpAddress(Ip("172.20.1.1")), false)[0]), "172.16.0.0/12");
    auto major = Route("172.20.5.0", 24, "4.4.4.4");
    t.AddRoute(&major);
    EXPECT_TRUE(t.LookUp(IpAddress(Ip("172.20.1.1")), false).empty());

    IpAddress ten(Ip("10.0.0.0")), eleven(Ip("11.0.0.0")), net172(Ip("172.20.0.0"));
    EXPECT_TRUE(t.IsSubnetted(ten));
    EXPECT_FALSE(t.HasMajorNetwork(eleven));
    EXPECT_TRUE(t.IsSubnetted(net172));
    Add(t, {Route("11.0.0.0", 8, "1.1.1.1")});
    EXPECT_TRUE(t.HasMajorNetwork(eleven));
    EXPECT_FALSE(t.IsSubnetted(eleven));
    Add(t, {Route("11.1.0.0", 16, "1.1.1.1")});
    EXPECT_TRUE(t.IsSubnetted(eleven));  // set later, never cleared
}

TEST(RouteMatch, TiesSettledByDistanceWhereUnknownWins) {
    RoutingTable t("r1");
    auto a = Route("10.0.0.0", 8, "1.1.1.1", "", 90), b = Route("10.0.0.0", 8, "2.2.2.2", "", 110),
         c = Route("10.0.0.0", 8, "3.3.3.3", "", 90);
    Add(t, {a, b, c});
    IpAddress probe(Ip("10.9.9.9"));
    std::vector<RoutingTableEntry*> out;
    ASSERT_TRUE(t.GetMatchedRoutingEntry(probe, out));
    EXPECT_EQ(Indexes(out), (std::vector<unsigned int>{1, 3}));

    Add(t, {Route("10.0.0.0", 8, "4.4.4.4", "", 65535)});
    ASSERT_TRUE(t.GetMatchedRoutingEntry(probe, out));
    EXPECT_EQ(Indexes(out), (std::vector<unsigned int>{4}));

    // GetRouteEntry: exactly that key, by Distance then Metric.
    IpLocation key(Ip("10.0.0.0"), 0xFF000000u);
    EXPECT_EQ(Indexes(t.GetRouteEntry(key)), (std::vector<unsigned int>{1, 3, 2, 4}));
    IpLocation none(Ip("10.0.0.0"), 0xFFFF0000u);
    EXPECT_TRUE(t.GetRouteEntry(none).empty());
}

TEST(DefaultRoute, LastCandidateAlwaysWins) {
    RoutingTable t("r1");
    auto first = Route("0.0.0.0", 0, "1.1.1.1", "", 1, 0);
    first.CandidateDefault = true;
    auto worse = Route("0.0.0.0", 0, "2.2.2.2", "", 200, 50, RT_ALG_OSPF_E2);
    worse.CandidateDefault = true;
    Add(t, {first, worse});
    EXPECT_EQ(t.GetDefRoute()->Index, 2u);
    // Connected candidates never become the default, nor statics marked so.
    auto connected = Route("10.0.0.0", 8, "0.0.0.0", "Eth0", 0, 0, RT_ALG_CONNECTED);
    connected.CandidateDefault = true;
    t.AddRoute(&connected);
    auto pinned = Route("0.0.0.0", 0, "3.3.3.3");
    pinned.CandidateDefault = true;
    pinned.SetCostInfo(new RoutingCostStatic(1));
    t.AddRoute(&pinned);
    Add(t, {Route("20.0.0.0", 8, "4.4.4.4")});
    EXPECT_EQ(t.GetDefRoute()->Index, 2u);

    // Without a matching prefix, the default route field answers.
    auto network = Route("172.16.0.0", 16, "5.5.5.5", "", 1, 0, RT_ALG_EIGRP);
    network.CandidateDefault = true;
    RoutingTable u("r2");
    u.AddRoute(&network);
    auto found = u.LookUp(IpAddress(Ip("8.8.8.8")), true);
    ASSERT_EQ(found.size(), 1u);
    EXPECT_EQ(Prefix(found[0]), "172.16.0.0/16");

    RoutingTableEntry a, b;
    a.Distance = 5;
    b.Distance = 1;
    b.Metric = 0;
    b.DestIp = IpAddress(1u);
    EXPECT_EQ(a.compareDefRoute(&b), -1);
}

TEST(RecursiveLookup, FollowsNextHopsToARouteWithAnInterface) {
    RoutingTable t("r1");
    auto target = Route("50.0.0.0", 8, "10.0.0.1");        // no interface
    auto via = Route("10.0.0.0", 24, "20.0.0.1");          // no interface either
    auto out = Route("20.0.0.0", 24, "30.0.0.1", "Gi0/1");  // leaves here
    Add(t, {target, via, out});
    RoutingTableEntry* hit = t.IpRTLookUpFirst(IpAddress(Ip("50.1.1.1")), true);
    EXPECT_EQ(Prefix(hit), "20.0.0.0/24");
    EXPECT_EQ(t.IpRTLookUpFirst(IpAddress(Ip("99.0.0.1")), true), nullptr);

    // A next hop inside the route's own net is no exit.
    RoutingTable self("r2");
    auto t2 = Route("50.0.0.0", 8, "10.0.0.1");
    auto inside = Route("10.0.0.0", 24, "10.0.0.7", "Gi0/2");
    Add(self, {t2, inside});
    EXPECT_EQ(self.IpRTLookUpFirst(IpAddress(Ip("50.1.1.1")), true), nullptr);
}

TEST(RecursiveLookup, LoopsAndLongChainsGiveNull) {
    RoutingTable loop("r1");
    auto a = Route("50.0.0.0", 8, "60.0.0.1"), b = Route("60.0.0.0", 8, "50.0.0.1");
    Add(loop, {a, b});
    EXPECT_EQ(loop.IpRTLookUpFirst(IpAddress(Ip("50.1.1.1")), true), nullptr);

    // A chain of k routes without interfaces ending in one with an
    // interface: resolved while short, refused beyond the recursion bound.
    auto chain = [](int k) {
        auto* t = new RoutingTable("chain");
        for (int i = 0; i < k; ++i) {
            std::string dest = std::to_string(i + 1) + ".0.0.0";
            std::string hop = std::to_string(i + 2) + ".0.0.1";
            auto r = Route(dest.c_str(), 8, hop.c_str());
            t->AddRoute(&r);
        }
        std::string last = std::to_string(k + 1) + ".0.0.0";
        auto exit = Route(last.c_str(), 8, "200.0.0.1", "Gi0/0");
        t->AddRoute(&exit);
        return t;
    };
    int resolvedUpTo = 0;
    for (int k = 1; k <= 16; ++k) {
        std::unique_ptr<RoutingTable> t(chain(k));
        if (t->IpRTLookUpFirst(IpAddress(Ip("1.0.0.9")), true) != nullptr) resolvedUpTo = k;
    }
    // The bound: twelve next-hop lookups at most.
    EXPECT_EQ(resolvedUpTo, 12);
    std::unique_ptr<RoutingTable> twelve(chain(12));
    EXPECT_EQ(Prefix(twelve->IpRTLookUpFirst(IpAddress(Ip("1.0.0.9")), true)), "13.0.0.0/8");
}

TEST(TableChanges, IndexesDeletesAndReplace) {
    RoutingTable t("r1");
    auto r = Route("10.0.0.0", 8, "1.1.1.1", "Gi0");
    r.Index = 77;  // ignored by AddRoute
    t.AddRoute(&r);
    auto s = Route("10.0.0.0", 8, "2.2.2.2", "Gi1");
    for (unsigned int index : {40u, 0u, 40u}) {  // 0 takes the next free, a taken Index is refused
        s.Index = index;
        t.AppendRoute(&s);
        s.OutIf = "other";
    }
    EXPECT_EQ(t.GetRTEntryByIndex(40)->OutIf, "Gi1");
    IpLocation key(Ip("10.0.0.0"), 0xFF000000u);
    EXPECT_EQ(Indexes(t.GetPossibleEntry(key)), (std::vector<unsigned int>{1, 40, 41}));
    auto novel = Route("11.0.0.0", 8);
    EXPECT_FALSE(t.AddRouteIfDestNotExist(&r));
    EXPECT_FALSE(t.AddRouteIfDestNotExist(nullptr));
    EXPECT_TRUE(t.AddRouteIfDestNotExist(&novel));
    EXPECT_EQ(t.GetMaxIndex(), 42u);

    // Delete by next hop and interface; a miss inside the vector is still true.
    auto probe = Route("10.0.0.0", 8, "2.2.2.2", "Gi1"), nothing = Route("10.0.0.0", 8, "9.9.9.9", "Gi1"),
         absent = Route("12.0.0.0", 8);
    EXPECT_TRUE(t.DeleteRoute(&probe));
    EXPECT_EQ(t.GetRTEntryByIndex(40), nullptr);
    EXPECT_TRUE(t.DeleteRoute(&nothing));
    EXPECT_FALSE(t.DeleteRoute(&absent));
    EXPECT_EQ(t.GetSize(), 3u);
    EXPECT_TRUE(t.DeleteRoute(t.GetRTEntryByIndex(41)));  // through its own pointer
    EXPECT_TRUE(t.DeleteRoute(t.GetRTEntryByIndex(1)));
    EXPECT_EQ(t.getEntryNetworkMap().count(key), 0u);

    // Deleting the default route leaves no dangling pointer.
    auto d = Route("0.0.0.0", 0, "1.1.1.1");
    d.CandidateDefault = true;
    t.AddRoute(&d);
    EXPECT_TRUE(t.DeleteRoute(&d));
    EXPECT_EQ(t.GetDefRoute(), nullptr);
    EXPECT_TRUE(t.LookUp(IpAddress(Ip("1.2.3.4")), true).empty());

    // BGP routes of one prefix are told apart by their path word.
    RoutingTable b("bgp");
    auto bgp = [](int id) {
        auto route = Route("30.0.0.0", 8, "5.5.5.5", "", 20, 0, RT_ALG_BGP);
        auto* cost = new RoutingCostBgp;
        cost->m_pathId = id;
        route.SetCostInfo(cost);
        return route;
    };
    auto first = bgp(1), second = bgp(2);
    Add(b, {first, second});
    EXPECT_TRUE(b.DeleteRoute(&second));
    EXPECT_NE(b.GetRTEntryByIndex(1), nullptr);
    EXPECT_EQ(b.GetRTEntryByIndex(2), nullptr);

    // SetRTEntryList replaces everything with fresh indexes.
    auto x = Route("1.0.0.0", 8), y = Route("2.0.0.0", 8);
    x.Index = 50;
    std::vector<RoutingTableEntry*> list{&x, &y};
    b.SetRTEntryList(list);
    b.SetRTEntryList(list);
    EXPECT_EQ(b.GetSize(), 2u);
    EXPECT_EQ(b.GetMaxIndex(), 2u);
}

TEST(TableChanges, ModifyKeepsKeysAndCleanUpKeepsTheName) {
    RoutingTable t("r1");
    t.SetDescription("desc");
    Add(t, {Route("10.0.0.0", 8, "1.1.1.1")});
    RoutingTableEntry moved = Route("20.0.0.0", 8, "7.7.7.7");
    moved.Index = 9;
    EXPECT_FALSE(t.ModifyRTEntry(&moved));
    EXPECT_FALSE(t.ModifyRTEntry(nullptr));
    moved.Index = 1;
    EXPECT_TRUE(t.ModifyRTEntry(&moved));
    EXPECT_TRUE(t.LookUp(IpAddress(Ip("20.0.0.1")), true).empty());
    t.GenerateNetworkMap();
    EXPECT_EQ(t.LookUp(IpAddress(Ip("20.0.0.1")), true).size(), 1u);

    t.CleanUp();
    EXPECT_EQ(t.GetSize(), 0u);
    EXPECT_TRUE(t.getEntryNetworkMap().empty());
    EXPECT_EQ(t.GetDescription(), "");
    EXPECT_EQ(t.GetDeviceName(), "r1");
}

TEST(TableCopies, EntryIndexAndDeepTableCopies) {
    RoutingTableEntry e = Route("10.0.0.0", 8, "1.1.1.1");
    e.Index = 5;
    RoutingTableEntry copy(e);
    EXPECT_EQ(copy.Index, 0u);
    copy.Index = 9;
    copy = e;
    EXPECT_EQ(copy.Index, 9u);  // assignment keeps the target's Index
    std::vector<RoutingTableEntry*> from{&e}, to;
    RoutingTable::CopyRTEntryList(from, to);  // list copies keep it
    EXPECT_EQ(to.at(0)->Index, 5u);
    RoutingTable::DeleteRTEntryList(to);

    RoutingTable t("r1");
    t.SetDescription("core");
    auto d = Route("0.0.0.0", 0, "1.1.1.1");
    d.CandidateDefault = true;
    d.Index = 4;
    t.AppendRoute(&d);
    RoutingTable dup(t), assigned("other");
    assigned = t;
    t.CleanUp();  // the copies own their entries
    EXPECT_EQ(dup.GetDescription(), "core");
    EXPECT_EQ(dup.GetDefRoute(), dup.GetRTEntryByIndex(4));
    EXPECT_EQ(assigned.GetDefRoute()->NextHop.textForm(), "1.1.1.1");
    EXPECT_EQ(assigned.GetDeviceName(), "r1");
}

TEST(TableFilters, SetsOfIndexInAndOut) {
    RoutingTable t("r1");
    const std::pair<RoutingTableEntry, unsigned int> routes[] = {
        {Route("10.0.0.0", 8, "1.1.1.1", "Gi0", 1, 0, RT_ALG_OSPF), 100},
        {Route("11.0.0.0", 8, "1.1.1.1", "Gi1", 1, 0, RT_ALG_STATIC), 0xFFFFFFFFu},
        {Route("12.0.0.0", 8, "2.2.2.2", "Gi0", 1, 0, RT_ALG_OSPF), 300}};
    for (auto [route, age] : routes) {
        route.TimeStamp = age;
        t.AddRoute(&route);
    }
    using Set = std::set<unsigned int>;
    Set only{3, 99};
    std::string gi0 = "Gi0";
    EXPECT_EQ(t.FilterAlg(RT_ALG_OSPF, &only), (Set{3}));
    EXPECT_EQ(t.FilterNextRouter(Ip("1.1.1.1"), nullptr), (Set{1, 2}));
    EXPECT_EQ(t.FilterOutIfName(gi0, nullptr), (Set{1, 3}));
    EXPECT_EQ(t.FilterTimeStamp(100, CT_GREATER, nullptr), (Set{3}));
    EXPECT_EQ(t.FilterTimeStamp(301, CT_LESS, nullptr), (Set{1, 3}));
    // The unknown age never passes, whatever the comparison.
    for (int type : {-1, 0, 1})
        EXPECT_EQ(t.FilterTimeStamp(0xFFFFFFFFu, static_cast<CompareType>(type), nullptr).count(2), 0u);
    EXPECT_EQ(Indexes(t.GetRTEntryList(&only)), (std::vector<unsigned int>{3}));
}

TEST(EntryOrder, CompareSortsAndKeys) {
    auto a = Route("10.0.0.0", 8, "1.1.1.1", "Gi0", 90, 10), b = Route("10.0.0.0", 8, "1.1.1.1", "Gi0", 110, 1);
    EXPECT_EQ(a.compare(b), 1);  // lower Distance first
    // With costs on both sides: a same-protocol cost verdict comes first,
    // then Distance, then the protocol order.
    a.SetCostInfo(new RoutingCostOspf(1, 50, 0, RT_ALG_OSPF_IA, false));
    b.SetCostInfo(new RoutingCostOspf(1, 5, 7, RT_ALG_OSPF_IA, false));
    a.Distance = 200;
    EXPECT_EQ(a.compare(b), 1);
    b.SetCostInfo(new RoutingCostRip(1));
    b.Distance = 90;
    EXPECT_EQ(a.compare(b), -1);
    a.Distance = 90;
    EXPECT_EQ(a.compare(b), 1);  // OSPF (5) preferred to RIP (7)

    std::vector<CompareItem> key{CI_DEST_IP, CI_NEXT_HOP, CI_METRIC};
    auto x = Route("10.0.0.0", 8, "1.1.1.1", "Gi0"), y = Route("10.0.0.0", 16, "1.1.1.2", "Gi1");
    EXPECT_EQ(x.compare(y, key), -1);  // NextHop decides, mask is not in the key
    x.Metric = 999;
    EXPECT_EQ(x.compare(y, {CI_METRIC}), -1);  // Metric key compares OutIf text
    std::vector<RoutingTableEntry*> list{&y, &x};
    RoutingTable::SortRTEntryList(list);
    EXPECT_EQ(list[0], &x);
    RoutingTable::SortRTByAdMetric(list);
    EXPECT_EQ(list[0], &y);
    auto p = x;
    p.SpareFlag1 = 1;  // copied only, not compared
    EXPECT_TRUE(p == x);
}

TEST(SortedListSearch, BinarySearchOnDestIpGathersTheRun) {
    auto a = Route("10.0.0.0", 8, "1.1.1.1"), b = Route("10.1.0.0", 16, "2.2.2.2"),
         c = Route("10.1.0.0", 16, "3.3.3.3"), d = Route("10.1.2.0", 24, "4.4.4.4");
    std::vector<RoutingTableEntry*> list{&d, &c, &a, &b};
    RoutingTable::SortRTEntryList(list);
    IpLocation probe(Ip("10.1.0.0"), 0xFFFF0000u);
    auto found = RoutingTable::GetPossibleEntry(list, probe);
    ASSERT_EQ(found.size(), 2u);
    // Stable sort kept c before b; the run comes back last first.
    EXPECT_EQ(found[0], &b);
    EXPECT_EQ(found[1], &c);
    IpLocation other(Ip("10.0.0.5"), 0xFFFFFFFFu);
    EXPECT_EQ(RoutingTable::GetPossibleEntry(list, other), std::vector<RoutingTableEntry*>{&a});
    IpLocation outside(Ip("64.0.0.0"), 0xFF000000u);
    EXPECT_TRUE(RoutingTable::GetPossibleEntry(list, outside).empty());
    // Only DestIp is searched: 11.0.0.0 shortens to 10.0.0.0 and hits the /8
    // that does not carry it.
    IpLocation eleven(Ip("11.0.0.0"), 0xFF000000u);
    EXPECT_EQ(RoutingTable::GetPossibleEntry(list, eleven), std::vector<RoutingTableEntry*>{&a});
}

TEST(RouteText, CodesNamesAndCiscoLines) {
    EXPECT_EQ(RoutingTable::GetAlgorithmNameByType(RT_ALG_OSPF_E2, true), "O*E2");
    EXPECT_EQ(RoutingTable::GetAlgorithmNameByType(static_cast<TW_RoutingAlgorithm>(7)), "-   ");
    EXPECT_EQ(RoutingTable::GetFullAlgNameByType(RT_ALG_OSPF_N1), "OSPF NSSA external type (N1)");
    // Every code and every full name reads back as its type.
    for (int v = -1; v < 30; ++v) {
        auto alg = static_cast<TW_RoutingAlgorithm>(v);
        std::string full = RoutingTable::GetFullAlgNameByType(alg);
        if (!full.empty()) {
            EXPECT_EQ(RoutingTable::GetAlgByFullName(full.c_str()), alg);
        }
        bool star = true;
        std::string code = RoutingTable::GetAlgorithmNameByType(alg, false);
        if (code == "-   ") continue;
        EXPECT_EQ(RoutingTable::GetAlgorithmTypeByString(code.c_str(), star), alg) << code;
        EXPECT_FALSE(star);
    }
    EXPECT_EQ(RoutingTable::GetAlgByFullName(nullptr), RT_ALG_UNKNOWN);
    bool star = false;
    EXPECT_EQ(RoutingTable::GetAlgorithmTypeByString("O*E2", star), RT_ALG_OSPF_E2);
    EXPECT_TRUE(star);
    for (const char* bad : {"F XY", "X", static_cast<const char*>(nullptr)})
        EXPECT_EQ(RoutingTable::GetAlgorithmTypeByString(bad, star), RT_ALG_UNKNOWN);
    EXPECT_EQ(RoutingTableEntry::getProtocolByRouteType(static_cast<TW_RoutingAlgorithm>(17)), RPT_BGP);
    EXPECT_EQ(RoutingTableEntry::getProtocolByRouteType(RT_ALG_ISIS), RPT_UNKNOWN);

    auto ospf = Route("10.1.0.0", 16, "10.0.0.1", "Gi0/1", 110, 20, RT_ALG_OSPF_IA);
    ospf.TimeStamp = 3723;
    EXPECT_EQ(ospf.ciscoText(), "O IA 10.1.0.0/16 [110/20]  via 10.0.0.1, 01:02:03, Gi0/1");
    ospf.Distance = 65535;
    ospf.Metric = 0xFFFFFFFFu;
    ospf.TimeStamp = 0xFFFFFFFFu;
    ospf.CandidateDefault = true;
    EXPECT_EQ(ospf.ciscoText(), "O*IA 10.1.0.0/16 [/]  via 10.0.0.1, Gi0/1");
    auto conn = Route("10.0.0.0", 24, "0.0.0.0", "Vlan1", 0, 0, RT_ALG_CONNECTED);
    EXPECT_EQ(conn.ciscoText(), "C    10.0.0.0/24 is directly connected, Vlan1");
    auto summary = Route("10.0.0.0", 8, "0.0.0.0", "NULL0", 5, 0, RT_ALG_EIGRP);
    summary.TimeStamp = 90000;
    EXPECT_EQ(summary.ciscoText(), "D    10.0.0.0/8 is a summary,via null0, 1d01h, ");
    conn.Action = RA_WITHDRAW;
    EXPECT_EQ(conn.toString(), "C    10.0.0.0/24 [/]  WITHDRAW ");
}

TEST(RouteText, AgeFormsLosePrecisionOnPurpose) {
    const std::pair<unsigned int, const char*> shown[] = {
        {0, ""}, {0xFFFFFFFFu, ""}, {62, "00:01:02"}, {90061, "1d01h"}, {9 * 86400 + 5 * 3600, "1w2d05h"}};
    for (auto [seconds, text] : shown) EXPECT_EQ(RoutingTable::FormatSecondToTime(seconds), text);
    const std::pair<const char*, unsigned int> read[] = {
        {"1w2d", 9u * 86400}, {"1w2d05h", 9u * 86400} /* hours dropped */, {"1d01h", 25u * 3600},
        {"00:01:02", 62u},    {"never", 0u}};
    for (auto [text, seconds] : read) EXPECT_EQ(RoutingTable::FormatTimeToSecond(text), seconds) << text;
    for (unsigned int s : {1u, 59u, 3599u, 86399u})
        EXPECT_EQ(RoutingTable::FormatTimeToSecond(RoutingTable::FormatSecondToTime(s).c_str()), s);
}

TEST(LiveRoutes, SnmpColumnsToRouteTypes) {
    LiveRtEntry live;
    live.RouteType = 4;
    const std::pair<int, TW_RoutingAlgorithm> cases[] = {
        {2, RT_ALG_STATIC}, {3, RT_ALG_STATIC}, {8, RT_ALG_RIP},   {9, RT_ALG_ISIS},    {11, RT_ALG_EIGRP},
        {16, RT_ALG_EIGRP}, {13, RT_ALG_OSPF},  {14, RT_ALG_BGP},  {1, RT_ALG_UNKNOWN}, {99, RT_ALG_UNKNOWN}};
    for (auto [proto, alg] : cases) {
        live.RouteProto = proto;
        EXPECT_EQ(live.getAlg(), alg) << proto;
    }
    live.DestText = "10.1.0.0";
    live.MaskText = "255.255.0.0";
    live.NextHopText = live.GatewayText = "10.0.0.1";
    live.IfName = "Gi0/1";
    live.Index = 12;
    live.RouteProto = 13;
    EXPECT_EQ(live.ciscoText(), "O    10.1.0.0/255.255.0.0 [0/0]  via 10.0.0.1, Gi0/1");
    RoutingTableEntry e(live);
    EXPECT_EQ(e.Index, 12u);
    EXPECT_EQ(Prefix(&e), "10.1.0.0/16");
    EXPECT_EQ(e.Alg, RT_ALG_OSPF);
}
