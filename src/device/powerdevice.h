#ifndef KRM_DEVICE_POWERDEVICE_H
#define KRM_DEVICE_POWERDEVICE_H

#include "data/coredata.h"
#include "device/serialport.h"

class QProgressDialog;

// Command formats of the measuring board; the position is what each operation
// uses. The last slot is empty.
extern const char* const power_cmd[15];

// The measuring board behind "/dev/ttyS1": each protocol command is one
// blocking call that fills a record and returns the board's status.
//
// The base part opens and configures the line a second time and carries no
// traffic; all traffic goes through serialPort. Both stay open for the life of
// the object. At the end the inner port restores what the outer port had set,
// then the outer port restores the settings found at power-up.
class PowerDevice : public SerialPort
{
public:
    PowerDevice();
    ~PowerDevice() override;

    // The firmware version, three tries of "ver": the board's status.
    int getVersion();

    _pdError acquirePanel(_ramp_param param, _raw_ramp_iv* ramp, QProgressDialog* progress);
    _pdError acquireString(_string_param param, _raw_ramp_iv* ramp, QProgressDialog* progress);
    _pdError acquireUtroque(_raw_ramp_iv* ramp, QProgressDialog* progress);
    _pdError acquireBrask(_raw_ramp_iv* ramp, QProgressDialog* progress);
    _pdError acquireBraskDebug(_raw_ramp_vgate* ramp, QProgressDialog* progress);
    _pdError acquireSweepBrask(_tstBrask* tst, int target, int list, QProgressDialog* progress);
    _pdError acquireZKillBrask(_tstBrask* tst, int target, int list, QProgressDialog* progress);
    _pdError acquireZTstBrask(_tstBrask* tst, int target, int list, QProgressDialog* progress);
    _pdError acquireVoc(unsigned char range, int* value);
    _pdError acquireIsc(unsigned char range, int* value);
    _pdError acquireVoltSpot(unsigned char arg, unsigned long* value);
    _pdError acquireVoltSum(unsigned char arg, unsigned long* value);
    _pdError acquireLastInfo(_info_last* info);
    _pdError acquireTempHSink(float* temperature);

    SerialPort* serialPort;
    int versionMajor;
    int versionMinor;
    int versionProto;

private:
    _pdError acquireRampLines(const char* command, int points, _raw_ramp_iv* ramp,
                              QProgressDialog* progress);
    _pdError acquireTst(const char* format, int target, int list, int maximum, int final,
                        _tstBrask* tst, QProgressDialog* progress);
    _pdError exchangeValue(const char* command, char* reply, int replySize);
};

// ---- The reply handling on text, without a line.

// Size of the text of the checked parse.
constexpr int checkedTextSize = 8192;

// Splits text at LF (empty lines skipped, as strtok does) and reads line k
// with format into columns[0..fields-1][k], for k below points; later lines
// are ignored. With retry, a line that gives fewer fields is read once more.
// Returns the number of lines read.
int parseReplyLines(char* text, const char* format, int fields, int points, int* const* columns,
                    bool retry);

// The guarded reading of a reply: three copies of data (cut at
// checkedTextSize), the first two parsed and compared slot by slot over the
// first `compared` columns; at the first slot where no compared column agrees
// the columns are cleared and filled from the third copy. columns are
// `fields` arrays of `points` ints, cleared here first.
void checkedParse(const char* data, const char* format, int fields, int compared, int points,
                  int* const* columns);

// The 512 slots of a ramp from the 128 points of "mea_brask": point k in slot
// 2k, point 127 in slots 256 to 511, every odd slot up to 509 the mean of its
// neighbours, truncated toward zero.
void interpolateBrask(const int* corrente, const int* tensione, _raw_ramp_iv* ramp);

// The version fields from the text of "ver": a word, the version, a word;
// the same with "PROTO" in it; or a word, "FP", the version, a word.
void parseVersion(const char* text, int* major, int* minor, int* proto);

#endif
