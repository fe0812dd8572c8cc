#include "benchwindow.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDoubleSpinBox>
#include <QFormLayout>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QSpinBox>
#include <QTimer>
#include <QVBoxLayout>
#include <cerrno>
#include <cstring>
#include <poll.h>
#include <sys/socket.h>
#include <sys/un.h>
#include <unistd.h>

namespace
{

const char* const keyNames[6] = {"escape", "up", "backtab", "return", "down", "tab"};
const char* const keyLabels[6] = {"Esc", "Up", "Back tab", "Enter", "Down", "Tab"};
// A key held longer than this is down until it is let go.
const int keyHoldMs = 400;

QByteArray number(double v)
{
    return QByteArray::number(v, 'g', 8);
}

} // namespace

const BenchModule BenchWindow::modules[] = {
    {"Mono 60 cells 300 W", "monocrystalline", 300.0, 32.6, 9.20, 39.8, 9.75, 0.050, -0.29, -0.39,
     45.0, 60, 3},
    {"Mono 72 cells 370 W", "monocrystalline", 370.0, 39.4, 9.39, 48.2, 9.92, 0.048, -0.28, -0.37,
     44.0, 72, 3},
    {"Poly 60 cells 250 W", "polycrystalline", 250.0, 30.4, 8.23, 37.6, 8.81, 0.060, -0.32, -0.41,
     46.0, 60, 3},
    {"Poly 72 cells 320 W", "polycrystalline", 320.0, 36.8, 8.70, 45.6, 9.25, 0.060, -0.32, -0.41,
     45.0, 72, 3},
    {"Thin film 117 W", "thin film", 117.5, 69.4, 1.69, 87.6, 1.83, 0.040, -0.28, -0.28, 45.0, 116,
     1},
    {"Amorphous 100 W", "amorphous", 100.0, 44.8, 2.23, 60.5, 2.62, 0.090, -0.30, -0.20, 46.0, 72,
     1},
    {"Micromorph 128 W", "micromorph", 128.0, 104.0, 1.23, 133.0, 1.42, 0.070, -0.33, -0.24, 45.0,
     100, 1},
};
const int BenchWindow::moduleCount = int(sizeof modules / sizeof modules[0]);

