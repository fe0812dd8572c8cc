<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="it_IT" sourcelanguage="it_IT">
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Archivio Misure</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Moduli</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Stringhe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>ArchivePanel</name>
    <message>
        <location filename="../../../archive/archivepanel.cpp" line="+31"/>
        <location line="+2"/>
        <source>Archivio Moduli</source>
        <translation>Archivio Moduli</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nuovo Modulo</source>
        <translation>Nuovo Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Marca</source>
        <translation>Modifica Marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Trova</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>Elenco</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
</context>
<context>
    <name>DeletePanel</name>
    <message>
        <location filename="../../../archive/deletepanel.cpp" line="+31"/>
        <location line="+85"/>
        <source>Cancella Modulo / Modello</source>
        <translation>Cancella Modulo / Modello</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+84"/>
        <source>Cancella Modello</source>
        <translation>Cancella Modello</translation>
    </message>
    <message>
        <location line="-82"/>
        <location line="+88"/>
        <source>Cancella Marca</source>
        <translation>Cancella Marca</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Numero di Modelli : </translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Conferma?</source>
        <translation>Conferma?</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Cancella Modulo...</source>
        <translation>Cancella Modulo...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Modifica Marca</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+32"/>
        <location line="+21"/>
        <location line="+18"/>
        <location line="+13"/>
        <location line="+9"/>
        <source>&lt;Nuova Marca&gt;</source>
        <translation>&lt;Nuova Marca&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Marca Modulo</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Inserita nuova marca</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Aggiornamento eseguito.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Errore nel salvataggio.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+28"/>
        <location line="+216"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
    </message>
    <message>
        <location line="-212"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Sconosciuto</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+38"/>
        <location line="+181"/>
        <source>Modifica Modulo</source>
        <translation>Modifica Modulo</translation>
    </message>
    <message>
        <location line="-177"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Sconosciuto</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifica Modello Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modello Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Modello vuoto.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+31"/>
        <source>Ricerca Modulo</source>
        <translation>Ricerca Modulo</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+226"/>
        <source>Modello trovato : </source>
        <translation>Modello trovato : </translation>
    </message>
    <message>
        <location line="-224"/>
        <source>Cerca</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Reset</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+67"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima</source>
        <translation>Pmax Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp Minima</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax non può essere negativa : </source>
        <translation>Pmax non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp non può essere negativa : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp Minima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp Massima non può essere negativa : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax minima è maggiore di Pmax massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp Minima è maggiore di Vmpp Massima</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp Minima è maggiore di Impp Massima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax Massima è minome di Pmax Minima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp Massima è minore di Vmpp Minima.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp Massima è minore di Impp Minima.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Ricerca Modulo...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Cancella...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Nessun risultato trovato.</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Lista Misure Moduli</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Lista Misure Stringhe</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Grafico</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Cancella</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Aggiungi</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Ora</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Commento</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Cancella Misure Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Cancella Misure Stringhe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Conferma?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Lista Moduli</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
</context>
<context>
    <name>NewPanel</name>
    <message>
        <location filename="../../../archive/newpanel.cpp" line="+26"/>
        <location line="+197"/>
        <location line="+19"/>
        <source>Nuovo Modulo</source>
        <translation>Nuovo Modulo</translation>
    </message>
    <message>
        <location line="-211"/>
        <location line="+21"/>
        <source>Pmax</source>
        <translation>Pmax</translation>
    </message>
    <message>
        <location line="-21"/>
        <source>Pmax : </source>
        <translation>Pmax : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura Nominale della Cella - NOCT [°C]</source>
        <translation>Temperatura Nominale della Cella - NOCT [°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>NOCT [°C]</source>
        <translation>NOCT [°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT : </source>
        <translation>NOCT : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+17"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="-17"/>
        <source>Vmpp : </source>
        <translation>Vmpp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Impp : </source>
        <translation>Impp : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+16"/>
        <source>Voc</source>
        <translation>Voc</translation>
    </message>
    <message>
        <location line="-16"/>
        <source>Voc : </source>
        <translation>Voc : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+15"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-15"/>
        <source>Isc : </source>
        <translation>Isc : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficiente di Temperatura Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura di Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficiente di Temperatura Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura di Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficiente di Temperatura Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Gamma : </source>
        <translation>Gamma : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Minima [%]</source>
        <translation>Tolleranza Minima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll- : </source>
        <translation>Toll- : </translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+1"/>
        <source>Tolleranza Massima [%]</source>
        <translation>Tolleranza Massima [%]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+ : </source>
        <translation>Toll+ : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Alpha</source>
        <translation>Alpha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Gamma</source>
        <translation>Gamma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll-</source>
        <translation>Toll-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Toll+</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modello</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Tipo</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Salva</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Sconosciuto</source>
        <translation>Sconosciuto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallino</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Policristallino</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Film Sottile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorfo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>MicroMorfo</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Testo inserito non valido.</source>
        <translation>Testo inserito non valido.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifica Modello Modulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modello Modulo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Modello vuoto.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Troppo lungo.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Aggiornamento Modulo</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Eseguito con successo.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Errore nel salvataggio.</translation>
    </message>
</context>
</TS>
