// IPv4 address, location, wildcard and mask-set values, their text readers
// and the host look-ups. The readers accept exactly what devices and users
// have always been allowed to type, quirks included (see the notes at each
// reader); callers up the stack compare results against stored files.
#include "netloom/ipaddress.h"

#include "address/supernetwalk.h"
#include "netloom/util/stlhelper.h"

#include <netdb.h>
#include <netinet/in.h>
#include <sys/socket.h>
#include <unistd.h>

#include <algorithm>
#include <cctype>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <cstring>

namespace netloom::detail {

// Four octets of at most three digits, each at most 255. The trailing
// conversion decides what may follow: "%1c" refuses any character (blanks
// too), "%1s" skips blanks and refuses only a visible character.
bool ScanDotted(const char* text, const char* format, unsigned int& out) {
    if (text == nullptr) return false;
    int a = 0, b = 0, c = 0, d = 0;
    char tail[2] = {0, 0};
    if (std::sscanf(text, format, &a, &b, &c, &d, tail) != 4) return false;
    if (a > 255 || b > 255 || c > 255 || d > 255) return false;
    out = (unsigned(a) << 24) + (unsigned(b) << 16) + (unsigned(c) << 8) + unsigned(d);
    return true;
}

constexpr const char* kStrictDotted = "%3d.%3d.%3d.%3d%1c";
constexpr const char* kLenientDotted = "%3d.%3d.%3d.%3d%1s";

// A shift as the x86 instruction does it: the count is taken modulo 32.
// The prefix-range reader depends on 1 << 32 being 1.
inline unsigned int Shl32(unsigned int value, unsigned int count) { return value << (count & 31u); }

bool AllDigits(const std::string& s) {
    return std::all_of(s.begin(), s.end(), [](char ch) { return ch >= '0' && ch <= '9'; });
}

// Decimal value of a digit string, saturating instead of overflowing.
long long DigitsValue(const std::string& s) {
    long long v = 0;
    for (char ch : s) {
        v = v * 10 + (ch - '0');
        if (v > INT_MAX) return LLONG_MAX;
    }
    return v;
}

int SafeAtoi(const std::string& s) {
    // atoi has undefined results on overflow; strtol saturates.
    long v = std::strtol(s.c_str(), nullptr, 10);
    if (v > INT_MAX) return INT_MAX;
    if (v < INT_MIN) return INT_MIN;
    return static_cast<int>(v);
}

// Resolves a host name to IPv4 addresses, at most `limit` of them.
std::vector<unsigned int> ResolveV4(const char* host, size_t limit) {
    std::vector<unsigned int> out;
    addrinfo hints{};
    hints.ai_family = AF_INET;
    hints.ai_socktype = SOCK_STREAM;
    addrinfo* res = nullptr;
    if (getaddrinfo(host, nullptr, &hints, &res) != 0 || res == nullptr) return out;
    for (addrinfo* p = res; p != nullptr && out.size() < limit; p = p->ai_next) {
        if (p->ai_family != AF_INET || p->ai_addr == nullptr) continue;
        const auto* sin = reinterpret_cast<const sockaddr_in*>(p->ai_addr);
        unsigned int addr = ntohl(sin->sin_addr.s_addr);
        // Through the text form, as every other address in the library.
        out.push_back(IpAddress(IpAddress(addr).textForm()).bitForm());
    }
    freeaddrinfo(res);
    return out;
}

std::vector<unsigned int> ResolveLocal(size_t limit) {
    char host[256] = {0};
    if (gethostname(host, sizeof(host) - 1) != 0) return {};
    return ResolveV4(host, limit);
}

}  // namespace netloom::detail

using namespace netloom::detail;

// ---------------------------------------------------------------- free functions

unsigned int TW_AsciiToNetAddr(const char* text) {
    unsigned int v = 0;
    return ScanDotted(text, kLenientDotted, v) ? v : 0;
}

unsigned int TW_AsciiToNetAddr(const char* text, bool& ok) {
    unsigned int v = 0;
    ok = ScanDotted(text, kStrictDotted, v);
    return ok ? v : 0;
}

void TW_NetAddrIntoAscii(unsigned int addr, char* out) {
    if (out == nullptr) return;
    std::snprintf(out, 16, "%u.%u.%u.%u", addr >> 24, (addr >> 16) & 0xFF, (addr >> 8) & 0xFF,
                  addr & 0xFF);
}