BenchWindow::BenchWindow(const QString& path, QWidget* parent) : QWidget(parent), socketPath(path)
{
    setWindowTitle("KRM 510 bench");

    QGroupBox* world = new QGroupBox("Sun and temperatures");
    QFormLayout* worldForm = new QFormLayout(world);
    irradiance = new QDoubleSpinBox;
    irradiance->setObjectName("irradiance");
    irradiance->setRange(0, 1500);
    irradiance->setDecimals(0);
    irradiance->setSingleStep(50);
    irradiance->setSuffix(" W/m2");
    irradiance->setValue(1000);
    worldForm->addRow("Irradiance", irradiance);
    moduleTemperature = new QDoubleSpinBox;
    moduleTemperature->setObjectName("tmodule");
    moduleTemperature->setRange(-20, 90);
    moduleTemperature->setDecimals(1);
    moduleTemperature->setSuffix(" C");
    moduleTemperature->setValue(25);
    worldForm->addRow("Module (cells)", moduleTemperature);
    ambientTemperature = new QDoubleSpinBox;
    ambientTemperature->setObjectName("tambient");
    ambientTemperature->setRange(-20, 60);
    ambientTemperature->setDecimals(1);
    ambientTemperature->setSuffix(" C");
    ambientTemperature->setValue(20);
    worldForm->addRow("Ambient", ambientTemperature);

    QGroupBox* source = new QGroupBox("On the measuring inputs");
    QFormLayout* sourceForm = new QFormLayout(source);
    module = new QComboBox;
    module->setObjectName("module");
    for (int i = 0; i < moduleCount; i++)
        module->addItem(modules[i].name);
    sourceForm->addRow("Module", module);
    series = new QSpinBox;
    series->setObjectName("series");
    series->setRange(1, 40);
    series->setSpecialValueText("1 (one module)");
    sourceForm->addRow("In series", series);
    dataSheet = new QLabel;
    dataSheet->setObjectName("dataSheet");
    sourceForm->addRow(dataSheet);
    fault = new QComboBox;
    fault->setObjectName("fault");
    fault->addItem("none", "none");
    fault->addItem("half shade on one substring", "shade 0.5 0 0");
    fault->addItem("bypass diode short", "bypass short 0 0");
    fault->addItem("bypass diode open, substring shaded", "bypass open 0 0");
    fault->addItem("series resistance +1 ohm per module", "rs 1");
    fault->addItem("shunt of 20 ohm per module", "shunt 20");
    fault->addItem("noise of 2 counts", "noise 2");
    fault->addItem("open circuit", "open");
    fault->addItem("reversed polarity", "reverse");
    fault->addItem("floating negative", "floating");
    sourceForm->addRow("Fault", fault);

    QGroupBox* supply = new QGroupBox("Battery, adapter, stick, timing");
    QFormLayout* supplyForm = new QFormLayout(supply);
    battery = new QDoubleSpinBox;
    battery->setObjectName("battery");
    battery->setRange(9.0, 14.5);
    battery->setDecimals(2);
    battery->setSingleStep(0.1);
    battery->setSuffix(" V");
    battery->setValue(12.9);
    supplyForm->addRow("Battery", battery);
    adapter = new QCheckBox("Adapter plugged in");
    adapter->setObjectName("adapter");
    supplyForm->addRow(adapter);
    stick = new QCheckBox("USB stick in");
    stick->setObjectName("stick");
    supplyForm->addRow(stick);
    real = new QRadioButton("Real timing");
    real->setObjectName("real");
    fast = new QRadioButton("Fast");
    fast->setObjectName("fast");
    QHBoxLayout* timing = new QHBoxLayout;
    timing->addWidget(real);
    timing->addWidget(fast);
    supplyForm->addRow(timing);

    QGroupBox* keys = new QGroupBox("Keys");
    QGridLayout* keyGrid = new QGridLayout(keys);
    for (int i = 0; i < 6; i++) {
        QPushButton* key = new QPushButton(keyLabels[i]);
        key->setObjectName(QString("key_") + keyNames[i]);
        key->setFocusPolicy(Qt::NoFocus);
        keyGrid->addWidget(key, i / 3, i % 3);
        const char* name = keyNames[i];
        connect(key, &QPushButton::pressed, this, [this, name]() { keyPressed(name); });
        connect(key, &QPushButton::released, this, [this, name]() { keyReleased(name); });
    }

    state = new QLabel;
    state->setObjectName("state");
    state->setWordWrap(true);
    lastAnswer = new QLabel;
    lastAnswer->setObjectName("answer");
    log = new QPlainTextEdit;
    log->setObjectName("log");
    log->setReadOnly(true);
    log->setMaximumBlockCount(2000);

    QVBoxLayout* left = new QVBoxLayout;
    left->addWidget(world);
    left->addWidget(source);
    left->addWidget(supply);
    left->addWidget(keys);
    left->addStretch();
    QVBoxLayout* right = new QVBoxLayout;
    right->addWidget(new QLabel("Commands received by the measuring board"));
    right->addWidget(log, 1);
    right->addWidget(state);
    right->addWidget(lastAnswer);
    QHBoxLayout* all = new QHBoxLayout(this);
    all->addLayout(left);
    all->addLayout(right, 1);

    connect(irradiance, &QDoubleSpinBox::valueChanged, this, &BenchWindow::sendIrradiance);
    connect(moduleTemperature, &QDoubleSpinBox::valueChanged, this, &BenchWindow::sendTemperatures);
    connect(ambientTemperature, &QDoubleSpinBox::valueChanged, this,
            &BenchWindow::sendTemperatures);
    connect(module, &QComboBox::currentIndexChanged, this, &BenchWindow::sendModule);
    connect(series, &QSpinBox::valueChanged, this, &BenchWindow::sendSeries);
    connect(fault, &QComboBox::currentIndexChanged, this, &BenchWindow::sendFault);
    connect(battery, &QDoubleSpinBox::valueChanged, this, &BenchWindow::sendBattery);
    connect(adapter, &QCheckBox::toggled, this, &BenchWindow::sendAdapter);
    connect(stick, &QCheckBox::toggled, this, &BenchWindow::sendStick);
    connect(real, &QRadioButton::toggled, this, &BenchWindow::sendTiming);

    // The simulator's present mode, then the world this window shows.
    const bool isFast = call("timing").startsWith("ok fast");
    (isFast ? fast : real)->setChecked(true);
    sendModule();
    sendIrradiance();
    sendTemperatures();

    poll = new QTimer(this);
    connect(poll, &QTimer::timeout, this, &BenchWindow::refresh);
    poll->start(500);
    refresh();
}

