// String helpers: splitting, trimming, replacing and wildcard matching, with
// the odd inputs that device text brings.
#include <gtest/gtest.h>

#include <chrono>
#include <sstream>

#include "netloom/schemakeys.h"
#include "netloom/util/stlhelper.h"

namespace {

using Lines = std::vector<std::string>;

Lines Split(const std::string& text, const std::string& ends = StlHelper::kDefaultLineEnds) {
  Lines out{"stale"};
  const size_t n = StlHelper::splitStringToLines(text, out, ends);
  EXPECT_EQ(n, out.size());
  return out;
}

TEST(StlHelperLines, DefaultEndsAreCrlfCrAndLf) {
  EXPECT_EQ(StlHelper::kDefaultLineEnds, "\r\n[\r][\n]");
  EXPECT_EQ(&StlHelper::kDefaultLineEnds, &netloom::schema::text::LineEndPattern);
  EXPECT_EQ(Split("a\r\nb\rc\nd"), (Lines{"a", "b", "c", "d"}));
  // "\n\r" is two line ends, "\r\n" one.
  EXPECT_EQ(Split("a\n\rb\r\n\r\nc"), (Lines{"a", "", "b", "", "c"}));
  EXPECT_EQ(Split("a\n\n"), (Lines{"a", ""}));
  EXPECT_EQ(Split(""), Lines{});
  // Custom ends.
  EXPECT_EQ(Split("a;b\nc", "[;]"), (Lines{"a", "b\nc"}));
  EXPECT_EQ(Split("a<br>b;c", "<br>[;]"), (Lines{"a", "b", "c"}));
  // A pattern of no line ends at all still ends lines at LF.
  EXPECT_EQ(Split("a\nb", ""), (Lines{"a", "b"}));
}

TEST(StlHelperSplit, KeepsEmptyPieces) {
  EXPECT_EQ(StlHelper::splitString("a,,b,", ","), (Lines{"a", "", "b", ""}));
  EXPECT_EQ(StlHelper::splitString("a&&b&&&c", "&&"), (Lines{"a", "b", "&c"}));
  EXPECT_EQ(StlHelper::splitString("abc", ""), (Lines{"abc"}));
  Lines out{"stale"};
  EXPECT_EQ(StlHelper::splitString("x||y", "||", out), 2u);
  EXPECT_EQ(out, (Lines{"x", "y"}));
  EXPECT_EQ(StlHelper::GetRSubString("key=value=x", "="), "value=x");
  EXPECT_EQ(StlHelper::GetLSubString("novalue", "="), "novalue");
  EXPECT_EQ(StlHelper::GetRSubString("novalue", "="), "");
}

TEST(StlHelperTrim, TrimFamily) {
  EXPECT_EQ(StlHelper::trump(" \t\r\n\v\fx y\f "), "x y");
  std::string s = "--a-b--";
  EXPECT_EQ(StlHelper::trimLeft(s, "-"), "a-b--");
  EXPECT_EQ(StlHelper::trimRight(s, "-"), "a-b");
  s = "  ";
  EXPECT_EQ(StlHelper::trim(s), "");
}

TEST(StlHelperReplace, LeftToRightWithoutRescanning) {
  std::string s = "aaaa";
  EXPECT_EQ(StlHelper::replaceString(s, "aa", "a"), 2u);
  EXPECT_EQ(s, "aa");
  s = "x";
  EXPECT_EQ(StlHelper::replaceString(s, "x", "xx"), 1u);  // the replacement is not searched again
  EXPECT_EQ(s, "xx");
  EXPECT_EQ(StlHelper::replaceString(s, "", "y"), 0u);
  EXPECT_EQ(s, "xx");
}

TEST(StlHelperCase, FindAndCompare) {
  EXPECT_EQ(StlHelper::findIgnoreCase("Show IP Route", "ip ROUTE"), 5u);
  EXPECT_EQ(StlHelper::findIgnoreCase("abcABC", "abc", 1), 3u);
  EXPECT_EQ(StlHelper::findIgnoreCase("ab", "", 3), std::string::npos);
  EXPECT_EQ(StlHelper::findIgnoreCase("ab", "b", 99), std::string::npos);
  EXPECT_TRUE(StlHelper::equalsIgnoreCase("GigabitEthernet", "gigabitethernet"));
  EXPECT_FALSE(StlHelper::equalsIgnoreCase("Gi", "Gig"));
  EXPECT_FALSE(StlHelper::startsWith("tw", "twfile://"));
}

TEST(StlHelperWildcard, QuestionMarkAndStar) {
  EXPECT_TRUE(StlHelper::MatchWithQuestionMark("Gi?/?", "gi0/1"));
  EXPECT_FALSE(StlHelper::MatchWithQuestionMark("Gi?/?", "gi0/1", false));
  EXPECT_FALSE(StlHelper::MatchWithQuestionMark("Gi?/?", "gi0/12"));
  EXPECT_TRUE(StlHelper::MatchWithQuestionMark("a*b*c", "aXbYbZc"));
  EXPECT_FALSE(StlHelper::MatchWithQuestionMark("a*b*c", "aXbYbZ"));
  EXPECT_TRUE(StlHelper::MatchWithQuestionMark("**", ""));
  EXPECT_FALSE(StlHelper::MatchWithQuestionMark("?", ""));
  // A pattern built to make naive back-tracking explode stays fast.
  const std::string text(20000, 'a');
  const auto start = std::chrono::steady_clock::now();
  EXPECT_FALSE(StlHelper::MatchWithQuestionMark("*a*a*a*a*a*a*a*b", text));
  EXPECT_LT(std::chrono::steady_clock::now() - start, std::chrono::seconds(5));
}

TEST(StlHelperStream, FromStramReadsEveryByte) {
  std::string big(200000, '\0');
  for (size_t i = 0; i < big.size(); ++i) big[i] = static_cast<char>(i * 31);
  std::istringstream in(big);
  EXPECT_EQ(StlHelper::fromStram(in), big);
  EXPECT_EQ(StlHelper::AToW(static_cast<const char*>(nullptr)).string(), "");
}

}  // namespace
