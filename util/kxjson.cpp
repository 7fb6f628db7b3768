// The JSON document model and its text forms. Parsing and writing go through
// RapidJSON's SAX interface: the reader is iterative and the builder below
// refuses nesting past Reader::kMaxDepth, so no document can run the stack dry.
#include "netloom/util/kxjson.h"

// RapidJSON 1.1's internal stack starts out as a null pointer and computes
// `null + n` before its first allocation: harmless, but UBSan in clang
// reports it as pointer overflow. Keep that one check out of its code.
#if defined(__clang__)
#pragma clang attribute push(__attribute__((no_sanitize("pointer-overflow"))), apply_to = function)
#endif
#include <rapidjson/error/en.h>
#include <rapidjson/memorystream.h>
#include <rapidjson/reader.h>
#include <rapidjson/stringbuffer.h>
#include <rapidjson/writer.h>
#if defined(__clang__)
#pragma clang attribute pop
#endif

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <cctype>
#include <strings.h>
#include <deque>
#include <istream>
#include <iterator>
#include <limits>
#include <map>
#include <memory>
#include <ostream>
#include <sstream>

namespace netloom::detail {

struct JsonArray {
  std::deque<kxJson::Value> items;
};

// Members live in a map, so references to them survive later insertions;
// `order` remembers the order in which keys first arrived.
struct JsonObject {
  using Map = std::map<std::string, kxJson::Value>;
  Map members;
  std::vector<Map::iterator> order;

  kxJson::Value& findOrAdd(const std::string& key) {
    auto found = members.lower_bound(key);
    if (found != members.end() && found->first == key) return found->second;
    auto it = members.emplace_hint(found, key, kxJson::Value());
    order.push_back(it);
    return it->second;
  }
};

namespace {

constexpr std::int64_t kInt64Max = std::numeric_limits<std::int64_t>::max();
constexpr std::int64_t kInt64Min = std::numeric_limits<std::int64_t>::min();

std::int64_t ClampToInt64(double d) {
  if (std::isnan(d)) return 0;
  if (d >= 9223372036854775808.0) return kInt64Max;
  if (d < -9223372036854775808.0) return kInt64Min;
  return static_cast<std::int64_t>(d);
}

std::uint64_t ClampToUInt64(double d) {
  if (std::isnan(d) || d <= 0) return 0;
  if (d >= 18446744073709551616.0) return std::numeric_limits<std::uint64_t>::max();
  return static_cast<std::uint64_t>(d);
}

std::int64_t SaturatingMul1000(std::int64_t seconds) {
  if (seconds > kInt64Max / 1000) return kInt64Max;
  if (seconds < kInt64Min / 1000) return kInt64Min;
  return seconds * 1000;
}

std::int64_t FloorDiv1000(std::int64_t millis) {
  std::int64_t q = millis / 1000;
  if (millis % 1000 < 0) --q;
  return q;
}

// Whole-text decimal integer: optional sign, digits, nothing else.
// Sets `negative` and the magnitude clamped to uint64; false if not a number.
bool ParseDecimal(const std::string& text, bool& negative, std::uint64_t& magnitude) {
  const char* p = text.data();
  const char* end = p + text.size();
  negative = false;
  if (p != end && (*p == '-' || *p == '+')) {
    negative = *p == '-';
    ++p;
  }
  if (p == end) return false;
  magnitude = 0;
  bool overflow = false;
  for (; p != end; ++p) {
    if (*p < '0' || *p > '9') return false;
    const unsigned digit = static_cast<unsigned>(*p - '0');
    if (magnitude > (std::numeric_limits<std::uint64_t>::max() - digit) / 10) overflow = true;
    if (!overflow) magnitude = magnitude * 10 + digit;
  }
  if (overflow) magnitude = std::numeric_limits<std::uint64_t>::max();
  return true;
}

bool ParseWholeDouble(const std::string& text, double& out) {
  if (text.empty() || std::isspace(static_cast<unsigned char>(text[0]))) return false;
  char* stop = nullptr;
  out = std::strtod(text.c_str(), &stop);
  return stop == text.c_str() + text.size();
}

std::string DoubleText(double d) {
  if (std::isnan(d)) return "nan";
  if (std::isinf(d)) return d > 0 ? "inf" : "-inf";
  char buf[64];
  auto res = std::to_chars(buf, buf + sizeof buf, d);
  return std::string(buf, res.ptr);
}

const kxJson::Value& NullValue() {
  static const kxJson::Value null;
  return null;
}

}  // namespace
}  // namespace netloom::detail