char* TW_NetAddrToAscii(unsigned int addr) {
    char* out = static_cast<char*>(std::malloc(16));
    if (out != nullptr) TW_NetAddrIntoAscii(addr, out);
    return out;
}

// ---------------------------------------------------------------- IpAddress

IpAddress::IpAddress(const std::string& text) : m_addr(0) {
    unsigned int v = 0;
    if (ScanDotted(text.c_str(), kStrictDotted, v)) m_addr = v;
}

std::string IpAddress::textForm() const {
    char buf[16];
    TW_NetAddrIntoAscii(m_addr, buf);
    return buf;
}

unsigned int IpAddress::classMaskBits() const {
    if ((m_addr & 0x80000000u) == 0) return 0xFF000000u;
    if ((m_addr & 0xC0000000u) == 0x80000000u) return 0xFFFF0000u;
    if ((m_addr & 0xE0000000u) == 0xC0000000u) return 0xFFFFFF00u;
    return 0xF0000000u;
}

IpAddress IpAddress::classMask() const { return m_addr == 0 ? IpAddress(0u) : IpAddress(classMaskBits()); }

bool IpAddress::netMatch(const IpAddress& other) const { return networkForm() == other.networkForm(); }

bool IpAddress::doesInclude(const IpAddress& other) const {
    unsigned int mask = getBitMaskByLength(getLeftNonZeroLen());
    return (other.m_addr & mask) == (m_addr & mask);
}

int IpAddress::getLeftNonZeroLen() const { return m_addr == 0 ? 0 : 32 - __builtin_ctz(m_addr); }

int IpAddress::getRightZeroLen() const { return m_addr == 0 ? 32 : __builtin_ctz(m_addr); }

bool IpAddress::isValidNetMask() const {
    unsigned int inv = ~m_addr;
    return (inv & (inv + 1)) == 0;
}

std::vector<IpAddress> IpAddress::getAllPossibleSubnets() const {
    std::vector<IpAddress> out;
    out.emplace_back(m_addr);
    if (m_addr == 0) return out;
    unsigned int prev = m_addr;
    for (int n = 1; n <= 31; ++n) {
        unsigned int v = m_addr & (0xFFFFFFFFu << n);
        if (v != prev) {
            out.emplace_back(v);
            prev = v;
        }
        if (v == 0) return out;
    }
    out.emplace_back(0u);
    return out;
}

unsigned int IpAddress::getBitMaskByLength(int length) {
    if (length < 1) return 0;
    if (length >= 32) return 0xFFFFFFFFu;
    return 0xFFFFFFFFu << (32 - length);
}

const std::string IpAddress::getMask(int length) { return IpAddress(getBitMaskByLength(length)).textForm(); }

int IpAddress::getMaskLength(unsigned int mask) { return mask == 0 ? 0 : 32 - __builtin_ctz(mask); }

int IpAddress::getMaskLength(int octet) {
    if (octet < 0 || octet > 255) return -1;
    if (octet == 0) return 0;
    int ones = __builtin_popcount(static_cast<unsigned>(octet));
    unsigned int run = (0xFFu << (8 - ones)) & 0xFFu;
    return static_cast<unsigned>(octet) == run ? ones : -1;
}

int IpAddress::getMaskLength(const std::string& text) {
    if (!isValidIpAddress(text)) return -1;
    std::vector<std::string> parts = StlHelper::splitString(text, ".");
    if (parts.size() != 4) return -1;
    int total = 0;
    bool closed = false;  // a partial or zero octet ends the run
    for (const std::string& part : parts) {
        int octet = SafeAtoi(part);
        int len = getMaskLength(octet);
        if (len < 0) return -1;
        if (closed && octet != 0) return -1;
        if (len < 8) closed = true;
        total += len;
    }
    return total;
}

bool IpAddress::isValidIpAddress(const std::string& text) {
    std::string t = StlHelper::trump(text);
    int group = 0, dots = 0;
    for (char ch : t) {
        if (ch >= '0' && ch <= '9') {
            if (++group > 3) return false;
        } else if (ch == '.') {
            group = 0;
            ++dots;
        } else {
            return false;
        }
    }
    if (dots != 3) return false;
    bool ok = false;
    TW_AsciiToNetAddr(t.c_str(), ok);
    return ok;
}

