<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+95"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>Informe de prueba KRM 510</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+34"/>
        <source>Impossibile scrivere %1</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>KRM 510 - Rapporto di prova</source>
        <translation>KRM 510 - Informe de prueba</translation>
    </message>
    <message>
        <location line="+68"/>
        <source>Rapporto di prova delle curve I-V</source>
        <translation>Informe de prueba de curvas I-V</translation>
    </message>
    <message>
        <location filename="pdfanalysis.cpp" line="+54"/>
        <location line="+102"/>
        <location filename="pdfreport.cpp" line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="-6"/>
        <source>non registrato</source>
        <translation>no registrado</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Numero di serie</source>
        <translation>Número de serie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Versione software</source>
        <translation>Versión del software</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Rapporto</source>
        <translation>Informe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Data del rapporto</source>
        <translation>Fecha del informe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Ispettore</source>
        <translation>Inspector</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure nel rapporto</source>
        <translation>Medidas en el informe</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure lasciate fuori</source>
        <translation>Medidas excluidas</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Ditta</source>
        <translation>Empresa</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Cognome / Ragione sociale</source>
        <translation>Apellido / Razón social</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Nome</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Partita IVA</source>
        <translation>NIF-IVA</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Codice fiscale</source>
        <translation>Código fiscal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+10"/>
        <source>Indirizzo</source>
        <translation>Dirección</translation>
    </message>
    <message>
        <location line="-9"/>
        <location line="+10"/>
        <source>Città</source>
        <translation>Ciudad</translation>
    </message>
    <message>
        <location line="-9"/>
        <source>Telefono</source>
        <translation>Teléfono</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Email</source>
        <translation>Correo electrónico</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+225"/>
        <source>Impianto %1</source>
        <translation>Instalación %1</translation>
    </message>
    <message>
        <location line="-222"/>
        <source>Numero di stringhe</source>
        <translation>Número de cadenas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza</source>
        <translation>Potencia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Misure</source>
        <translation>Medidas</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lasciate fuori</source>
        <translation>Excluidas</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>... e altre %1</source>
        <translation>... y %1 más</translation>
    </message>
    <message>
        <location line="+16"/>
        <source>Misura di stringa</source>
        <translation>Medida de cadena</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Misura di modulo</source>
        <translation>Medida de módulo</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Misura</source>
        <translation>Medida</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Data</source>
        <translation>Fecha</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Ora</source>
        <translation>Hora</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Commento</source>
        <translation>Comentario</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Moduli in serie</source>
        <translation>Módulos en serie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Irraggiamento</source>
        <translation>Irradiancia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura</source>
        <translation>Temperatura</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Temperatura rilevata da</source>
        <translation>Temperatura tomada por</translation>
    </message>
    <message>
        <location line="+8"/>
        <location line="+171"/>
        <source>Modulo di riferimento</source>
        <translation>Módulo de referencia</translation>
    </message>
    <message>
        <location line="-166"/>
        <source>Marca</source>
        <translation>Marca</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Modello</source>
        <translation>Modelo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Pmax nominale</source>
        <translation>Pmax nominal</translation>
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
        <translation>Tolerancia</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Coeff. Isc</source>
        <translation>Coef. Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Voc</source>
        <translation>Coef. Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Coeff. Pmax</source>
        <translation>Coef. Pmax</translation>
    </message>
    <message>
        <location line="+6"/>
        <location line="+33"/>
        <location line="+234"/>
        <source>nessun riferimento</source>
        <translation>sin referencia</translation>
    </message>
    <message>
        <location line="-262"/>
        <source>Valori misurati</source>
        <translation>Valores medidos</translation>
    </message>
    <message>
        <location line="+12"/>
        <location line="+25"/>
        <location line="+1"/>
        <source>Condizioni operative</source>
        <translation>Condiciones de operación</translation>
    </message>
    <message>
        <location line="-26"/>
        <source>Condizioni standard (STC)</source>
        <translation>Condiciones estándar (STC)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Fattore di riempimento</source>
        <translation>Factor de forma</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Scarto di Pmax dal nominale</source>
        <translation>Desviación de Pmax respecto al nominal</translation>
    </message>
    <message>
        <location line="+1"/>
        <location line="+4"/>
        <source>Esito</source>
        <translation>Resultado</translation>
    </message>
    <message>
        <location line="-3"/>
        <source>Fattore di prestazione</source>
        <translation>Factor de rendimiento</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Rs (V/I al punto di massima potenza della prima rampa)</source>
        <translation>Rs (V/I en el punto de máxima potencia de la primera rampa)</translation>
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
        <translation>Curva I-V</translation>
    </message>
    <message>
        <location filename="pdfanalysis.cpp" line="-127"/>
        <source>Seconda lettura della curva</source>
        <translation>Segunda lectura de la curva</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione secondo IEC 60891 (edizione 2, 2009), procedure 1 e 2</source>
        <translation>Traslación según IEC 60891 (edición 2, 2009), procedimientos 1 y 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Senza modulo di riferimento la curva non è traslata secondo IEC 60891 e non è confrontata con la scheda del modulo; si cercano solo i gradini.</source>
        <translation>Sin módulo de referencia la curva no se traslada según IEC 60891 ni se compara con la hoja de datos; solo se buscan escalones.</translation>
    </message>
    <message>
        <location line="+19"/>
        <location line="+103"/>
        <source>Procedura 1</source>
        <translation>Procedimiento 1</translation>
    </message>
    <message>
        <location line="-103"/>
        <location line="+104"/>
        <source>Procedura 2</source>
        <translation>Procedimiento 2</translation>
    </message>
    <message>
        <location line="-89"/>
        <source>, per modulo per %1 moduli</source>
        <translation>, por módulo por %1 módulos</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>alfa: dalla scheda, Coeff. Isc per Isc</source>
        <translation>alfa: de la hoja de datos, coef. Isc por Isc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>beta: dalla scheda, Coeff. Voc per Voc</source>
        <translation>beta: de la hoja de datos, coef. Voc por Voc</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: adattata ai punti misurati (equazione a un diodo)</source>
        <translation>Rs: ajustada a los puntos medidos (ecuación de un diodo)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Rs: dalla scheda (adattamento non riuscito)</source>
        <translation>Rs: de la hoja de datos (el ajuste falló)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>kappa: predefinito, %1 Ω/°C per modulo</source>
        <translation>kappa: por defecto, %1 Ω/°C por módulo</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>a (procedura 2)</source>
        <translation>a (procedimiento 2)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La Rs dello strumento (V/I al punto di massima potenza) non è una resistenza serie e non è usata.</source>
        <translation>La Rs del instrumento (V/I en el punto de máxima potencia) no es una resistencia serie y no se usa.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+107"/>
        <source>Forma della curva</source>
        <translation>Forma de la curva</translation>
    </message>
    <message>
        <location line="-101"/>
        <source>Gradino a %1 di Isc a %2: diodi di bypass in conduzione (ombreggiamento parziale, moduli disaccoppiati, una cella danneggiata).</source>
        <translation>Escalón al %1 de Isc en %2: diodos de bypass conduciendo (sombreado parcial, desajuste, una célula dañada).</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Voc inferiore di %1 a quella attesa dalla scheda (%2): circa %3 sottostringhe, un diodo di bypass in corto.</source>
        <translation>Voc %1 por debajo de la de la hoja (%2): unas %3 subcadenas, un diodo de bypass en cortocircuito.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa con forma normale: Isc al %1 di quella attesa (%2). Sporcizia, degrado, irraggiamento errato o una sottostringa ombreggiata dietro un diodo di bypass aperto: la curva da sola non li distingue.</source>
        <translation>Corriente baja con forma normal: Isc al %1 de la esperada (%2). Suciedad, degradación, irradiancia errónea o una subcadena sombreada tras un diodo de bypass abierto: la curva sola no los distingue.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza ripida vicino a Isc: %1 contro %2 della curva della scheda (normalizzata): resistenza di shunt bassa, circa %3 per modulo.</source>
        <translation>Pendiente fuerte cerca de Isc: %1 frente a %2 de la curva de la hoja (normalizada): resistencia shunt baja, unos %3 por módulo.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Pendenza debole vicino a Voc: %1 contro %2 della curva della scheda (normalizzata): resistenza serie alta (cavi, connettori), circa %3 in più per modulo.</source>
        <translation>Pendiente suave cerca de Voc: %1 frente a %2 de la curva de la hoja (normalizada): resistencia serie alta (cables, conectores), unos %3 más por módulo.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Fattore di riempimento basso: %1 contro %2 della curva della scheda, senza altra spiegazione.</source>
        <translation>Factor de forma bajo: %1 frente a %2 de la curva de la hoja, sin otra explicación.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Nessun rilievo: la curva ha la forma attesa.</source>
        <translation>Sin hallazgos: la curva tiene la forma esperada.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Senza modulo di riferimento sono cercati solo i gradini.</source>
        <translation>Sin módulo de referencia solo se buscan escalones.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Temperatura ricavata da Voc: la Voc non è valutata.</source>
        <translation>Temperatura obtenida de Voc: la Voc no se evalúa.</translation>
    </message>
    <message>
        <location line="+5"/>
        <location line="+78"/>
        <source>Incertezza dell&apos;esito</source>
        <translation>Incertidumbre del resultado</translation>
    </message>
    <message>
        <location line="-76"/>
        <source>Banda U (irraggiamento %1, temperatura %2, traslazione %3)</source>
        <translation>Banda U (irradiancia %1, temperatura %2, traslación %3)</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Scarto di Pmax e limiti</source>
        <translation>Desviación de Pmax y límites</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Esito dello strumento</source>
        <translation>Resultado del instrumento</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Esito con la banda</source>
        <translation>Resultado con la banda</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>inconclusivo</source>
        <translation>no concluyente</translation>
    </message>
    <message>
        <location line="+19"/>
        <location filename="pdfreport.cpp" line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Tensión (V)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Curva I-V a STC</source>
        <translation>Curva I-V en STC</translation>
    </message>
    <message>
        <location line="+1"/>
        <location filename="pdfreport.cpp" line="-2"/>
        <source>Corrente (A)</source>
        <translation>Corriente (A)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Appendice: come legge la curva il rapporto</source>
        <translation>Apéndice: cómo lee la curva el informe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Traslazione IEC 60891</source>
        <translation>Traslación IEC 60891</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Procedura 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedura 2 (edizione 2009): I2 = I1 (1 + alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), con a = %1. Verso 1000 W/m² e 25 °C.</source>
        <translation>Procedimiento 1: I2 = I1 + Isc1 (G2/G1 - 1) + alfa (T2 - T1); V2 = V1 - Rs (I2 - I1) - kappa I2 (T2 - T1) + beta (T2 - T1). Procedimiento 2 (edición 2009): I2 = I1 (1 + alfa_rel (T2 - T1)) G2/G1; V2 = V1 + Voc1 (beta_rel (T2 - T1) + a ln(G2/G1)) - Rs (I2 - I1) - kappa I2 (T2 - T1), con a = %1. A 1000 W/m² y 25 °C.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>alfa e beta vengono dai coefficienti della scheda; kappa è %1 Ω/°C per modulo. Rs è adattata ai punti misurati tra %2 e %3 di Isc con l&apos;equazione a un diodo V = Voc + a ln(1 - I/Isc) - Rs I (minimi quadrati). Per una stringa Rs, kappa e beta sono quelli di un modulo per il numero di moduli. La Voc della procedura 1 prolunga la curva oltre la Voc misurata con la stessa equazione.</source>
        <translation>alfa y beta vienen de los coeficientes de la hoja; kappa es %1 Ω/°C por módulo. Rs se ajusta a los puntos medidos entre el %2 y el %3 de Isc con la ecuación de un diodo V = Voc + a ln(1 - I/Isc) - Rs I (mínimos cuadrados). Para una cadena, Rs, kappa y beta son los de un módulo por el número de módulos. La Voc del procedimiento 1 prolonga la curva más allá de la Voc medida con la misma ecuación.</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Si usano i punti misurati dalla scheda (posizioni 0, 2, ..., 254 del file). Le pendenze sono normalizzate: A/V per Voc/Isc. La curva della scheda è l&apos;equazione a un diodo ricavata da Isc, Voc, Impp e Vmpp del modulo, alla temperatura misurata e all&apos;irraggiamento che dà la Isc misurata.</source>
        <translation>Se usan los puntos medidos por la placa (posiciones 0, 2, ..., 254 del archivo). Las pendientes están normalizadas: A/V por Voc/Isc. La curva de la hoja es la ecuación de un diodo obtenida de Isc, Voc, Impp y Vmpp del módulo, a la temperatura medida y a la irradiancia que da la Isc medida.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Gradino: un tratto piatto (pendenza sotto %1, lungo almeno %2 di Voc) almeno %3 di Isc sotto il precedente.</source>
        <translation>Escalón: un tramo plano (pendiente bajo %1, de al menos el %2 de Voc) al menos el %3 de Isc por debajo del anterior.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Diodo di bypass in corto: Voc sotto l&apos;attesa di almeno %1 sottostringhe e a meno di %2 da un numero intero; una sottostringa è 1/%3 della Voc del modulo (--substrings N); solo con temperatura misurata o inserita.</source>
        <translation>Diodo de bypass en cortocircuito: Voc por debajo de la esperada en al menos %1 subcadenas y a menos de %2 de un número entero; una subcadena es 1/%3 de la Voc del módulo (--substrings N); solo con temperatura medida o introducida.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Corrente bassa: Isc sotto %1 di quella attesa, senza gradini.</source>
        <translation>Corriente baja: Isc por debajo del %1 de la esperada, sin escalones.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Shunt basso: pendenza fino a %1 di Voc più ripida di %2 di quella della scheda.</source>
        <translation>Shunt bajo: pendiente hasta el %1 de Voc más fuerte en %2 que la de la hoja.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Resistenza serie alta: resistenza sotto %1 di Isc più alta di %2 (normalizzata) di quella della scheda; non valutata quando ci sono gradini.</source>
        <translation>Resistencia serie alta: resistencia por debajo del %1 de Isc mayor en %2 (normalizada) que la de la hoja; no se evalúa si hay escalones.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fattore di riempimento basso: %1 punti sotto quello della scheda, solo se nessun altro rilievo lo spiega.</source>
        <translation>Factor de forma bajo: %1 puntos por debajo del de la hoja, solo si ningún otro hallazgo lo explica.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>U è la radice della somma dei quadrati di: irraggiamento %1 (classe del sensore), temperatura %2 °C per il coefficiente di potenza del modulo, traslazione %3. Uno scarto entro U da uno dei limiti di tolleranza (dopo la quota di invecchiamento) è inconclusivo.</source>
        <translation>U es la raíz de la suma de los cuadrados de: irradiancia %1 (clase del sensor), temperatura %2 °C por el coeficiente de potencia del módulo, traslación %3. Una desviación dentro de U de uno de los límites de tolerancia (tras la parte de envejecimiento) no es concluyente.</translation>
    </message>
    <message>
        <location filename="pdfreport.cpp" line="+1"/>
        <source>Curva P-V</source>
        <translation>Curva P-V</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Potenza (W)</source>
        <translation>Potencia (W)</translation>
    </message>
    <message>
        <location line="+84"/>
        <source>Confronto delle stringhe</source>
        <translation>Comparación de las cadenas</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Valori a condizioni standard per modulo (Voc e Pmax divise per i moduli in serie; la corrente di una stringa in serie è quella di ogni suo modulo).</source>
        <translation>Valores en condiciones estándar por módulo (Voc y Pmax divididas por los módulos en serie; la corriente de una cadena en serie es la de cada uno de sus módulos).</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Scarto dalla mediana delle stringhe; oltre %1 è segnato con ◄.</source>
        <translation>Desviación de la mediana de las cadenas; más allá de %1 se marca con ◄.</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Stringa</source>
        <translation>Cadena</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Voc/modulo</source>
        <translation>Voc/módulo</translation>
    </message>
    <message>
        <location line="+0"/>
        <location line="+1"/>
        <source>scarto</source>
        <translation>desviación</translation>
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
        <translation>Pmax/módulo</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Mediana</source>
        <translation>Mediana</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Voc per modulo</source>
        <translation>Voc por módulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Pmax per modulo</source>
        <translation>Pmax por módulo</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>scarto dalla mediana %1</source>
        <translation>desviación de la mediana %1</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>Stringhe non confrontate</source>
        <translation>Cadenas no comparadas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Impianto %1: stringhe senza modulo di riferimento o sole con il loro modello.</source>
        <translation>Instalación %1: cadenas sin módulo de referencia o solas con su modelo.</translation>
    </message>
