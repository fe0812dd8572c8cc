#ifndef KRM_SIM_INSTRUMENT_H
#define KRM_SIM_INSTRUMENT_H

// The simulated KRM 510: everything outside the program. One object holds the
// world (source, sensors, battery, keys, stick), the measuring board with its
// boot loader, the remote unit, the AD7795, the backlight chip and the GPIO
// lines; it answers the bus requests of the program and the scenario commands
// of tests and of the bench window. All of it runs on the one thread of
// krm510-simd.

#include "line.h"
#include "pvsource.h"

#include <cmath>
#include <cstdint>
#include <deque>
#include <map>
#include <random>
#include <set>
#include <string>
#include <vector>

namespace sim
{

// The simulator's own calibration. Defaults equal the instrument's
// configuration defaults, so that counts sent with them come out right in a
// program with a default configuration.
struct Calibration {
    double adci[2] = {0.0032, 0.0064};            // A per count, current ranges 0 and 1
    int adciOffset[2] = {0, 0};                   // counts
    double adcv[2] = {0.141333, 0.282624};        // V per count, voltage ranges 0 and 1
    double adcvOffset[2] = {-0.002624, 0.147721}; // V
    double kpyra = 26.17963;                      // counts per mV at gain 1 (AD7795)
    double pyranoSens = 10.54;                    // mV per kW/m2 (the pyranometer)
    double pt100Alpha = 0.00385;                  // ohm per ohm per degree C
    double rref = 100.0;                          // ohm, reference resistor
    double batteryDivider = 0.1;                  // battery volts to converter input
};

struct Environment {
    double irradiance = 1000.0; // W/m2
    double tcell = 25.0;        // degrees C; NaN: from ambient and NOCT
    double tmodule = NAN;       // probe on the module's back; NaN: the cell temperature
    double tambient = 20.0;
    bool probeOnModule = true; // which of the two the local PT100 input sees
    bool pt100Open = false;
    double battery = 12.9; // V
    bool adapter = false;
};

enum class SourceFault { None, Open, Reverse, Floating };

class Instrument;

// The AD7795 on /dev/spidev0.0.
class Ad7795
{
public:
    explicit Ad7795(Instrument* owner) : inst(owner) {}
    std::string transfer(const std::string& tx);
    void reset();
    // Forced raw count per channel code (0 = AIN1 ...), -1 = computed.
    std::map<int, long> forced;
    uint16_t mode = 0x000A, config = 0x0710;
    uint8_t io = 0;
    double conversionMs() const;
    long count(int channel, int gain, bool unipolar) const;
    int transfers = 0;
    // A converter whose RDY never comes: every status read says busy.
    bool stuck = false;

private:
    bool ready();
    Instrument* inst;
    double startedAt = 0.0;
    int busyPolls = 0;
    bool dataRead = false;
};

// The measuring board: firmware and boot loader on /dev/ttyS1.
class Board
{
public:
    explicit Board(Instrument* owner) : inst(owner) {}
    void powerChanged(bool on);
    void input(const std::string& bytes);
    void tick(double now);
    // The line's pace after a change between real and fast timing.
    void retime();
    bool powered = true;

    // Scenario state.
    std::vector<std::string> log;       // command lines received
    std::map<std::string, long> faults; // name -> argument
    std::set<std::string> onceFaults;
    std::deque<std::string> forcedReplies;
    long forcedStatus = -1;
    std::string version = "KRM510PD FP 2.1 BRASK";
    double hsink = NAN; // NaN: starts at ambient
    double hsinkAt = 0.0;
    bool hsinkHeld = false; // held: neither warms with a ramp nor cools
    // Gaussian noise on the converters' counts of a ramp (standard deviation
    // in counts, 0: none), from a seeded generator so that a run repeats.
    void setNoise(double counts, unsigned seed);
    long noisy(long count);
    double noiseCounts = 0.0;
    std::mt19937 noiseSource;
    double heatCapacity = 400.0; // J/K
    double measureMs = 1000.0;   // ramp time at real pace
    std::string eol = "\r";
    double hsink_now(double now);

