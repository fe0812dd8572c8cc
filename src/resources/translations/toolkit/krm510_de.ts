<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>DialogBrightness</name>
    <message>
        <location filename="../../../toolkit/dialogbright.cpp" line="+16"/>
        <source>Luminosità</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>DialogSystem</name>
    <message>
        <location filename="../../../toolkit/dialogsystem.cpp" line="+38"/>
        <source>Impostazione KRM510</source>
        <translation>KRM510 Einstellungen</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Numero Seriale</source>
        <translation>Seriennummer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Versione SW</source>
        <translation>SW-Version</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Versione Power</source>
        <translation>Power-Version</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Data/Ora</source>
        <translation>Datum/Uhrzeit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Data</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Visualizza</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Imposta data e ora</source>
        <translation>Datum und Uhrzeit einstellen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Umgebung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modulo</source>
        <translation>Modul</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Auto (EN 60904-5)</source>
        <translation>Auto (EN 60904-5)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manuale</source>
        <translation>Manuell</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Temperatura</source>
        <translation>Temperatur</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Sens. Pyra</source>
        <translation>Pyra-Empf.</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+277"/>
        <location line="+1"/>
        <source>Irraggiamento Minimo</source>
        <translation>Minimale Einstrahlung</translation>
    </message>
    <message>
        <location line="-275"/>
        <source>Locale</source>
        <translation>Lokal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Rs-232 Serial Adapter</source>
        <translation>RS-232-Adapter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Bluetooth Adapter</source>
        <translation>Bluetooth-Adapter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Unità Remota</source>
        <translation>Fernmodul</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Bluetooth Address (MAC)</source>
        <translation>Bluetooth-Adresse (MAC)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nome Dispositivo</source>
        <translation>Gerätename</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Italiano</source>
        <translation>Italienisch</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inglese</source>
        <translation>Englisch</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Francese</source>
        <translation>Französisch</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tedesco</source>
        <translation>Deutsch</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Spagnolo</source>
        <translation>Spanisch</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lingua</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Luminosità</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Memoria occupata</source>
        <translation>Belegter Speicher</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Applica</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Conferma data e ora</source>
        <translation>Datum und Uhrzeit bestätigen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)</source>
        <translation>Bluetooth MAC (Format AA:BB:CC:DD:EE:FF)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Bluetooth MAC</source>
        <translation>Bluetooth-MAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MAC deve essere formato da 48 bit.</source>
        <translation>MAC muss aus 48 Bit bestehen.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Nome Dispositivo Remoto</source>
        <translation>Name des Fernmoduls</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Bluetooth Nome Dispositivo Remoto</source>
        <translation>Bluetooth Name des Fernmoduls</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nome troppo lungo.</source>
        <translation>Name zu lang.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il nome non può essere nullo.</source>
        <translation>Der Name darf nicht leer sein.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nome non valido.</source>
        <translation>Ungültiger Name.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Temperatura Manuale (°C)</source>
        <translation>Manuelle Temperatur (°C)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temperatura manuale</source>
        <translation>Manuelle Temperatur</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+53"/>
        <source>Numero non valido.</source>
        <translation>Ungültige Zahl.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Sens. Piranometro mV/(kW/m²)</source>
        <translation>Pyranometer-Empf. mV/(kW/m²)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sens. Piranometro</source>
        <translation>Pyranometer-Empf.</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation type="obsolete">Italien</translation>
    </message>
    <message>
        <source>England</source>
        <translation type="obsolete">England</translation>
    </message>
</context>
<context>
    <name>EmbKeyboard</name>
    <message>
        <location filename="../../../toolkit/embkeyboard.cpp" line="+43"/>
        <location line="+60"/>
        <location line="+54"/>
        <location line="+23"/>
        <location line="+46"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+45"/>
        <source>CAPS</source>
        <translation>CAPS</translation>
    </message>
    <message>
        <location line="-180"/>
        <location line="+80"/>
        <location line="+84"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+0"/>
        <source>LEFT</source>
        <translation>LEFT</translation>
    </message>
    <message>
        <location line="-161"/>
        <location line="+78"/>
        <location line="+86"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+1"/>
        <source>RIGHT</source>
        <translation>RIGHT</translation>
    </message>
    <message>
        <location line="-161"/>
        <location line="+42"/>
        <location line="+122"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="-3"/>
        <source>BACK</source>
        <translation>BACK</translation>
    </message>
    <message>
        <location line="-161"/>
        <location line="+57"/>
        <location line="+96"/>
        <location line="+42"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+0"/>
        <source>ENTER</source>
        <translation>ENTER</translation>
    </message>
    <message>
        <location line="-169"/>
        <location line="+125"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+3"/>
        <source>ESC</source>
        <translation>ESC</translation>
    </message>
    <message>
        <location line="-86"/>
        <location line="+35"/>
        <location line="+1"/>
        <location line="+22"/>
        <location line="+54"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="-2"/>
        <source>.?123</source>
        <translation>.?123</translation>
    </message>
    <message>
        <location line="-53"/>
        <location line="+58"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="+6"/>
        <location line="+4"/>
        <source>ABC</source>
        <translation>ABC</translation>
    </message>
    <message>
        <location line="-16"/>
        <location filename="../../../toolkit/qkeypushbutton.cpp" line="-10"/>
        <source>DEL</source>
        <translation>DEL</translation>
    </message>
</context>
<context>
    <name>Plotter</name>
    <message>
        <location filename="../../../toolkit/plotter.cpp" line="+416"/>
        <source>Ok</source>
        <translation>Ok</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Messungen</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+75"/>
        <source>STC</source>
        <translation>STC</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>OPC</source>
        <translation>OPC</translation>
    </message>
</context>
</TS>
