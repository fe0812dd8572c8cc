#ifndef KRM_DEVICE_RFCOMM_H
#define KRM_DEVICE_RFCOMM_H

#define RFCOMM_CONF "/etc/bluetooth/rfcomm.conf"

// Writes the RFCOMM configuration file anew for port rfcomm0: the remote
// unit's Bluetooth address and its name. The number of characters written,
// or -1 when either text is null (nothing is touched then) or the file can't
// be created or written whole.
int createBlueRFCOMM(const char* mac, const char* name);

#endif
