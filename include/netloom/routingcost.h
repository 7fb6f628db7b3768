// Protocol-specific route costs. A route may carry one cost object that
// knows the rules of the protocol which learned it: which of two routes of
// that protocol is better, whether a cost means unreachable, and whether two
// costs belong to one routing process. The fields are public because the
// caller that learned the route fills them; this library only copies them.
#pragma once

#include <set>
#include <string>
#include <vector>

#include "netloom/export.h"
#include "netloom/ipaddress.h"

// How a route was learned. The numbers are stored in route files; a higher
// OSPF value is the preferred OSPF route type.
enum TW_RoutingAlgorithm : int {
    RT_ALG_UNKNOWN = -1,
    RT_ALG_RIP = 0,
    RT_ALG_IGRP = 1,
    RT_ALG_STATIC = 2,
    RT_ALG_CONNECTED = 3,
    RT_ALG_EIGRP = 4,
    RT_ALG_EIGRP_EX = 5,
    RT_ALG_OSPF_N2 = 9,
    RT_ALG_OSPF_E2 = 10,
    RT_ALG_OSPF_N1 = 11,
    RT_ALG_OSPF_E1 = 12,
    RT_ALG_OSPF_IA = 13,
    RT_ALG_OSPF = 14,
    RT_ALG_BGP = 15,
    RT_ALG_BGP_OLD1 = 16,
    RT_ALG_BGP_OLD2 = 17,
    RT_ALG_ISIS = 18,
    RT_ALG_ISIS_L1 = 21,
    RT_ALG_ISIS_L2 = 22,
    RT_ALG_ODR = 26,
    RT_ALG_FIXUP = 27,
};

// Lower number = preferred protocol (compareProtocol relies on the order).
enum RoutingProtocolType : int {
    RPT_UNKNOWN = 0,
    RPT_DIRECT = 1,
    RPT_STATIC = 2,
    RPT_EIGRP = 3,
    RPT_IGRP = 4,
    RPT_OSPF = 5,
    RPT_RIP = 7,
    RPT_BGP = 8,
    RPT_FIXUP = 9,
};

// Compare results: 1 this object is better, -1 the other, 0 no preference.
class NETLOOM_API RoutingCost {
public:
    virtual ~RoutingCost();
    virtual RoutingCost* clone() const = 0;
    virtual int compare(RoutingCost* other);
    virtual int compareProtocol(RoutingCost* other);
    virtual int compareProcessID(RoutingCost* other);
    virtual bool isConfiguredRoute() const = 0;
    virtual int typeId() const = 0;
    virtual RoutingProtocolType classId() = 0;
    virtual bool typeMatch(const RoutingCost* other) const;
    virtual bool typeMatch(RoutingProtocolType type, int a, int b) const;
    virtual bool isInfinity() const = 0;
    virtual unsigned int getAs();

    RoutingCost& operator=(const RoutingCost& other) = default;

    int m_metric = -1;
    RoutingProtocolType m_protocol = RPT_UNKNOWN;
    TW_RoutingAlgorithm m_routeType = RT_ALG_UNKNOWN;
    int m_work[4] = {0, -1, 0, 0};
    std::string m_text;

protected:
    RoutingCost() = default;
    explicit RoutingCost(int metric) : m_metric(metric) {}
    RoutingCost(const RoutingCost& other) = default;
    // classId() is non-const in the interface; the const typeMatch needs it.
    RoutingProtocolType protocolOf() const { return m_protocol; }
};

class NETLOOM_API RoutingCostDirect : public RoutingCost {
public:
    RoutingCostDirect();
    RoutingCostDirect(const RoutingCostDirect& other) = default;
    RoutingCostDirect& operator=(const RoutingCostDirect& other) = default;

    RoutingCost* clone() const override;
    bool isConfiguredRoute() const override { return true; }
    int typeId() const override { return RPT_DIRECT; }
    RoutingProtocolType classId() override { return RPT_DIRECT; }
    bool isInfinity() const override { return false; }
};

class NETLOOM_API RoutingCostStatic : public RoutingCost {
public:
    explicit RoutingCostStatic(int staticType = 0);
    RoutingCostStatic(const RoutingCostStatic& other) = default;
    RoutingCostStatic& operator=(const RoutingCostStatic& other) = default;

    RoutingCost* clone() const override;
    bool isConfiguredRoute() const override { return true; }
    int typeId() const override { return RPT_STATIC; }
    RoutingProtocolType classId() override { return RPT_STATIC; }
    bool isInfinity() const override { return false; }
    bool isStaticRouteToNullIf() const { return m_staticType == 3; }

    // 3 marks a route to the null interface; 1 a static route that never
    // becomes the table's default route.
    int m_staticType;
};

class NETLOOM_API RoutingCostRip : public RoutingCost {
public:
    static const unsigned int gRipInfinityCost;

    explicit RoutingCostRip(int metric = -1);
    RoutingCostRip(const RoutingCostRip& other) = default;
    RoutingCostRip& operator=(const RoutingCostRip& other) = default;

    RoutingCost* clone() const override;
    bool isConfiguredRoute() const override { return false; }
    int typeId() const override { return RPT_RIP; }
    RoutingProtocolType classId() override { return RPT_RIP; }
    bool isInfinity() const override { return m_metric >= int(gRipInfinityCost); }
    int getVersion() const { return m_version; }
    void setVersion(int version) { m_version = version; }

    int m_version = 0;
};

class NETLOOM_API RoutingCostIgrp : public RoutingCost {
public:
    static const unsigned int gIgrpInfinityCost;

    explicit RoutingCostIgrp(unsigned int as = 0);
    RoutingCostIgrp(const RoutingCostIgrp& other) = default;
    RoutingCostIgrp& operator=(const RoutingCostIgrp& other) = default;

