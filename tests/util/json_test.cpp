// JSON documents: every value type through text and back, the time shape,
// member order and reference stability, the conversion rules for members of
// the wrong type, and text that must be refused without harm.
#include <gtest/gtest.h>

#include <climits>
#include <cmath>
#include <limits>
#include <sstream>
#include <string>

#include "netloom/util/kxjson.h"

namespace {

using kxJson::Value;

Value Parse(const std::string& text) {
  Value v;
  kxJson::Reader reader;
  EXPECT_TRUE(reader.parse(text, v)) << text << ": " << reader.getFormattedErrorMessages();
  return v;
}

bool Refused(const std::string& text) {
  Value v(42);
  kxJson::Reader reader;
  const bool ok = reader.parse(text, v);
  return !ok && v.isNull() && !reader.getFormattedErrorMessages().empty();
}

Value RoundTrip(const Value& v) { return Parse(v.toString()); }

TEST(JsonValue, TypeNumbersAreFixed) {
  EXPECT_EQ(Value().type(), 0);
  EXPECT_EQ(Value(-1).type(), 1);
  EXPECT_EQ(Value(1u).type(), 2);
  EXPECT_EQ(Value(1.5).type(), 3);
  EXPECT_EQ(Value("x").type(), 4);
  EXPECT_EQ(Value(true).type(), 5);
  EXPECT_EQ(Value(kxJson::arrayValue).type(), 6);
  EXPECT_EQ(Value(kxJson::objectValue).type(), 7);
  EXPECT_EQ(Value::fromTime(5).type(), kxJson::timeValue);
  EXPECT_EQ(Parse("[]").type(), 6);
  EXPECT_EQ(Parse("{}").type(), 7);
}

TEST(JsonText, EveryScalarTypeSurvivesText) {
  const Value samples[] = {Value(),      Value(0),         Value(-7),        Value(7u),
                           Value(0.5),   Value(-1e-300),   Value(1e300),     Value(""),
                           Value("abc"), Value(true),      Value(false),     Value::fromTime(1700000000),
                           Value(3.0),   Value::fromTimeMilliseconds(-1)};
  for (const Value& v : samples) {
    const Value back = RoundTrip(v);
    EXPECT_EQ(back, v) << v.toString();
    if (!v.isIntegral()) {
      EXPECT_EQ(back.type(), v.type()) << v.toString();
    }
  }
  // A real that happens to be whole stays a real.
  EXPECT_TRUE(RoundTrip(Value(3.0)).isDouble());
  // Reals come back bit for bit.
  const double awkward[] = {0.1, 1.0 / 3.0, 5e-324, std::numeric_limits<double>::max(), -0.0};
  for (double d : awkward) {
    const Value back = RoundTrip(Value(d));
    EXPECT_EQ(std::signbit(back.asDouble()), std::signbit(d));
    EXPECT_EQ(back.asDouble(), d);
  }
}

TEST(JsonText, IntegersAtTheSixtyFourBitEdges) {
  const auto i64max = std::numeric_limits<std::int64_t>::max();
  const auto i64min = std::numeric_limits<std::int64_t>::min();
  const auto u64max = std::numeric_limits<std::uint64_t>::max();

  Value v = Parse("[9223372036854775807, -9223372036854775808, 9223372036854775808, 18446744073709551615]");
  EXPECT_TRUE(v[0].type() == kxJson::intValue);
  EXPECT_EQ(v[0].asInt64(), i64max);
  EXPECT_EQ(v[1].asInt64(), i64min);
  EXPECT_EQ(v[2].type(), kxJson::uintValue);
  EXPECT_EQ(v[2].asUInt64(), static_cast<std::uint64_t>(i64max) + 1);
  EXPECT_EQ(v[3].asUInt64(), u64max);
  EXPECT_EQ(RoundTrip(v), v);
  EXPECT_EQ(v.toString(), "[9223372036854775807,-9223372036854775808,9223372036854775808,18446744073709551615]");

  // Past the unsigned range the number can only be a real.
  Value big = Parse("18446744073709551616");
  EXPECT_TRUE(big.isDouble());
  EXPECT_DOUBLE_EQ(big.asDouble(), 18446744073709551616.0);
  Value small = Parse("-9223372036854775809");
  EXPECT_TRUE(small.isDouble());

  // Zero with a large exponent is zero, and tiny numbers underflow to zero.
  for (const char* zero : {"0e307", "-0e308", "0.0e100", "1e-400"}) {
    EXPECT_EQ(Parse(zero).asDouble(), 0.0) << zero;
  }
  EXPECT_EQ(Parse("1.7976931348623157e308").asDouble(), std::numeric_limits<double>::max());
  EXPECT_EQ(Parse("123456789012345678901234567890").asDouble(), 1.2345678901234568e29);
  EXPECT_TRUE(Refused("1e400"));
  EXPECT_TRUE(Refused("-2e308"));

  // Non-negative numbers that fit a signed integer parse as signed.
  EXPECT_EQ(Parse("5").type(), kxJson::intValue);
}

TEST(JsonText, StringsKeepEveryByte) {
  const std::string texts[] = {
      "plain",
      "\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E",  // é € and a four-byte character
      std::string("nul\0inside", 10),
      "quote\" backslash\\ slash/ tab\t newline\n cr\r ctrl\x01\x1f",
      "\xFF\xFE invalid utf-8 \xC3",
  };
  for (const std::string& s : texts) {
    const Value back = RoundTrip(Value(s));
    ASSERT_TRUE(back.isString());
    EXPECT_EQ(back.asString(), s);
  }
  // Escapes in text become UTF-8, surrogate pairs included.
  EXPECT_EQ(Parse("\"\\u00e9\\u20ac\\ud834\\udd1e\\u0000\"").asString(),
            std::string("\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E\0", 10));
  // Member names are byte strings too.
  Value obj;
  obj[std::string("k\0ey", 4)] = 1;
  EXPECT_EQ(RoundTrip(obj).getMemberNames().at(0), std::string("k\0ey", 4));
}

TEST(JsonTime, DateShapeAndNothingElse) {
  Value t = Parse("{\"$date\": 1700000000123}");
  ASSERT_TRUE(t.isTime());
  EXPECT_EQ(t.asTime(), 1700000000);
  EXPECT_EQ(t.asTimeMilliseconds(), 1700000000123);
  EXPECT_EQ(t.toString(), "{\"$date\":1700000000123}");

  // Near misses stay ordinary objects.
  for (const char* text : {"{\"$date\": \"1\"}", "{\"$date\": 1.5}", "{\"$date\": 1, \"x\": 2}",
                           "{\"$Date\": 1}", "{\"$date\": 18446744073709551615}", "{\"$date\": null}"}) {
    EXPECT_TRUE(Parse(text).isObject()) << text;
  }
  // Nested inside other documents too.
  Value doc = Parse("{\"when\": {\"$date\": -1500}, \"list\": [{\"$date\": 0}]}");
  EXPECT_TRUE(doc["when"].isTime());
  EXPECT_EQ(doc["when"].asTime(), -2);  // floored, not truncated
  EXPECT_TRUE(doc["list"][0].isTime());
}

TEST(JsonTime, UnsignedFormWithFlag) {
  // Flag false: a time in seconds, passing negative seconds through the cast.
  Value t(static_cast<kxJson::UInt64>(1700000000), false);
  EXPECT_TRUE(t.isTime());
  EXPECT_FALSE(t.isIntegral());
  EXPECT_EQ(t.asTime(), 1700000000);
  Value before1970(static_cast<kxJson::UInt64>(-86400LL), false);
  EXPECT_EQ(RoundTrip(before1970).asTime(), -86400);

  // Flag true: an integer, whose bits read back as the signed value it came from.
  for (std::int64_t x : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min(),
                         std::numeric_limits<std::int64_t>::max()}) {
    Value n(static_cast<kxJson::UInt64>(x), true);
    EXPECT_TRUE(n.isIntegral());
    EXPECT_EQ(n.asInt64(), x);
    EXPECT_EQ(RoundTrip(n).asInt64(), x);
  }

