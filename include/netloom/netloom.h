// Everything Netloom exports, in one include.
#pragma once

#include "netloom/export.h"

// Utility layer
#include "netloom/util/aes.h"
#include "netloom/util/conf.h"
#include "netloom/util/csvparser.h"
#include "netloom/util/guid.h"
#include "netloom/util/kxjson.h"
#include "netloom/util/loginscript.h"
#include "netloom/util/logger.h"
#include "netloom/util/markup.h"
#include "netloom/util/misc.h"
#include "netloom/util/pathname.h"
#include "netloom/util/sqlite.h"
#include "netloom/util/stlhelper.h"
#include "netloom/util/strformat.h"
#include "netloom/util/taskpool.h"
#include "netloom/util/textcheck.h"
#include "netloom/util/twfilesystem.h"

// Address primitives
#include "netloom/ipaddress.h"
#include "netloom/ipaddress2.h"
#include "netloom/l3packet.h"
#include "netloom/macaddress.h"
#include "netloom/transprotocolhelper.h"

// Routing
#include "netloom/routingcost.h"
#include "netloom/routingtable.h"
#include "netloom/interfacetypehelper.h"
#include "netloom/routingtablecmp.h"
#include "netloom/routinghop.h"

// Device access settings
#include "netloom/devicelistdata.h"
#include "netloom/subnetlistdata.h"

// Support services
#include "netloom/lockmgr.h"
#include "netloom/schemakeys.h"
#include "netloom/snapshotselectresult.h"
#include "netloom/topofilesystem.h"

// Device tables
#include "netloom/commontable.h"
#include "netloom/commontablecompareresult.h"
#include "netloom/boundinterfacetable.h"
#include "netloom/stptable.h"
#include "netloom/nattable.h"

// Device access settings
#include "netloom/accessrecords.h"
#include "netloom/conffilesecurity.h"
#include "netloom/devicesetting.h"
#include "netloom/globalsetting.h"
#include "netloom/ifnametransfermgr.h"
#include "netloom/lrucache.h"
// Python bridge
#include "netloom/pythonutil.h"
#include "netloom/twp3pythontaskpool.h"
#include "netloom/arptable.h"
#include "netloom/mactable.h"
#include "netloom/cdptable.h"
