<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="fr_FR" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+95"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>Rapport d&apos;essai KRM 510</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+34"/>
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
        <location filename="pdfanalysis.cpp" line="+54"/>
        <location line="+102"/>
        <location filename="pdfreport.cpp" line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrument</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="-6"/>
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
        <location filename="pdfanalysis.cpp" line="-127"/>
        <source>Seconda lettura della curva</source>
        <translation>Seconde lecture de la courbe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione secondo IEC 60891 (edizione 2, 2009), procedure 1 e 2</source>
        <translation>Translation selon IEC 60891 (édition 2, 2009), procédures 1 et 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Senza modulo di riferimento la curva non è traslata secondo IEC 60891 e non è confrontata con la scheda del modulo; si cercano solo i gradini.</source>
        <translation>Sans module de référence, la courbe n&apos;est pas translatée selon IEC 60891 ni comparée à la fiche du module ; seules les marches sont recherchées.</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+103"/>
        <source>Procedura 1</source>
        <translation>Procédure 1</translation>
    </message>
    <message>
        <location line="-103"/>
        <location line="+104"/>
        <source>Procedura 2</source>
        <translation>Procédure 2</translation>
    </message>
    <message>
        <location line="-89"/>
        <source>, per modulo per %1 moduli</source>
        <translation>, par module fois %1 modules</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>alfa: dalla scheda, Coeff. Isc per Isc</source>
        <translation>alpha : de la fiche, coeff. Isc fois Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>beta: dalla scheda, Coeff. Voc per Voc</source>
        <translation>bêta : de la fiche, coeff. Voc fois Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: adattata ai punti misurati (equazione a un diodo)</source>
        <translation>Rs : ajustée aux points mesurés (équation à une diode)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: dalla scheda (adattamento non riuscito)</source>
        <translation>Rs : de la fiche (ajustement impossible)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>kappa: predefinito, %1 Ω/°C per modulo</source>
        <translation>kappa : par défaut, %1 Ω/°C par module</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a (procedura 2)</source>
        <translation>a (procédure 2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La Rs dello strumento (V/I al punto di massima potenza) non è una resistenza serie e non è usata.</source>
        <translation>La Rs de l&apos;instrument (V/I au point de puissance maximale) n&apos;est pas une résistance série et n&apos;est pas utilisée.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+107"/>
        <source>Forma della curva</source>
        <translation>Forme de la courbe</translation>
    </message>
    <message>
        <location line="-101"/>
        <source>Gradino a %1 di Isc a %2: diodi di bypass in conduzione (ombreggiamento parziale, moduli disaccoppiati, una cella danneggiata).</source>
        <translation>Marche à %1 de Isc à %2 : diodes de bypass passantes (ombrage partiel, disparité, une cellule endommagée).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Voc inferiore di %1 a quella attesa dalla scheda (%2): circa %3 sottostringhe, un diodo di bypass in corto.</source>
        <translation>Voc inférieure de %1 à celle de la fiche (%2) : environ %3 sous-chaînes, une diode de bypass en court-circuit.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa con forma normale: Isc al %1 di quella attesa (%2). Sporcizia, degrado, irraggiamento errato o una sottostringa ombreggiata dietro un diodo di bypass aperto: la curva da sola non li distingue.</source>
        <translation>Courant faible de forme normale : Isc à %1 de l&apos;attendu (%2). Salissure, dégradation, éclairement erroné ou sous-chaîne ombragée derrière une diode de bypass ouverte : la courbe seule ne les distingue pas.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza ripida vicino a Isc: %1 contro %2 della curva della scheda (normalizzata): resistenza di shunt bassa, circa %3 per modulo.</source>
        <translation>Pente forte près de Isc : %1 contre %2 pour la courbe de la fiche (normalisée) : résistance shunt faible, environ %3 par module.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza debole vicino a Voc: %1 contro %2 della curva della scheda (normalizzata): resistenza serie alta (cavi, connettori), circa %3 in più per modulo.</source>
        <translation>Pente faible près de Voc : %1 contre %2 pour la courbe de la fiche (normalisée) : résistance série élevée (câbles, connecteurs), environ %3 de plus par module.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Fattore di riempimento basso: %1 contro %2 della curva della scheda, senza altra spiegazione.</source>
        <translation>Facteur de remplissage faible : %1 contre %2 pour la courbe de la fiche, sans autre explication.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nessun rilievo: la curva ha la forma attesa.</source>
        <translation>Aucune constatation : la courbe a la forme attendue.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Senza modulo di riferimento sono cercati solo i gradini.</source>
        <translation>Sans module de référence, seules les marches sont recherchées.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura ricavata da Voc: la Voc non è valutata.</source>
        <translation>Température déduite de Voc : la Voc n&apos;est pas évaluée.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+78"/>
        <source>Incertezza dell&apos;esito</source>
        <translation>Incertitude du résultat</translation>
    </message>
    <message>
        <location line="-76"/>
        <source>Banda U (irraggiamento %1, temperatura %2, traslazione %3)</source>
        <translation>Bande U (éclairement %1, température %2, translation %3)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scarto di Pmax e limiti</source>
        <translation>Écart de Pmax et limites</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Esito dello strumento</source>
        <translation>Résultat de l&apos;instrument</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Esito con la banda</source>
        <translation>Résultat avec la bande</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>inconclusivo</source>
        <translation>non concluant</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="pdfreport.cpp" line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Tension (V)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Curva I-V a STC</source>
        <translation>Courbe I-V aux STC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="pdfreport.cpp" line="-2"/>
        <source>Corrente (A)</source>
        <translation>Courant (A)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Appendice: come legge la curva il rapporto</source>
        <translation>Annexe : comment le rapport lit la courbe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione IEC 60891</source>
        <translation>Translation IEC 60891</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Procedura 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedura 2 (edizione 2009): I2 = I1 (1 + alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), con a = %1. Verso 1000 W/m² e 25 °C.</source>
        <translation>Procédure 1 : I2 = I1 + Isc1 (G2/G1 - 1) + alpha (T2 - T1) ; V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + bêta (T2 - T1). Procédure 2 (édition 2009) : I2 = I1 (1 + alpha_rel (T2 - T1)) G2/G1 ; V2 = V1 + Voc1 (bêta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), avec a = %1. Vers 1000 W/m² et 25 °C.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>alfa e beta vengono dai coefficienti della scheda; kappa è %1 Ω/°C per modulo. Rs è adattata ai punti misurati tra %2 e %3 di Isc con l&apos;equazione a un diodo V = Voc + a ln(1 - I/Isc) - Rs I (minimi quadrati). Per una stringa Rs, kappa e beta sono quelli di un modulo per il numero di moduli. La Voc della procedura 1 prolunga la curva oltre la Voc misurata con la stessa equazione.</source>
        <translation>alpha et bêta viennent des coefficients de la fiche ; kappa vaut %1 Ω/°C par module. Rs est ajustée aux points mesurés entre %2 et %3 de Isc avec l&apos;équation à une diode V = Voc + a ln(1 - I/Isc) - Rs I (moindres carrés). Pour une chaîne, Rs, kappa et bêta sont ceux d&apos;un module fois le nombre de modules. La Voc de la procédure 1 prolonge la courbe au-delà de la Voc mesurée avec la même équation.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Si usano i punti misurati dalla scheda (posizioni 0, 2, ..., 254 del file). Le pendenze sono normalizzate: A/V per Voc/Isc. La curva della scheda è l&apos;equazione a un diodo ricavata da Isc, Voc, Impp e Vmpp del modulo, alla temperatura misurata e all&apos;irraggiamento che dà la Isc misurata.</source>
        <translation>On utilise les points mesurés par la carte (positions 0, 2, ..., 254 du fichier). Les pentes sont normalisées : A/V fois Voc/Isc. La courbe de la fiche est l&apos;équation à une diode tirée de Isc, Voc, Impp et Vmpp du module, à la température mesurée et à l&apos;éclairement qui donne la Isc mesurée.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Gradino: un tratto piatto (pendenza sotto %1, lungo almeno %2 di Voc) almeno %3 di Isc sotto il precedente.</source>
        <translation>Marche : un palier (pente sous %1, long d&apos;au moins %2 de Voc) au moins %3 de Isc sous le précédent.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Diodo di bypass in corto: Voc sotto l&apos;attesa di almeno %1 sottostringhe e a meno di %2 da un numero intero; una sottostringa è 1/%3 della Voc del modulo (--substrings N); solo con temperatura misurata o inserita.</source>
        <translation>Diode de bypass en court-circuit : Voc sous l&apos;attendue d&apos;au moins %1 sous-chaînes et à moins de %2 d&apos;un nombre entier ; une sous-chaîne vaut 1/%3 de la Voc du module (--substrings N) ; seulement avec une température mesurée ou saisie.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa: Isc sotto %1 di quella attesa, senza gradini.</source>
        <translation>Courant faible : Isc sous %1 de l&apos;attendu, sans marches.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shunt basso: pendenza fino a %1 di Voc più ripida di %2 di quella della scheda.</source>
        <translation>Shunt faible : pente jusqu&apos;à %1 de Voc plus forte de %2 que celle de la fiche.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Resistenza serie alta: resistenza sotto %1 di Isc più alta di %2 (normalizzata) di quella della scheda; non valutata quando ci sono gradini.</source>
        <translation>Résistance série élevée : résistance sous %1 de Isc plus haute de %2 (normalisée) que celle de la fiche ; non évaluée en présence de marches.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fattore di riempimento basso: %1 punti sotto quello della scheda, solo se nessun altro rilievo lo spiega.</source>
        <translation>Facteur de remplissage faible : %1 points sous celui de la fiche, seulement si aucune autre constatation ne l&apos;explique.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>U è la radice della somma dei quadrati di: irraggiamento %1 (classe del sensore), temperatura %2 °C per il coefficiente di potenza del modulo, traslazione %3. Uno scarto entro U da uno dei limiti di tolleranza (dopo la quota di invecchiamento) è inconclusivo.</source>
        <translation>U est la racine de la somme des carrés de : éclairement %1 (classe du capteur), température %2 °C fois le coefficient de puissance du module, translation %3. Un écart à moins de U d&apos;une des limites de tolérance (après la part de vieillissement) n&apos;est pas concluant.</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="+1"/>
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
        <location filename="main.cpp" line="+48"/>
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
        <source>Sottostringhe (diodi di bypass) per modulo, 3 se non detto.</source>
        <translation>Sous-chaînes (diodes de bypass) par module, 3 par défaut.</translation>
    </message>
    <message>
        <location line="+4"/>
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
        <location line="+17"/>
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
