<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: impossibile conservare il documento: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>non c’è un documento</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>è stato interrotto</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>non è di un tipo leggibile: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG o testo (UTF-8); «-o raw» lo invia alla stampante così com’è</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>è danneggiato; aprirlo in un altro programma e salvarlo di nuovo</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>è protetto da password; salvarlo senza password</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>è protetto dalla stampa; chiederne un altro al proprietario</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>non ha pagine</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>ha troppe pagine; stamparlo in parti più piccole</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>ha una pagina di dimensioni che nessuna carta ha; salvarlo con altre</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>richiede più memoria di quanta un documento possa usarne; salvarlo con immagini più piccole o in parti</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>la lettura richiede troppo tempo; salvarlo altrove come PDF o stamparlo in parti</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>non ha tutte le pagine scelte</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>il componente che legge documenti di questo tipo non è installato</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>il suo lettore non è riuscito</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>ha %1 pagine, che sono troppe; stamparlo in parti più piccole</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>è troppo grande: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>il componente che legge documenti di questo tipo non è installato: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>il suo lettore non è riuscito: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>impossibile leggere il documento «%1»: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>impossibile leggere uno dei documenti %1: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>impossibile avviare il programma «%1»: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>impossibile disegnare le pagine: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>questa pagina non esiste</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>la sua immagine sarebbe troppo grande</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>richiede troppo tempo</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>impossibile disegnare la pagina %1: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>rotolo di etichette o nastro esaurito</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>servono etichette o nastro</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>etichetta o nastro inceppato</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>etichette o nastro quasi esauriti</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>coperchio aperto</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>sportello aperto</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>coperchio non bloccato</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>cassetta mancante</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>stampante spenta o non collegata</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>stampante spenta</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>la stampante non risponde</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>connessione alla stampante</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>pausa dopo l’etichetta attuale</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arresto in corso</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>parzialmente ferma</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>controllare la taglierina</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>guasto della taglierina</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>taglierina bloccata</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>taglierina quasi usurata</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>taglierina usurata</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>nastro inchiostrato esaurito</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>nastro inchiostrato quasi esaurito</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>testina di stampa troppo calda</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>il server di stampa non ha spazio per altri lavori</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>i nuovi lavori sono trattenuti</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>controllare la stampante</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>il driver della stampante manca sul server di stampa</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>il driver della stampante non è installato in modo sicuro sul server di stampa</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>stampante remota in pausa</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>in attesa della stampante remota</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>in attesa che la stampante finisca</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>In stampa</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>In pausa</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Stato sconosciuto</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>non accetta lavori</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Non pronta</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>impossibile elencare le stampanti</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>non ha stampanti</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>ha %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>il server di stampa «%1» non ha nessuna stampante «%2»: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>non c’è una stampante predefinita: indicarne una con -d; il server di stampa «%1»: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>non c’è una stampante predefinita (%1): indicarne una con -d; il server di stampa «%2»: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>nessuna è salvata</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>sono salvate %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>la stampante «%1» non ha impostazioni salvate «%2»: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>«%1» è una stampante, non impostazioni salvate</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>le impostazioni «%1» sono dell’amministratore: solo lpoptions come root le elimina</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>In attesa</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Trattenuto</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Fermo</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annullato</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Non riuscito</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Stampato</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>la stampante è in pausa</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>la stampante è parzialmente in pausa</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>il documento è in ricezione</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>finché non viene rilasciato</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>la stampante richiede attenzione</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>il documento non si può leggere</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>la stampante non può stampare questo tipo di documento</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>il documento non si può stampare</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>dall’operatore</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>sulla stampante</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>dal server di stampa</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>lo stato del lavoro %1 non è noto</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>il server di stampa non ha comunicato lo stato del lavoro %1</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>non ne ha</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>le scelte sono %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>«%1» non è un formato di carta: scriverlo come Custom.LARGHEZZAxLUNGHEZZAmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>la stampante non accetta carta da %1: accetta da %2 a %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>l’opzione %1 non ha la scelta «%2»: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossibile aprire %1: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>la connessione al server di stampa «%1» si è interrotta: riprovare</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>il server di stampa «%1» non fornisce il file PPD di «%2»: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>il server di stampa «%1» non ha nessuna stampante «%2»</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>la stampante «%1» non ha un file PPD sul server di stampa «%2»: scegliere una stampante installata con il suo driver</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>il file PPD «%1»</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>è una cartella</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>il file PPD di «%1»</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>memoria insufficiente per %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>impossibile usare %1: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>impossibile usare %1: riga %2: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>il nome «%1» ha %2 byte e i nomi di un file PPD ne hanno al massimo %3</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>impossibile leggere il documento «%1»: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>è vuoto</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>la stampa è stata annullata, non è stato stampato nulla</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>è cambiato durante l’invio; non è stato stampato nulla</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>impossibile inviare il documento «%1» a «%2»</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1; il lavoro %2 potrebbe esserci ancora: eliminarlo con cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>«%1» non accetta lavori</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>il lavoro %1 non si può annullare</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>«%1» non è il nome di una stampante</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>le impostazioni non si possono salvare come «%1»: scegliere un nome senza spazi, «/» e «#»</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>l’opzione %1 non si può salvare: il suo valore contiene «#» o una fine riga</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>le opzioni non si possono salvare in «%1»: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>no print server gives an encrypted connection at &quot;%1&quot; (%2): start one or leave out -E</source>
        <translation>nessun server di stampa offre una connessione cifrata su «%1» (%2): avviarne uno oppure omettere -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>nessun server di stampa risponde su «%1»: avviarlo oppure indicarne un altro con -h</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: il server di stampa «%2» dice: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>non è un file</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>nessuna stampante «%1»</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>nessuna stampante predefinita</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>la carta «%1» ha misure che nessuna carta ha</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>supera %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>è danneggiato o incompleto</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>nessun file PPD di «%1»</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>impossibile usare %1: ha %2 %3 e se ne possono usare al massimo %4</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>impossibile usare %1: il parametro %2 del formato personalizzato non è una misura</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>impossibile usare %1: la carta predefinita «%2» ha misure che nessuna carta ha</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>il documento «%1» non è arrivato intero a «%2»: stamparlo di nuovo</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>impossibile salvare le impostazioni «%1»: hanno %2 caratteri e se ne possono salvare al massimo %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>il server di stampa su «%1» non risponde: riprovare più tardi, riavviarlo o indicarne un altro con -h</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 dal server di stampa su «%2» supera %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 non è arrivato intero</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 non è arrivato intero dal server di stampa su «%2»: riprovare</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>un altro programma lo tiene bloccato; riprovare</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>è troppo grande</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: la connessione al server di stampa su «%2» è andata persa</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>l’etichetta o il nastro non avanza</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>nella stampante ci sono altre etichette o un altro nastro</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>occorre togliere le etichette</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>la stampante si sta avviando</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>la stampante è in standby</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>il coperchio della taglierina è aperto</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>manca la taglierina</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>manca il nastro inchiostrato</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>il contenitore dell’inchiostro usato è pieno</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>In pausa dalle %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>non è possibile modificare il lavoro %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>non è possibile spostare il lavoro %1 sulla sua stampante</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>non è possibile sbloccare il lavoro %1</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>l’opzione %1 contiene caratteri di controllo; non è stato stampato nulla</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>istruzioni</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1; potrebbe essere arrivato comunque: controlli i lavori di «%2» prima di stamparlo di nuovo</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: il server di stampa «%2» non lo consente (%3): chiedere a chi se ne occupa</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>La stampante taglia il nastro ogni tante etichette e dopo l’ultima.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>La stampante taglia il nastro dopo l’ultima etichetta.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>La lama attraversa solo lo strato stampato: le etichette restano unite sul supporto e si staccano una per una.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Per nastro che danneggerebbe la lama, come tessuto o guaina termorestringente: la stampante non lo taglia mai. Tagliarlo con le forbici.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>L’ultima etichetta resta nella stampante e il lavoro successivo la segue senza nastro vuoto in mezzo. Dopo l’ultimo lavoro, far avanzare e tagliare sulla stampante.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Stampa speculare, per etichette lette da dietro o da stirare.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Elimina lo spazio vuoto prima e dopo la stampa: ogni etichetta è lunga quanto il suo contenuto.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Stampa un segno alle estremità di ogni etichetta, dove tagliare a mano.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Risparmia %1 mm di nastro.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Usa %1 mm di nastro in più.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Farebbe risparmiare %1 mm di nastro.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Userebbe %1 mm di nastro in più.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Pezzi: %1 invece di %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Pezzi: sarebbero %1 invece di %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>Il nastro speciale non viene mai tagliato, perciò non si può scegliere.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>Le etichette di questa misura stanno in posizioni fisse, perciò non si può scegliere.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Dopo ogni etichetta</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>Ogni %1 etichette</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Dopo ogni copia</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Dopo l’ultima etichetta</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Come decide la stampante</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Taglio</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Scelta del driver</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Taglio:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>In attesa del server di stampa…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>Il server di stampa non risponde ancora. Il computer con la stampante è acceso e connesso?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>Annulla l’ultima modifica di un’impostazione</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Ripristina ciò che è stato annullato</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Ripristina</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Torna alle impostazioni iniziali del driver</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>cutline::JobForm</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copie:</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>Pa&amp;gine:</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Ca&amp;rta:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copie</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Tutte, oppure ad esempio 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagine</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Carta</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Fascicola</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Prima l’ultima pagina</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>L’intero documento una volta per copia, invece di ogni etichetta tante volte quante sono le copie</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Quali pagine si stampano, come 1-3,5; tutte se è vuoto</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Stampato.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 etichette stampate.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 etichetta stampata.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>Ann&amp;ulla il lavoro</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>C&amp;hiudi e lascia stampare</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Avanzamento del lavoro</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Invio a %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Lavoro %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Lavoro %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annullamento…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Composizione…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>Stampa in corso: etichetta %1 di %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>Il lavoro %1 sarà annullato quando il server di stampa risponderà di nuovo</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>Il lavoro %1 è stato inviato; il server di stampa non risponde sul suo stato</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>Il lavoro %1 è stato inviato, ma il server non ne comunica più lo stato: %2. Potrebbe ancora essere stampato.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>Il lavoro %1 è stato annullato sulla stampante</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 ha rinunciato al lavoro %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Controllare che la stampante sia pronta e stampare di nuovo.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Il lavoro è stato annullato.</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>Layout:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Cambia</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Cambia il layout</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Dimensione, rotazione e posizione del documento sull’etichetta</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Dimensioni reali</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Riempi</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentuale</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>A sinistra</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>A destra</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>In alto a sinistra</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>In alto a destra</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>In basso a sinistra</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>In basso a destra</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Della carta</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fissa</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Del contenuto</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Per paragrafo</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Per riga</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Dimensione</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Percentuale delle dimensioni del documento</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotazione</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posizione</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lunghezza</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Lunghezza in millimetri</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etichette</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Carattere</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Dimensione testo</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Dimensione:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Rotazione:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Posizione:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Lunghezza:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Etichette:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Carattere:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>Corpo:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>Altre opzioni della stampante</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>cutline::NoticeView</name>
    <message>
        <source>Chan&amp;ge the others</source>
        <translation>Cam&amp;bia le altre</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>Mantieni l’ultima scelta e cambia quelle che la escludono</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>E altri %1.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>Apr&amp;i…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Documenti recenti</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Questa stampante non ha un pannello proprio. Le sue opzioni sono in «Altre opzioni della stampante».</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Preimpostazione:</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Elimina</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Preimpostazione</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Salva queste impostazioni come preimpostazione</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>Elimina la preimpostazione scelta</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Impostazioni della stampante</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Elimina preimpostazione</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>Eliminare la preimpostazione «%1» di questa stampante?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modificato)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Scrivere un nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Il nome è troppo lungo.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Usare lettere, cifre, trattini e trattini bassi, senza spazi.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Salva preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nome della preimpostazione:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nome della preimpostazione</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>Sal&amp;va</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Sostituisce la preimpostazione con questo nome.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Sostituisce la preimpostazione «%1»: le maiuscole non contano.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>&amp;Altre opzioni della stampante</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>S&amp;tampa</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Stampa</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Stampa di %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>Impossibile mostrare questo documento</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Etichetta %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Il lavoro è stato annullato.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Nessuna stampante</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>Apertura di %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 al momento non stampa (%2). I lavori attendono finché la stampante non è di nuovo pronta.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 non accetta lavori. Scegliere un’altra stampante o chiedere a chi si occupa di questa.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>Nessuna stampante è aperta.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Questo è un file PPD, non una stampante: non si può stampare.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>Impossibile stampare questo documento.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>Il documento ha pagine %1; vengono ridotte al %2%</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Più adatta: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Usa</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Scegli questa carta</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>I bordi dell’etichetta %1 saranno tagliati: ridurre al %2%</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>I bordi di %1 etichette saranno tagliati: ridurre al %2%</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>Rende i documenti abbastanza piccoli</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e altri %2</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Aprire o trascinare qui un documento</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Questo documento va alla stampante così com’è, senza anteprima</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>Non c’è un documento da stampare: aprirne uno o trascinarlo qui.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>S&amp;tampa 1 etichetta</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>S&amp;tampa %1 etichette</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>S&amp;tampa di nuovo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>Il lavoro è stato annullato; alcune sue etichette sono stampate.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>La striscia mostra l’intero lavoro come esce dalla stampante, con ciò che fa la lama; la riga sotto lo dice a parole.

