#ifndef KRM_DATA_COREDATA_H
#define KRM_DATA_COREDATA_H

#include <cstdio>

// The plain records that pass between the screens, the mathematics, the file
// layer and the measuring board, and the primitives with which every text
// file of the instrument is written and read. Records have no methods; their
// strings are heap blocks owned by the record and released by its free
// function.

#define RAMP_POINTS 512

// One I-V curve: index 0 is the open-circuit end, index 511 the short-circuit end.
struct _ramp_iv {
    float corrente[RAMP_POINTS];
    float tensione[RAMP_POINTS];
};

// The nominal data sheet of a module at standard test conditions.
struct _panelFeature {
    float pmax;
    float impp;
    float vmpp;
    float isc;
    float voc;
    int type;
    float noct;
    float kisc;
    float kvoc;
    float kpmax;
    float tollp;
    float tollm;
};

// One row of the module database.
struct _panel {
    char* brandName;
    char* brandDir;
    char* modelName;
    char* modelFile;
    _panelFeature feature;
};

struct _mea_version {
    int major;
    int minor;
    int patch;
};

struct _measure {
    _mea_version version;
    char* mdata;
    char* mtime;
    int mnpan;
    float misc;
    float mvoc;
    float mimpp;
    float mvmpp;
    float mpmax;
    float sisc;
    float svoc;
    float simpp;
    float svmpp;
    float spmax;
    float mdpmax;
    float mtemp;
    int mprobe;
    float mirr;
    int mcomp;
    char* mcom;
    float mdegy;
    float mdegp;
    int rrimb;
    int mtest;
    int mrstest;
    float mrs;
    float mrsi1;
    float mrsi2;
    char* rname;
    char* rbname;
    _panelFeature ref;
    _ramp_iv ramp;
};

enum _meaType : int { MEA_PANEL = 0, MEA_STRING = 1 };
enum _typeDialog : int { DLG_PANEL = 0, DLG_STRING = 1 };
enum _selectType : int { SELECT_VIEW = 0, SELECT_DELETE = 1, SELECT_EDIT = 2 };
enum _probeTemp : int { PROBE_AMBIENT = 0, PROBE_MODULE = 1, PROBE_AUTO = 2, PROBE_MANUAL = 3 };
enum _remoteUnitLink : int { LINK_LOCAL = 0, LINK_USB = 1, LINK_BLUETOOTH = 2 };
enum _language : int { LANG_IT = 0, LANG_EN = 1, LANG_FR = 2, LANG_DE = 3, LANG_ES = 4, LANG_DEFAULT = 5 };
enum _displayClock : int { CLOCK_DATE_TIME = 0, CLOCK_DATE = 1, CLOCK_TIME = 2 };
enum _countFile : int { COUNT_FILES = 0, COUNT_DIRS = 1 };

// The screens' copies of a stored text (a comment, a brand or model name):
// the old ones held 255 bytes, fewer than 255 characters of UTF-8. They hold
// 255 characters of up to four bytes each and the NUL.
#define TEXT_COPY_SIZE (4 * 255 + 1)

#define BLUEMAC_SIZE 18
// Room for the 60 characters the settings screen accepts and the NUL; the
// reader replaces a longer name by the default.
#define BLUENAME_SIZE 61

// The settings and calibration of the instrument, the image of /etc/krm510.conf.
struct _configParam {
    unsigned int sn;
    _displayClock tclock;
    _language lang;
    float adci0;
    float adci1;
    int adci0offset;
    int adci1offset;
    float adcv0;
    float adcv1;
    float adcv0offset;
    float adcv1offset;
    float kpyra;
    float cpyar;
    float tmmod;
    float tomod;
    float tmenv;
    float toenv;
    float irrmin;
    float utemp;
    _probeTemp tprobe;
    _remoteUnitLink remote;
    int bright;
    char bluemac[BLUEMAC_SIZE];
    char bluename[BLUENAME_SIZE];
};

struct _listFileInstallation {
    char* file;
    _listFileInstallation* next;
};

struct _listFileMeaString {
    char* file;
    _listFileMeaString* next;
};

struct _listFileMeaPanel {
    char* file;
    _listFileMeaPanel* next;
};

struct _company {
    char* surn;
    char* name;
    char* nin;
    char* code;
    char* city;
    char* zip;
    char* prov;
    char* street;
    char* phone;
    char* email;
    _listFileInstallation* curInst;
    _listFileInstallation* headInst;
};

struct _installation {
    char* id;
    char* city;
    char* zip;
    char* prov;
    char* street;
    char* nstri;
    char* npowe;
    _listFileMeaPanel* curMeaPanel;
    _listFileMeaPanel* headMeaPanel;
    _listFileMeaString* curMeaString;
    _listFileMeaString* headMeaString;
};

// Selection lists: singly linked, each new node at the front.
struct _listBrand {
    char* name;
    char* dir;
    _listBrand* next;
};

struct _listModel {
    char* name;
    char* file;
    _listModel* next;
};

struct _listCompany {
    char* surn;
    char* nin;
    char* code;
    char* file;
    _listCompany* next;
};

struct _listInstallation {
    char* id;
    char* nstri;
    char* npowe;
    char* file;
    _listInstallation* next;
};