bool IpAddress::isValidIpAddress2(std::string& text) {
    size_t slash = text.find('/');
    if (slash != std::string::npos) text.erase(slash);
    return isValidIpAddress(text);
}

bool IpAddress::isValidIpAddressForHost(std::string text) {
    return isValidIpAddress2(text) && text != "255.255.255.255" && text != "0.0.0.0";
}

bool IpAddress::isValidIpAddressAndMaskLen(const std::string& text) {
    std::string t = StlHelper::trump(text);
    size_t slash = t.find('/');
    if (slash == std::string::npos) return false;
    if (!isValidIpAddress(t.substr(0, slash))) return false;
    // The length is compared as text: "a" passes, "4x" does not.
    std::string len = t.substr(slash + 1);
    if (len.size() > 2) return false;
    return !(len.size() == 2 && len > "32");
}

bool IpAddress::formateIpAddressAndMaskLen(std::string& text) {
    if (!isValidIpAddressAndMaskLen(text)) return false;
    std::string t = StlHelper::trump(text);
    size_t slash = t.find('/');
    // The address is read one character short of the "/"; stored data was
    // written this way, so the reading stays.
    IpAddress addr(t.substr(0, slash - 1));
    std::string lenText = t.substr(slash + 1);
    IpAddress mask(getMask(SafeAtoi(lenText)));
    text = IpAddress(addr.bitForm() & mask.bitForm()).textForm() + "/" + lenText;
    return true;
}

bool IpAddress::isValidNetmask(const std::string& text) { return getMaskLength(text) >= 0; }

bool IpAddress::GetIpRangByStr(const std::string& text, std::pair<IpAddress, IpAddress>& range,
                               const std::string& separator) {
    std::vector<std::string> parts = StlHelper::splitString(text, separator);
    if (parts.size() != 2) return false;
    IpAddress first(parts[0]), last(parts[1]);
    if (first.isNull() || last.isNull()) return false;
    if (first > last) std::swap(first, last);
    range = std::make_pair(first, last);
    return true;
}

bool IpAddress::GetIpRangByIpPrefixStr(const std::string& text, std::map<IpAddress, IpAddress>& ranges) {
    if (text.empty()) return false;
    std::vector<unsigned int> octets;
    std::string token;
    for (char ch : text) {
        if (ch == '.') {
            if (token.empty()) return false;
            octets.push_back(static_cast<unsigned int>(SafeAtoi(token)));
            token.clear();
        } else if (ch >= '0' && ch <= '9') {
            if (!token.empty() && token[0] == '0' && ch != '0') return false;
            token += ch;
            if (token.size() > 3) return false;
        } else {
            return false;
        }
        if (octets.size() > 4) return false;
    }
    const unsigned int count = static_cast<unsigned int>(octets.size());
    if (count == 4 && !token.empty()) return false;

    // Octets are not bounded here: a large one spills into the next byte.
    unsigned int base = 0;
    for (unsigned int i = 0; i < count; ++i) base += octets[i] << (24 - 8 * i);

    const unsigned int partial = token.empty() ? 0u : static_cast<unsigned int>(SafeAtoi(token));
    const unsigned int span = Shl32(1u, 8 * (4 - count));
    if (partial == 0) {
        ranges[IpAddress(base)] = IpAddress(base + span - 1);
        return true;
    }
    const unsigned int shift = 8 * (3 - count);
    for (unsigned int factor : {1u, 10u, 100u}) {
        if (partial * factor > 255) break;
        unsigned int first = base + Shl32(partial * factor, shift);
        int32_t upper = static_cast<int32_t>(Shl32((partial + 1) * factor, shift) - 1);
        int32_t limit = static_cast<int32_t>(span - 1);
        unsigned int last = base + static_cast<unsigned int>(std::min(upper, limit));
        ranges[IpAddress(first)] = IpAddress(last);
    }
    return true;
}

bool IpAddress::GetLocalIp(IpAddress& out) {
    std::vector<unsigned int> found = ResolveLocal(1);
    if (found.empty()) return false;
    out = IpAddress(found.front());
    return true;
}

bool IpAddress::GetLocalIps(std::vector<IpAddress>& out) {
    std::vector<unsigned int> found = ResolveLocal(10);
    if (found.empty()) return false;
    for (unsigned int a : found) out.emplace_back(a);
    return true;
}