Indicare un’opzione di taglio, o premere F1 su di essa, per leggere che cosa fa e che cosa cambierebbe.

Striscia: più e meno per lo zoom, 0 per adattare, Invio mostra un’etichetta in grande. Ctrl+Z annulla un’impostazione.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>L’ultimo pezzo ha %1 etichette su %2.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Taglia ogni %1</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Così tutti i pezzi sono uguali</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>Stampa %1 copie</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>Stampare tutto questo?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>&amp;Stampa %1 etichette</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>Il server di stampa non risponde. Il computer con la stampante è acceso e connesso? Si potrà stampare appena risponderà di nuovo.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Nessuna risposta</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>Le etichette vengono mostrate quando si continua</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>C&amp;ontinua</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>Il server di stampa non risponde e forse ha il lavoro che avete annullato. Guardate i suoi lavori prima di stampare di nuovo.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponibile</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>In attesa del server di stampa…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 è stata riconfigurata sul server di stampa; le vostre impostazioni sono rimaste.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 è stata riconfigurata sul server di stampa e non ha più: %2. Guardate le impostazioni prima di stampare.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Stampante:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Stampante</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>File PPD, nessuna stampante</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Scegliere una stampante</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Etichetta precedente</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Etichetta successiva</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Riduci</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Adatta</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ingrandisci</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etichetta %1 di %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>Adatta il lavoro alla vista</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Anteprima delle etichette</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>Stampa solo questa etichetta</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Mostra tutte le etichette</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Mostra ingrandita</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (copia %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, resta nella stampante</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Riepilogo</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>document</name>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>impossibile disegnare la pagina %1: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>«%1: %2» non si può usare insieme a «%3: %4».</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Cambiare una delle due.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: inviata come «%2» perché il nastro speciale è attivo.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: inviata come «%2» perché la carta «%3» conserva lo spazio vuoto.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: inviata come «%2» perché la carta «%3» non va tagliata automaticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: inviata come «%2» anche se la carta «%3» non va tagliata automaticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: inviata come «%2», ma con il nastro speciale attivo non si taglia nulla.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: inviata come «%2», cosa che l’immagine non mostra.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: inviata come «%2».</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>opzione sconosciuta «%1»; questa stampante non ha tale opzione</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>opzione sconosciuta «%1»; forse %2?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>le pagine devono essere in ordine crescente</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>il pannello «%1» non accetta di stampare con queste impostazioni; cambiarle e stampare di nuovo</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>carta sconosciuta «%1»; questa stampante ha %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>questa stampante non ha l’opzione «%1»</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>copie: %1 non è compreso tra 1 e %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>un file PPD da solo non può stampare; scegliere una stampante</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: questo documento non esiste</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 non ha il valore «%2»: i valori sono %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>«%1» non è adatto alle etichette: tralasciato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>Impossibile leggere «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>«%1» viene ignorato: non è un testo semplice di al massimo %2 kB</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 viene ignorata: lì «%2» non ha significato</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 viene ignorata: servono un’opzione, una scelta e il loro effetto</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>«%1», riga %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>intervallo di pagine «%1»: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>«%1» non è una pagina; scrivere le pagine come 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>manca una pagina accanto a una virgola; scrivere le pagine come 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 non ha una prima pagina: scrivere 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>le pagine si contano da 1</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 va all’indietro: scrivere %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>il documento ha solo 1 pagina</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>il documento ha %1 pagine e nessuna pagina %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>«%1» non è stato stampato</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>«%1» è ancora in attesa di stampa</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>«%1» è stata riconfigurata sul server di stampa: guardate le impostazioni, poi stampate di nuovo</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 etichetta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etichette</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 pezzo</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 pezzi</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>lunghezza sconosciuta</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 di rotolo</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 di nastro</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>al massimo %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>nastro speciale, che non viene mai tagliato</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>taglio alla fine</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>rotolo non tagliato</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>nastro non tagliato</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>taglio dopo ogni etichetta</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>taglio dopo ogni copia</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>taglio ogni %1</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>mezzo taglio tra di esse</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>mezzo taglio accanto all’etichetta</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>l’ultima etichetta resta nella stampante</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>con segni di taglio</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>senza spazio vuoto</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>speculare</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>nastro iniziale: %1, tagliato</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>nastro iniziale: %1, seguito da un mezzo taglio</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>nastro iniziale: %1, non tagliato</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>tagliato</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>seguito da un mezzo taglio, non tagliato</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>non tagliato</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 da %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1; questo driver non dice nulla del taglio</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1; la stampante decide dove tagliare</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>nessuna etichetta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>avanzamento dopo l’ultima etichetta: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>segni di taglio ai due capi di ogni etichetta: %1</translation>
    </message>
</context>
</TS>