namespace kxJson {

using netloom::detail::JsonArray;
using netloom::detail::JsonObject;
namespace d = netloom::detail;

// ---------------------------------------------------------------- lifecycle

Value::Value() : int_(0) {}

Value::Value(ValueType type) : type_(type), int_(0) {
  switch (type) {
    case arrayValue: array_ = new JsonArray; break;
    case objectValue: object_ = new JsonObject; break;
    case realValue: real_ = 0.0; break;
    case booleanValue: bool_ = false; break;
    case nullValue: case intValue: case uintValue: case stringValue: case timeValue: break;
    default: type_ = nullValue; break;
  }
}

Value::Value(int value) : type_(intValue), int_(value) {}
Value::Value(unsigned value) : type_(uintValue), uint_(value) {}
Value::Value(long value) : type_(intValue), int_(value) {}
Value::Value(unsigned long value) : type_(uintValue), uint_(value) {}
Value::Value(long long value) : type_(intValue), int_(static_cast<Int64>(value)) {}
Value::Value(unsigned long long value) : type_(uintValue), uint_(static_cast<UInt64>(value)) {}
Value::Value(double value) : type_(realValue), real_(value) {}
Value::Value(const char* value) : type_(stringValue), int_(0), string_(value ? value : "") {}
Value::Value(const char* begin, const char* end)
    : type_(stringValue), int_(0), string_(begin && end > begin ? std::string(begin, end) : std::string()) {}
Value::Value(const std::string& value) : type_(stringValue), int_(0), string_(value) {}
Value::Value(bool value) : type_(booleanValue), int_(0) { bool_ = value; }

Value::Value(TimePoint time) : type_(timeValue) {
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(time.time_since_epoch());
  millis_ = static_cast<Int64>(ms.count());
}

Value::Value(UInt64 value, bool asNumber) : int_(0) {
  if (asNumber) {
    type_ = uintValue;
    uint_ = value;
  } else {
    type_ = timeValue;
    millis_ = d::SaturatingMul1000(static_cast<Int64>(value));
  }
}

Value Value::fromTime(std::time_t seconds) {
  return fromTimeMilliseconds(d::SaturatingMul1000(static_cast<Int64>(seconds)));
}

Value Value::fromTimeMilliseconds(Int64 milliseconds) {
  Value v;
  v.type_ = timeValue;
  v.millis_ = milliseconds;
  return v;
}

Value::Value(const Value& other) : int_(0) { copyFrom(other); }

Value::Value(Value&& other) noexcept : type_(other.type_), int_(other.int_), string_(std::move(other.string_)) {
  // The union was copied bit for bit, container pointers included.
  other.type_ = nullValue;
  other.int_ = 0;
}

Value::~Value() { destroy(); }

Value& Value::operator=(const Value& other) {
  if (this != &other) {
    Value copy(other);
    swap(copy);
  }
  return *this;
}

Value& Value::operator=(Value&& other) noexcept {
  if (this != &other) {
    // `other` may live inside this value; detach it before letting go.
    Value taken(std::move(other));
    swap(taken);
  }
  return *this;
}

void Value::swap(Value& other) noexcept {
  std::swap(type_, other.type_);
  std::swap(int_, other.int_);
  string_.swap(other.string_);
}

void Value::destroy() noexcept {
  if (type_ == arrayValue) delete array_;
  if (type_ == objectValue) delete object_;
  type_ = nullValue;
  int_ = 0;
  string_.clear();
}

// Called on a null value only; the type is set once the copy is complete,
// so a throwing copy leaves a null value behind.
void Value::copyFrom(const Value& other) {
  string_ = other.string_;
  if (other.type_ == arrayValue) {
    array_ = new JsonArray(*other.array_);
  } else if (other.type_ == objectValue) {
    auto obj = std::make_unique<JsonObject>();
    for (const auto& it : other.object_->order) {
      auto ins = obj->members.emplace(it->first, it->second);
      obj->order.push_back(ins.first);
    }
    object_ = obj.release();
  } else {
    int_ = other.int_;
  }
  type_ = other.type_;
}

JsonArray& Value::makeArray() {
  if (type_ != arrayValue) {
    destroy();
    array_ = new JsonArray;
    type_ = arrayValue;
  }
  return *array_;
}

JsonObject& Value::makeObject() {
  if (type_ != objectValue) {
    destroy();
    object_ = new JsonObject;
    type_ = objectValue;
  }
  return *object_;
}

void Value::setNull() { destroy(); }

// -------------------------------------------------------------- type tests

bool Value::isInt64() const {
  return type_ == intValue || (type_ == uintValue && uint_ <= static_cast<UInt64>(d::kInt64Max));
}
bool Value::isUInt64() const { return type_ == uintValue || (type_ == intValue && int_ >= 0); }
bool Value::isInt() const {
  return isInt64() && asInt64() >= std::numeric_limits<Int>::min() && asInt64() <= std::numeric_limits<Int>::max();
}
bool Value::isUInt() const { return isUInt64() && asUInt64() <= std::numeric_limits<UInt>::max(); }

// -------------------------------------------------------------- conversions

Int64 Value::asInt64() const {
  switch (type_) {
    case intValue: return int_;
    case uintValue: return static_cast<Int64>(uint_);
    case realValue: return d::ClampToInt64(real_);
    case booleanValue: return bool_ ? 1 : 0;
    case timeValue: return d::FloorDiv1000(millis_);
    case stringValue: {
      bool negative = false;
      UInt64 magnitude = 0;
      if (!d::ParseDecimal(string_, negative, magnitude)) return 0;
      if (negative) {
        return magnitude > static_cast<UInt64>(d::kInt64Max) ? d::kInt64Min : -static_cast<Int64>(magnitude);
      }
      return magnitude > static_cast<UInt64>(d::kInt64Max) ? d::kInt64Max : static_cast<Int64>(magnitude);
    }
    default: return 0;
  }
}

UInt64 Value::asUInt64() const {
  switch (type_) {
    case intValue: return static_cast<UInt64>(int_);
    case uintValue: return uint_;
    case realValue: return d::ClampToUInt64(real_);
    case booleanValue: return bool_ ? 1 : 0;
    case timeValue: {
      const Int64 s = d::FloorDiv1000(millis_);
      return s < 0 ? 0 : static_cast<UInt64>(s);
    }
    case stringValue: {
      bool negative = false;
      UInt64 magnitude = 0;
      if (!d::ParseDecimal(string_, negative, magnitude) || negative) return 0;
      return magnitude;
    }
    default: return 0;
  }
}

Int Value::asInt() const {
  if (type_ == uintValue) {
    return uint_ > static_cast<UInt64>(std::numeric_limits<Int>::max()) ? std::numeric_limits<Int>::max()
                                                                        : static_cast<Int>(uint_);
  }
  const Int64 v = asInt64();
  return static_cast<Int>(std::clamp<Int64>(v, std::numeric_limits<Int>::min(), std::numeric_limits<Int>::max()));
}

UInt Value::asUInt() const {
  if (type_ == intValue) return int_ < 0 ? 0 : static_cast<UInt>(std::min<Int64>(int_, std::numeric_limits<UInt>::max()));
  return static_cast<UInt>(std::min<UInt64>(asUInt64(), std::numeric_limits<UInt>::max()));
}

double Value::asDouble() const {
  switch (type_) {
    case intValue: return static_cast<double>(int_);
    case uintValue: return static_cast<double>(uint_);
    case realValue: return real_;
    case booleanValue: return bool_ ? 1.0 : 0.0;
    case timeValue: return static_cast<double>(millis_) / 1000.0;
    case stringValue: {
      double out = 0;
      return d::ParseWholeDouble(string_, out) ? out : 0.0;
    }
    default: return 0.0;
  }
}

bool Value::asBool() const {
  switch (type_) {
    case intValue: return int_ != 0;
    case uintValue: return uint_ != 0;
    case realValue: return real_ != 0.0 && !std::isnan(real_);
    case booleanValue: return bool_;
    case timeValue: return millis_ != 0;
    case stringValue: {
      if (string_.size() == 4 && strncasecmp(string_.c_str(), "true", 4) == 0) return true;
      double out = 0;
      return d::ParseWholeDouble(string_, out) && out != 0.0 && !std::isnan(out);
    }
    case arrayValue: return !array_->items.empty();
    case objectValue: return !object_->members.empty();
    default: return false;
  }
}

std::string Value::asString() const {
  switch (type_) {
    case stringValue: return string_;
    case intValue: return std::to_string(int_);
    case uintValue: return std::to_string(uint_);
    case realValue: return d::DoubleText(real_);
    case booleanValue: return bool_ ? "true" : "false";
    case timeValue: return std::to_string(d::FloorDiv1000(millis_));
    default: return std::string();
  }
}

std::time_t Value::asTime() const {
  switch (type_) {
    case timeValue: return static_cast<std::time_t>(d::FloorDiv1000(millis_));
    case intValue: case uintValue: case realValue: case booleanValue: case stringValue:
      return static_cast<std::time_t>(asInt64());
    default: return 0;
  }
}

Int64 Value::asTimeMilliseconds() const {
  if (type_ == timeValue) return millis_;
  return d::SaturatingMul1000(static_cast<Int64>(asTime()));
}

TimePoint Value::asTimePoint() const {
  return TimePoint(std::chrono::duration_cast<TimePoint::duration>(std::chrono::milliseconds(asTimeMilliseconds())));
}

// -------------------------------------------------------------- containers

ArrayIndex Value::size() const {
  if (type_ == arrayValue) return static_cast<ArrayIndex>(array_->items.size());
  if (type_ == objectValue) return static_cast<ArrayIndex>(object_->order.size());
  return 0;
}

bool Value::empty() const { return isNull() || ((isArray() || isObject()) && size() == 0); }

void Value::clear() {
  if (type_ == arrayValue) array_->items.clear();
  if (type_ == objectValue) {
    object_->order.clear();
    object_->members.clear();
  }
}

const Value& Value::operator[](ArrayIndex index) const {
  if (type_ != arrayValue || index >= array_->items.size()) return d::NullValue();
  return array_->items[index];
}

Value& Value::operator[](ArrayIndex index) {
  auto& items = makeArray().items;
  if (index >= items.size()) items.resize(static_cast<size_t>(index) + 1);
  return items[index];
}

const Value& Value::operator[](int index) const {
  if (index < 0) return d::NullValue();
  return (*this)[static_cast<ArrayIndex>(index)];
}

Value& Value::operator[](int index) { return (*this)[static_cast<ArrayIndex>(index < 0 ? 0 : index)]; }

Value& Value::append(const Value& value) {
  Value copy(value);  // `value` may live inside this array
  return append(std::move(copy));
}

Value& Value::append(Value&& value) {
  if (type_ != arrayValue) {
    Value taken(std::move(value));
    makeArray();
    array_->items.push_back(std::move(taken));
    return array_->items.back();
  }
  array_->items.push_back(std::move(value));
  return array_->items.back();
}

const Value& Value::operator[](const char* key) const { return (*this)[std::string(key ? key : "")]; }
Value& Value::operator[](const char* key) { return (*this)[std::string(key ? key : "")]; }

const Value& Value::operator[](const std::string& key) const {
  const Value* found = GetChild(key);
  return found ? *found : d::NullValue();
}

Value& Value::operator[](const std::string& key) { return makeObject().findOrAdd(key); }

const Value* Value::GetChild(const std::string& key) const {
  if (type_ != objectValue) return nullptr;
  auto it = object_->members.find(key);
  return it == object_->members.end() ? nullptr : &it->second;
}

Value* Value::GetChild(const std::string& key) {
  return const_cast<Value*>(static_cast<const Value*>(this)->GetChild(key));
}

Value Value::get(const std::string& key, const Value& defaultValue) const {
  const Value* found = GetChild(key);
  return found ? *found : defaultValue;
}

bool Value::removeMember(const std::string& key) { return removeMember(key, nullptr); }

bool Value::removeMember(const std::string& key, Value* removed) {
  if (type_ != objectValue) return false;
  auto it = object_->members.find(key);
  if (it == object_->members.end()) return false;
  Value taken(std::move(it->second));
  auto& order = object_->order;
  order.erase(std::find(order.begin(), order.end(), it));
  object_->members.erase(it);
  if (removed) *removed = std::move(taken);
  return true;
}

std::vector<std::string> Value::getMemberNames() const {
  std::vector<std::string> names;
  if (type_ == objectValue) {
    names.reserve(object_->order.size());
    for (const auto& it : object_->order) names.push_back(it->first);
  }
  return names;
}

Value::const_iterator Value::begin() const { return const_iterator(this, 0); }
Value::const_iterator Value::end() const { return const_iterator(this, size()); }
Value::iterator Value::begin() { return iterator(this, 0); }
Value::iterator Value::end() { return iterator(this, size()); }

bool Value::operator==(const Value& other) const {
  if (isIntegral() && other.isIntegral()) {
    if (type_ == other.type_) return int_ == other.int_;
    const Int64 s = type_ == intValue ? int_ : other.int_;
    const UInt64 u = type_ == uintValue ? uint_ : other.uint_;
    return s >= 0 && static_cast<UInt64>(s) == u;
  }
  if (type_ != other.type_) return false;
  switch (type_) {
    case nullValue: return true;
    case realValue: return real_ == other.real_;
    case booleanValue: return bool_ == other.bool_;
    case timeValue: return millis_ == other.millis_;
    case stringValue: return string_ == other.string_;
    case arrayValue: return array_->items == other.array_->items;
    case objectValue: {
      if (object_->members.size() != other.object_->members.size()) return false;
      auto a = object_->members.begin();
      auto b = other.object_->members.begin();
      for (; a != object_->members.end(); ++a, ++b) {
        if (a->first != b->first || a->second != b->second) return false;
      }
      return true;
    }
    default: return false;
  }
}

std::string Value::toString() const { return Writer::write(*this); }

std::ostream& operator<<(std::ostream& out, const Value& value) { return out << value.toString(); }

// --------------------------------------------------------------- iterators

// Dereferencing an end iterator, or one into a value that has changed
// type, is a caller's error, as with any standard container.
Value& ValueIterator::operator*() const {
  if (owner_->type_ == arrayValue) return owner_->array_->items[index_];
  return owner_->object_->order[index_]->second;
}

std::string ValueIterator::getKeyName() const {
  if (owner_ && owner_->type_ == objectValue && index_ < owner_->object_->order.size()) {
    return owner_->object_->order[index_]->first;
  }
  return std::string();
}

Value ValueIterator::key() const {
  if (owner_ && owner_->type_ == objectValue) return Value(getKeyName());
  return Value(static_cast<unsigned>(index_));
}

ValueConstIterator::ValueConstIterator(const ValueIterator& other) : owner_(other.owner_), index_(other.index_) {}

const Value& ValueConstIterator::operator*() const {
  if (owner_->type_ == arrayValue) return owner_->array_->items[index_];
  return owner_->object_->order[index_]->second;
}

std::string ValueConstIterator::getKeyName() const {
  if (owner_ && owner_->type_ == objectValue && index_ < owner_->object_->order.size()) {
    return owner_->object_->order[index_]->first;
  }
  return std::string();
}

Value ValueConstIterator::key() const {
  if (owner_ && owner_->type_ == objectValue) return Value(getKeyName());
  return Value(static_cast<unsigned>(index_));
}

// ------------------------------------------------------------------ reader

namespace {

// Builds Values from RapidJSON's SAX events.
class Builder : public rapidjson::BaseReaderHandler<rapidjson::UTF8<>, Builder> {
 public:
  explicit Builder(Value& root) : root_(root) {}

