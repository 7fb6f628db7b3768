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

TEST(OspfCompare, HigherRouteTypeWinsExceptAgainstItsNssaTwin) {
    auto intra = Ospf(RT_ALG_OSPF, 1000), ia = Ospf(RT_ALG_OSPF_IA, 1);
    EXPECT_EQ(intra.compare(&ia), 1);
    EXPECT_EQ(ia.compare(&intra), -1);
    // E1 against E2: type decides, metrics are not looked at.
    auto e1 = Ospf(RT_ALG_OSPF_E1, 500), e2 = Ospf(RT_ALG_OSPF_E2, 1);
    EXPECT_EQ(e1.compare(&e2), 1);
    EXPECT_EQ(e2.compare(&e1), -1);

    // E1 against N1: the source area of this one against the area of the other first.
    auto e1b = Ospf(RT_ALG_OSPF_E1, 50, 3), n1 = Ospf(RT_ALG_OSPF_N1, 10, 4);
    EXPECT_EQ(e1b.compare(&n1), -1);  // areas differ, higher metric loses
    e1b.setSourceArea(4);
    EXPECT_EQ(e1b.compare(&n1), 1);  // source area equals the other's area
    auto e1c = Ospf(RT_ALG_OSPF_E1, 10, 3);
    EXPECT_EQ(e1c.compare(&n1), 1);  // equal metrics: the external stays better
    // Seen from the NSSA side.
    EXPECT_EQ(n1.compare(&e1c), -1);
    auto n1cheap = Ospf(RT_ALG_OSPF_N1, 5, 4);
    EXPECT_EQ(n1cheap.compare(&e1c), 1);

    // E2 against N2 with equal metrics: the second metric decides against the external.
    auto e2x = Ospf(RT_ALG_OSPF_E2, 20, 3, 9), n2 = Ospf(RT_ALG_OSPF_N2, 20, 4, 5);
    EXPECT_EQ(e2x.compare(&n2), -1);
    e2x.m_ospfMetric2 = 5;
    EXPECT_EQ(e2x.compare(&n2), 1);
    EXPECT_EQ(n2.compare(&e2x), -1);
    n2.m_ospfMetric2 = 4;
    EXPECT_EQ(n2.compare(&e2x), 1);
}

TEST(OspfCompare, SameTypeGoesByBackboneThenMetrics) {
    auto ia0 = Ospf(RT_ALG_OSPF_IA, 900, 0), ia5 = Ospf(RT_ALG_OSPF_IA, 1, 5);
    EXPECT_EQ(ia0.compare(&ia5), 1);
    EXPECT_EQ(ia5.compare(&ia0), -1);
    auto ia6 = Ospf(RT_ALG_OSPF_IA, 2, 6);
    EXPECT_EQ(ia5.compare(&ia6), 1);  // areas differ, neither backbone: metric
    auto o1 = Ospf(RT_ALG_OSPF, 10), o2 = Ospf(RT_ALG_OSPF, 10, 1, 99);
    EXPECT_EQ(o1.compare(&o2), 0);  // equal metrics outside type 2: no preference
    auto a = Ospf(RT_ALG_OSPF_E2, 20, 1, 7), b = Ospf(RT_ALG_OSPF_E2, 20, 1, 8);
    EXPECT_EQ(a.compare(&b), 1);
    EXPECT_EQ(b.compare(&a), -1);
    b.m_ospfMetric2 = 7;
    EXPECT_EQ(a.compare(&b), 0);
    // Metrics compare as unsigned.
    auto big = Ospf(RT_ALG_OSPF, 0x80000000u), small = Ospf(RT_ALG_OSPF, 1);
    EXPECT_EQ(small.compare(&big), 1);

    EXPECT_EQ(a.compareMetric(&b), 0);
    auto c = Ospf(RT_ALG_OSPF, 20, 1, 1), d = Ospf(RT_ALG_OSPF, 20, 1, 2);
    EXPECT_EQ(c.compareMetric(&d), 0);  // second metric only for type 2
    auto e = Ospf(RT_ALG_OSPF_N2, 20, 1, 1), f = Ospf(RT_ALG_OSPF_N2, 20, 1, 2);
    EXPECT_EQ(e.compareMetric(&f), 1);
    EXPECT_EQ(f.compareMetric(&e), -1);
}

