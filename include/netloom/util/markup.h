// A navigating XML document: the form in which profiles, typed values, path
// logs and function definitions are saved. Callers walk it with a cursor
// rather than a tree of nodes:
//
//  - At each level there is a parent (the document itself at the top) and
//    a current ("main") element among the parent's element children, or none
//    right after ResetPos, IntoElem or a load.
//  - FindElem(name) searches forward from the element after the current one
//    (from the first child when there is none) and makes the match current.
//  - AddElem(name, data) adds an element right after the current one (at the
//    end of the level when there is none) and makes it current.
//  - IntoElem makes the current element the parent of a new level with no
//    current element; OutOfElem returns and makes the old parent current.
//  - GetData(name, out) is FindElem(name) followed by reading the data of
//    the found element. The search only goes forward, so reading back in the
//    order of writing finds every element; a failed search leaves the
//    position where it was.
//  - The "child" calls (FindChildElem, AddChildElem, GetChildData, ...) work
//    one level below the current element without entering it.
//
// Data and attribute values are byte strings; any UTF-8 text without a NUL
// byte comes back exactly as it was given (line ends and control characters
// included). A NUL byte ends the value. Text is written as UTF-8.
//
// Typed forms write integers in decimal, reals in the shortest text that
// reads back to the same double, booleans as "true"/"false" (read back also
// from "1"/"0", any case) and times as "YYYY-MM-DDTHH:MM:SS[.mmm]Z" in UTC
// (read back also from a decimal count of seconds since 1970). A typed read
// of text that doesn't fit the type is false and leaves `out` unchanged.
//
// Nothing here throws; malformed markup makes SetDoc/Load false and leaves
// an empty document.
#pragma once

#include <chrono>
#include <memory>
#include <string>

#include "netloom/export.h"

namespace netloom::detail {
struct MarkupImpl;
}

class NETLOOM_API CMarkup {
 public:
  using TimePoint = std::chrono::system_clock::time_point;

  // Flags of AddElem/SetData/EscapeText.
  enum MarkupNodeFlags {
    MNF_WITHCDATA = 0x01,     // data goes into a CDATA section
    MNF_WITHNOLINES = 0x02,   // accepted, no effect: output has no added line breaks
    MNF_WITHXHTMLSPACE = 0x04,  // accepted, no effect
    MNF_WITHREFS = 0x08,      // the given data already holds character references
    MNF_WITHNOEND = 0x10,     // accepted, no effect
    MNF_ESCAPEQUOTES = 0x100,  // EscapeText also escapes ' and "
  };

  CMarkup();
  explicit CMarkup(const std::string& doc);
  CMarkup(const CMarkup& other);
  CMarkup(CMarkup&& other) noexcept;
  CMarkup& operator=(const CMarkup& other);
  CMarkup& operator=(CMarkup&& other) noexcept;
  ~CMarkup();

  // ---- whole document
  // Replaces the document with `doc` (empty text makes an empty document)
  // and resets the position. False for malformed markup.
  bool SetDoc(const std::string& doc);
  bool SetDoc(const char* doc);
  std::string GetDoc() const;
  // Reads / writes a file. Load resets the position; a missing or malformed
  // file gives false and an empty document.
  bool Load(const std::string& path);
  bool Save(const std::string& path) const;
  // The declaration that starts a UTF-8 document, line end included.
  static std::string UTF8Encoding();
  // True when the document has exactly one root element.
  bool IsWellFormed() const;
  // Why the last SetDoc/Load failed; empty after success.
  std::string GetError() const;

  // ---- text helpers
  // Escapes & < > (and ' " with MNF_ESCAPEQUOTES). With MNF_WITHREFS an
  // ampersand that starts a character or entity reference is kept.
  static std::string EscapeText(const char* text, int flags = 0);
  static std::string EscapeText(const std::string& text, int flags = 0);
  // Resolves &amp; &lt; &gt; &quot; &apos; and numeric references;
  // anything else stays as written.
  static std::string UnescapeText(const char* text);

  // ---- position
  void ResetPos();
  void ResetMainPos();
  void ResetChildPos();
  bool FindElem(const char* name = nullptr);
  bool FindElem(const std::string& name) { return FindElem(name.c_str()); }
  bool FindChildElem(const char* name = nullptr);
  bool FindChildElem(const std::string& name) { return FindChildElem(name.c_str()); }
  bool IntoElem();
  bool OutOfElem();
  std::string GetTagName() const;
  std::string GetChildTagName() const;

