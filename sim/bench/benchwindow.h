#ifndef KRM_SIM_BENCHWINDOW_H
#define KRM_SIM_BENCHWINDOW_H

// The bench of the simulated instrument: one window that sets the world the
// instrument measures (sun, temperatures, the module or string on its inputs
// and their faults, battery and adapter, the USB stick), presses its six
// hardware keys, switches krm510-simd between real and fast timing and shows
// the commands the measuring board received. It speaks the scenario commands
// of sim/README.md over the simulator's socket, one line per request, and
// nothing else: it knows nothing of the program.

#include <QByteArray>
#include <QElapsedTimer>
#include <QString>
#include <QWidget>

class QCheckBox;
class QComboBox;
class QDoubleSpinBox;
class QLabel;
class QPlainTextEdit;
class QRadioButton;
class QSpinBox;
class QTimer;

struct BenchModule {
    const char* name;
    const char* technology;
    double pmax, vmpp, impp, voc, isc, kisc, kvoc, kpmax, noct;
    int cells, bypass;
};

class BenchWindow : public QWidget
{
    Q_OBJECT
public:
    // socketPath: <root>/dev/krm510-sim.sock
    explicit BenchWindow(const QString& socketPath, QWidget* parent = nullptr);
    ~BenchWindow() override;

    // One scenario line; the answer line without its newline, empty when the
    // simulator can't be reached.
    QByteArray call(const QByteArray& line);

    static const BenchModule modules[];
    static const int moduleCount;
    // "board log" answer: the escaped lines, unescaped.
    static QStringList parseLog(const QByteArray& answer);

public slots:
    // Asks the simulator for its state and the new board commands.
    void refresh();

private slots:
    void sendIrradiance();
    void sendTemperatures();
    void sendModule();
    void sendSeries();
    void sendFault();
    void sendBattery();
    void sendAdapter();
    void sendStick();
    void sendTiming();

private:
    void keyPressed(const char* name);
    void keyReleased(const char* name);
    void say(const QByteArray& line);

    QString socketPath;
    int fd = -1;
    QDoubleSpinBox* irradiance;
    QDoubleSpinBox* moduleTemperature;
    QDoubleSpinBox* ambientTemperature;
    QComboBox* module;
    QSpinBox* series;
    QLabel* dataSheet;
    QComboBox* fault;
    QDoubleSpinBox* battery;
    QCheckBox* adapter;
    QCheckBox* stick;
    QRadioButton* real;
    QRadioButton* fast;
    QLabel* state;
    QLabel* lastAnswer;
    QPlainTextEdit* log;
    QTimer* poll;
    int logged = 0;
    QElapsedTimer keyHeld[6];
};

#endif