TEST(OspfCompare, ConstructorsAndMatching) {
    RoutingCostOspf full(7, 30, 2, RT_ALG_OSPF_IA, true);
    EXPECT_EQ(full.m_ospfMetric, 30u);
    EXPECT_EQ(full.m_ospfMetric2, 30u);
    EXPECT_EQ(full.m_ospfMetricCopy, 30u);
    EXPECT_EQ(full.getSourceArea(), 2);
    EXPECT_TRUE(full.seenAreaZero());
    EXPECT_EQ(full.typeId(), 12);
    EXPECT_EQ(full.getAs(), 2u);
    RoutingCostOspf areaOnly(4);
    EXPECT_EQ(areaOnly.m_processId, -1);
    EXPECT_EQ(areaOnly.m_routeType, RT_ALG_UNKNOWN);
    EXPECT_EQ(areaOnly.getSourceArea(), 4);
    EXPECT_EQ(areaOnly.m_word1, 3);
    EXPECT_TRUE(full.typeMatch(RPT_OSPF, 7, 2));
    EXPECT_FALSE(full.typeMatch(RPT_OSPF, 7, 3));
    EXPECT_FALSE(full.typeMatch(RPT_OSPF, -1, 2));
    RoutingCostOspf other(7, 1, 2, RT_ALG_OSPF, false);
    EXPECT_TRUE(full.typeMatch(&other));
    other.m_area = 9;
    EXPECT_FALSE(full.typeMatch(&other));
    EXPECT_FALSE(full.isInfinity());
    EXPECT_TRUE(Ospf(RT_ALG_OSPF, 0xFFFFFF).isInfinity());
    EXPECT_FALSE(Ospf(RT_ALG_OSPF, 0xFFFFFE).isInfinity());
}

TEST(IgrpCost, CompositeMetricArithmetic) {
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

    igrp.m_k1 = 1;
    igrp.m_k3 = 1;
    igrp.m_bandwidth = 1;
    igrp.m_delay = 0xFFFFFF - 10000000;
    EXPECT_TRUE(igrp.isInfinity());
    igrp.m_delay -= 1;
    EXPECT_FALSE(igrp.isInfinity());
    eigrp.m_bandwidth = 1;
    eigrp.m_delay = 0;
    EXPECT_FALSE(eigrp.isInfinity());  // 10^7 << 8 is still below 2^32 - 1
    eigrp.m_delay = static_cast<int>(0xFFFFFFFFu - ((10000000u << 8)));
    EXPECT_TRUE(eigrp.isInfinity());
    // An unset bandwidth is unreachable, never a division by zero.
    RoutingCostIgrp unset(1);
    EXPECT_TRUE(unset.isInfinity());
}

TEST(IgrpCost, IdentityAndProcessMatching) {
    RoutingCostIgrp igrp(100);
    RoutingCostEigrp eigrp(100), eigrp200(200);
    EXPECT_EQ(igrp.classId(), RPT_IGRP);
    EXPECT_EQ(eigrp.classId(), RPT_EIGRP);
    EXPECT_EQ(igrp.typeId(), 104);
    EXPECT_EQ(eigrp.typeId(), 103);
    EXPECT_EQ(eigrp.m_routeType, RT_ALG_IGRP);
    EXPECT_EQ(eigrp.getAs(), 100u);
    EXPECT_FALSE(igrp.typeMatch(&eigrp));  // protocol differs
    EXPECT_FALSE(eigrp.typeMatch(&eigrp200));
    EXPECT_TRUE(eigrp.typeMatch(RPT_EIGRP, -1, 0));
    EXPECT_TRUE(eigrp.typeMatch(RPT_EIGRP, 100, 55));
    EXPECT_FALSE(eigrp.typeMatch(RPT_EIGRP, 200, 0));
    EXPECT_EQ(eigrp.compareProcessID(&eigrp200), 1);
    EXPECT_EQ(eigrp200.compareProcessID(&eigrp), -1);
    EXPECT_EQ(igrp.compareProcessID(&eigrp), 0);
    EXPECT_EQ(igrp.compare(&eigrp), 0);
    // Lower protocol number is preferred.
    EXPECT_EQ(eigrp.compareProtocol(&igrp), 1);
    EXPECT_EQ(igrp.compareProtocol(&eigrp), -1);
}

