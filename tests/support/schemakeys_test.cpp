// Schema keys: the vocabulary must be complete, unique within each group, and
// spelt as the database spells it; the per-collection groups may only use
// words of that vocabulary.
#include <gtest/gtest.h>

#include <algorithm>
#include <cctype>
#include <set>
#include <string>
#include <vector>

#include "netloom/schemakeys.h"

namespace schema = netloom::schema;

namespace {

std::set<std::string> Texts(const std::vector<const std::string*>& all) {
  std::set<std::string> out;
  for (const std::string* s : all) out.insert(*s);
  return out;
}

std::string Lower(std::string s) {
  std::transform(s.begin(), s.end(), s.begin(), [](unsigned char c) { return std::tolower(c); });
  return s;
}

TEST(SchemaKeys, GroupsAreCompleteAndUnique) {
  struct Group {
    const char* name;
    const std::vector<const std::string*>& all;
    size_t size;
  };
  const Group groups[] = {
      {"collection", schema::collection::All, 190}, {"op", schema::op::All, 24},
      {"field", schema::field::All, 756},           {"type_id", schema::type_id::All, 3},
      {"phrase", schema::phrase::All, 10},          {"benchmark_option", schema::benchmark_option::All, 6},
      {"text", schema::text::All, 4},
  };
  size_t total = 0;
  std::set<std::string> distinct;
  for (const Group& g : groups) {
    EXPECT_EQ(g.all.size(), g.size) << g.name;
    EXPECT_EQ(Texts(g.all).size(), g.all.size()) << g.name << " repeats a text";
    for (const std::string* s : g.all) {
      ASSERT_NE(s, nullptr) << g.name;
      EXPECT_FALSE(s->empty()) << g.name;
      distinct.insert(*s);
    }
    total += g.all.size();
  }
  // "__sep__" is both a field name and the join separator.
  EXPECT_EQ(total, 993u);
  EXPECT_EQ(distinct.size(), 992u);
}

TEST(SchemaKeys, WordsHaveNoStrayCharacters) {
  for (const auto* all : {&schema::collection::All, &schema::field::All, &schema::op::All}) {
    for (const std::string* s : *all) {
      for (unsigned char c : *s)
        EXPECT_TRUE(std::isalnum(c) || c == '_' || c == '.' || c == '$') << '"' << *s << '"';
    }
  }
  for (const std::string* s : schema::op::All) EXPECT_EQ(s->front(), '$') << *s;
  for (const std::string* s : schema::collection::All)
    EXPECT_TRUE(std::isupper(static_cast<unsigned char>(s->front()))) << *s;
}

TEST(SchemaKeys, GroupsStandInAlphabeticalOrder) {
  auto sorted = [](const std::vector<const std::string*>& all, bool dropDollar) {
    for (size_t i = 1; i < all.size(); ++i) {
      std::string a = Lower(*all[i - 1]), b = Lower(*all[i]);
      if (dropDollar) a.erase(0, 1), b.erase(0, 1);
      if (a > b) return *all[i - 1] + " before " + *all[i];
    }
    return std::string();
  };
  EXPECT_EQ(sorted(schema::collection::All, false), "");
  EXPECT_EQ(sorted(schema::field::All, false), "");
  EXPECT_EQ(sorted(schema::op::All, true), "");
  EXPECT_EQ(sorted(schema::DeviceSetting::All, false), "");
  EXPECT_EQ(sorted(schema::NetworkServer::All, false), "");
  EXPECT_EQ(sorted(schema::SnmpRoInfo::V3::All, false), "");
}

TEST(SchemaKeys, IdentifiersThatDifferFromTheirText) {
  EXPECT_EQ(schema::field::sep, "__sep__");
  EXPECT_EQ(schema::field::_id, "_id");
  EXPECT_EQ(schema::field::export_, "export");
  EXPECT_EQ(schema::op::or_, "$or");
  EXPECT_EQ(schema::op::gt, "$gt");
  EXPECT_EQ(schema::op::OID, "$OID");
  EXPECT_EQ(schema::collection::KXSystem_Tenant, "KXSystem.Tenant");
  EXPECT_EQ(schema::collection::KXSystem, "KXSystem");
  EXPECT_EQ(schema::type_id::L2Topo, "f9915809-00ee-40ea-b90d-7eb7ed9a370b");
  EXPECT_EQ(schema::type_id::L3Topo, "11c1c310-1713-4b3e-bf29-857fd92ed784");
  EXPECT_EQ(schema::phrase::SucceededWithWarning, "Succeeded with warning");
  EXPECT_EQ(schema::benchmark_option::Item8, "8");
  EXPECT_EQ(schema::text::LineEndPattern, "\r\n[\r][\n]");
  EXPECT_EQ(schema::text::JoinSeparator, schema::field::sep);
}

TEST(SchemaKeys, MisspellingsAndCaseVariantsAreKept) {
  const std::set<std::string> fields = Texts(schema::field::All);
  for (const char* word : {"authencation", "alsertShare", "isHiden", "sequnce", "upateTime",
                           "extentedParser", "retriRTMaxNum", "updateToBeseline",
                           "updateToBaseline", "displayname", "displayName", "driverId",
                           "driverID", "timeOut", "timeout", "subType", "subtype"})
    EXPECT_EQ(fields.count(word), 1u) << word;
  EXPECT_EQ(schema::field::isHiden, "isHiden");
  EXPECT_EQ(schema::field::driverID, "driverID");
  EXPECT_EQ(schema::collection::EnableUsernameprompt, "EnableUsernameprompt");
}

TEST(SchemaKeys, CollectionGroupsUseTheVocabulary) {
  struct Coll {
    const std::string& name;
    const std::vector<const std::string*>& keys;
  };
  const Coll colls[] = {
      {schema::DeviceSetting::Collection, schema::DeviceSetting::All},
      {schema::Jumpbox::Collection, schema::Jumpbox::All},
      {schema::TelnetInfo::Collection, schema::TelnetInfo::All},
      {schema::SSHPrivateKey::Collection, schema::SSHPrivateKey::All},
      {schema::SnmpRoInfo::Collection, schema::SnmpRoInfo::All},
      {schema::EnablePasswd::Collection, schema::EnablePasswd::All},
      {schema::NetworkServer::Collection, schema::NetworkServer::All},
      {schema::InterfaceType::Collection, schema::InterfaceType::All},
      {schema::CliSetting::Collection, schema::CliSetting::All},
  };
  const std::set<std::string> collections = Texts(schema::collection::All);
  std::set<std::string> vocabulary = Texts(schema::field::All);
  vocabulary.insert(collections.begin(), collections.end());
  for (const Coll& c : colls) {
    EXPECT_EQ(collections.count(c.name), 1u) << c.name;
    EXPECT_EQ(Texts(c.keys).size(), c.keys.size()) << c.name;
    EXPECT_EQ(Texts(c.keys).count("_id"), 1u) << c.name;
    for (const std::string* k : c.keys) EXPECT_EQ(vocabulary.count(*k), 1u) << c.name << "." << *k;
  }
  // A group's constant is its own object even where the word is shared.
  EXPECT_NE(&schema::TelnetInfo::alias, &schema::field::alias);
  EXPECT_EQ(schema::TelnetInfo::alias, schema::field::alias);
  EXPECT_EQ(schema::SnmpRoInfo::v3, "v3");
  EXPECT_EQ(Texts(schema::SnmpRoInfo::V3::All),
            (std::set<std::string>{"authMode", "authPassword", "authPro", "contextName",
                                   "encryptPassword", "encryptPro", "userName"}));
  EXPECT_EQ(schema::DeviceSetting::All.size(), 37u);
  EXPECT_EQ(schema::SSHPrivateKey::md5KeyContent, "md5KeyContent");
}

}  // namespace
