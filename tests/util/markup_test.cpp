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
  EXPECT_TRUE(m.AddElem("root"));
  EXPECT_TRUE(m.IntoElem());
  EXPECT_TRUE(m.AddElem("a", "1"));
  EXPECT_TRUE(m.AddElem("b", "2"));
  EXPECT_TRUE(m.AddElem("a", "3"));
  m.ResetMainPos();
  return m;
}

TEST(MarkupNavigation, FindSearchesForwardFromTheCurrentElement) {
  CMarkup m = ThreeChildren();
  ASSERT_TRUE(m.FindElem("a"));
  EXPECT_EQ(m.GetData(), "1");
  ASSERT_TRUE(m.FindElem("a"));
  EXPECT_EQ(m.GetData(), "3");
  EXPECT_FALSE(m.FindElem("a"));
  EXPECT_EQ(m.GetData(), "3");  // a failed search leaves the position
  EXPECT_FALSE(m.FindElem("b"));  // b lies behind
  m.ResetMainPos();
  ASSERT_TRUE(m.FindElem("b"));
  ASSERT_TRUE(m.FindElem());  // any name
  EXPECT_EQ(m.GetTagName(), "a");
  EXPECT_EQ(m.GetData(), "3");
}

TEST(MarkupNavigation, IntoAndOutOfLevels) {
  CMarkup m;
  EXPECT_FALSE(m.IntoElem());   // nothing current
  EXPECT_FALSE(m.OutOfElem());  // already at the top
  ASSERT_TRUE(m.AddElem("root"));
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.AddElem("level1"));
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.AddElem("level2", "deep"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetTagName(), "level1");
  ASSERT_TRUE(m.AddElem("sibling"));  // after level1, not inside it
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetTagName(), "root");
  EXPECT_FALSE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><level1><level2>deep</level2></level1><sibling/></root>");

  // Going back in finds the children from the start of the level.
  m.ResetPos();
  ASSERT_TRUE(m.FindElem("root"));
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.FindElem("sibling"));
  EXPECT_FALSE(m.IntoElem() && m.FindElem());  // sibling has no children
}

