<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>DialogCopyFrom</name>
    <message>
        <location filename="../../../usb/dialogcopyfrom.cpp" line="+10"/>
        <source>Copia Da...</source>
        <translation>Kopieren von...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la sorgente</source>
        <translation>Quelle wählen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Datenbank kopieren</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Abbrechen...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>USB-Stick vor dem Abziehen trennen.</translation>
    </message>
</context>
<context>
    <name>DialogCopyTo</name>
    <message>
        <location filename="../../../usb/dialogcopyto.cpp" line="+8"/>
        <source>Copia In...</source>
        <translation>Kopieren nach...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la destinazione</source>
        <translation>Ziel wählen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Datenbank kopieren</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Abbrechen...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Beendet</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>USB-Stick vor dem Abziehen trennen.</translation>
    </message>
</context>
<context>
    <name>DialogFileUpg</name>
    <message>
        <location filename="../../../usb/dialogfileupg.cpp" line="+21"/>
        <location line="+1"/>
        <source>Elenco file UPG</source>
        <translation>UPG-Dateiliste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezionare il file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Conferma</source>
        <translation>Bestätigen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>UsbDialog</name>
    <message>
        <location filename="../../../usb/usbdialog.cpp" line="+62"/>
        <source>Usb</source>
        <translation>Usb</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Connetti</source>
        <translation>Verbinden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnetti</source>
        <translation>Trennen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia In...</source>
        <translation>Kopieren nach...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia Da...</source>
        <translation>Kopieren von...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiornamento</source>
        <translation>Aktualisierung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+11"/>
        <source>Usb Device</source>
        <translation>USB-Gerät</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>E&apos; connesso</source>
        <translation>Ist verbunden</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>E&apos; disconnesso</source>
        <translation>Ist getrennt</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Inserisci Usb Device.</source>
        <translation>USB-Gerät einstecken.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connessione...</source>
        <translation>Verbindung...</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Disconnessione...</source>
        <translation>Trennung...</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Aggiornamento KRM 510...</source>
        <translation>KRM 510 Aktualisierung...</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>KRM510 Aggiornamento</source>
        <translation>KRM510 Aktualisierung</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Aggiornamento firmware non riuscito.</source>
        <translation>Firmware-Aktualisierung fehlgeschlagen.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Riavviare KRM510</source>
        <translation>KRM510 neu starten</translation>
    </message>
</context>
</TS>
