// IfNameTransfersMgr: the interface-type table, its two loaders and the
// cached lookup. Lock order: the table's shared lock may be held while the
// cache's own lock is taken, never the reverse.
#include "netloom/ifnametransfermgr.h"

#include <boost/filesystem.hpp>

#include <cctype>
#include <exception>
#include <mutex>

#include "netloom/lrucache.h"
#include "netloom/util/guid.h"
#include "netloom/util/logger.h"
#include "netloom/util/pathname.h"
#include "netloom/util/sqlite.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/twfilesystem.h"

namespace netloom::detail {
namespace {

using IfTypeKey = std::tuple<std::string, std::string>;  // (type name, driver id)
using IfTypeCache = lru::Cache<IfTypeKey, std::shared_ptr<CKXInterfaceType>, lru::ThreadLock, lru::NoneFunction>;

// Answers, including "no such type", for (type name, driver id). Apart from
// the manager and cleared by each load.
IfTypeCache g_ifTypeCache(5000, 200, 0);

const char kTable[] = "InterfaceType";
const char kJsonFile[] = "MultiVendorData/InterfaceType.json";
const char kDbFile[] = "InterfaceType.db";
const char kLogCategory[] = "access";

std::set<std::string> StringSet(const kxJson::Value& array) {
    std::set<std::string> out;
    for (const kxJson::Value& v : array) out.insert(v.asString());
    return out;
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

IfNameTransfersMgr* IfNameTransfersMgr::Instant() {
    static IfNameTransfersMgr instance;
    return &instance;
}

IfNameTransfersMgr::IfNameTransfersMgr() {
    const std::string path = TWFileSystem::GetFSParserDataFolder() + kDbFile;
    boost::system::error_code ec;
    if (boost::filesystem::exists(boost::filesystem::path(path), ec)) LoadDataFromDB("", path);
}

IfNameTransfersMgr::~IfNameTransfersMgr() = default;

std::string IfNameTransfersMgr::GetIfTypeName(const std::string& name, std::string& suffix, bool lowerCase) {
    const size_t cut = name.find_first_of("_0123456789");
    if (cut == std::string::npos) return name;
    std::string type = name.substr(0, cut);
    StlHelper::trim(type);
    suffix = name.substr(cut);
    if (lowerCase) {
        for (char& c : type) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
    }
    return type;
}

std::shared_ptr<CKXInterfaceType> IfNameTransfersMgr::GetIntfType(const std::string& driverId,
                                                                  const std::string& typeName) {
    if (driverId.empty()) return nullptr;
    const IfTypeKey key(typeName, driverId);
    std::shared_ptr<CKXInterfaceType> result;
    if (g_ifTypeCache.get(key, result)) return result;

    boost::shared_lock<boost::shared_mutex> guard(m_lock);
    const CKXInterfaceType* match = nullptr;
    for (const auto& [k, type] : m_mapping) {
        const auto& [possible, excluded, drivers] = k;
        if (!possible.count(typeName) || excluded.count(driverId)) continue;
        if (!drivers.empty() && !drivers.count(driverId)) continue;
        match = &type;
        // A driver's own entry settles it; an entry for all drivers may
        // still be overridden by a later match.
        if (!drivers.empty()) break;
    }
    if (match) {
        result = std::make_shared<CKXInterfaceType>(*match);
        result->driverId = driverId;
    }
    g_ifTypeCache.insert(key, result);
    return result;
}

std::string IfNameTransfersMgr::GetFullIfNameFromPossibleName(const std::string& driverId,
                                                              const std::string& possibleName) {
    std::string suffix;
    const std::string typeName = GetIfTypeName(possibleName, suffix, true);
    const std::shared_ptr<CKXInterfaceType> type = GetIntfType(driverId, typeName);
    if (type && !type->fullName.empty() && !type->shortName.empty()) return type->fullName + suffix;
    return possibleName;
}

void IfNameTransfersMgr::AddIntfTypeMapping(const kxJson::Value& json) {
    MappingKey key;
    auto& [possible, excluded, drivers] = key;
    possible = StringSet(json["possibleNames"]);
    if (json.isMember("driverIds")) drivers = StringSet(json["driverIds"]);
    if (json.isMember("excludeDriverIds")) excluded = StringSet(json["excludeDriverIds"]);

    CKXInterfaceType type;
    type.fullName = json["fullName"].asString();
    type.shortName = json["shortName"].asString();
    type.possibleNames = StringSet(json["possibleNames"]);
    type.isBroadcast = json["isBroadcast"].asBool();
    type.isSerial = json["isSerial"].asBool();
    type.isWan = json["isWan"].asBool();
    type.bandwidth = json["bandwidth"].asInt();
    type.delay = json["delay"].asInt();
    type.hasMac = json["hasMac"].asBool();
    m_mapping[key] = std::move(type);
}

size_t IfNameTransfersMgr::CachedTypeCount() { return g_ifTypeCache.size(); }

bool IfNameTransfersMgr::LoadData() {
    const std::string path = TWFileSystem::GetSystemResourceFolder() + kJsonFile;
    if (!Pathname(path).exists()) return false;
    kxJson::Value root;
    kxJson::Reader reader;
    if (!reader.parse(FileHelper::GetFileContentByPath(path), root, false) || !root.isArray()) return false;

    std::unique_lock<boost::shared_mutex> guard(m_lock);
    g_ifTypeCache.clear();
    m_mapping.clear();
    for (const kxJson::Value& element : root) AddIntfTypeMapping(element);
    return true;
}

bool IfNameTransfersMgr::LoadDataFromDB(const std::string& id, const std::string& dbPath) {
    static const char kFunction[] = "IfNameTransfersMgr::LoadDataFromDB";
    ILogger* log = ILogger::GetInstance();
    CppSQLite3DB db;
    try {
        // Never create the file: a missing database is a failure, not an
        // empty table to leave behind in the parser data folder.
        db.open(dbPath.c_str(), false);
        if (!db.tableExists(kTable)) return false;

        std::unique_lock<boost::shared_mutex> guard(m_lock);
        g_ifTypeCache.clear();
        m_mapping.clear();
        CppSQLite3Query rows = db.execQuery((std::string("select * from ") + kTable).c_str());
        kxJson::Reader reader;
        while (!rows.eof()) {
            kxJson::Value json;
            if (reader.parse(rows.getStringField("data"), json, false)) AddIntfTypeMapping(json);
            rows.nextRow();
        }
        return true;
    } catch (const CppSQLite3Exception& e) {
        log->LogVar(kLogCategory, __FILE__, kFunction, __LINE__, LOG_ERROR, "%s operate failed.",
                    "FS_GoldenBaseline");
        log->LogVar(kLogCategory, __FILE__, kFunction, __LINE__, LOG_ERROR, "sqlite exception in rw:%s.",
                    e.errorMessage());
    } catch (const std::exception& e) {
        log->LogVar(kLogCategory, __FILE__, kFunction, __LINE__, LOG_ERROR, "c++ exception in rw:%s.", e.what());
    } catch (...) {
        log->LogVar(kLogCategory, __FILE__, kFunction, __LINE__, LOG_ERROR, "unkown error.");
    }
    if (!id.empty()) {
        log->LogVar(kLogCategory, __FILE__, kFunction, __LINE__, LOG_DEBUG, "interface types of %s not loaded",
                    TW128Guid::FromString(id).ToString().c_str());
    }
    if (db.isOpen()) {
        try {
            db.execDML("rollback transaction;");
        } catch (...) {
            // No transaction was open; nothing to undo.
        }
    }
    return false;
}