  // ---- adding and removing elements
  // False (and nothing added) for a name that isn't an XML name.
  bool AddElem(const char* name, const char* data = nullptr, int flags = 0);
  bool AddElem(const char* name, const std::string& data, int flags = 0);
  bool AddElem(const char* name, int value, int flags = 0);
  bool AddElem(const char* name, unsigned value, int flags = 0);
  bool AddElem(const char* name, long value, int flags = 0);
  bool AddElem(const char* name, unsigned long value, int flags = 0);
  bool AddElem(const char* name, long long value, int flags = 0);
  bool AddElem(const char* name, unsigned long long value, int flags = 0);
  bool AddElem(const char* name, double value, int flags = 0);
  bool AddElem(const char* name, bool value, int flags = 0);
  bool AddElem(const char* name, TimePoint value, int flags = 0);
  // Adds before the current element (first at the level when there is none).
  bool InsertElem(const char* name, const char* data = nullptr, int flags = 0);
  bool InsertElem(const char* name, const std::string& data, int flags = 0);
  // Adds below the current element, after the current child.
  bool AddChildElem(const char* name, const char* data = nullptr, int flags = 0);
  bool AddChildElem(const char* name, const std::string& data, int flags = 0);
  // Removes the current element; the element before it becomes current.
  bool RemoveElem();
  bool RemoveChildElem();

  // ---- data
  // Text of the current element: its character data when it has no child
  // elements, "" otherwise or when there is no current element.
  std::string GetData() const;
  std::string GetChildData() const;
  // Replaces the text of the current element; false when it has child elements.
  bool SetData(const char* data, int flags = 0);
  bool SetData(const std::string& data, int flags = 0);
  bool SetChildData(const std::string& data, int flags = 0);
  // FindElem(name), then the data in the requested form.
  bool GetData(const char* name, std::string& out);
  bool GetData(const char* name, int& out);
  bool GetData(const char* name, unsigned& out);
  bool GetData(const char* name, long& out);
  bool GetData(const char* name, unsigned long& out);
  bool GetData(const char* name, long long& out);
  bool GetData(const char* name, unsigned long long& out);
  bool GetData(const char* name, double& out);
  bool GetData(const char* name, bool& out);
  bool GetData(const char* name, TimePoint& out);
  // The markup inside the current element, and its replacement by markup
  // (false, and no change, when `markup` isn't well-formed content).
  std::string GetElemContent() const;
  bool SetElemContent(const char* markup);
  bool SetElemContent(const std::string& markup) { return SetElemContent(markup.c_str()); }

  // ---- attributes of the current element
  // AddAttrib and SetAttrib both set the value, adding the attribute at the
  // end when it is new. False without a current element or for a bad name.
  bool SetAttrib(const char* name, const char* value);
  bool SetAttrib(const char* name, const std::string& value);
  bool SetAttrib(const char* name, int value);
  bool SetAttrib(const char* name, unsigned value);
  bool SetAttrib(const char* name, long value);
  bool SetAttrib(const char* name, unsigned long value);
  bool SetAttrib(const char* name, long long value);
  bool SetAttrib(const char* name, unsigned long long value);
  bool SetAttrib(const char* name, double value);
  bool SetAttrib(const char* name, bool value);
  template <typename T>
  bool AddAttrib(const char* name, T value) {
    return SetAttrib(name, value);
  }
  bool SetChildAttrib(const char* name, const std::string& value);
  // The value, or "" when absent.
  std::string GetAttrib(const char* name) const;
  std::string GetChildAttrib(const char* name) const;
  bool HasAttrib(const char* name) const;
  // False when absent or not of the type; `out` then stays unchanged.
  bool GetAttrib(const char* name, std::string& out) const;
  bool GetAttrib(const char* name, int& out) const;
  bool GetAttrib(const char* name, unsigned& out) const;
  bool GetAttrib(const char* name, long& out) const;
  bool GetAttrib(const char* name, unsigned long& out) const;
  bool GetAttrib(const char* name, long long& out) const;
  bool GetAttrib(const char* name, unsigned long long& out) const;
  bool GetAttrib(const char* name, double& out) const;
  bool GetAttrib(const char* name, bool& out) const;

 private:
  netloom::detail::MarkupImpl& Self();
  bool AddText(const char* name, const std::string* data, int flags, bool before);
  std::unique_ptr<netloom::detail::MarkupImpl> impl_;
};
