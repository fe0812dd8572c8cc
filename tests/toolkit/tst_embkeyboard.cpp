#include "support/modaldriver.h"
#include "support/testroot.h"
#include "toolkit/embkeyboard.h"
#include "toolkit/qkeypushbutton.h"

#include <QLineEdit>
#include <QtTest>

class TestEmbKeyboard : public QObject
{
    Q_OBJECT

    static QPushButton* key(EmbKeyboard& k, const char* name)
    {
        return k.findChild<QPushButton*>(name);
    }
    static void touch(EmbKeyboard& k, const char* name) { ModalDriver::touchKey(&k, name); }
    static void sendText(EmbKeyboard& k, const QString& text)
    {
        QKeyEvent e(QEvent::KeyPress, 0, Qt::NoModifier, text);
        k.receiptChildKey(&e, false);
    }

private slots:

    void startsWithUpperCaseLettersAndNoKeyPad()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, "Titolo", QString());
        QVERIFY(k.isCapsOn());
        QVERIFY(!k.isKeyPadOn());
        QCOMPARE(key(k, "Q")->text(), QString("Q"));
        QCOMPARE(key(k, ".?123")->text(), QString(".?123"));
        QCOMPARE(k.windowTitle(), QString("Titolo"));
    }
    void initialTextIsSetWithTheCursorAtItsEnd()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "12.50");
        QCOMPARE(k.editor()->text(), QString("12.50"));
        QCOMPARE(k.editor()->cursorPosition(), 5);
    }
    void emptyOrNullInitialLeavesTheLineEmpty()
    {
        TestRoot root;
        EmbKeyboard a(nullptr, QString(), QString());
        EmbKeyboard b(nullptr, QString(), QString(""));
        QVERIFY(a.editor()->text().isEmpty());
        QVERIFY(b.editor()->text().isEmpty());
    }
    void touchingALetterInsertsItAndSelectsIt()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, "A");
        touch(k, "B");
        QCOMPARE(k.editor()->text(), QString("AB"));
        QCOMPARE(k.editor()->cursorPosition(), 2);
        QCOMPARE(k.editor()->selectedText(), QString("B"));
    }
    void capsKeyFlipsTheCaseOfTheLetters()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, "CAPS");
        QVERIFY(!k.isCapsOn());
        QCOMPARE(key(k, "Q")->text(), QString("q"));
        touch(k, "Q");
        touch(k, "CAPS");
        QVERIFY(k.isCapsOn());
        touch(k, "Q");
        QCOMPARE(k.editor()->text(), QString("qQ"));
    }
    void keyPadLayerShowsTheSymbolsOfEachLetter()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, ".?123");
        QVERIFY(k.isKeyPadOn());
        QCOMPARE(key(k, "Q")->text(), QString("1"));
        QCOMPARE(key(k, "P")->text(), QString("0"));
        QCOMPARE(key(k, "G")->text(), QString("."));
        QCOMPARE(key(k, "B")->text(), QString("\""));
        QCOMPARE(key(k, ".?123")->text(), QString("ABC"));
        QVERIFY(!key(k, "CAPS")->isEnabled());
        touch(k, "Q");
        touch(k, "G");
        touch(k, "A");
        QCOMPARE(k.editor()->text(), QString("1.-"));
    }
    void alphaToNumberFallsThroughToTheTwoOfTheTail()
    {
        QCOMPARE(EmbKeyboard::alphaToNumber('Q'), QChar('1'));
        QCOMPARE(EmbKeyboard::alphaToNumber('M'), QChar('>'));
        QCOMPARE(EmbKeyboard::alphaToNumber('.'), QChar('?'));
        QCOMPARE(EmbKeyboard::alphaToNumber('q'), QChar('2'));
        QCOMPARE(EmbKeyboard::alphaToNumber('#'), QChar('2'));
    }
    void abcAfterAScreensKeyPadSwitchesBackAllTheSame()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        k.toKeyPad(); // as a screen does for a number field
        QVERIFY(!k.isKeyPadOn());
        QCOMPARE(key(k, "Q")->text(), QString("1"));
        touch(k, ".?123"); // its label reads ABC: the ABC branch
        QCOMPARE(key(k, "Q")->text(), QString("Q"));
        QVERIFY(!k.isKeyPadOn());
        QVERIFY(key(k, "CAPS")->isEnabled());
    }
    void keyPadKeyWhileKeyPadIsOnDoesNothing()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, ".?123");
        QVERIFY(k.isKeyPadOn());
        sendText(k, ".?123");
        QVERIFY(k.isKeyPadOn());
        QCOMPARE(key(k, "Q")->text(), QString("1"));
        QVERIFY(k.editor()->text().isEmpty());
    }
    void abcReturnsToTheCaseCapsRemembers()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, "CAPS");
        touch(k, ".?123");
        touch(k, ".?123");
        QCOMPARE(key(k, "Q")->text(), QString("q"));
    }
    void leftAtPositionOneGoesToZeroAndSelectsNothing()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, "A");
        touch(k, "LEFT");
        QCOMPARE(k.editor()->cursorPosition(), 0);
        QVERIFY(k.editor()->selectedText().isEmpty());
        QCOMPARE(k.editor()->text(), QString("A"));
    }
    void leftAtZeroAndBackAtZeroDoNothing()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "AB");
        k.editor()->setCursorPosition(0);
        touch(k, "LEFT");
        QCOMPARE(k.editor()->cursorPosition(), 0);
        touch(k, "BACK");
        QCOMPARE(k.editor()->text(), QString("AB"));
        QCOMPARE(k.editor()->cursorPosition(), 0);
    }
    void rightAtTheEndDoesNothing()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "AB");
        touch(k, "RIGHT");
        QCOMPARE(k.editor()->cursorPosition(), 2);
        QCOMPARE(k.editor()->text(), QString("AB"));
    }
    void rightMovesOnAndSelectsTheCharacterPassed()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "ABC");
        k.editor()->setCursorPosition(1);
        touch(k, "RIGHT");
        QCOMPARE(k.editor()->cursorPosition(), 2);
        QCOMPARE(k.editor()->selectedText(), QString("B"));
    }
    void backRemovesTheCharacterBeforeTheCursor()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "ABC");
        touch(k, "BACK");
        QCOMPARE(k.editor()->text(), QString("AB"));
        QCOMPARE(k.editor()->cursorPosition(), 2);
        QCOMPARE(k.editor()->selectedText(), QString("B"));
    }
    void backAtPositionOneSelectsTheFirstCharacter()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "ABC");
        k.editor()->setCursorPosition(1);
        touch(k, "BACK");
        QCOMPARE(k.editor()->text(), QString("BC"));
        QCOMPARE(k.editor()->selectedText(), QString("B"));
    }
    void delRemovesTheCharacterAtTheCursorButNotAtTheStart()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "ABC");
        k.editor()->setCursorPosition(1);
        sendText(k, "DEL");
        QCOMPARE(k.editor()->text(), QString("AC"));
        QCOMPARE(k.editor()->cursorPosition(), 1);
        k.editor()->setCursorPosition(0);
        sendText(k, "DEL");
        QCOMPARE(k.editor()->text(), QString("AC"));
    }
    void insertionAtTheCursorInTheMiddle()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "AC");
        k.editor()->setCursorPosition(1);
        touch(k, "B");
        QCOMPARE(k.editor()->text(), QString("ABC"));
        QCOMPARE(k.editor()->cursorPosition(), 2);
    }
    void blankKeyHasTheNameBlankAndInsertsABlank()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), "A");
        QVERIFY(key(k, " ") != nullptr);
        touch(k, " ");
        touch(k, "B");
        QCOMPARE(k.editor()->text(), QString("A B"));
    }
    void escReturnsRejectedWithTheTextDiscarded()
    {
        TestRoot root;
        ModalDriver driver;
        driver.typeOnKeyboard("ABC", false);
        EmbKeyboard k(nullptr, QString(), QString());
        QCOMPARE(k.exec(), int(QDialog::Rejected));
        QCOMPARE(driver.pending(), 0);
    }
    void enterAcceptsAndGivesTheSimplifiedText()
    {
        TestRoot root;
        ModalDriver driver;
        driver.typeOnKeyboard("  Solar  one ");
        EmbKeyboard k(nullptr, QString(), QString());
        QCOMPARE(k.exec(), int(QDialog::Accepted));
        QCOMPARE(k.stringEntered(), QString("Solar one"));
    }
    void onlyBlanksGiveAnEmptyString()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        touch(k, " ");
        touch(k, " ");
        QVERIFY(k.stringEntered().isEmpty());
    }
    void hardwareEscapeRejects()
    {
        TestRoot root;
        ModalDriver driver;
        driver.onNext([](QWidget* w) { QTest::keyClick(w, Qt::Key_Escape); });
        EmbKeyboard k(nullptr, QString(), QString());
        QCOMPARE(k.exec(), int(QDialog::Rejected));
    }
    void hardwareReturnWithoutEnterTextDoesNotAccept()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        k.show();
        QKeyEvent plain(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier);
        QApplication::sendEvent(&k, &plain);
        QVERIFY(k.isVisible());
        QKeyEvent enter(QEvent::KeyPress, Qt::Key_Return, Qt::NoModifier, "ENTER");
        QApplication::sendEvent(&k, &enter);
        QCOMPARE(k.result(), int(QDialog::Accepted));
    }
    void hardwareUpMovesTheFocusForwardAndDownBackward()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        k.show();
        QVERIFY(QTest::qWaitForWindowActive(&k));
        k.editor()->setFocus();
        QWidget* start = QApplication::focusWidget();
        QKeyEvent up(QEvent::KeyPress, Qt::Key_Up, Qt::NoModifier);
        QApplication::sendEvent(&k, &up);
        QWidget* forward = QApplication::focusWidget();
        QVERIFY(forward != start);
        QCOMPARE(forward, start->nextInFocusChain());
        QKeyEvent down(QEvent::KeyPress, Qt::Key_Down, Qt::NoModifier);
        QApplication::sendEvent(&k, &down);
        QCOMPARE(QApplication::focusWidget(), start);
    }
    void escKeyClickedSignalRejectsToo()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        k.show();
        QPushButton* esc = key(k, "ESC");
        emit esc->clicked();
        QCOMPARE(k.result(), int(QDialog::Rejected));
        QVERIFY(!k.isVisible());
    }
    void touchDoesNotEmitClicked()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        QSignalSpy spy(key(k, "A"), &QPushButton::clicked);
        touch(k, "A");
        QCOMPARE(spy.count(), 0);
        QCOMPARE(k.editor()->text(), QString("A"));
    }
    void pressedKeyIsHighlightedUntilReleased()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        QPushButton* a = key(k, "A");
        QTest::mousePress(a, Qt::LeftButton);
        QVERIFY(a->styleSheet().contains("background:lightblue;"));
        QTest::mouseRelease(a, Qt::LeftButton);
        QVERIFY(a->styleSheet().contains("qlineargradient"));
    }
    void specialKeysCarryIconsAndTheirSizes()
    {
        TestRoot root;
        EmbKeyboard k(nullptr, QString(), QString());
        QCOMPARE(key(k, "ENTER")->iconSize(), QSize(32, 32));
        QCOMPARE(key(k, "BACK")->iconSize(), QSize(32, 16));
        QVERIFY(key(k, "ENTER")->text().isEmpty());
        QCOMPARE(key(k, "ESC")->text(), QString("ESC"));
        QCOMPARE(key(k, "ENTER")->height(), 44);
        QCOMPARE(key(k, "ENTER")->minimumWidth(), 78);
        QCOMPARE(key(k, " ")->maximumWidth(), 234);
        QCOMPARE(key(k, "A")->size(), QSize(26, 22));
    }
};

QTEST_MAIN(TestEmbKeyboard)
#include "tst_embkeyboard.moc"
