// Route table files. Tables are written as CSV: a head row ("0310" with name,
// description and the gateway of last resort, or the export head
// "version:1.0"), a row of column names, then one row per route. Files of the
// older binary form (versions 100, 110 and 210) are still read; the first
// four bytes of a file tell the forms apart. A plain text report is offered
// as well.

#include <array>
#include <cstdio>
#include <cstring>
#include <fstream>
#include <sstream>
#include <string>

#include "netloom/routingtable.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/stlhelper.h"
#include "routing/routetext.h"

namespace netloom::detail {
namespace {

constexpr const char kSavedTag[] = "0310";
constexpr const char kExportTag[] = "version:1.0";
constexpr const char kHostnamePrefix[] = "hostname:";
constexpr const char kVirtualRouter[] = "<virtual router>";
constexpr const char* kColumns[] = {"Index",    "DestIp", "DestMask", "NextHop", "TimeStamp",  "Metric",
                                    "Distance", "Alg",    "OutIf",    "NextDevice", "OriginalAlg"};
constexpr int kColumnCount = 11;
constexpr size_t kMinRowCells = 10;

// Texts of the binary form fit a buffer of this size.
constexpr uint32_t kBinaryTextMax = 1024;

constexpr uint32_t kBit(int n) { return 1u << n; }

std::string DottedOrEmpty(unsigned int value) { return value ? IpAddress(value).textForm() : std::string(); }

// Version 100 numbered the route kinds differently.
int MapOldAlg(int stored) {
  switch (stored) {
    case 9: return 14;
    case 10: return 13;
    case 11: return 12;
    case 12: return 10;
    case 13: return 15;
    case 14: return 18;
    case 15: return 19;
    case 16: return 20;
    case 17: return 21;
    case 18: return 22;
    case 19: return 23;
    case 20: return 24;
    case 21: return 25;
    case 22: return 11;
    case 23: return 9;
    default: return stored;
  }
}

IpAddress CellAddress(const std::string& cell) {
  unsigned int value = 0;
  return FastDotted(cell.data(), cell.size(), value) ? IpAddress(value) : IpAddress(cell);
}

char ReadExtraCode(const std::string& cell) {
  std::string code = StlHelper::toLower(cell);
  StlHelper::trim(code, " ");
  return code.size() == 1 ? code[0] : 0;
}

}  // namespace

const std::string& DottedMask(int length) {
  static const std::array<std::string, 33> kMasks = [] {
    std::array<std::string, 33> masks;
    for (int i = 0; i <= 32; ++i) masks[i] = IpAddress(IpAddress::getBitMaskByLength(i)).textForm();
    return masks;
  }();
  static const std::string kNone;
  return (length >= 0 && length <= 32) ? kMasks[length] : kNone;
}

}  // namespace netloom::detail

using namespace netloom::detail;

bool RoutingTable::ReadRTData(const char* path) {
  if (!path || !*path) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in.good()) return false;
  return ReadDataSetRTData(in, true);
}

bool RoutingTable::ReadRTData(std::istream& in, bool generateMap) { return ReadDataSetRTData(in, generateMap); }

bool RoutingTable::ImportRTData(const char* path, const char*, int) {
  if (!path || !*path) return false;
  std::ifstream in(StlHelper::AToW(path), std::ios::in);
  if (!in.good()) return false;
  return ReadDataSetRTData(in, true);
}

bool RoutingTable::ImportRTData(std::istream& in, const char*, int) {
  if (in.fail() || in.bad()) return false;
  return ReadDataSetRTData(in, true);
}

bool RoutingTable::SaveRTData(const char* path) {
  if (!path || !*path) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::binary | std::ios::trunc);
  if (!out.good()) return false;
  if (!SaveCSVVersion(out, true, true)) return false;
  out.flush();
  return out.good();
}

bool RoutingTable::SaveRTData(std::ostream& out) { return SaveCSVVersion(out, true, true); }

bool RoutingTable::SaveRTDataToString(std::string& text) {
  std::ostringstream out;
  if (!SaveCSVVersion(out, true, true)) return false;
  text = out.str();
  return true;
}

bool RoutingTable::ExportCSV(const char* path) {
  if (!path || !*path) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::binary | std::ios::trunc);
  if (!out.good()) return false;
  if (!SaveCSVVersion(out, false, true)) return false;
  out.flush();
  return out.good();
}

bool RoutingTable::ExportCSV(std::ostream& out) { return SaveCSVVersion(out, false, true); }

