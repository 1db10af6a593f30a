#pragma once
// Resource symbols of the translator's forms: dialog numbers, control identifiers and the
// numbers of the pictures and menu entries. An identifier is unique inside its form only, so
// two forms may give one number to different controls (1013 is the message line of the main
// window and the arc-length edit of the settings page).

// Dialog forms.
constexpr int IDD_Ndd2Qfx_DIALOG = 102;
constexpr int IDD_AFX_DIALOG = 103;
constexpr int IDD_DIALOG_MY_DIALOG = 104;
constexpr int IDD_SETTINGS = 132;
constexpr int IDD_NET_CHOICE = 133;
constexpr int IDD_COLOR_PICKER = 136;
constexpr int IDD_IBIS_FILE_SELECTION = 146;
constexpr int IDD_DIALOG_PIN_GROUPING = 158;
constexpr int IDD_DIALOG_GROUP_SELECTOR = 159;
constexpr int IDD_DIALOG_PIN_SELECTOR = 160;
constexpr int IDD_LINK_PIN_NAMES_TO_CKT_NODES = 161;
constexpr int IDD_LINK_VOLTAGE_TO_PINS_DIALOG = 162;
constexpr int IDD_GRID = 163;

// Pictures (see CQtNdd2QfxResourceMgr) and the string of the About entry.
constexpr int IDB_ABOUT = 100;
constexpr int IDS_ABOUTBOX = 101;
constexpr int IDR_MAINFRAME = 128;
constexpr int IDB_NET_COLORS = 138;
constexpr int IDB_NET_COLORS_CHOSEN = 139;

// Menu entries of the main window's "More..." menu.
constexpr int IDM_ABOUTBOX = 16;
constexpr int ID_DOCUMENTS = 1115;

// Every form.
constexpr int IDOK = 1;
constexpr int IDCANCEL = 2;
// Labels that no logic reaches; their object names are numbered IDC_STATIC_0, IDC_STATIC_1...
constexpr int IDC_STATIC = -1;
// Control identifiers stay within 1 to this.
constexpr int kLastControlId = 1199;

// Main window (IDD_Ndd2Qfx_DIALOG).
constexpr int IDC_EDIT_INPUT = 1000;
constexpr int IDC_EDIT_OUTPUT = 1001;
constexpr int IDC_BUTTON_INPUT = 1002;
constexpr int IDC_BUTTON_OUTPUT = 1003;
constexpr int IDC_PROPERTY = 1004;
constexpr int IDC_PROGRESS1 = 1012;
constexpr int IDC_MSG = 1013;
constexpr int IDC_LOAD_LOG = 1033;
constexpr int IDC_BUTTON_MORE = 1116;

// Translation options page (IDD_SETTINGS).
constexpr int IDC_SHAPE = 1005;
constexpr int IDC_LAYER = 1006;
constexpr int IDC_TRACE = 1008;
constexpr int IDC_VIA = 1009;
constexpr int IDC_FACTOR = 1010;
constexpr int IDC_NO_EMBEDPLANE = 1011;
constexpr int IDC_FACTOR_TRACE = 1012;
constexpr int IDC_ARC_LENGTH = 1013;
constexpr int IDC_VIA_HOLE = 1014;
constexpr int IDC_ADD_PLANE = 1020;
constexpr int IDC_ELIMINATE = 1021;
constexpr int IDC_EXCLUDE_VOID_SHAPE_ENCLOSE_A_VIA = 1022;
constexpr int IDC_MIN_X = 1023;
constexpr int IDC_MIN_Y = 1024;
constexpr int IDC_MAX_X = 1025;
constexpr int IDC_MAX_Y = 1026;
constexpr int IDC_BOUNDARY_LIMIT = 1027;
constexpr int IDC_OUTPUT_PATCH = 1028;
constexpr int IDC_AFFIX = 1031;
constexpr int IDC_APPEND_NET_NAME = 1032;
constexpr int IDC_SHAPE_COLOR = 1039;
constexpr int IDC_CHECK_COMPONENT = 1042;
constexpr int IDC_TRANSLATE_ACTIVE_COMPONENTS = 1082;
constexpr int IDC_EDIT_TRACE_VOID_CLEARANCE = 1084;
constexpr int IDC_TRACE_VOID = 1085;
constexpr int IDC_EDIT_PROPERTY_VALUE = 1086;
constexpr int IDC_CHECK_TRANSLATE_PAD = 1089;
constexpr int IDC_EDIT_TRACE_FILE_PATH = 1091;
constexpr int IDC_BUTTON_TRACE_FILE_BROWSE = 1092;
constexpr int IDC_EDIT_HKP_FILE_PATH = 1093;
constexpr int IDC_BUTTON_HKP_FILE_BROWSE = 1095;

