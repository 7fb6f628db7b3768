// Device groups and their binary file form. The form is a row of tagged
// 32-bit words and length-prefixed texts; readers test only the tag's bit.
// Version 320 appends a second set of devices and the dynamic-group data to
// what the older forms held.

#include "netloom/devicelistdata.h"

#include <strings.h>

#include <fstream>
#include <sstream>

#include "netloom/util/stlhelper.h"
#include "routing/routetext.h"

using netloom::detail::ReadLE32;
using netloom::detail::ReadLengthText;
using netloom::detail::WriteLE32;

namespace netloom::detail {
namespace {

constexpr int kVersion300 = 300;
constexpr int kVersion320 = 320;

constexpr uint32_t kTagName = 0x80000000u;
constexpr uint32_t kTagDescription = 0x40000000u;
constexpr uint32_t kTagUseColor = 0x20000000u;
constexpr uint32_t kTagColor = 0x10000000u;
constexpr uint32_t kTagCount = 0x08000000u;
constexpr uint32_t kTagType = 0x04000000u;
constexpr uint32_t kTagSystem = 0x02000000u;
constexpr uint32_t kTagEntry = 0x01000000u;
constexpr uint32_t kTagPublic = 0x00400000u;
constexpr uint32_t kTagGroupId = 0x00200000u;

// Names and descriptions live in fixed buffers of this size, terminator included.
constexpr uint32_t kNameBuffer = 1024;
// Texts of the version 320 tail have no fixed buffer; this bounds what a
// damaged length can make a reader allocate.
constexpr uint32_t kTailTextMax = 16u << 20;

bool ReadInt(std::istream& in, int& value) {
  uint32_t word = 0;
  if (!ReadLE32(in, word)) return false;
  value = static_cast<int>(word);
  return true;
}

bool ReadTagged(std::istream& in, uint32_t tag, uint32_t& value) {
  uint32_t word = 0;
  return ReadLE32(in, word) && (word & tag) && ReadLE32(in, value);
}

bool ReadTaggedText(std::istream& in, uint32_t tag, std::string& text) {
  uint32_t word = 0;
  return ReadLE32(in, word) && (word & tag) && ReadLengthText(in, text, kNameBuffer);
}

void WriteTextWithNul(std::ostream& out, const std::string& text) {
  WriteLE32(out, static_cast<uint32_t>(text.size() + 1));
  out.write(text.c_str(), static_cast<std::streamsize>(text.size() + 1));
}

void WriteText(std::ostream& out, const std::string& text) {
  WriteLE32(out, static_cast<uint32_t>(text.size()));
  out.write(text.data(), static_cast<std::streamsize>(text.size()));
}

void WriteTagged(std::ostream& out, uint32_t tag, uint32_t value) {
  WriteLE32(out, tag);
  WriteLE32(out, value);
}

}  // namespace
}  // namespace netloom::detail

using namespace netloom::detail;

bool DeviceEntry::operator<(const DeviceEntry& other) const {
  return ::strcasecmp(Name.c_str(), other.Name.c_str()) < 0;
}

DeviceListData::DeviceListData(const char* name, const char* description)
    : m_name(name ? name : ""), m_description(description ? description : "") {}

DeviceListData::DeviceListData(const std::string& name, const std::set<DeviceEntry>& firstSet)
    : m_name(name), m_size(static_cast<int>(firstSet.size())), m_firstSet(firstSet) {}

DeviceListData& DeviceListData::operator=(const DeviceListData& other) {
  if (this == &other) return *this;
  m_name = other.m_name;
  m_description = other.m_description;
  m_useColor = other.m_useColor;
  m_color = other.m_color;
  m_size = other.m_size;
  m_size2 = other.m_size2;
  m_type = other.m_type;
  m_systemCreated = other.m_systemCreated;
  m_groupId = other.m_groupId;
  m_public = other.m_public;
  m_firstSet = other.m_firstSet;
  m_secondSet = other.m_secondSet;
  m_union = other.m_union;
  m_dyString = other.m_dyString;
  m_dyContainerType = other.m_dyContainerType;
  m_dyContainerData = other.m_dyContainerData;
  return *this;
}

// ---- entries ----

int DeviceListData::AddDeviceEntry(const DeviceEntry& entry) {
  if (!m_firstSet.insert(entry).second) return 0;
  m_size = static_cast<int>(m_firstSet.size());
  return 1;
}

int DeviceListData::DelDeviceEntry(const DeviceEntry& entry) {
  if (m_firstSet.erase(entry) == 0) return 0;
  m_size = static_cast<int>(m_firstSet.size());
  return 1;
}