BenchWindow::~BenchWindow()
{
    if (fd >= 0)
        ::close(fd);
}

QByteArray BenchWindow::call(const QByteArray& line)
{
    if (fd < 0) {
        const QByteArray path = socketPath.toLocal8Bit();
        struct sockaddr_un address;
        memset(&address, 0, sizeof address);
        address.sun_family = AF_UNIX;
        if (size_t(path.size()) >= sizeof address.sun_path)
            return QByteArray();
        memcpy(address.sun_path, path.constData(), size_t(path.size()));
        fd = ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC, 0);
        if (fd < 0)
            return QByteArray();
        if (::connect(fd, reinterpret_cast<struct sockaddr*>(&address), sizeof address) != 0) {
            ::close(fd);
            fd = -1;
            return QByteArray();
        }
    }
    const QByteArray request = line + "\n";
    QByteArray answer;
    bool broken =
        send(fd, request.constData(), size_t(request.size()), MSG_NOSIGNAL) != request.size();
    while (!broken && !answer.endsWith('\n')) {
        struct pollfd p = {fd, POLLIN, 0};
        char buffer[65536];
        ssize_t r = -1;
        if (::poll(&p, 1, 3000) == 1)
            r = read(fd, buffer, sizeof buffer);
        if (r < 0 && errno == EINTR)
            continue;
        if (r <= 0)
            broken = true;
        else
            answer.append(buffer, int(r));
    }
    if (broken) {
        ::close(fd); // a new simulator may come: connect again next time
        fd = -1;
        return QByteArray();
    }
    answer.chop(1);
    return answer;
}

void BenchWindow::say(const QByteArray& line)
{
    const QByteArray answer = call(line);
    lastAnswer->setText(
        QString::fromLatin1(line + "  ->  " + (answer.isEmpty() ? "no simulator" : answer)));
}

QStringList BenchWindow::parseLog(const QByteArray& answer)
{
    QStringList lines;
    if (!answer.startsWith("ok "))
        return lines;
    const QList<QByteArray> words = answer.mid(3).split(' ');
    for (int i = 1; i < words.size(); i++) {
        const QByteArray& w = words[i];
        QByteArray text;
        for (int k = 0; k < w.size(); k++) {
            if (w[k] != '\\' || k + 1 >= w.size()) {
                text += w[k];
                continue;
            }
            const char e = w[++k];
            if (e == 'r')
                text += "\\r"; // kept visible: the board's line ends
            else if (e == 'n')
                text += "\\n";
            else if (e == 't')
                text += '\t';
            else if (e == 'x' && k + 2 < w.size()) {
                bool ok = false;
                const int c = w.mid(k + 1, 2).toInt(&ok, 16);
                text +=
                    ok && c >= 0x20 && c < 0x7f ? QByteArray(1, char(c)) : "\\x" + w.mid(k + 1, 2);
                k += 2;
            } else
                text += e;
        }
        lines << QString::fromLatin1(text);
    }
    return lines;
}

