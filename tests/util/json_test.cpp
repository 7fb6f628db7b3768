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

TEST(JsonText, EveryScalarTypeSurvivesText) {
  const Value samples[] = {Value(),      Value(0),         Value(-7),        Value(7u),
                           Value(0.5),   Value(-1e-300),   Value(1e300),     Value(""),
                           Value("abc"), Value(true),      Value(false),     Value::fromTime(1700000000),
                           Value(3.0),   Value::fromTimeMilliseconds(-1)};
  // The type numbers are part of the interface.
  const Value typed[] = {Value(), Value(-1), Value(1u), Value(1.5), Value("x"), Value(true), Parse("[]"), Parse("{}")};
  for (int i = 0; i < 8; ++i) EXPECT_EQ(typed[i].type(), i);
  for (const Value& v : samples) {
    const Value back = RoundTrip(v);
    EXPECT_EQ(back, v) << v.toString();
    if (!v.isIntegral()) {
      EXPECT_EQ(back.type(), v.type()) << v.toString();
    }
  }
  // Reals come back bit for bit.
  const double awkward[] = {0.1, 1.0 / 3.0, 5e-324, std::numeric_limits<double>::max(), -0.0};
  for (double d : awkward) {
    const double back = RoundTrip(Value(d)).asDouble();
    EXPECT_TRUE(back == d && std::signbit(back) == std::signbit(d)) << d;
  }
}

TEST(JsonText, IntegersAtTheSixtyFourBitEdges) {
  const auto i64max = std::numeric_limits<std::int64_t>::max();
  const auto i64min = std::numeric_limits<std::int64_t>::min();
  const auto u64max = std::numeric_limits<std::uint64_t>::max();

  Value v = Parse("[9223372036854775807, -9223372036854775808, 9223372036854775808, 18446744073709551615]");
  EXPECT_EQ(v[0].asInt64(), i64max);
  EXPECT_EQ(v[1].asInt64(), i64min);
  EXPECT_EQ(v[2].type(), kxJson::uintValue);
  EXPECT_EQ(v[2].asUInt64(), static_cast<std::uint64_t>(i64max) + 1);
  EXPECT_EQ(v[3].asUInt64(), u64max);
  EXPECT_EQ(RoundTrip(v), v);
  EXPECT_EQ(v.toString(), "[9223372036854775807,-9223372036854775808,9223372036854775808,18446744073709551615]");

  // Past the integer ranges the number can only be a real.
  EXPECT_DOUBLE_EQ(Parse("18446744073709551616").asDouble(), 18446744073709551616.0);
  EXPECT_TRUE(Parse("18446744073709551616").isDouble() && Parse("-9223372036854775809").isDouble());

  // Zero with a large exponent is zero, and tiny numbers underflow to zero.
  for (const char* zero : {"0e307", "-0e308", "0.0e100", "1e-400"}) EXPECT_EQ(Parse(zero).asDouble(), 0.0) << zero;
  EXPECT_TRUE(Refused("1e400") && Refused("-2e308"));
}

TEST(JsonText, StringsKeepEveryByte) {
  const std::string texts[] = {
      "plain",
      "\xC3\xA9\xE2\x82\xAC\xF0\x9D\x84\x9E",  // é € and a four-byte character
      std::string("nul\0inside", 10),
      "quote\" backslash\\ slash/ tab\t newline\n cr\r ctrl\x01\x1f",
      "\xFF\xFE invalid utf-8 \xC3",
  };
  for (const std::string& s : texts) EXPECT_EQ(RoundTrip(Value(s)).asString(), s);
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
  Value doc = Parse("{\"when\": {\"$date\": -1500}}");
  EXPECT_EQ(doc["when"].asTime(), -2);  // floored, not truncated
}

TEST(JsonTime, UnsignedFormWithFlag) {
  // Flag false: a time in seconds, passing negative seconds through the cast.
  Value t(static_cast<kxJson::UInt64>(1700000000), false);
  EXPECT_TRUE(t.isTime());
  EXPECT_EQ(RoundTrip(Value(static_cast<kxJson::UInt64>(-86400LL), false)).asTime(), -86400);

  // Flag true: an integer, whose bits read back as the signed value it came from.
  for (std::int64_t x : {std::int64_t{0}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::min(),
                         std::numeric_limits<std::int64_t>::max()}) {
    Value n(static_cast<kxJson::UInt64>(x), true);
    EXPECT_EQ(RoundTrip(n).asInt64(), x);
  }

  // A time from a clock reading keeps milliseconds.
  const auto now = std::chrono::system_clock::now();
  EXPECT_EQ(RoundTrip(Value(now)).asTimePoint(),
            std::chrono::time_point_cast<std::chrono::milliseconds>(now));
}

TEST(JsonObject, ConstLookupNeverCreates) {
  const Value empty;
  EXPECT_TRUE(empty["a"]["b"][3].isNull());
  EXPECT_TRUE(empty.isNull());
  EXPECT_EQ(Value(5).GetChild("x"), nullptr);
}

