<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>DialogBrightness</name>
    <message>
        <location filename="../../../toolkit/dialogbright.cpp" line="+16"/>
        <source>Luminosità</source>
        <translation>Luminosità</translation>
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
        <translation>Impostazione KRM510</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Numero Seriale</source>
        <translation>Numero Seriale</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Versione SW</source>
        <translation>Versione SW</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Versione Power</source>
        <translation>Versione Power</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Data/Ora</source>
        <translation>Data/Ora</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Ora</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Visualizza</source>
        <translation>Visualizza</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Imposta data e ora</source>
        <translation>Imposta data e ora</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Ambiente</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modulo</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Auto (EN 60904-5)</source>
        <translation>Auto (EN 60904-5)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manuale</source>
        <translation>Manuale</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Temperatura</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Sens. Pyra</source>
        <translation>Sens. Pyra</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+277"/>
        <location line="+1"/>
        <source>Irraggiamento Minimo</source>
        <translation>Irraggiamento Minimo</translation>
    </message>
    <message>
        <location line="-275"/>
        <source>Locale</source>
        <translation>Locale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Rs-232 Serial Adapter</source>
        <translation>Rs-232 Serial Adapter</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Bluetooth Adapter</source>
        <translation>Bluetooth Adapter</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Unità Remota</source>
        <translation>Unità Remota</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Bluetooth Address (MAC)</source>
        <translation>Bluetooth Address (MAC)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nome Dispositivo</source>
        <translation>Nome Dispositivo</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Italiano</source>
        <translation>Italiano</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inglese</source>
        <translation>Inglese</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Francese</source>
        <translation>Francese</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tedesco</source>
        <translation>Tedesco</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Spagnolo</source>
        <translation>Spagnolo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lingua</source>
        <translation>Lingua</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Luminosità</source>
        <translation>Luminosità</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Memoria occupata</source>
        <translation>Memoria occupata</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Applica</source>
        <translation>Applica</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Conferma data e ora</source>
        <translation>Conferma data e ora</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)</source>
        <translation>Bluetooth MAC (formato AA:BB:CC:DD:EE:FF)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Bluetooth MAC</source>
        <translation>Bluetooth MAC</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MAC deve essere formato da 48 bit.</source>
        <translation>MAC deve essere formato da 48 bit.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Nome Dispositivo Remoto</source>
        <translation>Nome Dispositivo Remoto</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Bluetooth Nome Dispositivo Remoto</source>
        <translation>Bluetooth Nome Dispositivo Remoto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nome troppo lungo.</source>
        <translation>Nome troppo lungo.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il nome non può essere nullo.</source>
        <translation>Il nome non può essere nullo.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nome non valido.</source>
        <translation>Nome non valido.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Temperatura Manuale (°C)</source>
        <translation>Temperatura Manuale (°C)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temperatura manuale</source>
        <translation>Temperatura manuale</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+53"/>
        <source>Numero non valido.</source>
        <translation>Numero non valido.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Sens. Piranometro mV/(kW/m²)</source>
        <translation>Sens. Piranometro mV/(kW/m²)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sens. Piranometro</source>
        <translation>Sens. Piranometro</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation type="obsolete">Italy</translation>
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
        <translation>No</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Misure</translation>
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
