// The one include a host needs: <netloom/netloom.h> alone must compile, carry
// every exported header, and give working types.
#include <netloom/netloom.h>

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <set>
#include <sstream>
#include <string>

namespace {

TEST(Umbrella, TypesAreUsable) {
  const CTopoFileSystem topo("/var/topo/");
  EXPECT_EQ(topo.GetLanTopoFilePath(), "/var/topo/lan.topo");

  CSVLineParser line("");
  line.ParseLine(netloom::schema::collection::DeviceSetting + ",\"" + netloom::schema::text::JoinSeparator + "\"");
  EXPECT_EQ(line.GetAt(1), "__sep__");

  std::vector<std::string> lines;
  EXPECT_EQ(StlHelper::splitStringToLines("a\r\nb", lines), 2u);

  const TW128Guid id = TW128Guid::FromString(netloom::schema::type_id::L3Topo);
  EXPECT_EQ(id.ToString(), netloom::schema::type_id::L3Topo);

  TW_Lock::Mutex m;
  TW_LOCK_GUARD(m);
  EXPECT_EQ((StrFormat("{0}-{1}") << "x" << 2).str(), "x-2");
}

TEST(Umbrella, IncludesEveryExportedHeader) {
  const std::filesystem::path root = std::filesystem::path(NETLOOM_SOURCE_DIR) / "include";
  std::ifstream in(root / "netloom" / "netloom.h");
  ASSERT_TRUE(in) << "netloom.h not found under " << root;
  std::stringstream text;
  text << in.rdbuf();

  std::set<std::string> included;
  std::string row;
  while (std::getline(text, row)) {
    const std::string tag = "#include \"";
    if (row.compare(0, tag.size(), tag) != 0) continue;
    const size_t end = row.find('"', tag.size());
    if (end != std::string::npos) included.insert(row.substr(tag.size(), end - tag.size()));
  }

  size_t headers = 0;
  for (const auto& entry : std::filesystem::recursive_directory_iterator(root / "netloom")) {
    if (!entry.is_regular_file() || entry.path().extension() != ".h") continue;
    const std::string rel = std::filesystem::relative(entry.path(), root).generic_string();
    if (rel == "netloom/netloom.h") continue;
    ++headers;
    EXPECT_EQ(included.count(rel), 1u) << rel << " is missing from netloom.h";
  }
  EXPECT_GT(headers, 10u);
  // And nothing it names is gone.
  for (const std::string& rel : included)
    EXPECT_TRUE(std::filesystem::exists(root / rel)) << rel << " is included but does not exist";
}

}  // namespace
