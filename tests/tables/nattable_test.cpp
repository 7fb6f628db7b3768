// NAT rules: the address list language, first-matching rule, rule ordering
// and editing, and the file form.
#include <gtest/gtest.h>

#include <sstream>

#include "common/testenv.h"
#include "netloom/nattable.h"

namespace {
NetAddress Addr(const std::string& text) {
  NetAddress a;
  EXPECT_TRUE(NetAddress::fromString(text, a)) << text;
  return a;
}

NATEntry Rule(int id, int flag, const std::string& il = "", const std::string& ig = "",
              const std::string& ol = "", const std::string& og = "") {
  NATEntry e;
  e.Id = id;
  e.Flag = flag;
  e.InsideLocal = il;
  e.InsideGlobal = ig;
  e.OutsideLocal = ol;
  e.OutsideGlobal = og;
  return e;
}

std::vector<int> Ids(const NATTable& t) {
  std::vector<int> ids;
  for (const auto* e : t.GetAllEntries()) ids.push_back(e->Id);
  return ids;
}

class NatFile : public NATTable {
 public:
  using NATTable::LoadFromStram;
};
}  // namespace

TEST(NatList, FlagsAndListParsing) {
  EXPECT_EQ(NATEntry::StringToFlag("Static"), 1);
  EXPECT_EQ(NATEntry::StringToFlag("static"), -1);
  EXPECT_EQ(NATEntry::FlagToString(3), "Undefined");
  EXPECT_EQ(NATEntry::FlagToString(2), "Dynamic");

  EXPECT_TRUE(NATEntry::CheckIsValidIps(""));
  EXPECT_TRUE(NATEntry::CheckIsValidIps(" 10.0.0.1 ; ~10.0.0.0/8 ; 10.0.0.1-10.0.0.9 ;"));
  EXPECT_FALSE(NATEntry::CheckIsValidIps("10.0.0.1-10.0.0.5-10.0.0.9"));
  EXPECT_FALSE(NATEntry::CheckIsValidIps("not-an-address"));
  EXPECT_FALSE(NATEntry::CheckIsValidIps("10.0.0.1:0"));  // a port must be a non-zero number
}

TEST(NatList, MatchingRangesNegationAndEmptyLists) {
  const NetAddress five = Addr("10.0.0.5");
  EXPECT_TRUE(NATEntry::IsMach("10.0.0.1-10.0.0.9", five, false));
  EXPECT_FALSE(NATEntry::IsMach("10.0.0.6-10.0.0.9", five, false));
  EXPECT_TRUE(NATEntry::IsMach("10.0.0.0/24", five, false));
  EXPECT_FALSE(NATEntry::IsMach("~10.0.0.0/24", five, false));
  EXPECT_TRUE(NATEntry::IsMach("~192.168.0.0/16", five, false));
  // Items are alternatives: the range takes the address the negation excludes.
  EXPECT_TRUE(NATEntry::IsMach("10.0.0.1-10.0.0.9;~10.0.0.5", five, false));
  // Two different negations together match everything.
  EXPECT_TRUE(NATEntry::IsMach("~10.0.0.5;~10.0.0.6", five, false));
  EXPECT_FALSE(NATEntry::IsMach("10.0.0.1-10.0.0.5-10.0.0.9", five, true));
  EXPECT_TRUE(NATEntry::IsMach("", five, true));
  EXPECT_FALSE(NATEntry::IsMach("", five, false));
  EXPECT_FALSE(NATEntry::IsMach(" ; ;", five, true));  // separators alone: no item, not empty text
}

TEST(NatTranslate, FirstMatchingRuleRewritesAddressesAndPorts) {
  NATTable t;
  NATEntry web = Rule(0, 0, "192.168.1.10:8080", "203.0.113.10:80");
  NATEntry any = Rule(0, 0, "192.168.1.0/24", "203.0.113.1");
  t.AppendEntry(&web);
  t.AppendEntry(&any);

  L3Packet in("198.51.100.7", "203.0.113.10", 6, 40000, 80);
  NATEntry* used = t.GlobalToLocal(in);
  ASSERT_NE(used, nullptr);
  EXPECT_EQ(used->Id, 1);
  EXPECT_EQ(in.DestinationIP.textForm(), "192.168.1.10");
  EXPECT_EQ(in.DestinationPort, 8080);
  EXPECT_EQ(in.SourceIP.textForm(), "198.51.100.7");  // empty outside lists leave the source

  L3Packet out("192.168.1.77", "198.51.100.7", 6, 5555, 443);
  used = t.LocalToGlobal(out);
  ASSERT_NE(used, nullptr);
  EXPECT_EQ(used->Id, 2);
  EXPECT_EQ(out.SourceIP.textForm(), "203.0.113.1");
  EXPECT_EQ(out.SourcePort, 5555);  // the rule's port is 0: the packet keeps its own

  L3Packet stranger("10.9.9.9", "10.8.8.8", 6, 1, 2);
  const L3Packet before = stranger;
  NATTable only;
  NATEntry strict = Rule(0, 0, "192.168.1.0/24", "203.0.113.1");
  only.AppendEntry(&strict);
  EXPECT_EQ(only.LocalToGlobal(stranger), nullptr);
  EXPECT_TRUE(stranger == before);
}

