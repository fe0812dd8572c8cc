<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+109"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>Rapport d&apos;essai KRM 510</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
        <source>Impossibile scrivere %1</source>
        <translation>Impossible d&apos;écrire %1</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>KRM 510 - Rapporto di prova</source>
        <translation>KRM 510 - Rapport d&apos;essai</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Rapporto di prova delle curve I-V</source>
        <translation>Rapport d&apos;essai des courbes I-V</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <location line="-6"/>
        <source>non registrato</source>
        <translation>non enregistré</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Numero di serie</source>
        <translation>Numéro de série</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versione software</source>
        <translation>Version du logiciel</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rapporto</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Data del rapporto</source>
        <translation>Date du rapport</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ispettore</source>
        <translation>Inspecteur</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure nel rapporto</source>
        <translation>Mesures dans le rapport</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure lasciate fuori</source>
        <translation>Mesures écartées</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ditta</source>
        <translation>Société</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cognome / Ragione sociale</source>
        <translation>Nom / Raison sociale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Prénom</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Partita IVA</source>
        <translation>Numéro de TVA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice fiscale</source>
        <translation>Code fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Indirizzo</source>
        <translation>Adresse</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ville</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Telefono</source>
        <translation>Téléphone</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation>E-mail</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+225"/>
        <source>Impianto %1</source>
        <translation>Installation %1</translation>
    </message>
    <message>
        <location line="-222"/>
        <source>Numero di stringhe</source>
        <translation>Nombre de chaînes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza</source>
        <translation>Puissance</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Mesures</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lasciate fuori</source>
        <translation>Écartées</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>... e altre %1</source>
        <translation>... et %1 autres</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Misura di stringa</source>
        <translation>Mesure de chaîne</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura di modulo</source>
        <translation>Mesure de module</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Misura</source>
        <translation>Mesure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Data</source>
        <translation>Date</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ora</source>
        <translation>Heure</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Commento</source>
        <translation>Commentaire</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Moduli in serie</source>
        <translation>Modules en série</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irraggiamento</source>
        <translation>Éclairement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura</source>
        <translation>Température</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura rilevata da</source>
        <translation>Température relevée par</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+171"/>
        <source>Modulo di riferimento</source>
        <translation>Module de référence</translation>
    </message>
    <message>
        <location line="-166"/>
        <source>Marca</source>
        <translation>Marque</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modèle</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax nominale</source>
        <translation>Pmax nominale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Voc / Isc</source>
        <translation>Voc / Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Vmpp / Impp</source>
        <translation>Vmpp / Impp</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>NOCT</source>
        <translation>NOCT</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Tolleranza</source>
        <translation>Tolérance</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coeff. Isc</source>
        <translation>Coeff. Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Voc</source>
        <translation>Coeff. Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Pmax</source>
        <translation>Coeff. Pmax</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+33"/>
        <location line="+234"/>
        <source>nessun riferimento</source>
        <translation>aucune référence</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>Valori misurati</source>
        <translation>Valeurs mesurées</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+25"/>
        <location line="+1"/>
        <source>Condizioni operative</source>
        <translation>Conditions de fonctionnement</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Condizioni standard (STC)</source>
        <translation>Conditions standard (STC)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Fattore di riempimento</source>
        <translation>Facteur de forme</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Scarto di Pmax dal nominale</source>
        <translation>Écart de Pmax au nominal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+4"/>
        <source>Esito</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Fattore di prestazione</source>
        <translation>Facteur de performance</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Rs (V/I al punto di massima potenza della prima rampa)</source>
        <translation>Rs (V/I au point de puissance maximale de la première rampe)</translation>
    </message>
    <message>
        <location line="+9"/>
        <location line="+1"/>
        <source>STC</source>
        <translation>STC</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Curva I-V</source>
        <translation>Courbe I-V</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Tension (V)</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Corrente (A)</source>
        <translation>Courant (A)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Curva P-V</source>
        <translation>Courbe P-V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza (W)</source>
        <translation>Puissance (W)</translation>
    </message>
    <message>
        <location line="+84"/>
        <source>Confronto delle stringhe</source>
        <translation>Comparaison des chaînes</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Valori a condizioni standard per modulo (Voc e Pmax divise per i moduli in serie; la corrente di una stringa in serie è quella di ogni suo modulo).</source>
        <translation>Valeurs aux conditions standard par module (Voc et Pmax divisées par les modules en série ; le courant d&apos;une chaîne en série est celui de chacun de ses modules).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Scarto dalla mediana delle stringhe; oltre %1 è segnato con ◄.</source>
        <translation>Écart à la médiane des chaînes ; au-delà de %1 il est marqué par ◄.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Stringa</source>
        <translation>Chaîne</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc/modulo</source>
        <translation>Voc/module</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+1"/>
        <source>scarto</source>
        <translation>écart</translation>
    </message>
    <message>
        <location line="-1"/>
        <location line="+24"/>
        <source>Isc</source>
        <translation>Isc</translation>
    </message>
    <message>
        <location line="-23"/>
        <source>Pmax/modulo</source>
        <translation>Pmax/module</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mediana</source>
        <translation>Médiane</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Voc per modulo</source>
        <translation>Voc par module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax per modulo</source>
        <translation>Pmax par module</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>scarto dalla mediana %1</source>
        <translation>écart à la médiane %1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stringhe non confrontate</source>
        <translation>Chaînes non comparées</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impianto %1: stringhe senza modulo di riferimento o sole con il loro modello.</source>
        <translation>Installation %1 : chaînes sans module de référence ou seules avec leur modèle.</translation>
    </message>
