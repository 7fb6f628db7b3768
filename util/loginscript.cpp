// ModeLoginScript text block:
//
//   LoginScript,1,<use 0|1>,<step count>
//   step,<mode>,<expect>,<send>          (one line per step)
//
// Texts are percent-escaped (%, comma, CR, LF and other control bytes), so a
// step is always one line whatever the prompts hold, and nothing in the
// block can be taken for the start of the next record.
#include "netloom/util/loginscript.h"

#include <cerrno>
#include <cstdlib>
#include <istream>
#include <ostream>
#include <string>
#include <vector>

namespace netloom::detail {
namespace {

const char kHeader[] = "LoginScript";
const char kStep[] = "step";
constexpr int kFormat = 1;
// Far above any real script; keeps a damaged count from driving the reader.
constexpr long kMaxSteps = 100000;
constexpr size_t kMaxLine = 1u << 20;

std::string Escape(const std::string& s) {
    static const char hex[] = "0123456789ABCDEF";
    std::string out;
    out.reserve(s.size());
    for (unsigned char c : s) {
        if (c == '%' || c == ',' || c < 0x20 || c == 0x7F) {
            out += '%';
            out += hex[c >> 4];
            out += hex[c & 15];
        } else {
            out += static_cast<char>(c);
        }
    }
    return out;
}

int HexValue(char c) {
    if (c >= '0' && c <= '9') return c - '0';
    if (c >= 'A' && c <= 'F') return c - 'A' + 10;
    if (c >= 'a' && c <= 'f') return c - 'a' + 10;
    return -1;
}

bool Unescape(const std::string& s, std::string& out) {
    out.clear();
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] != '%') {
            out += s[i];
            continue;
        }
        if (i + 2 >= s.size()) return false;
        const int hi = HexValue(s[i + 1]), lo = HexValue(s[i + 2]);
        if (hi < 0 || lo < 0) return false;
        out += static_cast<char>(hi * 16 + lo);
        i += 2;
    }
    return true;
}

std::vector<std::string> SplitCommas(const std::string& line) {
    std::vector<std::string> parts(1);
    for (char c : line) {
        if (c == ',')
            parts.emplace_back();
        else
            parts.back() += c;
    }
    return parts;
}

bool ToLong(const std::string& s, long lo, long hi, long& out) {
    if (s.empty() || s.size() > 12) return false;
    char* end = nullptr;
    errno = 0;
    const long v = std::strtol(s.c_str(), &end, 10);
    if (errno != 0 || *end != '\0' || v < lo || v > hi) return false;
    out = v;
    return true;
}

// One line without its end; a CR before the LF is dropped too, so a block
// that went through a CRLF conversion still reads.
bool ReadLine(std::istream& in, std::string& line) {
    line.clear();
    char c;
    while (in.get(c)) {
        if (c == '\n') break;
        if (line.size() >= kMaxLine) return false;
        line += c;
    }
    if (line.empty() && !in) return false;
    if (!line.empty() && line.back() == '\r') line.pop_back();
    return true;
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

bool ModeLoginScript::GetLoginScript(int mode, LoginScript& out) const {
    out.Clear();
    const auto found = m_scripts.find(mode);
    if (found == m_scripts.end()) return false;
    out = found->second;
    return true;
}

void ModeLoginScript::save(std::ostream& out) const {
    size_t steps = 0;
    for (const auto& [mode, script] : m_scripts) steps += script.GetCount();
    out << kHeader << ',' << kFormat << ',' << (m_useLoginScript ? 1 : 0) << ',' << steps << '\n';
    for (const auto& [mode, script] : m_scripts) {
        for (const ExpectItem& item : script.GetItems()) {
            // The step's own mode decides where it is read back into.
            out << kStep << ',' << item.mode << ',' << Escape(item.expect) << ',' << Escape(item.send)
                << '\n';
        }
        (void)mode;
    }
}

bool ModeLoginScript::load(std::istream& in) {
    if (in.peek() == std::char_traits<char>::eof()) {
        in.clear(in.rdstate() & ~std::ios::failbit);
        Clear();
        m_useLoginScript = false;
        return true;
    }
    std::string line;
    if (!ReadLine(in, line)) return false;
    const std::vector<std::string> head = SplitCommas(line);
    long format = 0, use = 0, steps = 0;
    if (head.size() != 4 || head[0] != kHeader || !ToLong(head[1], 1, 1000, format) ||
        format != kFormat || !ToLong(head[2], 0, 1, use) || !ToLong(head[3], 0, kMaxSteps, steps))
        return false;

    ModeLoginScript loaded;
    loaded.m_useLoginScript = use != 0;
    for (long i = 0; i < steps; ++i) {
        if (!ReadLine(in, line)) return false;
        const std::vector<std::string> f = SplitCommas(line);
        long mode = 0;
        ExpectItem item;
        if (f.size() != 4 || f[0] != kStep || !ToLong(f[1], -2147483647L - 1, 2147483647L, mode) ||
            !Unescape(f[2], item.expect) || !Unescape(f[3], item.send))
            return false;
        item.mode = static_cast<int>(mode);
        loaded.AddExpectItem(item);
    }
    *this = std::move(loaded);
    return true;
}
