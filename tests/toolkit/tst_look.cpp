#include "data/datasetting.h"
#include "support/lookcheck.h"
#include "support/screenshot.h"
#include "support/testroot.h"
#include "toolkit/dialogbright.h"
#include "toolkit/dialogsystem.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/focusmark.h"
#include "toolkit/instrumentstyle.h"
#include "toolkit/messagebox.h"
#include "toolkit/plotter.h"
#include "toolkit/textfit.h"
#include "toolkit/titlestrip.h"

#include <QComboBox>
#include <QDateTimeEdit>
#include <QLabel>
#include <QListWidget>
#include <QProxyStyle>
#include <QPushButton>
#include <QScrollArea>
#include <QStyle>
#include <QStyleFactory>
#include <QStyleOptionButton>
#include <QToolButton>
#include <QtTest>
#include <algorithm>
#include <memory>

// The operator always sees where they are: one look for the whole program,
// the dialog titles drawn, the focus marked, disabled controls that look
// disabled and texts no smaller than 11 pixels.
class TestLook : public QObject
{
    Q_OBJECT

    static _configParam defaults()
    {
        _configParam c;
        defaultConfig(&c);
        return c;
    }
    static void showActive(QWidget* w)
    {
        w->show();
        QVERIFY(QTest::qWaitForWindowExposed(w));
        w->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(w));
    }
    // The contrast between a button's text enabled and disabled: the median
    // over the pixels where the enabled text stands out of its face.
    static double disabledTextContrast(QAbstractButton* button)
    {
        button->setEnabled(true);
        const QImage enabled = grabScreen(button);
        button->setEnabled(false);
        const QImage disabled = grabScreen(button);
        QList<double> ratios;
        // inside the frame of the button: only its text
        for (int y = 5; y < enabled.height() - 5; ++y)
            for (int x = 5; x < enabled.width() - 5; ++x) {
                // the face of the row, a gradient from top to bottom
                const QColor background(enabled.pixel(5, y));
                const QColor text(enabled.pixel(x, y));
                if (contrastRatio(text, background) >= 3.0)
                    ratios << contrastRatio(text, QColor(disabled.pixel(x, y)));
            }
        if (ratios.isEmpty())
            return 1.0;
        std::sort(ratios.begin(), ratios.end());
        return ratios.at(ratios.size() / 2);
    }

    // The widget drawn as it stands, and drawn again with the font given set
    // on it: equal when the style drew its text in that font.
    static bool drawnInFont(QWidget* w, const QFont& font)
    {
        const QImage drawn = grabScreen(w);
        const QFont own = w->font();
        w->setFont(font);
        const QImage expected = grabScreen(w);
        w->setFont(own);
        return drawn == expected;
    }
    // The largest size, not above the widget's, in which the text fits the
    // room: its size fits, one pixel more does not.
    static int largestFit(const QFont& font, const QString& text, const QRect& room, int flags)
    {
        const TextFit fit = fitTextInBox(font, text, room, flags);
        if (!fit.fits)
            return -1;
        if (fontPixels(fit.font) == fontPixels(font))
            return fontPixels(font);
        QFont larger = fit.font;
        larger.setPixelSize(fontPixels(fit.font) + 1);
        const QRect need = QFontMetrics(larger).boundingRect(room, flags, text);
        const bool largerFits = need.width() <= room.width() && need.height() <= room.height();
        return largerFits ? -1 : fontPixels(fit.font);
    }

public:
    static void initMain() { useInstrumentScreen(); }