  // A time from a clock reading keeps milliseconds.
  const auto now = std::chrono::system_clock::now();
  Value fromClock(now);
  EXPECT_EQ(RoundTrip(fromClock).asTimePoint(),
            std::chrono::time_point_cast<std::chrono::milliseconds>(now));
}

TEST(JsonObject, ConstLookupNeverCreates) {
  const Value empty;
  EXPECT_TRUE(empty["missing"].isNull());
  EXPECT_TRUE(empty["a"]["b"][3].isNull());
  EXPECT_TRUE(empty.isNull());
  const Value number(5);
  EXPECT_TRUE(number["x"].isNull());
  EXPECT_EQ(number.GetChild("x"), nullptr);
}

TEST(JsonObject, MembersKeepInsertionOrderAndReferencesStayValid) {
  Value v;
  Value& first = v["zeta"];
  first = 1;
  for (int i = 0; i < 1000; ++i) v["k" + std::to_string(i)] = i;
  first = "still here";
  EXPECT_EQ(v["zeta"].asString(), "still here");
  EXPECT_EQ(v.getMemberNames().front(), "zeta");
  EXPECT_EQ(v.getMemberNames().at(1), "k0");
  EXPECT_EQ(v.getMemberNames().back(), "k999");
  EXPECT_EQ(v.size(), 1001u);

  Value arr;
  Value& head = arr.append(Value("head"));
  for (int i = 0; i < 1000; ++i) arr.append(i);
  EXPECT_EQ(head.asString(), "head");

  // A repeated key in text replaces the value and keeps the first place.
  Value dup = Parse("{\"a\":1,\"b\":2,\"a\":3}");
  EXPECT_EQ(dup.size(), 2u);
  EXPECT_EQ(dup["a"].asInt(), 3);
  EXPECT_EQ(dup.toString(), "{\"a\":3,\"b\":2}");
}

