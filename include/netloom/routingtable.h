// One device's route table. The table owns its entries, keyed by Index, and
// indexes them a second time by (DestIp, DestMask) for longest-prefix
// lookups. Lookups walk prefix lengths, not entries: at most 33 map probes.
// A table is used by one thread at a time, or read-only by many once built.
#pragma once

#include <iosfwd>
#include <map>
#include <memory>
#include <set>
#include <string>
#include <vector>

#include "netloom/export.h"
#include "netloom/ipaddress.h"
#include "netloom/routingcost.h"

// Fields of a route, as named in compare keys.
enum CompareItem : int {
    CI_DEST_IP = 0,
    CI_DEST_MASK = 1,
    CI_NEXT_HOP = 2,
    CI_OUT_IF = 3,
    CI_ALG = 4,
    CI_DISTANCE = 5,
    CI_METRIC = 6,
};

// How FilterTimeStamp compares an entry's TimeStamp with the given time.
enum CompareType : int {
    CT_LESS = -1,
    CT_EQUAL = 0,
    CT_GREATER = 1,
};

// What a route message asks for (printed by RoutingTableEntry::toString).
enum RouteAction : int {
    RA_ADD = 0,
    RA_DELETE = 1,
    RA_WITHDRAW = 2,
    RA_REQUEST = 3,
    RA_POSSIBLEDOWN = 4,
};

class RoutingTableEntry;

namespace netloom::detail {
class NetworkKeyIndex;
}
// ---- Route listings, route files and subnet filters ----
class IInterfaceTypeHelper;
class SubnetListData;
struct SubnetEntry;

// What FilterCombination asks of a route; a null member asks nothing.
struct NETLOOM_API RTFilterStruct {
    SubnetListData* Subnets = nullptr;
    std::set<unsigned int>* NextRouters = nullptr;  // next hops; an empty set accepts none
};

// A row of a device's route table as read by SNMP, in text form.
class NETLOOM_API LiveRtEntry {
public:
    // Derived from the SNMP route type and protocol columns.
    TW_RoutingAlgorithm getAlg() const;
    std::string ciscoText() const;

    std::string DestText;
    std::string MaskText;
    std::string NextHopText;
    int Index = 0;
    std::string GatewayText;
    std::string Description;
    std::string IfName;
    int RouteType = 0;
    int RouteProto = 0;
};

// Unknown numbers hold their type's maximum: Distance 65535, Metric and
// TimeStamp 0xFFFFFFFF. Copies take every field but Index, which the table
// assigns, and clone the cost.
class NETLOOM_API RoutingTableEntry {
public:
    RoutingTableEntry() = default;
    RoutingTableEntry(const RoutingTableEntry& other);
    explicit RoutingTableEntry(const LiveRtEntry& live);
    ~RoutingTableEntry();
    RoutingTableEntry& operator=(const RoutingTableEntry& other);

    // 1 this route is better, -1 the other, 0 alike: cost, Distance, protocol, Metric.
    int compare(const RoutingTableEntry& other) const;
    int compare(const RoutingTableEntry& other, const std::vector<CompareItem>& items) const;
    int compareDefRoute(const RoutingTableEntry* other) const;
    bool lessADMetric(const RoutingTableEntry& other) const;
    bool operator<(const RoutingTableEntry& other) const;
    bool operator==(const RoutingTableEntry& other) const;

    // The route code as printed: OriginalAlg, or the four-character code.
    std::string getAlg() const;
    std::string ciscoText() const;
    std::string toString() const;
    bool isReferrenceIf() const { return !OutIf.empty(); }
    // Takes ownership; null keeps the present cost.
    void SetCostInfo(RoutingCost* cost);

    static RoutingProtocolType getProtocolByRouteType(const RoutingTableEntry& entry);
    static RoutingProtocolType getProtocolByRouteType(TW_RoutingAlgorithm alg);

    unsigned int Index = 0;
    IpAddress DestIp;
    IpAddress DestMask;
    IpAddress NextHop;
    std::string OutIf;
    unsigned short Distance = 0;
    unsigned int Metric = 0;
    TW_RoutingAlgorithm Alg = RT_ALG_UNKNOWN;
    bool CandidateDefault = false;
    bool SecondFlag = false;
    uint8_t SpareFlag1 = 0;
    uint8_t SpareFlag2 = 0;
    unsigned int TimeStamp = 0;
    unsigned int Reserved = 0;
    int Action = 0;
    RoutingCost* Cost = nullptr;
    std::string NextDevice;
    std::string OriginalAlg;
    std::string DestText;
    std::string MaskText;
    std::string ExtraText;
    char ExtraCode = 0;
};

