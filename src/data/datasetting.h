#ifndef KRM_DATA_DATASETTING_H
#define KRM_DATA_DATASETTING_H

#include "data/coredata.h"

#define CONFIG_DIR "/etc"
#define CONFIG_FILE "krm510.conf"

// Fills the record with the defaults, then with what the file holds.
// 0 after a complete read, -2 when /etc can't be entered, -1 when the file
// can't be opened; in every case the record is usable.
int readConfigFile(_configParam* config);
// Writes the whole file again. The sum of the characters written minus 1,
// -3 when /etc can't be entered, -2 when the file can't be opened.
int saveConfigFile(_configParam config);
// The values the instrument runs on when the file says nothing.
void defaultConfig(_configParam* config);

#endif
