#ifndef KRM_DEBUGBRASK_DEBUGDIR_H
#define KRM_DEBUGBRASK_DEBUGDIR_H

// The folder of the raw files that the service screens write.
#define DIR_DATA_DEBUG "/krm510data/datadebug"

// Makes sure the service folder exists: a file or anything else in its place
// is moved aside under the data layer's backup name (the hour one ahead of
// universal time), then the folder is made with mode 0777. Returns 0 when it
// was there already, else the result of mkdir.
int checkDebugDir();

#endif