  bool Null() { return put(Value()); }
  bool Bool(bool b) { return put(Value(b)); }
  // Numbers arrive as their text (RapidJSON 1.1 turns some, such as
  // "0e307", into wrong doubles); integers that fit 64 bits stay integers.
  bool RawNumber(const char* s, rapidjson::SizeType len, bool) {
    const char* end = s + len;
    const bool integral = std::find_if(s, end, [](char c) { return c == '.' || c == 'e' || c == 'E'; }) == end;
    if (integral) {
      if (*s == '-') {
        kxJson::Int64 i = 0;
        auto res = std::from_chars(s, end, i);
        if (res.ec == std::errc() && res.ptr == end) return put(Value(i));
      } else {
        kxJson::UInt64 u = 0;
        auto res = std::from_chars(s, end, u);
        if (res.ec == std::errc() && res.ptr == end) {
          if (u <= static_cast<kxJson::UInt64>(d::kInt64Max)) return put(Value(static_cast<kxJson::Int64>(u)));
          return put(Value(u));
        }
      }
    }
    double v = 0;
    auto res = std::from_chars(s, end, v);
    if (res.ec == std::errc::result_out_of_range) {
      // Underflow reads as zero or a denormal; overflow is refused.
      v = std::strtod(std::string(s, len).c_str(), nullptr);
      if (std::isinf(v)) return false;
    } else if (res.ec != std::errc() || res.ptr != end) {
      return false;
    }
    return put(Value(v));
  }
  bool String(const char* s, rapidjson::SizeType len, bool) { return put(Value(s, s + len)); }
  bool Key(const char* s, rapidjson::SizeType len, bool) {
    key_.assign(s, len);
    return true;
  }
  bool StartObject() { return open(objectValue); }
  bool EndObject(rapidjson::SizeType) {
    Value& obj = *stack_.back();
    stack_.pop_back();
    // The one shape that stands for a time.
    if (obj.size() == 1) {
      const Value* date = obj.GetChild("$date");
      if (date && date->isInt64()) obj = Value::fromTimeMilliseconds(date->asInt64());
    }
    return true;
  }
  bool StartArray() { return open(arrayValue); }
  bool EndArray(rapidjson::SizeType) {
    stack_.pop_back();
    return true;
  }

