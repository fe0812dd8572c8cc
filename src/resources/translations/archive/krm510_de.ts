<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="de_DE" sourcelanguage="it_IT">
<context>
    <name>ArchiveCompany</name>
    <message>
        <location filename="../../../archive/archivecompany.cpp" line="+8"/>
        <source>Archivio Aziende</source>
        <translation>Firmenarchiv</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Neu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>ArchiveInstallation</name>
    <message>
        <location filename="../../../archive/archiveinstallation.cpp" line="+8"/>
        <source>Archivio Installazioni</source>
        <translation>Anlagenarchiv</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nuova</source>
        <translation>Neu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modifica</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
</context>
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
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>ArchivePanel</name>
    <message>
        <location filename="../../../archive/archivepanel.cpp" line="+19"/>
        <source>Archivio Moduli</source>
        <translation>Modularchiv</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nuovo Modulo</source>
        <translation>Neues Modul</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
    </message>
    <message>
        <location line="+2"/>
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
        <translation>Ende</translation>
    </message>
</context>
<context>
    <name>DeletePanel</name>
    <message>
        <location filename="../../../archive/deletepanel.cpp" line="+28"/>
        <location line="+84"/>
        <source>Cancella Modulo / Modello</source>
        <translation>Modul / Modell löschen</translation>
    </message>
    <message>
        <location line="-78"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+77"/>
        <source>Cancella Modello</source>
        <translation>Modell löschen</translation>
    </message>
    <message>
        <location line="-75"/>
        <location line="+81"/>
        <source>Cancella Marca</source>
        <translation>Marke löschen</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Exit</source>
        <translation>Ende</translation>
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
        <location line="+16"/>
        <source>Conferma?</source>
        <translation>Bestätigen?</translation>
    </message>
    <message>
        <location line="+32"/>
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
        <translation>Ende</translation>
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
    <name>EditCompany</name>
    <message>
        <location filename="../../../archive/editcompany.cpp" line="+13"/>
        <location line="+73"/>
        <location line="+3"/>
        <source>Modifica Azienda</source>
        <translation>Firma ändern</translation>
    </message>
    <message>
        <location line="-75"/>
        <source>Cognome
Denominazione</source>
        <translation>Nachname
Firmenname</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cognome / Denominazione</source>
        <translation>Nachname / Firmenname</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Ungültiger Text eingegeben.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Muss lang sein: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Muss mindestens 5 Zeichen lang sein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Anlage eingefügt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> è già presente.</source>
        <translation> ist bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+38"/>
        <location line="+3"/>
        <source>Aggiornamento Azienda</source>
        <translation>Firma aktualisieren</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Aktualisierung fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>EditInstallation</name>
    <message>
        <location filename="../../../archive/editinstallation.cpp" line="+9"/>
        <location line="+60"/>
        <location line="+3"/>
        <source>Modifica Installazione</source>
        <translation>Anlage ändern</translation>
    </message>
    <message>
        <location line="-62"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Anlagen-Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Anz. Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Nennleist.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Anzahl der Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Nennleistung</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Ungültige Zahl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Modulo</source>
        <translation>Modulmessungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Stringmessungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misura inserita</source>
        <translation>Messung eingefügt</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Già presente.</source>
        <translation>Bereits vorhanden.</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Misure inserita</source>
        <translation>Messungen eingefügt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+28"/>
        <location line="+3"/>
        <source>Aggiornameno Installazione</source>
        <translation>Anlage aktualisiert</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Aggiornamento non riuscito.</source>
        <translation>Aktualisierung fehlgeschlagen.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+22"/>
        <location line="+177"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
    </message>
    <message>
        <location line="-170"/>
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
        <translation>Tol- : </translation>
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
        <translation>Tol+ : </translation>
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
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+24"/>
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
        <location line="+90"/>
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
        <location filename="../../../archive/editselpanel.cpp" line="+30"/>
        <location line="+139"/>
        <source>Modifica Modulo</source>
        <translation>Modul bearbeiten</translation>
    </message>
    <message>
        <location line="-131"/>
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
        <translation>Tol- : </translation>
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
        <translation>Tol+ : </translation>
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
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+20"/>
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
        <location line="+44"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modulmodell bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modulmodell</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello vuoto.</source>
        <translation>Leeres Modell.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Eseguito con successo.</source>
        <translation>Erfolgreich ausgeführt.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+32"/>
        <source>Ricerca Modulo</source>
        <translation>Modulsuche</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+228"/>
        <source>Modello trovato : </source>
        <translation>Gefundene Modelle : </translation>
    </message>
    <message>
        <location line="-226"/>
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
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+69"/>
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
    <name>InsertCompany</name>
    <message>
        <location filename="../../../archive/insertcompany.cpp" line="+11"/>
        <location line="+49"/>
        <location line="+3"/>
        <source>Nuova Azienda</source>
        <translation>Neue Firma</translation>
    </message>
    <message>
        <location line="-51"/>
        <source>Cognome
