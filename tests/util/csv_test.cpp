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

TEST(CSVLineParser, SingleEmptyCellRowSurvives) {
  // A row of one empty cell must not come back as a row of none.
  const Rows rows = {{"a"}, {""}, {"b"}};
  EXPECT_EQ(Read(Write(rows)), rows);
}

TEST(CSVLineParser, CrlfRowEnds) {
  const Rows rows = Read("a,b\r\nc,\"d\r\ne\"\r\n\"f\"\r\n");
  EXPECT_EQ(rows, (Rows{{"a", "b"}, {"c", "d\r\ne"}, {"f"}}));
}

TEST(CSVLineParser, RaggedRowsKeepTheirLength) {
  const Rows rows = Read("a\nb,c,d\n,\ne,f\n");
  EXPECT_EQ(rows, (Rows{{"a"}, {"b", "c", "d"}, {"", ""}, {"e", "f"}}));
  // Reusing one object for a shorter row leaves no cells of the longer one.
  std::istringstream in("1,2,3,4\n5\n");
  CSVLineParser line("");
  ASSERT_TRUE(line.ReadFromStream(in));
  ASSERT_TRUE(line.ReadFromStream(in));
  EXPECT_EQ(line.size(), 1u);
  EXPECT_THROW(line.GetAt(1), CSVLineParser::Range);
  EXPECT_FALSE(line.ReadFromStream(in));
}

TEST(CSVLineParser, BlankLineIsAnEmptyRowAndEndIsFalse) {
  std::istringstream in("a\n\nb");
  CSVLineParser line("");
  ASSERT_TRUE(line.ReadFromStream(in));
  ASSERT_TRUE(line.ReadFromStream(in));
  EXPECT_EQ(line.size(), 0u);
  ASSERT_TRUE(line.ReadFromStream(in));  // last row without a line end
  EXPECT_EQ(line.GetAt(0), "b");
  EXPECT_FALSE(line.ReadFromStream(in));
  std::istringstream empty("");
  EXPECT_FALSE(line.ReadFromStream(empty));
}

TEST(CSVLineParser, UnterminatedQuoteEndsAtEndOfInput) {
  Rows rows = Read("a,b\nc,\"open cell\nstill open,\"\"x\r\n");
  ASSERT_EQ(rows.size(), 2u);
  EXPECT_EQ(rows[1], (std::vector<std::string>{"c", "open cell\nstill open,\"x"}));
  rows = Read("\"");
  EXPECT_EQ(rows, (Rows{{""}}));
  rows = Read("x,\"abc");
  EXPECT_EQ(rows, (Rows{{"x", "abc"}}));
}

TEST(CSVLineParser, LenientReading) {
  // Text after a closing quote and quotes inside unquoted cells are data.
  EXPECT_EQ(Read("\"ab\"cd,e\"f\"g,h\n"), (Rows{{"abcd", "e\"f\"g", "h"}}));
  // A quote that is not at a cell's start opens nothing: the next line is a new row.
  EXPECT_EQ(Read("a\"b,c\nd\n"), (Rows{{"a\"b", "c"}, {"d"}}));
}

TEST(CSVLineParser, GetAtAndSetAt) {
  CSVLineParser line("");
  line.SetAt(3, "d");
  EXPECT_EQ(line.size(), 4u);
  EXPECT_EQ(line.GetAt(0), "");
  EXPECT_EQ(line.GetAt(3), "d");
  line.SetAt(-1, "ignored");
  EXPECT_EQ(line.size(), 4u);
  EXPECT_THROW(line.GetAt(4), CSVLineParser::Range);
  EXPECT_THROW(line.GetAt(-1), CSVLineParser::Range);
  EXPECT_EQ(line.ToString(), ",,,d");
  line.ParseLine("x,\"y,z\"");
  EXPECT_EQ(line.Fields(), (std::vector<std::string>{"x", "y,z"}));
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
  EXPECT_EQ(csv.size(), 3u);
  EXPECT_EQ(csv.GetAt(2, 1), "b");
  EXPECT_THROW(csv.GetAt(0, 0), CSVLineParser::Range);
  EXPECT_THROW(csv.GetAt(3, 0), CSVLineParser::Range);
  EXPECT_THROW(csv.GetAt(-1), CSVLineParser::Range);
  csv.SetAt(-1, 0, "x");
  csv.SetAt(0, -1, "x");
  EXPECT_EQ(csv.size(), 3u);

  CSVLineParser row("");
  row.ParseLine("p,q");
  csv.SetAt(0, row);
  csv.Append(row);
  EXPECT_EQ(csv.size(), 4u);
  EXPECT_EQ(csv.GetAt(3, 1), "q");
  csv.GetAt(3).SetAt(1, "r");
  EXPECT_EQ(csv.GetAt(3, 1), "r");
  csv.Delete(1);
  csv.Delete(17);
  csv.Delete(-1);
  EXPECT_EQ(csv.size(), 3u);
  EXPECT_EQ(csv.GetAt(1, 1), "b");
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

  CSVParser b = dst;
  b.Insert(src, 0, true, 0);
  EXPECT_EQ(Column0(b), (std::vector<std::string>{"d0", "d1", "s0", "s1", "s2"}));

  CSVParser c = dst;
  c.Insert(src, 2, true, 4);  // never before row 4: rows 2 and 3 are added empty
  EXPECT_EQ(Column0(c), (std::vector<std::string>{"d0", "d1", "<empty>", "<empty>", "s2"}));

  CSVParser d = dst;
  d.Insert(d, 0, false, 0);  // from itself
  EXPECT_EQ(Column0(d), (std::vector<std::string>{"d0", "d1", "d0", "d1"}));

  CSVParser e = dst;
  e.Insert(src, 3, false, 0);  // nothing to copy
  EXPECT_EQ(e.size(), 2u);
}

TEST(CSVParser, FileRoundTrip) {
  const std::string path = netloom_test::MakeTempDir("csv") + "t.csv";
  CSVParser out("");
  out.SetAt(0, 0, "version:1.0");
  out.SetAt(1, 0, "a,b");
  out.SetAt(1, 2, "multi\nline");
  out.SetAt(2, 0, "");
  out.SetAt(2, 1, "\"q\"");
  ASSERT_TRUE(out.SaveToFile(path));

  CSVParser in("");
  ASSERT_TRUE(in.LoadFromFile(path));
  ASSERT_EQ(in.size(), 3u);
  EXPECT_EQ(in.GetAt(1, 0), "a,b");
  EXPECT_EQ(in.GetAt(1, 1), "");
  EXPECT_EQ(in.GetAt(1, 2), "multi\nline");
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