TEST(JsonObject, IterationNamesMembers) {
  Value v = Parse("{\"b\": 1, \"a\": [true, null], \"c\": {}}");
  std::string names;
  std::vector<int> types;
  for (auto it = v.begin(); it != v.end(); ++it) {
    names += it.getKeyName();
    types.push_back(it->type());
  }
  EXPECT_EQ(names, "bac");
  EXPECT_EQ(types, (std::vector<int>{1, 6, 7}));
  int count = 0;
  for (const Value& item : v["a"]) {
    (void)item;
    ++count;
  }
  EXPECT_EQ(count, 2);
  // Scalars have nothing to walk.
  Value scalar(3);
  EXPECT_TRUE(scalar.begin() == scalar.end());
  // Writable through the iterator.
  for (auto& item : v["a"]) item = "x";
  EXPECT_EQ(v["a"].toString(), "[\"x\",\"x\"]");
}

TEST(JsonObject, EditingOperations) {
  Value v = Parse("{\"a\":1,\"b\":2,\"c\":3}");
  Value removed;
  EXPECT_TRUE(v.removeMember("b", &removed));
  EXPECT_EQ(removed.asInt(), 2);
  EXPECT_FALSE(v.removeMember("b"));
  EXPECT_EQ(v.toString(), "{\"a\":1,\"c\":3}");
  v["b"] = 4;  // comes back at the end
  EXPECT_EQ(v.toString(), "{\"a\":1,\"c\":3,\"b\":4}");
  EXPECT_EQ(v.get("zz", Value("dflt")).asString(), "dflt");

  // Copies are deep.
  Value copy = v;
  copy["a"] = 100;
  EXPECT_EQ(v["a"].asInt(), 1);

  // Assigning a member's own child over the member works.
  Value nest = Parse("{\"x\":{\"y\":{\"z\":1}}}");
  nest["x"] = nest["x"]["y"];
  EXPECT_EQ(nest.toString(), "{\"x\":{\"z\":1}}");
  Value moved = Parse("[[1,[2]]]");
  moved = std::move(moved[0][1]);
  EXPECT_EQ(moved.toString(), "[2]");

  // Writing into a scalar makes it a container; clear keeps the type.
  Value s("text");
  s["k"] = true;
  EXPECT_TRUE(s.isObject());
  s.clear();
  EXPECT_TRUE(s.isObject());
  EXPECT_EQ(s.size(), 0u);
  Value a;
  a[2] = 1;
  EXPECT_EQ(a.toString(), "[null,null,1]");
  a.setNull();
  EXPECT_TRUE(a.isNull());
}

TEST(JsonValue, Equality) {
  EXPECT_EQ(Value(5), Value(5u));
  EXPECT_NE(Value(-1), Value(static_cast<kxJson::UInt64>(-1LL), true));
  EXPECT_NE(Value(5), Value(5.0));
  EXPECT_NE(Value(1), Value(true));
  EXPECT_EQ(Parse("{\"a\":1,\"b\":[1,2]}"), Parse("{\"b\":[1,2],\"a\":1}"));
  EXPECT_NE(Parse("{\"a\":1}"), Parse("{\"a\":1,\"b\":null}"));
  EXPECT_NE(Parse("[1,2]"), Parse("[2,1]"));
  EXPECT_NE(Value::fromTime(1), Value(1));
}

