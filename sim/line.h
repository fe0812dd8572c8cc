#ifndef KRM_SIM_LINE_H
#define KRM_SIM_LINE_H

// A serial line of the simulated instrument: a pseudo-terminal whose slave
// side is linked into the machine folder (e.g. <root>/dev/ttyS1), so that the
// program opens it with termios and reads it with select and read for real.
// The simulator writes through the master side, paced at the line's baud
// rate, or at once in fast mode.

#include <deque>
#include <string>

namespace sim {

class SerialLine
{
public:
    SerialLine() = default;
    ~SerialLine();
    SerialLine(const SerialLine&) = delete;
    SerialLine& operator=(const SerialLine&) = delete;

    bool open(std::string* error);
    void close();
    bool isOpen() const { return master >= 0; }
    int masterFd() const { return master; }
    const std::string& slavePath() const { return slaveName; }

    // Bytes per second of output; 0 sends everything at once.
    void setRate(double bytesPerSecond) { rate = bytesPerSecond; }
    // Queues bytes, after a pause of `delayMs` from the end of what is
    // already queued.
    void send(const std::string& bytes, double delayMs = 0.0);
    void clearOutput();
    bool outputPending() const { return !queue.empty(); }

    // Reads what the program wrote; empty when nothing.
    std::string receive();
    // Writes what is due; returns the milliseconds until the next piece is
    // due (-1 when nothing is queued). `blocked` is set when the terminal's
    // buffer is full.
    double service(double now, bool* blocked);

private:
    struct Piece {
        std::string bytes;
        double delayMs;
    };
    int master = -1;
    int slave = -1;
    std::string slaveName;
    double rate = 0.0;
    std::deque<Piece> queue;
    double nextAt = 0.0;
};

} // namespace sim

#endif
