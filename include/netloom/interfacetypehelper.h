// The caller's interface-name normaliser. The route parser hands it every
// interface text it reads and stores what comes back, normally the long
// form of the name ("Gi0/1" -> "GigabitEthernet0/1").
#pragma once

#include <string>

#include "netloom/export.h"

class NETLOOM_API IInterfaceTypeHelper {
 public:
  virtual ~IInterfaceTypeHelper() = default;
  // The name to store for an interface text as a device printed it.
  virtual std::string GetFullInterfaceName(std::string ifName) = 0;
};