</context>
<context>
    <name>ReportMain</name>
    <message>
        <location filename="main.cpp" line="+48"/>
        <source>data non valida per --%1: %2 (aaaa-MM-gg)</source>
        <translation>fecha no válida para --%1: %2 (aaaa-MM-dd)</translation>
    </message>
    <message>
        <location line="+30"/>
        <source>Rapporto di prova delle misure del KRM 510, in PDF e in CSV.</source>
        <translation>Informe de prueba de las medidas del KRM 510, en PDF y CSV.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>La cartella krm510data (copia della chiavetta) o la cartella che la contiene.</source>
        <translation>La carpeta krm510data (copia de la memoria USB) o la carpeta que la contiene.</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Con --measures: i file delle misure.</source>
        <translation>Con --measures: los archivos de las medidas.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di un impianto.</source>
        <translation>El informe de una instalación.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Il rapporto di tutti gli impianti di una ditta.</source>
        <translation>El informe de todas las instalaciones de una empresa.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il rapporto delle misure nominate.</source>
        <translation>El informe de las medidas indicadas.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Solo le misure da questa data (aaaa-MM-gg).</source>
        <translation>Solo las medidas desde esta fecha (aaaa-MM-dd).</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Solo le misure fino a questa data (aaaa-MM-gg).</source>
        <translation>Solo las medidas hasta esta fecha (aaaa-MM-dd).</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Lingua del rapporto: it, en, fr, de, es.</source>
        <translation>Idioma del informe: it, en, fr, de, es.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Il nome dell&apos;ispettore.</source>
        <translation>El nombre del inspector.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Sottostringhe (diodi di bypass) per modulo, 3 se non detto.</source>
        <translation>Subcadenas (diodos de bypass) por módulo, 3 si no se indica.</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Il file PDF da scrivere.</source>
        <translation>El archivo PDF que se escribirá.</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>La cartella dei file CSV da scrivere.</source>
        <translation>La carpeta de los archivos CSV que se escribirán.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>uso: krm510-report DATA (--installation NOME | --company NOME | --measures FILE...) (-o rapporto.pdf | --csv CARTELLA)</source>
        <translation>uso: krm510-report DATOS (--installation NOMBRE | --company NOMBRE | --measures ARCHIVO...) (-o informe.pdf | --csv CARPETA)</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>cartella dei dati non trovata: %1</source>
        <translation>carpeta de datos no encontrada: %1</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>cartella dei dati non leggibile: %1</source>
        <translation>carpeta de datos ilegible: %1</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Lettura misure</source>
        <translation>Leyendo medidas</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>lasciato fuori %1: %2</source>
        <translation>excluido %1: %2</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Impossibile scrivere %1</source>
        <translation>No se puede escribir %1</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 misure nel rapporto, %2 lasciate fuori</source>
        <translation>%1 medidas en el informe, %2 excluidas</translation>
    </message>