bool RoutingTable::ReadDataSetRTData(std::istream& in, bool generateMap) {
  DeleteAllEntries();
  m_entryIndexMap.clear();
  m_networkMap.clear();
  m_defaultRoute = nullptr;

  bool ok = false;
  const std::istream::pos_type start = in.tellg();
  char head[4] = {0, 0, 0, 0};
  in.read(head, 4);
  if (in.gcount() == 4) {
    if (std::memcmp(head, kSavedTag, 4) == 0 || std::memcmp(head, "vers", 4) == 0) {
      in.clear();
      in.seekg(start);
      ok = ReadCSVVersion(in);
    } else {
      const uint32_t word = uint32_t(uint8_t(head[0])) | uint32_t(uint8_t(head[1])) << 8 |
                            uint32_t(uint8_t(head[2])) << 16 | uint32_t(uint8_t(head[3])) << 24;
      ok = ReadBinaryVersion(in, word);
    }
  }
  if (generateMap) GenerateNetworkMap();
  return ok;
}

bool RoutingTable::ReadCSVVersion(std::istream& in) {
  CSVLineParser row("");
  if (!row.ReadFromStream(in) || row.size() == 0) return false;
  const std::vector<std::string>& cells = row.Fields();

  if (cells[0] == kSavedTag) {
    if (cells.size() < 5) return false;
    m_deviceName = cells[1];
    m_description = cells[2];
    m_lastResortGateway = IpAddress(cells[3]).bitForm();
    m_lastResortNetwork = IpAddress(cells[4]).bitForm();
  } else if (cells[0] == kExportTag) {
    if (cells.size() < 2) return false;
    const size_t at = cells[1].find(kHostnamePrefix);
    if (at != std::string::npos) m_deviceName = cells[1].substr(at + sizeof(kHostnamePrefix) - 1);
  } else {
    return false;
  }

  if (!row.ReadFromStream(in) || row.size() < kMinRowCells) return false;
  for (size_t i = 0; i < kMinRowCells; ++i)
    if (cells[i] != kColumns[i]) return false;
  if (cells.size() > kMinRowCells && cells[kMinRowCells] != kColumns[kMinRowCells]) return false;

  while (row.ReadFromStream(in)) {
    if (row.size() < kMinRowCells) continue;
    auto* entry = new RoutingTableEntry();
    entry->Index = static_cast<unsigned int>(Atoi(cells[0]));
    entry->DestIp = CellAddress(cells[1]);
    entry->DestText = cells[1];
    entry->DestMask = CellAddress(cells[2]);
    entry->MaskText = cells[2];
    entry->NextHop = CellAddress(cells[3]);
    entry->TimeStamp = cells[4].empty() ? 0xFFFFFFFFu : static_cast<unsigned int>(Atoi(cells[4]));
    entry->Metric = cells[5].empty() ? 0xFFFFFFFFu : static_cast<unsigned int>(Atoi(cells[5]));
    entry->Distance = cells[6].empty() ? 65535 : static_cast<unsigned short>(Atoi(cells[6]));
    bool star = false;
    entry->Alg = GetAlgorithmTypeByString(cells[7].c_str(), star);
    entry->CandidateDefault = star;
    entry->SecondFlag = false;
    entry->OutIf = cells[8];
    // Names of real devices go stale; only virtual routers are worth keeping.
    if (StlHelper::startsWith(cells[9], kVirtualRouter)) entry->NextDevice = cells[9];
    if (cells.size() > 10) entry->OriginalAlg = cells[10];
    if (cells.size() > 11) entry->ExtraText = cells[11];
    if (cells.size() > 12) entry->ExtraCode = ReadExtraCode(cells[12]);
    // Saved files are in Index order, so the end is the usual place.
    const size_t before = m_entryIndexMap.size();
    m_entryIndexMap.emplace_hint(m_entryIndexMap.end(), entry->Index, entry);
    if (m_entryIndexMap.size() == before) delete entry;
  }
  return true;
}

