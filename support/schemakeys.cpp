// Schema keys: the one definition of every constant declared in
// netloom/schemakeys.h. Keep both files in the same order.
#include "netloom/schemakeys.h"

namespace netloom::schema {

namespace collection {
const std::string AccessMethod = "AccessMethod";
const std::string Activity = "Activity";
const std::string ActivityDataTable = "ActivityDataTable";
const std::string ActivityLiveLog = "ActivityLiveLog";
const std::string AnomalyDetectSetting = "AnomalyDetectSetting";
const std::string ApplianceId = "ApplianceId";
const std::string BenchmarkDefinition = "BenchmarkDefinition";
const std::string BenchmarkSummaryLog = "BenchmarkSummaryLog";
const std::string BlockedTopoLink = "BlockedTopoLink";
const std::string BorderLink = "BorderLink";
const std::string CliMiniTask = "CliMiniTask";
const std::string CliSetting = "CliSetting";
const std::string CMLiveAccessOption = "CMLiveAccessOption";
const std::string CpuExpression = "CpuExpression";
const std::string CurrMacTable = "CurrMacTable";
const std::string CustomizedManagementIp = "CustomizedManagementIp";
const std::string DataViewDefinition = "DataViewDefinition";
const std::string DataViewGroup = "DataViewGroup";
const std::string DataViewTaskInfo = "DataViewTaskInfo";
const std::string DataViewTaskStorage = "DataViewTaskStorage";
const std::string DataViewTemplate = "DataViewTemplate";
const std::string DataViewTree = "DataViewTree";
const std::string DEData = "DEData";
const std::string DEDataStatus = "DEDataStatus";
const std::string DefaultDataViewTemplate = "DefaultDataViewTemplate";
const std::string DefaultDeviceDataView = "DefaultDeviceDataView";
const std::string DEMetaData = "DEMetaData";
const std::string DEParsedStructure = "DEParsedStructure";
const std::string DesignReader = "DesignReader";
const std::string DETaskGroup = "DETaskGroup";
const std::string Device = "Device";
const std::string DeviceBenchmarkResult = "DeviceBenchmarkResult";
const std::string DeviceCLog = "DeviceCLog";
const std::string DeviceData = "DeviceData";
const std::string DeviceDataCurr = "DeviceDataCurr";
const std::string DeviceDataFixup = "DeviceDataFixup";
const std::string DeviceDataSource = "DeviceDataSource";
const std::string DeviceDiscoverResult = "DeviceDiscoverResult";
const std::string DeviceGroup = "DeviceGroup";
const std::string DeviceSchema = "DeviceSchema";
const std::string DeviceSetting = "DeviceSetting";
const std::string DeviceSpec = "DeviceSpec";
const std::string DeviceToObjectGroup = "DeviceToObjectGroup";
const std::string DeviceTuneResult = "DeviceTuneResult";
const std::string DeviceTuneResultCurr = "DeviceTuneResultCurr";
const std::string DeviceType = "DeviceType";
const std::string DotScan = "DotScan";
const std::string Driver = "Driver";
const std::string DriverId = "DriverId";
const std::string DuplicatedIp = "DuplicatedIp";
const std::string EnablePasswd = "EnablePasswd";
const std::string EnablePassword = "EnablePassword";
const std::string EnablePasswordPrompt = "EnablePasswordPrompt";
const std::string EnableUsername = "EnableUsername";
const std::string EnableUsernameprompt = "EnableUsernameprompt";
const std::string EnpasswordPrompt = "EnpasswordPrompt";
const std::string Extension = "Extension";
const std::string ExternalAPIServer = "ExternalAPIServer";
const std::string ExternalServerId = "ExternalServerId";
const std::string ExternalServers = "ExternalServers";
const std::string ExternalServerTechId = "ExternalServerTechId";
const std::string Failed = "Failed";
const std::string FilterMACConf = "FilterMACConf";
const std::string FlowletInfo = "FlowletInfo";
const std::string FlowletMessage = "FlowletMessage";
const std::string FlowletMiniTask = "FlowletMiniTask";
const std::string ForceTimeout = "ForceTimeout";
const std::string FrontServerAndGroup = "FrontServerAndGroup";
const std::string FrontServerAndGroupInDomain = "FrontServerAndGroupInDomain";
const std::string FrontServerController = "FrontServerController";
const std::string GBBlockSetting = "GBBlockSetting";
const std::string GBGlobalSetting = "GBGlobalSetting";
const std::string GBObjectHistory = "GBObjectHistory";
const std::string GBObjectRule = "GBObjectRule";
const std::string GBVariableRule = "GBVariableRule";
const std::string GenericSchema = "GenericSchema";
const std::string HostName = "HostName";
const std::string Interface = "Interface";
const std::string InterfaceCLog = "InterfaceCLog";
const std::string InterfaceSchema = "InterfaceSchema";
const std::string InterfaceType = "InterfaceType";
const std::string Ipv6_L3_Topo_Type = "Ipv6_L3_Topo_Type";
const std::string IsBuiltin = "IsBuiltin";
const std::string IsP2P = "IsP2P";
const std::string Jumpbox = "Jumpbox";
const std::string KXSystem = "KXSystem";
const std::string KXSystem_SystemSettings = "KXSystem.SystemSettings";
const std::string KXSystem_Tenant = "KXSystem.Tenant";
const std::string KXSystem_TenantConnection = "KXSystem.TenantConnection";
const std::string KXSystem_ThirdPartyAPIPlugin = "KXSystem.ThirdPartyAPIPlugin";
const std::string L2_Topo_Type = "L2_Topo_Type";
const std::string L2ConnectivityTable = "L2ConnectivityTable";
const std::string L2TopoBuildOption = "L2TopoBuildOption";
const std::string L2TopoBuildParams = "L2TopoBuildParams";
const std::string L3_Topo_Type = "L3_Topo_Type";
const std::string LastDevice = "LastDevice";
const std::string LastInterface = "LastInterface";
const std::string LastValidTopoLinkCLog = "LastValidTopoLinkCLog";
const std::string LiveHostName = "LiveHostName";
const std::string LiveSetting = "LiveSetting";
const std::string LiveStatus = "LiveStatus";
const std::string Locked = "Locked";
const std::string LockedTopoLink = "LockedTopoLink";
const std::string Logical_Topo_Type = "Logical_Topo_Type";
const std::string LoginPrompt = "LoginPrompt";
const std::string LoginScript = "LoginScript";
const std::string MacDevice = "MacDevice";
const std::string ManageIp = "ManageIp";
const std::string Media = "Media";
const std::string MediaType = "MediaType";
const std::string MemoryExpression = "MemoryExpression";
const std::string MissDevice = "MissDevice";
const std::string Monitor = "Monitor";
const std::string MonitorExeLog = "MonitorExeLog";
const std::string MonitorStatus = "MonitorStatus";
const std::string NCTProcedure = "NCTProcedure";
const std::string NetworkChangeMiniTask = "NetworkChangeMiniTask";
const std::string NetworkChangeMiniTaskResult = "NetworkChangeMiniTaskResult";
const std::string NetworkDefinition = "NetworkDefinition";
const std::string NetworkServer = "NetworkServer";
const std::string NewDevice = "NewDevice";
const std::string NonprivilegePrompt = "NonprivilegePrompt";
const std::string ObjectGroup = "ObjectGroup";
const std::string ODDeviceData = "ODDeviceData";
const std::string OneIPTable = "OneIPTable";
const std::string Opsec = "Opsec";
const std::string Option = "Option";
const std::string OuiInfo = "OuiInfo";
const std::string ParentDevice = "ParentDevice";
const std::string ParserPlugin = "ParserPlugin";
const std::string Parsers = "Parsers";
const std::string PasswordPrompt = "PasswordPrompt";
const std::string PathAnalysisProfile = "PathAnalysisProfile";
const std::string PathAnalysisSet = "PathAnalysisSet";
const std::string PathProcedure = "PathProcedure";
const std::string Picture = "Picture";
const std::string PingTraceMiniTaskResult = "PingTraceMiniTaskResult";
const std::string PrivateDeviceSetting = "PrivateDeviceSetting";
const std::string PrivateDeviceTuneResult = "PrivateDeviceTuneResult";
const std::string PrivateDeviceTuneResultCurr = "PrivateDeviceTuneResultCurr";
const std::string PrivateEnablePassword = "PrivateEnablePassword";
const std::string PrivateSSHPrivateKey = "PrivateSSHPrivateKey";
const std::string PrivateTelnetInfo = "PrivateTelnetInfo";
const std::string PrivateTuneTask = "PrivateTuneTask";
const std::string PrivilegePrompt = "PrivilegePrompt";
const std::string RetrieveLiveDataMiniTask = "RetrieveLiveDataMiniTask";
const std::string Running = "Running";
const std::string SDNDefinition = "SDNDefinition";
const std::string Site = "Site";
const std::string SiteMember = "SiteMember";
const std::string SnapshotDefinition = "SnapshotDefinition";
const std::string SnmpDevice = "SnmpDevice";
const std::string SnmpRoInfo = "SnmpRoInfo";
const std::string SNMPSetting = "SNMPSetting";
const std::string SpecialMultiLanMacs = "SpecialMultiLanMacs";
const std::string SSHCommand = "SSHCommand";
const std::string SSHKeyId = "SSHKeyId";
const std::string SSHPort = "SSHPort";
const std::string SSHPrivateKey = "SSHPrivateKey";
const std::string SubnetIpInterface = "SubnetIpInterface";
const std::string SubType = "SubType";
const std::string Succeeded = "Succeeded";
const std::string SystemObject = "SystemObject";
const std::string SystemObjectRelation = "SystemObjectRelation";
const std::string SystemVendorModel = "SystemVendorModel";
const std::string TechnologySpec = "TechnologySpec";
const std::string TelnetInfo = "TelnetInfo";
const std::string TelnetPort = "TelnetPort";
const std::string TelnetProxyId = "TelnetProxyId";
const std::string TempTopoLink = "TempTopoLink";
const std::string ThirdPartyAPIServer = "ThirdPartyAPIServer";
const std::string ThirdPartyDiscovery = "ThirdPartyDiscovery";
const std::string TopoLink = "TopoLink";
const std::string TopoLinkCLog = "TopoLinkCLog";
const std::string TopoLinkManual = "TopoLinkManual";
const std::string TopoLinkStatus = "TopoLinkStatus";
const std::string TopoLinkType = "TopoLinkType";
const std::string TopologyTableManageTable = "TopologyTableManageTable";
const std::string TuneTask = "TuneTask";
const std::string UnknownDevice = "UnknownDevice";
const std::string UnknownIp = "UnknownIp";
const std::string UseCustomizedManagementIp = "UseCustomizedManagementIp";
const std::string UserName = "UserName";
const std::string UserOperator = "UserOperator";
const std::string UserPassword = "UserPassword";
const std::string VariableMapping = "VariableMapping";
const std::string VariableMappingPriority = "VariableMappingPriority";
const std::string Version = "Version";
const std::string VisualSpaceInstance = "VisualSpaceInstance";
const std::string VPN_Topo_Type = "VPN_Topo_Type";
const std::vector<const std::string*> All = {
    &AccessMethod, &Activity, &ActivityDataTable, &ActivityLiveLog, &AnomalyDetectSetting,
    &ApplianceId, &BenchmarkDefinition, &BenchmarkSummaryLog, &BlockedTopoLink, &BorderLink,
    &CliMiniTask, &CliSetting, &CMLiveAccessOption, &CpuExpression, &CurrMacTable,
    &CustomizedManagementIp, &DataViewDefinition, &DataViewGroup, &DataViewTaskInfo,
    &DataViewTaskStorage, &DataViewTemplate, &DataViewTree, &DEData, &DEDataStatus,
    &DefaultDataViewTemplate, &DefaultDeviceDataView, &DEMetaData, &DEParsedStructure,
    &DesignReader, &DETaskGroup, &Device, &DeviceBenchmarkResult, &DeviceCLog, &DeviceData,
    &DeviceDataCurr, &DeviceDataFixup, &DeviceDataSource, &DeviceDiscoverResult, &DeviceGroup,
    &DeviceSchema, &DeviceSetting, &DeviceSpec, &DeviceToObjectGroup, &DeviceTuneResult,
    &DeviceTuneResultCurr, &DeviceType, &DotScan, &Driver, &DriverId, &DuplicatedIp, &EnablePasswd,
    &EnablePassword, &EnablePasswordPrompt, &EnableUsername, &EnableUsernameprompt,
    &EnpasswordPrompt, &Extension, &ExternalAPIServer, &ExternalServerId, &ExternalServers,
    &ExternalServerTechId, &Failed, &FilterMACConf, &FlowletInfo, &FlowletMessage,
    &FlowletMiniTask, &ForceTimeout, &FrontServerAndGroup, &FrontServerAndGroupInDomain,
    &FrontServerController, &GBBlockSetting, &GBGlobalSetting, &GBObjectHistory, &GBObjectRule,
    &GBVariableRule, &GenericSchema, &HostName, &Interface, &InterfaceCLog, &InterfaceSchema,
    &InterfaceType, &Ipv6_L3_Topo_Type, &IsBuiltin, &IsP2P, &Jumpbox, &KXSystem,
    &KXSystem_SystemSettings, &KXSystem_Tenant, &KXSystem_TenantConnection,
    &KXSystem_ThirdPartyAPIPlugin, &L2_Topo_Type, &L2ConnectivityTable, &L2TopoBuildOption,
    &L2TopoBuildParams, &L3_Topo_Type, &LastDevice, &LastInterface, &LastValidTopoLinkCLog,
    &LiveHostName, &LiveSetting, &LiveStatus, &Locked, &LockedTopoLink, &Logical_Topo_Type,
    &LoginPrompt, &LoginScript, &MacDevice, &ManageIp, &Media, &MediaType, &MemoryExpression,
    &MissDevice, &Monitor, &MonitorExeLog, &MonitorStatus, &NCTProcedure, &NetworkChangeMiniTask,
    &NetworkChangeMiniTaskResult, &NetworkDefinition, &NetworkServer, &NewDevice,
    &NonprivilegePrompt, &ObjectGroup, &ODDeviceData, &OneIPTable, &Opsec, &Option, &OuiInfo,
    &ParentDevice, &ParserPlugin, &Parsers, &PasswordPrompt, &PathAnalysisProfile,
    &PathAnalysisSet, &PathProcedure, &Picture, &PingTraceMiniTaskResult, &PrivateDeviceSetting,
    &PrivateDeviceTuneResult, &PrivateDeviceTuneResultCurr, &PrivateEnablePassword,
    &PrivateSSHPrivateKey, &PrivateTelnetInfo, &PrivateTuneTask, &PrivilegePrompt,
    &RetrieveLiveDataMiniTask, &Running, &SDNDefinition, &Site, &SiteMember, &SnapshotDefinition,
    &SnmpDevice, &SnmpRoInfo, &SNMPSetting, &SpecialMultiLanMacs, &SSHCommand, &SSHKeyId, &SSHPort,
    &SSHPrivateKey, &SubnetIpInterface, &SubType, &Succeeded, &SystemObject, &SystemObjectRelation,
    &SystemVendorModel, &TechnologySpec, &TelnetInfo, &TelnetPort, &TelnetProxyId, &TempTopoLink,
    &ThirdPartyAPIServer, &ThirdPartyDiscovery, &TopoLink, &TopoLinkCLog, &TopoLinkManual,
    &TopoLinkStatus, &TopoLinkType, &TopologyTableManageTable, &TuneTask, &UnknownDevice,
    &UnknownIp, &UseCustomizedManagementIp, &UserName, &UserOperator, &UserPassword,
    &VariableMapping, &VariableMappingPriority, &Version, &VisualSpaceInstance, &VPN_Topo_Type
};
}  // namespace collection

namespace op {
const std::string currentDate = "$currentDate";
const std::string elemMatch = "$elemMatch";
const std::string exists = "$exists";
const std::string gt = "$gt";
const std::string gte = "$gte";
const std::string in = "$in";
const std::string inc = "$inc";
const std::string limit = "$limit";
const std::string lt = "$lt";
const std::string lte = "$lte";
const std::string match = "$match";
const std::string ne = "$ne";
const std::string OID = "$OID";
const std::string OPTION = "$OPTION";
const std::string or_ = "$or";
const std::string pull = "$pull";
const std::string pullAll = "$pullAll";
const std::string push = "$push";
const std::string pushAll = "$pushAll";
const std::string REGEX = "$REGEX";
const std::string set = "$set";
const std::string size = "$size";
const std::string sort = "$sort";
const std::string unwind = "$unwind";
const std::vector<const std::string*> All = {
    &currentDate, &elemMatch, &exists, &gt, &gte, &in, &inc, &limit, &lt, &lte, &match, &ne, &OID,
    &OPTION, &or_, &pull, &pullAll, &push, &pushAll, &REGEX, &set, &size, &sort, &unwind
};
}  // namespace op

namespace field {
const std::string sep = "__sep__";
const std::string _id = "_id";
const std::string accessOption = "accessOption";
const std::string accessOrder = "accessOrder";
const std::string accessVLAN = "accessVLAN";
const std::string aclList = "aclList";
const std::string action = "action";
const std::string actionPriority = "actionPriority";
const std::string actionResult = "actionResult";
const std::string actions = "actions";
const std::string actionSource = "actionSource";
const std::string actionTime = "actionTime";
const std::string actionUser = "actionUser";
const std::string additionalProcess = "additionalProcess";
const std::string admin = "admin";
const std::string aesKey = "aesKey";
const std::string alert = "alert";
const std::string alertId = "alertId";
const std::string alertName = "alertName";
const std::string alertSetting = "alertSetting";
const std::string alias = "alias";
const std::string alogid = "alogid";
const std::string alsertShare = "alsertShare";
const std::string apiServerName = "apiServerName";
const std::string appId = "appId";
const std::string applyProfileId = "applyProfileId";
const std::string applyProfileName = "applyProfileName";
const std::string applySet = "applySet";
const std::string applyTo = "applyTo";
const std::string apps = "apps";
const std::string appStatus = "appStatus";
const std::string arpTable = "arpTable";
const std::string arpTableOrig = "arpTableOrig";
const std::string asNum = "asNum";
const std::string asNumber = "asNumber";
const std::string assetTag = "assetTag";
const std::string associatedKey = "associatedKey";
const std::string associatedSchema = "associatedSchema";
const std::string authencation = "authencation";
const std::string authMode = "authMode";
const std::string author = "author";
const std::string authPassword = "authPassword";
const std::string authPro = "authPro";
const std::string autoUpdate = "autoUpdate";
const std::string bandwidth = "bandwidth";
const std::string beginTime = "beginTime";
const std::string belongedVlans = "belongedVlans";
const std::string belongToTopoType = "belongToTopoType";
const std::string benchmarks = "benchmarks";
const std::string bgpNbr = "bgpNbr";
const std::string bgpNbrTable = "bgpNbrTable";
const std::string bgpNbrTableOrig = "bgpNbrTableOrig";
const std::string bgpNeighbor = "bgpNeighbor";
const std::string bModified = "bModified";
const std::string bMplsIgnoreVrfIf = "bMplsIgnoreVrfIf";
const std::string borderLink = "borderLink";
const std::string buildVisualSpaceDataMethod = "buildVisualSpaceDataMethod";
const std::string bv = "bv";
const std::string cache = "cache";
const std::string cacheDataLiveTime = "cacheDataLiveTime";
const std::string cacheDataMatchItems = "cacheDataMatchItems";
const std::string cacheDataPath = "cacheDataPath";
const std::string callmngr_ipphone = "callmngr_ipphone";
const std::string cdpTable = "cdpTable";
const std::string cdpTableOrig = "cdpTableOrig";
const std::string ceIfVpn = "ceIfVpn";
const std::string ceIntfIP = "ceIntfIP";
const std::string ceIntfName = "ceIntfName";
const std::string ceName = "ceName";
const std::string ceNbrs = "ceNbrs";
const std::string certVerification = "certVerification";
const std::string ceVpn = "ceVpn";
const std::string channelGroup = "channelGroup";
const std::string channelGroupMode = "channelGroupMode";
const std::string channelList = "channelList";
const std::string checkedObjs = "checkedObjs";
const std::string checkTime = "checkTime";
const std::string children = "children";
const std::string cli = "cli";
const std::string cliMode = "cliMode";
const std::string cliPort = "cliPort";
const std::string cliTimeout = "cliTimeout";
const std::string cliType = "cliType";
const std::string command = "command";
const std::string commandDebug = "commandDebug";
const std::string commandPrompt = "commandPrompt";
const std::string commandSize = "commandSize";
const std::string condition = "condition";
const std::string config = "config";
const std::string configFromCLI = "configFromCLI";
const std::string configLet = "configLet";
const std::string configOrder = "configOrder";
const std::string configParser = "configParser";
const std::string configPrompt = "configPrompt";
const std::string contact = "contact";
const std::string contactName = "contactName";
const std::string content = "content";
const std::string contentType = "contentType";
const std::string contextName = "contextName";
const std::string counter = "counter";
const std::string cpuOID = "cpuOID";
const std::string createdBy = "createdBy";
const std::string createdMethod = "createdMethod";
const std::string creator = "creator";
const std::string ctime = "ctime";
const std::string cu = "cu";
const std::string customerAttr = "customerAttr";
const std::string cv = "cv";
const std::string dataEntries = "dataEntries";
const std::string dataFlag = "dataFlag";
const std::string dataFolderId = "dataFolderId";
const std::string dataFolderName = "dataFolderName";
const std::string dataFolderToRun = "dataFolderToRun";
const std::string dataSize = "dataSize";
const std::string dataSource = "dataSource";
const std::string dataSourceId = "dataSourceId";
const std::string dataSourceType = "dataSourceType";
const std::string dataTables = "dataTables";
const std::string dataViewFolder = "dataViewFolder";
const std::string dataViewGroupName = "dataViewGroupName";
const std::string dataViewMapping = "dataViewMapping";
const std::string dataViewOption = "dataViewOption";
const std::string dataViewSetting = "dataViewSetting";
const std::string dbName = "dbName";
const std::string def = "def";
const std::string delay = "delay";
const std::string delaySessionLiveTime = "delaySessionLiveTime";
const std::string desc = "desc";
const std::string descr = "descr";
const std::string description = "description";
const std::string designatedCredentials = "designatedCredentials";
const std::string destDevice = "destDevice";
const std::string destPort = "destPort";
const std::string destType = "destType";
const std::string devCount = "devCount";
const std::string deviceCount = "deviceCount";
const std::string deviceGroupId = "deviceGroupId";
const std::string deviceId = "deviceId";
const std::string deviceInfo = "deviceInfo";
const std::string deviceList = "deviceList";
const std::string deviceName = "deviceName";
const std::string devices = "devices";
const std::string devicesetting = "devicesetting";
const std::string deviceType = "deviceType";
const std::string devId = "devId";
const std::string devIds = "devIds";
const std::string devName = "devName";
const std::string devNameExp = "devNameExp";
const std::string devScope = "devScope";
const std::string devSubType = "devSubType";
const std::string devType = "devType";
const std::string devTypeName = "devTypeName";
const std::string devTypes = "devTypes";
const std::string discoverIp = "discoverIp";
const std::string discoverMethod = "discoverMethod";
const std::string discoverOption = "discoverOption";
const std::string discoverTask = "discoverTask";
const std::string discoverThread = "discoverThread";
const std::string discoveryCount = "discoveryCount";
const std::string displayedTableType = "displayedTableType";
const std::string displayname = "displayname";
const std::string displayName = "displayName";
const std::string dns = "dns";
const std::string domain = "domain";
const std::string domainId = "domainId";
const std::string domains = "domains";
const std::string doNotScanType = "doNotScanType";
const std::string driver = "driver";
const std::string driverId = "driverId";
const std::string driverID = "driverID";
const std::string driverIds = "driverIds";
const std::string driverName = "driverName";
const std::string duplex = "duplex";
const std::string edgeSchema = "edgeSchema";
const std::string edgeSchemaDataView = "edgeSchemaDataView";
const std::string edgeTypes = "edgeTypes";
const std::string email = "email";
const std::string emailSetting = "emailSetting";
const std::string employeeNumber = "employeeNumber";
const std::string enable = "enable";
const std::string enableCmd = "enableCmd";
const std::string enablePassword = "enablePassword";
const std::string enablePasswordPrompt = "enablePasswordPrompt";
const std::string enablePasswordPrompts = "enablePasswordPrompts";
const std::string enablePrompt = "enablePrompt";
const std::string enableUserName = "enableUserName";
const std::string enableUserNamePrompt = "enableUserNamePrompt";
const std::string enableUserNamePrompts = "enableUserNamePrompts";
const std::string encapType = "encapType";
const std::string encryptPassword = "encryptPassword";
const std::string encryptPro = "encryptPro";
const std::string encryptType = "encryptType";
const std::string encryptUserName = "encryptUserName";
const std::string end = "end";
const std::string endpoint = "endpoint";
const std::string endpoints = "endpoints";
const std::string endTime = "endTime";
const std::string error = "error";
const std::string excludeDriverIds = "excludeDriverIds";
const std::string excludeVlanRanges = "excludeVlanRanges";
const std::string exitTime = "exitTime";
const std::string exitTimeout = "exitTimeout";
const std::string export_ = "export";
const std::string extentedParser = "extentedParser";
const std::string extraData = "extraData";
const std::string extraId = "extraId";
const std::string extraOptions = "extraOptions";
const std::string extraParams = "extraParams";
const std::string fileId = "fileId";
const std::string fileName = "fileName";
const std::string filename = "filename";
const std::string filter = "filter";
const std::string filteredPlace = "filteredPlace";
const std::string flag = "flag";
const std::string flowletContent = "flowletContent";
const std::string flowletId = "flowletId";
const std::string flowletJson = "flowletJson";
const std::string flowletList = "flowletList";
const std::string flowletName = "flowletName";
const std::string folderFilter = "folderFilter";
const std::string forceTime = "forceTime";
const std::string frame_relay = "frame_relay";
const std::string frame_relay_ietf = "frame_relay_ietf";
const std::string frequency = "frequency";
const std::string fromDevId = "fromDevId";
const std::string fromDevName = "fromDevName";
const std::string fromedge = "fromedge";
const std::string fromIp = "fromIp";
const std::string fromIpMask = "fromIpMask";
const std::string frontServerAndGroupId = "frontServerAndGroupId";
const std::string ftime = "ftime";
const std::string fullName = "fullName";
const std::string functionName = "functionName";
const std::string fwrev = "fwrev";
const std::string gateway = "gateway";
const std::string gbData = "gbData";
const std::string generalApiResponseMethod = "generalApiResponseMethod";
const std::string group = "group";
const std::string guid = "guid";
const std::string hasBGPConfig = "hasBGPConfig";
const std::string hasCLog = "hasCLog";
const std::string hasEIGRPConfig = "hasEIGRPConfig";
const std::string hasISISConfig = "hasISISConfig";
const std::string hasIssue = "hasIssue";
const std::string hasMac = "hasMac";
const std::string hasMacAddr = "hasMacAddr";
const std::string hasMulticastConfig = "hasMulticastConfig";
const std::string hasOSPFConfig = "hasOSPFConfig";
const std::string hostname = "hostname";
const std::string hour = "hour";
const std::string hsrp = "hsrp";
const std::string hwrev = "hwrev";
const std::string iconPath = "iconPath";
const std::string icons = "icons";
const std::string id = "id";
const std::string ids = "ids";
const std::string ifId = "ifId";
const std::string ifname = "ifname";
const std::string import = "import";
const std::string inAclName = "inAclName";
const std::string index = "index";
const std::string inputTable = "inputTable";
const std::string interfaceInfo = "interfaceInfo";
const std::string interfaceName = "interfaceName";
const std::string intfDesc = "intfDesc";
const std::string intfId = "intfId";
const std::string intfName = "intfName";
const std::string intfOrder = "intfOrder";
const std::string intfs = "intfs";
const std::string intfSchema = "intfSchema";
const std::string intfStatus = "intfStatus";
const std::string intfValue = "intfValue";
const std::string invalidCommandKey = "invalidCommandKey";
const std::string ip = "ip";
const std::string ipAddr = "ipAddr";
const std::string ipAddrRange = "ipAddrRange";
const std::string ipCount = "ipCount";
const std::string ipfrom = "ipfrom";
const std::string ipLoc = "ipLoc";
const std::string ipOrHostname = "ipOrHostname";
const std::string ipphone_callmngr = "ipphone_callmngr";
const std::string ipphone_num = "ipphone_num";
const std::string ipphone_switch = "ipphone_switch";
const std::string ips = "ips";
const std::string ipsla = "ipsla";
const std::string ipslacmds = "ipslacmds";
const std::string ipSrc = "ipSrc";
const std::string ipUnnumbered = "ipUnnumbered";
const std::string ipUnnumberedIp = "ipUnnumberedIp";
const std::string isBlocked = "isBlocked";
const std::string isBroadcast = "isBroadcast";
const std::string isbuildin = "isbuildin";
const std::string isChannel = "isChannel";
const std::string isCheckCli = "isCheckCli";
const std::string isCheckCliEnable = "isCheckCliEnable";
const std::string isCheckPing = "isCheckPing";
const std::string isCheckSnmp = "isCheckSnmp";
const std::string isCompare = "isCompare";
const std::string isCompareKey = "isCompareKey";
const std::string isCurrentUsed = "isCurrentUsed";
const std::string isDefault = "isDefault";
const std::string isDeleted = "isDeleted";
const std::string isDirectRtn = "isDirectRtn";
const std::string isdisplay = "isdisplay";
const std::string isdysearch = "isdysearch";
const std::string isEnable = "isEnable";
const std::string isEnabled = "isEnabled";
const std::string isEncryptUsername = "isEncryptUsername";
const std::string isExclude = "isExclude";
const std::string isExcludeLastResultSucceeded = "isExcludeLastResultSucceeded";
const std::string isFinished = "isFinished";
const std::string isfullsearch = "isfullsearch";
const std::string isHiden = "isHiden";
const std::string isIntf = "isIntf";
const std::string isIPAccouting = "isIPAccouting";
const std::string isIPSLA = "isIPSLA";
const std::string isIPUnnumberedIntf = "isIPUnnumberedIntf";
const std::string iskey = "iskey";
const std::string isL2Intf = "isL2Intf";
const std::string isL2TopoIntf = "isL2TopoIntf";
const std::string isLanIntf = "isLanIntf";
const std::string isLocalbenchmark = "isLocalbenchmark";
const std::string isLocalTune = "isLocalTune";
const std::string isLockdownMember = "isLockdownMember";
const std::string isLocked = "isLocked";
const std::string isLoopback = "isLoopback";
const std::string isManageIntf = "isManageIntf";
const std::string isMgmtIntf = "isMgmtIntf";
const std::string isMulticastRouting = "isMulticastRouting";
const std::string isMultipoint = "isMultipoint";
const std::string isNct = "isNct";
const std::string isNetflow = "isNetflow";
const std::string isPermanent = "isPermanent";
const std::string isPhantomInterface = "isPhantomInterface";
const std::string isRegx = "isRegx";
const std::string isRetrieveLegacy = "isRetrieveLegacy";
const std::string isRetrieveSDN = "isRetrieveSDN";
const std::string isRunOnce = "isRunOnce";
const std::string isSaveReceivedData = "isSaveReceivedData";
const std::string isSendCallBack = "isSendCallBack";
const std::string isSendSSH = "isSendSSH";
const std::string isSerial = "isSerial";
const std::string isShutdown = "isShutdown";
const std::string isSNMPConfig = "isSNMPConfig";
const std::string isStandaloneTable = "isStandaloneTable";
const std::string isStopByUser = "isStopByUser";
const std::string isSubIntf = "isSubIntf";
const std::string isSystem = "isSystem";
const std::string isTagSwitchingIp = "isTagSwitchingIp";
const std::string isTuneSet = "isTuneSet";
const std::string isTunnel = "isTunnel";
const std::string isTunnelMultipoint = "isTunnelMultipoint";
const std::string isVirtualIntf = "isVirtualIntf";
const std::string isVisible = "isVisible";
const std::string isVlanIntf = "isVlanIntf";
const std::string isWan = "isWan";
const std::string isWanIntf = "isWanIntf";
const std::string jobId = "jobId";
const std::string key = "key";
const std::string keyContent = "keyContent";
const std::string keyName = "keyName";
const std::string keyValues = "keyValues";
const std::string lanSegment = "lanSegment";
const std::string layer = "layer";
const std::string length = "length";
const std::string level = "level";
const std::string limitRunMins = "limitRunMins";
const std::string link = "link";
const std::string links = "links";
const std::string linkType = "linkType";
const std::string linkTypeFlag = "linkTypeFlag";
const std::string liveDataColl = "liveDataColl";
const std::string liveDataConnSetting = "liveDataConnSetting";
const std::string liveHostname = "liveHostname";
const std::string loc = "loc";
const std::string localAsNum = "localAsNum";
const std::string localDevId = "localDevId";
const std::string localIntfId = "localIntfId";
const std::string localIntfName = "localIntfName";
const std::string localIntfSchema = "localIntfSchema";
const std::string localTech = "localTech";
const std::string location = "location";
const std::string lockedByUser = "lockedByUser";
const std::string lockedTime = "lockedTime";
const std::string log = "log";
const std::string login = "login";
const std::string loginPrompt = "loginPrompt";
const std::string logs = "logs";
const std::string logTime = "logTime";
const std::string lu = "lu";
const std::string lwap_defaultGW = "lwap_defaultGW";
const std::string lwap_group = "lwap_group";
const std::string lwap_platform = "lwap_platform";
const std::string lwap_priCntrllr = "lwap_priCntrllr";
const std::string lwap_secCntrllr = "lwap_secCntrllr";
const std::string mac = "mac";
const std::string mac1 = "mac1";
const std::string mac2 = "mac2";
const std::string macAddr = "macAddr";
const std::string macTable = "macTable";
const std::string macTableOrig = "macTableOrig";
const std::string mainType = "mainType";
const std::string mainTypeName = "mainTypeName";
const std::string mapId = "mapId";
const std::string mapInfo = "mapInfo";
const std::string mapPageId = "mapPageId";
const std::string maskLen = "maskLen";
const std::string maxConnectionOfDevice = "maxConnectionOfDevice";
const std::string maxConnectionViaCLI = "maxConnectionViaCLI";
const std::string maxConnectionViaJumpbox = "maxConnectionViaJumpbox";
const std::string maxDeviceCount = "maxDeviceCount";
const std::string md5 = "md5";
const std::string md5KeyContent = "md5KeyContent";
const std::string mediaId = "mediaId";
const std::string medianame = "medianame";
const std::string mem = "mem";
const std::string memOID = "memOID";
const std::string message = "message";
const std::string method = "method";
const std::string mgmt = "mgmt";
const std::string mgmtIntf = "mgmtIntf";
const std::string mgmtIP = "mgmtIP";
const std::string mgmtMAC = "mgmtMAC";
const std::string mgrIntf = "mgrIntf";
const std::string mgrIp = "mgrIp";
const std::string mgrIpStyle = "mgrIpStyle";
const std::string mibIndex = "mibIndex";
const std::string min = "min";
const std::string miniTaskId = "miniTaskId";
const std::string miniTaskName = "miniTaskName";
const std::string miniTaskType = "miniTaskType";
const std::string mode = "mode";
const std::string model = "model";
const std::string modelName = "modelName";
const std::string modified = "modified";
const std::string moduleName = "moduleName";
const std::string modules = "modules";
const std::string moduleSlot = "moduleSlot";
const std::string moduleType = "moduleType";
const std::string monItems = "monItems";
const std::string morePrompt = "morePrompt";
const std::string mpls_accessPnt = "mpls_accessPnt";
const std::string mpls_asNum = "mpls_asNum";
const std::string mpls_update = "mpls_update";
const std::string mplsVpn = "mplsVpn";
const std::string mplsVrf = "mplsVrf";
const std::string mplsVrfNames = "mplsVrfNames";
const std::string msg = "msg";
const std::string msgType = "msgType";
const std::string mtu = "mtu";
const std::string multicastMode = "multicastMode";
const std::string multiSources = "multiSources";
const std::string mustDoDevIds = "mustDoDevIds";
const std::string name = "name";
const std::string nameTemplate = "nameTemplate";
const std::string napLoginPrompt = "napLoginPrompt";
const std::string napPassword = "napPassword";
const std::string napPasswordPrompt = "napPasswordPrompt";
const std::string napPrompt = "napPrompt";
const std::string napRefCount = "napRefCount";
const std::string napUser = "napUser";
const std::string napUserName = "napUserName";
const std::string nbrDevId = "nbrDevId";
const std::string nbrIntfId = "nbrIntfId";
const std::string nbrIntfName = "nbrIntfName";
const std::string nbrIntfSchema = "nbrIntfSchema";
const std::string nbrTech = "nbrTech";
const std::string ncts = "ncts";
const std::string nctTable = "nctTable";
const std::string nctTableFixupDown = "nctTableFixupDown";
const std::string nctTableFixupUp = "nctTableFixupUp";
const std::string nctTableOrig = "nctTableOrig";
const std::string neighborIp = "neighborIp";
const std::string netFlow = "netFlow";
const std::string networkCluster = "networkCluster";
const std::string networkServer = "networkServer";
const std::string networksetting = "networksetting";
const std::string networkSize = "networkSize";
const std::string nodeName = "nodeName";
const std::string nodeSize = "nodeSize";
const std::string nodeType = "nodeType";
const std::string nonPrivilegePrompt = "nonPrivilegePrompt";
const std::string nonprivilegePrompts = "nonprivilegePrompts";
const std::string nsPoll = "nsPoll";
const std::string nsPort = "nsPort";
const std::string num = "num";
const std::string objectGroupId = "objectGroupId";
const std::string objectGroupName = "objectGroupName";
const std::string objectId = "objectId";
const std::string oid = "oid";
const std::string onePageCmd = "onePageCmd";
const std::string onlyJumpbox = "onlyJumpbox";
const std::string onlyUseCli = "onlyUseCli";
const std::string op = "op";
const std::string operateInfo = "operateInfo";
const std::string operateTime = "operateTime";
const std::string operateUserName = "operateUserName";
const std::string opTime = "opTime";
const std::string option = "option";
const std::string opUser = "opUser";
const std::string opUserId = "opUserId";
const std::string order = "order";
const std::string originalFullName = "originalFullName";
const std::string outAclName = "outAclName";
const std::string page = "page";
const std::string pageCount = "pageCount";
const std::string parentId = "parentId";
const std::string parentIntf = "parentIntf";
const std::string parentPath = "parentPath";
const std::string parentVlan = "parentVlan";
const std::string parser = "parser";
const std::string password = "password";
const std::string passwordInterval = "passwordInterval";
const std::string passwordPhrase = "passwordPhrase";
const std::string passwordPrompt = "passwordPrompt";
const std::string passwordPrompts = "passwordPrompts";
const std::string path = "path";
const std::string peIp = "peIp";
const std::string permitVLAN = "permitVLAN";
const std::string phoneNumber = "phoneNumber";
const std::string ping = "ping";
const std::string pingRetryTimes = "pingRetryTimes";
const std::string pingTimeout = "pingTimeout";
const std::string pluginFile = "pluginFile";
const std::string pluginFileId = "pluginFileId";
const std::string pluginName = "pluginName";
const std::string pluginType = "pluginType";
const std::string pollingOrder = "pollingOrder";
const std::string port = "port";
const std::string portId1 = "portId1";
const std::string portId2 = "portId2";
const std::string portName = "portName";
const std::string ports = "ports";
const std::string possibleNames = "possibleNames";
const std::string priority = "priority";
const std::string privilegePassword = "privilegePassword";
const std::string privilegePrompt = "privilegePrompt";
const std::string privilegePrompts = "privilegePrompts";
const std::string privilegeUsername = "privilegeUsername";
const std::string profiles = "profiles";
const std::string progress = "progress";
const std::string proxyExit = "proxyExit";
const std::string proxyInfo = "proxyInfo";
const std::string proxyServer = "proxyServer";
const std::string proxyServerList = "proxyServerList";
const std::string proxyServerTimeout = "proxyServerTimeout";
const std::string pyScript = "pyScript";
const std::string pythonDebug = "pythonDebug";
const std::string pythonScript = "pythonScript";
const std::string quitCmd = "quitCmd";
const std::string rd = "rd";
const std::string redundantIps = "redundantIps";
const std::string refCount = "refCount";
const std::string region = "region";
const std::string reinitPython = "reinitPython";
const std::string remind = "remind";
const std::string remoteAsNum = "remoteAsNum";
const std::string replicaSet = "replicaSet";
const std::string retrieveData = "retrieveData";
const std::string retrievedTime = "retrievedTime";
const std::string retrieveItems = "retrieveItems";
const std::string retrieveOption = "retrieveOption";
const std::string retrieveParam = "retrieveParam";
const std::string retrieveRTMaxNumber = "retrieveRTMaxNumber";
const std::string retrieveThread = "retrieveThread";
const std::string retriRTMaxNum = "retriRTMaxNum";
const std::string rootSchema = "rootSchema";
const std::string roString = "roString";
const std::string routeProtocol = "routeProtocol";
const std::string routeTable = "routeTable";
const std::string routeTableFixupDown = "routeTableFixupDown";
const std::string routeTableFixupUp = "routeTableFixupUp";
const std::string routeTableOrig = "routeTableOrig";
const std::string routingProtocol = "routingProtocol";
const std::string routingTable = "routingTable";
const std::string rTable = "rTable";
const std::string runFlowletModel = "runFlowletModel";
const std::string runOption = "runOption";
const std::string rwString = "rwString";
const std::string said = "said";
const std::string saveAsType = "saveAsType";
const std::string saveCacheData = "saveCacheData";
const std::string saveCount = "saveCount";
const std::string saveTelnet = "saveTelnet";
const std::string scanThread = "scanThread";
const std::string schedule = "schedule";
const std::string schema = "schema";
const std::string scope = "scope";
const std::string scopeRange = "scopeRange";
const std::string scopeType = "scopeType";
const std::string scriptContent = "scriptContent";
const std::string sdnData = "sdnData";
const std::string sdnScope = "sdnScope";
const std::string searchType = "searchType";
const std::string sec = "sec";
const std::string sequnce = "sequnce";
const std::string servers = "servers";
const std::string serverStyle = "serverStyle";
const std::string serverType = "serverType";
const std::string serverTypeId = "serverTypeId";
const std::string sessionId = "sessionId";
const std::string shortName = "shortName";
const std::string showArpCmd = "showArpCmd";
const std::string showCamCmd = "showCamCmd";
const std::string showCdpCmd = "showCdpCmd";
const std::string showColor = "showColor";
const std::string showCommand = "showCommand";
const std::string showCommandThread = "showCommandThread";
const std::string showIPRouteCmd = "showIPRouteCmd";
const std::string showRouteCountCmd = "showRouteCountCmd";
const std::string showRunCmd = "showRunCmd";
const std::string site = "site";
const std::string siteCategory = "siteCategory";
const std::string siteId = "siteId";
const std::string sn = "sn";
const std::string snapshotID = "snapshotID";
const std::string snmp = "snmp";
const std::string snmpCommunityString = "snmpCommunityString";
const std::string snmpFailedPing = "snmpFailedPing";
const std::string snmpIfPingFailed = "snmpIfPingFailed";
const std::string snmpName = "snmpName";
const std::string snmpPort = "snmpPort";
const std::string snmpPro = "snmpPro";
const std::string snmpRo = "snmpRo";
const std::string snmpTimeout = "snmpTimeout";
const std::string snmpVersion = "snmpVersion";
const std::string source = "source";
const std::string sourceDataId = "sourceDataId";
const std::string sourceDevice = "sourceDevice";
const std::string sourceDeviceId = "sourceDeviceId";
const std::string sourceId = "sourceId";
const std::string sourcePort = "sourcePort";
const std::string sourceType = "sourceType";
const std::string specialCommand = "specialCommand";
const std::string specId = "specId";
const std::string speed = "speed";
const std::string spendSecond = "spendSecond";
const std::string srcType = "srcType";
const std::string sshCount = "sshCount";
const std::string sshFromRouter = "sshFromRouter";
const std::string sshKeyID = "sshKeyID";
const std::string ssl = "ssl";
const std::string start = "start";
const std::string startPlace = "startPlace";
const std::string startTime = "startTime";
const std::string status = "status";
const std::string stpCmd = "stpCmd";
const std::string stpTable = "stpTable";
const std::string stpTableOrig = "stpTableOrig";
const std::string stream = "stream";
const std::string strValue = "strValue";
const std::string subName = "subName";
const std::string subnet = "subnet";
const std::string subnets = "subnets";
const std::string subscribeTime = "subscribeTime";
const std::string subType = "subType";
const std::string subtype = "subtype";
const std::string subTypeName = "subTypeName";
const std::string subTypes = "subTypes";
const std::string summary = "summary";
const std::string switchGroup = "switchGroup";
const std::string switchId1 = "switchId1";
const std::string switchId2 = "switchId2";
const std::string switchName = "switchName";
const std::string switchType = "switchType";
const std::string swrev = "swrev";
const std::string tableDisplayName = "tableDisplayName";
const std::string tableInput = "tableInput";
const std::string tableName = "tableName";
const std::string tableRow = "tableRow";
const std::string taskId = "taskId";
const std::string taskInfo = "taskInfo";
const std::string taskParam = "taskParam";
const std::string tcpConnect = "tcpConnect";
const std::string telnetCommand = "telnetCommand";
const std::string telnetCount = "telnetCount";
const std::string telnetIfPingFailed = "telnetIfPingFailed";
const std::string telnetPort = "telnetPort";
const std::string telnetSSH = "telnetSSH";
const std::string tenantConnSetting = "tenantConnSetting";
const std::string thirdApi = "thirdApi";
const std::string thirdApiInfo = "thirdApiInfo";
const std::string threshold = "threshold";
const std::string time = "time";
const std::string timeFilter = "timeFilter";
const std::string timeOut = "timeOut";
const std::string timeout = "timeout";
const std::string timepoint = "timepoint";
const std::string times = "times";
const std::string timeSpan = "timeSpan";
const std::string toConfigCmd = "toConfigCmd";
const std::string toedge = "toedge";
const std::string toEnableCmd = "toEnableCmd";
const std::string topoTableName = "topoTableName";
const std::string topoType = "topoType";
const std::string traceTimeout = "traceTimeout";
const std::string trunkEncapsulation = "trunkEncapsulation";
const std::string trunkNativeVlan = "trunkNativeVlan";
const std::string tuneState = "tuneState";
const std::string tuneThread = "tuneThread";
const std::string tunnelSourceIntf = "tunnelSourceIntf";
const std::string twId = "twId";
const std::string twPathSchema = "twPathSchema";
const std::string twPathValue = "twPathValue";
const std::string type = "type";
const std::string typeName = "typeName";
const std::string unifName = "unifName";
const std::string uniName = "uniName";
const std::string uniqueName = "uniqueName";
const std::string unit = "unit";
const std::string unknownType = "unknownType";
const std::string upateTime = "upateTime";
const std::string updateTime = "updateTime";
const std::string updateToBaseline = "updateToBaseline";
const std::string updateToBeseline = "updateToBeseline";
const std::string uploadDate = "uploadDate";
const std::string useCacheDataTime = "useCacheDataTime";
const std::string useLocal = "useLocal";
const std::string user = "user";
const std::string usercanmodify = "usercanmodify";
const std::string userFlag = "userFlag";
const std::string userId = "userId";
const std::string userName = "userName";
const std::string username = "username";
const std::string userNamePrompt = "userNamePrompt";
const std::string userPrompts = "userPrompts";
const std::string useSSL = "useSSL";
const std::string v3 = "v3";
const std::string value = "value";
const std::string varHtml = "varHtml";
const std::string vdcList = "vdcList";
const std::string vendor = "vendor";
const std::string vendorName = "vendorName";
const std::string ver = "ver";
const std::string version = "version";
const std::string viaSnmp = "viaSnmp";
const std::string visibleIntfs = "visibleIntfs";
const std::string vlan = "vlan";
const std::string vlanRanges = "vlanRanges";
const std::string voiceVlan = "voiceVlan";
const std::string vpc = "vpc";
const std::string vpn = "vpn";
const std::string vpnName = "vpnName";
const std::string vrf = "vrf";
const std::string vrfStr = "vrfStr";
const std::string vt = "vt";
const std::string waitTime = "waitTime";
const std::string warning = "warning";
const std::string wlc_priLwap = "wlc_priLwap";
const std::string wlc_secLwap = "wlc_secLwap";
const std::string writeLog = "writeLog";
const std::string xMap = "xMap";
const std::string yesNoPrompt = "yesNoPrompt";
const std::string zipContent = "zipContent";
const std::string zone = "zone";
const std::string zoneType = "zoneType";
const std::vector<const std::string*> All = {
    &sep, &_id, &accessOption, &accessOrder, &accessVLAN, &aclList, &action, &actionPriority,
    &actionResult, &actions, &actionSource, &actionTime, &actionUser, &additionalProcess, &admin,
    &aesKey, &alert, &alertId, &alertName, &alertSetting, &alias, &alogid, &alsertShare,
    &apiServerName, &appId, &applyProfileId, &applyProfileName, &applySet, &applyTo, &apps,
    &appStatus, &arpTable, &arpTableOrig, &asNum, &asNumber, &assetTag, &associatedKey,
    &associatedSchema, &authencation, &authMode, &author, &authPassword, &authPro, &autoUpdate,
    &bandwidth, &beginTime, &belongedVlans, &belongToTopoType, &benchmarks, &bgpNbr, &bgpNbrTable,
    &bgpNbrTableOrig, &bgpNeighbor, &bModified, &bMplsIgnoreVrfIf, &borderLink,
    &buildVisualSpaceDataMethod, &bv, &cache, &cacheDataLiveTime, &cacheDataMatchItems,
    &cacheDataPath, &callmngr_ipphone, &cdpTable, &cdpTableOrig, &ceIfVpn, &ceIntfIP, &ceIntfName,
    &ceName, &ceNbrs, &certVerification, &ceVpn, &channelGroup, &channelGroupMode, &channelList,
    &checkedObjs, &checkTime, &children, &cli, &cliMode, &cliPort, &cliTimeout, &cliType, &command,
    &commandDebug, &commandPrompt, &commandSize, &condition, &config, &configFromCLI, &configLet,
    &configOrder, &configParser, &configPrompt, &contact, &contactName, &content, &contentType,
    &contextName, &counter, &cpuOID, &createdBy, &createdMethod, &creator, &ctime, &cu,
    &customerAttr, &cv, &dataEntries, &dataFlag, &dataFolderId, &dataFolderName, &dataFolderToRun,
    &dataSize, &dataSource, &dataSourceId, &dataSourceType, &dataTables, &dataViewFolder,
    &dataViewGroupName, &dataViewMapping, &dataViewOption, &dataViewSetting, &dbName, &def, &delay,
    &delaySessionLiveTime, &desc, &descr, &description, &designatedCredentials, &destDevice,
    &destPort, &destType, &devCount, &deviceCount, &deviceGroupId, &deviceId, &deviceInfo,
    &deviceList, &deviceName, &devices, &devicesetting, &deviceType, &devId, &devIds, &devName,
    &devNameExp, &devScope, &devSubType, &devType, &devTypeName, &devTypes, &discoverIp,
    &discoverMethod, &discoverOption, &discoverTask, &discoverThread, &discoveryCount,
    &displayedTableType, &displayname, &displayName, &dns, &domain, &domainId, &domains,
    &doNotScanType, &driver, &driverId, &driverID, &driverIds, &driverName, &duplex, &edgeSchema,
    &edgeSchemaDataView, &edgeTypes, &email, &emailSetting, &employeeNumber, &enable, &enableCmd,
    &enablePassword, &enablePasswordPrompt, &enablePasswordPrompts, &enablePrompt, &enableUserName,
    &enableUserNamePrompt, &enableUserNamePrompts, &encapType, &encryptPassword, &encryptPro,
    &encryptType, &encryptUserName, &end, &endpoint, &endpoints, &endTime, &error,
    &excludeDriverIds, &excludeVlanRanges, &exitTime, &exitTimeout, &export_, &extentedParser,
    &extraData, &extraId, &extraOptions, &extraParams, &fileId, &fileName, &filename, &filter,
    &filteredPlace, &flag, &flowletContent, &flowletId, &flowletJson, &flowletList, &flowletName,
    &folderFilter, &forceTime, &frame_relay, &frame_relay_ietf, &frequency, &fromDevId,
    &fromDevName, &fromedge, &fromIp, &fromIpMask, &frontServerAndGroupId, &ftime, &fullName,
    &functionName, &fwrev, &gateway, &gbData, &generalApiResponseMethod, &group, &guid,
    &hasBGPConfig, &hasCLog, &hasEIGRPConfig, &hasISISConfig, &hasIssue, &hasMac, &hasMacAddr,
    &hasMulticastConfig, &hasOSPFConfig, &hostname, &hour, &hsrp, &hwrev, &iconPath, &icons, &id,
    &ids, &ifId, &ifname, &import, &inAclName, &index, &inputTable, &interfaceInfo, &interfaceName,
    &intfDesc, &intfId, &intfName, &intfOrder, &intfs, &intfSchema, &intfStatus, &intfValue,
    &invalidCommandKey, &ip, &ipAddr, &ipAddrRange, &ipCount, &ipfrom, &ipLoc, &ipOrHostname,
    &ipphone_callmngr, &ipphone_num, &ipphone_switch, &ips, &ipsla, &ipslacmds, &ipSrc,
    &ipUnnumbered, &ipUnnumberedIp, &isBlocked, &isBroadcast, &isbuildin, &isChannel, &isCheckCli,
    &isCheckCliEnable, &isCheckPing, &isCheckSnmp, &isCompare, &isCompareKey, &isCurrentUsed,
    &isDefault, &isDeleted, &isDirectRtn, &isdisplay, &isdysearch, &isEnable, &isEnabled,
    &isEncryptUsername, &isExclude, &isExcludeLastResultSucceeded, &isFinished, &isfullsearch,
    &isHiden, &isIntf, &isIPAccouting, &isIPSLA, &isIPUnnumberedIntf, &iskey, &isL2Intf,
    &isL2TopoIntf, &isLanIntf, &isLocalbenchmark, &isLocalTune, &isLockdownMember, &isLocked,
    &isLoopback, &isManageIntf, &isMgmtIntf, &isMulticastRouting, &isMultipoint, &isNct,
    &isNetflow, &isPermanent, &isPhantomInterface, &isRegx, &isRetrieveLegacy, &isRetrieveSDN,
    &isRunOnce, &isSaveReceivedData, &isSendCallBack, &isSendSSH, &isSerial, &isShutdown,
    &isSNMPConfig, &isStandaloneTable, &isStopByUser, &isSubIntf, &isSystem, &isTagSwitchingIp,
    &isTuneSet, &isTunnel, &isTunnelMultipoint, &isVirtualIntf, &isVisible, &isVlanIntf, &isWan,
    &isWanIntf, &jobId, &key, &keyContent, &keyName, &keyValues, &lanSegment, &layer, &length,
    &level, &limitRunMins, &link, &links, &linkType, &linkTypeFlag, &liveDataColl,
    &liveDataConnSetting, &liveHostname, &loc, &localAsNum, &localDevId, &localIntfId,
    &localIntfName, &localIntfSchema, &localTech, &location, &lockedByUser, &lockedTime, &log,
    &login, &loginPrompt, &logs, &logTime, &lu, &lwap_defaultGW, &lwap_group, &lwap_platform,
    &lwap_priCntrllr, &lwap_secCntrllr, &mac, &mac1, &mac2, &macAddr, &macTable, &macTableOrig,
    &mainType, &mainTypeName, &mapId, &mapInfo, &mapPageId, &maskLen, &maxConnectionOfDevice,
    &maxConnectionViaCLI, &maxConnectionViaJumpbox, &maxDeviceCount, &md5, &md5KeyContent,
    &mediaId, &medianame, &mem, &memOID, &message, &method, &mgmt, &mgmtIntf, &mgmtIP, &mgmtMAC,
    &mgrIntf, &mgrIp, &mgrIpStyle, &mibIndex, &min, &miniTaskId, &miniTaskName, &miniTaskType,
    &mode, &model, &modelName, &modified, &moduleName, &modules, &moduleSlot, &moduleType,
    &monItems, &morePrompt, &mpls_accessPnt, &mpls_asNum, &mpls_update, &mplsVpn, &mplsVrf,
    &mplsVrfNames, &msg, &msgType, &mtu, &multicastMode, &multiSources, &mustDoDevIds, &name,
    &nameTemplate, &napLoginPrompt, &napPassword, &napPasswordPrompt, &napPrompt, &napRefCount,
    &napUser, &napUserName, &nbrDevId, &nbrIntfId, &nbrIntfName, &nbrIntfSchema, &nbrTech, &ncts,
    &nctTable, &nctTableFixupDown, &nctTableFixupUp, &nctTableOrig, &neighborIp, &netFlow,
    &networkCluster, &networkServer, &networksetting, &networkSize, &nodeName, &nodeSize,
    &nodeType, &nonPrivilegePrompt, &nonprivilegePrompts, &nsPoll, &nsPort, &num, &objectGroupId,
    &objectGroupName, &objectId, &oid, &onePageCmd, &onlyJumpbox, &onlyUseCli, &op, &operateInfo,
    &operateTime, &operateUserName, &opTime, &option, &opUser, &opUserId, &order,
    &originalFullName, &outAclName, &page, &pageCount, &parentId, &parentIntf, &parentPath,
    &parentVlan, &parser, &password, &passwordInterval, &passwordPhrase, &passwordPrompt,
    &passwordPrompts, &path, &peIp, &permitVLAN, &phoneNumber, &ping, &pingRetryTimes,
    &pingTimeout, &pluginFile, &pluginFileId, &pluginName, &pluginType, &pollingOrder, &port,
    &portId1, &portId2, &portName, &ports, &possibleNames, &priority, &privilegePassword,
    &privilegePrompt, &privilegePrompts, &privilegeUsername, &profiles, &progress, &proxyExit,
    &proxyInfo, &proxyServer, &proxyServerList, &proxyServerTimeout, &pyScript, &pythonDebug,
    &pythonScript, &quitCmd, &rd, &redundantIps, &refCount, &region, &reinitPython, &remind,
    &remoteAsNum, &replicaSet, &retrieveData, &retrievedTime, &retrieveItems, &retrieveOption,
    &retrieveParam, &retrieveRTMaxNumber, &retrieveThread, &retriRTMaxNum, &rootSchema, &roString,
    &routeProtocol, &routeTable, &routeTableFixupDown, &routeTableFixupUp, &routeTableOrig,
    &routingProtocol, &routingTable, &rTable, &runFlowletModel, &runOption, &rwString, &said,
    &saveAsType, &saveCacheData, &saveCount, &saveTelnet, &scanThread, &schedule, &schema, &scope,
    &scopeRange, &scopeType, &scriptContent, &sdnData, &sdnScope, &searchType, &sec, &sequnce,
    &servers, &serverStyle, &serverType, &serverTypeId, &sessionId, &shortName, &showArpCmd,
    &showCamCmd, &showCdpCmd, &showColor, &showCommand, &showCommandThread, &showIPRouteCmd,
    &showRouteCountCmd, &showRunCmd, &site, &siteCategory, &siteId, &sn, &snapshotID, &snmp,
    &snmpCommunityString, &snmpFailedPing, &snmpIfPingFailed, &snmpName, &snmpPort, &snmpPro,
    &snmpRo, &snmpTimeout, &snmpVersion, &source, &sourceDataId, &sourceDevice, &sourceDeviceId,
    &sourceId, &sourcePort, &sourceType, &specialCommand, &specId, &speed, &spendSecond, &srcType,
    &sshCount, &sshFromRouter, &sshKeyID, &ssl, &start, &startPlace, &startTime, &status, &stpCmd,
    &stpTable, &stpTableOrig, &stream, &strValue, &subName, &subnet, &subnets, &subscribeTime,
    &subType, &subtype, &subTypeName, &subTypes, &summary, &switchGroup, &switchId1, &switchId2,
    &switchName, &switchType, &swrev, &tableDisplayName, &tableInput, &tableName, &tableRow,
    &taskId, &taskInfo, &taskParam, &tcpConnect, &telnetCommand, &telnetCount, &telnetIfPingFailed,
    &telnetPort, &telnetSSH, &tenantConnSetting, &thirdApi, &thirdApiInfo, &threshold, &time,
    &timeFilter, &timeOut, &timeout, &timepoint, &times, &timeSpan, &toConfigCmd, &toedge,
    &toEnableCmd, &topoTableName, &topoType, &traceTimeout, &trunkEncapsulation, &trunkNativeVlan,
    &tuneState, &tuneThread, &tunnelSourceIntf, &twId, &twPathSchema, &twPathValue, &type,
    &typeName, &unifName, &uniName, &uniqueName, &unit, &unknownType, &upateTime, &updateTime,
    &updateToBaseline, &updateToBeseline, &uploadDate, &useCacheDataTime, &useLocal, &user,
    &usercanmodify, &userFlag, &userId, &userName, &username, &userNamePrompt, &userPrompts,
    &useSSL, &v3, &value, &varHtml, &vdcList, &vendor, &vendorName, &ver, &version, &viaSnmp,
    &visibleIntfs, &vlan, &vlanRanges, &voiceVlan, &vpc, &vpn, &vpnName, &vrf, &vrfStr, &vt,
    &waitTime, &warning, &wlc_priLwap, &wlc_secLwap, &writeLog, &xMap, &yesNoPrompt, &zipContent,
    &zone, &zoneType
};
}  // namespace field

namespace type_id {
const std::string L2Topo = "f9915809-00ee-40ea-b90d-7eb7ed9a370b";
const std::string L3Topo = "11c1c310-1713-4b3e-bf29-857fd92ed784";
const std::string Schema = "cc114563-6543-4b3e-bf29-857fd92e3333";
const std::vector<const std::string*> All = {&L2Topo, &L3Topo, &Schema};
}  // namespace type_id

namespace phrase {
const std::string AutomaticallyStopped = "Automatically Stopped";
const std::string BenchmarkTask = "benchmark task";
const std::string DefaultZone = "Default Zone";
const std::string IPsecVPNTable = "IPsec VPN Table";
const std::string LivePath = "live path";
const std::string ManuallyStopped = "Manually Stopped";
const std::string NATTable = "NAT Table";
const std::string OndemandDiscoverTask = "ondemand discover task";
const std::string ScheduleDiscoverTask = "schedule discover task";
const std::string SucceededWithWarning = "Succeeded with warning";
const std::vector<const std::string*> All = {
    &AutomaticallyStopped, &BenchmarkTask,        &DefaultZone,          &IPsecVPNTable,
    &LivePath,             &ManuallyStopped,      &NATTable,             &OndemandDiscoverTask,
    &ScheduleDiscoverTask, &SucceededWithWarning};
}  // namespace phrase

namespace benchmark_option {
const std::string Item3 = "3";
const std::string Item4 = "4";
const std::string Item5 = "5";
const std::string Item6 = "6";
const std::string Item7 = "7";
const std::string Item8 = "8";
const std::vector<const std::string*> All = {&Item3, &Item4, &Item5, &Item6, &Item7, &Item8};
}  // namespace benchmark_option

namespace text {
const std::string LineEndPattern = "\r\n[\r][\n]";
const std::string JoinSeparator = "__sep__";
const std::string PromptSeparator = "||";
const std::string PasswordPromptSeparator = "&&&";
const std::vector<const std::string*> All = {&LineEndPattern, &JoinSeparator, &PromptSeparator,
                                             &PasswordPromptSeparator};
}  // namespace text

namespace DeviceSetting {
const std::string Collection = "DeviceSetting";
const std::string _id = "_id";
const std::string AccessMethod = "AccessMethod";
const std::string ApplianceId = "ApplianceId";
const std::string CpuExpression = "CpuExpression";
const std::string CustomizedManagementIp = "CustomizedManagementIp";
const std::string DriverId = "DriverId";
const std::string EnablePassword = "EnablePassword";
const std::string EnablePasswordPrompt = "EnablePasswordPrompt";
const std::string EnableUsername = "EnableUsername";
const std::string EnableUsernameprompt = "EnableUsernameprompt";
const std::string EnpasswordPrompt = "EnpasswordPrompt";
const std::string Extension = "Extension";
const std::string ExternalServerId = "ExternalServerId";
const std::string ExternalServers = "ExternalServers";
const std::string ExternalServerTechId = "ExternalServerTechId";
const std::string ForceTimeout = "ForceTimeout";
const std::string HostName = "HostName";
const std::string LiveHostName = "LiveHostName";
const std::string LiveStatus = "LiveStatus";
const std::string LoginPrompt = "LoginPrompt";
const std::string LoginScript = "LoginScript";
const std::string ManageIp = "ManageIp";
const std::string MemoryExpression = "MemoryExpression";
const std::string NonprivilegePrompt = "NonprivilegePrompt";
const std::string ParentDevice = "ParentDevice";
const std::string PasswordPrompt = "PasswordPrompt";
const std::string PrivilegePrompt = "PrivilegePrompt";
const std::string SNMPSetting = "SNMPSetting";
const std::string SSHKeyId = "SSHKeyId";
const std::string SSHPort = "SSHPort";
const std::string SubType = "SubType";
const std::string TelnetPort = "TelnetPort";
const std::string TelnetProxyId = "TelnetProxyId";
const std::string UseCustomizedManagementIp = "UseCustomizedManagementIp";
const std::string UserName = "UserName";
const std::string UserPassword = "UserPassword";
const std::string Version = "Version";
const std::vector<const std::string*> All = {
    &_id, &AccessMethod, &ApplianceId, &CpuExpression, &CustomizedManagementIp, &DriverId,
    &EnablePassword, &EnablePasswordPrompt, &EnableUsername, &EnableUsernameprompt,
    &EnpasswordPrompt, &Extension, &ExternalServerId, &ExternalServers, &ExternalServerTechId,
    &ForceTimeout, &HostName, &LiveHostName, &LiveStatus, &LoginPrompt, &LoginScript, &ManageIp,
    &MemoryExpression, &NonprivilegePrompt, &ParentDevice, &PasswordPrompt, &PrivilegePrompt,
    &SNMPSetting, &SSHKeyId, &SSHPort, &SubType, &TelnetPort, &TelnetProxyId,
    &UseCustomizedManagementIp, &UserName, &UserPassword, &Version
};
}  // namespace DeviceSetting

namespace Jumpbox {
const std::string Collection = "Jumpbox";
const std::string _id = "_id";
const std::string alias = "alias";
const std::string commandPrompt = "commandPrompt";
const std::string enableCmd = "enableCmd";
const std::string enablePassword = "enablePassword";
const std::string enablePasswordPrompt = "enablePasswordPrompt";
const std::string enablePrompt = "enablePrompt";
const std::string ipAddr = "ipAddr";
const std::string loginPrompt = "loginPrompt";
const std::string mode = "mode";
const std::string password = "password";
const std::string passwordPrompt = "passwordPrompt";
const std::string port = "port";
const std::string quitCmd = "quitCmd";
const std::string refCount = "refCount";
const std::string SSHCommand = "SSHCommand";
const std::string SSHKeyId = "SSHKeyId";
const std::string telnetCommand = "telnetCommand";
const std::string type = "type";
const std::string userId = "userId";
const std::string userName = "userName";
const std::string yesNoPrompt = "yesNoPrompt";
const std::vector<const std::string*> All = {
    &_id, &alias, &commandPrompt, &enableCmd, &enablePassword, &enablePasswordPrompt,
    &enablePrompt, &ipAddr, &loginPrompt, &mode, &password, &passwordPrompt, &port, &quitCmd,
    &refCount, &SSHCommand, &SSHKeyId, &telnetCommand, &type, &userId, &userName, &yesNoPrompt
};
}  // namespace Jumpbox

namespace TelnetInfo {
const std::string Collection = "TelnetInfo";
const std::string _id = "_id";
const std::string alias = "alias";
const std::string cliMode = "cliMode";
const std::string deviceType = "deviceType";
const std::string password = "password";
const std::string refCount = "refCount";
const std::string sshKeyID = "sshKeyID";
const std::string userName = "userName";
const std::vector<const std::string*> All = {
    &_id, &alias, &cliMode, &deviceType, &password, &refCount, &sshKeyID, &userName
};
}  // namespace TelnetInfo

namespace SSHPrivateKey {
const std::string Collection = "SSHPrivateKey";
const std::string _id = "_id";
const std::string alias = "alias";
const std::string keyContent = "keyContent";
const std::string keyName = "keyName";
const std::string md5KeyContent = "md5KeyContent";
const std::string passwordPhrase = "passwordPhrase";
const std::string refCount = "refCount";
const std::vector<const std::string*> All = {
    &_id, &alias, &keyContent, &keyName, &md5KeyContent, &passwordPhrase, &refCount
};
}  // namespace SSHPrivateKey

namespace SnmpRoInfo {
const std::string Collection = "SnmpRoInfo";
const std::string _id = "_id";
const std::string alias = "alias";
const std::string refCount = "refCount";
const std::string roString = "roString";
const std::string snmpPort = "snmpPort";
const std::string snmpVersion = "snmpVersion";
const std::string v3 = "v3";
const std::vector<const std::string*> All = {
    &_id, &alias, &refCount, &roString, &snmpPort, &snmpVersion, &v3
};
namespace V3 {
const std::string authMode = "authMode";
const std::string authPassword = "authPassword";
const std::string authPro = "authPro";
const std::string contextName = "contextName";
const std::string encryptPassword = "encryptPassword";
const std::string encryptPro = "encryptPro";
const std::string userName = "userName";
const std::vector<const std::string*> All = {
    &authMode, &authPassword, &authPro, &contextName, &encryptPassword, &encryptPro, &userName
};
}  // namespace V3
}  // namespace SnmpRoInfo

namespace EnablePasswd {
const std::string Collection = "EnablePasswd";
const std::string _id = "_id";
const std::string alias = "alias";
const std::string enablePassword = "enablePassword";
const std::string enableUserName = "enableUserName";
const std::string refCount = "refCount";
const std::vector<const std::string*> All = {
    &_id, &alias, &enablePassword, &enableUserName, &refCount
};
}  // namespace EnablePasswd

namespace NetworkServer {
const std::string Collection = "NetworkServer";
const std::string _id = "_id";
const std::string aesKey = "aesKey";
const std::string alias = "alias";
const std::string ipOrHostname = "ipOrHostname";
const std::string maxDeviceCount = "maxDeviceCount";
const std::string name = "name";
const std::string nsPort = "nsPort";
const std::string proxyServerList = "proxyServerList";
const std::string refCount = "refCount";
const std::string serverStyle = "serverStyle";
const std::string timeOut = "timeOut";
const std::string timeout = "timeout";
const std::string useSSL = "useSSL";
const std::vector<const std::string*> All = {
    &_id, &aesKey, &alias, &ipOrHostname, &maxDeviceCount, &name, &nsPort, &proxyServerList,
    &refCount, &serverStyle, &timeOut, &timeout, &useSSL
};
}  // namespace NetworkServer

namespace InterfaceType {
const std::string Collection = "InterfaceType";
const std::string _id = "_id";
const std::string bandwidth = "bandwidth";
const std::string delay = "delay";
const std::string driverIds = "driverIds";
const std::string excludeDriverIds = "excludeDriverIds";
const std::string fullName = "fullName";
const std::string hasMac = "hasMac";
const std::string isBroadcast = "isBroadcast";
const std::string isSerial = "isSerial";
const std::string isWan = "isWan";
const std::string originalFullName = "originalFullName";
const std::string possibleNames = "possibleNames";
const std::string shortName = "shortName";
const std::vector<const std::string*> All = {
    &_id, &bandwidth, &delay, &driverIds, &excludeDriverIds, &fullName, &hasMac, &isBroadcast,
    &isSerial, &isWan, &originalFullName, &possibleNames, &shortName
};
}  // namespace InterfaceType

namespace CliSetting {
const std::string Collection = "CliSetting";
const std::string _id = "_id";
const std::string checkTime = "checkTime";
const std::string cliTimeout = "cliTimeout";
const std::string enablePasswordPrompts = "enablePasswordPrompts";
const std::string enableUserNamePrompts = "enableUserNamePrompts";
const std::string exitTimeout = "exitTimeout";
const std::string forceTime = "forceTime";
const std::string isEncryptUsername = "isEncryptUsername";
const std::string isSaveReceivedData = "isSaveReceivedData";
const std::string isSendSSH = "isSendSSH";
const std::string nonprivilegePrompts = "nonprivilegePrompts";
const std::string passwordPrompts = "passwordPrompts";
const std::string privilegePrompts = "privilegePrompts";
const std::string retriRTMaxNum = "retriRTMaxNum";
const std::string userPrompts = "userPrompts";
const std::string waitTime = "waitTime";
const std::vector<const std::string*> All = {
    &_id, &checkTime, &cliTimeout, &enablePasswordPrompts, &enableUserNamePrompts, &exitTimeout,
    &forceTime, &isEncryptUsername, &isSaveReceivedData, &isSendSSH, &nonprivilegePrompts,
    &passwordPrompts, &privilegePrompts, &retriRTMaxNum, &userPrompts, &waitTime
};
}  // namespace CliSetting

}  // namespace netloom::schema
