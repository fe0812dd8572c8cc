<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="en_US" sourcelanguage="it_IT">
<context>
    <name>DialogCopyFrom</name>
    <message>
        <location filename="../../../usb/dialogcopyfrom.cpp" line="+10"/>
        <source>Copia Da...</source>
        <translation>Copy from...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la sorgente</source>
        <translation>Select the source</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Back</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Database copy</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancel...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Finished</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Disconnect the USB stick before removing it.</translation>
    </message>
</context>
<context>
    <name>DialogCopyTo</name>
    <message>
        <location filename="../../../usb/dialogcopyto.cpp" line="+8"/>
        <source>Copia In...</source>
        <translation>Copy to...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la destinazione</source>
        <translation>Select the destination</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Back</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Database copy</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancel...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Finished</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Disconnect the USB stick before removing it.</translation>
    </message>
</context>
<context>
    <name>DialogFileUpg</name>
    <message>
        <location filename="../../../usb/dialogfileupg.cpp" line="+21"/>
        <location line="+1"/>
        <source>Elenco file UPG</source>
        <translation>UPG file list</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezionare il file</source>
        <translation>Select the file</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Conferma</source>
        <translation>Confirm</translation>
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
        <translation>Connect</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnetti</source>
        <translation>Disconnect</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia In...</source>
        <translation>Copy to...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia Da...</source>
        <translation>Copy from...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiornamento</source>
        <translation>Upgrade</translation>
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
        <translation>It is connected</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>E&apos; disconnesso</source>
        <translation>It is disconnected</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Inserisci Usb Device.</source>
        <translation>Insert the Usb Device.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connessione...</source>
        <translation>Connecting...</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Disconnessione...</source>
        <translation>Disconnecting...</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Aggiornamento KRM 510...</source>
        <translation>KRM 510 upgrade...</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>KRM510 Aggiornamento</source>
        <translation>KRM510 Upgrade</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Aggiornamento firmware non riuscito.</source>
        <translation>Firmware upgrade failed.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Riavviare KRM510</source>
        <translation>Restart KRM510</translation>
    </message>
</context>
</TS>
