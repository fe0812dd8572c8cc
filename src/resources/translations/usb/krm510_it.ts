<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>DialogCopyFrom</name>
    <message>
        <location filename="../../../usb/dialogcopyfrom.cpp" line="+10"/>
        <source>Copia Da...</source>
        <translation>Copia Da...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la sorgente</source>
        <translation>Selezionare la sorgente</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Apri</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copia DataBase</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancella...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Disconnettere la chiavetta USB prima di scollegarla.</translation>
    </message>
</context>
<context>
    <name>DialogCopyTo</name>
    <message>
        <location filename="../../../usb/dialogcopyto.cpp" line="+8"/>
        <source>Copia In...</source>
        <translation>Copia in...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la destinazione</source>
        <translation>Selezionare la destinazione</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Apri</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Indietro</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copia DataBase</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancella...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Disconnettere la chiavetta USB prima di scollegarla.</translation>
    </message>
</context>
<context>
    <name>DialogFileUpg</name>
    <message>
        <location filename="../../../usb/dialogfileupg.cpp" line="+21"/>
        <location line="+1"/>
        <source>Elenco file UPG</source>
        <translation>Elenco file UPG</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezionare il file</source>
        <translation>Selezionare il file</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Conferma</source>
        <translation>Conferma</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Exit</translation>
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
        <translation>Connetti</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnetti</source>
        <translation>Disconnetti</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia In...</source>
        <translation>Copia in...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia Da...</source>
        <translation>Copia Da...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiornamento</source>
        <translation>Aggiornamento</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+11"/>
        <source>Usb Device</source>
        <translation>Usb Device</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>E&apos; connesso</source>
        <translation>E&apos; connesso</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>E&apos; disconnesso</source>
        <translation>E&apos; disconnesso</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Inserisci Usb Device.</source>
        <translation>Inserisci Usb Device.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connessione...</source>
        <translation>Connessione...</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Disconnessione...</source>
        <translation>Disconnessione...</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Aggiornamento KRM 510...</source>
        <translation>Aggiornamento KRM 510...</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>KRM510 Aggiornamento</source>
        <translation>KRM510 Aggiornamento</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Aggiornamento firmware non riuscito.</source>
        <translation>Aggiornamento firmware non riuscito.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Riavviare KRM510</source>
        <translation>Riavviare KRM510</translation>
    </message>
</context>
</TS>
