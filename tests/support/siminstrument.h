#ifndef KRM_TESTS_SIMINSTRUMENT_H
#define KRM_TESTS_SIMINSTRUMENT_H

#include <QByteArray>
#include <QList>
#include <QString>
#include <QStringList>
#include <sys/types.h>

class TestRoot;

// A complete simulated instrument for a test: starts krm510-simd (its own
// process, built with the tests) on the test's machine folder, waits until it
// answers, offers the scenario commands of sim/README.md, and stops it.
//
//     TestRoot root(0.1);
//     SimInstrument sim(root);            // fast mode
//     QVERIFY(sim.isRunning());
//     sim.setIrradiance(800);
//     sim.pressKey("return");
//
// The program under test reaches it through its device nodes and the
// simulated bus back end; the test speaks to it through these calls.
class SimInstrument
{
public:
    explicit SimInstrument(const TestRoot& root, bool fast = true,
                           const QStringList& scenario = {});
    explicit SimInstrument(const QString& rootPath, bool fast = true,
                           const QStringList& scenario = {});
    ~SimInstrument();
    SimInstrument(const SimInstrument&) = delete;
    SimInstrument& operator=(const SimInstrument&) = delete;

    bool isRunning() const;
    // Ends the simulator (SIGTERM, then SIGKILL after 3 s); true when it
    // shut down cleanly.
    bool stop();

    // One scenario line; the whole answer line ("ok ..." or "error ..."),
    // empty when the simulator cannot be reached.
    QByteArray call(const QByteArray& line) const;
    // True when the answer is "ok".
    bool command(const QByteArray& line) const;
    // The answer's text behind "ok ", or a null array on error.
    QByteArray value(const QByteArray& line) const;
    // One "key=value" field of an answer, e.g. field("pv figures", "voc").
    QByteArray field(const QByteArray& line, const QByteArray& key) const;

    // The world.
    bool setIrradiance(double wm2) const;
    bool setCellTemperature(double c) const;
    bool setModuleTemperature(double c) const;
    bool setAmbientTemperature(double c) const;
    bool setBattery(double volts) const;
    bool setAdapter(bool plugged) const;
    bool setSeries(int modules) const;
    bool setFault(const QByteArray& fault) const; // "none", "open", "shade 0.5 0 0", ...
    // Keys: "escape", "up", "backtab", "return", "down", "tab".
    bool pressKey(const char* key) const;
    bool releaseKey(const char* key) const;
    // One quick press, as a finger gives it: the line reads low once, so one
    // key poller (the one of the window in front) sees it. Serves events
    // until a poller has read it, and so has sent the key; false after 5 s.
    bool tapKey(const char* key) const;
    bool stickIn() const;
    bool stickOut() const;
    QString stickPath() const; // host folder of the stick's content
    bool removeNode(const char* devicePath) const;
    bool restoreNode(const char* devicePath) const;
    // Exact raw counts on a converter channel ("pyrano", "pt100",
    // "reference", "battery"); -1 gives the computed value back.
    bool forceAdc(const char* channel, int count) const;
    // The next command to the board is answered with exactly these bytes.
    bool forceBoardReply(const QByteArray& bytes) const;
    bool setBoardFault(const QByteArray& fault) const; // "nostatus", "pause 2000", "none", ...

    // What the program did.
    QStringList boardCommands() const;
    QList<unsigned> flashRows() const;
    int backlightRegister(const char* name) const; // "psc0", "pwm0", "psc1", "pwm1", "ls0"
    int powerLineLevel() const;

    QString root() const { return rootPath; }

private:
    void start(bool fast, const QStringList& scenario);
    QString rootPath;
    pid_t pid = -1;
};

#endif
