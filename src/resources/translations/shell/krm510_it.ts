<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
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
        <translation>Sistema</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modulo</source>
        <translation>Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stringa</source>
        <translation>Stringa</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Moduli</source>
        <translation>Archivio
Moduli</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Misure</source>
        <translation>Archivio
Misure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Aziende</source>
        <translation>Archivio
Aziende</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Archivio
Installazioni</source>
        <translation>Archivio
Installazioni</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>USB</source>
        <translation>USB</translation>
    </message>
</context>
</TS>
