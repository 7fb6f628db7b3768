// Turns the text of a device's route listing ("show ip route" output) into
// the entries of a RoutingTable. Each line picks a kind of pattern by its
// words and tries that kind's three regular expressions, for masks written as
// a length, as a dotted quad and in hexadecimal. Wrapped routes and the second
// paths of load-balanced routes are joined with the line before them.
//
// With the prefix "twfile://" the text is a file name: the listing is read
// line by line and replaced in place by a route file, keeping about a
// thousand entries in memory at a time.

#include <boost/chrono.hpp>
#include <boost/regex.hpp>
#include <boost/thread/thread.hpp>

#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <fstream>
#include <istream>
#include <string>
#include <string_view>
#include <vector>

#include "netloom/interfacetypehelper.h"
#include "netloom/routingtable.h"
#include "netloom/util/logger.h"
#include "netloom/util/stlhelper.h"
#include "routing/routetext.h"

namespace netloom::detail {
namespace {

constexpr const char kFilePrefix[] = "twfile://";
constexpr size_t kExaminedBytes = 1999;
constexpr size_t kBatchEntries = 1000;
// A listing line longer than this is cut: no route line comes near it, and a
// file without line ends must not be read into memory whole.
constexpr size_t kMaxLineBytes = 64 * 1024;
constexpr int kFileStepTries = 10;

// Patterns by variant (route with time, continuation, subnetted header,
// connected, summary, route without fixed time) and by the form of the mask.
const boost::regex& Pattern(int variant, int set) {
  static const boost::regex kPatterns[6][3] = {
      {boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?:/(\d+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (\d+[^,]+)(, (.+))?)?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: (\d+\.\d+\.\d+\.\d+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (\d+[^,]+)(, (.+))?)?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: 0x(\w+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (\d+[^,]+)(, (.+))?)?)")},
      {boost::regex(R"(^\[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+), (\d+[^,]+)(, (.+))?)"),
       boost::regex(R"(^\[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+), (\d+[^,]+)(, (.+))?)"),
       boost::regex(R"(^\[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+), (\d+[^,]+)(, (.+))?)")},
      {boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)/(\d+) is [^,]*subnetted,)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+) (\d+\.\d+\.\d+\.\d+) is [^,]*subnetted,)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+) 0x(\w+) is [^,]*subnetted,)")},
      {boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?:/(\d+))? is [^,]*connected, (.+))"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: (\d+\.\d+\.\d+\.\d+))? is [^,]*connected, (.+))"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: 0x(\w+))? is [^,]*connected, (.+))")},
      {boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?:/(\d+))? is a summary, (\d+[^,]+)(, (.+))?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: (\d+\.\d+\.\d+\.\d+))? is a summary, (\d+[^,]+)(, (.+))?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: 0x(\w+))? is a summary, (\d+[^,]+)(, (.+))?)")},
      {boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?:/(\d+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (.+))?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: (\d+\.\d+\.\d+\.\d+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (.+))?)"),
       boost::regex(R"(^(\d+\.\d+\.\d+\.\d+)(?: 0x(\w+))? \[(\d+)/(\d+)\] via (\d+\.\d+\.\d+\.\d+)(?:, (.+))?)")},
  };
  return kPatterns[variant][set];
}

// Where each variant's groups go; 0 means the output is not filled. The last
// group of the connected and untimed variants may carry a time before the
// interface and is split apart afterwards.
struct GroupMap {
  int dest, mask, distance, metric, gateway, time, outIf;
  bool splitLast;
};
constexpr GroupMap kGroups[6] = {
    {1, 2, 3, 4, 5, 6, 8, false},  // route with time
    {0, 0, 1, 2, 3, 4, 6, false},  // continuation
    {1, 2, 0, 0, 0, 0, 0, false},  // subnetted header
    {1, 2, 0, 0, 0, 0, 3, true},   // connected
    {1, 2, 0, 0, 0, 3, 5, false},  // summary
    {1, 2, 3, 4, 5, 0, 6, true},   // route without fixed time
};

enum Variant { kRouteWithTime = 0, kHeader = 2, kConnected = 3, kSummary = 4, kRouteUntimed = 5 };

const boost::regex& GatewayPattern() {
  static const boost::regex re(R"(Gateway of last resort is (\d+\.\d+\.\d+\.\d+) to network (\d+\.\d+\.\d+\.\d+))");
  return re;
}

const boost::regex& DefaultGatewayPattern() {
  static const boost::regex re(R"(default gateway is (\d+\.\d+\.\d+\.\d+))");
  return re;
}

