// Route costs: the OSPF preference matrix, IGRP/EIGRP composite metrics,
// infinity thresholds, process matching and deep copies.
#include <gtest/gtest.h>

#include <memory>

#include "netloom/routingcost.h"
#include "netloom/routingtable.h"

namespace {

RoutingCostOspf Ospf(TW_RoutingAlgorithm type, unsigned int metric, int area = 1, unsigned int metric2 = 0) {
    RoutingCostOspf c(1, metric, area, type, false);
    c.m_ospfMetric2 = metric2;
    return c;
}

}  // namespace

TEST(OspfCompare, PreferenceMatrix) {
    struct {
        RoutingCostOspf a, b;
        int compare;  // a.compare(&b)
        const char* why;
    } cases[] = {
        {Ospf(RT_ALG_OSPF, 1000), Ospf(RT_ALG_OSPF_IA, 1), 1, "intra-area beats inter-area, whatever the metric"},
        {Ospf(RT_ALG_OSPF_IA, 1), Ospf(RT_ALG_OSPF, 1000), -1, "seen from the other side"},
        {Ospf(RT_ALG_OSPF_E1, 500), Ospf(RT_ALG_OSPF_E2, 1), 1, "E1 against E2: type decides"},
        {Ospf(RT_ALG_OSPF_E2, 1), Ospf(RT_ALG_OSPF_E1, 500), -1, "E2 against E1"},
        // E1 against N1: this one's source area against the other's area first.
        {Ospf(RT_ALG_OSPF_E1, 50, 3), Ospf(RT_ALG_OSPF_N1, 10, 4), -1, "areas differ, higher metric loses"},
        {Ospf(RT_ALG_OSPF_E1, 10, 3), Ospf(RT_ALG_OSPF_N1, 10, 4), 1, "equal metrics: the external stays better"},
        {Ospf(RT_ALG_OSPF_N1, 10, 4), Ospf(RT_ALG_OSPF_E1, 10, 3), -1, "seen from the NSSA side"},
        {Ospf(RT_ALG_OSPF_N1, 5, 4), Ospf(RT_ALG_OSPF_E1, 10, 3), 1, "cheaper NSSA route"},
        // E2 against N2 with equal metrics: the second metric decides against the external.
        {Ospf(RT_ALG_OSPF_E2, 20, 3, 9), Ospf(RT_ALG_OSPF_N2, 20, 4, 5), -1, "E2 second metric higher"},
        {Ospf(RT_ALG_OSPF_E2, 20, 3, 5), Ospf(RT_ALG_OSPF_N2, 20, 4, 5), 1, "E2 second metric equal"},
        {Ospf(RT_ALG_OSPF_N2, 20, 4, 5), Ospf(RT_ALG_OSPF_E2, 20, 3, 5), -1, "N2 second metric equal"},
        {Ospf(RT_ALG_OSPF_N2, 20, 4, 4), Ospf(RT_ALG_OSPF_E2, 20, 3, 5), 1, "N2 second metric lower"},
        // Same type: backbone first, then metrics.
        {Ospf(RT_ALG_OSPF_IA, 900, 0), Ospf(RT_ALG_OSPF_IA, 1, 5), 1, "backbone wins"},
        {Ospf(RT_ALG_OSPF_IA, 1, 5), Ospf(RT_ALG_OSPF_IA, 2, 6), 1, "neither backbone: metric"},
        {Ospf(RT_ALG_OSPF, 10), Ospf(RT_ALG_OSPF, 10, 1, 99), 0, "second metric only for type 2"},
        {Ospf(RT_ALG_OSPF_E2, 20, 1, 7), Ospf(RT_ALG_OSPF_E2, 20, 1, 8), 1, "type 2: second metric"},
        {Ospf(RT_ALG_OSPF_E2, 20, 1, 8), Ospf(RT_ALG_OSPF_E2, 20, 1, 7), -1, "type 2: second metric, reversed"},
        {Ospf(RT_ALG_OSPF_E2, 20, 1, 7), Ospf(RT_ALG_OSPF_E2, 20, 1, 7), 0, "all equal"},
        {Ospf(RT_ALG_OSPF, 1), Ospf(RT_ALG_OSPF, 0x80000000u), 1, "metrics compare as unsigned"},
    };
    for (auto& c : cases) EXPECT_EQ(c.a.compare(&c.b), c.compare) << c.why;

    auto e1 = Ospf(RT_ALG_OSPF_E1, 50, 3), n1 = Ospf(RT_ALG_OSPF_N1, 10, 4);
    e1.setSourceArea(4);
    EXPECT_EQ(e1.compare(&n1), 1);  // source area equals the other's area

    auto c = Ospf(RT_ALG_OSPF, 20, 1, 1), d = Ospf(RT_ALG_OSPF, 20, 1, 2);
    EXPECT_EQ(c.compareMetric(&d), 0);  // second metric only for type 2
    auto e = Ospf(RT_ALG_OSPF_N2, 20, 1, 1), f = Ospf(RT_ALG_OSPF_N2, 20, 1, 2);
    EXPECT_EQ(e.compareMetric(&f), 1);
    EXPECT_EQ(f.compareMetric(&e), -1);
}