Denominazione</source>
        <translation>Nachname
Firmenname</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Nome</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cod. Fisc.</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Cognome / Denominazione</source>
        <translation>Nachname / Firmenname</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Codice Fiscale</source>
        <translation>Steuernummer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Telefono</source>
        <translation>Telefon</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Testo inserito non valido.</source>
        <translation>Ungültiger Text eingegeben.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di </source>
        <translation>Muss lang sein: </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>caratteri</source>
        <translation>Zeichen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Deve essere di almeno 5 caratteri</source>
        <translation>Muss mindestens 5 Zeichen lang sein</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Installazione inserita</source>
        <translation>Anlage eingefügt</translation>
    </message>
    <message>
        <location line="+1"/>
        <source> già presente.</source>
        <translation> bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Azienda</source>
        <translation>Firma</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome dell&apos;azienda già presente.</source>
        <translation>Firmenname bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Azienda Salvata.</source>
        <translation>Firma gespeichert.</translation>
    </message>
</context>
<context>
    <name>InsertInstallation</name>
    <message>
        <location filename="../../../archive/insertinstallation.cpp" line="+9"/>
        <location line="+47"/>
        <location line="+3"/>
        <source>Inserimento Installazione</source>
        <translation>Neue Anlage</translation>
    </message>
    <message>
        <location line="-49"/>
        <location line="+7"/>
        <source>Installazione Id</source>
        <translation>Anlagen-Id</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+7"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>Num. di stringhe</source>
        <translation>Anz. Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nom.</source>
        <translation>Nennleist.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Numero delle stringhe</source>
        <translation>Anzahl der Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Nennleistung</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>kW</source>
        <translation>kW</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Testo inserito</source>
        <translation>Eingegebener Text</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Zu lang.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Numero non valido.</source>
        <translation>Ungültige Zahl.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Moduli</source>
        <translation>Modulmessungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Stringmessungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+2"/>
        <source>Misura inserita</source>
        <translation>Messung eingefügt</translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Già presente.</source>
        <translation>Bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source> già presente.</source>
        <translation> bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Installazione</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Nome dell&apos;installazione già presente.</source>
        <translation>Anlagenname bereits vorhanden.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Installazione Salvata.</source>
        <translation>Anlage gespeichert.</translation>
    </message>
</context>
<context>
    <name>ListCompany</name>
    <message>
        <location filename="../../../archive/listcompany.cpp" line="+8"/>
        <source>Lista Aziende</source>
        <translation>Firmenliste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Cogn./Denom.</source>
        <translation>Name/Firma</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