bool RoutingTable::SaveCSVVersion(std::ostream& out, bool saved, bool withHeader) {
  if (out.fail() || out.bad()) return false;
  CSVLineParser row("");
  std::vector<std::string>& cells = row.Fields();
  if (withHeader) {
    if (saved) {
      cells = {kSavedTag, m_deviceName, m_description, DottedOrEmpty(m_lastResortGateway),
               DottedOrEmpty(m_lastResortNetwork)};
    } else {
      cells = {kExportTag, kHostnamePrefix + m_deviceName};
    }
    row.WriteToStream(out);
    cells.assign(kColumns, kColumns + kColumnCount);
    row.WriteToStream(out);
  }
  cells.resize(13);
  for (const auto& [index, entry] : m_entryIndexMap) {
    if (!entry) continue;
    cells[0] = std::to_string(entry->Index);
    cells[1] = entry->DestIp.textForm();
    cells[2] = entry->DestMask.textForm();
    cells[3] = DottedOrEmpty(entry->NextHop.bitForm());
    cells[4] = entry->TimeStamp == 0xFFFFFFFFu ? std::string() : std::to_string(entry->TimeStamp);
    cells[5] = entry->Metric == 0xFFFFFFFFu ? std::string() : std::to_string(entry->Metric);
    cells[6] = entry->Distance == 65535 ? std::string() : std::to_string(entry->Distance);
    cells[7] = GetAlgorithmNameByType(entry->Alg, entry->CandidateDefault);
    cells[8] = entry->OutIf;
    cells[9] = entry->NextDevice;
    cells[10] = entry->OriginalAlg;
    cells[11] = entry->ExtraText;
    cells[12].assign(1, entry->ExtraCode);
    row.WriteToStream(out);
  }
  return true;
}

bool RoutingTable::ReadBinaryVersion(std::istream& in, unsigned int firstWord) {
  if (!(firstWord & kBit(31))) return false;
  int version = 100;
  if ((firstWord & 110u) == 110u)
    version = 110;
  else if ((firstWord & 210u) == 210u)
    version = 210;

  auto flag = [&](int bit) {
    uint32_t word = 0;
    return ReadLE32(in, word) && (word & kBit(bit));
  };

  std::string text;
  if (!ReadLengthText(in, text, kBinaryTextMax)) return false;
  m_deviceName = text;
  if (!flag(30) || !ReadLengthText(in, text, kBinaryTextMax)) return false;
  m_description = text;
  uint32_t gateway = 0, network = 0;
  if (!flag(29) || !ReadLE32(in, gateway) || !ReadLE32(in, network)) return false;
  m_lastResortGateway = gateway;
  m_lastResortNetwork = network;
  uint8_t dropped = 0;
  if (!flag(28) || !ReadByte(in, dropped)) return false;

  for (;;) {
    uint32_t header = 0;
    if (!ReadLE32(in, header)) return true;  // the stream ends between records
    if (!(header & kBit(7))) return false;

    uint32_t index, dest, mask, nextHop, timeStamp, metric;
    uint16_t distance;
    uint8_t alg, candidate;
    if (!ReadLE32(in, index) || !ReadLE32(in, dest) || !ReadLE32(in, mask) || !ReadLE32(in, nextHop) ||
        !ReadLE32(in, timeStamp) || !ReadLE32(in, metric) || !ReadLE16(in, distance) || !ReadByte(in, alg) ||
        !ReadByte(in, candidate))
      return false;
    std::string outIf, nextDevice;
    if (!flag(3) || !ReadLengthText(in, outIf, kBinaryTextMax)) return false;
    if (version == 210 && (!flag(2) || !ReadLengthText(in, nextDevice, kBinaryTextMax))) return false;

    auto* entry = new RoutingTableEntry();
    entry->Index = index;
    entry->DestIp = IpAddress(dest);
    entry->DestMask = IpAddress(mask);
    entry->NextHop = IpAddress(nextHop);
    entry->TimeStamp = timeStamp;
    entry->Metric = metric;
    entry->Distance = distance;
    const int storedAlg = static_cast<int8_t>(alg);
    entry->Alg = static_cast<TW_RoutingAlgorithm>(version == 100 ? MapOldAlg(storedAlg) : storedAlg);
    entry->CandidateDefault = candidate == 1;
    entry->SecondFlag = false;
    entry->OutIf = outIf;
    entry->NextDevice = nextDevice;
    if (!m_entryIndexMap.emplace(entry->Index, entry).second) delete entry;
  }
}

bool RoutingTable::ExportRT(const char* path) {
  if (!path || !*path) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::trunc);
  if (!out.good()) return false;
  out << m_deviceName << ": " << m_description << "\n";
  out << "Route entries\n";
  for (const auto& [index, entry] : m_entryIndexMap) {
    if (!entry) continue;
    out << GetAlgorithmNameByType(entry->Alg, entry->CandidateDefault) << ' ' << entry->DestIp.textForm() << '/'
        << IpAddress::getMaskLength(entry->DestMask.bitForm()) << " [" << entry->Distance << '/' << entry->Metric
        << "] ";
    if (entry->Alg == RT_ALG_CONNECTED)
      out << "is directly connected " << entry->OutIf;
    else
      out << entry->NextHop.textForm() << ' ' << entry->OutIf << ' ';
    out << '\n';
  }
  out.flush();
  return out.good();
}
