// Interface name normalisation. Devices abbreviate interface names, each
// vendor in its own way ("Gi0/1" for "GigabitEthernet0/1"); the manager
// turns a name as printed into the full name, for the driver that printed
// it. It holds a table of interface types, loaded from the interface-type
// database or its JSON form, and remembers answers in a process-wide LRU
// cache, since it sits on the path of every parsed interface. One instance
// per process, read by many threads at once.
#pragma once

#include <map>
#include <memory>
#include <set>
#include <string>
#include <tuple>

#include <boost/thread/shared_mutex.hpp>

#include "netloom/export.h"
#include "netloom/util/kxjson.h"

// One interface type. `driverId` is filled in with the asking driver when a
// copy is handed out.
class NETLOOM_API CKXInterfaceType {
public:
    std::string driverId;
    std::string fullName;
    std::string shortName;
    std::set<std::string> possibleNames;
    bool isSerial = false;
    bool isBroadcast = false;
    bool isWan = false;
    int bandwidth = 0;
    int delay = 0;
    bool hasMac = false;
    kxJson::Value extension;
};

class NETLOOM_API IfNameTransfersMgr {
public:
    // The process's instance, made on first use; it loads the interface-type
    // database from the parser data folder when that file exists.
    static IfNameTransfersMgr* Instant();

    // The full name for a name as printed, or the name unchanged when its
    // type is unknown for this driver (or the driver id is empty).
    std::string GetFullIfNameFromPossibleName(const std::string& driverId, const std::string& possibleName);

    // Replaces the table by "MultiVendorData/InterfaceType.json" in the
    // resource folder. False when the file is missing or not a JSON array.
    bool LoadData();
    // Replaces the table by the rows of table "InterfaceType" (column
    // "data", one JSON object per row) of a SQLite file. `id` only labels
    // the log. False on any database error.
    bool LoadDataFromDB(const std::string& id, const std::string& dbPath);

    IfNameTransfersMgr(const IfNameTransfersMgr&) = delete;
    IfNameTransfersMgr& operator=(const IfNameTransfersMgr&) = delete;

private:
    friend struct IfNameTransfersMgrAccess;  // white-box tests

    // (possibleNames, excludeDriverIds, driverIds), compared in that order.
    using MappingKey = std::tuple<std::set<std::string>, std::set<std::string>, std::set<std::string>>;

    IfNameTransfersMgr();
    ~IfNameTransfersMgr();

    std::string GetIfTypeName(const std::string& name, std::string& suffix, bool lowerCase);
    std::shared_ptr<CKXInterfaceType> GetIntfType(const std::string& driverId, const std::string& typeName);
    void AddIntfTypeMapping(const kxJson::Value& json);
    static size_t CachedTypeCount();

    boost::shared_mutex m_lock;
    std::map<MappingKey, CKXInterfaceType> m_mapping;
};
