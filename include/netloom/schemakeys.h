// Schema keys: the vocabulary of the platform's document database (collection
// names, field names, query operators, fixed identifiers and a few texts that
// travel with them), one exported constant per word so that code names a key
// by identifier and never spells the text itself.
//
// Layout, all under netloom::schema:
//   collection::   every collection name and the other capitalised names
//   op::           query and update operators
//   field::        every field name used by any collection
//   type_id::      fixed GUID identifiers of topology and schema types
//   phrase::       fixed phrase values (zone, task and table kinds, outcomes)
//   benchmark_option::  the numbered retrieval items of a benchmark's options
//   text::         separators and patterns used to build and split texts
//   <Collection>:: one namespace per collection whose documents this library
//                  reads or writes: Collection holds the collection's name, then
//                  the keys of its documents; a sub-document's keys follow in a
//                  nested namespace named after the field that holds it, with a
//                  capital first letter (SnmpRoInfo::v3 holds SnmpRoInfo::V3::*).
// Within a group the constants stand in the alphabetical order of their
// texts, and each group ends in All, the list of its constants in that order.
// A word that occurs in several groups has a constant in each.
//
// Identifiers are the texts themselves, with these exceptions:
//   - "$" of an operator is dropped ($gt is op::gt);
//   - "." becomes "_" (KXSystem.Tenant is collection::KXSystem_Tenant);
//   - a C++ keyword gets a trailing "_" (op::or_, field::export_);
//   - "__sep__" is field::sep, since "__" is reserved to the implementation;
//   - the texts that are no words (GUIDs, phrases, numbers, separators) have
//     descriptive names, each with its text beside it.
// Spellings are the database's and stay as they are, misspelt ones included
// (field::authencation, field::alsertShare, field::isHiden, field::sequnce,
// field::upateTime, field::extentedParser, field::retriRTMaxNum).
//
// The constants are built while the library loads; code running in another
// library's static initialisers must not rely on them.
#pragma once

#include <string>
#include <vector>

#include "netloom/export.h"