TEST(SimpleCosts, TableOfIdentities) {
    RoutingCostDirect direct;
    RoutingCostStatic fixed;
    RoutingCostRip rip(15);
    RoutingCostBgp bgp;
    EXPECT_EQ(direct.classId(), RPT_DIRECT);
    EXPECT_EQ(fixed.classId(), RPT_STATIC);
    EXPECT_EQ(rip.classId(), RPT_RIP);
    EXPECT_EQ(bgp.classId(), RPT_BGP);
    EXPECT_TRUE(direct.isConfiguredRoute());
    EXPECT_TRUE(fixed.isConfiguredRoute());
    EXPECT_FALSE(rip.isConfiguredRoute());
    EXPECT_TRUE(bgp.isConfiguredRoute());
    EXPECT_EQ(fixed.m_metric, -1);
    EXPECT_FALSE(fixed.isStaticRouteToNullIf());
    EXPECT_TRUE(RoutingCostStatic(3).isStaticRouteToNullIf());
    EXPECT_FALSE(rip.isInfinity());
    EXPECT_TRUE(RoutingCostRip(16).isInfinity());
    EXPECT_FALSE(RoutingCostRip(-1).isInfinity());
    EXPECT_TRUE(direct.typeMatch(&direct));
    EXPECT_FALSE(direct.typeMatch(&fixed));
    EXPECT_TRUE(rip.typeMatch(RPT_RIP, 3, 4));
    EXPECT_EQ(RoutingCostStatic().compareProtocol(&direct), -1);

    bgp.m_as = 65001;
    EXPECT_EQ(bgp.typeId(), 65009);
    EXPECT_TRUE(bgp.typeMatch(RPT_BGP, -1, 0));
    EXPECT_TRUE(bgp.typeMatch(RPT_BGP, 65001, 0));
    EXPECT_FALSE(bgp.typeMatch(RPT_BGP, 65002, 0));
    RoutingCostBgp other;
    other.m_med = 10;
    EXPECT_EQ(bgp.compare(&other), 0);  // no best-path rules here
    EXPECT_EQ(bgp.compareMed(&other), -1);
    EXPECT_EQ(other.compareMed(&bgp), 1);
    EXPECT_EQ(bgp.m_med, 200u);
    EXPECT_EQ(bgp.m_routeType, RT_ALG_UNKNOWN);
}

TEST(BgpText, AttributeTextsKeepTheirTrailingBlank) {
    std::vector<unsigned int> path{100, 200, 300};
    EXPECT_EQ(RoutingCostBgp::getAsPath(path), "300 200 100 ");
    std::set<unsigned int> asSet{5, 70, 9};
    EXPECT_EQ(RoutingCostBgp::getAsSet(asSet), "70 9 5 ");
    std::set<unsigned long> communities{4294967296ul, 1, 65536};
    EXPECT_EQ(RoutingCostBgp::getCommunityList(communities), "1 65536 4294967296 ");
    std::vector<unsigned int> none;
    EXPECT_EQ(RoutingCostBgp::getAsPath(none), "");
}

TEST(CostCopies, CloneKeepsTypeAndDeepCopiesContainers) {
    RoutingCostBgp bgp;
    bgp.m_as = 7;
    bgp.m_asPath = {1, 2};
    bgp.m_text = "kept";
    std::unique_ptr<RoutingCost> copy(bgp.clone());
    auto* asBgp = dynamic_cast<RoutingCostBgp*>(copy.get());
    ASSERT_NE(asBgp, nullptr);
    bgp.m_asPath.push_back(3);
    EXPECT_EQ(asBgp->m_asPath.size(), 2u);
    EXPECT_EQ(asBgp->m_text, "kept");
    EXPECT_EQ(asBgp->getAs(), 7u);
    RoutingCostEigrp eigrp(9);
    std::unique_ptr<RoutingCost> e(eigrp.clone());
    EXPECT_NE(dynamic_cast<RoutingCostEigrp*>(e.get()), nullptr);
    EXPECT_EQ(e->classId(), RPT_EIGRP);

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
