// The JSON document model the library hands around: settings documents,
// messages to the platform's services, typed values on their way to and from
// Python. A Value is one node of a document and owns everything below it.
//
// Text goes through kxJson::Reader (parse) and kxJson::Writer / toString
// (compact text). Besides the JSON types a Value can hold a point in time; in
// text a time is the object {"$date": <milliseconds since 1970, UTC>}, and the
// reader turns exactly that shape (one member "$date" holding an integer) back
// into a time.
//
// Nothing here throws or aborts on odd input or on a member of the wrong type;
// the conversion rules below say what each accessor gives instead.
#pragma once

#include <chrono>
#include <cstdint>
#include <ctime>
#include <iosfwd>
#include <string>
#include <vector>

#include "netloom/export.h"

namespace netloom::detail {
struct JsonArray;
struct JsonObject;
}  // namespace netloom::detail

namespace kxJson {

using Int = std::int32_t;
using UInt = std::uint32_t;
using Int64 = std::int64_t;
using UInt64 = std::uint64_t;
using ArrayIndex = std::uint32_t;
using TimePoint = std::chrono::system_clock::time_point;

// The numbers are visible through type() and are relied on by the typed
// value family; they never change.
enum ValueType {
  nullValue = 0,
  intValue = 1,     // signed 64-bit integer
  uintValue = 2,    // unsigned 64-bit integer
  realValue = 3,    // double
  stringValue = 4,  // byte string, may hold any bytes including NUL
  booleanValue = 5,
  arrayValue = 6,
  objectValue = 7,
  timeValue = 100,  // a point in time, held in milliseconds since 1970 UTC
};

class ValueIterator;
class ValueConstIterator;

// One JSON node.
//
// Conversion rules of the as...() accessors (no accessor throws or aborts):
//
//  asInt64   null 0; int the value; uint the same 64 bits read as signed, so
//            Value(UInt64(x), true).asInt64() == x for every Int64 x; real
//            truncated toward zero and clamped to the Int64 range, NaN 0;
//            bool 0 or 1; string: a text that is wholly a decimal integer
//            (optional sign, no blanks) gives that number clamped to the
//            range, anything else 0; time: seconds since 1970 (floored);
//            array and object 0.
//  asUInt64  as asInt64, but an int gives its 64 bits read as unsigned, a
//            negative real or negative text gives 0.
//  asInt     asInt64 clamped to the Int range (also for a uint: clamped, not
//            reinterpreted).  asUInt: asUInt64 clamped to the UInt range.
//  asDouble  null 0.0; int, uint and real their value; bool 0.0 or 1.0;
//            string: a text that is wholly a number (strtod syntax) gives it,
//            anything else 0.0; time: seconds since 1970 (with fraction);
//            array and object 0.0.
//  asBool    null false; numbers: not zero (NaN false); string: "true" in any
//            case or a non-zero number gives true, anything else false;
//            time: not the epoch; array and object: not empty.
//  asString  null ""; string the bytes; int and uint decimal; real the
//            shortest text that reads back to the same double ("nan",
//            "inf", "-inf" for those); bool "true" or "false"; time the
//            decimal seconds since 1970; array and object "".
//  asTime    time: seconds since 1970 (floored); int, uint, real, bool and
//            string: asInt64 taken as seconds; others 0.
//
// Members of an object keep the order in which they were first added; a
// repeated key (also in parsed text) replaces the value and keeps the place.
// Parsed documents are at most Reader::kMaxDepth levels deep. Copying,
// comparing, writing and destroying recurse once per level, so documents
// built in code should stay within that depth as well.
//
// References returned by operator[] and append stay valid while members or
// elements are added elsewhere in the document; removing a member or
// assigning over a container invalidates references into it.
class NETLOOM_API Value {
 public:
  using iterator = ValueIterator;
  using const_iterator = ValueConstIterator;
  using Members = std::vector<std::string>;