int DeviceListData::AddDeviceEntry2(const DeviceEntry& entry, int which) {
  bool added = false;
  if (which & 1) added |= m_firstSet.insert(entry).second;
  if (which & 2) added |= m_secondSet.insert(entry).second;
  m_size = static_cast<int>(m_firstSet.size());
  m_size2 = static_cast<int>(m_secondSet.size());
  return added ? 1 : 0;
}

int DeviceListData::DelDeviceEntry2(const DeviceEntry& entry, int which) {
  int removed = 0;
  if (which & 1) removed += static_cast<int>(m_firstSet.erase(entry));
  if (which & 2) removed += static_cast<int>(m_secondSet.erase(entry));
  m_size = static_cast<int>(m_firstSet.size());
  m_size2 = static_cast<int>(m_secondSet.size());
  return removed;
}

int DeviceListData::FindDeviceEntry2(const DeviceEntry& entry, int which) const {
  const bool inFirst = m_firstSet.count(entry) != 0;
  const bool inSecond = m_secondSet.count(entry) != 0;
  switch (which) {
    case 1: return inFirst ? 0 : -1;
    case 2: return inSecond ? 0 : -1;
    case 3: return inFirst && inSecond ? 0 : (inFirst || inSecond ? -2 : -1);
    default: return -1;
  }
}

void DeviceListData::RemoveAllEntry2(int which) {
  if (which & 1) m_firstSet.clear();
  if (which & 2) m_secondSet.clear();
}

void DeviceListData::RemoveAllEntry() {
  m_firstSet.clear();
  m_secondSet.clear();
}

void DeviceListData::SetDeviceList(const std::set<DeviceEntry>& entries) {
  m_firstSet = entries;
  m_size = static_cast<int>(m_firstSet.size());
}

void DeviceListData::SetDeviceList2(const std::set<DeviceEntry>& entries) {
  m_secondSet = entries;
  m_size2 = static_cast<int>(m_secondSet.size());
}

const std::set<DeviceEntry>& DeviceListData::GetDeviceList() {
  m_union = m_firstSet;
  m_union.insert(m_secondSet.begin(), m_secondSet.end());
  return m_union;
}

const std::set<DeviceEntry>& DeviceListData::GetAllDeviceList() { return GetDeviceList(); }

// ---- files ----

bool DeviceListData::Load(const std::string& path, const TWGuid2& guid) {
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in) return false;
  return LoadFromStream(in, guid);
}

bool DeviceListData::LoadHead(const std::string& path, const TWGuid2& guid) {
  std::ifstream in(StlHelper::AToW(path), std::ios::in | std::ios::binary);
  if (!in) return false;
  int version = 0;
  return LoadHeadFromStream(in, guid, version);
}

bool DeviceListData::LoadFromString(const std::string& text, const TWGuid2& guid) {
  std::istringstream in(text);
  return LoadFromStream(in, guid);
}

bool DeviceListData::Save(const std::string& path, const TWGuid2& guid) const {
  // Checked before the file is touched, so that a list that can't be written
  // leaves an older file alone.
  if (m_name.size() >= kNameBuffer || m_description.size() >= kNameBuffer) return false;
  std::ofstream out(StlHelper::AToW(path), std::ios::out | std::ios::binary | std::ios::trunc);
  if (!out) return false;
  if (!SaveToStream(out, guid)) return false;
  out.flush();
  return out.good();
}

bool DeviceListData::SaveToString(std::string& text, const TWGuid2& guid) const {
  std::ostringstream out;
  if (!SaveToStream(out, guid)) return false;
  text = out.str();
  return true;
}

bool DeviceListData::SaveToStream(std::ostream& out, const TWGuid2&) const {
  if (m_name.size() >= kNameBuffer || m_description.size() >= kNameBuffer) return false;
  for (const DeviceEntry& entry : m_firstSet)
    if (entry.Name.size() >= kNameBuffer) return false;
  if (!out.good()) return false;

  WriteLE32(out, kVersion320);
  WriteLE32(out, kTagName);
  WriteTextWithNul(out, m_name);
  WriteLE32(out, kTagDescription);
  WriteTextWithNul(out, m_description);
  WriteTagged(out, kTagUseColor, m_useColor ? 1 : 0);
  WriteTagged(out, kTagColor, m_color);
  WriteTagged(out, kTagCount, static_cast<uint32_t>(m_firstSet.size()));
  WriteTagged(out, kTagType, static_cast<uint32_t>(m_type));
  WriteTagged(out, kTagSystem, m_systemCreated ? 1 : 0);
  WriteTagged(out, kTagPublic, m_public ? 1 : 0);
  WriteTagged(out, kTagGroupId, static_cast<uint32_t>(m_groupId));
  for (const DeviceEntry& entry : m_firstSet) {
    WriteLE32(out, kTagEntry);
    WriteTextWithNul(out, entry.Name);
    WriteLE32(out, static_cast<uint32_t>(entry.Value));
  }
  WriteLE32(out, static_cast<uint32_t>(m_secondSet.size()));
  for (const DeviceEntry& entry : m_secondSet) {
    WriteText(out, entry.Name);
    WriteLE32(out, static_cast<uint32_t>(entry.Value));
  }
  WriteText(out, m_dyString);
  WriteLE32(out, static_cast<uint32_t>(m_dyContainerType));
  WriteLE32(out, static_cast<uint32_t>(m_dyContainerData.size()));
  for (const auto& [number, text] : m_dyContainerData) {
    WriteLE32(out, static_cast<uint32_t>(number));
    WriteText(out, text);
  }
  return out.good();
}