TEST(NatTable, OrderingEditingAndIds) {
  NATTable t;
  NATEntry r0 = Rule(5, 0), r1 = Rule(6, 1), r2 = Rule(7, 2), mid = Rule(9, 1);
  t.AddNATEntry(&r0);
  t.AddNATEntry(&r2);
  t.AddNATEntry(&r1);
  t.AddNATEntry(&mid);
  EXPECT_EQ(Ids(t), (std::vector<int>{5, 6, 9, 7}));

  NATTable a;
  NATEntry seven = Rule(7, 0), fresh = Rule(0, 0);
  a.AppendEntry(&seven);
  a.AppendEntry(&fresh);
  EXPECT_EQ(fresh.Id, 8);
  EXPECT_EQ(Ids(a), (std::vector<int>{7, 8}));

  t.DeleteNATEntry({7, 5});  // 7 is dynamic: it stays
  EXPECT_EQ(Ids(t), (std::vector<int>{6, 9, 7}));

  NATEntry x = Rule(1, 0), y = Rule(2, 0), z = Rule(3, 1);
  NATTable m;
  m.AppendEntry(&x);
  m.AppendEntry(&y);
  m.AppendEntry(&z);
  m.ChangePosition(1, 2);
  EXPECT_EQ(Ids(m), (std::vector<int>{2, 1, 3}));
  m.ChangePosition(1, 3);  // 3 is not manual
  EXPECT_EQ(Ids(m), (std::vector<int>{2, 1, 3}));
  NATEntry edit = Rule(1, 0, "10.0.0.1");
  m.ModifyEntry(&edit);
  EXPECT_EQ(m.GetAllEntries()[1]->InsideLocal, "10.0.0.1");

  EXPECT_EQ(m.FilterByAddress(Addr("10.0.0.1")).size(), 1u);
  EXPECT_EQ(m.FilterByInterface("", "").size(), 3u);
}

TEST(NatTable, CopiesShareRulesSafely) {
  auto* view = new NATTable();
  NATTable origin;
  NATEntry r = Rule(0, 0, "10.0.0.1");
  origin.AppendEntry(&r);
  *view = origin;
  EXPECT_EQ(view->GetAllEntries()[0], origin.GetAllEntries()[0]);
  delete view;  // the origin's rule outlives the view
  EXPECT_EQ(origin.GetAllEntries()[0]->InsideLocal, "10.0.0.1");
}

TEST(NatTable, FileRoundTripAndEmptyTableDeletesFile) {
  const std::string dir = netloom_test::MakeTempDir("nat");
  NATTable t;
  NATEntry r = Rule(3, 0, "10.0.0.1;10.0.0.2", "203.0.113.5");
  r.InInterface = "Gi0/1";
  t.AppendEntry(&r);
  NATEntry s = Rule(4, 1, "10.0.1.0/24");
  t.AppendEntry(&s);
  ASSERT_TRUE(t.SaveToFile(dir + "nat.csv"));
  NATTable back;
  ASSERT_TRUE(back.LoadFromFile(dir + "nat.csv"));
  ASSERT_EQ(back.GetSize(), 2u);
  EXPECT_EQ(back.GetAllEntries()[0]->InsideLocal, "10.0.0.1;10.0.0.2");
  EXPECT_EQ(back.GetAllEntries()[0]->InInterface, "Gi0/1");
  EXPECT_EQ(back.GetAllEntries()[1]->Flag, 1);
  NATEntry next;
  back.AppendEntry(&next);
  EXPECT_EQ(next.Id, 5);  // the highest id came from the file

  NATTable empty;
  EXPECT_TRUE(empty.SaveToFile(dir + "nat.csv"));
  EXPECT_FALSE(back.LoadFromFile(dir + "nat.csv"));

  NatFile f;
  std::istringstream headerOnly("1.0\nID,InInterface,OutInterface,InsideLocal,InsideGlobal,OutsideLocal,OutsideGlobal,Flag\n");
  EXPECT_FALSE(f.LoadFromStram(headerOnly));
  std::istringstream badVersion("2.0\nID,InInterface,OutInterface,InsideLocal,InsideGlobal,OutsideLocal,OutsideGlobal,Flag\n1,a,b,,,,,0\n");
  EXPECT_FALSE(f.LoadFromStram(badVersion));
  std::istringstream ragged("1.0\nID,InInterface,OutInterface,InsideLocal,InsideGlobal,OutsideLocal,OutsideGlobal,Flag\n9,a\n");
  ASSERT_TRUE(f.LoadFromStram(ragged));
  EXPECT_EQ(f.GetAllEntries()[0]->Id, 9);
}
