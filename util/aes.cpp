// TWAes: AES-256-GCM sealing of short secrets, base64 on the outside.
//
// Sealed form, before base64:  version(1) | nonce(12) | ciphertext | tag(16)
// The version byte is authenticated too (as additional data), so a future
// key or algorithm change can tell old cells from new ones.
#include "netloom/util/aes.h"

#include <fcntl.h>
#include <sys/random.h>
#include <sys/stat.h>
#include <unistd.h>

#include <openssl/evp.h>
#include <openssl/rand.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <memory>
#include <string>

#include "netloom/util/twfilesystem.h"

namespace netloom::detail {
namespace {

constexpr unsigned char kVersion = 1;
constexpr size_t kKeyLen = 32;
constexpr size_t kNonceLen = 12;
constexpr size_t kTagLen = 16;
constexpr size_t kOverhead = 1 + kNonceLen + kTagLen;
// Cells hold passwords and prompts; a megabyte of base64 is far beyond any
// of them and keeps hostile input from costing more than it is worth.
constexpr size_t kMaxSealedText = 1u << 20;

using Key = std::array<unsigned char, kKeyLen>;

const char kB64[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+/";

std::string Base64Encode(const unsigned char* p, size_t n) {
    std::string out;
    out.reserve((n + 2) / 3 * 4);
    size_t i = 0;
    for (; i + 3 <= n; i += 3) {
        const unsigned v = (p[i] << 16) | (p[i + 1] << 8) | p[i + 2];
        out += kB64[v >> 18];
        out += kB64[(v >> 12) & 63];
        out += kB64[(v >> 6) & 63];
        out += kB64[v & 63];
    }
    if (n - i == 1) {
        const unsigned v = p[i] << 16;
        out += kB64[v >> 18];
        out += kB64[(v >> 12) & 63];
        out += "==";
    } else if (n - i == 2) {
        const unsigned v = (p[i] << 16) | (p[i + 1] << 8);
        out += kB64[v >> 18];
        out += kB64[(v >> 12) & 63];
        out += kB64[(v >> 6) & 63];
        out += '=';
    }
    return out;
}

int B64Value(unsigned char c) {
    if (c >= 'A' && c <= 'Z') return c - 'A';
    if (c >= 'a' && c <= 'z') return c - 'a' + 26;
    if (c >= '0' && c <= '9') return c - '0' + 52;
    if (c == '+') return 62;
    if (c == '/') return 63;
    return -1;
}

// Strict: length a multiple of four, padding only at the end, no stray
// characters, unused bits zero. Anything else is not something we wrote.
bool Base64Decode(const std::string& in, std::string& out) {
    out.clear();
    if (in.size() % 4 != 0) return false;
    out.reserve(in.size() / 4 * 3);
    for (size_t i = 0; i < in.size(); i += 4) {
        const bool last = i + 4 == in.size();
        int v[4];
        int pad = 0;
        for (int k = 0; k < 4; ++k) {
            const unsigned char c = static_cast<unsigned char>(in[i + k]);
            if (c == '=' && last && k >= 2) {
                v[k] = 0;
                ++pad;
                continue;
            }
            if (pad) return false;  // data after padding
            v[k] = B64Value(c);
            if (v[k] < 0) return false;
        }
        const unsigned w = (v[0] << 18) | (v[1] << 12) | (v[2] << 6) | v[3];
        out += static_cast<char>(w >> 16);
        if (pad < 2) out += static_cast<char>((w >> 8) & 0xFF);
        if (pad < 1) out += static_cast<char>(w & 0xFF);
        if ((pad == 1 && (w & 0xFF)) || (pad == 2 && (w & 0xFFFF))) return false;
    }
    return true;
}

bool KeyFromBase64(const std::string& text, Key& key) {
    std::string t = text;
    while (!t.empty() && (t.back() == '\n' || t.back() == '\r' || t.back() == ' ')) t.pop_back();
    std::string raw;
    if (!Base64Decode(t, raw) || raw.size() != kKeyLen) return false;
    std::memcpy(key.data(), raw.data(), kKeyLen);
    return true;
}

void Warn(const std::string& what) { std::fprintf(stderr, "netloom: %s\n", what.c_str()); }

bool ReadKeyFile(const std::string& path, Key& key, bool& present) {
    present = false;
    const int fd = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    if (fd < 0) return false;
    present = true;
    char buf[256];
    const ssize_t n = ::read(fd, buf, sizeof buf);
    ::close(fd);
    if (n <= 0) return false;
    return KeyFromBase64(std::string(buf, static_cast<size_t>(n)), key);
}

bool RandomBytes(unsigned char* p, size_t n) {
    while (n > 0) {
        const ssize_t got = ::getrandom(p, n, 0);
        if (got < 0) {
            if (errno == EINTR) continue;
            return false;
        }
        p += got;
        n -= static_cast<size_t>(got);
    }
    return true;
}

// Writes a new key beside the final name and links it into place, so that
// two processes starting at once agree on one key and nobody reads half a
// file: link() fails if the other one won, and then we read theirs.
bool CreateKeyFile(const std::string& path, Key& key) {
    if (!RandomBytes(key.data(), key.size())) return false;
    const std::string text = Base64Encode(key.data(), key.size()) + "\n";
    std::string tmp = path + ".XXXXXX";
    const int fd = ::mkstemp(tmp.data());  // mode 0600
    if (fd < 0) return false;
    const bool written = ::fchmod(fd, S_IRUSR | S_IWUSR) == 0 &&
                         ::write(fd, text.data(), text.size()) == static_cast<ssize_t>(text.size()) &&
                         ::fsync(fd) == 0;
    ::close(fd);
    bool ok = written && ::link(tmp.c_str(), path.c_str()) == 0;
    ::unlink(tmp.c_str());
    if (!ok && written && errno == EEXIST) {
        bool present = false;
        ok = ReadKeyFile(path, key, present);
    }
    return ok;
}

Key LoadKey() {
    Key key{};
    if (const char* env = std::getenv("NETLOOM_AES_KEY"); env && *env) {
        if (KeyFromBase64(env, key)) return key;
        Warn("NETLOOM_AES_KEY is not base64 of 32 bytes; using the key file instead");
    }
    const std::string path = TWFileSystem::GetSystemConfFolder() + TWAes::KeyFileName();
    bool present = false;
    if (ReadKeyFile(path, key, present)) return key;
    if (present) {
        // Never overwrite a damaged key file: what it once held may still
        // open stored records once an operator repairs it.
        Warn("key file " + path + " is unreadable or malformed; secrets sealed now last only for this process");
    } else if (CreateKeyFile(path, key)) {
        return key;
    } else {
        Warn("cannot create key file " + path + "; secrets sealed now last only for this process");
    }
    if (!RandomBytes(key.data(), key.size())) RAND_bytes(key.data(), static_cast<int>(key.size()));
    return key;
}

const Key& TheKey() {
    static const Key key = LoadKey();
    return key;
}

struct CtxFree {
    void operator()(EVP_CIPHER_CTX* c) const { EVP_CIPHER_CTX_free(c); }
};
using Ctx = std::unique_ptr<EVP_CIPHER_CTX, CtxFree>;

}  // namespace
}  // namespace netloom::detail

const char* TWAes::KeyFileName() { return "netloom.aeskey"; }

std::string TWAes::Encrypt(const std::string& text) {
    using namespace netloom::detail;
    if (text.size() > kMaxSealedText) return std::string();
    std::string sealed(kOverhead + text.size(), '\0');
    auto* out = reinterpret_cast<unsigned char*>(sealed.data());
    out[0] = kVersion;
    unsigned char* nonce = out + 1;
    unsigned char* body = nonce + kNonceLen;
    unsigned char* tag = body + text.size();
    if (RAND_bytes(nonce, kNonceLen) != 1) return std::string();

    Ctx ctx(EVP_CIPHER_CTX_new());
    int len = 0;
    if (!ctx || EVP_EncryptInit_ex(ctx.get(), EVP_aes_256_gcm(), nullptr, nullptr, nullptr) != 1 ||
        EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_IVLEN, kNonceLen, nullptr) != 1 ||
        EVP_EncryptInit_ex(ctx.get(), nullptr, nullptr, TheKey().data(), nonce) != 1 ||
        EVP_EncryptUpdate(ctx.get(), nullptr, &len, out, 1) != 1)
        return std::string();
    if (!text.empty() &&
        EVP_EncryptUpdate(ctx.get(), body, &len, reinterpret_cast<const unsigned char*>(text.data()),
                          static_cast<int>(text.size())) != 1)
        return std::string();
    if (EVP_EncryptFinal_ex(ctx.get(), body + text.size(), &len) != 1 ||
        EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_GET_TAG, kTagLen, tag) != 1)
        return std::string();
    return Base64Encode(out, sealed.size());
}