</context>
<context>
    <name>ReportMeasure</name>
    <message>
        <location filename="reportmeasure.cpp" line="+46"/>
        <source>file illeggibile</source>
        <translation>archivo ilegible</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>misura danneggiata</source>
        <translation>medida dañada</translation>
    </message>
    <message>
        <location line="+42"/>
        <source>sonda ambiente</source>
        <translation>sonda ambiente</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sonda sul modulo</source>
        <translation>sonda en el módulo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>automatica da Voc</source>
        <translation>automática desde Voc</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>manuale</source>
        <translation>manual</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>sconosciuta (%1)</source>
        <translation>desconocida (%1)</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Superato</source>
        <translation>Superado</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Non superato</source>
        <translation>No superado</translation>
    </message>
</context>
<context>
    <name>ReportSelection</name>
    <message>
        <location filename="reportselection.cpp" line="+50"/>
        <source>Impianto non trovato: %1</source>
        <translation>Instalación no encontrada: %1</translation>
    </message>
    <message>
        <location line="+19"/>
        <source>Impianto illeggibile: %1</source>
        <translation>Instalación ilegible: %1</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Ditta non trovata: %1</source>
        <translation>Empresa no encontrada: %1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>impianto illeggibile</source>
        <translation>instalación ilegible</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>file non trovato</source>
        <translation>archivo no encontrado</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Nessuna misura trovata</source>
        <translation>No se encontró ninguna medida</translation>
    </message>
</context>
</TS>
