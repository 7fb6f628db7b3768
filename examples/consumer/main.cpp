// Reads a CSV text and prints its cells: enough to show the installed
// headers, library and package files fit together.
#include <netloom/netloom.h>

#include <iostream>

int main() {
  CSVParser csv;
  csv.Load("host,address\nedge1,\"10.0.0.1\"\n");
  for (size_t row = 0; row < csv.size(); ++row)
    std::cout << csv.GetAt(static_cast<int>(row), 0) << " " << csv.GetAt(static_cast<int>(row), 1) << "\n";
  std::cout << "guid " << (TW128Guid::NewGuid().IsNull() ? "null" : "ok") << "\n";
  return csv.size() == 2 ? 0 : 1;
}
