<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>DialogCollegamenti</name>
    <message>
        <location filename="../../../measure/dialogcollegamenti.cpp" line="+19"/>
        <source>Continua</source>
        <translation>Continuer</translation>
    </message>
</context>
<context>
    <name>DialogDatiElettrici</name>
    <message>
        <location filename="../../../measure/dialogdatielettrici.cpp" line="+20"/>
        <source>Dati Elettrici Misurati</source>
        <translation>Données électriques mesurées</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>DialogDegrado</name>
    <message>
        <location filename="../../../measure/dialogdegrado.cpp" line="+20"/>
        <source>Degrado Modulo</source>
        <translation>Dégradation module</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Degrado Stringa</source>
        <translation>Dégradation chaîne</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Anni : </source>
        <translation>Années : </translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Degrado : </source>
        <translation>Dégradation : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Non Applicare</source>
        <translation>Ne pas appliquer</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Degrado Modulo : Anni</source>
        <translation>Dégradation module : Années</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Degrado Modulo : Degrado %</source>
        <translation>Dégradation module : Dégradation %</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Degrado Anni</source>
        <translation>Dégradation années</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Nombre non valable : </translation>
    </message>
    <message>
        <location line="-1"/>
        <source>Degrado Percentuale</source>
        <translation>Dégradation pourcentage</translation>
    </message>
</context>
<context>
    <name>DialogInfo</name>
    <message>
        <location filename="../../../measure/dialoginfo.cpp" line="+28"/>
        <source>Salvataggio Misure Stringhe</source>
        <translation>Sauvegarde mesures chaîne</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Salvataggio Misure Modulo</source>
        <translation>Sauvegarde mesures module</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+55"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="-54"/>
        <location line="+60"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="-59"/>
        <location line="+64"/>
        <source>Commento</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <location line="-62"/>
        <source>Salva</source>
        <translation>Sauvegarder</translation>
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
        <location line="+39"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
</context>
<context>
    <name>DialogNumber</name>
    <message>
        <location filename="../../../measure/dialognumber.cpp" line="+17"/>
        <location line="+36"/>
        <location line="+8"/>
        <source>Numero di Moduli</source>
        <translation>Nombre de modules</translation>
    </message>
    <message>
        <location line="-39"/>
        <source>Numero di Moduli : </source>
        <translation>Nombre de modules : </translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Applica</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Annulla</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Testo inserito</source>
        <translation>Texte saisi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Troppo lungo.</source>
        <translation>Trop long.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Numero non valido : </source>
        <translation>Nombre non valable : </translation>
    </message>
</context>
<context>
    <name>DialogShutDown</name>
    <message>
        <location filename="../../../measure/dialogshutdown.cpp" line="+16"/>
        <source>Batteria</source>
        <translation>Batterie</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Batteria Insufficiente.</source>
        <translation>Batterie faible.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ricaricare la batteria.</source>
        <translation>Rechargez la batterie.</translation>
    </message>
</context>
</TS>