bool DeviceListData::LoadHeadFromStream2_3(std::istream& in) {
  std::string name, description;
  uint32_t useColor = 0, color = 0, count = 0, type = 0, system = 0;
  if (!ReadTaggedText(in, kTagName, name)) return false;
  m_name = name;
  if (!ReadTaggedText(in, kTagDescription, description)) return false;
  m_description = description;
  if (!ReadTagged(in, kTagUseColor, useColor)) return false;
  m_useColor = useColor != 0;
  if (!ReadTagged(in, kTagColor, color)) return false;
  m_color = color;
  if (!ReadTagged(in, kTagCount, count)) return false;
  m_size = static_cast<int>(count);
  if (!ReadTagged(in, kTagType, type)) return false;
  m_type = static_cast<int>(type);
  if (!ReadTagged(in, kTagSystem, system)) return false;
  m_systemCreated = system != 0;
  return true;
}

bool DeviceListData::LoadHeadFromStream(std::istream& in, const TWGuid2&, int& version) {
  if (in.fail()) return false;
  const std::istream::pos_type start = in.tellg();
  int word = 0;
  if (!ReadInt(in, word)) return false;
  if (word == kVersion300 || word == kVersion320) {
    version = word;
  } else {
    // No version word: the first word is already the name's tag.
    version = 0;
    in.seekg(start);
  }
  if (!LoadHeadFromStream2_3(in)) return false;

  const std::istream::pos_type beforePublic = in.tellg();
  uint32_t tag = 0;
  const bool haveTag = ReadLE32(in, tag);
  if (!haveTag || !(tag & kTagPublic)) {
    if (version != 0) return false;
    // The oldest files end their head before the public flag.
    in.clear();
    in.seekg(beforePublic);
    return true;
  }
  uint32_t isPublic = 0, groupId = 0;
  if (!ReadLE32(in, isPublic)) return false;
  m_public = isPublic == 1;
  if (!ReadTagged(in, kTagGroupId, groupId)) return false;
  if (version == 0 || static_cast<int>(groupId) != -1) m_groupId = static_cast<int>(groupId);
  return true;
}

bool DeviceListData::LoadFromStream(std::istream& in, const TWGuid2& guid) {
  int version = 0;
  if (!LoadHeadFromStream(in, guid, version)) return false;

  m_firstSet.clear();
  for (int i = 0; i < m_size; ++i) {
    uint32_t tag = 0, value = 0;
    std::string name;
    if (!ReadLE32(in, tag) || !(tag & kTagEntry)) return false;
    if (!ReadLengthText(in, name, kNameBuffer) || !ReadLE32(in, value)) return false;
    m_firstSet.insert(DeviceEntry(name, static_cast<int>(value)));
  }
  if (version < kVersion320) return true;

  m_secondSet.clear();
  m_dyContainerData.clear();
  uint32_t count = 0;
  if (!ReadLE32(in, count)) return false;
  for (uint32_t i = 0; i < count; ++i) {
    std::string name;
    uint32_t value = 0;
    if (!ReadLengthText(in, name, kTailTextMax) || !ReadLE32(in, value)) return false;
    m_secondSet.insert(DeviceEntry(name, static_cast<int>(value)));
  }
  m_size2 = static_cast<int>(m_secondSet.size());
  std::string dyString;
  uint32_t dyType = 0, pairs = 0;
  if (!ReadLengthText(in, dyString, kTailTextMax)) return false;
  m_dyString = dyString;
  if (!ReadLE32(in, dyType)) return false;
  m_dyContainerType = static_cast<int>(dyType);
  if (!ReadLE32(in, pairs)) return false;
  for (uint32_t i = 0; i < pairs; ++i) {
    uint32_t number = 0;
    std::string text;
    if (!ReadLE32(in, number) || !ReadLengthText(in, text, kTailTextMax)) return false;
    m_dyContainerData.emplace(static_cast<int>(number), text);
  }
  return true;
}