class NETLOOM_API RoutingTable {
public:
    using EntryList = std::vector<RoutingTableEntry*>;
    using NetworkMap = std::map<IpLocation, EntryList>;
    using EntryIndexMap = std::map<unsigned int, RoutingTableEntry*>;
    using MajorNetworkMap = std::map<unsigned int, bool>;

    explicit RoutingTable(const char* deviceName = "");
    RoutingTable(const RoutingTable& other);
    RoutingTable(const std::string& deviceName, std::vector<RoutingTableEntry*>& entries);
    RoutingTable& operator=(const RoutingTable& other);
    virtual ~RoutingTable();

    // Adds a deep copy under the Index GetMaxIndex() + 1.
    virtual void AddRoute(const RoutingTableEntry* entry);
    // As AddRoute, but keeps the entry's own Index unless it is 0.
    void AppendRoute(const RoutingTableEntry* entry);
    bool AddRouteIfDestNotExist(const RoutingTableEntry* entry);
    bool DeleteRoute(const RoutingTableEntry* entry);
    bool DeleteRoutes(IpLocation& location);
    bool ModifyRTEntry(const RoutingTableEntry* entry);
    void SetRTEntryList(std::vector<RoutingTableEntry*>& entries);
    void CleanUp();
    // Rebuilds the network map from the entry index map.
    void GenerateNetworkMap();

    static void CopyRTEntryList(const std::vector<RoutingTableEntry*>& from,
                                std::vector<RoutingTableEntry*>& to);
    static void CopyRTEntryList(const std::map<unsigned int, RoutingTableEntry*>& from,
                                std::map<unsigned int, RoutingTableEntry*>& to);
    static void DeleteRTEntryList(std::vector<RoutingTableEntry*>& entries);
    static void DeleteRTEntryList(std::map<unsigned int, RoutingTableEntry*>& entries);

    unsigned int GetSize() const { return static_cast<unsigned int>(m_entryIndexMap.size()); }
    unsigned int GetMaxIndex() const;

    // Routes of the longest matching prefix; classful unless classless.
    std::vector<RoutingTableEntry*> LookUp(const IpAddress& address, bool classless);
    // Follows next hops until a route with an interface, or gives null.
    RoutingTableEntry* IpRTLookUpFirst(IpAddress address, bool classless);
    // Longest match, ties settled by Distance; false if nothing matches.
    bool GetMatchedRoutingEntry(IpAddress& address, std::vector<RoutingTableEntry*>& out);
    std::vector<RoutingTableEntry*> GetPossibleEntry(IpLocation& location);
    // On a list sorted by DestIp.
    static std::vector<RoutingTableEntry*> GetPossibleEntry(std::vector<RoutingTableEntry*>& sorted,
                                                            IpLocation& location);
    std::vector<RoutingTableEntry*> GetRouteEntry(IpLocation& location);
    RoutingTableEntry* GetRTEntryByIndex(unsigned int index);
    std::vector<RoutingTableEntry*> GetRTEntryList(std::set<unsigned int>* indexes);
    RoutingTableEntry* GetDefRoute() { return m_defaultRoute; }
    RoutingTableEntry* GetAllZeroDefRoute();
    bool HasMajorNetwork(IpAddress& address);
    bool IsSubnetted(IpAddress& address);

    // Filters: a null input set means every entry; results are Index sets.
    std::set<unsigned int> FilterAlg(TW_RoutingAlgorithm alg, std::set<unsigned int>* indexes);
    std::set<unsigned int> FilterNextRouter(unsigned int nextHop, std::set<unsigned int>* indexes);
    std::set<unsigned int> FilterOutIfName(std::string& outIf, std::set<unsigned int>* indexes);
    std::set<unsigned int> FilterTimeStamp(unsigned int time, CompareType type,
                                           std::set<unsigned int>* indexes);

    static void SortRTByAdMetric(std::vector<RoutingTableEntry*>& entries);
    static void SortRTEntryList(std::vector<RoutingTableEntry*>& entries);
    static void SortRTEntryList(std::vector<RoutingTableEntry*>& entries,
                                const std::vector<CompareItem>& items);

    // Four-character route code, "-   " for an unknown value.
    static std::string GetAlgorithmNameByType(TW_RoutingAlgorithm alg);
    static std::string GetAlgorithmNameByType(TW_RoutingAlgorithm alg, bool star);
    static std::string GetFullAlgNameByType(TW_RoutingAlgorithm alg);
    static TW_RoutingAlgorithm GetAlgByFullName(const char* name);
    static TW_RoutingAlgorithm GetAlgorithmTypeByString(const char* code, bool& star);
    static std::string FormatSecondToTime(unsigned int seconds);
    static unsigned int FormatTimeToSecond(const char* text);

