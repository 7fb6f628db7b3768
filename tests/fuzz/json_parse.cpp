// Any bytes through the JSON reader: a parse either fails leaving null, or
// yields a document whose text parses again to an equal document.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "netloom/util/kxjson.h"

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  kxJson::Value value;
  kxJson::Reader reader;
  if (!reader.parse(text, value)) {
    if (!value.isNull()) std::abort();
    return 0;
  }
  const std::string written = value.toString();
  kxJson::Value again;
  if (!reader.parse(written, again)) std::abort();
  // NaN cannot be written, and reals print as null only when not finite,
  // which the reader never produces; so the documents must match.
  if (!(again == value)) std::abort();
  if (again.toString() != written) std::abort();
  // Exercise the accessors on whatever came out.
  for (auto it = value.begin(); it != value.end(); ++it) {
    (void)it.getKeyName();
    (void)it->asString();
    (void)it->asInt();
    (void)it->asDouble();
    (void)it->asTime();
  }
  return 0;
}