TEST(MarkupNavigation, AddGoesRightAfterTheCurrentElement) {
  CMarkup m = ThreeChildren();
  ASSERT_TRUE(m.FindElem("a"));
  ASSERT_TRUE(m.AddElem("x"));
  ASSERT_TRUE(m.AddElem("y"));
  ASSERT_TRUE(m.FindElem("b"));
  ASSERT_TRUE(m.InsertElem("w"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><x/><y/><w/><b>2</b><a>3</a></root>");

  // Going back in resumes at the element we came out from.
  ASSERT_TRUE(m.IntoElem());
  EXPECT_EQ(m.GetTagName(), "w");
  ASSERT_TRUE(m.AddElem("v"));
  // With no current element the new one goes to the end of the level.
  m.ResetMainPos();
  ASSERT_TRUE(m.AddElem("z"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><x/><y/><w/><v/><b>2</b><a>3</a><z/></root>");
}

TEST(MarkupNavigation, ChildCallsWorkWithoutEntering) {
  CMarkup m = ThreeChildren();
  ASSERT_TRUE(m.OutOfElem());
  ASSERT_TRUE(m.FindChildElem("b"));
  EXPECT_EQ(m.GetChildTagName(), "b");
  EXPECT_EQ(m.GetChildData(), "2");
  EXPECT_EQ(m.GetTagName(), "root");
  ASSERT_TRUE(m.AddChildElem("c", "4"));  // after the current child
  ASSERT_TRUE(m.SetChildAttrib("k", "v"));
  EXPECT_EQ(m.GetChildAttrib("k"), "v");
  // Entering makes the current child the current element.
  ASSERT_TRUE(m.IntoElem());
  EXPECT_EQ(m.GetTagName(), "c");
  ASSERT_TRUE(m.FindElem());
  EXPECT_EQ(m.GetData(), "3");
  ASSERT_TRUE(m.RemoveElem());
  EXPECT_EQ(m.GetTagName(), "c");
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_EQ(m.GetDoc(), "<root><a>1</a><b>2</b><c k=\"v\">4</c></root>");
}

TEST(MarkupData, NamedReadsFollowTheOrderOfWriting) {
  // The typed-value layout: an element, then its value at the same level.
  CMarkup m;
  ASSERT_TRUE(m.AddElem("TWTypeObject", nullptr, 0));
  ASSERT_TRUE(m.AddAttrib("Type", 101));
  ASSERT_TRUE(m.AddElem("value", "5", 0));
  ASSERT_TRUE(m.AddElem("TWTypeObject", nullptr, 0));
  ASSERT_TRUE(m.AddAttrib("Type", 106));

  CMarkup back(m.GetDoc());
  int type = 0;
  std::string text;
  ASSERT_TRUE(back.FindElem("TWTypeObject"));
  ASSERT_TRUE(back.GetAttrib("Type", type));
  EXPECT_EQ(type, 101);
  ASSERT_TRUE(back.GetData("value", text));
  EXPECT_EQ(text, "5");
  ASSERT_TRUE(back.FindElem("TWTypeObject"));
  ASSERT_TRUE(back.GetAttrib("Type", type));
  EXPECT_EQ(type, 106);
  // No "value" after the second element: the read fails and does not go
  // back to the earlier one, so a reader looping on FindElem ends.
  EXPECT_FALSE(back.GetData("value", text));
  EXPECT_FALSE(back.FindElem("TWTypeObject"));
}

TEST(MarkupData, TypedValuesComeBackExactly) {
  const auto t1 = Clock::time_point(std::chrono::milliseconds(1700000000123));
  const auto t2 = Clock::time_point(std::chrono::seconds(-86401));  // before 1970
  CMarkup m;
  ASSERT_TRUE(m.AddElem("r"));
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.AddElem("i", -42));
  ASSERT_TRUE(m.AddElem("i64", std::numeric_limits<long long>::min()));
  ASSERT_TRUE(m.AddElem("u64", std::numeric_limits<unsigned long long>::max()));
  ASSERT_TRUE(m.AddElem("d", 0.1));
  ASSERT_TRUE(m.AddElem("tiny", 5e-324));
  ASSERT_TRUE(m.AddElem("b", true));
  ASSERT_TRUE(m.AddElem("t1", t1));
  ASSERT_TRUE(m.AddElem("t2", t2));
  ASSERT_TRUE(m.AddElem("s", std::string("text")));

  CMarkup back;
  ASSERT_TRUE(back.SetDoc(m.GetDoc()));
  ASSERT_TRUE(back.FindElem("r") && back.IntoElem());
  int i = 0;
  long long i64 = 0;
  unsigned long long u64 = 0;
  double dbl = 0, tiny = 0;
  bool b = false;
  Clock::time_point r1, r2;
  std::string s;
  EXPECT_TRUE(back.GetData("i", i));
  EXPECT_TRUE(back.GetData("i64", i64));
  EXPECT_TRUE(back.GetData("u64", u64));
  EXPECT_TRUE(back.GetData("d", dbl));
  EXPECT_TRUE(back.GetData("tiny", tiny));
  EXPECT_TRUE(back.GetData("b", b));
  EXPECT_TRUE(back.GetData("t1", r1));
  EXPECT_TRUE(back.GetData("t2", r2));
  EXPECT_TRUE(back.GetData("s", s));
  EXPECT_EQ(i, -42);
  EXPECT_EQ(i64, std::numeric_limits<long long>::min());
  EXPECT_EQ(u64, std::numeric_limits<unsigned long long>::max());
  EXPECT_EQ(dbl, 0.1);
  EXPECT_EQ(tiny, 5e-324);
  EXPECT_TRUE(b);
  EXPECT_EQ(r1, t1);
  EXPECT_EQ(r2, t2);
  EXPECT_EQ(s, "text");
  EXPECT_NE(m.GetDoc().find("<t1>2023-11-14T22:13:20.123Z</t1>"), std::string::npos);
}

TEST(MarkupData, TypedReadsRefuseTextOfAnotherType) {
  CMarkup m("<r><n>12x</n><n>99999999999</n><n>-1</n><n> 7 </n><f>1.5.2</f><b>yes</b>"
            "<t>2023-13-01T00:00:00Z</t><t>1700000000</t><t>9999-01-01T00:00:00Z</t></r>");
  ASSERT_TRUE(m.FindElem("r") && m.IntoElem());
  int n = 5;
  EXPECT_FALSE(m.GetData("n", n));  // trailing junk
  EXPECT_FALSE(m.GetData("n", n));  // out of int range
  EXPECT_EQ(n, 5);
  unsigned u = 5;
  EXPECT_FALSE(m.GetData("n", u));  // negative
  EXPECT_EQ(u, 5u);
  EXPECT_TRUE(m.GetData("n", n));  // blanks around a number are fine
  EXPECT_EQ(n, 7);
  double f = 2;
  EXPECT_FALSE(m.GetData("f", f));
  EXPECT_EQ(f, 2);
  bool b = true;
  EXPECT_FALSE(m.GetData("b", b));
  EXPECT_TRUE(b);
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
  EXPECT_TRUE(m.AddAttrib("n", 7));
  EXPECT_TRUE(m.AddAttrib("s", "text"));
  EXPECT_TRUE(m.SetAttrib("d", 2.5));
  EXPECT_TRUE(m.SetAttrib("flag", false));
  EXPECT_TRUE(m.SetAttrib("n", 8));  // replaces, keeps the place
  EXPECT_FALSE(m.SetAttrib("bad name", 1));
  EXPECT_FALSE(m.SetAttrib("", 1));
  EXPECT_EQ(m.GetDoc(), "<e n=\"8\" s=\"text\" d=\"2.5\" flag=\"false\"/>");

  int n = 0;
  double d = 0;
  bool flag = true;
  EXPECT_TRUE(m.GetAttrib("n", n));
  EXPECT_EQ(n, 8);
  EXPECT_TRUE(m.GetAttrib("d", d));
  EXPECT_EQ(d, 2.5);
  EXPECT_TRUE(m.GetAttrib("flag", flag));
  EXPECT_FALSE(flag);
  EXPECT_FALSE(m.GetAttrib("s", n));  // not a number
  EXPECT_FALSE(m.GetAttrib("missing", n));
  EXPECT_EQ(n, 8);
  EXPECT_EQ(m.GetAttrib("missing"), "");
  EXPECT_FALSE(m.HasAttrib("missing"));
}

TEST(MarkupEscaping, AnyTextSurvivesDataAttributesAndFiles) {
  const std::string texts[] = {
      "a & b < c > d",
      "quotes \" and ' both",
      "]]> and <![CDATA[ inside",
      "line\r\nends\rand\nmore",
      "  leading and trailing  ",
      "   ",
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
      ASSERT_TRUE(m.SetDoc(CMarkup::UTF8Encoding()));
      ASSERT_TRUE(m.AddElem("e", text, flags));
      ASSERT_TRUE(m.SetAttrib("a", text));
      ASSERT_TRUE(m.Save(file));

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
  EXPECT_EQ(CMarkup::EscapeText(static_cast<const char*>(nullptr), 0), "");
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
  ASSERT_TRUE(m.AddElem("ShowCommands"));
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.AddElem("Command", "show ip route"));
  ASSERT_TRUE(m.OutOfElem());
  EXPECT_TRUE(m.IsWellFormed());
  const std::string doc = m.GetDoc();
  EXPECT_EQ(doc, CMarkup::UTF8Encoding() + "<ShowCommands><Command>show ip route</Command></ShowCommands>");

  // Indented text from elsewhere reads the same; comments are kept.
  CMarkup pretty;
  ASSERT_TRUE(pretty.SetDoc("<?xml version=\"1.0\"?>\r\n<!-- made by hand -->\r\n<ShowCommands>\r\n"
                            "  <Command>show ip route</Command>\r\n</ShowCommands>\r\n"));
  ASSERT_TRUE(pretty.FindElem("ShowCommands") && pretty.IntoElem());
  std::string cmd;
  ASSERT_TRUE(pretty.GetData("Command", cmd));
  EXPECT_EQ(cmd, "show ip route");
  EXPECT_NE(pretty.GetDoc().find("<!-- made by hand -->"), std::string::npos);

  // Copies are independent and keep the position.
  CMarkup copy = pretty;
  EXPECT_EQ(copy.GetTagName(), "Command");
  ASSERT_TRUE(copy.SetData("changed"));
  EXPECT_EQ(pretty.GetData(), "show ip route");
  ASSERT_TRUE(copy.OutOfElem());
  EXPECT_EQ(copy.GetTagName(), "ShowCommands");

  // An element with children has no data and refuses new data.
  ASSERT_TRUE(pretty.OutOfElem());
  EXPECT_EQ(pretty.GetData(), "");
  EXPECT_FALSE(pretty.SetData("x"));
}

TEST(MarkupDocument, ElementContentAsMarkup) {
  CMarkup m;
  ASSERT_TRUE(m.AddElem("nct_record"));
  ASSERT_TRUE(m.SetElemContent("<TWNCTRecord><record><item>k</item></record></TWNCTRecord>"));
  EXPECT_EQ(m.GetElemContent(), "<TWNCTRecord><record><item>k</item></record></TWNCTRecord>");
  EXPECT_FALSE(m.SetElemContent("<broken>"));
  EXPECT_EQ(m.GetElemContent(), "<TWNCTRecord><record><item>k</item></record></TWNCTRecord>");
  ASSERT_TRUE(m.IntoElem());
  ASSERT_TRUE(m.FindElem("TWNCTRecord"));
  ASSERT_TRUE(m.IntoElem());
  std::string item;
  ASSERT_TRUE(m.FindElem("record") && m.IntoElem() && m.GetData("item", item));
  EXPECT_EQ(item, "k");
}

TEST(MarkupDocument, BadNamesAddNothing) {
  CMarkup m;
  for (const char* name : {"", "1abc", "a b", "<x", "a>b", "a&b"}) EXPECT_FALSE(m.AddElem(name, "v")) << name;
  EXPECT_FALSE(m.AddElem(nullptr));
  EXPECT_EQ(m.GetDoc(), "");
  EXPECT_TRUE(m.AddElem("ns:name-1.x_y"));
  EXPECT_TRUE(m.AddElem("\xC3\xA9l\xC3\xA9ment"));
}

TEST(MarkupHostile, MalformedMarkupIsRefused) {
  const std::string bad[] = {
      "<a>", "<a></b>", "just text", "<a/>trailing", "<a b=1/>", "<a b=\"1/>", "<!-- open",
      "<a><![CDATA[x</a>", "</a>", "<a>&#</a", "<?xml version=\"1.0\"?><a", "<>", std::string("<a>\0</a>", 8),
  };
  for (const std::string& text : bad) {
    CMarkup m("<keep/>");
    EXPECT_FALSE(m.SetDoc(text)) << text;
    EXPECT_EQ(m.GetDoc(), "") << text;
    EXPECT_FALSE(m.GetError().empty());
    EXPECT_FALSE(m.FindElem());
  }
  CMarkup missing;
  EXPECT_FALSE(missing.Load(netloom_test::ScratchDir() + "no/such/file.xml"));
  EXPECT_TRUE(missing.SetDoc(""));
  EXPECT_EQ(missing.GetError(), "");
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

TEST(MarkupHostile, MovedFromObjectIsAnEmptyDocument) {
  CMarkup a("<x/>");
  CMarkup b(std::move(a));
  EXPECT_EQ(b.GetDoc(), "<x/>");
  EXPECT_EQ(a.GetDoc(), "");  // NOLINT: use after move is defined here
  EXPECT_FALSE(a.FindElem());
  EXPECT_TRUE(a.AddElem("y"));
  EXPECT_EQ(a.GetDoc(), "<y/>");
}

}  // namespace
