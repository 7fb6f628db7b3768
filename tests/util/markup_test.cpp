// The navigating XML document: cursor moves, typed data and attributes,
// escaping of any text, whole-document text and files, and hostile markup.
#include <gtest/gtest.h>

#include <chrono>
#include <limits>
#include <string>

#include "common/testenv.h"
#include "netloom/util/markup.h"

namespace {

using Clock = std::chrono::system_clock;

// <root><a>1</a><b>2</b><a>3</a></root>, positioned inside root with no current element.
CMarkup ThreeChildren() {
  CMarkup m;
  EXPECT_TRUE(m.AddElem("root") && m.IntoElem() && m.AddElem("a", "1") && m.AddElem("b", "2") && m.AddElem("a", "3"));
  m.ResetMainPos();
  return m;
}

TEST(MarkupNavigation, FindSearchesForwardAndAddGoesRightAfterTheCurrentElement) {
  CMarkup m = ThreeChildren();
  ASSERT_TRUE(m.FindElem("a"));
  EXPECT_EQ(m.GetData(), "1");
  ASSERT_TRUE(m.FindElem("a"));
  EXPECT_EQ(m.GetData(), "3");
  EXPECT_FALSE(m.FindElem("b"));  // b lies behind
  EXPECT_EQ(m.GetData(), "3");    // a failed search leaves the position
  m.ResetMainPos();
  ASSERT_TRUE(m.FindElem("b") && m.FindElem());  // any name
  EXPECT_EQ(m.GetData(), "3");

  m = ThreeChildren();
  ASSERT_TRUE(m.FindElem("a") && m.AddElem("x") && m.AddElem("y") && m.FindElem("b") && m.InsertElem("w"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><x/><y/><w/><b>2</b><a>3</a></root>");
  // Going back in resumes at the element we came out from.
  ASSERT_TRUE(m.IntoElem());
  EXPECT_EQ(m.GetTagName(), "w");
  ASSERT_TRUE(m.AddElem("v"));
  m.ResetMainPos();  // with no current element the new one goes to the end of the level
  ASSERT_TRUE(m.AddElem("z") && m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><x/><y/><w/><v/><b>2</b><a>3</a><z/></root>");
}

TEST(MarkupNavigation, IntoAndOutOfLevels) {
  CMarkup m;
  EXPECT_FALSE(m.IntoElem());   // nothing current
  EXPECT_FALSE(m.OutOfElem());  // already at the top
  ASSERT_TRUE(m.AddElem("root") && m.IntoElem() && m.AddElem("level1") && m.IntoElem() && m.AddElem("level2", "deep"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetTagName(), "level1");
  ASSERT_TRUE(m.AddElem("sibling"));  // after level1, not inside it
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_FALSE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><level1><level2>deep</level2></level1><sibling/></root>");
}

TEST(MarkupNavigation, ChildCallsWorkWithoutEntering) {
  CMarkup m = ThreeChildren();
  ASSERT_TRUE(m.OutOfElem());
  ASSERT_TRUE(m.FindChildElem("b"));
  EXPECT_EQ(m.GetChildData(), "2");
  ASSERT_TRUE(m.AddChildElem("c", "4"));  // after the current child
  ASSERT_TRUE(m.SetChildAttrib("k", "v"));
  // Entering makes the current child the current element.
  ASSERT_TRUE(m.IntoElem());
  EXPECT_EQ(m.GetTagName(), "c");
  ASSERT_TRUE(m.FindElem() && m.RemoveElem());
  EXPECT_EQ(m.GetTagName(), "c");
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><b>2</b><c k=\"v\">4</c></root>");
}

TEST(MarkupData, NamedReadsFollowTheOrderOfWriting) {
  // The typed-value layout: an element, then its value at the same level.
  CMarkup m;
  ASSERT_TRUE(m.AddElem("TWTypeObject", nullptr, 0) && m.AddAttrib("Type", 101) && m.AddElem("value", "5", 0) &&
              m.AddElem("TWTypeObject", nullptr, 0) && m.AddAttrib("Type", 106));

  CMarkup back(m.GetDoc());
  int type = 0;
  std::string text;
  ASSERT_TRUE(back.FindElem("TWTypeObject") && back.GetAttrib("Type", type) && back.GetData("value", text));
  EXPECT_EQ(type, 101);
  EXPECT_EQ(text, "5");
  ASSERT_TRUE(back.FindElem("TWTypeObject") && back.GetAttrib("Type", type));
  EXPECT_EQ(type, 106);
  // No "value" after the second element: the read fails and does not go
  // back to the earlier one, so a reader looping on FindElem ends.
  EXPECT_FALSE(back.GetData("value", text));
  EXPECT_FALSE(back.FindElem("TWTypeObject"));
}

TEST(MarkupData, TypedValuesComeBackExactly) {
  const auto t1 = Clock::time_point(std::chrono::milliseconds(1700000000123));
  const auto t2 = Clock::time_point(std::chrono::seconds(-86401));  // before 1970
  const long long i64 = std::numeric_limits<long long>::min();
  const unsigned long long u64 = std::numeric_limits<unsigned long long>::max();
  CMarkup m;
  ASSERT_TRUE(m.AddElem("r") && m.IntoElem());
  ASSERT_TRUE(m.AddElem("i", -42) && m.AddElem("i64", i64) && m.AddElem("u64", u64) && m.AddElem("d", 0.1) &&
              m.AddElem("tiny", 5e-324) && m.AddElem("b", true) && m.AddElem("t1", t1) && m.AddElem("t2", t2));
  EXPECT_NE(m.GetDoc().find("<t1>2023-11-14T22:13:20.123Z</t1>"), std::string::npos);

  CMarkup back(m.GetDoc());
  ASSERT_TRUE(back.FindElem("r") && back.IntoElem());
  int i = 0;
  long long bi64 = 0;
  unsigned long long bu64 = 0;
  double dbl = 0, tiny = 0;
  bool b = false;
  Clock::time_point r1, r2;
  EXPECT_TRUE(back.GetData("i", i) && back.GetData("i64", bi64) && back.GetData("u64", bu64) &&
              back.GetData("d", dbl) && back.GetData("tiny", tiny) && back.GetData("b", b) &&
              back.GetData("t1", r1) && back.GetData("t2", r2));
  EXPECT_EQ(i, -42);
  EXPECT_EQ(bi64, i64);
  EXPECT_EQ(bu64, u64);
  EXPECT_EQ(dbl, 0.1);
  EXPECT_EQ(tiny, 5e-324);
  EXPECT_TRUE(b);
  EXPECT_EQ(r1, t1);
  EXPECT_EQ(r2, t2);
}

TEST(MarkupData, TypedReadsRefuseTextOfAnotherType) {
  CMarkup m("<r><n>12x</n><n>99999999999</n><n>-1</n><n> 7 </n><f>1.5.2</f><b>yes</b>"
            "<t>2023-13-01T00:00:00Z</t><t>1700000000</t><t>9999-01-01T00:00:00Z</t></r>");
  ASSERT_TRUE(m.FindElem("r") && m.IntoElem());
  int n = 5;
  unsigned u = 5;
  EXPECT_FALSE(m.GetData("n", n));  // trailing junk
  EXPECT_FALSE(m.GetData("n", n));  // out of int range
  EXPECT_FALSE(m.GetData("n", u));  // negative
  EXPECT_TRUE(n == 5 && u == 5u);
  EXPECT_TRUE(m.GetData("n", n));  // blanks around a number are fine
  EXPECT_EQ(n, 7);
  double f = 2;
  bool b = true;
  EXPECT_FALSE(m.GetData("f", f) || m.GetData("b", b));
  EXPECT_TRUE(f == 2 && b);
  Clock::time_point t{};
  EXPECT_FALSE(m.GetData("t", t));  // month 13
  EXPECT_TRUE(m.GetData("t", t));   // plain seconds
  EXPECT_EQ(t, Clock::time_point(std::chrono::seconds(1700000000)));
  EXPECT_FALSE(m.GetData("t", t));  // beyond what the clock can hold
}

TEST(MarkupAttributes, SetGetAndTypes) {
  CMarkup m;
  EXPECT_FALSE(m.SetAttrib("a", 1));  // no element
  ASSERT_TRUE(m.AddElem("e"));
  EXPECT_TRUE(m.AddAttrib("n", 7) && m.AddAttrib("s", "text") && m.SetAttrib("d", 2.5) && m.SetAttrib("flag", false));
  EXPECT_TRUE(m.SetAttrib("n", 8));  // replaces, keeps the place
  EXPECT_FALSE(m.SetAttrib("bad name", 1) || m.SetAttrib("", 1));
  EXPECT_EQ(m.GetDoc(), "<e n=\"8\" s=\"text\" d=\"2.5\" flag=\"false\"/>");

  int n = 0;
  bool flag = true;
  EXPECT_TRUE(m.GetAttrib("n", n) && m.GetAttrib("flag", flag));
  EXPECT_EQ(n, 8);
  EXPECT_FALSE(flag);
  EXPECT_FALSE(m.GetAttrib("s", n) || m.GetAttrib("missing", n));  // not a number, absent
  EXPECT_EQ(n, 8);
  EXPECT_FALSE(m.HasAttrib("missing"));
}

TEST(MarkupEscaping, AnyTextSurvivesDataAttributesAndFiles) {
  const std::string texts[] = {
      "a & b < c > d",
      "quotes \" and ' both",
      "]]> and <![CDATA[ inside",
      "line\r\nends\rand\nmore",
      "  leading and trailing  ",
      "\t",
      "control \x01\x02\x1f chars",
      "\xC3\xA9t\xC3\xA9 \xE2\x82\xAC \xF0\x9F\x98\x80",
      "&amp; already escaped &#65;",
      "",
  };
  const std::string file = netloom_test::MakeTempDir("markup") + "doc.xml";
  for (const std::string& text : texts) {
    for (int flags : {0, int(CMarkup::MNF_WITHCDATA)}) {
      CMarkup m;
      ASSERT_TRUE(m.SetDoc(CMarkup::UTF8Encoding()) && m.AddElem("e", text, flags) && m.SetAttrib("a", text) &&
                  m.Save(file));
      CMarkup fromText(m.GetDoc());
      CMarkup fromFile;
      ASSERT_TRUE(fromFile.Load(file)) << fromFile.GetError();
      for (CMarkup* back : {&fromText, &fromFile}) {
        std::string data;
        ASSERT_TRUE(back->GetData("e", data));
        EXPECT_EQ(data, text) << "flags " << flags;
        EXPECT_EQ(back->GetAttrib("a"), text);
      }
    }
  }
}

TEST(MarkupEscaping, EscapeAndUnescapeText) {
  EXPECT_EQ(CMarkup::EscapeText("<a & 'b'>", 0), "&lt;a &amp; 'b'&gt;");
  EXPECT_EQ(CMarkup::EscapeText("\"q\" 'a'", CMarkup::MNF_ESCAPEQUOTES), "&quot;q&quot; &apos;a&apos;");
  EXPECT_EQ(CMarkup::EscapeText("&lt; & &#65; &x", CMarkup::MNF_WITHREFS), "&lt; &amp; &#65; &amp;x");
  EXPECT_EQ(CMarkup::UnescapeText("&lt;&gt;&amp;&quot;&apos;&#65;&#x263A;&bogus;&#0;&#xD800;&"),
            "<>&\"'A\xE2\x98\xBA&bogus;&#0;&#xD800;&");
  // Data given with references is stored as the text they stand for.
  CMarkup m;
  ASSERT_TRUE(m.AddElem("e", "a &amp; b", CMarkup::MNF_WITHREFS));
  EXPECT_EQ(m.GetData(), "a & b");
}

TEST(MarkupDocument, DeclarationAndWholeText) {
  CMarkup m;
  ASSERT_TRUE(m.SetDoc(CMarkup::UTF8Encoding()));
  EXPECT_FALSE(m.IsWellFormed());
  ASSERT_TRUE(m.AddElem("ShowCommands") && m.IntoElem() && m.AddElem("Command", "show ip route") && m.OutOfElem());
  EXPECT_TRUE(m.IsWellFormed());
  EXPECT_EQ(m.GetDoc(), CMarkup::UTF8Encoding() + "<ShowCommands><Command>show ip route</Command></ShowCommands>");

  // Indented text from elsewhere reads the same; comments are kept.
  CMarkup pretty;
  ASSERT_TRUE(pretty.SetDoc("<?xml version=\"1.0\"?>\r\n<!-- made by hand -->\r\n<ShowCommands>\r\n"
                            "  <Command>show ip route</Command>\r\n</ShowCommands>\r\n"));
  std::string cmd;
  ASSERT_TRUE(pretty.FindElem("ShowCommands") && pretty.IntoElem() && pretty.GetData("Command", cmd));
  EXPECT_EQ(cmd, "show ip route");
  EXPECT_NE(pretty.GetDoc().find("<!-- made by hand -->"), std::string::npos);

  // Copies are independent and keep the position.
  CMarkup copy = pretty;
  ASSERT_TRUE(copy.SetData("changed"));
  EXPECT_EQ(pretty.GetData(), "show ip route");

  // An element with children has no data and refuses new data.
  ASSERT_TRUE(pretty.OutOfElem());
  EXPECT_EQ(pretty.GetData(), "");
  EXPECT_FALSE(pretty.SetData("x"));
}

TEST(MarkupDocument, ElementContentAsMarkup) {
  CMarkup m;
  const std::string content = "<TWNCTRecord><record><item>k</item></record></TWNCTRecord>";
  ASSERT_TRUE(m.AddElem("nct_record") && m.SetElemContent(content));
  EXPECT_FALSE(m.SetElemContent("<broken>"));
  EXPECT_EQ(m.GetElemContent(), content);
  std::string item;
  ASSERT_TRUE(m.IntoElem() && m.FindElem("TWNCTRecord") && m.IntoElem() && m.FindElem("record") && m.IntoElem() &&
              m.GetData("item", item));
  EXPECT_EQ(item, "k");
}

TEST(MarkupDocument, BadNamesAddNothing) {
  CMarkup m;
  for (const char* name : {"", "1abc", "a b", "<x", "a>b", "a&b"}) EXPECT_FALSE(m.AddElem(name, "v")) << name;
  EXPECT_FALSE(m.AddElem(nullptr));
  EXPECT_EQ(m.GetDoc(), "");
  EXPECT_TRUE(m.AddElem("ns:name-1.x_y") && m.AddElem("\xC3\xA9l\xC3\xA9ment"));
}

TEST(MarkupHostile, MalformedMarkupIsRefused) {
  const std::string bad[] = {
      "<a>", "<a></b>", "just text", "<a/>trailing", "<a b=1/>", "<a b=\"1/>", "<!-- open",
      "<a><![CDATA[x</a>", "</a>", "<a>&#</a", "<?xml version=\"1.0\"?><a", "<>", std::string("<a>\0</a>", 8),
      // A reference to code point 0 decodes to a NUL that would cut the text short.
      "<r>a&#0;b</r>", "<r>a&#x000;b</r>", "<r a=\"x&#X0;y\"/>",
  };
  for (const std::string& text : bad) {
    CMarkup m("<keep/>");
    EXPECT_FALSE(m.SetDoc(text)) << text;
    EXPECT_EQ(m.GetDoc(), "") << text;
    EXPECT_FALSE(m.GetError().empty());
    EXPECT_FALSE(m.FindElem());
  }
  // Where references are not decoded they are plain text, and a zero digit is no NUL.
  CMarkup literal;
  ASSERT_TRUE(literal.SetDoc("<r a=\"&#48;\"><![CDATA[&#0;]]><!--&#0;--></r>"));
  EXPECT_EQ(literal.GetDoc(), "<r a=\"0\"><![CDATA[&#0;]]><!--&#0;--></r>");
  EXPECT_FALSE(literal.AddElem("x") && literal.SetElemContent("<y>&#0;</y>"));

  CMarkup missing;
  EXPECT_FALSE(missing.Load(netloom_test::ScratchDir() + "no/such/file.xml"));
}

TEST(MarkupHostile, DeepNestingCostsNoStack) {
  std::string open;
  for (int i = 0; i < 1 << 18; ++i) open += "<a>";
  CMarkup m;
  EXPECT_FALSE(m.SetDoc(open));  // a megabyte of unclosed elements

  // The same closed is a valid document that can be walked, copied and printed.
  std::string closed = open;
  for (int i = 0; i < 1 << 18; ++i) closed += "</a>";
  ASSERT_TRUE(m.SetDoc(closed));
  CMarkup copy = m;
  int depth = 0;
  while (copy.FindElem("a") && copy.IntoElem()) ++depth;
  EXPECT_EQ(depth, 1 << 18);
  EXPECT_EQ(m.GetDoc().size(), closed.size() - 3);  // the innermost prints as <a/>
}

}  // namespace