    EntryIndexMap& getEntryIndexMap() { return m_entryIndexMap; }
    // Lookups keep an index of this map's keys; handing the map out marks
    // that index for rebuilding. Change the map through the reference just
    // taken, then look up: a reference kept across lookups and used to
    // change the map can make later lookups miss the changed keys.
    NetworkMap& getEntryNetworkMap() {
        NetworkMapChanged();
        return m_networkMap;
    }

    void SetLastResoltGateway(unsigned int gateway, unsigned int network) {
        m_lastResortGateway = gateway;
        m_lastResortNetwork = network;
    }
    unsigned int GetLastResoltGateway() const { return m_lastResortGateway; }
    unsigned int GetLastResoltNetwork() const { return m_lastResortNetwork; }
    const std::string& GetDeviceName() const { return m_deviceName; }
    void SetDeviceName(const std::string& name) { m_deviceName = name; }
    const std::string& GetDescription() const { return m_description; }
    void SetDescription(const std::string& description) { m_description = description; }

    // ---- Route listings: parsing a device's "show ip route" text ----
    // The text, or with the prefix "twfile://" a file converted in place to a route file.
    bool ParseCmdString(const char* text, IInterfaceTypeHelper* helper, bool generateMap);
    bool ParseStream(std::istream& in, IInterfaceTypeHelper* helper, bool generateMap);

    // ---- Route table files ----
    bool ReadRTData(const char* path);
    bool ReadRTData(std::istream& in, bool generateMap);
    bool ImportRTData(const char* path, const char* unused, int unusedFlag);
    bool ImportRTData(std::istream& in, const char* unused, int unusedFlag);
    bool SaveRTData(const char* path);
    bool SaveRTData(std::ostream& out);
    bool SaveRTDataToString(std::string& out);
    bool ExportCSV(const char* path);
    bool ExportCSV(std::ostream& out);
    // A plain text report, one line a route.
    bool ExportRT(const char* path);

    // ---- Filters by subnet list ----
    std::set<unsigned int> FilterSubnet(SubnetEntry& subnet, std::set<unsigned int>* indexes);
    std::set<unsigned int> FilterCombination(RTFilterStruct& filter, std::set<unsigned int>* indexes);
    std::set<unsigned int> FilterSubnetList(SubnetListData& subnets, std::set<unsigned int>* indexes);

protected:
    // ---- Route listings ----
    bool ParseRTBEntry(int variant, const std::string& line, std::string& dest, std::string& mask,
                       std::string& distance, std::string& metric, std::string& gateway,
                       std::string& outIf, std::string& time);
    bool ParseGateway(const char* line, std::string& gateway, std::string& network);
    bool ParseDefaultRTEntry(const char* line, std::string& gateway);
    // False (nothing stored) for a mask length outside 0 to 32.
    bool PutEntryToList(unsigned int index, const char* dest, const char* mask, const char* distance,
                        const char* metric, const char* gateway, const char* outIf, const char* time,
                        std::string& code, TW_RoutingAlgorithm alg, IInterfaceTypeHelper* helper);

    // ---- Route table files ----
    bool SaveCSVVersion(std::ostream& out, bool saved, bool withHeader);
    bool ReadCSVVersion(std::istream& in);
    bool ReadBinaryVersion(std::istream& in, unsigned int firstWord);
    bool ReadDataSetRTData(std::istream& in, bool generateMap);

    // ---- Filters by subnet list ----
    bool FilterRTStruct(const RoutingTableEntry* entry, RTFilterStruct& filter);

    void AddEntry(RoutingTableEntry* entry);
    void AddToMajorNetwork(const RoutingTableEntry* entry);
    void DeleteAllEntries();
    // Members that change m_networkMap directly call this (or
    // GenerateNetworkMap) before the next lookup.
    void NetworkMapChanged() { m_keyIndexValid = false; }

private:
    void SyncKeyIndex();
    void PossibleInto(const IpLocation& location, std::vector<RoutingTableEntry*>& out);
    void LookUpInto(const IpAddress& address, bool classless, std::vector<RoutingTableEntry*>& out);

protected:

    RoutingTableEntry* m_defaultRoute = nullptr;
    NetworkMap m_networkMap;
    EntryIndexMap m_entryIndexMap;
    MajorNetworkMap m_majorNetworkMap;
    unsigned int m_lastResortGateway = 0;
    unsigned int m_lastResortNetwork = 0;
    std::string m_deviceName;
    std::string m_description;

private:
    // Lookup acceleration only; never part of a copy.
    std::unique_ptr<netloom::detail::NetworkKeyIndex> m_keyIndex;
    size_t m_indexedMapSize = 0;
    bool m_keyIndexValid = false;
};