// Boost.Regex gives up with an exception on a search it finds too costly;
// for a listing line that is simply no match.
template <typename Subject, typename Match>
bool Search(const Subject& subject, Match& match, const boost::regex& pattern) {
  try {
    return boost::regex_search(subject, match, pattern);
  } catch (const std::exception&) {
    return false;
  }
}

bool Holds(std::string_view text, std::string_view what) { return text.find(what) != std::string_view::npos; }

unsigned char LowerAscii(unsigned char c) { return (c >= 'A' && c <= 'Z') ? static_cast<unsigned char>(c + 32) : c; }

// `what` must be lower case.
bool HoldsIgnoreCase(std::string_view text, std::string_view what) {
  if (what.empty()) return true;
  if (what.size() > text.size()) return false;
  const size_t last = text.size() - what.size();
  const unsigned char first = static_cast<unsigned char>(what[0]);
  for (size_t i = 0; i <= last; ++i) {
    if (LowerAscii(static_cast<unsigned char>(text[i])) != first) continue;
    size_t k = 1;
    while (k < what.size() && LowerAscii(static_cast<unsigned char>(text[i + k])) == static_cast<unsigned char>(what[k]))
      ++k;
    if (k == what.size()) return true;
  }
  return false;
}

// A quick no for the case-blind search below: the phrase has a "y" in it.
bool MayHoldDefaultGateway(std::string_view text) {
  return std::memchr(text.data(), 'y', text.size()) || std::memchr(text.data(), 'Y', text.size());
}

unsigned int DottedToNumber(const char* text) {
  unsigned int value = 0;
  if (text && FastDotted(text, std::strlen(text), value)) return value;
  return TW_AsciiToNetAddr(text ? text : "");
}

unsigned int AgeToSeconds(const char* text) {
  unsigned int seconds = 0;
  if (FastAge(text, seconds)) return seconds;
  return RoutingTable::FormatTimeToSecond(text);
}

std::string_view TrimView(std::string_view text) {
  const char* blanks = " \t\r\n\v\f";
  const size_t b = text.find_first_not_of(blanks);
  if (b == std::string_view::npos) return {};
  const size_t e = text.find_last_not_of(blanks);
  return text.substr(b, e - b + 1);
}

// The previous line cut before `at` (the first occurrence), or with a blank
// appended when it has no such mark, and then `line`.
std::string JoinWithPrevious(const std::string& previous, std::initializer_list<const char*> marks,
                             const std::string& line) {
  for (const char* mark : marks) {
    const size_t pos = previous.find(mark);
    if (pos != std::string::npos) return previous.substr(0, pos) + line;
  }
  return previous + " " + line;
}

// Reads up to LF; a line longer than kMaxLineBytes keeps its head and drops the rest.
bool ReadBoundedLine(std::istream& in, std::string& line) {
  line.clear();
  std::streambuf* buf = in.rdbuf();
  if (!buf) return false;
  bool any = false;
  for (;;) {
    const int c = buf->sbumpc();
    if (c == std::char_traits<char>::eof()) {
      in.setstate(std::ios::eofbit);
      return any;
    }
    any = true;
    if (c == '\n') return true;
    if (line.size() < kMaxLineBytes) line.push_back(static_cast<char>(c));
  }
}

// A file step (delete, rename) tried up to ten times, 100 ms apart. The wait
// is an interruption point, so a host thread that is being stopped ends it.
template <typename Step>
bool RetryFileStep(Step step) {
  for (int attempt = 0; attempt < kFileStepTries; ++attempt) {
    if (step()) return true;
    if (attempt + 1 < kFileStepTries) boost::this_thread::sleep_for(boost::chrono::milliseconds(100));
  }
  return false;
}

}  // namespace

std::string MaskTextToLength(int set, const std::string& mask) {
  if (set == 1) return std::to_string(IpAddress::getMaskLength(mask));
  // Hexadecimal: read as "%x" would, without its undefined overflow.
  const unsigned long value = std::strtoul(mask.c_str(), nullptr, 16);
  const unsigned int bits = value > 0xFFFFFFFFul ? 0xFFFFFFFFu : static_cast<unsigned int>(value);
  return std::to_string(IpAddress(bits).getLeftNonZeroLen());
}

}  // namespace netloom::detail

using namespace netloom::detail;

