// Loading and searching the IP protocol catalogue. The file is read under the
// helper's lock the first time anyone asks, so concurrent first users see one
// load; a failed load leaves the list empty and is simply retried later.
#include "netloom/transprotocolhelper.h"

#include "address/numtext.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/twfilesystem.h"

namespace netloom::detail {
namespace {

constexpr const char* kProtocolFile = "protocol-numbers.csv";

// Columns of the catalogue file; the first line is a heading.
enum ProtocolColumn { kColNumber = 0, kColKeyword = 1, kColProtocol = 2, kColReference = 3 };

}  // namespace
}  // namespace netloom::detail

STransProtocol::~STransProtocol() {
  m_number = -1;
  m_keyword.clear();
  m_protocol.clear();
  m_reference.clear();
}

TransProtocolHelper* TransProtocolHelper::Instance() {
  static TransProtocolHelper instance;
  return &instance;
}

void TransProtocolHelper::LoadIfEmpty() {
  using namespace netloom::detail;
  if (!m_protocols.empty()) return;
  m_byNumber.clear();
  m_byKeyword.clear();

  CSVParser file;
  if (!file.LoadFromFile(TWFileSystem::GetSystemResourceFolder() + kProtocolFile)) return;
  for (size_t row = 1; row < file.size(); ++row) {
    STransProtocol item;
    try {
      const CSVLineParser& line = file.GetRow(static_cast<int>(row));
      item.SetNumber(AtoiClamped(line.GetAt(kColNumber)));
      item.SetKeyWord(line.GetAt(kColKeyword));
      item.SetProtocol(line.GetAt(kColProtocol));
      item.SetRef(line.GetAt(kColReference));
    } catch (const CSVLineParser::Range&) {
      // A short line ends the catalogue; what came before it stays.
      break;
    }
    m_protocols.push_back(item);
    m_byNumber.emplace(item.GetNumber(), item);
    m_byKeyword.emplace(item.GetKeyWord(), item);
  }
}

void TransProtocolHelper::GetAllProtocol(std::list<STransProtocol>& out) {
  std::lock_guard<std::recursive_mutex> lock(m_mutex);
  LoadIfEmpty();
  if (&out != &m_protocols) out = m_protocols;
}

bool TransProtocolHelper::GetProtocolItem(int number, STransProtocol& out) {
  std::lock_guard<std::recursive_mutex> lock(m_mutex);
  LoadIfEmpty();
  auto it = m_byNumber.find(number);
  if (it == m_byNumber.end()) return false;
  out = it->second;
  return true;
}

bool TransProtocolHelper::GetProtocolItem(const std::string& keyword, STransProtocol& out) {
  if (keyword.empty()) return false;
  std::lock_guard<std::recursive_mutex> lock(m_mutex);
  LoadIfEmpty();
  auto it = m_byKeyword.find(keyword);
  if (it == m_byKeyword.end()) return false;
  out = it->second;
  return true;
}

std::string TransProtocolHelper::GetIPProtocolKeywordByNumber(int number) {
  std::lock_guard<std::recursive_mutex> lock(m_mutex);
  LoadIfEmpty();
  auto it = m_byNumber.find(number);
  return it == m_byNumber.end() ? std::string() : it->second.GetKeyWord();
}

int TransProtocolHelper::GetIPProtocolNumberByKeyword(const std::string& keyword) {
  if (keyword.empty()) return -1;
  std::lock_guard<std::recursive_mutex> lock(m_mutex);
  LoadIfEmpty();
  auto it = m_byKeyword.find(keyword);
  return it == m_byKeyword.end() ? -1 : it->second.GetNumber();
}
