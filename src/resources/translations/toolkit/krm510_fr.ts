<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>DialogBrightness</name>
    <message>
        <location filename="../../../toolkit/dialogbright.cpp" line="+16"/>
        <source>Luminosità</source>
        <translation>Luminosité</translation>
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
        <translation>Réglages KRM510</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Numero Seriale</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Versione SW</source>
        <translation>Version SW</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Versione Power</source>
        <translation>Version Power</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Data/Ora</source>
        <translation>Date/Heure</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Visualizza</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Imposta data e ora</source>
        <translation>Régler date et heure</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Ambiente</source>
        <translation>Ambiante</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Auto (EN 60904-5)</source>
        <translation>Auto (EN 60904-5)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Manuale</source>
        <translation>Manuelle</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Temperatura</source>
        <translation>Température</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Sens. Pyra</source>
        <translation>Sens. pyra</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+277"/>
        <location line="+1"/>
        <source>Irraggiamento Minimo</source>
        <translation>Ensoleillement minimum</translation>
    </message>
    <message>
        <location line="-275"/>
        <source>Locale</source>
        <translation>Local</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Rs-232 Serial Adapter</source>
        <translation>Adaptateur série RS-232</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Bluetooth Adapter</source>
        <translation>Adaptateur Bluetooth</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Unità Remota</source>
        <translation>Unité distante</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Bluetooth Address (MAC)</source>
        <translation>Adresse Bluetooth (MAC)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nome Dispositivo</source>
        <translation>Nom de l&apos;appareil</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Italiano</source>
        <translation>Italien</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Inglese</source>
        <translation>Anglais</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Francese</source>
        <translation>Français</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tedesco</source>
        <translation>Allemand</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Spagnolo</source>
        <translation>Espagnol</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lingua</source>
        <translation>Langue</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Luminosità</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Memoria occupata</source>
        <translation>Mémoire occupée</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Conferma data e ora</source>
        <translation>Confirmer date et heure</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+108"/>
        <source>Bluetooh MAC (formato AA:BB:CC:DD:EE:FF)</source>
        <translation>Bluetooth MAC (format AA:BB:CC:DD:EE:FF)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Bluetooth MAC</source>
        <translation>MAC Bluetooth</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>MAC deve essere formato da 48 bit.</source>
        <translation>La MAC doit être de 48 bits.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Nome Dispositivo Remoto</source>
        <translation>Nom de l&apos;appareil distant</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Bluetooth Nome Dispositivo Remoto</source>
        <translation>Bluetooth nom de l&apos;appareil distant</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nome troppo lungo.</source>
        <translation>Nom trop long.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il nome non può essere nullo.</source>
        <translation>Le nom ne peut pas être vide.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nome non valido.</source>
        <translation>Nom non valide.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Temperatura Manuale (°C)</source>
        <translation>Température manuelle (°C)</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Temperatura manuale</source>
        <translation>Température manuelle</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+53"/>
        <source>Numero non valido.</source>
        <translation>Nombre non valable.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Sens. Piranometro mV/(kW/m²)</source>
        <translation>Sens. pyranomètre mV/(kW/m²)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Sens. Piranometro</source>
        <translation>Sens. pyranomètre</translation>
    </message>
    <message>
        <source>Italy</source>
        <translation type="obsolete">Italie</translation>
    </message>
    <message>
        <source>England</source>
        <translation type="obsolete">Angleterre</translation>
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
        <translation>Non</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Mesures</translation>
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
