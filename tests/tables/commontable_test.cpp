// Common tables: the strict header, line addressing from parser row 4, and
// the two comparers with their key and ignore handling.
#include <gtest/gtest.h>

#include <list>
#include <sstream>

#include "common/testenv.h"
#include "netloom/commontable.h"

namespace {

const char* kHeader =
    "version:1.0,procedure:intf,hostname:r1,tablename:ports\n"
    "key fields,name\n"
    "ignore fields,counter\n"
    "name,state,counter\n";

CommonTable Load(const std::string& text) {
  CommonTable t;
  EXPECT_TRUE(t.LoadCommonTableForTest(text.c_str())) << text;
  return t;
}

struct Row {
  int first, second, code;
};

std::vector<Row> Rows(const std::list<CommonTableCompareResult>& results) {
  std::vector<Row> rows;
  for (const auto& r : results) {
    Row row{};
    r.GetCompareTableResult(row.first, row.second, row.code);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace

TEST(CommonTableHeader, LoadsHeaderAndAddressesLinesFromRowFour) {
  CommonTable t = Load(std::string(kHeader) + "Gi0/1,up,5\nGi0/2,down,7\n");
  EXPECT_EQ(t.GetProcedureName(), "intf");
  EXPECT_EQ(t.GetDeviceName(), "r1");
  EXPECT_EQ(t.GetTableName(), "ports");
  EXPECT_EQ(t.GetRecordCount(), 2);
  EXPECT_EQ(t.GetCollumnCount(), 3);
  EXPECT_EQ(t.GetValue(1, 0), "Gi0/2");
  EXPECT_EQ(t.GetKeyCollumns(), std::set<std::string>{"name"});
  EXPECT_EQ(t.GetIgnoreCollumns(), std::set<std::string>{"counter"});

  std::vector<std::string> v;
  t.GetLineValues(1, v);
  EXPECT_EQ(v, (std::vector<std::string>{"Gi0/2", "down", "7", "1"}));
  std::list<std::string> l;
  EXPECT_TRUE(t.GetLineValues(1, l));
  EXPECT_EQ(l.size(), 3u);
  EXPECT_FALSE(t.GetLineValues(2, l));
  EXPECT_FALSE(t.GetLineValues(-1, l));
}

TEST(CommonTableHeader, StrictnessOfEachHeaderRow) {
  CommonTable t;
  EXPECT_TRUE(t.LoadCommonTableForTest(kHeader));
  EXPECT_EQ(t.GetRecordCount(), 0);

  const char* refused[] = {
      "version:1.1,procedure:p,hostname:h\nkey fields,a\nignore fields\na\n",
      "version:1.0,procedure:p\nkey fields,a\nignore fields\na\n",
      "version:1.0,xprocedure:p,hostname:h\nkey fields,a\nignore fields\na\n",
      "version:1.0,procedure:p,hostname:h,table:x\nkey fields,a\nignore fields\na\n",
      "version:1.0,procedure:p,hostname:h\nkey fields\nignore fields\na\n",
      "version:1.0,procedure:p,hostname:h\nKEY FIELDS,a\nignore fields\na\n",
      "version:1.0,procedure:p,hostname:h\nkey fields,a\nignore\na\n",
      "version:1.0,procedure:p,hostname:h\nkey fields,a\nignore fields\n",
      "",
  };
  for (const char* text : refused) {
    CommonTable r;
    EXPECT_FALSE(r.LoadCommonTableForTest(text)) << text;
  }
  // "ignore fields" alone is a lawful empty set; three fields leave the table name alone.
  CommonTable ok;
  ok.SetTableName("kept");
  EXPECT_TRUE(ok.LoadCommonTableForTest("version:1.0,procedure:p,hostname:h\nkey fields,a\nignore fields\na,b\n"));
  EXPECT_TRUE(ok.GetIgnoreCollumns().empty());
  EXPECT_EQ(ok.GetTableName(), "kept");
}

TEST(CommonTableHeader, FailedFileLoadClearsAllButProcedureName) {
  const std::string dir = netloom_test::MakeTempDir("ct");
  const std::string path = netloom_test::WriteFile(dir + "bad.csv",
      "version:1.0,procedure:kept,hostname:h\nkey fields\nignore fields\na\n");
  CommonTable t = Load(std::string(kHeader) + "x,y,z\n");
  EXPECT_FALSE(t.LoadCommonTable(path, false));
  EXPECT_EQ(t.GetProcedureName(), "kept");
  EXPECT_EQ(t.GetDeviceName(), "");
  EXPECT_EQ(t.GetRecordCount(), 0);
  EXPECT_TRUE(t.LoadCommonTable(path, true));  // only asks whether it exists
  EXPECT_FALSE(t.LoadCommonTable(dir + "missing.csv", false));
}

TEST(CommonTableHeader, DuplicateColumnNameKeepsLaterPositionByName) {
  CommonTable t = Load("version:1.0,procedure:p,hostname:h\nkey fields,a\nignore fields\na,b,a\n");
  EXPECT_EQ(t.GetCollumns().size(), 3u);
  EXPECT_EQ(t.GetCollumnsByName().at("a"), 2);
}

TEST(CommonTableFile, SaveAndLoadRoundTripWithQuotedCells) {
  const std::string dir = netloom_test::MakeTempDir("ct");
  CommonTable t = Load(std::string(kHeader) + "\"Gi0/1, uplink\",up,\"say \"\"hi\"\"\"\nGi0/2,down,7\n");
  ASSERT_TRUE(t.SaveCommonTable(dir + "t.csv"));
  CommonTable back;
  ASSERT_TRUE(back.LoadCommonTable(dir + "t.csv", false));
  EXPECT_EQ(back.GetFileName(), dir + "t.csv");
  EXPECT_EQ(back.GetValue(0, 0), "Gi0/1, uplink");
  EXPECT_EQ(back.GetValue(0, 2), "say \"hi\"");
  EXPECT_TRUE(CommonTable::IsSameBetweenTwoTable(t, back));
}

TEST(CommonTableFile, WriterAndReaderDisagreeOnEmptyKeySet) {
  const std::string dir = netloom_test::MakeTempDir("ct");
  CommonTable t;
  t.SetDeviceName("h");
  t.SetCollumns({{0, "a"}, {1, "b"}});
  ASSERT_TRUE(t.SaveCommonTable(dir + "nokeys.csv"));
  CommonTable back;
  EXPECT_FALSE(back.LoadCommonTable(dir + "nokeys.csv", false));

  CommonTable nameless;
  nameless.SetCollumns({{0, "a"}});
  EXPECT_FALSE(nameless.SaveCommonTable(dir + "x.csv"));  // no device name
  EXPECT_FALSE(netloom_test::ReadFile(dir + "x.csv").size() > 0);
}

TEST(CommonTableEdit, SetValueReportsFalseButSetsAndEditsShiftLines) {
  CommonTable t = Load(std::string(kHeader) + "a,up,1\nb,up,2\nc,up,3\n");
  EXPECT_FALSE(t.SetValue("state", 1, "down"));
  EXPECT_EQ(t.GetValue(1, 1), "down");
  EXPECT_FALSE(t.SetValue("nosuch", 1, "x"));

  std::vector<std::string> wrong{"x"};
  EXPECT_FALSE(t.SetValue(0, wrong));
  std::vector<std::string> right{"z", "up", "9"};
  EXPECT_TRUE(t.SetValue(0, right));
  EXPECT_EQ(t.GetValue(0, 0), "z");

  t.DeleteLine(-1);
  EXPECT_EQ(t.GetRecordCount(), 3);
  t.DeleteLine(0);
  EXPECT_EQ(t.GetRecordCount(), 2);
  EXPECT_EQ(t.GetValue(0, 0), "b");

  EXPECT_TRUE(t.SetCollumnVaues("counter", {"10", "20", "30"}));
  EXPECT_EQ(t.GetRecordCount(), 3);
  EXPECT_EQ(t.GetValue(2, 2), "30");
  EXPECT_FALSE(t.SetCollumnVaues("nosuch", {}));
}

TEST(CommonTableEdit, AddingTablesBringsOnlyTheirDataRows) {
  CommonTable t = Load(std::string(kHeader) + "a,up,1\n");
  CommonTable other = Load(std::string(kHeader) + "b,up,2\nc,up,3\n");
  t.AddCommonTable(other, true);
  ASSERT_EQ(t.GetRecordCount(), 3);
  EXPECT_EQ(t.GetValue(0, 0), "a");
  EXPECT_EQ(t.GetValue(2, 0), "c");

  const std::string dir = netloom_test::MakeTempDir("ct");
  netloom_test::WriteFile(dir + "static.csv", "name,state,counter\nd,up,4\n");
  CNCTStaticCommonTable s;
  ASSERT_TRUE(s.LoadNCTStaticCommonTable(dir + "static.csv"));
  EXPECT_EQ(s.GetColumnInfo().at(1), "state");
  EXPECT_EQ(s.GetCSVParser().size(), 2u);  // the column row is kept in the cells
  t.AddCommonTable(s, false);
  EXPECT_EQ(t.GetValue(0, 0), "d");  // inserted in front of the data
  EXPECT_EQ(t.GetRecordCount(), 4);
}

TEST(CommonTableEdit, RaggedLineLogsAndGivesNoCells) {
  CommonTable t = Load(std::string(kHeader) + "a,up\n");
  std::vector<std::string> v{"stale"};
  v.clear();
  t.GetLineValues(0, v);
  EXPECT_TRUE(v.empty());

  struct Collect : CommonTable::visitor {
    std::vector<std::vector<std::string>> lines;
    void visit(std::vector<std::string>& line) override { lines.push_back(line); }
  } c;
  CommonTable u = Load(std::string(kHeader) + "a,up,1\nb,up,2\n");
  u.accept(c);
  ASSERT_EQ(c.lines.size(), 2u);
  EXPECT_EQ(c.lines[1].back(), "1");
}

TEST(CommonTableCompare, PlainCompareCodesAndLineValues) {
  CommonTable l = Load(std::string(kHeader) + "a,up,1\nb,up,2\nc,up,3\n");
  CommonTable r = Load(std::string(kHeader) + "b,down,2\na,up,99\nd,up,4\n");
  std::list<CommonTableCompareResult> out;
  CommonTable::DiffInDetailBetweenTwoTable(l, r, out);
  const auto rows = Rows(out);
  ASSERT_EQ(rows.size(), 4u);
  // a: only an ignored column differs -> same; b: state differs; c only left; d only right.
  EXPECT_EQ((std::vector<int>{rows[0].first, rows[0].second, rows[0].code}), (std::vector<int>{0, 1, 1}));
  EXPECT_EQ((std::vector<int>{rows[1].first, rows[1].second, rows[1].code}), (std::vector<int>{1, 0, 16}));
  EXPECT_EQ((std::vector<int>{rows[2].first, rows[2].second, rows[2].code}), (std::vector<int>{2, -1, 256}));
  EXPECT_EQ((std::vector<int>{rows[3].first, rows[3].second, rows[3].code}), (std::vector<int>{-1, 2, 4096}));
  EXPECT_EQ(out.front().LineValues(), (std::vector<std::string>{"a", "up", "1", "a", "up", "99"}));
  EXPECT_EQ(out.back().LineValues(), (std::vector<std::string>{"", "", "", "d", "up", "4"}));
  EXPECT_FALSE(CommonTable::IsSameBetweenTwoTable(l, r));
}

TEST(CommonTableCompare, ColumnOrderDoesNotMatterButShapeDoes) {
  CommonTable l = Load(std::string(kHeader) + "a,up,1\n");
  CommonTable r = Load(
      "version:1.0,procedure:intf,hostname:r2\nkey fields,name\nignore fields,counter\n"
      "counter,name,state\n1,a,up\n");
  std::list<CommonTableCompareResult> out;
  CommonTable::DiffInDetailBetweenTwoTable(l, r, out);
  ASSERT_EQ(out.size(), 1u);
  EXPECT_EQ(out.front().GetCompareTableResult(), 1);
  EXPECT_TRUE(CommonTable::IsSameBetweenTwoTable(l, r));

  CommonTable otherKeys = Load(
      "version:1.0,procedure:intf,hostname:r2\nkey fields,state\nignore fields,counter\n"
      "name,state,counter\na,up,1\n");
  out.clear();
  CommonTable::DiffInDetailBetweenTwoTableCA(l, otherKeys, out);
  const auto rows = Rows(out);
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[0].code, 256);
  EXPECT_EQ(rows[1].code, 4096);
  EXPECT_EQ(out.front().LineValues().size(), 6u);

  CommonTable e1 = Load(kHeader), e2 = Load(kHeader);
  out.clear();
  CommonTable::DiffInDetailBetweenTwoTable(e1, e2, out);
  EXPECT_TRUE(out.empty());
}

TEST(CommonTableCompare, EqualKeysPlainTakesFirstCaPrefersEqualLine) {
  // Two right lines share the key; only the second is equal.
  CommonTable l = Load(std::string(kHeader) + "a,up,1\n");
  CommonTable r = Load(std::string(kHeader) + "a,down,2\na,up,3\n");
  std::list<CommonTableCompareResult> plain, ca;
  CommonTable::DiffInDetailBetweenTwoTable(l, r, plain);
  CommonTable::DiffInDetailBetweenTwoTableCA(l, r, ca);
  auto p = Rows(plain), c = Rows(ca);
  ASSERT_EQ(p.size(), 2u);
  EXPECT_EQ((std::vector<int>{p[0].first, p[0].second, p[0].code}), (std::vector<int>{0, 0, 16}));
  EXPECT_EQ((std::vector<int>{p[1].first, p[1].second, p[1].code}), (std::vector<int>{-1, 1, 4096}));
  ASSERT_EQ(c.size(), 2u);
  EXPECT_EQ((std::vector<int>{c[0].first, c[0].second, c[0].code}), (std::vector<int>{0, 1, 1}));
  EXPECT_EQ((std::vector<int>{c[1].first, c[1].second, c[1].code}), (std::vector<int>{-1, 0, 4096}));

  // Two left lines and one right: the first left line in table order takes it.
  CommonTable l2 = Load(std::string(kHeader) + "a,down,1\na,up,2\n");
  CommonTable r2 = Load(std::string(kHeader) + "a,up,3\n");
  ca.clear();
  CommonTable::DiffInDetailBetweenTwoTableCA(l2, r2, ca);
  c = Rows(ca);
  ASSERT_EQ(c.size(), 2u);
  EXPECT_EQ((std::vector<int>{c[0].first, c[0].second, c[0].code}), (std::vector<int>{0, 0, 16}));
  EXPECT_EQ((std::vector<int>{c[1].first, c[1].second, c[1].code}), (std::vector<int>{1, -1, 256}));
}

TEST(CommonTableCompare, CaJoinsCellsWithoutEscaping) {
  const char* head = "version:1.0,procedure:p,hostname:h\nkey fields,k\nignore fields\nk,x,y\n";
  CommonTable l = Load(std::string(head) + "1,\"a,b\",c\n");
  CommonTable r = Load(std::string(head) + "1,a,\"b,c\"\n");
  std::list<CommonTableCompareResult> ca, plain;
  CommonTable::DiffInDetailBetweenTwoTableCA(l, r, ca);
  CommonTable::DiffInDetailBetweenTwoTable(l, r, plain);
  ASSERT_EQ(ca.size(), 1u);
  EXPECT_EQ(ca.front().GetCompareTableResult(), 1);
  ASSERT_EQ(plain.size(), 1u);
  EXPECT_EQ(plain.front().GetCompareTableResult(), 16);
}

TEST(CommonTableCompare, NoKeyColumnsPairsInOrderOrByValue) {
  const char* head = "version:1.0,procedure:p,hostname:h\nkey fields,a\nignore fields\na,b\n";
  CommonTable l = Load(std::string(head) + "1,x\n");
  CommonTable r = Load(std::string(head) + "3,z\n1,x\n");
  l.SetKeyCollumns({});
  r.SetKeyCollumns({});
  std::list<CommonTableCompareResult> plain, ca;
  CommonTable::DiffInDetailBetweenTwoTable(l, r, plain);
  CommonTable::DiffInDetailBetweenTwoTableCA(l, r, ca);
  auto p = Rows(plain), c = Rows(ca);
  ASSERT_EQ(p.size(), 2u);
  EXPECT_EQ((std::vector<int>{p[0].first, p[0].second, p[0].code}), (std::vector<int>{0, 0, 16}));
  EXPECT_EQ((std::vector<int>{p[1].first, p[1].second, p[1].code}), (std::vector<int>{-1, 1, 4096}));
  ASSERT_EQ(c.size(), 2u);
  EXPECT_EQ((std::vector<int>{c[0].first, c[0].second, c[0].code}), (std::vector<int>{0, 1, 1}));
  EXPECT_EQ((std::vector<int>{c[1].first, c[1].second, c[1].code}), (std::vector<int>{-1, 0, 4096}));
}
