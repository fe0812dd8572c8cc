<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>DialogFreeSpace</name>
    <message>
        <location filename="../../../data/freespace.cpp" line="+30"/>
        <source>Memoria occupata</source>
        <translation>Memoria occupata</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
</TS>
