// Route table files: CSV heads and columns, round trips, the export head,
// the binary versions 100, 110 and 210.
#include <gtest/gtest.h>

#include <cstdint>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include "common/testenv.h"
#include "netloom/routingtable.h"

namespace {

constexpr unsigned kUnknown32 = 0xFFFFFFFFu;

RoutingTableEntry MakeRoute(const char* dest, int len, const char* hop, const char* outIf) {
  RoutingTableEntry e;
  e.DestIp = IpAddress(dest);
  e.DestMask = IpAddress(IpAddress::getBitMaskByLength(len));
  e.NextHop = IpAddress(hop);
  e.OutIf = outIf;
  e.Distance = 110;
  e.Metric = 20;
  e.TimeStamp = 3600;
  e.Alg = RT_ALG_OSPF;
  return e;
}

std::string Saved(RoutingTable& table) {
  std::string text;
  EXPECT_TRUE(table.SaveRTDataToString(text));
  return text;
}

bool ReadText(RoutingTable& table, const std::string& text, bool generateMap = true) {
  std::istringstream in(text);
  return table.ReadRTData(in, generateMap);
}

std::vector<std::string> Lines(const std::string& text) {
  std::vector<std::string> out;
  std::istringstream in(text);
  for (std::string line; std::getline(in, line);) out.push_back(line);
  return out;
}

const char kColumns[] = "Index,DestIp,DestMask,NextHop,TimeStamp,Metric,Distance,Alg,OutIf,NextDevice,OriginalAlg\n";

// ---- CSV form ----

TEST(RouteFilesCsv, RoundTripKeepsHeadAndEveryWrittenField) {
  RoutingTable empty("core1");
  empty.SetDescription("monday");
  empty.SetLastResoltGateway(IpAddress("10.0.0.1").bitForm(), 0);
  EXPECT_EQ(Saved(empty), std::string("0310,core1,monday,10.0.0.1,\n") + kColumns);

  RoutingTable table("r1");
  table.SetDescription("monday");
  RoutingTableEntry a = MakeRoute("10.1.0.0", 16, "10.0.0.2", "Vlan1");
  a.OriginalAlg = "O IA";
  a.ExtraText = "tag, with \"quotes\"";
  a.ExtraCode = 'b';
  a.NextDevice = "<virtual router>vrf-a";
  RoutingTableEntry unknown = MakeRoute("10.2.0.0", 24, "0.0.0.0", "Null0");
  unknown.Metric = unknown.TimeStamp = kUnknown32;
  unknown.Distance = 65535;
  unknown.Alg = RT_ALG_UNKNOWN;
  unknown.NextDevice = "core2";  // an ordinary next device is dropped on reading
  RoutingTableEntry candidate = MakeRoute("0.0.0.0", 0, "10.0.0.1", "Vlan9");
  candidate.Alg = RT_ALG_OSPF_E2;
  candidate.CandidateDefault = true;
  candidate.Metric = 3000000000u;  // above INT_MAX: must survive the decimal round trip
  table.AddRoute(&a);
  table.AddRoute(&unknown);
  table.AddRoute(&candidate);

  const std::string text = Saved(table);
  const auto lines = Lines(text);
  ASSERT_EQ(lines.size(), 5u);
  EXPECT_EQ(lines[3].substr(0, 22), "2,10.2.0.0,255.255.255");
  EXPECT_NE(lines[3].find(",,,,-   ,Null0,"), std::string::npos) << lines[3];
  EXPECT_NE(lines[4].find(",O*E2,"), std::string::npos) << lines[4];

  RoutingTable back;
  ASSERT_TRUE(ReadText(back, text));
  EXPECT_EQ(back.GetDeviceName(), "r1");
  EXPECT_EQ(back.GetDescription(), "monday");
  ASSERT_EQ(back.GetSize(), 3u);
  for (unsigned i = 1; i <= 3; ++i) {
    const RoutingTableEntry* was = table.GetRTEntryByIndex(i);
    const RoutingTableEntry* now = back.GetRTEntryByIndex(i);
    ASSERT_NE(now, nullptr);
    EXPECT_TRUE(*now == *was) << i;
    EXPECT_EQ(now->TimeStamp, was->TimeStamp) << i;
    EXPECT_EQ(now->NextDevice, i == 2 ? "" : was->NextDevice) << i;
    EXPECT_EQ(now->OriginalAlg, was->OriginalAlg) << i;
    EXPECT_EQ(now->ExtraText, was->ExtraText) << i;
    EXPECT_EQ(now->ExtraCode, was->ExtraCode) << i;
    EXPECT_EQ(now->MaskText, was->DestMask.textForm()) << i;
  }
  EXPECT_EQ(back.GetRTEntryByIndex(2)->Metric, kUnknown32);
  EXPECT_TRUE(back.GetRTEntryByIndex(3)->CandidateDefault);
  EXPECT_EQ(back.getEntryNetworkMap().size(), 3u);
}

TEST(RouteFilesCsv, HostileHeadsColumnsAndRows) {
  const std::string text = std::string("0310,r1,,,\n") + kColumns +
                           "1,10.0.0.0,255.0.0.0,10.0.0.1,,,,O   ,Vlan1\n"  // nine cells
                           "2,10.1.0.0,255.255.0.0,10.0.0.1,5,6,7,C   ,Vlan1,,,,  X \n"
                           "3,10.2.0.0,255.255.0.0,,,,,S   ,,,,,xy\n"
                           "4,10.3.0.0,255.255.0.0,,,,,S   ,,\n";  // ten cells
  RoutingTable table;
  ASSERT_TRUE(ReadText(table, text));
  EXPECT_EQ(table.GetRTEntryByIndex(1), nullptr);
  ASSERT_EQ(table.GetSize(), 3u);
  const RoutingTableEntry* two = table.GetRTEntryByIndex(2);
  EXPECT_EQ(two->ExtraCode, 'x');
  EXPECT_EQ(std::to_string(two->TimeStamp) + "/" + std::to_string(two->Metric) + "/" + std::to_string(two->Distance),
            "5/6/7");
  EXPECT_EQ(table.GetRTEntryByIndex(3)->ExtraCode, 0);
  EXPECT_EQ(table.GetRTEntryByIndex(4)->OriginalAlg, "");

  const std::string good = std::string("0310,r1,d,,\n") + kColumns;
  std::string wrongColumn = good, wrongEleventh = good;
  wrongColumn.replace(wrongColumn.find("DestIp"), 6, "Dest");
  wrongEleventh.replace(wrongEleventh.find("OriginalAlg"), 11, "Original");
  EXPECT_FALSE(ReadText(table, wrongColumn + "1,10.0.0.0,255.0.0.0,10.0.0.1,,,,O   ,Vlan1,\n"));
  EXPECT_EQ(table.GetSize(), 0u);
  for (const std::string& bad : {wrongEleventh, "0310,r1,d,\n" + std::string(kColumns) /* four head cells */,
                                 std::string("0310,r1,d,,\nIndex,DestIp\n"), std::string("0310,r1,d,,\n"),
                                 "version:2.0,hostname:r1\n" + std::string(kColumns), std::string()})
    EXPECT_FALSE(ReadText(table, bad)) << bad;
  // Ten column names are enough.
  EXPECT_TRUE(ReadText(table, "0310,r1,d,,\nIndex,DestIp,DestMask,NextHop,TimeStamp,Metric,Distance,Alg,OutIf,"
                              "NextDevice\n"));
}

TEST(RouteFilesCsv, ExportHeadAndPathEntryPoints) {
  const std::string dir = netloom_test::MakeTempDir("rtfiles");
  RoutingTable table("edge 1");
  RoutingTableEntry e = MakeRoute("10.1.0.0", 16, "10.0.0.2", "Vlan1");
  table.AddRoute(&e);
  std::ostringstream out;
  ASSERT_TRUE(table.ExportCSV(out));
  EXPECT_EQ(Lines(out.str())[0], "version:1.0,hostname:edge 1");
  RoutingTable keeps("before");
  ASSERT_TRUE(ReadText(keeps, "version:1.0,edge 1\n" + std::string(kColumns)));
  EXPECT_EQ(keeps.GetDeviceName(), "before");

  ASSERT_TRUE(table.SaveRTData((dir + "r1.csv").c_str()));
  ASSERT_TRUE(table.ExportCSV((dir + "r1-export.csv").c_str()));
  RoutingTable a, b;
  EXPECT_TRUE(a.ReadRTData((dir + "r1.csv").c_str()));
  EXPECT_EQ(a.getEntryNetworkMap().size(), 1u);
  EXPECT_TRUE(b.ImportRTData((dir + "r1-export.csv").c_str(), "ignored", 7));
  EXPECT_EQ(b.GetDeviceName(), "edge 1");
  EXPECT_EQ(b.GetSize(), 1u);
  for (const std::string& bad : {std::string(), dir + "missing.csv"}) EXPECT_FALSE(a.ReadRTData(bad.c_str()));
  EXPECT_FALSE(a.SaveRTData((dir + "no/such/folder.csv").c_str()));
  // Reading without the map flag leaves lookups unprepared.
  ASSERT_TRUE(ReadText(a, netloom_test::ReadFile(dir + "r1.csv"), false));
  EXPECT_TRUE(a.getEntryNetworkMap().empty());
}

TEST(RouteFilesReport, OneLinePerRoute) {
  const std::string dir = netloom_test::MakeTempDir("rtreport");
  RoutingTable table("r1");
  table.SetDescription("lab");
  RoutingTableEntry via = MakeRoute("10.1.0.0", 16, "10.0.0.2", "Vlan1");
  RoutingTableEntry conn = MakeRoute("10.0.0.0", 30, "0.0.0.0", "Gi0/0");
  conn.Alg = RT_ALG_CONNECTED;
  conn.Distance = conn.Metric = 0;
  table.AddRoute(&via);
  table.AddRoute(&conn);
  ASSERT_TRUE(table.ExportRT((dir + "r1.txt").c_str()));
  EXPECT_EQ(netloom_test::ReadFile(dir + "r1.txt"),
            "r1: lab\n"
            "Route entries\n"
            "O    10.1.0.0/16 [110/20] 10.0.0.2 Vlan1 \n"
            "C    10.0.0.0/30 [0/0] is directly connected Gi0/0\n");
  EXPECT_FALSE(table.ExportRT((dir + "no/such/r1.txt").c_str()));
}

// ---- binary form ----

// Little-endian words, halves and bytes; texts with their length word and NUL.
class BinaryWriter {
 public:
  BinaryWriter& Word(uint32_t v) { return Half(uint16_t(v)).Half(uint16_t(v >> 16)); }
  BinaryWriter& Half(uint16_t v) { return Byte(uint8_t(v)).Byte(uint8_t(v >> 8)); }
  BinaryWriter& Byte(uint8_t v) { return Raw(std::string(1, char(v))); }
  BinaryWriter& Text(const std::string& s) { return Word(uint32_t(s.size() + 1)).Raw(s + '\0'); }
  BinaryWriter& Raw(const std::string& s) {
    bytes_ += s;
    return *this;
  }
  const std::string& str() const { return bytes_; }

