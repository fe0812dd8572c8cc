#ifndef KRM_DATA_MEASURESERIAL_H
#define KRM_DATA_MEASURESERIAL_H

#include "data/coredata.h"

// The serial number of the instrument that took a measure: the FSN line at
// the head of a measure file, which the measure reader passes over. -1 when
// the file can't be opened or holds no FSN line, -2 when the measure
// directory can't be entered.
long readMeasureSerial(const char* file, _meaType type);

#endif
