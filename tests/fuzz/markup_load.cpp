// Any bytes as markup: a load either fails leaving an empty document, or
// the document can be walked, edited and printed, and its text loads again
// to the same text.
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string>

#include "netloom/util/markup.h"

namespace {

// Visits every element with the cursor, reading data and an attribute.
void Walk(CMarkup& doc, int budget) {
  int depth = 0;
  doc.ResetPos();
  while (budget-- > 0) {
    if (doc.FindElem()) {
      (void)doc.GetData();
      (void)doc.GetAttrib("type");
      int n = 0;
      (void)doc.GetAttrib("Type", n);
      if (doc.IntoElem()) ++depth;
    } else if (depth > 0 && doc.OutOfElem()) {
      --depth;
    } else {
      break;
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CMarkup doc;
  if (!doc.SetDoc(text)) {
    if (!doc.GetDoc().empty()) std::abort();
    return 0;
  }
  const std::string printed = doc.GetDoc();
  CMarkup again;
  if (!again.SetDoc(printed)) std::abort();
  if (again.GetDoc() != printed) std::abort();

  Walk(doc, 10000);
  CMarkup copy = doc;
  if (copy.FindElem()) {
    // Values end at a NUL byte; up to there they must come back as given.
    const std::string value = text.substr(0, 64).c_str();
    if (!copy.AddElem("added", value) || copy.GetData() != value) std::abort();
    if (!copy.SetAttrib("attr", value) || copy.GetAttrib("attr") != value) std::abort();
  }
  (void)copy.GetDoc();
  return 0;
}
