<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>Orvia</name>
    <message>
        <location filename="../../../shell/orvia.cpp" line="+65"/>
        <source>Brask</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <location line="+52"/>
        <source>Sistema</source>
        <translation>Système</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modulo</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stringa</source>
        <translation>Chaine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Moduli</source>
        <translation>Archive
modèles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Misure</source>
        <translation>Archive
mesures</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Aziende</source>
        <translation>Archive
sociétés</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Installazioni</source>
        <translation>Archive
installations</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
</context>
</TS>