TEST(JsonObject, MembersKeepInsertionOrderAndReferencesStayValid) {
  Value v;
  Value& first = v["zeta"];
  first = 1;
  for (int i = 0; i < 1000; ++i) v["k" + std::to_string(i)] = i;
  first = "still here";
  EXPECT_EQ(v["zeta"].asString(), "still here");
  EXPECT_EQ(v.getMemberNames().front(), "zeta");
  EXPECT_EQ(v.getMemberNames().back(), "k999");

  Value arr;
  Value& head = arr.append(Value("head"));
  for (int i = 0; i < 1000; ++i) arr.append(i);
  EXPECT_EQ(head.asString(), "head");

  // A repeated key in text replaces the value and keeps the first place.
  Value dup = Parse("{\"a\":1,\"b\":2,\"a\":3}");
  EXPECT_EQ(dup.toString(), "{\"a\":3,\"b\":2}");

  // Iteration names members in order and writes through.
  Value it = Parse("{\"b\": 1, \"a\": [true, null]}");
  std::string names;
  for (auto i = it.begin(); i != it.end(); ++i) names += i.getKeyName();
  EXPECT_EQ(names, "ba");
  for (auto& item : it["a"]) item = "x";
  EXPECT_EQ(it["a"].toString(), "[\"x\",\"x\"]");
  const Value scalar(3);
  EXPECT_TRUE(scalar.begin() == scalar.end());
}

TEST(JsonObject, EditingOperations) {
  Value v = Parse("{\"a\":1,\"b\":2,\"c\":3}");
  EXPECT_TRUE(v.removeMember("b"));
  EXPECT_FALSE(v.removeMember("b"));
  v["b"] = 4;  // comes back at the end
  EXPECT_EQ(v.toString(), "{\"a\":1,\"c\":3,\"b\":4}");

  // Copies are deep.
  Value copy = v;
  copy["a"] = 100;
  EXPECT_EQ(v["a"].asInt(), 1);
  // Assigning a member's own child over the member works.
  Value nest = Parse("{\"x\":{\"y\":{\"z\":1}}}");
  nest["x"] = nest["x"]["y"];
  EXPECT_EQ(nest.toString(), "{\"x\":{\"z\":1}}");

  // Writing into a scalar makes it a container; clear keeps the type.
  Value s("text");
  s["k"] = true;
  s.clear();
  EXPECT_EQ(s.toString(), "{}");
  Value a;
  a[2] = 1;
  EXPECT_EQ(a.toString(), "[null,null,1]");

  // Equality: numbers across signedness, never across kinds; members unordered.
  EXPECT_EQ(Value(5), Value(5u));
  EXPECT_NE(Value(-1), Value(static_cast<kxJson::UInt64>(-1LL), true));
  EXPECT_NE(Value(5), Value(5.0));
  EXPECT_EQ(Parse("{\"a\":1,\"b\":[1,2]}"), Parse("{\"b\":[1,2],\"a\":1}"));
  EXPECT_NE(Parse("[1,2]"), Parse("[2,1]"));
  EXPECT_NE(Value::fromTime(1), Value(1));
}

TEST(JsonConversions, WrongTypesFollowTheRules) {
  // Strings that are numbers convert; others give zero.
  EXPECT_EQ(Value("-42").asInt64(), -42);
  EXPECT_EQ(Value("42abc").asInt(), 0);
  EXPECT_EQ(Value("99999999999999999999999").asInt64(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Value("-99999999999999999999999").asInt64(), std::numeric_limits<std::int64_t>::min());

  // Clamping.
  EXPECT_EQ(Value(std::int64_t{1} << 40).asInt(), INT_MAX);
  EXPECT_EQ(Value(-1).asUInt(), 0u);
  EXPECT_EQ(Value(1e30).asInt64(), std::numeric_limits<std::int64_t>::max());
  EXPECT_EQ(Value(std::nan("")).asInt64(), 0);

  EXPECT_TRUE(Value("TRUE").asBool());
  EXPECT_FALSE(Value("yes").asBool());
  EXPECT_FALSE(Value(std::nan("")).asBool());
  EXPECT_TRUE(Parse("[0]").asBool());

  EXPECT_EQ(Value(0.1).asString(), "0.1");
  EXPECT_EQ(Parse("[1]").asString(), "");
  EXPECT_EQ(Value::fromTime(99).asString(), "99");

  EXPECT_EQ(Parse("{\"a\":1}").asInt(), 0);
  EXPECT_EQ(Value::fromTimeMilliseconds(2500).asInt64(), 2);
}

TEST(JsonReader, MalformedTextIsRefused) {
  const std::string bad[] = {
      "", "   ", "{", "}", "[1,", "[1,]", "{\"a\"}", "{\"a\":}", "{a:1}", "'x'", "tru", "nul",
      "01", "1.", "-", "+1", "NaN", "Infinity", "\"unterminated", "\"bad \\x escape\"",
      "\"\\ud800\"", "[1] [2]", "{} x", std::string("{}\0{}", 5), "\"ctrl \x01 raw\"",
      "/* unterminated comment", "{\"a\":1,}",
  };
  for (const std::string& text : bad) EXPECT_TRUE(Refused(text)) << "accepted: " << text;
  // Comments and blanks are not errors, and a failed reader is reusable.
  kxJson::Reader reader;
  Value v;
  EXPECT_FALSE(reader.parse("[1, 2, {\"half\": ", v));
  EXPECT_TRUE(reader.parse(" // leading\n{ /* inner */ \"a\" : 1 }\n\t", v));
  EXPECT_EQ(v["a"].asInt(), 1);
  EXPECT_TRUE(reader.getFormattedErrorMessages().empty());
  EXPECT_FALSE(reader.parse(nullptr, nullptr, v));
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
  EXPECT_FALSE(reader.parse(std::string(limit + 1, '[') + std::string(limit + 1, ']'), v));
  EXPECT_NE(reader.getFormattedErrorMessages().find("nesting"), std::string::npos);
}

TEST(JsonWriter, NonFiniteRealsBecomeNull) {
  Value v;
  v.append(std::numeric_limits<double>::infinity());
  v.append(std::nan(""));
  EXPECT_EQ(v.toString(), "[null,null]");
}

}  // namespace
