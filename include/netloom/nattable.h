// A device's address translation rules, in evaluation order, and their use on
// a packet under analysis: the first rule that matches rewrites the packet's
// addresses and ports, outside to inside (GlobalToLocal) or inside to outside
// (LocalToGlobal). Rules name addresses by a small list language: items
// separated by ";", each an address in NetAddress text form ("a.b.c.d",
// "a.b.c.d/len", with ":port"), a range "first-last", or either behind "~"
// for negation. Items are alternatives: any one that matches, matches.
#pragma once

#include <iosfwd>
#include <memory>
#include <string>
#include <vector>

#include "netloom/export.h"
#include "netloom/ipaddress2.h"
#include "netloom/l3packet.h"

class NETLOOM_API NATEntry {
 public:
  struct AddressType {
    bool Negated = false;
    bool IsRange = false;
    NetAddress First;
    NetAddress Last;
  };

  NATEntry() = default;
  NATEntry(const NATEntry&) = default;
  NATEntry(NATEntry&&) = default;
  NATEntry& operator=(const NATEntry&) = default;
  NATEntry& operator=(NATEntry&&) = default;

  static bool CheckIsValidIps(const std::string& list);
  // "Manual", "Static", "Dynamic"; "Undefined" for any other value.
  static std::string FlagToString(int flag);
  // The exact texts above; -1 for anything else.
  static int StringToFlag(const std::string& text);
  // Whether `address` matches the list; an empty list matches when `emptyMatches`.
  static bool IsMach(const std::string& list, const NetAddress& address, bool emptyMatches);

  // Rewrites `packet` when it matches this rule; false leaves it as it was.
  bool GlobalToLocal(L3Packet& packet) const;
  bool LocalToGlobal(L3Packet& packet) const;

  int Id = 0;
  std::string InInterface;
  std::string OutInterface;
  std::string InsideLocal;
  std::string InsideGlobal;
  std::string OutsideLocal;
  std::string OutsideGlobal;
  int Flag = 0;  // 0 manual, 1 static, 2 dynamic; only manual rules are edited

 private:
  static bool ParseString(const std::string& list, std::vector<AddressType>& out, bool firstOnly);
  static bool Translate(L3Packet& packet, const std::string& sourceMatch, const std::string& destMatch,
                        const std::string& sourceRewrite, const std::string& destRewrite);
};

// Holds its rules. A copy shares the rule objects of the table it came from:
// an edit through one shows in the other. Sharing is counted, so destroying or
// cleaning up either table never frees a rule the other still lists.
class NETLOOM_API NATTable {
 public:
  NATTable() = default;
  NATTable(const NATTable&) = default;
  NATTable& operator=(const NATTable&) = default;
  ~NATTable() = default;

  unsigned GetSize() const { return static_cast<unsigned>(m_entries.size()); }
  const std::vector<NATEntry*>& GetAllEntries() const { return m_entries; }
  std::string GetDeviceName() const { return m_deviceName; }
  void SetDeviceName(const std::string& name) { m_deviceName = name; }

  void CleanUp();
  // Inserts a copy keeping the order by Flag; among equal flags it goes last.
  void AddNATEntry(NATEntry* entry);
  // A copy at the end; an Id of 0 is assigned the next id, in the argument too.
  void AppendEntry(NATEntry* entry);
  void ModifyEntry(NATEntry* entry);
  void DeleteNATEntry(const std::vector<int>& ids);
  void ChangePosition(int a, int b);
  std::vector<NATEntry*> FilterByAddress(const NetAddress& address) const;
  std::vector<NATEntry*> FilterByInterface(const std::string& in, const std::string& out) const;
  // The rule that rewrote the packet, or null.
  NATEntry* GlobalToLocal(L3Packet& packet) const;
  NATEntry* LocalToGlobal(L3Packet& packet) const;

  bool LoadFromFile(const std::string& path);
  // An empty table has no file: saving one deletes it.
  bool SaveToFile(const std::string& path) const;

 protected:
  bool LoadFromStram(std::istream& in);
  bool SaveToStream(std::ostream& out) const;

 private:
  void Sync();  // m_entries mirrors m_rules

  std::vector<std::shared_ptr<NATEntry>> m_rules;
  std::vector<NATEntry*> m_entries;
  int m_highestId = 0;
  std::string m_deviceName;
};