private slots:
    void initTestCase()
    {
        useInstrumentDpi();
        setInstrumentLook();
    }

    void operatorSeesWhereTheyAre_oneLookForEveryScreen()
    {
        QCOMPARE(QFontInfo(QApplication::font()).pixelSize(), 38);
        QVERIFY(QApplication::font().bold());
        QCOMPARE(QApplication::font().family(), QString("helvetica"));
        // the toolkit's own light palette: the black is the screen behind
        QVERIFY(QApplication::palette().color(QPalette::Window).lightness() > 160);
        QVERIFY(QApplication::palette().color(QPalette::ButtonText).lightness() < 80);
        QProxyStyle* style = qobject_cast<QProxyStyle*>(QApplication::style());
        QVERIFY(style != nullptr);
        QCOMPARE(style->baseStyle()->name().toLower(), QString("fusion"));
        // a button's icon where the screen gives no size
        QPushButton button(QIcon(":/icon/exit.png"), "Exit");
        QCOMPARE(button.iconSize(), QSize(32, 32));
        QVERIFY(QApplication::overrideCursor() != nullptr);
        QCOMPARE(QApplication::overrideCursor()->shape(), Qt::BlankCursor);
        // a second call stacks nothing
        setInstrumentLook();
        QApplication::restoreOverrideCursor();
        QVERIFY(QApplication::overrideCursor() == nullptr);
        QApplication::setOverrideCursor(QCursor(Qt::BlankCursor));
    }

    // A text wider than its label in some language: drawn in the largest size
    // in which it fits, the label keeping its font and its place.
    void operatorSeesWhereTheyAre_labelTooNarrowDrawsItsTextInTheLargestSizeThatFits()
    {
        QWidget screen;
        screen.resize(1024, 600);
        QLabel* label = new QLabel("Wiederherstellung des Power Device.", &screen);
        label->setGeometry(10, 10, 400, 60);
        showActive(&screen);
        QCOMPARE(fontPixels(label->font()), 38);
        const QRect room = textRoom(label->contentsRect(), int(label->alignment()));
        const int px = largestFit(label->font(), label->text(), room, int(label->alignment()));
        QVERIFY2(px >= MinTextPixels && px < 38, qPrintable(QString::number(px)));
        QFont fitted = label->font();
        fitted.setPixelSize(px);
        QVERIFY(drawnInFont(label, fitted));
        QCOMPARE(fontPixels(label->font()), 38);
        QCOMPARE(label->geometry(), QRect(10, 10, 400, 60));
        const QStringList faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    // A wrapped text taller than its label: smaller until its lines fit.
    void operatorSeesWhereTheyAre_wrappedTextTooTallDrawsInTheLargestSizeThatFits()
    {
        QWidget screen;
        screen.resize(1024, 600);
        QLabel* label = new QLabel("Valeurs STC pas disponibles. Repeter le test.", &screen);
        label->setWordWrap(true);
        label->setGeometry(10, 10, 420, 90);
        showActive(&screen);
        const int flags = int(label->alignment()) | Qt::TextWordWrap;
        const int px = largestFit(label->font(), label->text(), label->contentsRect(), flags);
        QVERIFY2(px >= MinTextPixels && px < 38, qPrintable(QString::number(px)));
        QFont fitted = label->font();
        fitted.setPixelSize(px);
        QVERIFY(drawnInFont(label, fitted));
        const QStringList faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    // A button's text beside its icon, a combo's entry, a list's row: each
    // drawn smaller where it does not fit, and then within its room.
    void operatorSeesWhereTheyAre_buttonComboAndRowFitTheirRoom()
    {
        QWidget screen;
        screen.resize(1024, 600);
        QPushButton* button = new QPushButton(QIcon(":/icon/exit.png"), "Sauvegarder", &screen);
        button->setGeometry(10, 10, 200, 60);
        QComboBox* combo = new QComboBox(&screen);
        combo->addItems({"Anschlussproblem an Power Device.", "Modul"});
        combo->setGeometry(10, 100, 300, 60);
        QListWidget* list = new QListWidget(&screen);
        list->addItem("Sonneneinstrahlung nicht ermittelt.");
        list->setGeometry(10, 200, 300, 200);
        showActive(&screen);
        // the button's text in the largest size that fits beside its icon
        QStyleOptionButton option;
        option.initFrom(button);
        option.text = button->text();
        option.icon = button->icon();
        option.iconSize = button->iconSize();
        const QRect contents =
            button->style()->subElementRect(QStyle::SE_PushButtonContents, &option, button);
        const QRect room(
            0, 0, InstrumentStyle::textBesideIcon(contents.width(), button->iconSize().width()),
            QWIDGETSIZE_MAX);
        const int px = largestFit(button->font(), button->text(), room, Qt::AlignCenter);
        QVERIFY2(px >= MinTextPixels && px < 38, qPrintable(QString::number(px)));
        QFont fitted = button->font();
        fitted.setPixelSize(px);
        QVERIFY(drawnInFont(button, fitted));
        // the combo drawn otherwise than by the toolkit's own style, and the
        // combo and the list legible as drawn
        std::unique_ptr<QStyle> fusion(QStyleFactory::create("Fusion"));
        const QImage drawn = grabScreen(combo);
        combo->setStyle(fusion.get());
        const QImage plain = grabScreen(combo);
        combo->setStyle(QApplication::style());
        QVERIFY(drawn != plain);
        const QStringList faults = legibilityFaults(&screen);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    // What does not fit even at 11 pixels is a fault of the screen, to be
    // mended by its layout.
    void operatorSeesWhereTheyAre_textThatOverflowsAtElevenPixelsIsAFault()
    {
        QWidget screen;
        screen.resize(1024, 600);
        QLabel* label = new QLabel("Dieser Messungsname ist bereits vorhanden.", &screen);
        label->setObjectName("narrow");
        label->setGeometry(10, 10, 60, 60);
        QPushButton* button = new QPushButton("Vergleichen", &screen);
        button->setGeometry(10, 100, 40, 60);
        showActive(&screen);
        const QStringList faults = legibilityFaults(&screen);
        QCOMPARE(faults.size(), 2);
        QVERIFY2(faults[0].startsWith("QLabel \"narrow\""), qPrintable(faults[0]));
        QVERIFY2(faults[0].contains("at 11 px"), qPrintable(faults[0]));
        QVERIFY2(faults[1].contains("Vergleichen"), qPrintable(faults[1]));
    }

    void operatorSeesWhereTheyAre_messageBoxTitleDrawn()
    {
        QMessageBox* box =
            newMessageBox(nullptr, QMessageBox::Critical, QString::fromUtf8("Unità Remota"),
                          "Errore di connessione");
        showActive(box);
        TitleStrip* strip = TitleStrip::of(box);
        QVERIFY(strip != nullptr);
        QCOMPARE(strip->text(), QString::fromUtf8("Unità Remota"));
        QCOMPARE(strip->geometry(), QRect(0, 0, box->width(), int(TitleStrip::Height)));
        // the title's text is drawn on the strip: white pixels on the dark
        const QImage picture = grabScreen(box);
        saveScreenshot(box, "look-message-box-title");
        int white = 0;
        int dark = 0;
        for (int y = 0; y < TitleStrip::Height; ++y)
            for (int x = 0; x < box->width(); ++x) {
                const QColor c(picture.pixel(x, y));
                white += c.lightness() > 230;
                dark += c.lightness() < 80;
            }
        QVERIFY2(white > 50, qPrintable(QString::number(white)));
        QVERIFY2(dark > box->width() * 10, qPrintable(QString::number(dark)));
        // the box's own texts stand below the strip
        for (QLabel* label : box->findChildren<QLabel*>())
            if (label != strip && label->isVisible())
                QVERIFY(label->geometry().top() >= TitleStrip::Height);
        QStringList faults = legibilityFaults(box);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        delete box;
    }

    void operatorSeesWhereTheyAre_dialogTitleFollowsItsTitle()
    {
        DialogBrightness dialog(nullptr, 50);
        showActive(&dialog);
        QVERIFY(TitleStrip::of(&dialog) != nullptr);
        QCOMPARE(TitleStrip::of(&dialog)->text(), QString::fromUtf8("Luminosità"));
        dialog.setWindowTitle("Batteria");
        QCOMPARE(TitleStrip::of(&dialog)->text(), QString("Batteria"));
        dialog.setWindowTitle(QString());
        QVERIFY(TitleStrip::of(&dialog) == nullptr);
        QCOMPARE(dialog.contentsMargins().top(), 0);
        // a long title is drawn smaller, never below 11 pixels
        dialog.setWindowTitle("Degrado Modulo, Luminosità");
        TitleStrip* strip = TitleStrip::of(&dialog);
        QVERIFY(strip != nullptr);
        QCOMPARE(fontPixels(strip->font()), int(TitleStrip::FontPixels));
        const int flags = int(strip->alignment());
        const QRect room =
            textRoom(strip->contentsRect().adjusted(strip->indent(), 0, 0, 0), flags);
        const int px = largestFit(strip->font(), strip->text(), room, flags);
        QVERIFY2(px >= MinTextPixels && px < TitleStrip::FontPixels,
                 qPrintable(QString::number(px)));
        QFont fitted = strip->font();
        fitted.setPixelSize(px);
        QVERIFY(drawnInFont(strip, fitted));
    }

    void operatorSeesWhereTheyAre_focusMarkedOnTheSettings()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem dialog(&c, nullptr);
        dialog.resize(1024, 600);
        showActive(&dialog);
        QList<QComboBox*> combos = dialog.findChildren<QComboBox*>();
        QComboBox* clock = combos.value(0);
        QDateTimeEdit* when = dialog.findChild<QDateTimeEdit*>();
        QVERIFY(clock && when);
        clock->setFocus();
        QTRY_VERIFY(clock->hasFocus());
        const QImage before = grabScreen(&dialog);
        // Down walks the settings' rows, as the instrument's key does
        QTest::keyClick(&dialog, Qt::Key_Down);
        QTRY_VERIFY(when->hasFocus());
        const QImage after = grabScreen(&dialog);
        saveScreenshot(&dialog, "look-settings-focus");
        QStringList faults = focusMarkFaults(&dialog, before, after, clock, when);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        faults = focusMarkFaults(&dialog, after, before, when, clock);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        faults = legibilityFaults(&dialog);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
    }

    void operatorSeesWhereTheyAre_focusMarkedOnAFlatButton()
    {
        DialogBrightness dialog(nullptr, 50);
        showActive(&dialog);
        QPushButton* ok = dialog.findChild<QPushButton*>("OK");
        QSlider* slider = dialog.findChild<QSlider*>();
        QVERIFY(ok && ok->isFlat() && slider);
        // the focus comes by touch
        ok->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(ok->hasFocus());
        const QImage before = grabScreen(&dialog);
        slider->setFocus(Qt::MouseFocusReason);
        QTRY_VERIFY(slider->hasFocus());
        const QImage after = grabScreen(&dialog);
        QStringList faults = focusMarkFaults(&dialog, before, after, ok, slider);
        QVERIFY2(faults.isEmpty(), qPrintable(faults.join('\n')));
        QVERIFY(dialog.findChild<FocusMark*>("focusMark") != nullptr);
    }

    void operatorSeesWhereTheyAre_focusComesBackFromAClosedDialog()
    {
        DialogBrightness dialog(nullptr, 50);
        showActive(&dialog);
        QPushButton* ok = dialog.findChild<QPushButton*>("OK");
        ok->setFocus();
        QTRY_VERIFY(ok->hasFocus());
        QMessageBox* box = newMessageBox(&dialog, QMessageBox::Information, "Batteria", "?");
        showActive(box);
        QTRY_VERIFY(box->isActiveWindow());
        QVERIFY(ok->findChild<FocusMark*>() == nullptr);
        delete box;
        dialog.activateWindow();
        QTRY_VERIFY(ok->hasFocus());
        FocusMark* mark = ok->findChild<FocusMark*>();
        QVERIFY(mark != nullptr);
        QVERIFY(mark->isVisible());
        QCOMPARE(mark->geometry(), ok->rect());
    }

    void operatorSeesWhereTheyAre_disabledButtonsLookDisabled()
    {
        TestRoot root(0.001);
        _configParam c = defaults();
        DialogSystem dialog(&c, nullptr);
        dialog.resize(1024, 600);
        showActive(&dialog);
        QPushButton* mac = dialog.findChild<QPushButton*>("bluemac");
        QVERIFY(mac);
        mac->setText("00:11:22:33:44:55");
        dialog.findChild<QScrollArea*>()->ensureWidgetVisible(mac);
        const double settings = disabledTextContrast(mac);
        QVERIFY2(settings >= 1.5, qPrintable(QString::number(settings)));

        EmbKeyboard keyboard(nullptr, "Commento", "");
        showActive(&keyboard);
        QAbstractButton* key = keyboard.findChild<QAbstractButton*>("A");
        QVERIFY(key);
        const double onKey = disabledTextContrast(key);
        QVERIFY2(onKey >= 1.5, qPrintable(QString::number(onKey)));
    }

    void operatorSeesWhereTheyAre_checkedToggleLooksChecked()
    {
        QWidget screen;
        screen.resize(800, 400);
        Plotter* plot = new Plotter(&screen, "Panel IV", nullptr);
        plot->setGeometry(screen.rect());
        showActive(&screen);
        plot->setCurveData(0, {QPointF(0, 8), QPointF(30, 7), QPointF(37, 0)});
        QToolButton* fs = nullptr;
        for (QToolButton* b : plot->findChildren<QToolButton*>())
            if (b->text() == "FS")
                fs = b;
        QVERIFY(fs && fs->isVisible() && fs->isCheckable());
        const QImage off = grabScreen(fs);
        fs->setChecked(true);
        const QImage on = grabScreen(fs);
        int changed = 0;
        for (int y = 0; y < on.height(); ++y)
            for (int x = 0; x < on.width(); ++x)
                changed += on.pixel(x, y) != off.pixel(x, y);
        // the whole face changes, not a line of it
        QVERIFY2(changed * 2 > on.width() * on.height(), qPrintable(QString::number(changed)));
    }
};

QTEST_MAIN(TestLook)
#include "tst_look.moc"