std::string IpAddress::GetHostNamebyIP(const IpAddress& address) {
    sockaddr_in sin{};
    sin.sin_family = AF_INET;
    sin.sin_addr.s_addr = htonl(address.bitForm());
    char host[NI_MAXHOST] = {0};
    if (getnameinfo(reinterpret_cast<const sockaddr*>(&sin), sizeof(sin), host, sizeof(host), nullptr, 0,
                    NI_NAMEREQD) != 0)
        return std::string();
    return host;
}

IpAddress IpAddress::GetIpByHostName(const std::string& name) {
    IpAddress literal(name);
    if (!literal.isNull()) return literal;
    if (name.empty()) return IpAddress();
    std::vector<unsigned int> found = ResolveV4(name.c_str(), 10);
    for (unsigned int a : found)
        if (a != 0) return IpAddress(a);
    return IpAddress();
}

// ---------------------------------------------------------------- IpLocation

IpLocation::IpLocation(std::string addr, std::string mask, bool inverted) : m_addr(addr), m_mask(mask) {
    if (inverted) m_mask.invert();
}

IpLocation::IpLocation(std::string text) {
    IpAddress a, m;
    if (get_ip_mask(text, a, m)) {
        m_addr = a;
        m_mask = m;
        return;
    }
    if (fromString(text)) return;
    fromString2(text);
}

void IpLocation::summary() {
    m_mask = m_addr.classMask();
    m_addr = m_addr.network();
}

bool IpLocation::zeroSubnet() const {
    return (m_addr.bitForm() & m_addr.classMaskBits()) == maskedBits() && m_mask > classMask();
}

bool IpLocation::validMask() const {
    unsigned int inv = ~m_mask.bitForm();
    return (inv & (inv + 1)) == 0;
}

bool IpLocation::isSupernet(const IpLocation& other) const {
    unsigned int m = m_mask.bitForm();
    return !(m_mask > other.m_mask) && (m_addr.bitForm() & m) == (other.m_addr.bitForm() & m);
}

bool IpLocation::isSummarynet(const IpLocation& other) const {
    unsigned int m = other.m_mask.bitForm();
    return !(other.m_mask > m_mask) && (m_addr.bitForm() & m) == (other.m_addr.bitForm() & m);
}

std::string IpLocation::textForm(bool withMask) const {
    return withMask ? m_addr.textForm() + " " + m_mask.textForm() : m_addr.textForm();
}

std::string IpLocation::textFormByMaskLen() const {
    return m_addr.textForm() + "/" + std::to_string(getMaskLen());
}

std::string IpLocation::textFormForUI(bool showEmpty) const {
    if (m_addr.isNull()) return showEmpty ? "No IP Address" : "";
    return textFormByMaskLen();
}

std::vector<IpLocation> IpLocation::getAllPossibleSupnets() const {
    std::vector<IpLocation> out;
    WalkSupernets(*this, [&out](const IpLocation& l) {
        out.push_back(l);
        return false;
    });
    return out;
}

std::vector<IpAddress> IpLocation::getAllSubnetsInSameNetwork() const {
    std::vector<IpAddress> out;
    const unsigned int first = maskedBits();
    const unsigned int last = first | ~m_mask.bitForm();
    // A list longer than a /8 is never what a caller wants and would
    // exhaust memory for short masks; it is refused as empty.
    if (last - first > 0x01000000u) return out;
    out.reserve(last - first);
    for (unsigned int a = first; a != last; ++a) out.emplace_back(a);
    return out;
}

bool IpLocation::IsLanNetworkAddr(const IpAddress& ip, const IpLocation& location) {
    return ip.bitForm() == location.maskedBits();
}

bool IpLocation::IsLanBroadcastAddr(const IpAddress& ip, const IpLocation& location) {
    return location.inSameNet(ip) && ip.bitForm() == (location.maskedBits() | ~location.m_mask.bitForm());
}

