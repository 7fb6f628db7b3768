// Field encryption: round trips, tamper detection, and where the key comes
// from. Key-source cases run in a fresh copy of the test program, since the
// key is resolved once per process.
#include <gtest/gtest.h>

#include <sys/stat.h>

#include <cstdlib>
#include <filesystem>
#include <random>
#include <string>

#include "common/testenv.h"
#include "netloom/util/aes.h"

namespace {

const std::string kAbc = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

// Base64 written here, so the tests can reach the bytes under a sealed cell.
std::string Decode64(const std::string& in) {
    std::string out;
    unsigned acc = 0;
    int bits = 0;
    for (char c : in) {
        if (c == '=') break;
        acc = (acc << 6) | static_cast<unsigned>(kAbc.find(c));
        if ((bits += 6) >= 8) out += static_cast<char>((acc >> (bits -= 8)) & 0xFF);
    }
    return out;
}

std::string Encode64(const std::string& in) {
    std::string out;
    unsigned acc = 0;
    int bits = 0;
    for (unsigned char c : in) {
        acc = (acc << 8) | c;
        for (bits += 8; bits >= 6;) out += kAbc[(acc >> (bits -= 6)) & 63];
    }
    if (bits > 0) out += kAbc[(acc << (6 - bits)) & 63];
    while (out.size() % 4 != 0) out += '=';
    return out;
}

TEST(Aes, RoundTripsEveryKindOfText) {
    std::mt19937 rng(1);
    std::string binary;
    for (int i = 0; i < 3000; ++i) binary += static_cast<char>(rng());
    const std::string texts[] = {"", "a", "cisco", std::string("nul\0inside", 10), "comma,\"quote\"\r\n",
                                 "ünïcödé", binary, std::string(100000, 'x')};
    for (const std::string& t : texts) {
        const std::string sealed = TWAes::Encrypt(t);
        ASSERT_FALSE(sealed.empty());
        // Safe in a CSV cell without quoting.
        EXPECT_EQ(sealed.find_first_not_of(kAbc + "="), std::string::npos);
        EXPECT_EQ(TWAes::Decrypt(sealed), t);
    }
    // A fresh nonce each time: equal texts do not give equal cells.
    EXPECT_NE(TWAes::Encrypt("same"), TWAes::Encrypt("same"));
    EXPECT_EQ(TWAes::Decrypt(""), "");
}

TEST(Aes, TamperedOrMalformedGivesEmpty) {
    const std::string sealed = TWAes::Encrypt("secret password");
    const std::string raw = Decode64(sealed);
    ASSERT_EQ(Encode64(raw), sealed);
    // Every single flipped bit is caught: version, nonce, body and tag.
    for (size_t i = 0; i < raw.size(); ++i) {
        for (int bit = 0; bit < 8; bit += 3) {
            std::string bad = raw;
            bad[i] = static_cast<char>(bad[i] ^ (1 << bit));
            EXPECT_EQ(TWAes::Decrypt(Encode64(bad)), "") << "byte " << i << " bit " << bit;
        }
    }
    EXPECT_EQ(TWAes::Decrypt(Encode64(raw.substr(0, raw.size() - 1))), "");  // truncated tag
    EXPECT_EQ(TWAes::Decrypt(Encode64(raw + "x")), "");                     // appended byte
    EXPECT_EQ(TWAes::Decrypt(Encode64(raw.substr(0, 20))), "");             // shorter than the overhead
    EXPECT_EQ(TWAes::Decrypt(sealed.substr(0, sealed.size() - 1)), "");     // not a multiple of four
    EXPECT_EQ(TWAes::Decrypt("plain text!!"), "");
    EXPECT_EQ(TWAes::Decrypt("===="), "");
    EXPECT_EQ(TWAes::Decrypt("AAAA=AAA"), "");  // padding in the middle
    std::string spaced = sealed;
    spaced[4] = ' ';
    EXPECT_EQ(TWAes::Decrypt(spaced), "");
}

// ------------------------------------------------------------ key sources

// Runs `body` in a fresh process (the test program re-run for this test
// alone), with the configuration folder pointed at `conf`.
template <class Body>
void InFreshProcess(const std::string& conf, Body body) {
    GTEST_FLAG_SET(death_test_style, "threadsafe");
    EXPECT_EXIT(
        {
            ::setenv("NETLOOM_CONF_DIR", conf.c_str(), 1);
            const bool ok = body();
            std::error_code ec;
            std::filesystem::remove_all(netloom_test::ScratchDir(), ec);
            std::exit(ok ? 0 : 1);
        },
        ::testing::ExitedWithCode(0), "");
}

// A folder shared by the test and its re-run copies.
std::string SharedDir(const char* var) {
    if (const char* d = std::getenv(var)) return d;
    const std::string dir = netloom_test::MakeTempDir("key");
    ::setenv(var, dir.c_str(), 1);
    return dir;
}

TEST(AesKey, KeyFileIsCreatedPrivateAndReused) {
    const std::string conf = SharedDir("NETLOOM_AES_TEST_DIR1");
    const std::string sealedFile = conf + "sealed.txt";
    ::unsetenv("NETLOOM_AES_KEY");
    InFreshProcess(conf, [&] {
        netloom_test::WriteFile(sealedFile, TWAes::Encrypt("kept across runs"));
        return true;
    });
    struct stat st {};
    ASSERT_EQ(::stat((conf + TWAes::KeyFileName()).c_str(), &st), 0);
    EXPECT_EQ(st.st_mode & 0777, 0600u);
    EXPECT_EQ(Decode64(netloom_test::ReadFile(conf + TWAes::KeyFileName())).size(), 32u);
    InFreshProcess(conf, [&] { return TWAes::Decrypt(netloom_test::ReadFile(sealedFile)) == "kept across runs"; });
}

TEST(AesKey, DamagedKeyFileIsNeverOverwritten) {
    const std::string conf = SharedDir("NETLOOM_AES_TEST_DIR3");
    netloom_test::WriteFile(conf + TWAes::KeyFileName(), "not a key\n");
    ::unsetenv("NETLOOM_AES_KEY");
    // Still works within the process, on a key of its own.
    InFreshProcess(conf, [&] { return TWAes::Decrypt(TWAes::Encrypt("x")) == "x"; });
    EXPECT_EQ(netloom_test::ReadFile(conf + TWAes::KeyFileName()), "not a key\n");
}

}  // namespace
