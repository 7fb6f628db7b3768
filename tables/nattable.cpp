#include "netloom/nattable.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <fstream>
#include <unordered_map>

#include "netloom/util/csvparser.h"
#include "netloom/util/stlhelper.h"

namespace {
const char* const kColumns[8] = {"ID", "InInterface", "OutInterface", "InsideLocal",
                                 "InsideGlobal", "OutsideLocal", "OutsideGlobal", "Flag"};
const char* const kFlags[3] = {"Manual", "Static", "Dynamic"};

// The packet's address as a host location with its port.
NetAddress PacketAddress(const IpAddress& address, int port) {
  NetAddress a(IpLocation(address.bitForm(), 0xFFFFFFFFu));
  a.setPort(port);
  return a;
}
}  // namespace

// ---- NATEntry --------------------------------------------------------------

std::string NATEntry::FlagToString(int flag) { return flag >= 0 && flag < 3 ? kFlags[flag] : "Undefined"; }

int NATEntry::StringToFlag(const std::string& text) {
  for (int i = 0; i < 3; ++i)
    if (text == kFlags[i]) return i;
  return -1;
}

bool NATEntry::ParseString(const std::string& list, std::vector<AddressType>& out, bool firstOnly) {
  std::vector<std::string> pieces;
  StlHelper::splitString(list, ";", pieces);
  for (std::string& piece : pieces) {
    StlHelper::trim(piece, "\r\n\t ");
    if (piece.empty()) continue;
    AddressType item;
    if (piece[0] == '~') {
      item.Negated = true;
      piece.erase(0, 1);
    }
    if (piece.find('-') != std::string::npos) {
      std::vector<std::string> ends;
      if (StlHelper::splitString(piece, "-", ends) != 2) return false;
      if (!NetAddress::fromString(ends[0], item.First) || !NetAddress::fromString(ends[1], item.Last)) return false;
      item.IsRange = true;
    } else if (!NetAddress::fromString(piece, item.First)) {
      return false;
    }
    out.push_back(item);
    if (firstOnly) return true;
  }
  return true;
}

bool NATEntry::CheckIsValidIps(const std::string& list) {
  std::vector<AddressType> items;
  return ParseString(list, items, false);
}

bool NATEntry::IsMach(const std::string& list, const NetAddress& address, bool emptyMatches) {
  if (emptyMatches && list.empty()) return true;
  // A packet walks every rule, so the same few list texts are parsed again and
  // again; parsing is a pure function of the text, so each thread keeps its
  // results. The cap bounds memory for tables that keep changing.
  struct Parsed {
    bool ok;
    std::vector<AddressType> items;
  };
  thread_local std::unordered_map<std::string, Parsed> cache;
  auto it = cache.find(list);
  if (it == cache.end()) {
    if (cache.size() >= 8192) cache.clear();
    Parsed parsed;
    parsed.ok = ParseString(list, parsed.items, false);
    it = cache.emplace(list, std::move(parsed)).first;
  }
  const std::vector<AddressType>& items = it->second.items;
  if (!it->second.ok || items.empty()) return false;
  for (const auto& item : items) {
    bool hit = item.IsRange ? !(address < item.First) && !(item.Last < address) : item.First.matchTo(address);
    if (item.Negated) hit = !hit;
    if (hit) return true;
  }
  return false;
}

bool NATEntry::Translate(L3Packet& packet, const std::string& sourceMatch, const std::string& destMatch,
                         const std::string& sourceRewrite, const std::string& destRewrite) {
  if (!IsMach(sourceMatch, PacketAddress(packet.SourceIP, packet.SourcePort), true)) return false;
  if (!IsMach(destMatch, PacketAddress(packet.DestinationIP, packet.DestinationPort), true)) return false;
  std::vector<AddressType> items;
  if (!sourceRewrite.empty() && ParseString(sourceRewrite, items, true) && !items.empty()) {
    packet.SourceIP = items[0].First.unmaskedAddress();
    if (items[0].First.getPort() != 0) packet.SetSourcePort(items[0].First.getPort());
  }
  items.clear();
  if (!destRewrite.empty() && ParseString(destRewrite, items, true) && !items.empty()) {
    packet.DestinationIP = items[0].First.unmaskedAddress();
    if (items[0].First.getPort() != 0) packet.SetDestinationPort(items[0].First.getPort());
  }
  return true;
}

bool NATEntry::GlobalToLocal(L3Packet& packet) const {
  return Translate(packet, OutsideGlobal, InsideGlobal, OutsideLocal, InsideLocal);
}

bool NATEntry::LocalToGlobal(L3Packet& packet) const {
  return Translate(packet, InsideLocal, OutsideLocal, InsideGlobal, OutsideGlobal);
}

// ---- NATTable --------------------------------------------------------------

void NATTable::Sync() {
  m_entries.clear();
  m_entries.reserve(m_rules.size());
  for (const auto& r : m_rules) m_entries.push_back(r.get());
}

void NATTable::CleanUp() {
  m_rules.clear();
  m_entries.clear();
  m_highestId = 0;
}

void NATTable::AddNATEntry(NATEntry* entry) {
  if (!entry) return;
  auto pos = m_rules.end();
  while (pos != m_rules.begin() && (*(pos - 1))->Flag > entry->Flag) --pos;
  m_rules.insert(pos, std::make_shared<NATEntry>(*entry));
  Sync();
}

