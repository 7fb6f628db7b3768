// String helpers every module leans on: trimming, splitting, replacing,
// case-insensitive search and '?' wildcards. Plain functions over std::string;
// nothing here throws for odd text.
#pragma once

#include <cstdint>
#include <filesystem>
#include <iosfwd>
#include <string>
#include <vector>

#include "netloom/export.h"

namespace StlHelper {

// The default line ends of splitStringToLines: CR LF, then a lone CR, then a
// lone LF. The text itself is netloom::schema::text::LineEndPattern; this is
// another name for that one object.
NETLOOM_API extern const std::string& kDefaultLineEnds;  // "\r\n[\r][\n]"

// Copy of `text` without leading and trailing white space (" \t\r\n\v\f").
NETLOOM_API std::string trump(const std::string& text);
// Removes, in place, leading and trailing characters found in `chars`; returns `text`.
NETLOOM_API std::string& trim(std::string& text, const std::string& chars = " \t\r\n");
NETLOOM_API std::string& trimLeft(std::string& text, const std::string& chars = " \t\r\n");
NETLOOM_API std::string& trimRight(std::string& text, const std::string& chars = " \t\r\n");

// The text before / after the first `separator`. Without a separator the left
// part is the whole text and the right part is empty.
NETLOOM_API std::string GetLSubString(const std::string& text, const std::string& separator);
NETLOOM_API std::string GetRSubString(const std::string& text, const std::string& separator);

// Splits at every occurrence of the whole `separator` text. `out` is cleared
// first; empty pieces are kept, but an empty text gives no piece at all.
// Returns the number of pieces. An empty separator gives the text as one piece.
NETLOOM_API size_t splitString(const std::string& text, const std::string& separator,
                               std::vector<std::string>& out);
NETLOOM_API std::vector<std::string> splitString(const std::string& text, const std::string& separator);

// Cuts text into lines. `lineEnds` lists the line ends to recognise, longest
// first: literal characters, then one bracketed "[c]" per single character, as
// in kDefaultLineEnds. A line end at the very end of the text opens no further
// line. `out` is cleared first; returns the number of lines.
NETLOOM_API size_t splitStringToLines(const std::string& text, std::vector<std::string>& out,
                                      const std::string& lineEnds = kDefaultLineEnds);

// Replaces every occurrence of `from` by `to`, left to right, in place. Returns the count.
NETLOOM_API size_t replaceString(std::string& text, const std::string& from, const std::string& to);
// Position of the first occurrence of `what` ignoring ASCII case, or npos.
NETLOOM_API size_t findIgnoreCase(const std::string& text, const std::string& what, size_t from = 0);
// Whole-text match where '?' stands for any one character and '*' for any run.
NETLOOM_API bool MatchWithQuestionMark(const std::string& pattern, const std::string& text,
                                       bool ignoreCase = true);

NETLOOM_API std::string toLower(const std::string& text);
NETLOOM_API std::string toUpper(const std::string& text);
NETLOOM_API bool equalsIgnoreCase(const std::string& a, const std::string& b);
NETLOOM_API bool startsWith(const std::string& text, const std::string& prefix);

NETLOOM_API std::string toString(int value);
NETLOOM_API std::string toString(unsigned value);
NETLOOM_API std::string toString(long value);
NETLOOM_API std::string toString(unsigned long value);
NETLOOM_API std::string toString(long long value);
NETLOOM_API std::string toString(unsigned long long value);
NETLOOM_API std::string toString(double value);

// Paths are UTF-8 here; this gives the form a stream or filesystem call opens.
NETLOOM_API std::filesystem::path AToW(const char* path);
NETLOOM_API std::filesystem::path AToW(const std::string& path);

// Whole remaining content of a stream (spelt so by its callers).
NETLOOM_API std::string fromStram(std::istream& in);

}  // namespace StlHelper
