// IPv4 value types: one address, an address with its mask, an address with
// don't-care bits, and the set of mask lengths of a table. Every route lookup
// runs through these, so they stay one or two words, never allocate, and
// never throw: text that does not read gives 0.0.0.0 or false.
//
// Numeric form everywhere: host order, first octet in the top byte.
#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "netloom/export.h"

class NETLOOM_API IpAddress {
public:
    IpAddress() : m_addr(0) {}
    IpAddress(unsigned int addr) : m_addr(addr) {}
    IpAddress(const IpAddress& other) = default;
    // Exactly four dotted octets and nothing after them; anything else is 0.0.0.0.
    IpAddress(const std::string& text);

    IpAddress& operator=(const IpAddress& other) = default;
    IpAddress& operator+=(unsigned int n) { m_addr += n; return *this; }
    IpAddress& operator-=(unsigned int n) { m_addr -= n; return *this; }

    bool operator==(const IpAddress& o) const { return m_addr == o.m_addr; }
    int operator!=(const IpAddress& o) const { return m_addr != o.m_addr; }
    bool operator<(const IpAddress& o) const { return m_addr < o.m_addr; }
    bool operator<=(const IpAddress& o) const { return m_addr <= o.m_addr; }
    bool operator>(const IpAddress& o) const { return m_addr > o.m_addr; }
    bool operator>=(const IpAddress& o) const { return m_addr >= o.m_addr; }

    unsigned int bitForm() const { return m_addr; }
    bool isNull() const { return m_addr == 0; }
    void invert() { m_addr = ~m_addr; }
    IpAddress getRevertedAddress() const { return IpAddress(~m_addr); }
    std::string textForm() const;

    // Classful mask by the leading bits (A, B, C, and 0xF0000000 for the rest).
    unsigned int classMaskBits() const;
    // As classMaskBits, except that 0.0.0.0 has the mask 0.0.0.0.
    IpAddress classMask() const;
    IpAddress network() const { return IpAddress(networkForm()); }
    unsigned int networkForm() const { return m_addr & classMaskBits(); }
    bool netMatch(const IpAddress& other) const;
    // This address read as a prefix of length getLeftNonZeroLen().
    bool doesInclude(const IpAddress& other) const;
    int getLeftNonZeroLen() const;
    int getRightZeroLen() const;
    bool isValidNetMask() const;
    // The address, then each shorter distinct network down to 0.0.0.0.
    std::vector<IpAddress> getAllPossibleSubnets() const;

    static unsigned int getBitMaskByLength(int length);
    static const std::string getMask(int length);
    // 32 minus the index of the lowest set bit; holes are not looked at.
    static int getMaskLength(unsigned int mask);
    // -1 unless the text is a dotted mask made of one left-aligned run.
    static int getMaskLength(const std::string& text);
    static bool isValidIpAddress(const std::string& text);
    // Cuts the caller's text at its first "/" before validating.
    static bool isValidIpAddress2(std::string& text);
    static bool isValidIpAddressForHost(std::string text);
    static bool isValidIpAddressAndMaskLen(const std::string& text);
    static bool formateIpAddressAndMaskLen(std::string& text);
    static bool isValidNetmask(const std::string& text);
    // "a<sep>b" as an inclusive range, smaller end first.
    static bool GetIpRangByStr(const std::string& text, std::pair<IpAddress, IpAddress>& range,
                               const std::string& separator);
    // The ranges a partly typed address could begin, first address to last.
    static bool GetIpRangByIpPrefixStr(const std::string& text, std::map<IpAddress, IpAddress>& ranges);

    // Host look-ups through the system resolver.
    static bool GetLocalIp(IpAddress& out);
    static bool GetLocalIps(std::vector<IpAddress>& out);
    static std::string GetHostNamebyIP(const IpAddress& address);
    static IpAddress GetIpByHostName(const std::string& name);

private:
    // One octet: count of ones if they form a run from bit 7, 0 for 0, else -1.
    static int getMaskLength(int octet);

    unsigned int m_addr;
};

NETLOOM_API unsigned int TW_AsciiToNetAddr(const char* text);
NETLOOM_API unsigned int TW_AsciiToNetAddr(const char* text, bool& ok);
// out must hold at least 16 bytes.
NETLOOM_API void TW_NetAddrIntoAscii(unsigned int addr, char* out);
// A fresh 16-byte buffer from malloc; the caller frees it.
NETLOOM_API char* TW_NetAddrToAscii(unsigned int addr);

// Address and full 32-bit mask. Host bits are kept as given; the mask is not
// required to be contiguous unless validMask() is asked.
class NETLOOM_API IpLocation {
public:
    IpLocation() = default;
    IpLocation(const IpAddress& addr, const IpAddress& mask) : m_addr(addr), m_mask(mask) {}
    IpLocation(const IpAddress& addr, int maskLength)
        : m_addr(addr), m_mask(IpAddress::getBitMaskByLength(maskLength)) {}
    IpLocation(unsigned int addr, unsigned int mask) : m_addr(addr), m_mask(mask) {}
    IpLocation(const IpLocation& other) = default;
    // Unchecked texts; inverted complements the mask, for access-list wildcards.
    IpLocation(std::string addr, std::string mask, bool inverted);
    // Tries get_ip_mask, fromString, fromString2 in turn; 0/0 if none reads.
    IpLocation(std::string text);

