// Validity and the JSON form of a snapshot selection.
#include "netloom/snapshotselectresult.h"

#include "netloom/util/kxjson.h"

bool CSnapshotSelectResult::IsValid() const {
  switch (m_searchType) {
    case SearchBySnapshot: return !m_snapshotTimeId.empty();
    case SearchByTime: return m_endTime >= 1;
    default: return false;
  }
}

bool CSnapshotSelectResult::LoadFromJson(const kxJson::Value& json) {
  if (!json.isObject()) return false;
  m_snapshotId = json["snapshotID"].asString();
  m_snapshotTimeId = json["snapshotTimeID"].asString();
  m_searchType = static_cast<EnumSearchType>(json["searchType"].asInt());
  m_endTime = static_cast<std::int64_t>(json["endTime"].asTime());
  m_timeSpan = json["timeSpan"].asInt64();
  return true;
}

bool CSnapshotSelectResult::SaveToJson(kxJson::Value& json) const {
  json["snapshotID"] = m_snapshotId;
  json["snapshotTimeID"] = m_snapshotTimeId;
  json["searchType"] = static_cast<int>(m_searchType);
  json["endTime"] = kxJson::Value(static_cast<kxJson::UInt64>(m_endTime), false);
  json["timeSpan"] = kxJson::Value(static_cast<kxJson::UInt64>(m_timeSpan), true);
  return true;
}
