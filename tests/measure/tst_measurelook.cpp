#include "measure/dialogshutdown.h"
#include "measure/panelfixture.h"
#include "measure/refpanel.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "toolkit/titlestrip.h"

#include <QListWidget>
#include <QTimer>

using namespace panelfixture;

// The reference choice and the measuring dialogs with the instrument's look.
class TestMeasureLook : public QObject
{
    Q_OBJECT

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void operatorSeesWhereTheyAre_everyCharacteristicOfTheReferenceShown()
    {
        TestRoot root(0.01);
        configure(root);
        QVERIFY(addModule("Alfa", "alfa", "A 250", "a_250", simulatedSheet()));
        QVERIFY(addModule("Alfa", "alfa", "A 300", "a_300", simulatedSheet()));
        QVERIFY(addModule("Beta", "beta", "B 300", "b_300", simulatedSheet()));
        ReferencePanel d(nullptr);
        d.resize(1024, 600);
        d.show();
        QVERIFY(QTest::qWaitForWindowActive(&d));
        QListWidget* brands = child<QListWidget>(&d, "Marca");
        QListWidget* models = child<QListWidget>(&d, "Modello");
        QListWidget* features = child<QListWidget>(&d, "Caratteristiche");
        brands->setCurrentRow(0);
        QTRY_COMPARE(models->count(), 2);
        models->setCurrentRow(1);
        QTRY_COMPARE(features->count(), 5);
        QCoreApplication::processEvents();
        for (int row = 0; row < features->count(); ++row) {
            const QRect shown = features->visualItemRect(features->item(row));
            QVERIFY2(features->viewport()->rect().contains(shown),
                     qPrintable(features->item(row)->text()));
        }
        QVERIFY(QFontInfo(features->font()).pixelSize() >= 11);
        saveScreenshot(&d, "look-reference-choice");
        QStringList faults = legibilityFaults(&d);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));

        // the focus, brought by touch from the brands to the models, is marked
        brands->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(brands->hasFocus());
        const QImage before = grabScreen(&d);
        models->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(models->hasFocus());
        const QImage after = grabScreen(&d);
        faults = focusMarkFaults(&d, before, after, brands, models);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void operatorSeesWhereTheyAre_batteryDialogTitleDrawn()
    {
        TestRoot root(0.01);
        DialogShutDown battery(nullptr);
        // its look only: the poll of the supply, which closes it, stays off
        for (QTimer* poll : battery.findChildren<QTimer*>())
            poll->stop();
        battery.show();
        QVERIFY(QTest::qWaitForWindowExposed(&battery));
        QVERIFY(TitleStrip::of(&battery) != nullptr);
        QCOMPARE(TitleStrip::of(&battery)->text(), QString("Batteria"));
        const QStringList faults = legibilityFaults(&battery);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }
};

QTEST_MAIN(TestMeasureLook)
#include "tst_measurelook.moc"