  Value();
  Value(ValueType type);  // NOLINT: the empty value of that type
  Value(int value);       // NOLINT
  Value(unsigned value);  // NOLINT
  Value(long value);      // NOLINT
  Value(unsigned long value);  // NOLINT
  Value(long long value);      // NOLINT
  Value(unsigned long long value);  // NOLINT
  Value(double value);              // NOLINT
  Value(const char* value);         // NOLINT: null pointer gives ""
  Value(const char* begin, const char* end);
  Value(const std::string& value);  // NOLINT
  Value(bool value);                // NOLINT
  // A time, kept to the millisecond.
  Value(TimePoint time);            // NOLINT
  // With asNumber false: the time `value` seconds after 1970, where `value`
  // is the bit pattern of a signed count (so times before 1970 pass through
  // a cast to UInt64 unharmed). With asNumber true: the integer `value`.
  Value(UInt64 value, bool asNumber);
  Value(const Value& other);
  Value(Value&& other) noexcept;
  ~Value();

  Value& operator=(const Value& other);
  Value& operator=(Value&& other) noexcept;

  // A time from seconds / milliseconds since 1970. Out-of-range counts are
  // clamped to what milliseconds in an Int64 can hold.
  static Value fromTime(std::time_t seconds);
  static Value fromTimeMilliseconds(Int64 milliseconds);

  ValueType type() const { return type_; }
  void swap(Value& other) noexcept;

  bool isNull() const { return type_ == nullValue; }
  bool isBool() const { return type_ == booleanValue; }
  bool isInt() const;     // an integer that fits Int
  bool isUInt() const;    // an integer that fits UInt
  bool isInt64() const;   // an integer that fits Int64
  bool isUInt64() const;  // an integer that fits UInt64
  bool isIntegral() const { return type_ == intValue || type_ == uintValue; }
  bool isDouble() const { return type_ == realValue; }
  bool isNumeric() const { return isIntegral() || isDouble(); }
  bool isString() const { return type_ == stringValue; }
  bool isArray() const { return type_ == arrayValue; }
  bool isObject() const { return type_ == objectValue; }
  bool isTime() const { return type_ == timeValue; }

  std::string asString() const;
  Int asInt() const;
  UInt asUInt() const;
  Int64 asInt64() const;
  UInt64 asUInt64() const;
  double asDouble() const;
  bool asBool() const;
  std::time_t asTime() const;
  // Milliseconds since 1970 of a time; other types: asTime() * 1000, clamped.
  Int64 asTimeMilliseconds() const;
  TimePoint asTimePoint() const;

  // Number of elements of an array or members of an object; 0 otherwise.
  ArrayIndex size() const;
  // True for null, an empty array and an empty object.
  bool empty() const;
  // Empties an array or object, keeping its type; other values unchanged.
  void clear();
  void setNull();

  // Array access. The const form gives a null value past the end or on a
  // non-array. The non-const form turns a null value into an array, grows
  // the array with nulls up to `index`, and replaces any other non-array
  // with an empty array first.
  const Value& operator[](ArrayIndex index) const;
  Value& operator[](ArrayIndex index);
  const Value& operator[](int index) const;  // negative: null
  Value& operator[](int index);              // negative: treated as 0
  // Appends to an array (a null or other non-array becomes an empty array
  // first); returns the stored element.
  Value& append(const Value& value);
  Value& append(Value&& value);

  // Object access. The const form gives a null value for a missing member
  // or a non-object. The non-const form creates a missing member (null) at
  // the end; a null value becomes an object, and any other non-object is
  // replaced with an empty object first.
  const Value& operator[](const char* key) const;
  Value& operator[](const char* key);
  const Value& operator[](const std::string& key) const;
  Value& operator[](const std::string& key);

  // The member, or nullptr when absent or this is no object.
  const Value* GetChild(const std::string& key) const;
  Value* GetChild(const std::string& key);
  bool isMember(const std::string& key) const { return GetChild(key) != nullptr; }
  // The member's value, or `defaultValue` when absent.
  Value get(const std::string& key, const Value& defaultValue) const;
  // Removes a member; true when it was there.
  bool removeMember(const std::string& key);
  bool removeMember(const std::string& key, Value* removed);
  // Member names in member order; empty for a non-object.
  Members getMemberNames() const;

  // Elements of an array or members of an object, in order. Other values
  // have no elements (begin() == end()).
  const_iterator begin() const;
  const_iterator end() const;
  iterator begin();
  iterator end();

