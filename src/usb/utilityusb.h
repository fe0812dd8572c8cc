#ifndef KRM_USB_UTILITYUSB_H
#define KRM_USB_UTILITYUSB_H

#include <string>

// True when the stick script reports a mounted disk: its last output line
// holds "sd".
bool usbMounted();
// 1 when a numbered USB disk node (/dev/sda0 ... /dev/sdy19) can be opened, else 0.
int usbCheckSD();
// The stick's mount point as the stick script reports it (a device path such
// as "/media/sda1"): the first blank-separated word of its last line that
// holds "media"; empty when there is none.
std::string usbMountPoint();

#endif
