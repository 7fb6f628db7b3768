// The one macro that marks Netloom's public API. The shared library is built
// with hidden visibility, so a symbol is part of the interface only when it
// carries NETLOOM_API.
#pragma once

#define NETLOOM_API __attribute__((visibility("default")))
