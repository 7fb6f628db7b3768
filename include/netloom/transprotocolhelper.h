// The process-wide catalogue of IP protocol numbers (6 is TCP, 17 UDP, ...),
// read once from the resource file "protocol-numbers.csv". STransProtocol is
// one row of it. A missing file leaves the catalogue empty and every lookup
// answers "not found"; the next call tries the file again.
#pragma once

#include <list>
#include <map>
#include <mutex>
#include <string>

#include "netloom/export.h"

class NETLOOM_API STransProtocol {
 public:
  STransProtocol() = default;
  STransProtocol(const STransProtocol& other) = default;
  STransProtocol& operator=(const STransProtocol& other) = default;
  ~STransProtocol();

  // A protocol number is one byte; -1 marks an empty row.
  bool IsValid() const { return static_cast<unsigned int>(m_number) < 256; }

  int GetNumber() const { return m_number; }
  void SetNumber(int number) { m_number = number; }
  const std::string& GetKeyWord() const { return m_keyword; }
  void SetKeyWord(const std::string& keyword) { m_keyword = keyword; }
  const std::string& GetProtocol() const { return m_protocol; }
  void SetProtocol(const std::string& protocol) { m_protocol = protocol; }
  const std::string& GetRef() const { return m_reference; }
  void SetRef(const std::string& reference) { m_reference = reference; }

 private:
  int m_number = -1;
  std::string m_keyword;
  std::string m_protocol;
  std::string m_reference;
};

class NETLOOM_API TransProtocolHelper {
 public:
  // The single catalogue, made on first use.
  static TransProtocolHelper* Instance();

  TransProtocolHelper(const TransProtocolHelper&) = delete;
  TransProtocolHelper& operator=(const TransProtocolHelper&) = delete;

  // Every row in file order, loading the file if the catalogue is empty.
  void GetAllProtocol(std::list<STransProtocol>& out);
  // Leave `out` alone and return false when nothing matches.
  bool GetProtocolItem(int number, STransProtocol& out);
  bool GetProtocolItem(const std::string& keyword, STransProtocol& out);
  // Empty when the number is unknown.
  std::string GetIPProtocolKeywordByNumber(int number);
  // -1 when the keyword is empty or unknown; the match is case-sensitive.
  int GetIPProtocolNumberByKeyword(const std::string& keyword);

 private:
  TransProtocolHelper() = default;
  ~TransProtocolHelper() = default;

  // Caller holds m_mutex.
  void LoadIfEmpty();

  std::recursive_mutex m_mutex;
  std::list<STransProtocol> m_protocols;
  std::map<int, STransProtocol> m_byNumber;
  std::map<std::string, STransProtocol> m_byKeyword;
};