    // Boot loader.
    enum Mode { App, LoaderWindow, Loader } mode = App;
    double windowMs = 1000.0;
    double windowEnd = 0.0;
    int loaderVersion = 2;
    unsigned chipId = 0xBF, chipProcess = 3;
    int family = 1;               // 0 dsPIC30F, 1 dsPIC33F, 2 PIC24H, 3 PIC24F
    int nakCount = 0;             // rows to refuse with 0x00; -1 refuses every row
    std::set<int> silentCommands; // loader commands that act but are never answered
    std::string greeting = std::string("\0\x09\x09\x09\x0D", 5); // sent after each reset
    // Forced answers by loader command byte (0x11, 0x09, 0x02, 0x03), as they stand.
    std::map<int, std::deque<std::string>> loaderReplies;
    std::map<uint32_t, uint32_t> flash; // instruction address -> 24-bit word
    std::vector<uint32_t> rowsWritten;
    int rowSize() const { return family == 0 ? 32 : 512; }
    void resetFlash();

private:
    void command(const std::string& line);
    void loaderInput(const std::string& bytes);
    void reply(const std::string& echo, const std::vector<std::string>& data, long status,
               bool dataOnError);
    void greet();
    long condition(double* voc, double* isc);
    Instrument* inst;
    std::string pending;
    std::string loaderBuffer;
};

// The remote sensor unit on /dev/ttyUSB<n> or /dev/rfcomm0.
class RemoteUnit
{
public:
    explicit RemoteUnit(Instrument* owner) : inst(owner) {}
    void input(const std::string& bytes);
    int generation = 2;
    double sensitivity = 10.54; // PYSENS, version 2
    bool noIrradiance = false, noCell = false, noAmbient = false;
    std::vector<std::string> log;
    std::deque<std::string> forcedReplies; // answers of the next commands, as they stand
    SerialLine line;
    std::string link = "usb0"; // "none", "usb<n>", "rfcomm"

private:
    void command(const std::string& text);
    Instrument* inst;
    std::string pending;
};

class Instrument
{
public:
    Instrument(const std::string& root, bool fast);
    ~Instrument();
    bool start(std::string* error);

    // One request line from a client; the reply line without its newline.
    std::string handle(const std::string& line, bool* quit);
    // Pollable descriptors of the serial lines and housekeeping.
    std::vector<SerialLine*> lines();
    void lineReadable(SerialLine* line);
    double tick(); // ms until the next piece of output is due, -1 none

    // Take the nodes away at the end (not when another simulator took over).
    bool cleanUp = true;

    // Shared with the parts.
    std::string root;
    bool fast;
    Calibration cal;
    Environment env;
    PvSource pv;
    SourceFault fault = SourceFault::None;
    Ad7795 adc{this};
    Board board{this};
    RemoteUnit remote{this};
    SerialLine boardLine;
    double cellTemperature() const;
    double moduleTemperature() const;
    void applyConditions();

    std::string path(const std::string& devicePath) const { return root + devicePath; }
    std::string stateDir() const { return root + "/var/lib/krm510-sim"; }

private:
    struct Gpio {
        bool output = false;
        int level = 0;
        int writes = 0;
        bool tap = false; // reads low once, then high again: one quick key press
    };
    std::string bus(const std::vector<std::string>& w);
    std::string scenario(const std::vector<std::string>& w, const std::string& line, bool* quit);
    std::string gpioRequest(const std::string& dev, const std::string& verb,
                            const std::vector<std::string>& w);
    void setPowerLevel(int level);
    bool createNode(const std::string& devicePath);
    bool removeNode(const std::string& devicePath);
    bool setRemoteLink(std::string link, std::string* error);
    void stickIn();
    void stickOut();
    std::string pvQuery(const std::vector<std::string>& w);

    std::map<int, Gpio> gpio;
    std::map<std::string, std::string> nodes; // device path -> "" (plain file) or symlink target
    std::set<std::string> removed;
    uint8_t backlight[6] = {0, 0, 0, 0, 0, 0};
    std::vector<std::string> i2cLog;
    std::map<std::string, std::vector<unsigned long>> spiSettings; // dev -> mode, bits, speed
    bool stick = false;
};

extern const char* const keyNames[6];
extern const int keyLines[6];

} // namespace sim

#endif