bool RoutingTable::ParseRTBEntry(int variant, const std::string& line, std::string& dest, std::string& mask,
                                 std::string& distance, std::string& metric, std::string& gateway,
                                 std::string& outIf, std::string& time) {
  auto reset = [&] {
    dest.clear();
    mask.clear();
    gateway.clear();
    outIf.clear();
    distance = "-1";
    metric = "-1";
    time = "-1";
  };
  reset();
  if (variant < 0 || variant > 5) return false;
  const GroupMap& g = kGroups[variant];

  // Kept per thread so that its storage is reused from line to line.
  static thread_local boost::smatch m;
  for (int set = 0; set < 3; ++set) {
    if (!Search(line, m, Pattern(variant, set))) continue;
    // A group that took no part leaves its output as preset.
    auto take = [&](int group, std::string& out) {
      if (group > 0 && m[group].matched) out.assign(m[group].first, m[group].second);
    };
    take(g.dest, dest);
    take(g.mask, mask);
    take(g.distance, distance);
    take(g.metric, metric);
    take(g.gateway, gateway);
    take(g.time, time);
    take(g.outIf, outIf);
    if (g.splitLast && !outIf.empty()) {
      const size_t comma = outIf.find(',');
      if (comma != std::string::npos) {
        time = outIf.substr(0, comma);
        outIf = StlHelper::trump(outIf.substr(comma + 1));
      } else if (variant == kRouteUntimed && AgeToSeconds(outIf.c_str()) != 0) {
        time = outIf;
        outIf.clear();
      }
    }
    if (variant != kHeader && gateway.empty() && outIf.empty()) {
      reset();
      continue;
    }
    if (set != 0 && !mask.empty()) mask = MaskTextToLength(set, mask);
    return true;
  }

  reset();
  ILogger* log = ILogger::GetInstance();
  if (log->IsEnabled(LOG_DEBUG))
    log->LogStr("RoutingTable entry isn't parsed:" + line, "dime", __FILE__, "RoutingTable::ParseRTBEntry",
                __LINE__, LOG_DEBUG);
  return false;
}

bool RoutingTable::ParseGateway(const char* line, std::string& gateway, std::string& network) {
  gateway.clear();
  network.clear();
  if (!line) return false;
  boost::cmatch m;
  if (!Search(line, m, GatewayPattern())) return false;
  gateway = m[1].str();
  network = m[2].str();
  return true;
}

bool RoutingTable::ParseDefaultRTEntry(const char* line, std::string& gateway) {
  gateway.clear();
  if (!line) return false;
  boost::cmatch m;
  if (!Search(line, m, DefaultGatewayPattern())) return false;
  gateway = m[1].str();
  return true;
}

bool RoutingTable::PutEntryToList(unsigned int index, const char* dest, const char* mask, const char* distance,
                                  const char* metric, const char* gateway, const char* outIf, const char* time,
                                  std::string& code, TW_RoutingAlgorithm alg, IInterfaceTypeHelper* helper) {
  // The mask length indexes the table of dotted masks; the patterns let any
  // digits through, so a length outside it drops the route.
  const long maskLen = (mask && *mask) ? std::strtol(mask, nullptr, 10) : 0;
  if (maskLen < 0 || maskLen > 32) return false;

  auto* entry = new RoutingTableEntry();
  entry->Index = index;
  entry->DestIp = IpAddress(DottedToNumber(dest));
  entry->DestMask = IpAddress(IpAddress::getBitMaskByLength(static_cast<int>(maskLen)));
  entry->DestText = dest ? dest : "";
  entry->MaskText = DottedMask(static_cast<int>(maskLen));
  entry->NextHop = IpAddress(DottedToNumber(gateway));
  if (helper)
    entry->OutIf = helper->GetFullInterfaceName(outIf ? outIf : "");
  else
    entry->OutIf = outIf ? outIf : "";
  entry->Alg = alg;
  entry->CandidateDefault = code.size() >= 2 && code[1] == '*';
  entry->SecondFlag = false;
  entry->TimeStamp = (!time || std::strcmp(time, "-1") == 0) ? 0xFFFFFFFFu : AgeToSeconds(time);
  const bool connected = alg == RT_ALG_CONNECTED;
  if (!distance || std::strcmp(distance, "-1") == 0)
    entry->Distance = connected ? 0 : 65535;
  else
    entry->Distance = static_cast<unsigned short>(Atoi(distance));
  if (!metric || std::strcmp(metric, "-1") == 0)
    entry->Metric = connected ? 0 : 0xFFFFFFFFu;
  else
    entry->Metric = static_cast<unsigned int>(Atoi(metric));

  // Indexes rise during a parse: the end is the place to insert.
  const size_t before = m_entryIndexMap.size();
  m_entryIndexMap.emplace_hint(m_entryIndexMap.end(), index, entry);
  if (m_entryIndexMap.size() == before) {
    delete entry;
    return false;
  }
  return true;
}