// Net selection page (IDD_NET_CHOICE).
constexpr int IDC_NET_LIST = 1028;
constexpr int IDC_NET_CHOICE = 1029;

// Colour picker (IDD_COLOR_PICKER).
constexpr int IDC_COLOR_SHOWER = 1029;
constexpr int IDC_COLOR_NAME = 1030;

// IBIS file selection (IDD_IBIS_FILE_SELECTION).
constexpr int IDC_CTRL_LIST_IBIS_FILE_SELECTION = 1045;
constexpr int IDC_CHECK_BOX_APPLY_TO_ALL = 1046;
constexpr int IDC_BUTTON_EDIT_IBIS_FILE = 1075;
constexpr int IDC_STATIC_REFDES_LIST = 1088;

// Pin mapping (IDD_DIALOG_PIN_GROUPING): the groups on the right, the signal pins on the left.
constexpr int IDC_LIST_CTRL_MAKE_GROUPS = 1058;
constexpr int IDC_BUTTON_ADD_GROUP = 1059;
constexpr int IDC_BUTTON_DELETE_GROUP = 1060;
constexpr int IDC_LIST_LINKAGE_CREATOR = 1061;
constexpr int IDC_BUTTON_ADD_GND_GROUP = 1064;
constexpr int IDC_BUTTON_ADD_PC_GROUP = 1065;
constexpr int IDC_BUTTON_ADD_GC_GROUP = 1066;
constexpr int IDC_BUTTON_CHECK_ALL = 1067;
constexpr int IDC_BUTTON_UNCHECK_ALL = 1068;
constexpr int IDC_BUTTON_RESET_ALL = 1069;
constexpr int IDC_BUTTON_PIN_PROPERTIES = 1074;
constexpr int IDC_BUTTON_DELETE_ROW = 1076;
constexpr int IDC_BUTTON_LINK_GROUPS = 1077;
constexpr int IDC_SORT_COMBO = 1083;

// Group selector (IDD_DIALOG_GROUP_SELECTOR).
constexpr int IDC_COMBO_PULL_DOWN = 1070;
constexpr int IDC_COMBO_GROUND_CLAMP = 1071;
constexpr int IDC_COMBO_POWER_CLAMP = 1072;
constexpr int IDC_COMBO_PULL_UP = 1073;

// Pin selector (IDD_DIALOG_PIN_SELECTOR).
constexpr int IDC_LIST_CTRL_PIN_MAP = 1057;

// Grid (IDD_GRID).
constexpr int IDC_NEXT = 1100;

// Pin names to circuit nodes (IDD_LINK_PIN_NAMES_TO_CKT_NODES).
constexpr int IDC_LIST_PART_NO = 1034;
constexpr int IDC_LIST_CKT_NODES = 1035;
constexpr int IDC_LIST_PIN_NAMES = 1036;
constexpr int IDC_LIST_LINKAGES = 1037;
constexpr int IDC_STATIC_PART_NO = 1038;
constexpr int IDC_STATIC_PIN_NAME = 1040;
constexpr int IDC_STATIC_PART_NO3 = 1041;

// Voltages to pins (IDD_LINK_VOLTAGE_TO_PINS_DIALOG).
constexpr int IDC_LIST_LINKAGE = 1047;
constexpr int IDC_BUTTON_LINK = 1048;
constexpr int IDC_STATIC_COMPONENT_REFDES = 1049;
constexpr int IDC_STATIC_PACKAGE_NODE = 1050;
constexpr int IDC_STATIC_CIRCUIT_NODE = 1051;
constexpr int IDC_BUTTON_DELETE = 1052;
constexpr int IDC_LIST_VOLTAGE_LEVELS = 1053;
constexpr int IDC_LIST_SIGNAL_NAMES = 1054;
constexpr int IDC_LIST_COMPONENT_REFDES = 1055;
