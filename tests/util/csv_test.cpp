// CSV rows and files: whatever cells are written must come back byte for
// byte, and hostile input must read without loss or crash.
#include <gtest/gtest.h>

#include <random>
#include <sstream>
#include <string>
#include <vector>

#include "common/testenv.h"
#include "netloom/util/csvparser.h"

namespace {

using Rows = std::vector<std::vector<std::string>>;

std::string Write(const Rows& rows, const std::string& delim = "") {
  std::ostringstream out;
  for (const auto& cells : rows) {
    CSVLineParser line(delim);
    for (size_t i = 0; i < cells.size(); ++i) line.SetAt(static_cast<int>(i), cells[i]);
    line.WriteToStream(out);
  }
  return out.str();
}

Rows Read(const std::string& text, const std::string& delim = "") {
  std::istringstream in(text);
  CSVLineParser line(delim);  // one object for every row, as the table readers use it
  Rows rows;
  while (line.ReadFromStream(in)) rows.push_back(line.Fields());
  return rows;
}

TEST(CSVLineParser, SpecialCellsRoundTrip) {
  const Rows rows = {
      {"plain", "with,comma", "with \"quotes\"", "\"", "\"\""},
      {"line\nbreak", "crlf\r\ninside", "lone\rcr", "ends with cr\r", "\n"},
      {"", "", ""},
      {" lead and trail ", "\ttab", "a\"b,c\nd"},
      {"last empty", ""},
      {"", "first empty"},
      {""},  // one empty cell must not come back as a row of none
      {"z"},
  };
  EXPECT_EQ(Read(Write(rows)), rows);
}

TEST(CSVLineParser, RandomCellsRoundTrip) {
  std::mt19937 rng(7);
  const std::string alphabet = "ab,\"\r\n ;x";
  for (int round = 0; round < 200; ++round) {
    Rows rows(1 + rng() % 4);
    for (auto& cells : rows) {
      cells.resize(2 + rng() % 4);  // at least two cells: a lone empty cell is a blank line
      for (auto& c : cells)
        for (size_t n = rng() % 6; n > 0; --n) c += alphabet[rng() % alphabet.size()];
    }
    ASSERT_EQ(Read(Write(rows)), rows) << "round " << round;
    ASSERT_EQ(Read(Write(rows, ";"), ";"), rows) << "round " << round;
  }
}

TEST(CSVLineParser, ReadsHandWrittenText) {
  const struct {
    const char* text;
    Rows rows;
  } cases[] = {
      {"a,b\r\nc,\"d\r\ne\"\r\n\"f\"\r\n", {{"a", "b"}, {"c", "d\r\ne"}, {"f"}}},
      {"a\nb,c,d\n,\ne,f\n", {{"a"}, {"b", "c", "d"}, {"", ""}, {"e", "f"}}},  // ragged
      {"a\n\nb", {{"a"}, {}, {"b"}}},  // blank line; last row without its end
      {"", {}},
      // An unterminated quote runs to the end of input.
      {"a,b\nc,\"open cell\nstill open,\"\"x\r\n", {{"a", "b"}, {"c", "open cell\nstill open,\"x"}}},
      {"x,\"abc", {{"x", "abc"}}},
      // Text after a closing quote and quotes inside unquoted cells are data;
      // a quote not at a cell's start opens nothing.
      {"\"ab\"cd,e\"f\"g,h\n", {{"abcd", "e\"f\"g", "h"}}},
      {"a\"b,c\nd\n", {{"a\"b", "c"}, {"d"}}},
  };
  for (const auto& c : cases) EXPECT_EQ(Read(c.text), c.rows) << c.text;

  // Reusing one object for a shorter row leaves no cells of the longer one.
  std::istringstream in("1,2,3,4\n5\n");
  CSVLineParser line("");
  ASSERT_TRUE(line.ReadFromStream(in) && line.ReadFromStream(in));
  EXPECT_THROW(line.GetAt(1), CSVLineParser::Range);
  EXPECT_FALSE(line.ReadFromStream(in));
  line.SetAt(3, "d");
  line.SetAt(-1, "ignored");
  EXPECT_EQ(line.ToString(), "5,,,d");
  EXPECT_THROW(line.GetAt(-1), CSVLineParser::Range);
}

TEST(CSVLineParser, HugeSingleLine) {
  // One 8 MB row of few cells and one of many: both read in one piece.
  std::string big(8 << 20, 'x');
  big[100] = '\n';
  const Rows rows = {{"head", big, "tail"}, std::vector<std::string>(100000, "c")};
  EXPECT_EQ(Read(Write(rows)), rows);
}

TEST(CSVParser, RowsAndCells) {
  CSVParser csv("");
  csv.SetAt(2, 1, "b");
  csv.SetAt(-1, 0, "x");
  csv.SetAt(0, -1, "x");
  EXPECT_EQ(csv.size(), 3u);
  EXPECT_THROW(csv.GetAt(0, 0), CSVLineParser::Range);
  EXPECT_THROW(csv.GetAt(3, 0), CSVLineParser::Range);

  CSVLineParser row("");
  row.ParseLine("p,q");
  csv.Append(row);
  csv.GetAt(3).SetAt(1, "r");  // a reference into the table
  for (int i : {1, 17, -1}) csv.Delete(i);
  EXPECT_EQ(csv.size(), 3u);
  EXPECT_EQ(csv.GetAt(1, 1), "b");
  EXPECT_EQ(csv.GetAt(2, 1), "r");
}

std::vector<std::string> Column0(const CSVParser& csv) {
  std::vector<std::string> out;
  for (size_t i = 0; i < csv.size(); ++i) {
    const CSVLineParser& row = csv.GetRow(static_cast<int>(i));
    out.push_back(row.size() ? row.GetAt(0) : "<empty>");
  }
  return out;
}

TEST(CSVParser, Insert) {
  CSVParser src(""), dst("");
  ASSERT_TRUE(src.Load("s0\ns1\ns2\n"));
  ASSERT_TRUE(dst.Load("d0\nd1\n"));

  CSVParser a = dst;
  a.Insert(src, 1, false, 1);
  EXPECT_EQ(Column0(a), (std::vector<std::string>{"d0", "s1", "s2", "d1"}));

  CSVParser c = dst;
  c.Insert(src, 2, true, 4);  // never before row 4: rows 2 and 3 are added empty
  EXPECT_EQ(Column0(c), (std::vector<std::string>{"d0", "d1", "<empty>", "<empty>", "s2"}));

  CSVParser d = dst;
  d.Insert(d, 0, false, 0);  // from itself
  EXPECT_EQ(Column0(d), (std::vector<std::string>{"d0", "d1", "d0", "d1"}));
}

TEST(CSVParser, FileRoundTrip) {
  const std::string path = netloom_test::MakeTempDir("csv") + "t.csv";
  CSVParser out("");
  out.SetAt(1, 0, "a,b");
  out.SetAt(1, 2, "multi\nline");
  out.SetAt(2, 0, "");
  out.SetAt(2, 1, "\"q\"");
  ASSERT_TRUE(out.SaveToFile(path));

  CSVParser in("");
  ASSERT_TRUE(in.LoadFromFile(path));
  ASSERT_EQ(in.size(), 3u);
  EXPECT_EQ(in.GetRow(1).Fields(), (std::vector<std::string>{"a,b", "", "multi\nline"}));
  EXPECT_EQ(in.GetAt(2, 1), "\"q\"");

  // A failed load empties the parser.
  EXPECT_FALSE(in.LoadFromFile(path + ".missing"));
  EXPECT_EQ(in.size(), 0u);
  EXPECT_FALSE(out.SaveToFile("/nonexistent-dir/x.csv"));
}

TEST(CSVParser, DelimiterIsFirstCharacter) {
  CSVParser csv(";|");
  ASSERT_TRUE(csv.Load("a;b,c|d\n"));
  EXPECT_EQ(csv.GetAt(0, 1), "b,c|d");
  std::ostringstream out;
  csv.SaveToStream(out);
  EXPECT_EQ(out.str(), "a;b,c|d\n");
}

}  // namespace
