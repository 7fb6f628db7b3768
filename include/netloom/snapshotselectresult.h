// The outcome of choosing a snapshot: either one named by its time id, or a
// choice by end time. Kept in a JSON object under "snapshotID",
// "snapshotTimeID", "searchType", "endTime" and "timeSpan".
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "netloom/export.h"

namespace kxJson {
class Value;
}

class NETLOOM_API CSnapshotSelectResult {
 public:
  // Any value other than these two means no selection has been made.
  enum EnumSearchType : std::int32_t {
    SearchBySnapshot = 0,  // the snapshot time id selects
    SearchByTime = 1,      // the end time selects
  };

  CSnapshotSelectResult() = default;
  CSnapshotSelectResult(const CSnapshotSelectResult&) = default;
  CSnapshotSelectResult& operator=(const CSnapshotSelectResult&) = default;
  ~CSnapshotSelectResult() = default;

  const std::string& GetSnapshotId() const { return m_snapshotId; }
  void SetSnapshotId(std::string id) { m_snapshotId = std::move(id); }
  const std::string& GetSnapshotTimeId() const { return m_snapshotTimeId; }
  void SetSnapshotTimeId(std::string id) { m_snapshotTimeId = std::move(id); }
  std::int64_t GetEndTime() const { return m_endTime; }
  void SetEndTime(std::int64_t time) { m_endTime = time; }
  std::int64_t GetTimeSpan() const { return m_timeSpan; }
  void SetTimeSpan(std::int64_t span) { m_timeSpan = span; }
  EnumSearchType GetSearchType() const { return m_searchType; }
  void SetSearchType(EnumSearchType type) { m_searchType = type; }
  // Filled by whoever ran the selection; never saved or loaded.
  const std::vector<std::string>& MatchedDataSourceIds() const { return m_matchedDataSourceIds; }
  void SetMatchedDataSourceIds(std::vector<std::string> ids) { m_matchedDataSourceIds = std::move(ids); }

  // By snapshot: a snapshot time id is set. By time: the end time is at
  // least 1. Otherwise false.
  bool IsValid() const;
  // False, and nothing changed, unless `json` is an object. Missing keys
  // read as empty or 0; the matched ids stay as they are.
  bool LoadFromJson(const kxJson::Value& json);
  // The end time is written as a time, the span as an integer.
  bool SaveToJson(kxJson::Value& json) const;

 private:
  std::string m_snapshotId;
  std::string m_snapshotTimeId;
  std::int64_t m_endTime = 0;
  std::int64_t m_timeSpan = 0;
  EnumSearchType m_searchType = static_cast<EnumSearchType>(-1);
  std::vector<std::string> m_matchedDataSourceIds;
};