  // Deep equality. Integers compare by mathematical value whatever their
  // int/uint type; reals equal to reals only; objects regardless of member
  // order.
  bool operator==(const Value& other) const;
  bool operator!=(const Value& other) const { return !(*this == other); }

  // Compact JSON text.
  std::string toString() const;
  std::string toStyledString() const { return toString(); }

 private:
  friend class ValueIterator;
  friend class ValueConstIterator;
  friend struct netloom::detail::JsonArray;
  friend struct netloom::detail::JsonObject;

  void destroy() noexcept;
  void copyFrom(const Value& other);
  netloom::detail::JsonArray& makeArray();
  netloom::detail::JsonObject& makeObject();

  ValueType type_ = nullValue;
  union {
    Int64 int_;
    UInt64 uint_;
    double real_;
    bool bool_;
    Int64 millis_;
    netloom::detail::JsonArray* array_;
    netloom::detail::JsonObject* object_;
  };
  std::string string_;
};

NETLOOM_API std::ostream& operator<<(std::ostream& out, const Value& value);

// Walks the elements of an array or the members of an object.
class NETLOOM_API ValueIterator {
 public:
  ValueIterator() = default;
  Value& operator*() const;
  Value* operator->() const { return &**this; }
  ValueIterator& operator++() { ++index_; return *this; }
  ValueIterator operator++(int) { ValueIterator old = *this; ++index_; return old; }
  bool operator==(const ValueIterator& other) const {
    return owner_ == other.owner_ && index_ == other.index_;
  }
  bool operator!=(const ValueIterator& other) const { return !(*this == other); }
  // The member's name; "" for an array element.
  std::string getKeyName() const;
  std::string name() const { return getKeyName(); }
  // Position in the array or in member order.
  ArrayIndex index() const { return index_; }
  Value key() const;  // the name as a string value, or the index for an array

 private:
  friend class Value;
  friend class ValueConstIterator;
  ValueIterator(Value* owner, ArrayIndex index) : owner_(owner), index_(index) {}
  Value* owner_ = nullptr;
  ArrayIndex index_ = 0;
};

class NETLOOM_API ValueConstIterator {
 public:
  ValueConstIterator() = default;
  ValueConstIterator(const ValueIterator& other);  // NOLINT
  const Value& operator*() const;
  const Value* operator->() const { return &**this; }
  ValueConstIterator& operator++() { ++index_; return *this; }
  ValueConstIterator operator++(int) { ValueConstIterator old = *this; ++index_; return old; }
  bool operator==(const ValueConstIterator& other) const {
    return owner_ == other.owner_ && index_ == other.index_;
  }
  bool operator!=(const ValueConstIterator& other) const { return !(*this == other); }
  std::string getKeyName() const;
  std::string name() const { return getKeyName(); }
  ArrayIndex index() const { return index_; }
  Value key() const;

 private:
  friend class Value;
  ValueConstIterator(const Value* owner, ArrayIndex index) : owner_(owner), index_(index) {}
  const Value* owner_ = nullptr;
  ArrayIndex index_ = 0;
};

// Reads JSON text. Comments (// and /* */) are accepted and skipped.
// Nesting deeper than kMaxDepth arrays/objects is refused, so hostile text
// cannot exhaust the stack. Text after the value other than blanks is an
// error.
class NETLOOM_API Reader {
 public:
  static constexpr unsigned kMaxDepth = 1000;

  // On success `root` holds the document and the result is true. On failure
  // the result is false, `root` is null and getFormattedErrorMessages()
  // says why. `collectComments` is accepted for callers that pass it;
  // comments are never kept.
  bool parse(const std::string& text, Value& root, bool collectComments = true);
  bool parse(const char* begin, const char* end, Value& root, bool collectComments = true);
  bool parse(std::istream& in, Value& root, bool collectComments = true);

  std::string getFormattedErrorMessages() const { return error_; }

 private:
  std::string error_;
};

// Writes compact JSON text. Non-finite reals are written as null.
class NETLOOM_API Writer {
 public:
  static std::string write(const Value& root);
};

// The same writer under the name callers of older JSON libraries know.
using FastWriter = Writer;

}  // namespace kxJson