</context>
<context>
    <name>ListInstallation</name>
    <message>
        <location filename="../../../archive/listinstallation.cpp" line="+8"/>
        <source>Lista Installazioni</source>
        <translation>Anlagenliste</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Apri</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ort</translation>
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
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+46"/>
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
        <translation>Ende</translation>
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
        <location filename="../../../archive/newpanel.cpp" line="+22"/>
        <location line="+151"/>
        <location line="+19"/>
        <source>Nuovo Modulo</source>
        <translation>Neues Modul</translation>
    </message>
    <message>
        <location line="-165"/>
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
        <translation>Tol- : </translation>
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
        <translation>Tol+ : </translation>
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
        <translation>Tol-</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Toll+</source>
        <translation>Tol+</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Marca</source>
        <translation>Marke</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Modello</source>
        <translation>Modell</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Tipo</source>
        <translation>Typ</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Salva</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+18"/>
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
        <location line="+57"/>
        <source>Testo inserito non valido.</source>
        <translation>Eingegebener Text ungültig.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modulmodell bearbeiten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello Modulo</source>
        <translation>Modulmodell</translation>
    </message>
    <message>
        <location line="+0"/>
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
<context>
    <name>SelectCompany</name>
    <message>
        <location filename="../../../archive/selectcompany.cpp" line="+22"/>
        <source>Agg. Installazione</source>
        <translation>Anlage hinzuf.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazioni ad Azienda</source>
        <translation>Anlagen zur Firma hinzufügen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+114"/>
        <source>Cancella Azienda</source>
        <translation>Firma löschen</translation>
    </message>
    <message>
        <location line="-113"/>
        <source>Modifica</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Azienda</source>
        <translation>Firma wählen</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Cognome / Denominazione</source>
        <translation>Nachname / Firmenname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fis.</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Conferma?</source>
        <translation>Bestätigen?</translation>
    </message>
</context>
<context>
    <name>SelectInstallation</name>
    <message>
        <location filename="../../../archive/selectinstallation.cpp" line="+23"/>
        <source>Agg.</source>
        <translation>Hinzuf.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Aggiungere Installazione</source>
        <translation>Anlage hinzufügen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cancella</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+84"/>
        <location line="+1"/>
        <source>Cancella Installazione</source>
        <translation>Anlage löschen</translation>
    </message>
    <message>
        <location line="-83"/>
        <source>Modifica</source>
        <translation>Ändern</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Selezione Installazione</source>
        <translation>Anlage wählen</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Num. di stringhe</source>
        <translation>Anz. Strings</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza Nominale</source>
        <translation>Nennleistung</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Conferma?</source>
        <translation>Bestätigen?</translation>
    </message>
</context>
<context>
    <name>ViewCompany</name>
    <message>
        <location filename="../../../archive/viewcompany.cpp" line="+15"/>
        <source>Visualizza Azienda</source>
        <translation>Firma anzeigen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Cognome \ Denominazione</source>
        <translation>Nachname \ Firmenname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Vorname</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod. Fisc.</source>
        <translation>Steuernr.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cod.</source>
        <translation>Code</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+33"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="-32"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tel.</source>
        <translation>Tel.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>E-mail</source>
        <translation>E-Mail</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Visualizza</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Id</source>
        <translation>Id</translation>
    </message>
</context>
<context>
    <name>ViewInstallation</name>
    <message>
        <location filename="../../../archive/viewinstallation.cpp" line="+28"/>
        <source>Installazione</source>
        <translation>Anlage</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Installazione Id</source>
        <translation>Anlagen-Id</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Città</source>
        <translation>Ort</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>CAP</source>
        <translation>PLZ</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Prov.</source>
        <translation>Prov.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Via</source>
        <translation>Straße</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Num. di stringhe</source>
        <translation>Anz. Strings</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Potenza Nom.</source>
        <translation>Nennleist.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Misure Modulo</source>
        <translation>Modulmessungen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure Stringhe</source>
        <translation>Stringmessungen</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Visualizza Grafico</source>
        <translation>Grafik anzeigen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Ende</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Vuoto</source>
        <translation>Leer</translation>
    </message>
</context>
</TS>
