#ifndef KRM_DATA_DATAMEASURES_H
#define KRM_DATA_DATAMEASURES_H

#include "data/coredata.h"

class QWidget;

// Saved measures: one tag file per measure, module measures under
// /krm510data/datameapanel, string measures under /krm510data/datameastring.

#define MEASURE_NAME_SIZE 256

// The measure directory of a type: MEA_STRING the strings, anything else the modules.
const char* measureDir(_meaType type);

// Writes the measure into the file named by its date and time. The sum of the
// write counts; -4 no record, date or time; -3 no name; -2 directory; -1 file.
// The working directory is left in the measure directory.
int saveMeasuresData(const _measure* measure, _meaType type, unsigned sn);
// The file name of a date and a time: "%s-%s" of both, lowered, keeping only
// the letters a to z, the digits and the minus signs (target: 256 bytes).
void measureFileName(const char* mdata, const char* mtime, char* target);
// Builds "yyyymmdd-hhmmss" from the date and time into target (256 bytes) and
// stays in the measure directory; null when a text is null or the directory
// can't be entered.
char* newFileNameMeasures(const char* mdata, const char* mtime, char* target, _meaType type);
// Zeroes the record and reads the file: 511 for a whole table, the point
// count minus 1 for 257 to 511 points, 512 for a short (padded) table;
// -2 directory, -1 file.
int readMeasureData(const char* file, _measure* measure, _meaType type);
// With the measure directory as working directory: 1 when the file can't be
// opened, else 0.
int getHeaderMeasures(const char* file, _listMeasures* node);
int getDataTimeComment(const char* file, char* date, int dateSize, char* time, int timeSize,
                       char* comment, int commentSize, _meaType type);
_listMeasures* readListMeasures(QWidget* parent, _meaType type);
_listMeasures* getSingleListMeasures(const char* file, _meaType type);
_listMeasures* addMeasuresNode(_listMeasures* list, const char* file);
int deleteMeasures(const char* file, _meaType type);
_listMeasures* closeListMeasures(_listMeasures* list);
void freeMeasureData(_measure* measure);
// Files of the second-generation measuring board: from version 1.6 on.
bool isMeaMadeByBrask(_mea_version version);

#endif