  bool tooDeep() const { return tooDeep_; }

 private:
  Value* slot() {
    if (stack_.empty()) return &root_;
    Value& top = *stack_.back();
    if (top.isArray()) return &top.append(Value());
    return &top[key_];
  }
  bool put(Value&& v) {
    *slot() = std::move(v);
    return true;
  }
  bool open(ValueType type) {
    if (stack_.size() >= Reader::kMaxDepth) {
      tooDeep_ = true;
      return false;
    }
    Value* s = slot();
    *s = Value(type);
    stack_.push_back(s);
    return true;
  }

  Value& root_;
  std::vector<Value*> stack_;
  std::string key_;
  bool tooDeep_ = false;
};

constexpr unsigned kParseFlags =
    rapidjson::kParseIterativeFlag | rapidjson::kParseNumbersAsStringsFlag | rapidjson::kParseCommentsFlag;

}  // namespace

bool Reader::parse(const char* begin, const char* end, Value& root, bool) {
  error_.clear();
  root.setNull();
  if (!begin || end < begin) begin = end = "";
  const size_t length = static_cast<size_t>(end - begin);
  rapidjson::MemoryStream stream(begin, length);
  Builder builder(root);
  rapidjson::Reader reader;
  rapidjson::ParseResult result;
  try {
    result = reader.Parse<kParseFlags>(stream, builder);
  } catch (const std::bad_alloc&) {
    root.setNull();
    error_ = "out of memory";
    return false;
  }
  if (result.IsError()) {
    root.setNull();
    error_ = builder.tooDeep() ? "nesting deeper than " + std::to_string(kMaxDepth)
                               : rapidjson::GetParseError_En(result.Code());
    error_ += " at offset " + std::to_string(result.Offset());
    return false;
  }
  // MemoryStream reports a NUL byte as the end of the input; anything after
  // an embedded NUL is trailing garbage.
  if (stream.Tell() < length) {
    root.setNull();
    error_ = "unexpected NUL at offset " + std::to_string(stream.Tell());
    return false;
  }
  return true;
}

bool Reader::parse(const std::string& text, Value& root, bool collectComments) {
  return parse(text.data(), text.data() + text.size(), root, collectComments);
}

bool Reader::parse(std::istream& in, Value& root, bool collectComments) {
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  return parse(text, root, collectComments);
}

// ------------------------------------------------------------------ writer

namespace {

using TextWriter = rapidjson::Writer<rapidjson::StringBuffer>;

void WriteValue(TextWriter& w, const Value& v) {
  switch (v.type()) {
    case nullValue: w.Null(); break;
    case intValue: w.Int64(v.asInt64()); break;
    case uintValue: w.Uint64(v.asUInt64()); break;
    case realValue: {
      const double x = v.asDouble();
      if (std::isfinite(x)) w.Double(x); else w.Null();
      break;
    }
    case stringValue: {
      const std::string s = v.asString();
      w.String(s.data(), static_cast<rapidjson::SizeType>(s.size()));
      break;
    }
    case booleanValue: w.Bool(v.asBool()); break;
    case timeValue:
      w.StartObject();
      w.Key("$date");
      w.Int64(v.asTimeMilliseconds());
      w.EndObject();
      break;
    case arrayValue:
      w.StartArray();
      for (const Value& item : v) WriteValue(w, item);
      w.EndArray();
      break;
    case objectValue:
      w.StartObject();
      for (auto it = v.begin(); it != v.end(); ++it) {
        const std::string key = it.getKeyName();
        w.Key(key.data(), static_cast<rapidjson::SizeType>(key.size()));
        WriteValue(w, *it);
      }
      w.EndObject();
      break;
  }
}

}  // namespace

std::string Writer::write(const Value& root) {
  rapidjson::StringBuffer buffer;
  TextWriter w(buffer);
  WriteValue(w, root);
  return std::string(buffer.GetString(), buffer.GetSize());
}

}  // namespace kxJson
