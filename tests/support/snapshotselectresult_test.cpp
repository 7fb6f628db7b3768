// Snapshot selection: validity by search type and the JSON round trip.
#include <gtest/gtest.h>

#include <limits>

#include "netloom/snapshotselectresult.h"
#include "netloom/util/kxjson.h"

namespace {

using Type = CSnapshotSelectResult::EnumSearchType;

TEST(SnapshotSelectResult, ValidityFollowsTheSearchType) {
  CSnapshotSelectResult r;
  EXPECT_EQ(static_cast<int>(r.GetSearchType()), -1);
  EXPECT_FALSE(r.IsValid());

  r.SetSearchType(CSnapshotSelectResult::SearchBySnapshot);
  r.SetSnapshotId("snap");
  r.SetEndTime(100);
  EXPECT_FALSE(r.IsValid());  // the time id selects, not the id or time
  r.SetSnapshotTimeId("t1");
  EXPECT_TRUE(r.IsValid());

  r.SetSearchType(CSnapshotSelectResult::SearchByTime);
  r.SetEndTime(0);
  EXPECT_FALSE(r.IsValid());
  r.SetEndTime(1);
  EXPECT_TRUE(r.IsValid());

  r.SetSearchType(static_cast<Type>(2));
  EXPECT_FALSE(r.IsValid());
}

TEST(SnapshotSelectResult, JsonRoundTripLeavesMatchedIdsBehind) {
  for (std::int64_t span : {std::int64_t{3600}, std::int64_t{-1}, std::numeric_limits<std::int64_t>::max()}) {
    CSnapshotSelectResult r;
    r.SetSnapshotId("sid");
    r.SetSnapshotTimeId("tid");
    r.SetEndTime(1700000000);
    r.SetTimeSpan(span);
    r.SetSearchType(CSnapshotSelectResult::SearchByTime);
    r.SetMatchedDataSourceIds({"a", "b"});

    kxJson::Value json;
    ASSERT_TRUE(r.SaveToJson(json));
    EXPECT_EQ(json.getMemberNames(),
              (std::vector<std::string>{"snapshotID", "snapshotTimeID", "searchType", "endTime", "timeSpan"}));
    EXPECT_TRUE(json["endTime"].isTime());

    // Through text as well, the way the platform stores it.
    kxJson::Value reparsed;
    kxJson::Reader reader;
    ASSERT_TRUE(reader.parse(json.toString(), reparsed));

    CSnapshotSelectResult back;
    back.SetMatchedDataSourceIds({"kept"});
    ASSERT_TRUE(back.LoadFromJson(reparsed));
    EXPECT_EQ(back.GetSnapshotId(), "sid");
    EXPECT_EQ(back.GetSnapshotTimeId(), "tid");
    EXPECT_EQ(back.GetEndTime(), 1700000000);
    EXPECT_EQ(back.GetTimeSpan(), span);
    EXPECT_EQ(back.GetSearchType(), CSnapshotSelectResult::SearchByTime);
    EXPECT_EQ(back.MatchedDataSourceIds(), std::vector<std::string>{"kept"});
  }
}

TEST(SnapshotSelectResult, LoadingNeedsAnObject) {
  CSnapshotSelectResult r;
  r.SetSnapshotId("keep");
  kxJson::Value array(kxJson::arrayValue);
  array.append(1);
  EXPECT_FALSE(r.LoadFromJson(array));
  EXPECT_FALSE(r.LoadFromJson(kxJson::Value()));
  EXPECT_EQ(r.GetSnapshotId(), "keep");

  // Missing keys read as empty and zero; an end time given as a plain number counts as seconds.
  kxJson::Value partial(kxJson::objectValue);
  partial["endTime"] = 42;
  ASSERT_TRUE(r.LoadFromJson(partial));
  EXPECT_EQ(r.GetSnapshotId(), "");
  EXPECT_EQ(r.GetEndTime(), 42);
  EXPECT_EQ(r.GetTimeSpan(), 0);
  EXPECT_EQ(r.GetSearchType(), CSnapshotSelectResult::SearchBySnapshot);  // a missing type reads as 0
}

}  // namespace
