#ifndef KRM_MATH_CORREZIONE_H
#define KRM_MATH_CORREZIONE_H

// Raw converter counts of the measuring board to volts and amperes, with the
// gain and offset of the range in use. All single precision; a negative
// result becomes 0. The voltage offset is a float added after the gain, the
// current offset a count taken off before it.

float correzTensione(int raw, float gain, float offset);
float correzCorrente(int raw, float gain, int offset);

#endif