 private:
  std::string bytes_;
};

BinaryWriter BinaryHead(uint32_t first) {
  BinaryWriter w;
  w.Word(first).Text("core1").Word(1u << 30).Text("old file").Word(1u << 29);
  w.Word(0x0A000001).Word(0).Word(1u << 28).Byte(0x55);
  return w;
}

void BinaryEntry(BinaryWriter& w, uint32_t index, uint8_t alg, bool v210, uint8_t candidate = 0) {
  w.Word(1u << 7).Word(index).Word(0x0A010000).Word(0xFFFF0000).Word(0x0A000002).Word(77).Word(20);
  w.Half(110).Byte(alg).Byte(candidate).Word(1u << 3).Text("Vlan1");
  if (v210) w.Word(1u << 2).Text("<virtual router>x");
}

// One entry as "index alg candidate next-device".
std::string Brief(RoutingTable& table) {
  std::string out;
  for (auto& [index, e] : table.getEntryIndexMap())
    out += std::to_string(index) + " " + std::to_string(int(e->Alg)) + (e->CandidateDefault ? " * " : " ") +
           e->NextDevice + ";";
  return out;
}

TEST(RouteFilesBinary, EveryVersionAndOldAlgorithmNumbers) {
  const uint32_t v100 = 0x80000000u | 100, v110 = 0x80000000u | 110, v210 = 0x80000000u | 210;
  RoutingTable empty;
  EXPECT_TRUE(ReadText(empty, BinaryHead(v100).str()));  // ends at the first header word
  EXPECT_EQ(empty.GetSize(), 0u);

  BinaryWriter w100 = BinaryHead(v100);
  BinaryEntry(w100, 1, 13, false, 1);
  BinaryEntry(w100, 2, 22, false);
  BinaryEntry(w100, 3, 3, false);
  RoutingTable t100;
  ASSERT_TRUE(ReadText(t100, w100.str()));
  EXPECT_EQ(t100.GetDeviceName(), "core1");
  EXPECT_EQ(t100.GetDescription(), "old file");
  EXPECT_EQ(t100.GetLastResoltGateway(), 0x0A000001u);
  ASSERT_EQ(t100.GetSize(), 3u);
  const RoutingTableEntry* e = t100.GetRTEntryByIndex(1);
  EXPECT_EQ(e->ciscoText(), "B*   10.1.0.0/16 [110/20]  via 10.0.0.2, 00:01:17, Vlan1");
  // Old numbering: 13 is BGP, 22 N1, 3 connected.
  EXPECT_EQ(Brief(t100), "1 " + std::to_string(int(RT_ALG_BGP)) + " * ;2 " + std::to_string(int(RT_ALG_OSPF_N1)) +
                             " ;3 " + std::to_string(int(RT_ALG_CONNECTED)) + " ;");

  BinaryWriter w110 = BinaryHead(v110);
  BinaryEntry(w110, 5, 13, false, 2);  // only exactly 1 marks a candidate
  RoutingTable t110;
  ASSERT_TRUE(ReadText(t110, w110.str()));
  EXPECT_EQ(Brief(t110), "5 " + std::to_string(int(RT_ALG_OSPF_IA)) + " ;");  // new numbering

  BinaryWriter w210 = BinaryHead(v210);
  BinaryEntry(w210, 1, 10, true);
  BinaryEntry(w210, 2, 14, true);
  RoutingTable t210;
  ASSERT_TRUE(ReadText(t210, w210.str()));
  ASSERT_EQ(t210.GetSize(), 2u);
  EXPECT_EQ(t210.GetRTEntryByIndex(1)->Alg, RT_ALG_OSPF_E2);
  EXPECT_EQ(t210.GetRTEntryByIndex(1)->NextDevice, "<virtual router>x");
}

TEST(RouteFilesBinary, BrokenFilesEndWithFalseAndKeepWhatWasRead) {
  RoutingTable table;
  EXPECT_FALSE(ReadText(table, BinaryHead(100).str()));  // bit 31 clear

  BinaryWriter clearedFlag = BinaryHead(0x80000000u | 210);
  BinaryEntry(clearedFlag, 1, 10, true);
  clearedFlag.Word(0x40);  // next header without bit 7
  EXPECT_FALSE(ReadText(table, clearedFlag.str()));
  EXPECT_EQ(table.GetSize(), 1u);

  BinaryWriter truncated = BinaryHead(0x80000000u | 100);
  BinaryEntry(truncated, 1, 10, false);
  std::string cut = truncated.str();
  cut.resize(cut.size() - 3);
  EXPECT_FALSE(ReadText(table, cut));
  EXPECT_EQ(table.GetSize(), 0u);

  BinaryWriter longText;
  longText.Word(0x80000000u | 100).Word(1025).Raw(std::string(1025, 'a'));
  EXPECT_FALSE(ReadText(table, longText.str()));

  // Exactly 1024 bytes is allowed; the name stops at its NUL.
  BinaryWriter fits;
  fits.Word(0x80000000u | 100).Word(1024).Raw(std::string(1020, 'a') + std::string("\0bcd", 4));
  fits.Word(1u << 30).Text("d").Word(1u << 29).Word(0).Word(0).Word(1u << 28).Byte(0);
  ASSERT_TRUE(ReadText(table, fits.str()));
  EXPECT_EQ(table.GetDeviceName(), std::string(1020, 'a'));
}

}  // namespace