</context>
<context>
    <name>ReportMain</name>
    <message>
        <location filename="main.cpp" line="+47"/>
        <source>data non valida per --%1: %2 (aaaa-MM-gg)</source>
        <translation>date invalide pour --%1 : %2 (aaaa-MM-jj)</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Rapporto di prova delle misure del KRM 510, in PDF e in CSV.</source>
        <translation>Rapport d&apos;essai des mesures du KRM 510, en PDF et en CSV.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>La cartella krm510data (copia della chiavetta) o la cartella che la contiene.</source>
        <translation>Le dossier krm510data (copie de la clé) ou le dossier qui le contient.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Con --measures: i file delle misure.</source>
        <translation>Avec --measures : les fichiers des mesures.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di un impianto.</source>
        <translation>Le rapport d&apos;une installation.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di tutti gli impianti di una ditta.</source>
        <translation>Le rapport de toutes les installations d&apos;une société.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il rapporto delle misure nominate.</source>
        <translation>Le rapport des mesures nommées.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Solo le misure da questa data (aaaa-MM-gg).</source>
        <translation>Seulement les mesures à partir de cette date (aaaa-MM-jj).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Solo le misure fino a questa data (aaaa-MM-gg).</source>
        <translation>Seulement les mesures jusqu&apos;à cette date (aaaa-MM-jj).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lingua del rapporto: it, en, fr, de, es.</source>
        <translation>Langue du rapport : it, en, fr, de, es.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il nome dell&apos;ispettore.</source>
        <translation>Le nom de l&apos;inspecteur.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il file PDF da scrivere.</source>
        <translation>Le fichier PDF à écrire.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La cartella dei file CSV da scrivere.</source>
        <translation>Le dossier des fichiers CSV à écrire.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>uso: krm510-report DATA (--installation NOME | --company NOME | --measures FILE...) (-o rapporto.pdf | --csv CARTELLA)</source>
        <translation>usage : krm510-report DONNÉES (--installation NOM | --company NOM | --measures FICHIER...) (-o rapport.pdf | --csv DOSSIER)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>cartella dei dati non trovata: %1</source>
        <translation>dossier de données introuvable : %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>cartella dei dati non leggibile: %1</source>
        <translation>dossier de données illisible : %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lettura misure</source>
        <translation>Lecture des mesures</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>lasciato fuori %1: %2</source>
        <translation>écarté %1 : %2</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Impossibile scrivere %1</source>
        <translation>Impossible d&apos;écrire %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 misure nel rapporto, %2 lasciate fuori</source>
        <translation>%1 mesures dans le rapport, %2 écartées</translation>
    </message>
</context>
<context>
    <name>ReportMeasure</name>
    <message>
        <location filename="reportmeasure.cpp" line="+46"/>
        <source>file illeggibile</source>
        <translation>fichier illisible</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>misura danneggiata</source>
        <translation>mesure endommagée</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>sonda ambiente</source>
        <translation>sonde ambiante</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sonda sul modulo</source>
        <translation>sonde sur le module</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>automatica da Voc</source>
        <translation>automatique depuis Voc</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>manuale</source>
        <translation>manuelle</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sconosciuta (%1)</source>
        <translation>inconnue (%1)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Superato</source>
        <translation>Réussi</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non superato</source>
        <translation>Échoué</translation>
    </message>
</context>
<context>
    <name>ReportSelection</name>
    <message>
        <location filename="reportselection.cpp" line="+50"/>
        <source>Impianto non trovato: %1</source>
        <translation>Installation introuvable : %1</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Impianto illeggibile: %1</source>
        <translation>Installation illisible : %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Ditta non trovata: %1</source>
        <translation>Société introuvable : %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>impianto illeggibile</source>
        <translation>installation illisible</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>file non trovato</source>
        <translation>fichier introuvable</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nessuna misura trovata</source>
        <translation>Aucune mesure trouvée</translation>
    </message>
</context>
</TS>