void NATTable::AppendEntry(NATEntry* entry) {
  if (!entry) return;
  if (entry->Id == 0) {
    entry->Id = ++m_highestId;
  } else {
    m_highestId = std::max(m_highestId, entry->Id);
  }
  m_rules.push_back(std::make_shared<NATEntry>(*entry));
  Sync();
}

void NATTable::ModifyEntry(NATEntry* entry) {
  if (!entry || entry->Flag != 0) return;
  for (auto* e : m_entries) {
    if (e->Id == entry->Id && e->Flag == 0) {
      *e = *entry;
      return;
    }
  }
}

void NATTable::DeleteNATEntry(const std::vector<int>& ids) {
  auto doomed = [&](const std::shared_ptr<NATEntry>& e) {
    return e->Flag == 0 && std::find(ids.begin(), ids.end(), e->Id) != ids.end();
  };
  m_rules.erase(std::remove_if(m_rules.begin(), m_rules.end(), doomed), m_rules.end());
  Sync();
}

void NATTable::ChangePosition(int a, int b) {
  if (a == b) return;
  auto find = [&](int id) {
    return std::find_if(m_rules.begin(), m_rules.end(),
                        [id](const std::shared_ptr<NATEntry>& e) { return e->Flag == 0 && e->Id == id; });
  };
  auto ia = find(a), ib = find(b);
  if (ia != m_rules.end() && ib != m_rules.end()) {
    std::iter_swap(ia, ib);
    Sync();
  }
}

std::vector<NATEntry*> NATTable::FilterByAddress(const NetAddress& address) const {
  std::vector<NATEntry*> out;
  for (auto* e : m_entries)
    if (NATEntry::IsMach(e->InsideGlobal, address, false) || NATEntry::IsMach(e->InsideLocal, address, false) ||
        NATEntry::IsMach(e->OutsideLocal, address, false) || NATEntry::IsMach(e->OutsideGlobal, address, false))
      out.push_back(e);
  return out;
}

std::vector<NATEntry*> NATTable::FilterByInterface(const std::string& in, const std::string& out) const {
  std::vector<NATEntry*> result;
  for (auto* e : m_entries)
    if ((in.empty() || in == e->InInterface) && (out.empty() || out == e->OutInterface)) result.push_back(e);
  return result;
}

NATEntry* NATTable::GlobalToLocal(L3Packet& packet) const {
  for (auto* e : m_entries)
    if (e->GlobalToLocal(packet)) return e;
  return nullptr;
}

NATEntry* NATTable::LocalToGlobal(L3Packet& packet) const {
  for (auto* e : m_entries)
    if (e->LocalToGlobal(packet)) return e;
  return nullptr;
}

bool NATTable::LoadFromFile(const std::string& path) {
  std::ifstream in(StlHelper::AToW(path), std::ios::binary);
  if (!in) return false;
  return LoadFromStram(in);
}

bool NATTable::LoadFromStram(std::istream& in) {
  CleanUp();
  CSVParser csv("");
  csv.LoadFromStream(in);
  if (csv.size() < 3) return false;
  if (csv.GetRow(0).size() < 1 || csv.GetRow(0).Field(0) != "1.0") return false;
  const CSVLineParser& head = csv.GetRow(1);
  if (head.size() != 8) return false;
  for (size_t i = 0; i < 8; ++i)
    if (head.Field(i) != kColumns[i]) return false;
  for (size_t row = 2; row < csv.size(); ++row) {
    const CSVLineParser& line = csv.GetRow(static_cast<int>(row));
    auto cell = [&line](size_t i) { return i < line.size() ? line.Field(i) : std::string(); };
    auto e = std::make_shared<NATEntry>();
    e->Id = std::atoi(cell(0).c_str());
    e->InInterface = cell(1);
    e->OutInterface = cell(2);
    e->InsideLocal = cell(3);
    e->InsideGlobal = cell(4);
    e->OutsideLocal = cell(5);
    e->OutsideGlobal = cell(6);
    e->Flag = std::atoi(cell(7).c_str());
    m_highestId = std::max(m_highestId, e->Id);
    m_rules.push_back(std::move(e));
  }
  Sync();
  return true;
}

bool NATTable::SaveToFile(const std::string& path) const {
  if (m_entries.empty()) {
    std::remove(path.c_str());
    return true;
  }
  std::ofstream out(StlHelper::AToW(path), std::ios::binary | std::ios::trunc);
  if (!out) return false;
  return SaveToStream(out);
}

bool NATTable::SaveToStream(std::ostream& out) const {
  CSVParser csv("");
  csv.SetAt(0, 0, "1.0");
  for (int i = 0; i < 8; ++i) csv.SetAt(1, i, kColumns[i]);
  int row = 2;
  for (const auto* e : m_entries) {
    const std::string cells[8] = {StlHelper::toString(e->Id), e->InInterface, e->OutInterface, e->InsideLocal,
                                  e->InsideGlobal, e->OutsideLocal, e->OutsideGlobal, StlHelper::toString(e->Flag)};
    for (int i = 0; i < 8; ++i) csv.SetAt(row, i, cells[i]);
    ++row;
  }
  csv.SaveToStream(out);
  return true;
}