namespace netloom::schema {

// Names of the database's collections, and the other capitalised names
// (access-record keys, status words, topology type names).
namespace collection {
extern NETLOOM_API const std::string AccessMethod;
extern NETLOOM_API const std::string Activity;
extern NETLOOM_API const std::string ActivityDataTable;
extern NETLOOM_API const std::string ActivityLiveLog;
extern NETLOOM_API const std::string AnomalyDetectSetting;
extern NETLOOM_API const std::string ApplianceId;
extern NETLOOM_API const std::string BenchmarkDefinition;
extern NETLOOM_API const std::string BenchmarkSummaryLog;
extern NETLOOM_API const std::string BlockedTopoLink;
extern NETLOOM_API const std::string BorderLink;
extern NETLOOM_API const std::string CliMiniTask;
extern NETLOOM_API const std::string CliSetting;
extern NETLOOM_API const std::string CMLiveAccessOption;
extern NETLOOM_API const std::string CpuExpression;
extern NETLOOM_API const std::string CurrMacTable;
extern NETLOOM_API const std::string CustomizedManagementIp;
extern NETLOOM_API const std::string DataViewDefinition;
extern NETLOOM_API const std::string DataViewGroup;
extern NETLOOM_API const std::string DataViewTaskInfo;
extern NETLOOM_API const std::string DataViewTaskStorage;
extern NETLOOM_API const std::string DataViewTemplate;
extern NETLOOM_API const std::string DataViewTree;
extern NETLOOM_API const std::string DEData;
extern NETLOOM_API const std::string DEDataStatus;
extern NETLOOM_API const std::string DefaultDataViewTemplate;
extern NETLOOM_API const std::string DefaultDeviceDataView;
extern NETLOOM_API const std::string DEMetaData;
extern NETLOOM_API const std::string DEParsedStructure;
extern NETLOOM_API const std::string DesignReader;
extern NETLOOM_API const std::string DETaskGroup;
extern NETLOOM_API const std::string Device;
extern NETLOOM_API const std::string DeviceBenchmarkResult;
extern NETLOOM_API const std::string DeviceCLog;
extern NETLOOM_API const std::string DeviceData;
extern NETLOOM_API const std::string DeviceDataCurr;
extern NETLOOM_API const std::string DeviceDataFixup;
extern NETLOOM_API const std::string DeviceDataSource;
extern NETLOOM_API const std::string DeviceDiscoverResult;
extern NETLOOM_API const std::string DeviceGroup;
extern NETLOOM_API const std::string DeviceSchema;
extern NETLOOM_API const std::string DeviceSetting;
extern NETLOOM_API const std::string DeviceSpec;
extern NETLOOM_API const std::string DeviceToObjectGroup;
extern NETLOOM_API const std::string DeviceTuneResult;
extern NETLOOM_API const std::string DeviceTuneResultCurr;
extern NETLOOM_API const std::string DeviceType;
extern NETLOOM_API const std::string DotScan;
extern NETLOOM_API const std::string Driver;
extern NETLOOM_API const std::string DriverId;
extern NETLOOM_API const std::string DuplicatedIp;
extern NETLOOM_API const std::string EnablePasswd;
extern NETLOOM_API const std::string EnablePassword;
extern NETLOOM_API const std::string EnablePasswordPrompt;
extern NETLOOM_API const std::string EnableUsername;
extern NETLOOM_API const std::string EnableUsernameprompt;
extern NETLOOM_API const std::string EnpasswordPrompt;
extern NETLOOM_API const std::string Extension;
extern NETLOOM_API const std::string ExternalAPIServer;
extern NETLOOM_API const std::string ExternalServerId;
extern NETLOOM_API const std::string ExternalServers;
extern NETLOOM_API const std::string ExternalServerTechId;
extern NETLOOM_API const std::string Failed;
extern NETLOOM_API const std::string FilterMACConf;
extern NETLOOM_API const std::string FlowletInfo;
extern NETLOOM_API const std::string FlowletMessage;
extern NETLOOM_API const std::string FlowletMiniTask;
extern NETLOOM_API const std::string ForceTimeout;
extern NETLOOM_API const std::string FrontServerAndGroup;
extern NETLOOM_API const std::string FrontServerAndGroupInDomain;
extern NETLOOM_API const std::string FrontServerController;
extern NETLOOM_API const std::string GBBlockSetting;
extern NETLOOM_API const std::string GBGlobalSetting;
extern NETLOOM_API const std::string GBObjectHistory;
extern NETLOOM_API const std::string GBObjectRule;
extern NETLOOM_API const std::string GBVariableRule;
extern NETLOOM_API const std::string GenericSchema;
extern NETLOOM_API const std::string HostName;
extern NETLOOM_API const std::string Interface;
extern NETLOOM_API const std::string InterfaceCLog;
extern NETLOOM_API const std::string InterfaceSchema;
extern NETLOOM_API const std::string InterfaceType;
extern NETLOOM_API const std::string Ipv6_L3_Topo_Type;
extern NETLOOM_API const std::string IsBuiltin;
extern NETLOOM_API const std::string IsP2P;
extern NETLOOM_API const std::string Jumpbox;
extern NETLOOM_API const std::string KXSystem;
extern NETLOOM_API const std::string KXSystem_SystemSettings;  // "KXSystem.SystemSettings"
extern NETLOOM_API const std::string KXSystem_Tenant;  // "KXSystem.Tenant"
extern NETLOOM_API const std::string KXSystem_TenantConnection;  // "KXSystem.TenantConnection"
extern NETLOOM_API const std::string KXSystem_ThirdPartyAPIPlugin;  // "KXSystem.ThirdPartyAPIPlugin"
extern NETLOOM_API const std::string L2_Topo_Type;
extern NETLOOM_API const std::string L2ConnectivityTable;
extern NETLOOM_API const std::string L2TopoBuildOption;
extern NETLOOM_API const std::string L2TopoBuildParams;
extern NETLOOM_API const std::string L3_Topo_Type;
extern NETLOOM_API const std::string LastDevice;
extern NETLOOM_API const std::string LastInterface;
extern NETLOOM_API const std::string LastValidTopoLinkCLog;
extern NETLOOM_API const std::string LiveHostName;
extern NETLOOM_API const std::string LiveSetting;
extern NETLOOM_API const std::string LiveStatus;
extern NETLOOM_API const std::string Locked;
extern NETLOOM_API const std::string LockedTopoLink;
extern NETLOOM_API const std::string Logical_Topo_Type;
extern NETLOOM_API const std::string LoginPrompt;
extern NETLOOM_API const std::string LoginScript;
extern NETLOOM_API const std::string MacDevice;
extern NETLOOM_API const std::string ManageIp;
extern NETLOOM_API const std::string Media;
extern NETLOOM_API const std::string MediaType;
extern NETLOOM_API const std::string MemoryExpression;
extern NETLOOM_API const std::string MissDevice;
extern NETLOOM_API const std::string Monitor;
extern NETLOOM_API const std::string MonitorExeLog;
extern NETLOOM_API const std::string MonitorStatus;
extern NETLOOM_API const std::string NCTProcedure;
extern NETLOOM_API const std::string NetworkChangeMiniTask;
extern NETLOOM_API const std::string NetworkChangeMiniTaskResult;
extern NETLOOM_API const std::string NetworkDefinition;
extern NETLOOM_API const std::string NetworkServer;
extern NETLOOM_API const std::string NewDevice;
extern NETLOOM_API const std::string NonprivilegePrompt;
extern NETLOOM_API const std::string ObjectGroup;
extern NETLOOM_API const std::string ODDeviceData;
extern NETLOOM_API const std::string OneIPTable;
extern NETLOOM_API const std::string Opsec;
extern NETLOOM_API const std::string Option;
extern NETLOOM_API const std::string OuiInfo;
extern NETLOOM_API const std::string ParentDevice;
extern NETLOOM_API const std::string ParserPlugin;
extern NETLOOM_API const std::string Parsers;
extern NETLOOM_API const std::string PasswordPrompt;
extern NETLOOM_API const std::string PathAnalysisProfile;
extern NETLOOM_API const std::string PathAnalysisSet;
extern NETLOOM_API const std::string PathProcedure;
extern NETLOOM_API const std::string Picture;
extern NETLOOM_API const std::string PingTraceMiniTaskResult;
extern NETLOOM_API const std::string PrivateDeviceSetting;
extern NETLOOM_API const std::string PrivateDeviceTuneResult;
extern NETLOOM_API const std::string PrivateDeviceTuneResultCurr;
extern NETLOOM_API const std::string PrivateEnablePassword;
extern NETLOOM_API const std::string PrivateSSHPrivateKey;
extern NETLOOM_API const std::string PrivateTelnetInfo;
extern NETLOOM_API const std::string PrivateTuneTask;
extern NETLOOM_API const std::string PrivilegePrompt;
extern NETLOOM_API const std::string RetrieveLiveDataMiniTask;
extern NETLOOM_API const std::string Running;
extern NETLOOM_API const std::string SDNDefinition;
extern NETLOOM_API const std::string Site;
extern NETLOOM_API const std::string SiteMember;
extern NETLOOM_API const std::string SnapshotDefinition;
extern NETLOOM_API const std::string SnmpDevice;
extern NETLOOM_API const std::string SnmpRoInfo;
extern NETLOOM_API const std::string SNMPSetting;
extern NETLOOM_API const std::string SpecialMultiLanMacs;
extern NETLOOM_API const std::string SSHCommand;
extern NETLOOM_API const std::string SSHKeyId;
extern NETLOOM_API const std::string SSHPort;
extern NETLOOM_API const std::string SSHPrivateKey;
extern NETLOOM_API const std::string SubnetIpInterface;
extern NETLOOM_API const std::string SubType;
extern NETLOOM_API const std::string Succeeded;
extern NETLOOM_API const std::string SystemObject;
extern NETLOOM_API const std::string SystemObjectRelation;
extern NETLOOM_API const std::string SystemVendorModel;
extern NETLOOM_API const std::string TechnologySpec;
extern NETLOOM_API const std::string TelnetInfo;
extern NETLOOM_API const std::string TelnetPort;
extern NETLOOM_API const std::string TelnetProxyId;
extern NETLOOM_API const std::string TempTopoLink;
extern NETLOOM_API const std::string ThirdPartyAPIServer;
extern NETLOOM_API const std::string ThirdPartyDiscovery;
extern NETLOOM_API const std::string TopoLink;
extern NETLOOM_API const std::string TopoLinkCLog;
extern NETLOOM_API const std::string TopoLinkManual;
extern NETLOOM_API const std::string TopoLinkStatus;
extern NETLOOM_API const std::string TopoLinkType;
extern NETLOOM_API const std::string TopologyTableManageTable;
extern NETLOOM_API const std::string TuneTask;
extern NETLOOM_API const std::string UnknownDevice;
extern NETLOOM_API const std::string UnknownIp;
extern NETLOOM_API const std::string UseCustomizedManagementIp;
extern NETLOOM_API const std::string UserName;
extern NETLOOM_API const std::string UserOperator;
extern NETLOOM_API const std::string UserPassword;
extern NETLOOM_API const std::string VariableMapping;
extern NETLOOM_API const std::string VariableMappingPriority;
extern NETLOOM_API const std::string Version;
extern NETLOOM_API const std::string VisualSpaceInstance;
extern NETLOOM_API const std::string VPN_Topo_Type;
// Every constant above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace collection

// Query and update operators of the database; the identifier drops the "$".
namespace op {
extern NETLOOM_API const std::string currentDate;  // "$currentDate"
extern NETLOOM_API const std::string elemMatch;  // "$elemMatch"
extern NETLOOM_API const std::string exists;  // "$exists"
extern NETLOOM_API const std::string gt;  // "$gt"
extern NETLOOM_API const std::string gte;  // "$gte"
extern NETLOOM_API const std::string in;  // "$in"
extern NETLOOM_API const std::string inc;  // "$inc"
extern NETLOOM_API const std::string limit;  // "$limit"
extern NETLOOM_API const std::string lt;  // "$lt"
extern NETLOOM_API const std::string lte;  // "$lte"
extern NETLOOM_API const std::string match;  // "$match"
extern NETLOOM_API const std::string ne;  // "$ne"
extern NETLOOM_API const std::string OID;  // "$OID"
extern NETLOOM_API const std::string OPTION;  // "$OPTION"
extern NETLOOM_API const std::string or_;  // "$or"
extern NETLOOM_API const std::string pull;  // "$pull"
extern NETLOOM_API const std::string pullAll;  // "$pullAll"
extern NETLOOM_API const std::string push;  // "$push"
extern NETLOOM_API const std::string pushAll;  // "$pushAll"
extern NETLOOM_API const std::string REGEX;  // "$REGEX"
extern NETLOOM_API const std::string set;  // "$set"
extern NETLOOM_API const std::string size;  // "$size"
extern NETLOOM_API const std::string sort;  // "$sort"
extern NETLOOM_API const std::string unwind;  // "$unwind"
// Every constant above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace op

// The vocabulary of field names across all collections.
namespace field {
extern NETLOOM_API const std::string sep;  // "__sep__"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string accessOption;
extern NETLOOM_API const std::string accessOrder;
extern NETLOOM_API const std::string accessVLAN;
extern NETLOOM_API const std::string aclList;
extern NETLOOM_API const std::string action;
extern NETLOOM_API const std::string actionPriority;
extern NETLOOM_API const std::string actionResult;
extern NETLOOM_API const std::string actions;
extern NETLOOM_API const std::string actionSource;
extern NETLOOM_API const std::string actionTime;
extern NETLOOM_API const std::string actionUser;
extern NETLOOM_API const std::string additionalProcess;
extern NETLOOM_API const std::string admin;
extern NETLOOM_API const std::string aesKey;
extern NETLOOM_API const std::string alert;
extern NETLOOM_API const std::string alertId;
extern NETLOOM_API const std::string alertName;
extern NETLOOM_API const std::string alertSetting;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string alogid;
extern NETLOOM_API const std::string alsertShare;
extern NETLOOM_API const std::string apiServerName;
extern NETLOOM_API const std::string appId;
extern NETLOOM_API const std::string applyProfileId;
extern NETLOOM_API const std::string applyProfileName;
extern NETLOOM_API const std::string applySet;
extern NETLOOM_API const std::string applyTo;
extern NETLOOM_API const std::string apps;
extern NETLOOM_API const std::string appStatus;
extern NETLOOM_API const std::string arpTable;
extern NETLOOM_API const std::string arpTableOrig;
extern NETLOOM_API const std::string asNum;
extern NETLOOM_API const std::string asNumber;
extern NETLOOM_API const std::string assetTag;
extern NETLOOM_API const std::string associatedKey;
extern NETLOOM_API const std::string associatedSchema;
extern NETLOOM_API const std::string authencation;
extern NETLOOM_API const std::string authMode;
extern NETLOOM_API const std::string author;
extern NETLOOM_API const std::string authPassword;
extern NETLOOM_API const std::string authPro;
extern NETLOOM_API const std::string autoUpdate;
extern NETLOOM_API const std::string bandwidth;
extern NETLOOM_API const std::string beginTime;
extern NETLOOM_API const std::string belongedVlans;
extern NETLOOM_API const std::string belongToTopoType;
extern NETLOOM_API const std::string benchmarks;
extern NETLOOM_API const std::string bgpNbr;
extern NETLOOM_API const std::string bgpNbrTable;
extern NETLOOM_API const std::string bgpNbrTableOrig;
extern NETLOOM_API const std::string bgpNeighbor;
extern NETLOOM_API const std::string bModified;
extern NETLOOM_API const std::string bMplsIgnoreVrfIf;
extern NETLOOM_API const std::string borderLink;
extern NETLOOM_API const std::string buildVisualSpaceDataMethod;
extern NETLOOM_API const std::string bv;
extern NETLOOM_API const std::string cache;
extern NETLOOM_API const std::string cacheDataLiveTime;
extern NETLOOM_API const std::string cacheDataMatchItems;
extern NETLOOM_API const std::string cacheDataPath;
extern NETLOOM_API const std::string callmngr_ipphone;
extern NETLOOM_API const std::string cdpTable;
extern NETLOOM_API const std::string cdpTableOrig;
extern NETLOOM_API const std::string ceIfVpn;
extern NETLOOM_API const std::string ceIntfIP;
extern NETLOOM_API const std::string ceIntfName;
extern NETLOOM_API const std::string ceName;
extern NETLOOM_API const std::string ceNbrs;
extern NETLOOM_API const std::string certVerification;
extern NETLOOM_API const std::string ceVpn;
extern NETLOOM_API const std::string channelGroup;
extern NETLOOM_API const std::string channelGroupMode;
extern NETLOOM_API const std::string channelList;
extern NETLOOM_API const std::string checkedObjs;
extern NETLOOM_API const std::string checkTime;
extern NETLOOM_API const std::string children;
extern NETLOOM_API const std::string cli;
extern NETLOOM_API const std::string cliMode;
extern NETLOOM_API const std::string cliPort;
extern NETLOOM_API const std::string cliTimeout;
extern NETLOOM_API const std::string cliType;
extern NETLOOM_API const std::string command;
extern NETLOOM_API const std::string commandDebug;
extern NETLOOM_API const std::string commandPrompt;
extern NETLOOM_API const std::string commandSize;
extern NETLOOM_API const std::string condition;
extern NETLOOM_API const std::string config;
extern NETLOOM_API const std::string configFromCLI;
extern NETLOOM_API const std::string configLet;
extern NETLOOM_API const std::string configOrder;
extern NETLOOM_API const std::string configParser;
extern NETLOOM_API const std::string configPrompt;
extern NETLOOM_API const std::string contact;
extern NETLOOM_API const std::string contactName;
extern NETLOOM_API const std::string content;
extern NETLOOM_API const std::string contentType;
extern NETLOOM_API const std::string contextName;
extern NETLOOM_API const std::string counter;
extern NETLOOM_API const std::string cpuOID;
extern NETLOOM_API const std::string createdBy;
extern NETLOOM_API const std::string createdMethod;
extern NETLOOM_API const std::string creator;
extern NETLOOM_API const std::string ctime;
extern NETLOOM_API const std::string cu;
extern NETLOOM_API const std::string customerAttr;
extern NETLOOM_API const std::string cv;
extern NETLOOM_API const std::string dataEntries;
extern NETLOOM_API const std::string dataFlag;
extern NETLOOM_API const std::string dataFolderId;
extern NETLOOM_API const std::string dataFolderName;
extern NETLOOM_API const std::string dataFolderToRun;
extern NETLOOM_API const std::string dataSize;
extern NETLOOM_API const std::string dataSource;
extern NETLOOM_API const std::string dataSourceId;
extern NETLOOM_API const std::string dataSourceType;
extern NETLOOM_API const std::string dataTables;
extern NETLOOM_API const std::string dataViewFolder;
extern NETLOOM_API const std::string dataViewGroupName;
extern NETLOOM_API const std::string dataViewMapping;
extern NETLOOM_API const std::string dataViewOption;
extern NETLOOM_API const std::string dataViewSetting;
extern NETLOOM_API const std::string dbName;
extern NETLOOM_API const std::string def;
extern NETLOOM_API const std::string delay;
extern NETLOOM_API const std::string delaySessionLiveTime;
extern NETLOOM_API const std::string desc;
extern NETLOOM_API const std::string descr;
extern NETLOOM_API const std::string description;
extern NETLOOM_API const std::string designatedCredentials;
extern NETLOOM_API const std::string destDevice;
extern NETLOOM_API const std::string destPort;
extern NETLOOM_API const std::string destType;
extern NETLOOM_API const std::string devCount;
extern NETLOOM_API const std::string deviceCount;
extern NETLOOM_API const std::string deviceGroupId;
extern NETLOOM_API const std::string deviceId;
extern NETLOOM_API const std::string deviceInfo;
extern NETLOOM_API const std::string deviceList;
extern NETLOOM_API const std::string deviceName;
extern NETLOOM_API const std::string devices;
extern NETLOOM_API const std::string devicesetting;
extern NETLOOM_API const std::string deviceType;
extern NETLOOM_API const std::string devId;
extern NETLOOM_API const std::string devIds;
extern NETLOOM_API const std::string devName;
extern NETLOOM_API const std::string devNameExp;
extern NETLOOM_API const std::string devScope;
extern NETLOOM_API const std::string devSubType;
extern NETLOOM_API const std::string devType;
extern NETLOOM_API const std::string devTypeName;
extern NETLOOM_API const std::string devTypes;
extern NETLOOM_API const std::string discoverIp;
extern NETLOOM_API const std::string discoverMethod;
extern NETLOOM_API const std::string discoverOption;
extern NETLOOM_API const std::string discoverTask;
extern NETLOOM_API const std::string discoverThread;
extern NETLOOM_API const std::string discoveryCount;
extern NETLOOM_API const std::string displayedTableType;
extern NETLOOM_API const std::string displayname;
extern NETLOOM_API const std::string displayName;
extern NETLOOM_API const std::string dns;
extern NETLOOM_API const std::string domain;
extern NETLOOM_API const std::string domainId;
extern NETLOOM_API const std::string domains;
extern NETLOOM_API const std::string doNotScanType;
extern NETLOOM_API const std::string driver;
extern NETLOOM_API const std::string driverId;
extern NETLOOM_API const std::string driverID;
extern NETLOOM_API const std::string driverIds;
extern NETLOOM_API const std::string driverName;
extern NETLOOM_API const std::string duplex;
extern NETLOOM_API const std::string edgeSchema;
extern NETLOOM_API const std::string edgeSchemaDataView;
extern NETLOOM_API const std::string edgeTypes;
extern NETLOOM_API const std::string email;
extern NETLOOM_API const std::string emailSetting;
extern NETLOOM_API const std::string employeeNumber;
extern NETLOOM_API const std::string enable;
extern NETLOOM_API const std::string enableCmd;
extern NETLOOM_API const std::string enablePassword;
extern NETLOOM_API const std::string enablePasswordPrompt;
extern NETLOOM_API const std::string enablePasswordPrompts;
extern NETLOOM_API const std::string enablePrompt;
extern NETLOOM_API const std::string enableUserName;
extern NETLOOM_API const std::string enableUserNamePrompt;
extern NETLOOM_API const std::string enableUserNamePrompts;
extern NETLOOM_API const std::string encapType;
extern NETLOOM_API const std::string encryptPassword;
extern NETLOOM_API const std::string encryptPro;
extern NETLOOM_API const std::string encryptType;
extern NETLOOM_API const std::string encryptUserName;
extern NETLOOM_API const std::string end;
extern NETLOOM_API const std::string endpoint;
extern NETLOOM_API const std::string endpoints;
extern NETLOOM_API const std::string endTime;
extern NETLOOM_API const std::string error;
extern NETLOOM_API const std::string excludeDriverIds;
extern NETLOOM_API const std::string excludeVlanRanges;
extern NETLOOM_API const std::string exitTime;
extern NETLOOM_API const std::string exitTimeout;
extern NETLOOM_API const std::string export_;  // "export"
extern NETLOOM_API const std::string extentedParser;
extern NETLOOM_API const std::string extraData;
extern NETLOOM_API const std::string extraId;
extern NETLOOM_API const std::string extraOptions;
extern NETLOOM_API const std::string extraParams;
extern NETLOOM_API const std::string fileId;
extern NETLOOM_API const std::string fileName;
extern NETLOOM_API const std::string filename;
extern NETLOOM_API const std::string filter;
extern NETLOOM_API const std::string filteredPlace;
extern NETLOOM_API const std::string flag;
extern NETLOOM_API const std::string flowletContent;
extern NETLOOM_API const std::string flowletId;
extern NETLOOM_API const std::string flowletJson;
extern NETLOOM_API const std::string flowletList;
extern NETLOOM_API const std::string flowletName;
extern NETLOOM_API const std::string folderFilter;
extern NETLOOM_API const std::string forceTime;
extern NETLOOM_API const std::string frame_relay;
extern NETLOOM_API const std::string frame_relay_ietf;
extern NETLOOM_API const std::string frequency;
extern NETLOOM_API const std::string fromDevId;
extern NETLOOM_API const std::string fromDevName;
extern NETLOOM_API const std::string fromedge;
extern NETLOOM_API const std::string fromIp;
extern NETLOOM_API const std::string fromIpMask;
extern NETLOOM_API const std::string frontServerAndGroupId;
extern NETLOOM_API const std::string ftime;
extern NETLOOM_API const std::string fullName;
extern NETLOOM_API const std::string functionName;
extern NETLOOM_API const std::string fwrev;
extern NETLOOM_API const std::string gateway;
extern NETLOOM_API const std::string gbData;
extern NETLOOM_API const std::string generalApiResponseMethod;
extern NETLOOM_API const std::string group;
extern NETLOOM_API const std::string guid;
extern NETLOOM_API const std::string hasBGPConfig;
extern NETLOOM_API const std::string hasCLog;
extern NETLOOM_API const std::string hasEIGRPConfig;
extern NETLOOM_API const std::string hasISISConfig;
extern NETLOOM_API const std::string hasIssue;
extern NETLOOM_API const std::string hasMac;
extern NETLOOM_API const std::string hasMacAddr;
extern NETLOOM_API const std::string hasMulticastConfig;
extern NETLOOM_API const std::string hasOSPFConfig;
extern NETLOOM_API const std::string hostname;
extern NETLOOM_API const std::string hour;
extern NETLOOM_API const std::string hsrp;
extern NETLOOM_API const std::string hwrev;
extern NETLOOM_API const std::string iconPath;
extern NETLOOM_API const std::string icons;
extern NETLOOM_API const std::string id;
extern NETLOOM_API const std::string ids;
extern NETLOOM_API const std::string ifId;
extern NETLOOM_API const std::string ifname;
extern NETLOOM_API const std::string import;
extern NETLOOM_API const std::string inAclName;
extern NETLOOM_API const std::string index;
extern NETLOOM_API const std::string inputTable;
extern NETLOOM_API const std::string interfaceInfo;
extern NETLOOM_API const std::string interfaceName;
extern NETLOOM_API const std::string intfDesc;
extern NETLOOM_API const std::string intfId;
extern NETLOOM_API const std::string intfName;
extern NETLOOM_API const std::string intfOrder;
extern NETLOOM_API const std::string intfs;
extern NETLOOM_API const std::string intfSchema;
extern NETLOOM_API const std::string intfStatus;
extern NETLOOM_API const std::string intfValue;
extern NETLOOM_API const std::string invalidCommandKey;
extern NETLOOM_API const std::string ip;
extern NETLOOM_API const std::string ipAddr;
extern NETLOOM_API const std::string ipAddrRange;
extern NETLOOM_API const std::string ipCount;
extern NETLOOM_API const std::string ipfrom;
extern NETLOOM_API const std::string ipLoc;
extern NETLOOM_API const std::string ipOrHostname;
extern NETLOOM_API const std::string ipphone_callmngr;
extern NETLOOM_API const std::string ipphone_num;
extern NETLOOM_API const std::string ipphone_switch;
extern NETLOOM_API const std::string ips;
extern NETLOOM_API const std::string ipsla;
extern NETLOOM_API const std::string ipslacmds;
extern NETLOOM_API const std::string ipSrc;
extern NETLOOM_API const std::string ipUnnumbered;
extern NETLOOM_API const std::string ipUnnumberedIp;
extern NETLOOM_API const std::string isBlocked;
extern NETLOOM_API const std::string isBroadcast;
extern NETLOOM_API const std::string isbuildin;
extern NETLOOM_API const std::string isChannel;
extern NETLOOM_API const std::string isCheckCli;
extern NETLOOM_API const std::string isCheckCliEnable;
extern NETLOOM_API const std::string isCheckPing;
extern NETLOOM_API const std::string isCheckSnmp;
extern NETLOOM_API const std::string isCompare;
extern NETLOOM_API const std::string isCompareKey;
extern NETLOOM_API const std::string isCurrentUsed;
extern NETLOOM_API const std::string isDefault;
extern NETLOOM_API const std::string isDeleted;
extern NETLOOM_API const std::string isDirectRtn;
extern NETLOOM_API const std::string isdisplay;
extern NETLOOM_API const std::string isdysearch;
extern NETLOOM_API const std::string isEnable;
extern NETLOOM_API const std::string isEnabled;
extern NETLOOM_API const std::string isEncryptUsername;
extern NETLOOM_API const std::string isExclude;
extern NETLOOM_API const std::string isExcludeLastResultSucceeded;
extern NETLOOM_API const std::string isFinished;
extern NETLOOM_API const std::string isfullsearch;
extern NETLOOM_API const std::string isHiden;
extern NETLOOM_API const std::string isIntf;
extern NETLOOM_API const std::string isIPAccouting;
extern NETLOOM_API const std::string isIPSLA;
extern NETLOOM_API const std::string isIPUnnumberedIntf;
extern NETLOOM_API const std::string iskey;
extern NETLOOM_API const std::string isL2Intf;
extern NETLOOM_API const std::string isL2TopoIntf;
extern NETLOOM_API const std::string isLanIntf;
extern NETLOOM_API const std::string isLocalbenchmark;
extern NETLOOM_API const std::string isLocalTune;
extern NETLOOM_API const std::string isLockdownMember;
extern NETLOOM_API const std::string isLocked;
extern NETLOOM_API const std::string isLoopback;
extern NETLOOM_API const std::string isManageIntf;
extern NETLOOM_API const std::string isMgmtIntf;
extern NETLOOM_API const std::string isMulticastRouting;
extern NETLOOM_API const std::string isMultipoint;
extern NETLOOM_API const std::string isNct;
extern NETLOOM_API const std::string isNetflow;
extern NETLOOM_API const std::string isPermanent;
extern NETLOOM_API const std::string isPhantomInterface;
extern NETLOOM_API const std::string isRegx;
extern NETLOOM_API const std::string isRetrieveLegacy;
extern NETLOOM_API const std::string isRetrieveSDN;
extern NETLOOM_API const std::string isRunOnce;
extern NETLOOM_API const std::string isSaveReceivedData;
extern NETLOOM_API const std::string isSendCallBack;
extern NETLOOM_API const std::string isSendSSH;
extern NETLOOM_API const std::string isSerial;
extern NETLOOM_API const std::string isShutdown;
extern NETLOOM_API const std::string isSNMPConfig;
extern NETLOOM_API const std::string isStandaloneTable;
extern NETLOOM_API const std::string isStopByUser;
extern NETLOOM_API const std::string isSubIntf;
extern NETLOOM_API const std::string isSystem;
extern NETLOOM_API const std::string isTagSwitchingIp;
extern NETLOOM_API const std::string isTuneSet;
extern NETLOOM_API const std::string isTunnel;
extern NETLOOM_API const std::string isTunnelMultipoint;
extern NETLOOM_API const std::string isVirtualIntf;
extern NETLOOM_API const std::string isVisible;
extern NETLOOM_API const std::string isVlanIntf;
extern NETLOOM_API const std::string isWan;
extern NETLOOM_API const std::string isWanIntf;
extern NETLOOM_API const std::string jobId;
extern NETLOOM_API const std::string key;
extern NETLOOM_API const std::string keyContent;
extern NETLOOM_API const std::string keyName;
extern NETLOOM_API const std::string keyValues;
extern NETLOOM_API const std::string lanSegment;
extern NETLOOM_API const std::string layer;
extern NETLOOM_API const std::string length;
extern NETLOOM_API const std::string level;
extern NETLOOM_API const std::string limitRunMins;
extern NETLOOM_API const std::string link;
extern NETLOOM_API const std::string links;
extern NETLOOM_API const std::string linkType;
extern NETLOOM_API const std::string linkTypeFlag;
extern NETLOOM_API const std::string liveDataColl;
extern NETLOOM_API const std::string liveDataConnSetting;
extern NETLOOM_API const std::string liveHostname;
extern NETLOOM_API const std::string loc;
extern NETLOOM_API const std::string localAsNum;
extern NETLOOM_API const std::string localDevId;
extern NETLOOM_API const std::string localIntfId;
extern NETLOOM_API const std::string localIntfName;
extern NETLOOM_API const std::string localIntfSchema;
extern NETLOOM_API const std::string localTech;
extern NETLOOM_API const std::string location;
extern NETLOOM_API const std::string lockedByUser;
extern NETLOOM_API const std::string lockedTime;
extern NETLOOM_API const std::string log;
extern NETLOOM_API const std::string login;
extern NETLOOM_API const std::string loginPrompt;
extern NETLOOM_API const std::string logs;
extern NETLOOM_API const std::string logTime;
extern NETLOOM_API const std::string lu;
extern NETLOOM_API const std::string lwap_defaultGW;
extern NETLOOM_API const std::string lwap_group;
extern NETLOOM_API const std::string lwap_platform;
extern NETLOOM_API const std::string lwap_priCntrllr;
extern NETLOOM_API const std::string lwap_secCntrllr;
extern NETLOOM_API const std::string mac;
extern NETLOOM_API const std::string mac1;
extern NETLOOM_API const std::string mac2;
extern NETLOOM_API const std::string macAddr;
extern NETLOOM_API const std::string macTable;
extern NETLOOM_API const std::string macTableOrig;
extern NETLOOM_API const std::string mainType;
extern NETLOOM_API const std::string mainTypeName;
extern NETLOOM_API const std::string mapId;
extern NETLOOM_API const std::string mapInfo;
extern NETLOOM_API const std::string mapPageId;
extern NETLOOM_API const std::string maskLen;
extern NETLOOM_API const std::string maxConnectionOfDevice;
extern NETLOOM_API const std::string maxConnectionViaCLI;
extern NETLOOM_API const std::string maxConnectionViaJumpbox;
extern NETLOOM_API const std::string maxDeviceCount;
extern NETLOOM_API const std::string md5;
extern NETLOOM_API const std::string md5KeyContent;
extern NETLOOM_API const std::string mediaId;
extern NETLOOM_API const std::string medianame;
extern NETLOOM_API const std::string mem;
extern NETLOOM_API const std::string memOID;
extern NETLOOM_API const std::string message;
extern NETLOOM_API const std::string method;
extern NETLOOM_API const std::string mgmt;
extern NETLOOM_API const std::string mgmtIntf;
extern NETLOOM_API const std::string mgmtIP;
extern NETLOOM_API const std::string mgmtMAC;
extern NETLOOM_API const std::string mgrIntf;
extern NETLOOM_API const std::string mgrIp;
extern NETLOOM_API const std::string mgrIpStyle;
extern NETLOOM_API const std::string mibIndex;
extern NETLOOM_API const std::string min;
extern NETLOOM_API const std::string miniTaskId;
extern NETLOOM_API const std::string miniTaskName;
extern NETLOOM_API const std::string miniTaskType;
extern NETLOOM_API const std::string mode;
extern NETLOOM_API const std::string model;
extern NETLOOM_API const std::string modelName;
extern NETLOOM_API const std::string modified;
extern NETLOOM_API const std::string moduleName;
extern NETLOOM_API const std::string modules;
extern NETLOOM_API const std::string moduleSlot;
extern NETLOOM_API const std::string moduleType;
extern NETLOOM_API const std::string monItems;
extern NETLOOM_API const std::string morePrompt;
extern NETLOOM_API const std::string mpls_accessPnt;
extern NETLOOM_API const std::string mpls_asNum;
extern NETLOOM_API const std::string mpls_update;
extern NETLOOM_API const std::string mplsVpn;
extern NETLOOM_API const std::string mplsVrf;
extern NETLOOM_API const std::string mplsVrfNames;
extern NETLOOM_API const std::string msg;
extern NETLOOM_API const std::string msgType;
extern NETLOOM_API const std::string mtu;
extern NETLOOM_API const std::string multicastMode;
extern NETLOOM_API const std::string multiSources;
extern NETLOOM_API const std::string mustDoDevIds;
extern NETLOOM_API const std::string name;
extern NETLOOM_API const std::string nameTemplate;
extern NETLOOM_API const std::string napLoginPrompt;
extern NETLOOM_API const std::string napPassword;
extern NETLOOM_API const std::string napPasswordPrompt;
extern NETLOOM_API const std::string napPrompt;
extern NETLOOM_API const std::string napRefCount;
extern NETLOOM_API const std::string napUser;
extern NETLOOM_API const std::string napUserName;
extern NETLOOM_API const std::string nbrDevId;
extern NETLOOM_API const std::string nbrIntfId;
extern NETLOOM_API const std::string nbrIntfName;
extern NETLOOM_API const std::string nbrIntfSchema;
extern NETLOOM_API const std::string nbrTech;
extern NETLOOM_API const std::string ncts;
extern NETLOOM_API const std::string nctTable;
extern NETLOOM_API const std::string nctTableFixupDown;
extern NETLOOM_API const std::string nctTableFixupUp;
extern NETLOOM_API const std::string nctTableOrig;
extern NETLOOM_API const std::string neighborIp;
extern NETLOOM_API const std::string netFlow;
extern NETLOOM_API const std::string networkCluster;
extern NETLOOM_API const std::string networkServer;
extern NETLOOM_API const std::string networksetting;
extern NETLOOM_API const std::string networkSize;
extern NETLOOM_API const std::string nodeName;
extern NETLOOM_API const std::string nodeSize;
extern NETLOOM_API const std::string nodeType;
extern NETLOOM_API const std::string nonPrivilegePrompt;
extern NETLOOM_API const std::string nonprivilegePrompts;
extern NETLOOM_API const std::string nsPoll;
extern NETLOOM_API const std::string nsPort;
extern NETLOOM_API const std::string num;
extern NETLOOM_API const std::string objectGroupId;
extern NETLOOM_API const std::string objectGroupName;
extern NETLOOM_API const std::string objectId;
extern NETLOOM_API const std::string oid;
extern NETLOOM_API const std::string onePageCmd;
extern NETLOOM_API const std::string onlyJumpbox;
extern NETLOOM_API const std::string onlyUseCli;
extern NETLOOM_API const std::string op;
extern NETLOOM_API const std::string operateInfo;
extern NETLOOM_API const std::string operateTime;
extern NETLOOM_API const std::string operateUserName;
extern NETLOOM_API const std::string opTime;
extern NETLOOM_API const std::string option;
extern NETLOOM_API const std::string opUser;
extern NETLOOM_API const std::string opUserId;
extern NETLOOM_API const std::string order;
extern NETLOOM_API const std::string originalFullName;
extern NETLOOM_API const std::string outAclName;
extern NETLOOM_API const std::string page;
extern NETLOOM_API const std::string pageCount;
extern NETLOOM_API const std::string parentId;
extern NETLOOM_API const std::string parentIntf;
extern NETLOOM_API const std::string parentPath;
extern NETLOOM_API const std::string parentVlan;
extern NETLOOM_API const std::string parser;
extern NETLOOM_API const std::string password;
extern NETLOOM_API const std::string passwordInterval;
extern NETLOOM_API const std::string passwordPhrase;
extern NETLOOM_API const std::string passwordPrompt;
extern NETLOOM_API const std::string passwordPrompts;
extern NETLOOM_API const std::string path;
extern NETLOOM_API const std::string peIp;
extern NETLOOM_API const std::string permitVLAN;
extern NETLOOM_API const std::string phoneNumber;
extern NETLOOM_API const std::string ping;
extern NETLOOM_API const std::string pingRetryTimes;
extern NETLOOM_API const std::string pingTimeout;
extern NETLOOM_API const std::string pluginFile;
extern NETLOOM_API const std::string pluginFileId;
extern NETLOOM_API const std::string pluginName;
extern NETLOOM_API const std::string pluginType;
extern NETLOOM_API const std::string pollingOrder;
extern NETLOOM_API const std::string port;
extern NETLOOM_API const std::string portId1;
extern NETLOOM_API const std::string portId2;
extern NETLOOM_API const std::string portName;
extern NETLOOM_API const std::string ports;
extern NETLOOM_API const std::string possibleNames;
extern NETLOOM_API const std::string priority;
extern NETLOOM_API const std::string privilegePassword;
extern NETLOOM_API const std::string privilegePrompt;
extern NETLOOM_API const std::string privilegePrompts;
extern NETLOOM_API const std::string privilegeUsername;
extern NETLOOM_API const std::string profiles;
extern NETLOOM_API const std::string progress;
extern NETLOOM_API const std::string proxyExit;
extern NETLOOM_API const std::string proxyInfo;
extern NETLOOM_API const std::string proxyServer;
extern NETLOOM_API const std::string proxyServerList;
extern NETLOOM_API const std::string proxyServerTimeout;
extern NETLOOM_API const std::string pyScript;
extern NETLOOM_API const std::string pythonDebug;
extern NETLOOM_API const std::string pythonScript;
extern NETLOOM_API const std::string quitCmd;
extern NETLOOM_API const std::string rd;
extern NETLOOM_API const std::string redundantIps;
extern NETLOOM_API const std::string refCount;
extern NETLOOM_API const std::string region;
extern NETLOOM_API const std::string reinitPython;
extern NETLOOM_API const std::string remind;
extern NETLOOM_API const std::string remoteAsNum;
extern NETLOOM_API const std::string replicaSet;
extern NETLOOM_API const std::string retrieveData;
extern NETLOOM_API const std::string retrievedTime;
extern NETLOOM_API const std::string retrieveItems;
extern NETLOOM_API const std::string retrieveOption;
extern NETLOOM_API const std::string retrieveParam;
extern NETLOOM_API const std::string retrieveRTMaxNumber;
extern NETLOOM_API const std::string retrieveThread;
extern NETLOOM_API const std::string retriRTMaxNum;
extern NETLOOM_API const std::string rootSchema;
extern NETLOOM_API const std::string roString;
extern NETLOOM_API const std::string routeProtocol;
extern NETLOOM_API const std::string routeTable;
extern NETLOOM_API const std::string routeTableFixupDown;
extern NETLOOM_API const std::string routeTableFixupUp;
extern NETLOOM_API const std::string routeTableOrig;
extern NETLOOM_API const std::string routingProtocol;
extern NETLOOM_API const std::string routingTable;
extern NETLOOM_API const std::string rTable;
extern NETLOOM_API const std::string runFlowletModel;
extern NETLOOM_API const std::string runOption;
extern NETLOOM_API const std::string rwString;
extern NETLOOM_API const std::string said;
extern NETLOOM_API const std::string saveAsType;
extern NETLOOM_API const std::string saveCacheData;
extern NETLOOM_API const std::string saveCount;
extern NETLOOM_API const std::string saveTelnet;
extern NETLOOM_API const std::string scanThread;
extern NETLOOM_API const std::string schedule;
extern NETLOOM_API const std::string schema;
extern NETLOOM_API const std::string scope;
extern NETLOOM_API const std::string scopeRange;
extern NETLOOM_API const std::string scopeType;
extern NETLOOM_API const std::string scriptContent;
extern NETLOOM_API const std::string sdnData;
extern NETLOOM_API const std::string sdnScope;
extern NETLOOM_API const std::string searchType;
extern NETLOOM_API const std::string sec;
extern NETLOOM_API const std::string sequnce;
extern NETLOOM_API const std::string servers;
extern NETLOOM_API const std::string serverStyle;
extern NETLOOM_API const std::string serverType;
extern NETLOOM_API const std::string serverTypeId;
extern NETLOOM_API const std::string sessionId;
extern NETLOOM_API const std::string shortName;
extern NETLOOM_API const std::string showArpCmd;
extern NETLOOM_API const std::string showCamCmd;
extern NETLOOM_API const std::string showCdpCmd;
extern NETLOOM_API const std::string showColor;
extern NETLOOM_API const std::string showCommand;
extern NETLOOM_API const std::string showCommandThread;
extern NETLOOM_API const std::string showIPRouteCmd;
extern NETLOOM_API const std::string showRouteCountCmd;
extern NETLOOM_API const std::string showRunCmd;
extern NETLOOM_API const std::string site;
extern NETLOOM_API const std::string siteCategory;
extern NETLOOM_API const std::string siteId;
extern NETLOOM_API const std::string sn;
extern NETLOOM_API const std::string snapshotID;
extern NETLOOM_API const std::string snmp;
extern NETLOOM_API const std::string snmpCommunityString;
extern NETLOOM_API const std::string snmpFailedPing;
extern NETLOOM_API const std::string snmpIfPingFailed;
extern NETLOOM_API const std::string snmpName;
extern NETLOOM_API const std::string snmpPort;
extern NETLOOM_API const std::string snmpPro;
extern NETLOOM_API const std::string snmpRo;
extern NETLOOM_API const std::string snmpTimeout;
extern NETLOOM_API const std::string snmpVersion;
extern NETLOOM_API const std::string source;
extern NETLOOM_API const std::string sourceDataId;
extern NETLOOM_API const std::string sourceDevice;
extern NETLOOM_API const std::string sourceDeviceId;
extern NETLOOM_API const std::string sourceId;
extern NETLOOM_API const std::string sourcePort;
extern NETLOOM_API const std::string sourceType;
extern NETLOOM_API const std::string specialCommand;
extern NETLOOM_API const std::string specId;
extern NETLOOM_API const std::string speed;
extern NETLOOM_API const std::string spendSecond;
extern NETLOOM_API const std::string srcType;
extern NETLOOM_API const std::string sshCount;
extern NETLOOM_API const std::string sshFromRouter;
extern NETLOOM_API const std::string sshKeyID;
extern NETLOOM_API const std::string ssl;
extern NETLOOM_API const std::string start;
extern NETLOOM_API const std::string startPlace;
extern NETLOOM_API const std::string startTime;
extern NETLOOM_API const std::string status;
extern NETLOOM_API const std::string stpCmd;
extern NETLOOM_API const std::string stpTable;
extern NETLOOM_API const std::string stpTableOrig;
extern NETLOOM_API const std::string stream;
extern NETLOOM_API const std::string strValue;
extern NETLOOM_API const std::string subName;
extern NETLOOM_API const std::string subnet;
extern NETLOOM_API const std::string subnets;
extern NETLOOM_API const std::string subscribeTime;
extern NETLOOM_API const std::string subType;
extern NETLOOM_API const std::string subtype;
extern NETLOOM_API const std::string subTypeName;
extern NETLOOM_API const std::string subTypes;
extern NETLOOM_API const std::string summary;
extern NETLOOM_API const std::string switchGroup;
extern NETLOOM_API const std::string switchId1;
extern NETLOOM_API const std::string switchId2;
extern NETLOOM_API const std::string switchName;
extern NETLOOM_API const std::string switchType;
extern NETLOOM_API const std::string swrev;
extern NETLOOM_API const std::string tableDisplayName;
extern NETLOOM_API const std::string tableInput;
extern NETLOOM_API const std::string tableName;
extern NETLOOM_API const std::string tableRow;
extern NETLOOM_API const std::string taskId;
extern NETLOOM_API const std::string taskInfo;
extern NETLOOM_API const std::string taskParam;
extern NETLOOM_API const std::string tcpConnect;
extern NETLOOM_API const std::string telnetCommand;
extern NETLOOM_API const std::string telnetCount;
extern NETLOOM_API const std::string telnetIfPingFailed;
extern NETLOOM_API const std::string telnetPort;
extern NETLOOM_API const std::string telnetSSH;
extern NETLOOM_API const std::string tenantConnSetting;
extern NETLOOM_API const std::string thirdApi;
extern NETLOOM_API const std::string thirdApiInfo;
extern NETLOOM_API const std::string threshold;
extern NETLOOM_API const std::string time;
extern NETLOOM_API const std::string timeFilter;
extern NETLOOM_API const std::string timeOut;
extern NETLOOM_API const std::string timeout;
extern NETLOOM_API const std::string timepoint;
extern NETLOOM_API const std::string times;
extern NETLOOM_API const std::string timeSpan;
extern NETLOOM_API const std::string toConfigCmd;
extern NETLOOM_API const std::string toedge;
extern NETLOOM_API const std::string toEnableCmd;
extern NETLOOM_API const std::string topoTableName;
extern NETLOOM_API const std::string topoType;
extern NETLOOM_API const std::string traceTimeout;
extern NETLOOM_API const std::string trunkEncapsulation;
extern NETLOOM_API const std::string trunkNativeVlan;
extern NETLOOM_API const std::string tuneState;
extern NETLOOM_API const std::string tuneThread;
extern NETLOOM_API const std::string tunnelSourceIntf;
extern NETLOOM_API const std::string twId;
extern NETLOOM_API const std::string twPathSchema;
extern NETLOOM_API const std::string twPathValue;
extern NETLOOM_API const std::string type;
extern NETLOOM_API const std::string typeName;
extern NETLOOM_API const std::string unifName;
extern NETLOOM_API const std::string uniName;
extern NETLOOM_API const std::string uniqueName;
extern NETLOOM_API const std::string unit;
extern NETLOOM_API const std::string unknownType;
extern NETLOOM_API const std::string upateTime;
extern NETLOOM_API const std::string updateTime;
extern NETLOOM_API const std::string updateToBaseline;
extern NETLOOM_API const std::string updateToBeseline;
extern NETLOOM_API const std::string uploadDate;
extern NETLOOM_API const std::string useCacheDataTime;
extern NETLOOM_API const std::string useLocal;
extern NETLOOM_API const std::string user;
extern NETLOOM_API const std::string usercanmodify;
extern NETLOOM_API const std::string userFlag;
extern NETLOOM_API const std::string userId;
extern NETLOOM_API const std::string userName;
extern NETLOOM_API const std::string username;
extern NETLOOM_API const std::string userNamePrompt;
extern NETLOOM_API const std::string userPrompts;
extern NETLOOM_API const std::string useSSL;
extern NETLOOM_API const std::string v3;
extern NETLOOM_API const std::string value;
extern NETLOOM_API const std::string varHtml;
extern NETLOOM_API const std::string vdcList;
extern NETLOOM_API const std::string vendor;
extern NETLOOM_API const std::string vendorName;
extern NETLOOM_API const std::string ver;
extern NETLOOM_API const std::string version;
extern NETLOOM_API const std::string viaSnmp;
extern NETLOOM_API const std::string visibleIntfs;
extern NETLOOM_API const std::string vlan;
extern NETLOOM_API const std::string vlanRanges;
extern NETLOOM_API const std::string voiceVlan;
extern NETLOOM_API const std::string vpc;
extern NETLOOM_API const std::string vpn;
extern NETLOOM_API const std::string vpnName;
extern NETLOOM_API const std::string vrf;
extern NETLOOM_API const std::string vrfStr;
extern NETLOOM_API const std::string vt;
extern NETLOOM_API const std::string waitTime;
extern NETLOOM_API const std::string warning;
extern NETLOOM_API const std::string wlc_priLwap;
extern NETLOOM_API const std::string wlc_secLwap;
extern NETLOOM_API const std::string writeLog;
extern NETLOOM_API const std::string xMap;
extern NETLOOM_API const std::string yesNoPrompt;
extern NETLOOM_API const std::string zipContent;
extern NETLOOM_API const std::string zone;
extern NETLOOM_API const std::string zoneType;
// Every constant above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace field

// Fixed identifiers of topology and schema types.
namespace type_id {
extern NETLOOM_API const std::string L2Topo;  // "f9915809-00ee-40ea-b90d-7eb7ed9a370b"
extern NETLOOM_API const std::string L3Topo;  // "11c1c310-1713-4b3e-bf29-857fd92ed784"
extern NETLOOM_API const std::string Schema;  // "cc114563-6543-4b3e-bf29-857fd92e3333"
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace type_id

// Phrase values stored as they are shown.
namespace phrase {
extern NETLOOM_API const std::string AutomaticallyStopped;  // "Automatically Stopped"
extern NETLOOM_API const std::string BenchmarkTask;         // "benchmark task"
extern NETLOOM_API const std::string DefaultZone;           // "Default Zone"
extern NETLOOM_API const std::string IPsecVPNTable;         // "IPsec VPN Table"
extern NETLOOM_API const std::string LivePath;              // "live path"
extern NETLOOM_API const std::string ManuallyStopped;       // "Manually Stopped"
extern NETLOOM_API const std::string NATTable;              // "NAT Table"
extern NETLOOM_API const std::string OndemandDiscoverTask;  // "ondemand discover task"
extern NETLOOM_API const std::string ScheduleDiscoverTask;  // "schedule discover task"
extern NETLOOM_API const std::string SucceededWithWarning;  // "Succeeded with warning"
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace phrase

// The numbered retrieval items that a benchmark's option group holds beside
// its named ones.
namespace benchmark_option {
extern NETLOOM_API const std::string Item3;  // "3"
extern NETLOOM_API const std::string Item4;  // "4"
extern NETLOOM_API const std::string Item5;  // "5"
extern NETLOOM_API const std::string Item6;  // "6"
extern NETLOOM_API const std::string Item7;  // "7"
extern NETLOOM_API const std::string Item8;  // "8"
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace benchmark_option

// Separators and patterns of the library's text handling.
namespace text {
// Default line-end pattern of StlHelper::splitStringToLines: "\r\n[\r][\n]",
// the line break "\r\n" first, then a single "\r" or "\n".
extern NETLOOM_API const std::string LineEndPattern;
// Separator between two joined texts: "__sep__".
extern NETLOOM_API const std::string JoinSeparator;
// Separator of the elements of a prompt list: "||".
extern NETLOOM_API const std::string PromptSeparator;
// Separator of a device's password prompts: "&&&".
extern NETLOOM_API const std::string PasswordPromptSeparator;
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace text

// Collection "DeviceSetting": a device's access record.
namespace DeviceSetting {
extern NETLOOM_API const std::string Collection;  // "DeviceSetting"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string AccessMethod;
extern NETLOOM_API const std::string ApplianceId;
extern NETLOOM_API const std::string CpuExpression;
extern NETLOOM_API const std::string CustomizedManagementIp;
extern NETLOOM_API const std::string DriverId;
extern NETLOOM_API const std::string EnablePassword;
extern NETLOOM_API const std::string EnablePasswordPrompt;
extern NETLOOM_API const std::string EnableUsername;
extern NETLOOM_API const std::string EnableUsernameprompt;
extern NETLOOM_API const std::string EnpasswordPrompt;
extern NETLOOM_API const std::string Extension;
extern NETLOOM_API const std::string ExternalServerId;
extern NETLOOM_API const std::string ExternalServers;
extern NETLOOM_API const std::string ExternalServerTechId;
extern NETLOOM_API const std::string ForceTimeout;
extern NETLOOM_API const std::string HostName;
extern NETLOOM_API const std::string LiveHostName;
extern NETLOOM_API const std::string LiveStatus;
extern NETLOOM_API const std::string LoginPrompt;
extern NETLOOM_API const std::string LoginScript;
extern NETLOOM_API const std::string ManageIp;
extern NETLOOM_API const std::string MemoryExpression;
extern NETLOOM_API const std::string NonprivilegePrompt;
extern NETLOOM_API const std::string ParentDevice;
extern NETLOOM_API const std::string PasswordPrompt;
extern NETLOOM_API const std::string PrivilegePrompt;
extern NETLOOM_API const std::string SNMPSetting;
extern NETLOOM_API const std::string SSHKeyId;
extern NETLOOM_API const std::string SSHPort;
extern NETLOOM_API const std::string SubType;
extern NETLOOM_API const std::string TelnetPort;
extern NETLOOM_API const std::string TelnetProxyId;
extern NETLOOM_API const std::string UseCustomizedManagementIp;
extern NETLOOM_API const std::string UserName;
extern NETLOOM_API const std::string UserPassword;
extern NETLOOM_API const std::string Version;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace DeviceSetting

// Collection "Jumpbox": a jump box (telnet or SSH proxy).
namespace Jumpbox {
extern NETLOOM_API const std::string Collection;  // "Jumpbox"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string commandPrompt;
extern NETLOOM_API const std::string enableCmd;
extern NETLOOM_API const std::string enablePassword;
extern NETLOOM_API const std::string enablePasswordPrompt;
extern NETLOOM_API const std::string enablePrompt;
extern NETLOOM_API const std::string ipAddr;
extern NETLOOM_API const std::string loginPrompt;
extern NETLOOM_API const std::string mode;
extern NETLOOM_API const std::string password;
extern NETLOOM_API const std::string passwordPrompt;
extern NETLOOM_API const std::string port;
extern NETLOOM_API const std::string quitCmd;
extern NETLOOM_API const std::string refCount;
extern NETLOOM_API const std::string SSHCommand;
extern NETLOOM_API const std::string SSHKeyId;
extern NETLOOM_API const std::string telnetCommand;
extern NETLOOM_API const std::string type;
extern NETLOOM_API const std::string userId;
extern NETLOOM_API const std::string userName;
extern NETLOOM_API const std::string yesNoPrompt;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace Jumpbox

// Collection "TelnetInfo": a CLI credential.
namespace TelnetInfo {
extern NETLOOM_API const std::string Collection;  // "TelnetInfo"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string cliMode;
extern NETLOOM_API const std::string deviceType;
extern NETLOOM_API const std::string password;
extern NETLOOM_API const std::string refCount;
extern NETLOOM_API const std::string sshKeyID;
extern NETLOOM_API const std::string userName;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace TelnetInfo

// Collection "SSHPrivateKey": an SSH key.
namespace SSHPrivateKey {
extern NETLOOM_API const std::string Collection;  // "SSHPrivateKey"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string keyContent;
extern NETLOOM_API const std::string keyName;
extern NETLOOM_API const std::string md5KeyContent;
extern NETLOOM_API const std::string passwordPhrase;
extern NETLOOM_API const std::string refCount;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace SSHPrivateKey

// Collection "SnmpRoInfo": a read-only SNMP credential.
namespace SnmpRoInfo {
extern NETLOOM_API const std::string Collection;  // "SnmpRoInfo"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string refCount;
extern NETLOOM_API const std::string roString;
extern NETLOOM_API const std::string snmpPort;
extern NETLOOM_API const std::string snmpVersion;
extern NETLOOM_API const std::string v3;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
// Fields of the sub-document held by "v3": the SNMPv3 sub-document.
namespace V3 {
extern NETLOOM_API const std::string authMode;
extern NETLOOM_API const std::string authPassword;
extern NETLOOM_API const std::string authPro;
extern NETLOOM_API const std::string contextName;
extern NETLOOM_API const std::string encryptPassword;
extern NETLOOM_API const std::string encryptPro;
extern NETLOOM_API const std::string userName;
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace V3
}  // namespace SnmpRoInfo

// Collection "EnablePasswd": an enable credential.
namespace EnablePasswd {
extern NETLOOM_API const std::string Collection;  // "EnablePasswd"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string enablePassword;
extern NETLOOM_API const std::string enableUserName;
extern NETLOOM_API const std::string refCount;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace EnablePasswd

// Collection "NetworkServer": an appliance through which devices are reached.
namespace NetworkServer {
extern NETLOOM_API const std::string Collection;  // "NetworkServer"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string aesKey;
extern NETLOOM_API const std::string alias;
extern NETLOOM_API const std::string ipOrHostname;
extern NETLOOM_API const std::string maxDeviceCount;
extern NETLOOM_API const std::string name;
extern NETLOOM_API const std::string nsPort;
extern NETLOOM_API const std::string proxyServerList;
extern NETLOOM_API const std::string refCount;
extern NETLOOM_API const std::string serverStyle;
extern NETLOOM_API const std::string timeOut;
extern NETLOOM_API const std::string timeout;
extern NETLOOM_API const std::string useSSL;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace NetworkServer

// Collection "InterfaceType": an interface type and the names it goes by.
namespace InterfaceType {
extern NETLOOM_API const std::string Collection;  // "InterfaceType"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string bandwidth;
extern NETLOOM_API const std::string delay;
extern NETLOOM_API const std::string driverIds;
extern NETLOOM_API const std::string excludeDriverIds;
extern NETLOOM_API const std::string fullName;
extern NETLOOM_API const std::string hasMac;
extern NETLOOM_API const std::string isBroadcast;
extern NETLOOM_API const std::string isSerial;
extern NETLOOM_API const std::string isWan;
extern NETLOOM_API const std::string originalFullName;
extern NETLOOM_API const std::string possibleNames;
extern NETLOOM_API const std::string shortName;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace InterfaceType

// Collection "CliSetting": the site-wide CLI settings.
namespace CliSetting {
extern NETLOOM_API const std::string Collection;  // "CliSetting"
extern NETLOOM_API const std::string _id;
extern NETLOOM_API const std::string checkTime;
extern NETLOOM_API const std::string cliTimeout;
extern NETLOOM_API const std::string enablePasswordPrompts;
extern NETLOOM_API const std::string enableUserNamePrompts;
extern NETLOOM_API const std::string exitTimeout;
extern NETLOOM_API const std::string forceTime;
extern NETLOOM_API const std::string isEncryptUsername;
extern NETLOOM_API const std::string isSaveReceivedData;
extern NETLOOM_API const std::string isSendSSH;
extern NETLOOM_API const std::string nonprivilegePrompts;
extern NETLOOM_API const std::string passwordPrompts;
extern NETLOOM_API const std::string privilegePrompts;
extern NETLOOM_API const std::string retriRTMaxNum;
extern NETLOOM_API const std::string userPrompts;
extern NETLOOM_API const std::string waitTime;
// The field keys above, in this order.
extern NETLOOM_API const std::vector<const std::string*> All;
}  // namespace CliSetting

}  // namespace netloom::schema
