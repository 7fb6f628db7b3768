// The navigating XML document, kept in a pugixml tree with three cursors
// (parent, current element, current child). pugixml parses, copies and
// prints without recursion, so deep documents cost memory, not stack.
#include "netloom/util/markup.h"

#include <pugixml.hpp>

#include <cctype>
#include <charconv>
#include <cstdio>
#include <cmath>
#include <cstring>
#include <fstream>
#include <iterator>
#include <limits>
#include <sstream>
#include <string_view>
#include <vector>

namespace netloom::detail {

struct MarkupImpl {
  pugi::xml_document doc;
  pugi::xml_node parent;
  pugi::xml_node main;
  pugi::xml_node child;
  std::string error;

  MarkupImpl() { reset(); }
  void reset() {
    parent = doc;
    main = pugi::xml_node();
    child = pugi::xml_node();
  }
};

namespace {

// Line ends are kept as written (no end-of-line normalisation), so data with
// CR survives; whitespace-only text is kept when it is an element's only
// content, so an element whose data is blanks reads back the same.
constexpr unsigned kParseOptions = (pugi::parse_default & ~pugi::parse_eol) | pugi::parse_declaration |
                                   pugi::parse_ws_pcdata_single | pugi::parse_comments | pugi::parse_pi |
                                   pugi::parse_doctype | pugi::parse_fragment;
constexpr unsigned kFormat = pugi::format_raw | pugi::format_no_declaration;

bool IsElement(const pugi::xml_node& n) { return n.type() == pugi::node_element; }

pugi::xml_node NextElement(pugi::xml_node n) {
  for (n = n.next_sibling(); n && !IsElement(n); n = n.next_sibling()) {}
  return n;
}

pugi::xml_node PrevElement(pugi::xml_node n) {
  for (n = n.previous_sibling(); n && !IsElement(n); n = n.previous_sibling()) {}
  return n;
}

pugi::xml_node FirstElement(const pugi::xml_node& parent) {
  pugi::xml_node n = parent.first_child();
  return n && !IsElement(n) ? NextElement(n) : n;
}

bool NameMatches(const pugi::xml_node& n, const char* name) {
  return !name || !*name || std::strcmp(n.name(), name) == 0;
}

// Next element after `from` (or the first under `parent` when `from` is
// empty) whose name matches.
pugi::xml_node Search(const pugi::xml_node& parent, const pugi::xml_node& from, const char* name) {
  pugi::xml_node n = from ? NextElement(from) : FirstElement(parent);
  while (n && !NameMatches(n, name)) n = NextElement(n);
  return n;
}

bool IsNameStart(unsigned char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_' || c == ':' || c >= 0x80;
}

bool IsXmlName(const char* name) {
  if (!name || !IsNameStart(static_cast<unsigned char>(*name))) return false;
  for (const char* p = name + 1; *p; ++p) {
    const unsigned char c = static_cast<unsigned char>(*p);
    if (!IsNameStart(c) && !(c >= '0' && c <= '9') && c != '-' && c != '.') return false;
  }
  return true;
}

std::string DataOf(const pugi::xml_node& n) {
  std::string out;
  if (!n) return out;
  for (pugi::xml_node c = n.first_child(); c; c = c.next_sibling()) {
    if (IsElement(c)) return std::string();
    if (c.type() == pugi::node_pcdata || c.type() == pugi::node_cdata) out += c.value();
  }
  return out;
}

bool HasElementChild(const pugi::xml_node& n) { return static_cast<bool>(FirstElement(n)); }

void PutData(pugi::xml_node n, const std::string& data, int flags) {
  while (n.first_child()) n.remove_child(n.first_child());
  if (data.empty()) return;
  const std::string text = (flags & CMarkup::MNF_WITHREFS) ? CMarkup::UnescapeText(data.c_str()) : data;
  const auto type = (flags & CMarkup::MNF_WITHCDATA) ? pugi::node_cdata : pugi::node_pcdata;
  n.append_child(type).set_value(text.c_str());
}

// True where a raw (unescaped) text holds a character reference to code point
// 0 ("&#0;", "&#x000;"). pugixml decodes it to a NUL, which then ends the C
// string it keeps, so everything behind it would be dropped without a word.
bool HasNulReference(const char* v) {
  for (const char* p = std::strstr(v, "&#"); p; p = std::strstr(p + 2, "&#")) {
    const char* q = p + 2;
    if (*q == 'x' || *q == 'X') ++q;
    const char* zeros = q;
    while (*q == '0') ++q;
    if (q != zeros && *q == ';') return true;
  }
  return false;
}

// A document with such a reference is not XML: refuse it rather than load it
// cut short. Only text and attribute values decode references (CDATA,
// comments and instructions keep theirs literally), so those are checked on a
// second, non-decoding parse, which only documents holding "&#" pay for.
bool HoldsNulReference(const char* data, size_t size, pugi::xml_encoding encoding) {
  if (encoding == pugi::encoding_utf8 && std::string_view(data, size).find("&#") == std::string_view::npos)
    return false;
  pugi::xml_document raw;
  if (!raw.load_buffer(data, size, kParseOptions & ~pugi::parse_escapes, encoding)) return false;
  struct Walker : pugi::xml_tree_walker {
    bool found = false;
    bool for_each(pugi::xml_node& n) override {
      if (n.type() == pugi::node_pcdata && HasNulReference(n.value())) found = true;
      for (pugi::xml_attribute a = n.first_attribute(); a && !found; a = a.next_attribute())
        found = HasNulReference(a.value());
      return !found;
    }
  } walker;
  raw.traverse(walker);
  return walker.found;
}

// Parses `text` into `doc` and tidies the top level: blank text between
// top-level nodes goes, any other text there makes the markup malformed.
bool ParseInto(pugi::xml_document& doc, const char* data, size_t size, pugi::xml_encoding encoding,
               std::string& error) {
  pugi::xml_parse_result result = doc.load_buffer(data, size, kParseOptions, encoding);
  if (!result) {
    error = std::string(result.description()) + " at offset " + std::to_string(result.offset);
    doc.reset();
    return false;
  }
  if (HoldsNulReference(data, size, encoding)) {
    error = "character reference to code point 0";
    doc.reset();
    return false;
  }
  for (pugi::xml_node n = doc.first_child(); n;) {
    pugi::xml_node next = n.next_sibling();
    if (n.type() == pugi::node_pcdata || n.type() == pugi::node_cdata) {
      const char* v = n.value();
      if (std::strspn(v, " \t\r\n") != std::strlen(v)) {
        error = "text outside the root element";
        doc.reset();
        return false;
      }
      doc.remove_child(n);
    }
    n = next;
  }
  error.clear();
  return true;
}

// Path of child positions from the document down to `n`, to find the same
// node in a copy of the document.
std::vector<size_t> PathOf(pugi::xml_node n) {
  std::vector<size_t> path;
  if (!n) return path;
  while (n.parent()) {
    size_t index = 0;
    for (pugi::xml_node s = n.previous_sibling(); s; s = s.previous_sibling()) ++index;
    path.push_back(index);
    n = n.parent();
  }
  return std::vector<size_t>(path.rbegin(), path.rend());
}

pugi::xml_node Follow(const pugi::xml_document& doc, const std::vector<size_t>& path) {
  pugi::xml_node n = doc;
  for (size_t index : path) {
    n = n.first_child();
    for (size_t i = 0; i < index && n; ++i) n = n.next_sibling();
  }
  return n;
}

std::string Print(const pugi::xml_node& n) {
  std::ostringstream out;
  n.print(out, "", kFormat, pugi::encoding_utf8);
  return out.str();
}

// ---- typed text

std::string Trimmed(const std::string& text) {
  const size_t b = text.find_first_not_of(" \t\r\n");
  if (b == std::string::npos) return std::string();
  const size_t e = text.find_last_not_of(" \t\r\n");
  return text.substr(b, e - b + 1);
}

template <typename T>
bool ParseInteger(const std::string& raw, T& out) {
  std::string text = Trimmed(raw);
  const char* p = text.data();
  const char* end = p + text.size();
  if (p != end && *p == '+') ++p;
  T value{};
  auto res = std::from_chars(p, end, value, 10);
  if (p == end || res.ec != std::errc() || res.ptr != end) return false;
  out = value;
  return true;
}

bool ParseReal(const std::string& raw, double& out) {
  std::string text = Trimmed(raw);
  const char* p = text.data();
  const char* end = p + text.size();
  if (p != end && *p == '+') ++p;
  double value = 0;
  auto res = std::from_chars(p, end, value);
  if (p == end || res.ec != std::errc() || res.ptr != end) return false;
  out = value;
  return true;
}

bool ParseBoolText(const std::string& raw, bool& out) {
  std::string text = Trimmed(raw);
  for (char& c : text) c = static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
  if (text == "true" || text == "1") {
    out = true;
    return true;
  }
  if (text == "false" || text == "0") {
    out = false;
    return true;
  }
  return false;
}

std::string RealText(double d) {
  char buf[64];
  auto res = std::to_chars(buf, buf + sizeof buf, d);
  return std::string(buf, res.ptr);
}

// Days since 1970-01-01 of a proleptic Gregorian date, and back.
std::int64_t DaysFromCivil(std::int64_t y, unsigned m, unsigned d) {
  y -= m <= 2;
  const std::int64_t era = (y >= 0 ? y : y - 399) / 400;
  const unsigned yoe = static_cast<unsigned>(y - era * 400);
  const unsigned doy = (153 * (m + (m > 2 ? -3 : 9)) + 2) / 5 + d - 1;
  const unsigned doe = yoe * 365 + yoe / 4 - yoe / 100 + doy;
  return era * 146097 + static_cast<std::int64_t>(doe) - 719468;
}

void CivilFromDays(std::int64_t z, std::int64_t& y, unsigned& m, unsigned& d) {
  z += 719468;
  const std::int64_t era = (z >= 0 ? z : z - 146096) / 146097;
  const unsigned doe = static_cast<unsigned>(z - era * 146097);
  const unsigned yoe = (doe - doe / 1460 + doe / 36524 - doe / 146096) / 365;
  const unsigned doy = doe - (365 * yoe + yoe / 4 - yoe / 100);
  const unsigned mp = (5 * doy + 2) / 153;
  d = doy - (153 * mp + 2) / 5 + 1;
  m = mp < 10 ? mp + 3 : mp - 9;
  y = static_cast<std::int64_t>(yoe) + era * 400 + (m <= 2);
}

std::string TimeText(CMarkup::TimePoint t) {
  using namespace std::chrono;
  const std::int64_t ms = floor<milliseconds>(t.time_since_epoch()).count();
  std::int64_t days = ms / 86400000;
  std::int64_t rest = ms % 86400000;
  if (rest < 0) {
    rest += 86400000;
    --days;
  }
  std::int64_t y;
  unsigned mo, d;
  CivilFromDays(days, y, mo, d);
  char buf[64];
  const int secs = static_cast<int>(rest / 1000);
  const int frac = static_cast<int>(rest % 1000);
  int n = std::snprintf(buf, sizeof buf, "%04lld-%02u-%02uT%02d:%02d:%02d", static_cast<long long>(y), mo, d,
                        secs / 3600, secs / 60 % 60, secs % 60);
  if (frac) n += std::snprintf(buf + n, sizeof buf - n, ".%03d", frac);
  std::snprintf(buf + n, sizeof buf - n, "Z");
  return buf;
}

// Seconds that a time point can hold without overflowing its tick count.
constexpr std::int64_t kMaxSeconds =
    std::numeric_limits<CMarkup::TimePoint::rep>::max() / CMarkup::TimePoint::period::den - 1;

bool MakeTime(std::int64_t millis, CMarkup::TimePoint& out) {
  if (millis / 1000 > kMaxSeconds || millis / 1000 < -kMaxSeconds) return false;
  out = CMarkup::TimePoint(std::chrono::duration_cast<CMarkup::TimePoint::duration>(std::chrono::milliseconds(millis)));
  return true;
}

bool ParseTimeText(const std::string& raw, CMarkup::TimePoint& out) {
  const std::string text = Trimmed(raw);
  long long seconds = 0;
  if (ParseInteger(text, seconds)) {
    if (seconds > kMaxSeconds || seconds < -kMaxSeconds) return false;
    return MakeTime(seconds * 1000, out);
  }
  // YYYY-MM-DD[T ]HH:MM:SS[.fff][Z]
  static const char kShape[] = "dddd-dd-dd?dd:dd:dd";
  const size_t used = sizeof kShape - 1;
  if (text.size() < used) return false;
  for (size_t i = 0; i < used; ++i) {
    const char c = text[i];
    const bool ok = kShape[i] == 'd' ? (c >= '0' && c <= '9') : kShape[i] == '?' ? (c == 'T' || c == ' ') : c == kShape[i];
    if (!ok) return false;
  }
  auto num = [&](size_t at, size_t len) {
    unsigned v = 0;
    for (size_t i = at; i < at + len; ++i) v = v * 10 + static_cast<unsigned>(text[i] - '0');
    return v;
  };
  const unsigned y = num(0, 4), mo = num(5, 2), d = num(8, 2), h = num(11, 2), mi = num(14, 2), s = num(17, 2);
  if (mo < 1 || mo > 12 || d < 1 || d > 31 || h > 23 || mi > 59 || s > 60) return false;
  const char* p = text.c_str() + used;
  int millis = 0;
  if (*p == '.') {
    ++p;
    int digits = 0;
    for (; *p >= '0' && *p <= '9'; ++p, ++digits) {
      if (digits < 3) millis = millis * 10 + (*p - '0');
    }
    if (digits == 0) return false;
    for (int i = digits; i < 3; ++i) millis *= 10;
  }
  if (*p == 'Z') ++p;
  if (*p) return false;
  const std::int64_t days = DaysFromCivil(y, mo, d);
  const std::int64_t secs = days * 86400 + h * 3600 + mi * 60 + s;
  if (secs > kMaxSeconds || secs < -kMaxSeconds) return false;
  return MakeTime(secs * 1000 + millis, out);
}

void AppendUtf8(std::string& out, unsigned long cp) {
  if (cp < 0x80) {
    out += static_cast<char>(cp);
  } else if (cp < 0x800) {
    out += static_cast<char>(0xC0 | (cp >> 6));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else if (cp < 0x10000) {
    out += static_cast<char>(0xE0 | (cp >> 12));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  } else {
    out += static_cast<char>(0xF0 | (cp >> 18));
    out += static_cast<char>(0x80 | ((cp >> 12) & 0x3F));
    out += static_cast<char>(0x80 | ((cp >> 6) & 0x3F));
    out += static_cast<char>(0x80 | (cp & 0x3F));
  }
}

// Length of a reference ("&name;", "&#123;", "&#x1F;") starting at `p`, or 0.
size_t ReferenceLength(const char* p) {
  if (*p != '&') return 0;
  const char* q = p + 1;
  if (*q == '#') {
    ++q;
    const bool hex = *q == 'x' || *q == 'X';
    if (hex) ++q;
    const char* digits = q;
    while (hex ? std::isxdigit(static_cast<unsigned char>(*q)) : std::isdigit(static_cast<unsigned char>(*q))) ++q;
    if (q == digits || *q != ';') return 0;
  } else {
    if (!IsNameStart(static_cast<unsigned char>(*q))) return 0;
    while (std::isalnum(static_cast<unsigned char>(*q)) || *q == '_' || *q == '-' || *q == '.' || *q == ':') ++q;
    if (*q != ';') return 0;
  }
  return static_cast<size_t>(q - p) + 1;
}

}  // namespace
}  // namespace netloom::detail

namespace d = netloom::detail;

// ------------------------------------------------------------- lifecycle

CMarkup::CMarkup() : impl_(std::make_unique<d::MarkupImpl>()) {}

CMarkup::CMarkup(const std::string& doc) : CMarkup() { SetDoc(doc); }

CMarkup::CMarkup(const CMarkup& other) : CMarkup() { *this = other; }

CMarkup::CMarkup(CMarkup&& other) noexcept : impl_(std::move(other.impl_)) {}

CMarkup& CMarkup::operator=(const CMarkup& other) {
  if (this == &other) return *this;
  auto fresh = std::make_unique<d::MarkupImpl>();
  if (!other.impl_) {
    impl_ = std::move(fresh);
    return *this;
  }
  const d::MarkupImpl& src = *other.impl_;
  fresh->doc.reset(src.doc);
  fresh->parent = d::Follow(fresh->doc, d::PathOf(src.parent));
  if (src.main) fresh->main = d::Follow(fresh->doc, d::PathOf(src.main));
  if (src.child) fresh->child = d::Follow(fresh->doc, d::PathOf(src.child));
  fresh->error = src.error;
  impl_ = std::move(fresh);
  return *this;
}

CMarkup& CMarkup::operator=(CMarkup&& other) noexcept {
  impl_ = std::move(other.impl_);
  return *this;
}

CMarkup::~CMarkup() = default;

// A moved-from object comes back to life as an empty document.
d::MarkupImpl& CMarkup::Self() {
  if (!impl_) impl_ = std::make_unique<d::MarkupImpl>();
  return *impl_;
}

// ------------------------------------------------------------ whole document

bool CMarkup::SetDoc(const std::string& doc) {
  auto& m = Self();
  const bool ok = d::ParseInto(m.doc, doc.data(), doc.size(), pugi::encoding_utf8, m.error);
  m.reset();
  return ok;
}

bool CMarkup::SetDoc(const char* doc) { return SetDoc(std::string(doc ? doc : "")); }

std::string CMarkup::GetDoc() const {
  if (!impl_) return std::string();
  std::string out;
  for (pugi::xml_node n = impl_->doc.first_child(); n; n = n.next_sibling()) {
    out += d::Print(n);
    if (n.type() == pugi::node_declaration) out += "\n";
  }
  return out;
}

bool CMarkup::Load(const std::string& path) {
  auto& m = Self();
  m.doc.reset();
  m.reset();
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    m.error = "cannot open " + path;
    return false;
  }
  std::string data((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  if (in.bad()) {
    m.error = "cannot read " + path;
    return false;
  }
  const bool ok = d::ParseInto(m.doc, data.data(), data.size(), pugi::encoding_auto, m.error);
  m.reset();
  return ok;
}

bool CMarkup::Save(const std::string& path) const {
  std::ofstream out(path, std::ios::binary | std::ios::trunc);
  if (!out) return false;
  const std::string text = GetDoc();
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
  out.close();
  return static_cast<bool>(out);
}

std::string CMarkup::UTF8Encoding() { return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n"; }

bool CMarkup::IsWellFormed() const {
  if (!impl_) return false;
  pugi::xml_node root = d::FirstElement(impl_->doc);
  return root && !d::NextElement(root);
}

std::string CMarkup::GetError() const { return impl_ ? impl_->error : std::string(); }

// ---------------------------------------------------------------- text

std::string CMarkup::EscapeText(const char* text, int flags) {
  std::string out;
  if (!text) return out;
  for (const char* p = text; *p; ++p) {
    switch (*p) {
      case '&':
        if ((flags & MNF_WITHREFS) && d::ReferenceLength(p)) out += '&';
        else out += "&amp;";
        break;
      case '<': out += "&lt;"; break;
      case '>': out += "&gt;"; break;
      case '"': out += (flags & MNF_ESCAPEQUOTES) ? "&quot;" : "\""; break;
      case '\'': out += (flags & MNF_ESCAPEQUOTES) ? "&apos;" : "'"; break;
      default: out += *p;
    }
  }
  return out;
}

std::string CMarkup::EscapeText(const std::string& text, int flags) { return EscapeText(text.c_str(), flags); }

std::string CMarkup::UnescapeText(const char* text) {
  static const struct {
    const char* ref;
    char ch;
  } kNamed[] = {{"&amp;", '&'}, {"&lt;", '<'}, {"&gt;", '>'}, {"&quot;", '"'}, {"&apos;", '\''}};
  std::string out;
  if (!text) return out;
  for (const char* p = text; *p;) {
    const size_t len = d::ReferenceLength(p);
    if (len == 0) {
      out += *p++;
      continue;
    }
    bool done = false;
    if (p[1] == '#') {
      const bool hex = p[2] == 'x' || p[2] == 'X';
      const char* digits = p + (hex ? 3 : 2);
      unsigned long cp = 0;
      auto res = std::from_chars(digits, p + len - 1, cp, hex ? 16 : 10);
      if (res.ec == std::errc() && cp > 0 && cp <= 0x10FFFF && (cp < 0xD800 || cp > 0xDFFF)) {
        d::AppendUtf8(out, cp);
        done = true;
      }
    } else {
      for (const auto& named : kNamed) {
        if (std::strncmp(p, named.ref, len) == 0 && std::strlen(named.ref) == len) {
          out += named.ch;
          done = true;
          break;
        }
      }
    }
    if (!done) out.append(p, len);
    p += len;
  }
  return out;
}

// ---------------------------------------------------------------- position

void CMarkup::ResetPos() { Self().reset(); }

void CMarkup::ResetMainPos() {
  auto& m = Self();
  m.main = pugi::xml_node();
  m.child = pugi::xml_node();
}

void CMarkup::ResetChildPos() { Self().child = pugi::xml_node(); }

bool CMarkup::FindElem(const char* name) {
  auto& m = Self();
  pugi::xml_node found = d::Search(m.parent, m.main, name);
  if (!found) return false;
  m.main = found;
  m.child = pugi::xml_node();
  return true;
}

bool CMarkup::FindChildElem(const char* name) {
  auto& m = Self();
  if (!m.main && !FindElem()) return false;
  pugi::xml_node found = d::Search(m.main, m.child, name);
  if (!found) return false;
  m.child = found;
  return true;
}

bool CMarkup::IntoElem() {
  auto& m = Self();
  if (!m.main) return false;
  m.parent = m.main;
  m.main = m.child;
  m.child = pugi::xml_node();
  return true;
}

bool CMarkup::OutOfElem() {
  auto& m = Self();
  if (m.parent.type() == pugi::node_document) return false;
  m.child = m.main;
  m.main = m.parent;
  m.parent = m.parent.parent();
  return true;
}

std::string CMarkup::GetTagName() const { return impl_ && impl_->main ? impl_->main.name() : ""; }
std::string CMarkup::GetChildTagName() const { return impl_ && impl_->child ? impl_->child.name() : ""; }

// ---------------------------------------------------------------- elements

bool CMarkup::AddText(const char* name, const std::string* data, int flags, bool before) {
  auto& m = Self();
  if (!d::IsXmlName(name)) return false;
  pugi::xml_node n;
  if (before) {
    pugi::xml_node anchor = m.main ? m.main : d::FirstElement(m.parent);
    n = anchor ? m.parent.insert_child_before(pugi::node_element, anchor) : m.parent.append_child(pugi::node_element);
  } else {
    n = m.main ? m.parent.insert_child_after(pugi::node_element, m.main) : m.parent.append_child(pugi::node_element);
  }
  if (!n) return false;
  n.set_name(name);
  if (data) d::PutData(n, *data, flags);
  m.main = n;
  m.child = pugi::xml_node();
  return true;
}

bool CMarkup::AddElem(const char* name, const char* data, int flags) {
  if (!data) return AddText(name, nullptr, flags, false);
  const std::string text(data);
  return AddText(name, &text, flags, false);
}

bool CMarkup::AddElem(const char* name, const std::string& data, int flags) {
  return AddText(name, &data, flags, false);
}

bool CMarkup::AddElem(const char* name, int value, int flags) { return AddElem(name, std::to_string(value), flags); }
bool CMarkup::AddElem(const char* name, unsigned value, int flags) { return AddElem(name, std::to_string(value), flags); }
bool CMarkup::AddElem(const char* name, long value, int flags) { return AddElem(name, std::to_string(value), flags); }
bool CMarkup::AddElem(const char* name, unsigned long value, int flags) {
  return AddElem(name, std::to_string(value), flags);
}
bool CMarkup::AddElem(const char* name, long long value, int flags) { return AddElem(name, std::to_string(value), flags); }
bool CMarkup::AddElem(const char* name, unsigned long long value, int flags) {
  return AddElem(name, std::to_string(value), flags);
}
bool CMarkup::AddElem(const char* name, double value, int flags) { return AddElem(name, d::RealText(value), flags); }
bool CMarkup::AddElem(const char* name, bool value, int flags) {
  return AddElem(name, std::string(value ? "true" : "false"), flags);
}
bool CMarkup::AddElem(const char* name, TimePoint value, int flags) {
  return AddElem(name, d::TimeText(value), flags);
}

bool CMarkup::InsertElem(const char* name, const char* data, int flags) {
  if (!data) return AddText(name, nullptr, flags, true);
  const std::string text(data);
  return AddText(name, &text, flags, true);
}

bool CMarkup::InsertElem(const char* name, const std::string& data, int flags) {
  return AddText(name, &data, flags, true);
}

bool CMarkup::AddChildElem(const char* name, const char* data, int flags) {
  return AddChildElem(name, std::string(data ? data : ""), flags);
}

bool CMarkup::AddChildElem(const char* name, const std::string& data, int flags) {
  auto& m = Self();
  if (!m.main || !d::IsXmlName(name)) return false;
  pugi::xml_node n =
      m.child ? m.main.insert_child_after(pugi::node_element, m.child) : m.main.append_child(pugi::node_element);
  if (!n) return false;
  n.set_name(name);
  d::PutData(n, data, flags);
  m.child = n;
  return true;
}

bool CMarkup::RemoveElem() {
  auto& m = Self();
  if (!m.main) return false;
  pugi::xml_node prev = d::PrevElement(m.main);
  m.parent.remove_child(m.main);
  m.main = prev;
  m.child = pugi::xml_node();
  return true;
}

bool CMarkup::RemoveChildElem() {
  auto& m = Self();
  if (!m.child) return false;
  pugi::xml_node prev = d::PrevElement(m.child);
  m.main.remove_child(m.child);
  m.child = prev;
  return true;
}

// ---------------------------------------------------------------- data

std::string CMarkup::GetData() const { return impl_ ? d::DataOf(impl_->main) : std::string(); }
std::string CMarkup::GetChildData() const { return impl_ ? d::DataOf(impl_->child) : std::string(); }

bool CMarkup::SetData(const char* data, int flags) { return SetData(std::string(data ? data : ""), flags); }

bool CMarkup::SetData(const std::string& data, int flags) {
  auto& m = Self();
  if (!m.main || d::HasElementChild(m.main)) return false;
  d::PutData(m.main, data, flags);
  return true;
}

bool CMarkup::SetChildData(const std::string& data, int flags) {
  auto& m = Self();
  if (!m.child || d::HasElementChild(m.child)) return false;
  d::PutData(m.child, data, flags);
  return true;
}

bool CMarkup::GetData(const char* name, std::string& out) {
  if (!FindElem(name)) return false;
  out = GetData();
  return true;
}

#define NETLOOM_TYPED_GETDATA(Type, Parser)                    \
  bool CMarkup::GetData(const char* name, Type& out) {         \
    return FindElem(name) && Parser(GetData(), out);           \
  }
NETLOOM_TYPED_GETDATA(int, d::ParseInteger)
NETLOOM_TYPED_GETDATA(unsigned, d::ParseInteger)
NETLOOM_TYPED_GETDATA(long, d::ParseInteger)
NETLOOM_TYPED_GETDATA(unsigned long, d::ParseInteger)
NETLOOM_TYPED_GETDATA(long long, d::ParseInteger)
NETLOOM_TYPED_GETDATA(unsigned long long, d::ParseInteger)
NETLOOM_TYPED_GETDATA(double, d::ParseReal)
NETLOOM_TYPED_GETDATA(bool, d::ParseBoolText)
NETLOOM_TYPED_GETDATA(CMarkup::TimePoint, d::ParseTimeText)
#undef NETLOOM_TYPED_GETDATA

std::string CMarkup::GetElemContent() const {
  std::string out;
  if (!impl_ || !impl_->main) return out;
  for (pugi::xml_node n = impl_->main.first_child(); n; n = n.next_sibling()) out += d::Print(n);
  return out;
}

bool CMarkup::SetElemContent(const char* markup) {
  auto& m = Self();
  if (!m.main) return false;
  const std::string text(markup ? markup : "");
  pugi::xml_document content;
  if (!content.load_buffer(text.data(), text.size(), d::kParseOptions, pugi::encoding_utf8) ||
      d::HoldsNulReference(text.data(), text.size(), pugi::encoding_utf8))
    return false;
  while (m.main.first_child()) m.main.remove_child(m.main.first_child());
  for (pugi::xml_node n = content.first_child(); n; n = n.next_sibling()) {
    if (n.type() == pugi::node_declaration || n.type() == pugi::node_doctype) continue;
    m.main.append_copy(n);
  }
  m.child = pugi::xml_node();
  return true;
}

// ---------------------------------------------------------------- attributes

bool CMarkup::SetAttrib(const char* name, const std::string& value) {
  auto& m = Self();
  if (!m.main || !d::IsXmlName(name)) return false;
  pugi::xml_attribute a = m.main.attribute(name);
  if (!a) a = m.main.append_attribute(name);
  return a && a.set_value(value.c_str());
}

bool CMarkup::SetAttrib(const char* name, const char* value) { return SetAttrib(name, std::string(value ? value : "")); }
bool CMarkup::SetAttrib(const char* name, int value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, unsigned value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, long value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, unsigned long value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, long long value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, unsigned long long value) { return SetAttrib(name, std::to_string(value)); }
bool CMarkup::SetAttrib(const char* name, double value) { return SetAttrib(name, d::RealText(value)); }
bool CMarkup::SetAttrib(const char* name, bool value) { return SetAttrib(name, std::string(value ? "true" : "false")); }

bool CMarkup::SetChildAttrib(const char* name, const std::string& value) {
  auto& m = Self();
  if (!m.child || !d::IsXmlName(name)) return false;
  pugi::xml_attribute a = m.child.attribute(name);
  if (!a) a = m.child.append_attribute(name);
  return a && a.set_value(value.c_str());
}

std::string CMarkup::GetAttrib(const char* name) const {
  if (!impl_ || !impl_->main || !name) return std::string();
  return impl_->main.attribute(name).value();
}

std::string CMarkup::GetChildAttrib(const char* name) const {
  if (!impl_ || !impl_->child || !name) return std::string();
  return impl_->child.attribute(name).value();
}

bool CMarkup::HasAttrib(const char* name) const {
  return impl_ && impl_->main && name && impl_->main.attribute(name);
}

bool CMarkup::GetAttrib(const char* name, std::string& out) const {
  if (!HasAttrib(name)) return false;
  out = GetAttrib(name);
  return true;
}

#define NETLOOM_TYPED_GETATTRIB(Type, Parser)                        \
  bool CMarkup::GetAttrib(const char* name, Type& out) const {       \
    return HasAttrib(name) && Parser(GetAttrib(name), out);          \
  }
NETLOOM_TYPED_GETATTRIB(int, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(unsigned, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(long, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(unsigned long, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(long long, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(unsigned long long, d::ParseInteger)
NETLOOM_TYPED_GETATTRIB(double, d::ParseReal)
NETLOOM_TYPED_GETATTRIB(bool, d::ParseBoolText)
#undef NETLOOM_TYPED_GETATTRIB