bool RoutingTable::ParseStream(std::istream& in, IInterfaceTypeHelper* helper, bool generateMap) {
  if (in.fail() || in.bad()) return false;
  const auto started = std::chrono::steady_clock::now();
  std::string text;
  in.seekg(0, std::ios::end);
  const std::streamoff size = in.tellg();
  if (size >= 0 && !in.fail()) {
    in.seekg(0, std::ios::beg);
    text.assign(static_cast<size_t>(size), '\0');
    in.read(&text[0], size);
    text.resize(static_cast<size_t>(in.gcount()));
  } else {
    // Not seekable: take what it gives.
    in.clear();
    text = StlHelper::fromStram(in);
  }
  if (text.empty()) return false;
  const bool ok = ParseCmdString(text.c_str(), helper, generateMap);
  const auto ms = std::chrono::duration_cast<std::chrono::milliseconds>(std::chrono::steady_clock::now() - started);
  ILogger* log = ILogger::GetInstance();
  if (log->IsEnabled(LOG_DEBUG))
    log->LogVar("dime", __FILE__, "RoutingTable::ParseStream", __LINE__, LOG_DEBUG, "Parse and sort Time: %d\n",
                static_cast<int>(ms.count()));
  return ok;
}

bool RoutingTable::ParseCmdString(const char* text, IInterfaceTypeHelper* helper, bool generateMap) {
  // A new parse replaces the entries; they are freed here rather than left behind.
  DeleteAllEntries();
  m_networkMap.clear();
  m_entryIndexMap.clear();
  m_defaultRoute = nullptr;
  if (!text) return false;

  const bool fileMode = std::strncmp(text, kFilePrefix, sizeof(kFilePrefix) - 1) == 0;
  std::string fileName;
  std::ifstream inFile;
  std::ofstream outFile;
  std::string examined;
  if (fileMode) {
    fileName = text + sizeof(kFilePrefix) - 1;
    inFile.open(StlHelper::AToW(fileName), std::ios::in | std::ios::binary);
    outFile.open(StlHelper::AToW(fileName + ".out"), std::ios::out | std::ios::binary | std::ios::trunc);
    examined.assign(kExaminedBytes, '\0');
    if (inFile) {
      inFile.read(&examined[0], static_cast<std::streamsize>(kExaminedBytes));
      examined.resize(static_cast<size_t>(inFile.gcount()));
      inFile.clear();
      inFile.seekg(0, std::ios::beg);
    } else {
      examined.clear();
    }
    // The marker scan stops at a NUL as the C text of the head would.
    examined.resize(std::strlen(examined.c_str()));
  }
  const std::string_view scope = fileMode ? std::string_view(examined) : std::string_view(text);

  const bool headerExpected = Holds(scope, "Gateway of last resort");
  if (!headerExpected && !Holds(scope, "is directly connected") && !Holds(scope, "is subnetted") &&
      !Holds(scope, "is variably subnetted") && !HoldsIgnoreCase(scope, "default gateway is")) {
    if (fileMode) {
      inFile.close();
      // Only the file this call made goes again.
      if (outFile.is_open()) {
        outFile.close();
        std::remove((fileName + ".out").c_str());
      }
    }
    return false;
  }

  if (fileMode) SaveCSVVersion(outFile, true, true);

  unsigned int nextIndex = 1;
  bool defaultGatewaySeen = false;
  bool gatewayLineSeen = false;
  std::string savedCode;
  std::string savedMask;
  std::string savedDest;
  std::string previousLine;
  std::string line;  // the line being treated; its buffer is reused
  std::string dest, mask, distance, metric, gateway, outIf, time;

  auto flushBatch = [&] {
    SaveCSVVersion(outFile, true, false);
    DeleteAllEntries();
    m_entryIndexMap.clear();
  };

  auto addEntry = [&](const char* d, const char* mk, const char* dist, const char* met, const char* gw,
                      const char* oif, const char* tm, std::string& code, TW_RoutingAlgorithm alg) {
    if (!PutEntryToList(nextIndex, d, mk, dist, met, gw, oif, tm, code, alg, helper)) return false;
    ++nextIndex;
    if (fileMode && m_entryIndexMap.size() > kBatchEntries) flushBatch();
    return true;
  };

  auto treatLine = [&](std::string_view raw) {
    if (raw.size() < 5 || Holds(raw, "show ip route")) return;

    if (!defaultGatewaySeen && MayHoldDefaultGateway(raw) && HoldsIgnoreCase(raw, "default gateway is")) {
      const std::string lowered = StlHelper::toLower(std::string(raw));
      if (ParseDefaultRTEntry(lowered.c_str(), gateway)) {
        std::string code = "S*  ";
        addEntry("0.0.0.0", "0", "0", "0", gateway.c_str(), "", "-1", code, RT_ALG_STATIC);
      }
      defaultGatewaySeen = true;
      return;
    }

    // Everything above the gateway line, the legend of codes included, is passed over.
    if (headerExpected && !gatewayLineSeen) {
      if (Holds(raw, "Gateway of last resort")) {
        std::string gw, net;
        const std::string lineText(raw);
        if (ParseGateway(lineText.c_str(), gw, net))
          SetLastResoltGateway(TW_AsciiToNetAddr(gw.c_str()), TW_AsciiToNetAddr(net.c_str()));
        gatewayLineSeen = true;
      }
      return;
    }

    // A continuation line has no code of its own and inherits its route's.
    const std::string_view codeView = TrimView(raw.substr(0, 5));
    if (!codeView.empty()) savedCode.assign(codeView.data(), codeView.size());
    std::string code = savedCode;

    std::string_view restView = raw.substr(5);
    if (restView.empty() || restView[0] != ' ') restView = raw.substr(4);
    const std::string_view trimmed = TrimView(restView);
    line.assign(trimmed.data(), trimmed.size());

    if (Holds(line, "subnetted,")) {
      ParseRTBEntry(kHeader, line, dest, mask, distance, metric, gateway, outIf, time);
      savedMask = mask;
      return;
    }

    bool star = false;
    TW_RoutingAlgorithm alg = GetAlgorithmTypeByString(code.c_str(), star);

    if (Holds(line, "directly connected")) {
      if (!line.empty() && line[0] == 'i') line = JoinWithPrevious(previousLine, {"is", "["}, line);
      if (!ParseRTBEntry(kConnected, line, dest, mask, distance, metric, gateway, outIf, time)) return;
      if (code.empty() || code[0] != 'S') alg = RT_ALG_CONNECTED;
    } else if (Holds(line, "a summary,")) {
      if (!ParseRTBEntry(kSummary, line, dest, mask, distance, metric, gateway, outIf, time)) return;
    } else if (!Holds(line, "via")) {
      // Perhaps the first half of a wrapped route.
      previousLine.swap(line);
      return;
    } else {
      if ((!line.empty() && line[0] == '[') || Holds(line, "routing"))
        line = JoinWithPrevious(previousLine, {"["}, line);
      const char first = code.empty() ? '\0' : code[0];
      bool parsed;
      if (first == 'S') {
        parsed = ParseRTBEntry(kRouteUntimed, line, dest, mask, distance, metric, gateway, outIf, time);
      } else if (first == 'i') {
        parsed = ParseRTBEntry(kRouteUntimed, line, dest, mask, distance, metric, gateway, outIf, time) ||
                 ParseRTBEntry(kRouteWithTime, line, dest, mask, distance, metric, gateway, outIf, time);
      } else {
        parsed = ParseRTBEntry(kRouteWithTime, line, dest, mask, distance, metric, gateway, outIf, time);
      }
      if (!parsed) return;
    }

    if (mask.empty()) mask = savedMask;
    if (dest.empty()) dest = savedDest;
    addEntry(dest.c_str(), mask.c_str(), distance.c_str(), metric.c_str(), gateway.c_str(), outIf.c_str(),
             time.c_str(), code, alg);
    savedDest = dest;
    previousLine.swap(line);
  };

  if (fileMode) {
    std::string lineText;
    while (ReadBoundedLine(inFile, lineText)) treatLine(lineText);
    flushBatch();
    outFile.flush();
    const bool written = static_cast<bool>(outFile);
    inFile.close();
    outFile.close();
    // Without a complete route file the listing stays where it is.
    if (!written) return false;
    const std::string outName = fileName + ".out";
    if (!RetryFileStep([&] { return std::remove(fileName.c_str()) == 0; })) return false;
    if (!RetryFileStep([&] { return std::rename(outName.c_str(), fileName.c_str()) == 0; })) return false;
  } else {
    const char* p = text;
    for (;;) {
      const char* end = p;
      while (*end && *end != '\r' && *end != '\n') ++end;
      treatLine(std::string_view(p, static_cast<size_t>(end - p)));
      if (!*end) break;
      p = end + 1;
    }
  }

  if (generateMap) GenerateNetworkMap();
  return true;
}
