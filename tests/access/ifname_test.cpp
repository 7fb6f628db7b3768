// Interface name normalisation: type-word extraction, lookups against the
// shipped table and hand-made databases, which entry wins for a driver,
// failure paths of the loaders, the cache and its pruning, and lookups from
// several threads while the table reloads.
#include <gtest/gtest.h>

#include <atomic>
#include <cstdlib>
#include <filesystem>
#include <optional>
#include <string>
#include <thread>
#include <tuple>
#include <vector>

#include "common/testenv.h"
#include "netloom/ifnametransfermgr.h"
#include "netloom/lrucache.h"
#include "netloom/util/kxjson.h"
#include "netloom/util/logger.h"
#include "netloom/util/sqlite.h"
#include "netloom/util/twfilesystem.h"

struct IfNameTransfersMgrAccess {
    static std::string TypeName(const std::string& name, std::string& suffix, bool lower) {
        return IfNameTransfersMgr::Instant()->GetIfTypeName(name, suffix, lower);
    }
};

namespace {

IfNameTransfersMgr& Mgr() { return *IfNameTransfersMgr::Instant(); }
std::string Full(const std::string& driver, const std::string& name) {
    return Mgr().GetFullIfNameFromPossibleName(driver, name);
}

// A database with table "InterfaceType" holding the given "data" cells
// (nullopt stores SQL NULL).
std::string MakeDb(const std::vector<std::optional<std::string>>& rows, const std::string& column = "data") {
    const std::string path = netloom_test::MakeTempDir("db") + "InterfaceType.db";
    CppSQLite3DB db;
    db.open(path.c_str());
    db.execDML(("create table InterfaceType (id integer primary key, " + column + " text)").c_str());
    CppSQLite3Statement insert = db.compileStatement(("insert into InterfaceType (" + column + ") values (?)").c_str());
    for (const auto& row : rows) {
        if (row)
            insert.bind(1, *row);
        else
            insert.bindNull(1);
        insert.execDML();
    }
    return path;
}

std::string Row(const std::string& full, const std::string& names, const std::string& extra = "") {
    return R"({"fullName":")" + full + R"(","shortName":"s","possibleNames":[)" + names + "]" + extra + "}";
}

// ------------------------------------------------------------ type words

TEST(IfNameTypeWord, SplitsAtFirstDigitOrUnderscore) {
    // A word without digits leaves the suffix as it was, and is not lowered.
    const std::tuple<const char*, bool, const char*, const char*> cases[] = {
        {"Loopback", true, "Loopback", "untouched"}, {"Gi0/1.100", true, "gi", "0/1.100"},
        {"  Gi \t0/1", true, "gi", "0/1"},           {"Port_x1", false, "Port", "_x1"},
        {"1/0/1", true, "", "1/0/1"}};
    for (const auto& [name, lower, type, rest] : cases) {
        std::string suffix = "untouched";
        EXPECT_EQ(IfNameTransfersMgrAccess::TypeName(name, suffix, lower), type) << name;
        EXPECT_EQ(suffix, rest) << name;
    }
}

// ------------------------------------------------------- shipped JSON table

TEST(IfNameJson, ShippedTableLookups) {
    ASSERT_TRUE(Mgr().LoadData());
    const std::string text =
        netloom_test::ReadFile(netloom_test::SourcePath("resources/MultiVendorData/InterfaceType.json"));
    kxJson::Value root;
    ASSERT_TRUE(kxJson::Reader().parse(text, root));
    ASSERT_GE(root.size(), 40u);
    for (const kxJson::Value& type : root) {
        for (const kxJson::Value& name : type["possibleNames"]) {
            // Upper case in, full name out: the lookup lowers the type word.
            std::string printed = name.asString();
            for (char& c : printed) c = static_cast<char>(std::toupper(static_cast<unsigned char>(c)));
            EXPECT_EQ(Full("drv", printed + "1/0/2"), type["fullName"].asString() + "1/0/2") << printed;
        }
    }
    // Blanks, subinterfaces, names the table already spells out, and names
    // left alone.
    const std::tuple<const char*, const char*, const char*> cases[] = {
        {"ios", "Gi 0/1", "GigabitEthernet0/1"}, {"ios", "gi0/1.100", "GigabitEthernet0/1.100"},
        {"vrp", "Eth-Trunk3", "Eth-Trunk3"},     {"xr", "BE100", "Bundle-Ether100"},
        {"ios", "Se0/0/0:1", "Serial0/0/0:1"},
        {"ios", "mgmt", "mgmt"},  // no digit: the whole name is the type word
        // Unknown, empty driver, leading digit, unlowered digitless word: unchanged.
        {"ios", "Frobnicator7", "Frobnicator7"}, {"", "Gi0/1", "Gi0/1"}, {"ios", "100GE1/0/1", "100GE1/0/1"},
        {"ios", "MGMT", "MGMT"},                 {"ios", "", ""}};
    for (const auto& [driver, name, want] : cases) EXPECT_EQ(Full(driver, name), want) << name;
}

// ---------------------------------------------------- databases and drivers

TEST(IfNameDb, DriverEntriesWinAsTheWalkOrders) {
    // Key order is (possibleNames, excludeDriverIds, driverIds):
    //   ({x},{},{})  <  ({x},{},{d1})  <  ({x},{d2},{})
    //   ({a,y},{},{}) < ({y},{},{d1})  <  ({y},{zz},{})
    const std::string path = MakeDb({
        Row("AllX", R"("x")"),
        Row("D1X", R"("x")", R"(,"driverIds":["d1"])"),
        Row("NotD2X", R"("x")", R"(,"excludeDriverIds":["d2"])"),
        Row("AllAY", R"("a","y")"),
        Row("D1Y", R"("y")", R"(,"driverIds":["d1"])"),
        Row("LateY", R"("y")", R"(,"excludeDriverIds":["zz"])"),
    });
    ASSERT_TRUE(Mgr().LoadDataFromDB("", path));
    // An all-drivers entry before a driver's own entry is overridden by it.
    EXPECT_EQ(Full("d1", "x1"), "D1X1");
    // Without an own entry, the last all-drivers match wins...
    EXPECT_EQ(Full("d3", "x1"), "NotD2X1");
    // ...unless that one excludes the driver.
    EXPECT_EQ(Full("d2", "x1"), "AllX1");
    // A driver's own entry stops the walk before a later all-drivers entry.
    EXPECT_EQ(Full("d1", "y1"), "D1Y1");
    EXPECT_EQ(Full("d5", "y1"), "LateY1");
    EXPECT_EQ(Full("zz", "y1"), "AllAY1");
}

TEST(IfNameDb, RowsOfAnyShape) {
    const std::string path = MakeDb({
        std::nullopt,
        std::string("not json at all"),
        std::string("[1,2,3]"),
        std::string("{\"possibleNames\":\"gi\",\"fullName\":\"Str\",\"shortName\":\"s\"}"),
        std::string("\xff\xfe\x00{", 4),
        std::string("{\"fullName\":\"NoShort\",\"possibleNames\":[\"ns\"]}"),
        Row("First", R"("dup")"),
        Row("Second", R"("dup")"),  // same key: replaces
        Row("Good", R"("good")", R"(,"bandwidth":"oops","isWan":[1],"delay":{"a":1})"),
    });
    ASSERT_TRUE(Mgr().LoadDataFromDB("", path));
    EXPECT_EQ(Full("d", "gi1"), "gi1");    // possibleNames not an array: matches nothing
    EXPECT_EQ(Full("d", "ns1"), "ns1");    // no short name: not expanded
    EXPECT_EQ(Full("d", "dup1"), "Second1");
    EXPECT_EQ(Full("d", "good1"), "Good1");
}

TEST(IfNameDb, FailuresAreReportedAndLogged) {
    ASSERT_TRUE(Mgr().LoadData());
    std::vector<std::string> logged;
    ILogger::GetInstance()->SetObserver(
        [&](ELogLevel level, const std::string&, const std::string& function, const std::string& message) {
            if (level == LOG_ERROR && function == "IfNameTransfersMgr::LoadDataFromDB") logged.push_back(message);
        });

    // Missing file: false, nothing created, table as it was.
    const std::string missing = netloom_test::MakeTempDir("nodb") + "InterfaceType.db";
    EXPECT_FALSE(Mgr().LoadDataFromDB("", missing));
    EXPECT_FALSE(std::filesystem::exists(missing));
    EXPECT_EQ(Full("d", "Gi1"), "GigabitEthernet1");
    ASSERT_EQ(logged.size(), 2u);
    EXPECT_EQ(logged[0], "FS_GoldenBaseline operate failed.");
    EXPECT_EQ(logged[1].rfind("sqlite exception in rw:", 0), 0u);

    // Not a database at all.
    const std::string junk = netloom_test::WriteFile(netloom_test::MakeTempDir("junk") + "InterfaceType.db",
                                                     std::string(4096, '\x5a'));
    EXPECT_FALSE(Mgr().LoadDataFromDB("", junk));
    EXPECT_EQ(Full("d", "Gi1"), "GigabitEthernet1");

    // The table without the column: the failure comes while rows are read,
    // so the table is left as far as it got (emptied).
    logged.clear();
    EXPECT_FALSE(Mgr().LoadDataFromDB("", MakeDb({Row("X", R"("x")")}, "payload")));
    EXPECT_EQ(Full("d", "Gi1"), "Gi1");
    ASSERT_FALSE(logged.empty());
    ILogger::GetInstance()->SetObserver(nullptr);
    // A good load forgets the misses cached meanwhile.
    ASSERT_TRUE(Mgr().LoadData());
    EXPECT_EQ(Full("d", "Gi1"), "GigabitEthernet1");
}

// ------------------------------------------------------------------ cache

TEST(LruCache, PrunesOldestInBulkAndKeepsFirstValue) {
    lru::Cache<int, int, lru::ThreadLock> cache(5000, 200);
    for (int i = 0; i < 5199; ++i) cache.insert(i, i * 10);
    int v = 0;
    ASSERT_TRUE(cache.get(0, v));  // 0 becomes the newest
    cache.insert(1, -1);           // known: only refreshed, value kept
    ASSERT_TRUE(cache.get(1, v));
    EXPECT_EQ(v, 10);
    EXPECT_EQ(cache.size(), 5199u);
    cache.insert(5199, 0);  // the 5,200th key
    EXPECT_EQ(cache.size(), 5000u);
    // The 200 oldest went: 2..201; 0 and 1 were used recently and stay.
    for (int k : {0, 1, 202, 5199}) EXPECT_TRUE(cache.contains(k)) << k;
    for (int k : {2, 201}) EXPECT_FALSE(cache.contains(k)) << k;
}

// ------------------------------------------------------------ concurrency

TEST(IfNameConcurrency, LookupsWhileReloading) {
    ASSERT_TRUE(Mgr().LoadData());
    const std::pair<const char*, const char*> cases[] = {
        {"Gi0/1", "GigabitEthernet0/1"}, {"te1/1", "TenGigabitEthernet1/1"}, {"Po7", "Port-channel7"},
        {"Lo0", "Loopback0"},           {"Nope3", "Nope3"},                  {"Vl9", "Vlan9"}};
    std::atomic<bool> stop{false};
    std::atomic<long> wrong{0}, done{0};
    std::vector<std::thread> readers;
    for (int t = 0; t < 4; ++t) {
        readers.emplace_back([&, t] {
            for (int i = 0; i < 20000; ++i) {
                const auto& [in, want] = cases[(i + t) % 6];
                // Distinct drivers now and then, so misses keep reaching the table.
                const std::string driver = "d" + std::to_string((i * 7 + t) % 300);
                if (Full(driver, in) != want) ++wrong;
                ++done;
            }
        });
    }
    std::thread loader([&] {
        while (!stop) {
            Mgr().LoadData();
            std::this_thread::yield();
        }
    });
    for (auto& r : readers) r.join();
    stop = true;
    loader.join();
    EXPECT_EQ(done.load(), 80000);
    EXPECT_EQ(wrong.load(), 0);
}

}  // namespace
