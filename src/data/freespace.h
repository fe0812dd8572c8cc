#ifndef KRM_DATA_FREESPACE_H
#define KRM_DATA_FREESPACE_H

// Percent of the used blocks of the file system that holds path. A file
// system that reports no total or no free blocks reads as 0 percent, also
// when it is completely full: the instrument has always shown it so.
float get_use_space_percentage(const char* path);

#endif
