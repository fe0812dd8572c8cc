<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Archiv Messungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Strings</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
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
        <translation>Modularchiv</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nuovo Modulo</source>
        <translation>Neues Modul</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Marca</source>
        <translation>Marke bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Elenco</source>
        <translation>Liste</translation>
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
        <translation>Modul / Modell löschen</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+84"/>
        <source>Cancella Modello</source>
        <translation>Modell löschen</translation>
    </message>
    <message>
        <location line="-82"/>
        <location line="+88"/>
        <source>Cancella Marca</source>
        <translation>Marke löschen</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Anzahl der Modelle : </translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Conferma?</source>
        <translation>Bestätigen?</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Cancella Modulo...</source>
        <translation>Modul wird gelöscht...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Marke bearbeiten</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Speichern</translation>
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
        <translation>&lt;Neue Marke&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Modulmarke</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Neue Marke eingefügt</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Aktualisierung ausgeführt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Fehler beim Speichern.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+28"/>
        <location line="+216"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
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
        <translation>Nennbetriebstemperatur der Zelle - NOCT [°C]</translation>
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
        <translation>Temperaturkoeffizient von Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Temperaturkoeffizient Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperaturkoeffizient von Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Temperaturkoeffizient Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient von Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient Pmax [%/°C]</translation>
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
        <translation>Minimale Toleranz [%]</translation>
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
        <translation>Maximale Toleranz [%]</translation>
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
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Sconosciuto</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monokristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polykristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Dünnschicht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorph</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Mikromorph</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+38"/>
        <location line="+181"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
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
        <translation>Nennbetriebstemperatur der Zelle - NOCT [°C]</translation>
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
        <translation>Temperaturkoeffizient von Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Temperaturkoeffizient Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperaturkoeffizient von Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Temperaturkoeffizient Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient von Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient Pmax [%/°C]</translation>
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
        <translation>Minimale Toleranz [%]</translation>
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
        <translation>Maximale Toleranz [%]</translation>
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
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Sconosciuto</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monokristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polykristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Dünnschicht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorph</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Mikromorph</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modulmodell bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modulmodell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Leeres Modell.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+31"/>
        <source>Ricerca Modulo</source>
        <translation>Modulsuche</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+226"/>
        <source>Modello trovato : </source>
        <translation>Gefundene Modelle : </translation>
    </message>
    <message>
        <location line="-224"/>
        <source>Cerca</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
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
        <translation>Pmax minimal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax maximal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp minimal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp maximal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp minimal</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp maximal</translation>
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
        <translation>Pmax darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax minimal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax maximal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp minimal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp maximal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp minimal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp maximal darf nicht negativ sein : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax minimal ist größer als Pmax maximal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp minimal ist größer als Vmpp maximal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp minimal ist größer als Impp maximal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax maximal ist kleiner als Pmax minimal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp maximal ist kleiner als Vmpp minimal.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp maximal ist kleiner als Impp minimal.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Modul wird gesucht...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Abbrechen...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Kein Ergebnis gefunden.</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Liste Modulmessungen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Liste Stringmessungen</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Grafik</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Data</source>
        <translation>Datum</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Uhrzeit</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Kommentar</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Modulmessung löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Stringmessung löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Bestätigen?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Modulliste</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modell</translation>
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
        <translation>Neues Modul</translation>
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
        <translation>Nennbetriebstemperatur der Zelle - NOCT [°C]</translation>
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
        <translation>Temperaturkoeffizient von Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Temperaturkoeffizient Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Temperaturkoeffizient von Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Temperaturkoeffizient Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient von Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Temperaturkoeffizient Pmax [%/°C]</translation>
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
        <translation>Minimale Toleranz [%]</translation>
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
        <translation>Maximale Toleranz [%]</translation>
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
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Sconosciuto</source>
        <translation>Unbekannt</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monokristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polykristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Dünnschicht</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorph</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Mikromorph</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modulmodell bearbeiten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modulmodell</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Leeres Modell.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Modul aktualisiert</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Fehler beim Speichern.</translation>
    </message>
</context>
</TS>
