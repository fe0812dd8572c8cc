<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.0" language="es_ES" sourcelanguage="it_IT">
<context>
    <name>PdfReport</name>
    <message>
        <location filename="pdfreport.cpp" line="+109"/>
        <source>Rapporto di prova KRM 510</source>
        <translation>Informe de prueba KRM 510</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+31"/>
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
        <location line="+3"/>
        <location line="+11"/>
        <source>Strumento</source>
        <translation>Instrumento</translation>
    </message>
    <message>
        <location line="-6"/>
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
        <location line="+0"/>
        <location line="+3"/>
        <source>Tensione (V)</source>
        <translation>Tensión (V)</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>Corrente (A)</source>
        <translation>Corriente (A)</translation>
    </message>
    <message>
        <location line="+1"/>
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
        <location filename="main.cpp" line="+47"/>
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
        <location line="+16"/>
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