void BenchWindow::refresh()
{
    const QByteArray world = call("get");
    state->setText(world.isEmpty() ? "krm510-simd does not answer"
                                   : QString::fromLatin1(world.mid(3)));
    const QByteArray answer = call("board log");
    const int count = answer.startsWith("ok ") ? answer.mid(3).split(' ').value(0).toInt() : 0;
    if (count < logged) {
        log->appendPlainText("-- log cleared --");
        logged = 0;
    }
    if (count > logged) {
        const QStringList lines = parseLog(answer);
        for (int i = logged; i < lines.size(); i++)
            log->appendPlainText(lines[i]);
        logged = count;
    }
}

void BenchWindow::sendIrradiance()
{
    say("set irradiance " + number(irradiance->value()));
}

void BenchWindow::sendTemperatures()
{
    say("set tcell " + number(moduleTemperature->value()));
    say("set tambient " + number(ambientTemperature->value()));
}

void BenchWindow::sendModule()
{
    const BenchModule& m = modules[qBound(0, module->currentIndex(), moduleCount - 1)];
    say("set module pmax=" + number(m.pmax) + " impp=" + number(m.impp) +
        " vmpp=" + number(m.vmpp) + " isc=" + number(m.isc) + " voc=" + number(m.voc) +
        " kisc=" + number(m.kisc) + " kvoc=" + number(m.kvoc) + " kpmax=" + number(m.kpmax) +
        " noct=" + number(m.noct) + " cells=" + QByteArray::number(m.cells) +
        " bypass=" + QByteArray::number(m.bypass));
    dataSheet->setText(QString("%1: Pmax %2 W, Vmpp %3 V, Impp %4 A, Voc %5 V, Isc %6 A,\n"
                               "NOCT %7 C, Isc %8 %/C, Voc %9 %/C, Pmax %10 %/C, %11 cells")
                           .arg(m.technology)
                           .arg(m.pmax)
                           .arg(m.vmpp)
                           .arg(m.impp)
                           .arg(m.voc)
                           .arg(m.isc)
                           .arg(m.noct)
                           .arg(m.kisc)
                           .arg(m.kvoc)
                           .arg(m.kpmax)
                           .arg(m.cells));
}

void BenchWindow::sendSeries()
{
    say("set series " + QByteArray::number(series->value()));
}

void BenchWindow::sendFault()
{
    say("fault none");
    const QByteArray f = fault->currentData().toByteArray();
    if (f != "none") {
        if (f.startsWith("bypass open"))
            say("fault shade 0.3 0 0"); // an open diode shows only when its substring is shaded
        say("fault " + f);
    }
}

void BenchWindow::sendBattery()
{
    say("set battery " + number(battery->value()));
}

void BenchWindow::sendAdapter()
{
    say(adapter->isChecked() ? "set adapter 1" : "set adapter 0");
}

void BenchWindow::sendStick()
{
    say(stick->isChecked() ? "stick in" : "stick out");
}

void BenchWindow::sendTiming()
{
    say(real->isChecked() ? "timing real" : "timing fast");
}

void BenchWindow::keyPressed(const char* name)
{
    // A click is one press of the key; a key held down repeats, as on the
    // instrument, until it is let go.
    for (int i = 0; i < 6; i++)
        if (keyNames[i] == name)
            keyHeld[i].start();
    say(QByteArray("key tap ") + name);
    QTimer::singleShot(keyHoldMs, this, [this, name]() {
        for (int i = 0; i < 6; i++)
            if (keyNames[i] == name && keyHeld[i].isValid())
                say(QByteArray("key press ") + name);
    });
}

void BenchWindow::keyReleased(const char* name)
{
    for (int i = 0; i < 6; i++)
        if (keyNames[i] == name && keyHeld[i].isValid()) {
            const bool held = keyHeld[i].elapsed() >= keyHoldMs;
            keyHeld[i].invalidate();
            if (held)
                say(QByteArray("key release ") + name);
        }
}
