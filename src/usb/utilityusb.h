#ifndef KRM_USB_UTILITYUSB_H
#define KRM_USB_UTILITYUSB_H

// True when the stick script reports a mounted disk: its last output line
// holds "sd".
bool usbMounted();
// 1 when a numbered USB disk node (/dev/sda0 ... /dev/sdy19) can be opened, else 0.
int usbCheckSD();

#endif
