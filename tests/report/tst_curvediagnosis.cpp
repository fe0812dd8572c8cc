#include "reportmeasure.h"

#include "data/datasetting.h"
#include "device/gpiopd.h"
#include "measure/panelfixture.h"
#include "support/simmeasure.h"
#include "support/siminstrument.h"
#include "support/testroot.h"

#include <QFile>
#include <QtTest>

class TestCurveDiagnosis : public QObject
{
    Q_OBJECT
private slots:
    void dump()
    {
        TestRoot root(0.1);
        SimInstrument sim(root);
        QVERIFY(sim.isRunning());
        _configParam c;
        defaultConfig(&c);
        root.mkdir("/krm510data/datameastring");
        root.mkdir("/krm510data/datameapanel");
        QVERIFY(sim.setAdapter(true));
        QVERIFY(sim.setIrradiance(1000));
        QVERIFY(sim.setCellTemperature(60));
        QVERIFY(sim.command("set tmodule cell"));
        QCOMPARE(powerDeviceStart(0) >= 0, true);
        const _panelFeature ref = panelfixture::simulatedSheet();
        const char* faults[] = {"none"};// "shade 0.8 0 0", "shade 0.5 0 0", "shade 0.2 0 0",
                                
        int n = 0;
        for (int modules : {1, 4}) {
            QVERIFY(sim.setSeries(modules));
            for (const char* f : faults) {
                QVERIFY(sim.setFault("none"));
                QVERIFY(sim.setFault(f));
                QVERIFY(sim.setFault("noise 2 3"));
                const QByteArray figures = sim.value("pv figures");
                SimMeasure how;
                how.modules = modules;
                how.irradiance = 1000;
                how.temperature = 60;
                const QByteArray t = QStringLiteral("10:%1:00").arg(n++, 2, 10, QChar('0')).toLatin1();
                how.time = t.constData();
                const QString file = takeSimulatedMeasure(c, ref, how);
                QVERIFY(!file.isEmpty());
                ReportMeasure m;
                QString error;
                QVERIFY2(m.load(file, modules > 1 ? MEA_STRING : MEA_PANEL, &error), qPrintable(error));
                QFile out(QStringLiteral("/tmp/iec-%1-%2.csv").arg(modules).arg(QString(f).replace(' ', '_')));
                QVERIFY(out.open(QIODevice::WriteOnly));
                out.write(QStringLiteral("# isc %1 voc %2 pmax %3 fig %4\n").arg(m.record.misc).arg(m.record.mvoc).arg(m.record.mpmax).arg(QString(figures)).toUtf8());
                for (int k = 0; k < 512; k++)
                    out.write(QStringLiteral("%1,%2,%3\n").arg(k).arg(m.record.ramp.tensione[k]).arg(m.record.ramp.corrente[k]).toUtf8());
            }
        }
    }
};

QTEST_MAIN(TestCurveDiagnosis)
#include "tst_curvediagnosis.moc"
