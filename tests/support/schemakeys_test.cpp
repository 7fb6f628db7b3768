// Schema keys: each group must be complete and free of repeats, and the
// per-collection groups may only use words of the shared vocabulary.
#include <gtest/gtest.h>

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

TEST(SchemaKeys, GroupsAreCompleteAndUnique) {
  const std::pair<const std::vector<const std::string*>*, size_t> groups[] = {
      {&schema::collection::All, 190}, {&schema::op::All, 24},   {&schema::field::All, 756},
      {&schema::type_id::All, 3},      {&schema::phrase::All, 10}, {&schema::benchmark_option::All, 6},
      {&schema::text::All, 4}};
  for (auto [all, size] : groups) {
    EXPECT_EQ(all->size(), size);
    EXPECT_EQ(Texts(*all).size(), all->size()) << "a group repeats a text";
    for (const std::string* s : *all) EXPECT_FALSE(s == nullptr || s->empty());
  }
  // Identifiers that cannot be spelt as their text, and misspellings kept on purpose.
  EXPECT_EQ(schema::field::sep, "__sep__");
  EXPECT_EQ(schema::op::or_, "$or");
  EXPECT_EQ(schema::collection::KXSystem_Tenant, "KXSystem.Tenant");
  EXPECT_EQ(schema::text::JoinSeparator, schema::field::sep);
  const std::set<std::string> fields = Texts(schema::field::All);
  for (const char* word : {"authencation", "isHiden", "driverId", "driverID", "timeOut", "timeout"})
    EXPECT_EQ(fields.count(word), 1u) << word;
}

TEST(SchemaKeys, CollectionGroupsUseTheVocabulary) {
  const std::pair<const std::string*, const std::vector<const std::string*>*> colls[] = {
      {&schema::DeviceSetting::Collection, &schema::DeviceSetting::All},
      {&schema::Jumpbox::Collection, &schema::Jumpbox::All},
      {&schema::TelnetInfo::Collection, &schema::TelnetInfo::All},
      {&schema::SSHPrivateKey::Collection, &schema::SSHPrivateKey::All},
      {&schema::SnmpRoInfo::Collection, &schema::SnmpRoInfo::All},
      {&schema::EnablePasswd::Collection, &schema::EnablePasswd::All},
      {&schema::NetworkServer::Collection, &schema::NetworkServer::All},
      {&schema::InterfaceType::Collection, &schema::InterfaceType::All},
      {&schema::CliSetting::Collection, &schema::CliSetting::All},
  };
  const std::set<std::string> collections = Texts(schema::collection::All);
  std::set<std::string> vocabulary = Texts(schema::field::All);
  vocabulary.insert(collections.begin(), collections.end());
  for (auto [name, keys] : colls) {
    EXPECT_EQ(collections.count(*name), 1u) << *name;
    EXPECT_EQ(Texts(*keys).size(), keys->size()) << *name;
    EXPECT_EQ(Texts(*keys).count("_id"), 1u) << *name;
    for (const std::string* k : *keys) EXPECT_EQ(vocabulary.count(*k), 1u) << *name << "." << *k;
  }
  // A group's constant is its own object even where the word is shared.
  EXPECT_NE(&schema::TelnetInfo::alias, &schema::field::alias);
  EXPECT_EQ(schema::TelnetInfo::alias, schema::field::alias);
  EXPECT_EQ(schema::SnmpRoInfo::V3::All.size(), Texts(schema::SnmpRoInfo::V3::All).size());
  EXPECT_EQ(schema::DeviceSetting::All.size(), 37u);
}

}  // namespace
