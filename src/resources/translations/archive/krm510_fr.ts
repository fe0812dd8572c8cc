<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>ArchiveMeasures</name>
    <message>
        <location filename="../../../archive/archivemeasures.cpp" line="+26"/>
        <location line="+2"/>
        <source>Archivio Misure</source>
        <translation>Archive mesures</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Moduli</source>
        <translation>Modules</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Stringhe</source>
        <translation>Chaines</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Elenco</source>
        <translation>Liste</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
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
        <translation>Archive modèles</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Nuovo Modulo</source>
        <translation>Nouveau module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modifica Marca</source>
        <translation>Modifier marque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Trova</source>
        <translation>Chercher</translation>
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
        <translation>Effacer module / modèle</translation>
    </message>
    <message>
        <location line="-79"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+84"/>
        <source>Cancella Modello</source>
        <translation>Effacer modèle</translation>
    </message>
    <message>
        <location line="-82"/>
        <location line="+88"/>
        <source>Cancella Marca</source>
        <translation>Effacer marque</translation>
    </message>
    <message>
        <location line="-86"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Numero di Modelli : </source>
        <translation>Nombre de modèles : </translation>
    </message>
    <message>
        <location line="+18"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>Cancella Modulo...</source>
        <translation>Effacement module...</translation>
    </message>
</context>
<context>
    <name>EditBrand</name>
    <message>
        <location filename="../../../archive/editbrand.cpp" line="+25"/>
        <location line="+82"/>
        <location line="+34"/>
        <source>Modifica Marca</source>
        <translation>Modifier marque</translation>
    </message>
    <message>
        <location line="-109"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
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
        <translation>&lt;Nouvelle marque&gt;</translation>
    </message>
    <message>
        <location line="-23"/>
        <location line="+17"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="-15"/>
        <location line="+14"/>
        <source>Marca Modulo</source>
        <translation>Marque du module</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Inserita nuova marca</source>
        <translation>Nouvelle marque ajoutée</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiornamento eseguito.</source>
        <translation>Mise à jour effectuée.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Errore nel salvataggio.</source>
        <translation>Erreur de sauvegarde.</translation>
    </message>
</context>
<context>
    <name>EditPanel</name>
    <message>
        <location filename="../../../archive/editpanel.cpp" line="+28"/>
        <location line="+216"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+106"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
</context>
<context>
    <name>EditSelectedPanel</name>
    <message>
        <location filename="../../../archive/editselpanel.cpp" line="+38"/>
        <location line="+181"/>
        <source>Modifica Modulo</source>
        <translation>Modifier module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+61"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifier modèle du module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modèle du module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Modèle vide.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
</context>
<context>
    <name>FindPanel</name>
    <message>
        <location filename="../../../archive/findpanel.cpp" line="+31"/>
        <source>Ricerca Modulo</source>
        <translation>Recherche module</translation>
    </message>
    <message>
        <location line="+35"/>
        <location line="+226"/>
        <source>Modello trovato : </source>
        <translation>Modèles trouvés : </translation>
    </message>
    <message>
        <location line="-224"/>
        <source>Cerca</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
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
        <translation>Pmax minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Massima</source>
        <translation>Pmax maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp</source>
        <translation>Vmpp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima</source>
        <translation>Vmpp minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Massima</source>
        <translation>Vmpp maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp</source>
        <translation>Impp</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima</source>
        <translation>Impp minimale</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Massima</source>
        <translation>Impp maximale</translation>
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
        <translation>Pmax ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Pmax Minima non può essere negativa : </source>
        <translation>Pmax minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima non può essere negativa : </source>
        <translation>Pmax maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp non può essere negativa : </source>
        <translation>Vmpp ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Vmpp Minima non può essere negativa : </source>
        <translation>Vmpp minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima non può essere negativa : </source>
        <translation>Vmpp maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp non può essere negativa : </source>
        <translation>Impp ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Impp Minima non può essere negativa : </source>
        <translation>Impp minimale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima non può essere negativa : </source>
        <translation>Impp maximale ne peut pas être négative : </translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax minima è maggiore di Pmax massima</source>
        <translation>Pmax minimale est supérieure à Pmax maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Minima è maggiore di Vmpp Massima</source>
        <translation>Vmpp minimale est supérieure à Vmpp maximale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Minima è maggiore di Impp Massima.</source>
        <translation>Impp minimale est supérieure à Impp maximale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax Massima è minore di Pmax Minima.</source>
        <translation>Pmax maximale est inférieure à Pmax minimale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp Massima è minore di Vmpp Minima.</source>
        <translation>Vmpp maximale est inférieure à Vmpp minimale.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impp Massima è minore di Impp Minima.</source>
        <translation>Impp maximale est inférieure à Impp minimale.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+48"/>
        <source>Ricerca Modulo...</source>
        <translation>Recherche module...</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Cancella...</source>
        <translation>Annuler...</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>Nessun risultato trovato.</source>
        <translation>Aucun résultat trouvé.</translation>
    </message>
</context>
<context>
    <name>ListMeasures</name>
    <message>
        <location filename="../../../archive/listmeasures.cpp" line="+35"/>
        <source>Lista Misure Moduli</source>
        <translation>Liste mesures modules</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Lista Misure Stringhe</source>
        <translation>Liste mesures chaines</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Grafico</source>
        <translation>Graphique</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Cancella</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Aggiungi</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+44"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Commento</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <location line="+40"/>
        <source>Cancella Misure Modulo</source>
        <translation>Effacer mesure module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cancella Misure Stringhe</source>
        <translation>Effacer mesure chaine</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Conferma?</source>
        <translation>Confirmer?</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <location filename="../../../archive/listpanel.cpp" line="+24"/>
        <source>Lista Moduli</source>
        <translation>Liste des modules</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>Model</source>
        <translation>Modèle</translation>
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
        <translation>Nouveau module</translation>
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
        <translation>Température nominale de la cellule - NOCT [°C]</translation>
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
        <translation>Coefficient de température de Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Isc [%/°C]</source>
        <translation>Coefficient de température Isc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Alpha : </source>
        <translation>Alpha : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Voc [%/°C]</source>
        <translation>Coefficient de température de Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Voc [%/°C]</source>
        <translation>Coefficient de température Voc [%/°C]</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Beta : </source>
        <translation>Beta : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coefficiente di Temperatura di Pmax [%/°C]</source>
        <translation>Coefficient de température de Pmax [%/°C]</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coefficiente di Temperatura Pmax [%/°C]</source>
        <translation>Coefficient de température Pmax [%/°C]</translation>
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
        <translation>Tolérance minimale [%]</translation>
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
        <translation>Tolérance maximale [%]</translation>
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
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Tipo</source>
        <translation>Type</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Sconosciuto</source>
        <translation>Inconnu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Monocristallino</source>
        <translation>Monocristallin</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Policristallino</source>
        <translation>Polycristallin</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Film Sottile</source>
        <translation>Couche mince</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Amorfo</source>
        <translation>Amorphe</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>MicroMorfo</source>
        <translation>Micromorphe</translation>
    </message>
    <message>
        <location line="+74"/>
        <source>Testo inserito non valido.</source>
        <translation>Texte saisi non valide.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Modifica Modello Modulo</source>
        <translation>Modifier modèle du module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Modello Modulo</source>
        <translation>Modèle du module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello vuoto.</source>
        <translation>Modèle vide.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Aggiornamento Modulo</source>
        <translation>Mise à jour module</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Eseguito con successo.</source>
        <translation>Exécuté avec succès.</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Errore nel salvataggio.</source>
        <translation>Erreur de sauvegarde.</translation>
    </message>
</context>
</TS>