TEST(CostMatching, ProcessAreaAndProtocolMatching) {
    RoutingCostOspf full(7, 30, 2, RT_ALG_OSPF_IA, true);
    EXPECT_TRUE(full.typeMatch(RPT_OSPF, 7, 2));
    EXPECT_FALSE(full.typeMatch(RPT_OSPF, 7, 3));
    RoutingCostOspf other(7, 1, 2, RT_ALG_OSPF, false);
    EXPECT_TRUE(full.typeMatch(&other));
    other.m_area = 9;
    EXPECT_FALSE(full.typeMatch(&other));

    RoutingCostIgrp igrp(100);
    RoutingCostEigrp eigrp(100), eigrp200(200);
    EXPECT_EQ(igrp.typeId(), 104);
    EXPECT_EQ(eigrp.typeId(), 103);
    EXPECT_FALSE(igrp.typeMatch(&eigrp));  // protocol differs
    EXPECT_FALSE(eigrp.typeMatch(&eigrp200));
    EXPECT_TRUE(eigrp.typeMatch(RPT_EIGRP, -1, 0));
    EXPECT_FALSE(eigrp.typeMatch(RPT_EIGRP, 200, 0));
    EXPECT_EQ(eigrp.compareProcessID(&eigrp200), 1);
    EXPECT_EQ(igrp.compareProcessID(&eigrp), 0);
    // Lower protocol number is preferred.
    EXPECT_EQ(eigrp.compareProtocol(&igrp), 1);
    RoutingCostDirect direct;
    RoutingCostStatic fixed;
    EXPECT_EQ(fixed.compareProtocol(&direct), -1);
    EXPECT_FALSE(direct.typeMatch(&fixed));

    RoutingCostBgp bgp, medTen;
    bgp.m_as = 65001;
    EXPECT_EQ(bgp.typeId(), 65009);
    EXPECT_TRUE(bgp.typeMatch(RPT_BGP, -1, 0));
    EXPECT_FALSE(bgp.typeMatch(RPT_BGP, 65002, 0));
    medTen.m_med = 10;
    EXPECT_EQ(bgp.compare(&medTen), 0);  // no best-path rules here
    EXPECT_EQ(bgp.compareMed(&medTen), -1);
}

TEST(CostInfinity, ThresholdsPerProtocol) {
    EXPECT_TRUE(Ospf(RT_ALG_OSPF, 0xFFFFFF).isInfinity());
    EXPECT_FALSE(Ospf(RT_ALG_OSPF, 0xFFFFFE).isInfinity());
    EXPECT_TRUE(RoutingCostRip(16).isInfinity());
    EXPECT_FALSE(RoutingCostRip(15).isInfinity());
    EXPECT_TRUE(RoutingCostStatic(3).isStaticRouteToNullIf());
    EXPECT_FALSE(RoutingCostStatic().isStaticRouteToNullIf());
    EXPECT_FALSE(RoutingCostRip(1).isConfiguredRoute());
    EXPECT_TRUE(RoutingCostBgp().isConfiguredRoute());
}

TEST(CostIgrp, CompositeMetricArithmetic) {
    RoutingCostIgrp igrp(100);
    igrp.m_bandwidth = 1544;
    igrp.m_delay = 2000;
    EXPECT_EQ(igrp.cost(), 10000000u / 1544 + 2000);  // k1 = k3 = 1
    igrp.m_k1 = 2;
    igrp.m_k3 = 3;
    EXPECT_EQ(igrp.cost(), (10000000u / 1544) * 2 + 3 * 2000);
    RoutingCostEigrp eigrp(100);
    eigrp.m_bandwidth = 100000;
    eigrp.m_delay = 10;
    // Bandwidth term scaled by 256, delay term not.
    EXPECT_EQ(eigrp.cost(), (100u << 8) + 10);
    // Integer division: a bandwidth above 10^7 gives a zero first term.
    eigrp.m_bandwidth = 20000000;
    EXPECT_EQ(eigrp.cost(), 10u);

    // An unset bandwidth is unreachable, never a division by zero.
    RoutingCostIgrp unset(1);
    EXPECT_TRUE(unset.isInfinity());
}

TEST(CostCopies, BgpTextsCloneAndEntryOwnership) {
    // Attribute texts keep their trailing blank.
    std::vector<unsigned int> path{100, 200, 300}, none;
    std::set<unsigned int> asSet{5, 70, 9};
    std::set<unsigned long> communities{4294967296ul, 1, 65536};
    EXPECT_EQ(RoutingCostBgp::getAsPath(path), "300 200 100 ");
    EXPECT_EQ(RoutingCostBgp::getAsSet(asSet), "70 9 5 ");
    EXPECT_EQ(RoutingCostBgp::getCommunityList(communities), "1 65536 4294967296 ");
    EXPECT_EQ(RoutingCostBgp::getAsPath(none), "");

    RoutingCostBgp bgp;
    bgp.m_asPath = {1, 2};
    std::unique_ptr<RoutingCost> copy(bgp.clone());
    bgp.m_asPath.push_back(3);
    ASSERT_NE(dynamic_cast<RoutingCostBgp*>(copy.get()), nullptr);
    EXPECT_EQ(dynamic_cast<RoutingCostBgp*>(copy.get())->m_asPath.size(), 2u);

    // An entry owns its cost: copies clone it, SetCostInfo(nullptr) keeps it.
    RoutingTableEntry entry;
    entry.SetCostInfo(new RoutingCostRip(3));
    RoutingTableEntry twin(entry);
    ASSERT_NE(twin.Cost, nullptr);
    EXPECT_NE(twin.Cost, entry.Cost);
    EXPECT_EQ(twin.Cost->m_metric, 3);
    twin.SetCostInfo(nullptr);
    EXPECT_NE(twin.Cost, nullptr);
    twin.SetCostInfo(new RoutingCostDirect);
    EXPECT_EQ(twin.Cost->classId(), RPT_DIRECT);
    twin = entry;
    EXPECT_EQ(twin.Cost->classId(), RPT_RIP);
}