bool IpLocation::get_ip_mask(const std::string& text, IpAddress& addr, IpAddress& mask) {
    std::string t = StlHelper::trump(text);
    if (t.empty()) return false;
    std::string addrText = t, maskText;
    size_t blank = t.find(' ');
    if (blank != std::string::npos) {
        addrText = t.substr(0, blank);
        maskText = StlHelper::trump(t.substr(blank + 1));
    }
    if (!maskText.empty() && IpAddress::isValidIpAddress(addrText)) {
        addr = IpAddress(addrText);
        mask = IpAddress(maskText);  // not validated: unreadable is 0.0.0.0
        return true;
    }
    size_t slash = addrText.find('/');
    if (slash == std::string::npos) {
        if (!IpAddress::isValidIpAddress(addrText)) return false;
        addr = IpAddress(addrText);
        mask = IpAddress(0xFFFFFFFFu);
        return true;
    }
    std::string left = addrText.substr(0, slash), right = addrText.substr(slash + 1);
    if (!IpAddress::isValidIpAddress(left) || !AllDigits(right)) return false;
    long long len = DigitsValue(right);
    if (len > 32) return false;
    addr = IpAddress(left);
    mask = IpAddress(IpAddress::getMask(static_cast<int>(len)));
    return true;
}

bool IpLocation::has_ip_mask(const std::string& text, IpAddress& addr, IpAddress& mask) {
    std::string token;
    for (char ch : text) {
        if (ch >= '.' && ch <= '9') {
            token += ch;
            continue;
        }
        if (!token.empty()) {
            if (get_ip_mask(token, addr, mask)) return true;
            token.clear();
        }
    }
    return !token.empty() && get_ip_mask(token, addr, mask);
}

namespace netloom::detail {

// Shared tail of fromString and fromString2: the right part is a dotted
// mask or a length ("0" exactly, or 1 to 32).
bool ReadAddressAndMask(const std::string& left, const std::string& right, IpAddress& addr, IpAddress& mask) {
    if (!IpAddress::isValidIpAddress(left)) return false;
    if (IpAddress::isValidIpAddress(right)) {
        addr = IpAddress(left);
        mask = IpAddress(right);
        return true;
    }
    int len = SafeAtoi(right);
    if (!(right == "0" || (len >= 1 && len <= 32))) return false;
    addr = IpAddress(left);
    mask = IpAddress(IpAddress::getBitMaskByLength(len));
    return true;
}

}  // namespace netloom::detail

bool IpLocation::fromString(const std::string& text) {
    // Untrimmed on purpose: a blank around the "/" makes a part unreadable.
    return ReadAddressAndMask(StlHelper::GetLSubString(text, "/"), StlHelper::GetRSubString(text, "/"), m_addr,
                              m_mask);
}

bool IpLocation::fromString2(const std::string& text) {
    std::string t = StlHelper::trump(text);
    return ReadAddressAndMask(StlHelper::GetLSubString(t, " "), StlHelper::trump(StlHelper::GetRSubString(t, " ")),
                              m_addr, m_mask);
}

// ---------------------------------------------------------------- IpWildcard

IpWildcard::IpWildcard(const IpAddress& addr, std::string wildcard)
    : m_addr(addr), m_wildcard(IpAddress(wildcard).bitForm()) {}

bool IpWildcard::matchIP(const IpAddress& ip) const {
    unsigned int x = ip.bitForm() ^ m_addr.bitForm();
    if (m_wildcard == 0) return x == 0;
    return (x & ~m_wildcard) == 0;
}

std::string IpWildcard::genIPString() const {
    if (m_wildcard == 0) return m_addr.textForm();
    return IpLocation(m_addr, IpAddress(~m_wildcard)).textFormByMaskLen();
}

// ---------------------------------------------------------------- IpNetMasks

void IpNetMasks::add(unsigned int mask) {
    if (mask == 0) {
        m_zeroMask = 1;
        return;
    }
    m_maskBits |= 1u << __builtin_ctz(mask);
}

void IpNetMasks::resetIter() {
    m_cursor = m_maskBits;
    m_current = 0;
}

unsigned int IpNetMasks::iter() {
    if (m_current == 0) {
        m_cursor = m_maskBits;
        m_current = 0xFFFFFFFFu;
    } else {
        m_cursor >>= 1;
        m_current <<= 1;
    }
    while (m_cursor != 0 && (m_cursor & 1u) == 0) {
        m_cursor >>= 1;
        m_current <<= 1;
    }
    if (m_cursor == 0) {
        m_current = 0;
        return 0;
    }
    return m_current;
}
