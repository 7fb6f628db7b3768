// Named, coloured groups of devices and their compact binary file form.
// The current form starts with the version word 320; files of the word 300
// or of no version word at all end behind the first set of devices and
// still load.
#pragma once

#include <iosfwd>
#include <set>
#include <string>
#include <utility>

#include "netloom/export.h"
#include "netloom/util/guid.h"

// A device of a list. Names compare without regard to letter case, so "R1"
// and "r1" are one entry.
struct NETLOOM_API DeviceEntry {
  std::string Name;
  int Value = 0;

  DeviceEntry() = default;
  DeviceEntry(const std::string& name, int value = 0) : Name(name), Value(value) {}
  bool operator<(const DeviceEntry& other) const;
};

class NETLOOM_API DeviceListData {
 public:
  using DyContainer = std::set<std::pair<int, std::string>>;

  DeviceListData(const char* name = "", const char* description = "");
  DeviceListData(const std::string& name, const std::set<DeviceEntry>& firstSet);
  DeviceListData(const DeviceListData& other) = default;
  virtual DeviceListData& operator=(const DeviceListData& other);
  virtual ~DeviceListData() = default;

  // The guid is the caller's record of the list; the file form has no place for it.
  bool Load(const std::string& path, const TWGuid2& guid);
  bool LoadHead(const std::string& path, const TWGuid2& guid);
  bool LoadFromString(const std::string& text, const TWGuid2& guid);
  bool Save(const std::string& path, const TWGuid2& guid) const;
  bool SaveToString(std::string& out, const TWGuid2& guid) const;

  bool LoadFromStream(std::istream& in, const TWGuid2& guid);
  // `version` gets 300 or 320, or 0 for a file without a version word.
  bool LoadHeadFromStream(std::istream& in, const TWGuid2& guid, int& version);
  // False (and nothing written) for a name or description of 1024 bytes or more.
  bool SaveToStream(std::ostream& out, const TWGuid2& guid) const;

  int AddDeviceEntry(const DeviceEntry& entry);
  int DelDeviceEntry(const DeviceEntry& entry);
  // `which`: bit 1 the first set, bit 2 the second.
  int AddDeviceEntry2(const DeviceEntry& entry, int which);
  int DelDeviceEntry2(const DeviceEntry& entry, int which);
  int FindDeviceEntry2(const DeviceEntry& entry, int which) const;
  void RemoveAllEntry2(int which);
  void RemoveAllEntry();
  void SetDeviceList(const std::set<DeviceEntry>& entries);
  void SetDeviceList2(const std::set<DeviceEntry>& entries);
  // Both sets together, rebuilt at each call.
  const std::set<DeviceEntry>& GetDeviceList();
  const std::set<DeviceEntry>& GetAllDeviceList();
  // The first set alone (the name is the callers').
  const std::set<DeviceEntry>& GetDeviceList2() const { return m_firstSet; }
  const std::set<DeviceEntry>& GetSecondDeviceList() const { return m_secondSet; }

  const std::string& GetName() const { return m_name; }
  void SetName(const std::string& name) { m_name = name; }
  const std::string& GetDescription() const { return m_description; }
  void SetDescription(const std::string& description) { m_description = description; }
  bool GetUseColor() const { return m_useColor; }
  void SetUseColor(bool value) { m_useColor = value; }
  unsigned int GetColor() const { return m_color; }
  void SetColor(unsigned int color) { m_color = color; }
  int GetSize() const { return m_size; }
  void SetSize(int size) { m_size = size; }
  int GetSize2() const { return m_size2; }
  int GetType() const { return m_type; }
  void SetType(int type) { m_type = type; }
  bool IsSystemCreate() const { return m_systemCreated; }
  void SetIsSystemCreate(bool value) { m_systemCreated = value; }
  int GetGroupIDInDB() const { return m_groupId; }
  void SetGroupIDInDB(int id) { m_groupId = id; }
  bool IsPublic() const { return m_public; }
  void SetPublic(bool value) { m_public = value; }
  const std::string& GetDyString() const { return m_dyString; }
  void SetDyString(const std::string& text) { m_dyString = text; }
  int GetDyContainerType() const { return m_dyContainerType; }
  void SetDyContainerType(int type) { m_dyContainerType = type; }
  const DyContainer& GetDyContainerData() const { return m_dyContainerData; }
  void SetDyContainerData(const DyContainer& data) { m_dyContainerData = data; }

 protected:
  // The head fields from the name to the system-created flag.
  bool LoadHeadFromStream2_3(std::istream& in);

 private:
  std::string m_name;
  std::string m_description;
  bool m_useColor = false;
  unsigned int m_color = 0;
  int m_size = 0;
  int m_size2 = 0;
  int m_type = 0;
  bool m_systemCreated = false;
  int m_groupId = -1;
  bool m_public = false;
  std::set<DeviceEntry> m_firstSet;
  std::set<DeviceEntry> m_secondSet;
  std::set<DeviceEntry> m_union;
  std::string m_dyString;
  int m_dyContainerType = 0;
  DyContainer m_dyContainerData;
};