TEST(JsonConversions, WrongTypesFollowTheRules) {
  // Strings that are numbers convert; others give zero.
  EXPECT_EQ(Value("42").asInt(), 42);
  EXPECT_EQ(Value("-42").asInt64(), -42);
  EXPECT_EQ(Value(" 42").asInt(), 0);
  EXPECT_EQ(Value("42abc").asInt(), 0);
  EXPECT_EQ(Value("99999999999999999999999").asInt64(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Value("-99999999999999999999999").asInt64(), std::numeric_limits<std::int64_t>::min());
  EXPECT_EQ(Value("-5").asUInt64(), 0u);
  EXPECT_DOUBLE_EQ(Value("2.5e1").asDouble(), 25.0);
  EXPECT_DOUBLE_EQ(Value("x").asDouble(), 0.0);

  // Clamping into 32 bits.
  EXPECT_EQ(Value(std::int64_t{1} << 40).asInt(), INT_MAX);
  EXPECT_EQ(Value(-(std::int64_t{1} << 40)).asInt(), INT_MIN);
  EXPECT_EQ(Value(std::numeric_limits<std::uint64_t>::max()).asInt(), INT_MAX);
  EXPECT_EQ(Value(-1).asUInt(), 0u);
  EXPECT_EQ(Value(1e30).asInt64(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Value(-2.9).asInt(), -2);
  EXPECT_EQ(Value(std::nan("")).asInt64(), 0);
  EXPECT_EQ(Value(-3.0).asUInt64(), 0u);

  // Booleans.
  EXPECT_TRUE(Value("TRUE").asBool());
  EXPECT_TRUE(Value("2").asBool());
  EXPECT_FALSE(Value("yes").asBool());
  EXPECT_FALSE(Value("0").asBool());
  EXPECT_FALSE(Value(std::nan("")).asBool());
  EXPECT_TRUE(Parse("[0]").asBool());
  EXPECT_FALSE(Parse("{}").asBool());

  // Text of non-strings.
  EXPECT_EQ(Value(-12).asString(), "-12");
  EXPECT_EQ(Value(0.1).asString(), "0.1");
  EXPECT_EQ(Value(true).asString(), "true");
  EXPECT_EQ(Value().asString(), "");
  EXPECT_EQ(Parse("[1]").asString(), "");
  EXPECT_EQ(Value::fromTime(99).asString(), "99");

  // Containers and null read as zero.
  EXPECT_EQ(Parse("{\"a\":1}").asInt(), 0);
  EXPECT_EQ(Value().asTime(), 0);
  EXPECT_EQ(Value(1234).asTime(), 1234);
  EXPECT_EQ(Value::fromTimeMilliseconds(2500).asInt64(), 2);
}

TEST(JsonReader, CommentsAndBlanksAreAccepted) {
  Value v = Parse(" // leading\n{ /* inner */ \"a\" : 1 }\n\t");
  EXPECT_EQ(v["a"].asInt(), 1);
  std::istringstream in("[1, 2]");
  kxJson::Reader reader;
  ASSERT_TRUE(reader.parse(in, v));
  EXPECT_EQ(v.size(), 2u);
}

TEST(JsonReader, MalformedTextIsRefused) {
  const std::string bad[] = {
      "", "   ", "{", "}", "[1,", "[1,]", "{\"a\"}", "{\"a\":}", "{a:1}", "'x'", "tru", "nul",
      "01", "1.", "-", "+1", "NaN", "Infinity", "\"unterminated", "\"bad \\x escape\"",
      "\"\\ud800\"", "[1] [2]", "{} x", std::string("{}\0{}", 5), "\"ctrl \x01 raw\"",
      "/* unterminated comment", "{\"a\":1,}",
  };
  for (const std::string& text : bad) EXPECT_TRUE(Refused(text)) << "accepted: " << text;
}

TEST(JsonReader, DeepNestingIsRefusedNotRecursed) {
  // A megabyte of opening brackets, and the same closed.
  EXPECT_TRUE(Refused(std::string(1 << 20, '[')));
  EXPECT_TRUE(Refused(std::string(1 << 19, '[') + std::string(1 << 19, ']')));
  std::string objects;
  for (int i = 0; i < 200000; ++i) objects += "{\"a\":";
  EXPECT_TRUE(Refused(objects));

  // Right at the limit the document is fine, and one level more is not.
  const unsigned limit = kxJson::Reader::kMaxDepth;
  Value v;
  kxJson::Reader reader;
  EXPECT_TRUE(reader.parse(std::string(limit, '[') + std::string(limit, ']'), v));
  EXPECT_TRUE(v.isArray());
  EXPECT_FALSE(reader.parse(std::string(limit + 1, '[') + std::string(limit + 1, ']'), v));
  EXPECT_NE(reader.getFormattedErrorMessages().find("nesting"), std::string::npos);
}

TEST(JsonReader, FailureLeavesNullAndReaderIsReusable) {
  kxJson::Reader reader;
  Value v = Parse("{\"keep\": 1}");
  EXPECT_FALSE(reader.parse("[1, 2, {\"half\": ", v));
  EXPECT_TRUE(v.isNull());
  EXPECT_TRUE(reader.parse("[3]", v));
  EXPECT_EQ(v[0].asInt(), 3);
  EXPECT_TRUE(reader.getFormattedErrorMessages().empty());
  EXPECT_FALSE(reader.parse(nullptr, nullptr, v));
}

TEST(JsonWriter, NonFiniteRealsBecomeNull) {
  Value v;
  v.append(std::numeric_limits<double>::infinity());
  v.append(std::nan(""));
  EXPECT_EQ(v.toString(), "[null,null]");
  std::ostringstream out;
  out << v;
  EXPECT_EQ(out.str(), "[null,null]");
}

}  // namespace