struct _listMeasures {
    char* mdata;
    char* mtime;
    char* unused1; // never filled; freed with the node
    char* unused2; // never filled; freed with the node
    char* mnpan;
    char* mcom;
    char* mcomp;
    char* mtest;
    char* file;
    _listMeasures* next;
};

// ---- Records of the measuring board: raw converter counts, decimal on the wire.

struct _raw_ramp_iv {
    int corrente[RAMP_POINTS];
    int tensione[RAMP_POINTS];
};

struct _raw_ramp_vgate {
    int corrente[RAMP_POINTS];
    int tensione[RAMP_POINTS];
    int vgate1[RAMP_POINTS];
    int vgate2[RAMP_POINTS];
};

#define TST_BRASK_POINTS 128

struct _tstBrask {
    int corrente[TST_BRASK_POINTS];
    int tensione[TST_BRASK_POINTS];
    int vGateImp[TST_BRASK_POINTS];
    int vGateEff[TST_BRASK_POINTS];
};

// The board's report on the ramp it has just made; the names are also the
// keys of the service files.
struct _info_last {
    int range;
    int testmode;
    int gatestep;
    int timestep;
    int lastpoint;
    int icc;
    int voc;
    int gateLastPoint;
    int ntc_dac;
};

struct _ramp_param {
    int rampPoints;
    unsigned char rampRange;
    int rampArg;
    unsigned int rampLimitA;
    unsigned int rampLimitB;
};

struct _string_param {
    int chargePoints;
    unsigned char chargeRange;
};

// Result of every call to the measuring board: the number of its "ERROR %d"
// status line, or -1 when no status line came back.
enum _pdError : int {
    PD_NO_REPLY = -1,
    PD_OK = 0,
    PD_OVER_VOLTAGE = 3,
    PD_OVER_CURRENT = 4,
    PD_OVER_POWER = 5,
    PD_OVER_ENERGY = 6,
    PD_REVERSE_POLARITY = 7,
    PD_NEGATIVE_FLOATING = 8,
    PD_LOW_VOLTAGE = 9,
    PD_LOW_CURRENT = 10,
    PD_OVER_TEMPERATURE = 11
};

// ---- Numbers in files speak C.
// The old instrument wrote and read the numbers of its files in the process
// locale (a German or Italian locale would write "1,5" and read "1,5" as 1);
// files speak C whatever the locale: every number of the data layer goes
// through these three, which use a C locale object of their own.

double cAtof(const char* text);
int cFprintf(FILE* stream, const char* format, ...) __attribute__((format(printf, 2, 3)));
int cSnprintf(char* target, size_t size, const char* format, ...)
    __attribute__((format(printf, 3, 4)));
// The same for the numbers on the wire of the measuring board and the remote
// unit, which the old code read and wrote in the process locale too.
int cSscanf(const char* text, const char* format, ...) __attribute__((format(scanf, 2, 3)));

// ---- Tag files: "key = value" lines.

int fwriteTagStr(FILE* stream, const char* tag, const char* value);
int fwriteTagFloatPrecision(FILE* stream, const char* tag, float value, int precision);
int fwriteTagFloat(FILE* stream, const char* tag, float value);
int fwriteTagInt(FILE* stream, const char* tag, int value);

// Gives a string field the value read from a file: "~" is null (old is left
// alone), anything else reallocates old and copies the text.
char* allocData(char* old, const char* text);
// allocData for a field that may already hold a value read earlier in the
// same file: a "~" frees the old block instead of leaving it behind.
void takeData(char** field, const char* text);

// Skips a note block: lines up to and including the first whose first
// non-blank character is "<", or to the end of the file.
void skipNote(FILE* stream);

void strupper(char* text);
void strlower(char* text);
char cupper(char c);
char clower(char c);
// Makes a text usable as a file name; count receives the number of blanks.
void strunderline(char* text, int* count);

// ---- Splitting one line of a tag file.

// The old readers took a line in pieces of 255 bytes, each piece read as a
// line of its own: a long comment or model name was cut, and its tail was
// taken for the next line (in a measure, for a point that shifted the whole
// curve). Stored data is never lost: a line is read whole up to 1023 bytes
// (a text of 255 characters in UTF-8 with its key), and what lies beyond is
// skipped, never taken for the next line.
#define TAG_LINE_SIZE 1024
#define TAG_KEY_SIZE 128
#define TAG_VALUE_SIZE 1024

enum _tagLine : int {
    TAG_SKIP = 0,     // comment, blank line, empty key or empty value
    TAG_PAIR = 1,     // key and value found
    TAG_NO_EQUALS = 2, // a key followed by something other than "=" or "<"
    TAG_NOTE = 3       // a key followed by "<": a note block begins
};

// Splits one line read with a TAG_LINE_SIZE buffer. The key is upper-cased.
_tagLine splitTagLine(const char* line, char key[TAG_KEY_SIZE], char value[TAG_VALUE_SIZE]);

// Reads the next line of a tag file into line (TAG_LINE_SIZE bytes, the
// newline kept as fgets keeps it): up to 1023 bytes of it, the rest of a
// longer line skipped. Returns false at the end. Every reader of the data
// layer reads its lines with it.
bool readTagLine(FILE* stream, char line[TAG_LINE_SIZE]);

#endif
