// String helpers. Built on Boost.StringAlgo where it fits; the splitting and
// wildcard matching are small enough to keep by hand.
#include "netloom/util/stlhelper.h"

#include <boost/algorithm/string/case_conv.hpp>
#include <boost/algorithm/string/predicate.hpp>
#include <boost/algorithm/string/trim.hpp>
#include <cctype>
#include <cstdio>
#include <istream>
#include <iterator>
#include <sstream>

#include "netloom/schemakeys.h"

namespace StlHelper {

// Binding a reference is constant initialisation: safe in any start-up order.
const std::string& kDefaultLineEnds = netloom::schema::text::LineEndPattern;

std::string trump(const std::string& text) {
  return boost::algorithm::trim_copy_if(text, boost::algorithm::is_any_of(" \t\r\n\v\f"));
}

std::string& trimLeft(std::string& text, const std::string& chars) {
  const size_t pos = text.find_first_not_of(chars);
  text.erase(0, pos == std::string::npos ? text.size() : pos);
  return text;
}

std::string& trimRight(std::string& text, const std::string& chars) {
  const size_t pos = text.find_last_not_of(chars);
  text.erase(pos == std::string::npos ? 0 : pos + 1);
  return text;
}

std::string& trim(std::string& text, const std::string& chars) {
  trimRight(text, chars);
  return trimLeft(text, chars);
}

std::string GetLSubString(const std::string& text, const std::string& separator) {
  const size_t pos = separator.empty() ? std::string::npos : text.find(separator);
  return pos == std::string::npos ? text : text.substr(0, pos);
}

std::string GetRSubString(const std::string& text, const std::string& separator) {
  const size_t pos = separator.empty() ? std::string::npos : text.find(separator);
  return pos == std::string::npos ? std::string() : text.substr(pos + separator.size());
}

size_t splitString(const std::string& text, const std::string& separator, std::vector<std::string>& out) {
  out.clear();
  if (text.empty()) return 0;
  if (separator.empty()) {
    out.push_back(text);
    return 1;
  }
  size_t start = 0;
  for (;;) {
    const size_t pos = text.find(separator, start);
    if (pos == std::string::npos) {
      out.emplace_back(text, start);
      break;
    }
    out.emplace_back(text, start, pos - start);
    start = pos + separator.size();
  }
  return out.size();
}

std::vector<std::string> splitString(const std::string& text, const std::string& separator) {
  std::vector<std::string> out;
  splitString(text, separator, out);
  return out;
}

namespace {
// "\r\n[\r][\n]" -> {"\r\n", "\r", "\n"}: the leading literal run, then each bracketed text.
std::vector<std::string> ParseLineEnds(const std::string& pattern) {
  std::vector<std::string> ends;
  size_t i = 0;
  std::string literal;
  while (i < pattern.size() && pattern[i] != '[') literal += pattern[i++];
  if (!literal.empty()) ends.push_back(literal);
  while (i < pattern.size()) {
    const size_t close = pattern.find(']', i + 1);
    if (pattern[i] != '[' || close == std::string::npos) break;
    if (close > i + 1) ends.push_back(pattern.substr(i + 1, close - i - 1));
    i = close + 1;
  }
  if (ends.empty()) ends.push_back("\n");
  return ends;
}
}  // namespace

size_t splitStringToLines(const std::string& text, std::vector<std::string>& out, const std::string& lineEnds) {
  out.clear();
  const std::vector<std::string> ends =
      lineEnds == kDefaultLineEnds ? std::vector<std::string>{"\r\n", "\r", "\n"} : ParseLineEnds(lineEnds);
  size_t start = 0, i = 0;
  const size_t n = text.size();
  while (i < n) {
    size_t matched = 0;
    for (const auto& e : ends) {
      if (text.compare(i, e.size(), e) == 0) {
        matched = e.size();
        break;
      }
    }
    if (matched) {
      out.emplace_back(text, start, i - start);
      i += matched;
      start = i;
    } else {
      ++i;
    }
  }
  if (start < n) out.emplace_back(text, start);
  return out.size();
}

size_t replaceString(std::string& text, const std::string& from, const std::string& to) {
  if (from.empty()) return 0;
  size_t count = 0;
  size_t pos = text.find(from);
  if (pos == std::string::npos) return 0;
  std::string result;
  result.reserve(text.size());
  size_t last = 0;
  while (pos != std::string::npos) {
    result.append(text, last, pos - last);
    result += to;
    last = pos + from.size();
    ++count;
    pos = text.find(from, last);
  }
  result.append(text, last, std::string::npos);
  text.swap(result);
  return count;
}

size_t findIgnoreCase(const std::string& text, const std::string& what, size_t from) {
  if (what.empty()) return from <= text.size() ? from : std::string::npos;
  if (text.size() < what.size()) return std::string::npos;
  for (size_t i = from; i + what.size() <= text.size(); ++i) {
    size_t k = 0;
    while (k < what.size() && std::tolower(static_cast<unsigned char>(text[i + k])) ==
                                  std::tolower(static_cast<unsigned char>(what[k])))
      ++k;
    if (k == what.size()) return i;
  }
  return std::string::npos;
}

bool MatchWithQuestionMark(const std::string& pattern, const std::string& text, bool ignoreCase) {
  // Iterative glob with one back-track point: linear in practice, never recursive.
  auto same = [ignoreCase](char a, char b) {
    return ignoreCase ? std::tolower(static_cast<unsigned char>(a)) == std::tolower(static_cast<unsigned char>(b))
                      : a == b;
  };
  size_t p = 0, t = 0, starP = std::string::npos, starT = 0;
  while (t < text.size()) {
    if (p < pattern.size() && (pattern[p] == '?' || (pattern[p] != '*' && same(pattern[p], text[t])))) {
      ++p;
      ++t;
    } else if (p < pattern.size() && pattern[p] == '*') {
      starP = p++;
      starT = t;
    } else if (starP != std::string::npos) {
      p = starP + 1;
      t = ++starT;
    } else {
      return false;
    }
  }
  while (p < pattern.size() && pattern[p] == '*') ++p;
  return p == pattern.size();
}

std::string toLower(const std::string& text) { return boost::algorithm::to_lower_copy(text); }
std::string toUpper(const std::string& text) { return boost::algorithm::to_upper_copy(text); }
bool equalsIgnoreCase(const std::string& a, const std::string& b) { return boost::algorithm::iequals(a, b); }
bool startsWith(const std::string& text, const std::string& prefix) {
  return text.compare(0, prefix.size(), prefix) == 0;
}

std::string toString(int value) { return std::to_string(value); }
std::string toString(unsigned value) { return std::to_string(value); }
std::string toString(long value) { return std::to_string(value); }
std::string toString(unsigned long value) { return std::to_string(value); }
std::string toString(long long value) { return std::to_string(value); }
std::string toString(unsigned long long value) { return std::to_string(value); }
std::string toString(double value) {
  std::ostringstream ss;
  ss.precision(15);
  ss << value;
  return ss.str();
}

std::filesystem::path AToW(const char* path) { return std::filesystem::path(path ? path : ""); }
std::filesystem::path AToW(const std::string& path) { return std::filesystem::path(path); }

std::string fromStram(std::istream& in) {
  std::string out;
  char buf[65536];
  while (in.read(buf, sizeof buf) || in.gcount() > 0) out.append(buf, static_cast<size_t>(in.gcount()));
  return out;
}

}  // namespace StlHelper