    RoutingCost* clone() const override;
    bool isConfiguredRoute() const override { return false; }
    int typeId() const override { return int(m_as) + RPT_IGRP; }
    RoutingProtocolType classId() override { return RPT_IGRP; }
    bool typeMatch(const RoutingCost* other) const override;
    bool typeMatch(RoutingProtocolType type, int a, int b) const override;
    bool isInfinity() const override { return cost() >= gIgrpInfinityCost; }
    unsigned int getAs() override { return m_as; }
    // Composite metric: 10^7 / bandwidth * k1 + k3 * delay, in 32 bits.
    virtual unsigned int cost() const;

    unsigned int m_as;
    int m_bandwidth = 0;
    int m_delay = 0;
    int m_k1 = 1;
    int m_k3 = 1;
};

class NETLOOM_API RoutingCostEigrp : public RoutingCostIgrp {
public:
    static const unsigned int gEigrpInfinityCost;

    explicit RoutingCostEigrp(unsigned int as = 0);
    RoutingCostEigrp(const RoutingCostEigrp& other) = default;
    RoutingCostEigrp& operator=(const RoutingCostEigrp& other) = default;

    RoutingCost* clone() const override;
    int typeId() const override { return int(m_as) + RPT_EIGRP; }
    RoutingProtocolType classId() override { return RPT_EIGRP; }
    int compareProcessID(RoutingCost* other) override;
    bool isInfinity() const override { return cost() >= gEigrpInfinityCost; }
    // The bandwidth term scaled by 256; the delay term deliberately is not.
    unsigned int cost() const override;

    int m_eigrpExtra = 0;
};

class NETLOOM_API RoutingCostOspf : public RoutingCost {
public:
    static const unsigned int gOspfInfinityCost;

    explicit RoutingCostOspf(int area);
    RoutingCostOspf(int processId, unsigned int metric, int area, TW_RoutingAlgorithm routeType,
                    bool seenAreaZero);
    RoutingCostOspf(const RoutingCostOspf& other) = default;
    RoutingCostOspf& operator=(const RoutingCostOspf& other) = default;

    RoutingCost* clone() const override;
    int compare(RoutingCost* other) override;
    bool isConfiguredRoute() const override { return false; }
    int typeId() const override { return m_processId + RPT_OSPF; }
    RoutingProtocolType classId() override { return RPT_OSPF; }
    bool typeMatch(const RoutingCost* other) const override;
    bool typeMatch(RoutingProtocolType type, int a, int b) const override;
    bool isInfinity() const override { return m_ospfMetric >= gOspfInfinityCost; }
    unsigned int getAs() override { return static_cast<unsigned int>(m_area); }

    int compareMetric(RoutingCostOspf* other);
    int getSourceArea() const { return m_sourceArea; }
    void setSourceArea(int area) { m_sourceArea = area; }
    bool seenAreaZero() const { return m_seenAreaZero; }

    int m_processId = -1;
    unsigned int m_ospfMetric = 0;
    unsigned int m_ospfMetric2 = 0;  // read for the type 2 externals
    unsigned int m_ospfMetricCopy = 0;
    int m_word1 = 0;
    int m_word2 = 0;
    int m_area = 0;
    int m_sourceArea = 0;
    int m_word3 = 0;
    int m_word4 = 0;
    IpAddress m_address;
    uint8_t m_flag = 0;
    std::string m_ospfText;
    int m_word5 = 0;
    int m_word6 = 0;
    int m_word7 = 0;
    bool m_seenAreaZero = false;
};

class NETLOOM_API RoutingCostBgp : public RoutingCost {
public:
    RoutingCostBgp();
    RoutingCostBgp(const RoutingCostBgp& other) = default;
    RoutingCostBgp& operator=(const RoutingCostBgp& other) = default;

    RoutingCost* clone() const override;
    bool isConfiguredRoute() const override { return true; }
    int typeId() const override { return int(m_as) + RPT_BGP; }
    RoutingProtocolType classId() override { return RPT_BGP; }
    bool typeMatch(const RoutingCost* other) const override;
    bool typeMatch(RoutingProtocolType type, int a, int b) const override;
    bool isInfinity() const override { return false; }
    unsigned int getAs() override { return m_as; }

    // Lower multi-exit discriminator is better.
    int compareMed(RoutingCostBgp* other);
    // Text forms: each number followed by one blank.
    static std::string getAsPath(std::vector<unsigned int>& path);          // last to first
    static std::string getAsSet(std::set<unsigned int>& asSet);             // greatest first
    static std::string getCommunityList(std::set<unsigned long>& communities);  // ascending

    unsigned int m_as = 0;
    int m_word1 = 0;
    int m_word2 = 0;
    int m_word3 = 0;
    int m_word4 = 0;
    int m_word5 = -1;
    std::vector<unsigned int> m_asPath;
    std::set<unsigned int> m_asSet;
    std::vector<unsigned int> m_asPath2;
    std::set<unsigned long> m_communities;
    IpAddress m_address1;
    int m_attr1 = 0;
    int m_attr2 = 0;
    int m_attr3 = 0;
    unsigned int m_med = 200;
    int m_attr5 = 0;
    IpAddress m_address2;
    std::set<unsigned int> m_set1;
    IpAddress m_address3;
    std::set<unsigned int> m_set2;
    IpAddress m_address4;
    int m_tail1 = 0;
    int m_tail2 = 0;
    int m_tail3 = 20;
    // Tells apart routes of one prefix when one of them is deleted.
    int m_pathId = 0;
    int m_tail5 = 0;
    int m_tail6 = 0;
    int m_tail7 = 0;
    int m_tail8 = 0;
};
