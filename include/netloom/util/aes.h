// Field-level encryption for secrets stored in text records (device
// credentials in CSV cells, say). Each call seals its text with AES-256-GCM
// under a fresh random nonce and hands back base64, so the result survives
// any text container; opening checks the tag, so a tampered or truncated
// cell never decrypts to garbage.
//
// The key is the site's, never the source's: NETLOOM_AES_KEY (base64 of 32
// bytes) when set, else the key file "netloom.aeskey" in the configuration
// folder, created from the system's random source on first use.
#pragma once

#include <string>

#include "netloom/export.h"

class NETLOOM_API TWAes {
public:
    // Base64 of version byte, nonce, ciphertext and tag. Never empty, even
    // for an empty text, so that an empty cell always means "nothing stored".
    static std::string Encrypt(const std::string& text);

    // The plain text, or the empty string for anything that is not a
    // sealed text under this key: bad base64, short input, wrong version,
    // a flipped bit, another site's key.
    static std::string Decrypt(const std::string& text);

    // Name of the key file inside the configuration folder.
    static const char* KeyFileName();
};