    IpLocation& operator=(const IpLocation& other) = default;

    bool operator==(const IpLocation& o) const { return m_addr == o.m_addr && m_mask == o.m_mask; }
    bool operator!=(const IpLocation& o) const { return !(*this == o); }
    // Key order of every map keyed by a location: A * 0xFFFFFFFF + M in 64
    // bits. Not lexical: (A+1, 0) and (A, 0xFFFFFFFF) are equivalent keys.
    bool operator<(const IpLocation& o) const { return orderKey() < o.orderKey(); }
    uint64_t orderKey() const {
        return uint64_t(m_addr.bitForm()) * 0xFFFFFFFFull + m_mask.bitForm();
    }

    bool isNull() const { return m_addr.isNull(); }
    IpAddress maskedAddress() const { return IpAddress(maskedBits()); }
    unsigned int maskedBits() const { return m_addr.bitForm() & m_mask.bitForm(); }
    IpAddress unmaskedAddress() const { return m_addr; }
    IpAddress subnetMask() const { return m_mask; }
    int getMaskLen() const { return IpAddress::getMaskLength(m_mask.bitForm()); }
    void setIpAddress(const IpAddress& addr) { m_addr = addr; }
    void setSubnetMask(const IpAddress& mask) { m_mask = mask; }
    void setFullMask() { m_mask = IpAddress(0xFFFFFFFFu); }
    bool isFullMask() const { return m_mask.bitForm() == 0xFFFFFFFFu; }

    IpAddress classMask() const { return m_addr.classMask(); }
    IpAddress networkAddress() const { return m_addr.network(); }
    bool netMatch(const IpAddress& other) const { return m_addr.netMatch(other); }
    bool isSubnet() const { return m_mask > classMask(); }
    bool isSupernet() const { return m_mask < classMask(); }
    bool summarized() const { return !(m_mask > classMask()); }
    void summary();
    bool zeroSubnet() const;
    bool isHostAddress() const { return maskedBits() != m_addr.bitForm(); }
    bool isSubnetAddress() const { return maskedBits() == m_addr.bitForm(); }
    bool validMask() const;
    bool inSameNet(const IpLocation& other) const { return inSameNet(other.m_addr.bitForm()); }
    bool inSameNet(const IpAddress& other) const { return inSameNet(other.bitForm()); }
    bool inSameNet(unsigned int other) const { return (other & m_mask.bitForm()) == maskedBits(); }
    bool isSameNet(const IpLocation& other) const { return maskedBits() == other.maskedBits(); }
    bool isSupernet(const IpLocation& other) const;
    bool isSummarynet(const IpLocation& other) const;
    IpLocation GetSubnetIpLocation() const { return IpLocation(maskedBits(), m_mask.bitForm()); }

    std::string textForm(bool withMask = true) const;
    std::string maskTextFrom() const { return m_mask.textForm(); }
    std::string textFormByMaskLen() const;
    std::string textFormForUI(bool showEmpty) const;

    // This location, then each supernet one bit shorter, ending in 0/0.
    std::vector<IpLocation> getAllPossibleSupnets() const;
    // Network address up to, not including, the broadcast address.
    std::vector<IpAddress> getAllSubnetsInSameNetwork() const;

    static bool IsLanNetworkAddr(const IpAddress& ip, const IpLocation& location);
    static bool IsLanBroadcastAddr(const IpAddress& ip, const IpLocation& location);
    // "a.b.c.d", "a.b.c.d/len" or "a.b.c.d mask"; outputs untouched on false.
    static bool get_ip_mask(const std::string& text, IpAddress& addr, IpAddress& mask);
    // The first token of a line that get_ip_mask accepts.
    static bool has_ip_mask(const std::string& text, IpAddress& addr, IpAddress& mask);

    bool fromString(const std::string& text);
    bool fromString2(const std::string& text);

private:
    IpAddress m_addr;
    IpAddress m_mask;
};

class NETLOOM_API IpWildcard {
public:
    IpWildcard(const IpAddress& addr, unsigned int wildcard) : m_addr(addr), m_wildcard(wildcard) {}
    IpWildcard(const IpAddress& addr, std::string wildcard);
    IpWildcard(const IpWildcard& other) = default;
    IpWildcard& operator=(const IpWildcard& other) = default;

    IpAddress getIpAddress() const { return m_addr; }
    void setIpAddress(const IpAddress& addr) { m_addr = addr; }
    unsigned int getWildcard() const { return m_wildcard; }
    void setWildcard(unsigned int wildcard) { m_wildcard = wildcard; }

    bool matchIP(const IpAddress& ip) const;
    std::string genIPString() const;

private:
    IpAddress m_addr;
    unsigned int m_wildcard;
};

// Mask lengths present in a table, walked longest first by iter(). The zero
// mask is kept apart and reported only by zeroMask().
class NETLOOM_API IpNetMasks {
public:
    IpNetMasks() = default;
    IpNetMasks(const IpNetMasks& other) = default;
    IpNetMasks& operator=(const IpNetMasks& other) = default;

    void add(unsigned int mask);
    // Next mask, longest first; 0 ends a walk and rearms the next one.
    unsigned int iter();
    void resetIter();
    bool zeroMask() const { return m_zeroMask != 0; }

private:
    unsigned int m_maskBits = 0;
    uint8_t m_zeroMask = 0;
    unsigned int m_cursor = 0;
    unsigned int m_current = 0;
};