std::string TWAes::Decrypt(const std::string& text) {
    using namespace netloom::detail;
    if (text.empty() || text.size() > kMaxSealedText / 3 * 4 + 4 * kOverhead) return std::string();
    std::string sealed;
    if (!Base64Decode(text, sealed) || sealed.size() < kOverhead) return std::string();
    auto* in = reinterpret_cast<unsigned char*>(sealed.data());
    if (in[0] != kVersion) return std::string();
    const size_t bodyLen = sealed.size() - kOverhead;
    unsigned char* nonce = in + 1;
    unsigned char* body = nonce + kNonceLen;
    unsigned char* tag = body + bodyLen;

    std::string plain(bodyLen, '\0');
    auto* out = reinterpret_cast<unsigned char*>(plain.data());
    Ctx ctx(EVP_CIPHER_CTX_new());
    int len = 0;
    if (!ctx || EVP_DecryptInit_ex(ctx.get(), EVP_aes_256_gcm(), nullptr, nullptr, nullptr) != 1 ||
        EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_IVLEN, kNonceLen, nullptr) != 1 ||
        EVP_DecryptInit_ex(ctx.get(), nullptr, nullptr, TheKey().data(), nonce) != 1 ||
        EVP_DecryptUpdate(ctx.get(), nullptr, &len, in, 1) != 1)
        return std::string();
    if (bodyLen > 0 && EVP_DecryptUpdate(ctx.get(), out, &len, body, static_cast<int>(bodyLen)) != 1)
        return std::string();
    if (EVP_CIPHER_CTX_ctrl(ctx.get(), EVP_CTRL_GCM_SET_TAG, kTagLen, tag) != 1) return std::string();
    unsigned char final[16];
    if (EVP_DecryptFinal_ex(ctx.get(), final, &len) != 1) return std::string();  // tag mismatch
    return plain;
}
