<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>DialogCopyFrom</name>
    <message>
        <location filename="../../../usb/dialogcopyfrom.cpp" line="+10"/>
        <source>Copia Da...</source>
        <translation>Copiar de...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la sorgente</source>
        <translation>Seleccione el origen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copia base de datos</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancelar...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Desconecte la memoria USB antes de retirarla.</translation>
    </message>
</context>
<context>
    <name>DialogCopyTo</name>
    <message>
        <location filename="../../../usb/dialogcopyto.cpp" line="+8"/>
        <source>Copia In...</source>
        <translation>Copiar a...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Selezionare la destinazione</source>
        <translation>Seleccione el destino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Indietro</source>
        <translation>Atrás</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia DataBase</source>
        <translation>Copia base de datos</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Conferma</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancelar...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Terminato</source>
        <translation>Terminado</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnettere la chiavetta USB prima di scollegarla.</source>
        <translation>Desconecte la memoria USB antes de retirarla.</translation>
    </message>
</context>
<context>
    <name>DialogFileUpg</name>
    <message>
        <location filename="../../../usb/dialogfileupg.cpp" line="+21"/>
        <location line="+1"/>
        <source>Elenco file UPG</source>
        <translation>Lista de archivos UPG</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezionare il file</source>
        <translation>Seleccione el archivo</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Conferma</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Salir</translation>
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
        <translation>Conectar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Disconnetti</source>
        <translation>Desconectar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia In...</source>
        <translation>Copiar a...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Copia Da...</source>
        <translation>Copiar de...</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiornamento</source>
        <translation>Actualización</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <location line="+29"/>
        <location line="+11"/>
        <source>Usb Device</source>
        <translation>Dispositivo Usb</translation>
    </message>
    <message>
        <location line="-10"/>
        <source>E&apos; connesso</source>
        <translation>Está conectado</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>E&apos; disconnesso</source>
        <translation>Está desconectado</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Inserisci Usb Device.</source>
        <translation>Inserte el dispositivo Usb.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Connessione...</source>
        <translation>Conexión...</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Disconnessione...</source>
        <translation>Desconexión...</translation>
    </message>
    <message>
        <location line="+51"/>
        <source>Aggiornamento KRM 510...</source>
        <translation>Actualización KRM 510...</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>KRM510 Aggiornamento</source>
        <translation>KRM510 Actualización</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Aggiornamento firmware non riuscito.</source>
        <translation>Actualización del firmware fallida.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Riavviare KRM510</source>
        <translation>Reiniciar KRM510</translation>
    </message>
</context>
</TS>
