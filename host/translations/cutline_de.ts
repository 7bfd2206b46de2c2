<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: das Dokument kann nicht aufbewahrt werden: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>es ist leer</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>es gibt kein Dokument</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>es wurde angehalten</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>es ist von keiner Art, die gelesen werden kann: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG oder Text (UTF-8); „-o raw“ sendet es unverändert an den Drucker</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>es ist beschädigt; öffnen Sie es in einem anderen Programm, und speichern Sie es neu</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>es ist mit einem Kennwort gesperrt; speichern Sie es ohne Kennwort</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>es ist gegen Drucken gesperrt; bitten Sie seinen Besitzer um ein anderes</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>es hat keine Seiten</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>es hat zu viele Seiten; drucken Sie es in kleineren Teilen</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>es hat eine Seite in einer Größe, die kein Papier hat; speichern Sie es mit einer anderen</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>es braucht mehr Speicher, als ein Dokument haben darf; speichern Sie es mit kleineren Bildern oder in Teilen</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>das Lesen dauert zu lange; speichern Sie es anderswo als PDF, oder drucken Sie es in Teilen</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>es hat nicht alle Seiten, die gewählt wurden</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>was Dokumente dieser Art liest, ist nicht installiert</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>sein Leseprogramm ist gescheitert</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>es hat %1 Seiten, und das sind zu viele; drucken Sie es in kleineren Teilen</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>es ist zu groß: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>was Dokumente dieser Art liest, ist nicht installiert: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>sein Leseprogramm ist gescheitert: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>das Dokument „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>eines der Dokumente %1 kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>das Programm „%1“ kann nicht gestartet werden: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>die Seiten können nicht gezeichnet werden: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>diese Seite gibt es nicht</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>ihr Bild würde zu groß</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>es dauert zu lange</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>Seite %1 kann nicht gezeichnet werden: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>Etikettenrolle oder Band ist leer</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>Etiketten oder Band werden benötigt</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>Etikett oder Band klemmt</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>Etiketten oder Band sind fast verbraucht</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>Abdeckung ist offen</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>Klappe ist offen</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>Abdeckung ist nicht verriegelt</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>Kassette fehlt</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>Drucker ist ausgeschaltet oder nicht angeschlossen</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>Drucker ist ausgeschaltet</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>Drucker antwortet nicht</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>Verbindung zum Drucker wird hergestellt</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>hält nach dem aktuellen Etikett an</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>hält an</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>teilweise angehalten</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>Schneidwerk prüfen</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>Schneidwerk ist gestört</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>Schneidwerk klemmt</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>Schneidwerk ist fast verschlissen</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>Schneidwerk ist verschlissen</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>Farbband ist verbraucht</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>Farbband ist fast verbraucht</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>Druckkopf ist zu heiß</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>Druckserver hat keinen Platz für weitere Aufträge</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>neue Aufträge werden zurückgehalten</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>Drucker prüfen</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>Druckertreiber fehlt auf dem Druckserver</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>Druckertreiber ist auf dem Druckserver nicht sicher installiert</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>entfernter Drucker ist angehalten</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>wartet auf den entfernten Drucker</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>wartet, bis der Drucker fertig ist</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Bereit</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Druckt</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Zustand unbekannt</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>nimmt keine Aufträge an</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Nicht bereit</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>die Drucker können nicht aufgelistet werden</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>er hat keine Drucker</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>er hat %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>der Druckserver auf „%1“ hat keinen Drucker „%2“: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>es gibt keinen Standarddrucker: geben Sie einen mit -d an; der Druckserver auf „%1“: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>es gibt keinen Standarddrucker (%1): geben Sie einen mit -d an; der Druckserver auf „%2“: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>es sind keine gespeichert</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>gespeichert sind %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>der Drucker „%1“ hat keine gespeicherten Einstellungen „%2“: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>„%1“ ist ein Drucker, keine gespeicherte Einstellung</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>die Einstellungen „%1“ gehören der Systemverwaltung: nur lpoptions als root entfernt sie</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wartet</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Zurückgehalten</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Angehalten</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Gedruckt</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>der Drucker ist angehalten</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>der Drucker ist teilweise angehalten</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>das Dokument wird empfangen</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>bis er freigegeben wird</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>der Drucker braucht Aufmerksamkeit</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>das Dokument kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>der Drucker kann diese Art von Dokument nicht drucken</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>das Dokument kann nicht gedruckt werden</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>durch die Bedienung</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>am Drucker</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>durch den Druckserver</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>der Zustand des Auftrags %1 ist nicht bekannt</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>der Druckserver hat keinen Zustand des Auftrags %1 genannt</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>sie hat keine</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>möglich sind %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>„%1“ ist kein Papierformat: schreiben Sie es als Custom.BREITExLÄNGEmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>der Drucker nimmt kein Papier von %1 an: möglich sind %2 bis %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>die Option %1 hat keine Auswahl „%2“: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1 kann nicht geöffnet werden: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>die Verbindung zum Druckserver auf „%1“ ist abgebrochen: versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>der Druckserver auf „%1“ gibt die PPD-Datei von „%2“ nicht heraus: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>der Druckserver auf „%1“ hat keinen Drucker „%2“</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>der Drucker „%1“ hat keine PPD-Datei auf dem Druckserver auf „%2“: wählen Sie einen Drucker, der mit seinem Treiber eingerichtet wurde</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>die PPD-Datei „%1“</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>das ist ein Ordner</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>die PPD-Datei von „%1“</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>kein Speicher für %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>%1 kann nicht verwendet werden: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>%1 kann nicht verwendet werden: Zeile %2: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>der Name „%1“ hat %2 Byte, Namen in einer PPD-Datei haben höchstens %3</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>das Dokument „%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>es ist leer</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>der Druck wurde abgebrochen, es wurde nichts gedruckt</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>es hat sich während des Sendens geändert; es wurde nichts gedruckt</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>das Dokument „%1“ konnte nicht an „%2“ gesendet werden</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1; der Auftrag %2 ist vielleicht noch vorhanden: entfernen Sie ihn mit cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>„%1“ nimmt keinen Auftrag an</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>der Auftrag %1 kann nicht abgebrochen werden</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>„%1“ ist kein Druckername</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>Einstellungen können nicht als „%1“ gespeichert werden: wählen Sie einen Namen ohne Leerzeichen, „/“ und „#“</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>die Option %1 kann nicht gespeichert werden: ihr Wert enthält „#“ oder ein Zeilenende</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>die Optionen können nicht in „%1“ gespeichert werden: %2</translation>
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
        <translation>kein Druckserver bietet auf „%1“ eine verschlüsselte Verbindung an (%2): starten Sie einen, oder lassen Sie -E weg</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>kein Druckserver antwortet auf „%1“: starten Sie ihn, oder geben Sie mit -h einen anderen an</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: der Druckserver auf „%2“ meldet: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>das ist keine Datei</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>kein Drucker „%1“</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>kein Standarddrucker</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>das Papier „%1“ hat Maße, die kein Papier hat</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>sie ist größer als %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>sie ist beschädigt oder unvollständig</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>keine PPD-Datei von „%1“</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>%1 kann nicht verwendet werden: sie hat %2 %3, höchstens %4 sind verwendbar</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>%1 kann nicht verwendet werden: der Parameter %2 ihres eigenen Seitenformats ist kein Maß</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>%1 kann nicht verwendet werden: ihr Standardpapier „%2“ hat Maße, die kein Papier hat</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>das Dokument „%1“ ist nicht vollständig bei „%2“ angekommen: drucken Sie es noch einmal</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>die Einstellungen „%1“ können nicht gespeichert werden: sie haben %2 Zeichen, höchstens %3 sind möglich</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>der Druckserver auf „%1“ antwortet nicht: versuchen Sie es später, starten Sie ihn neu, oder geben Sie mit -h einen anderen an</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 vom Druckserver auf „%2“ ist größer als %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 ist nicht vollständig angekommen</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 ist vom Druckserver auf „%2“ nicht vollständig angekommen: versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>ein anderes Programm hält sie gesperrt; versuchen Sie es noch einmal</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>sie ist zu groß</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: die Verbindung zum Druckserver auf „%2“ ist abgebrochen</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>Etikett oder Band wird nicht eingezogen</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>im Drucker sind andere Etiketten oder ein anderes Band</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>Etiketten müssen entnommen werden</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>Drucker startet</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>Drucker schläft</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>Abdeckung des Schneiders ist offen</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>Schneider fehlt</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>Farbband fehlt</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>Behälter für verbrauchte Tinte ist voll</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>Angehalten seit %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>der Auftrag %1 lässt sich nicht ändern</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>der Auftrag %1 lässt sich nicht an seinen Drucker weitergeben</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>der Auftrag %1 lässt sich nicht freigeben</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>die Option %1 enthält Steuerzeichen; nichts wurde gedruckt</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>Anweisungen</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1; es ist vielleicht trotzdem angekommen: sehen Sie nach den Aufträgen von „%2“, bevor Sie noch einmal drucken</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: der Druckserver auf „%2“ lässt Sie nicht (%3): fragen Sie, wer ihn betreut</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>Der Drucker schneidet das Band nach jeweils so vielen Etiketten ab, und hinter dem letzten.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>Der Drucker schneidet das Band hinter dem letzten Etikett ab.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>Das Messer geht nur durch die bedruckte Schicht: Die Etiketten bleiben auf ihrem Träger zusammen und lassen sich einzeln abziehen.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Für Band, das dem Messer schadet, wie Stoff oder Schrumpfschlauch: Der Drucker schneidet es nie. Schneiden Sie es mit der Schere.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>Das letzte Etikett bleibt im Drucker, und der nächste Auftrag folgt ihm ohne leeres Band dazwischen. Nach dem letzten Auftrag am Drucker vorschieben und schneiden.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Druckt gespiegelt, für Etiketten, die von hinten gelesen oder aufgebügelt werden.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Lässt den leeren Raum vor und hinter dem Druck weg: Jedes Etikett ist so lang wie das, was darauf steht.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Druckt an den Enden jedes Etiketts eine Marke, wo von Hand zu schneiden ist.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Spart %1 mm Band.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Braucht %1 mm mehr Band.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Würde %1 mm Band sparen.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Würde %1 mm mehr Band brauchen.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Stücke: %1 statt %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Stücke: wären %1 statt %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>Spezialband wird nie geschnitten, daher lässt sich dies nicht wählen.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>Etiketten dieser Größe liegen an festen Stellen, daher lässt sich dies nicht wählen.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Nach jedem Etikett</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>Nach je %1 Etiketten</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Nach jedem Exemplar</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Nach dem letzten Etikett</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Wie der Drucker entscheidet</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Schneiden</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Eigene Wahl des Treibers</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Schneiden:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Auf den Druckserver wird gewartet …</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>Der Druckserver antwortet noch nicht. Ist der Computer, an dem der Drucker hängt, eingeschaltet und verbunden?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>Die letzte Änderung einer Einstellung rückgängig machen</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Das Rückgängiggemachte wiederholen</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Zu den Einstellungen zurückkehren, mit denen der Treiber beginnt</translation>
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
        <translation>&amp;Kopien:</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>S&amp;eiten:</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>&amp;Papier:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Kopien</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Alle, oder z. B. 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sortieren</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Letzte Seite zuerst</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>Je Exemplar das ganze Dokument, statt jedes Etikett so oft, wie es Exemplare gibt</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Welche Seiten gedruckt werden, etwa 1-3,5; alle, wenn das Feld leer ist</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Gedruckt.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 Etiketten gedruckt.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 Etikett gedruckt.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>Auftra&amp;g abbrechen</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>S&amp;chließen und weiter drucken</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Fortschritt des Auftrags</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Wird an %1 gesendet …</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Auftrag %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Auftrag %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Wird abgebrochen …</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Wird zusammengestellt …</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>Druckt: Etikett %1 von %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>Auftrag %1 wird abgebrochen, sobald der Druckserver wieder antwortet</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>Auftrag %1 wurde gesendet; der Druckserver antwortet nicht, wie es um ihn steht</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>Auftrag %1 wurde gesendet, aber der Server nennt seinen Zustand nicht mehr: %2. Vielleicht wird er noch gedruckt.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>Auftrag %1 wurde am Drucker abgebrochen</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 hat Auftrag %2 aufgegeben</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Sorgen Sie dafür, dass der Drucker bereit ist, und drucken Sie noch einmal.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Der Auftrag wurde abgebrochen.</translation>
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
        <translation>Ändern</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Layout ändern</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Größe, Drehung und Lage des Dokuments auf dem Etikett</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>Automatisch</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Originalgröße</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Ausfüllen</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Oben</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Unten</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Des Papiers</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fest</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Des Inhalts</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Je Absatz</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Je Zeile</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Prozent der Größe des Dokuments</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Lage</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Länge</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Länge in Millimetern</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Schrift</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Schriftgröße</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Größe:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Drehung:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Lage:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Länge:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Etiketten:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Schrift:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>Schriftgröße:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>Weitere Druckeroptionen</translation>
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
        <translation>&amp;Andere ändern</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>Die letzte Wahl behalten und ändern, was sie ausschließt</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Und %1 weitere.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>Ö&amp;ffnen …</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Zuletzt gedruckte Dokumente</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Dieser Drucker hat kein eigenes Bedienfeld. Seine Optionen stehen unter „Weitere Druckeroptionen“.</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Vorgabe:</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Diese Einstellungen als Vorgabe speichern</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>Die gewählte Vorgabe löschen</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Einstellungen des Druckers</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Vorgabe löschen</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>Die Vorgabe „%1“ dieses Druckers löschen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (geändert)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Geben Sie einen Namen ein.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Der Name ist zu lang.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Verwenden Sie Buchstaben, Ziffern, Binde- und Unterstriche ohne Leerzeichen.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Vorgabe speichern</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Name der Vorgabe:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Name der Vorgabe</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Ersetzt die Vorgabe dieses Namens.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Ersetzt die Vorgabe „%1“: Groß- und Kleinschreibung zählt nicht.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>&amp;Weitere Druckeroptionen</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>Dr&amp;ucken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Drucken</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 drucken</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>Dieses Dokument kann nicht angezeigt werden</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Etikett %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>Der Auftrag wurde abgebrochen.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Kein Drucker</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>%1 wird geöffnet …</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 druckt zurzeit nicht (%2). Ein Auftrag wartet, bis der Drucker wieder bereit ist.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 nimmt keine Aufträge an. Wählen Sie einen anderen Drucker, oder fragen Sie, wer diesen betreut.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>Es ist kein Drucker geöffnet.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Dies ist eine PPD-Datei, kein Drucker: Drucken ist nicht möglich.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>Dieses Dokument kann nicht gedruckt werden.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>Das Dokument hat %1-Seiten; sie werden auf %2 % verkleinert</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Passt besser: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Verwenden</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Dieses Papier wählen</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>Auf Etikett %1 werden Ränder abgeschnitten: auf %2 % verkleinern</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>Auf %1 Etiketten werden Ränder abgeschnitten: auf %2 % verkleinern</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>Die Dokumente genügend verkleinern</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Dokument öffnen oder hier ablegen</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Dieses Dokument geht unverändert und ungesehen an den Drucker</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>Es gibt kein Dokument zu drucken: öffnen Sie eines, oder legen Sie es hier ab.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>1 Etikett dr&amp;ucken</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>%1 Etiketten dr&amp;ucken</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>Nochmals dr&amp;ucken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>Der Auftrag wurde abgebrochen; einige seiner Etiketten sind gedruckt.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>Der Streifen zeigt den ganzen Auftrag, wie er aus dem Drucker kommt, mit allem, was das Messer tut; die Zeile darunter sagt es in Worten.

Zeigen Sie auf eine Schneideoption, oder drücken Sie F1 darauf, um zu lesen, was sie tut und was sie ändern würde.

Streifen: Plus und Minus zoomen, 0 passt ein, Eingabe zeigt ein Etikett groß. Strg+Z macht eine Einstellung rückgängig.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>Das letzte Stück hat %1 von %2 Etiketten.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Alle %1 schneiden</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Dann sind alle Stücke gleich</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>%1 Exemplare drucken</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>All das drucken?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>%1 Etiketten &amp;drucken</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>Der Druckserver antwortet nicht. Ist der Computer mit dem Drucker eingeschaltet und verbunden? Sobald er wieder antwortet, kann gedruckt werden.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Keine Antwort</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>Die Etiketten erscheinen, sobald Sie weitergehen</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>We&amp;iter</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>Der Druckserver antwortet nicht und hat den abgebrochenen Auftrag vielleicht schon. Sehen Sie seine Aufträge an, bevor Sie noch einmal drucken.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Nicht verfügbar</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Auf den Druckserver wird gewartet …</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 wurde auf dem Druckserver neu eingerichtet; Ihre Einstellungen sind geblieben.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 wurde auf dem Druckserver neu eingerichtet und hat nicht mehr: %2. Sehen Sie die Einstellungen an, bevor Sie drucken.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Drucker:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Drucker</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD-Datei, kein Drucker</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Drucker wählen</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Vorheriges Etikett</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Nächstes Etikett</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Verkleinern</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Einpassen</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Vergrößern</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etikett %1 von %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>Den Auftrag in die Ansicht einpassen</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Vorschau der Etiketten</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>Nur dieses Etikett drucken</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Alle Etiketten zeigen</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Groß zeigen</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (Kopie %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, bleibt im Drucker</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
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
        <translation>Seite %1 kann nicht gezeichnet werden: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>„%1: %2“ kann nicht zusammen mit „%3: %4“ verwendet werden.</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Ändern Sie eine der beiden Einstellungen.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: wird als „%2“ gesendet, weil Spezialband eingeschaltet ist.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: wird als „%2“ gesendet, weil das Papier „%3“ seinen Leerraum behält.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: wird als „%2“ gesendet, weil das Papier „%3“ nicht automatisch geschnitten werden darf.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: wird als „%2“ gesendet, obwohl das Papier „%3“ nicht automatisch geschnitten werden darf.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: wird als „%2“ gesendet, aber bei Spezialband wird nichts geschnitten.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: wird als „%2“ gesendet, was das Bild nicht zeigt.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: wird als „%2“ gesendet.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>unbekannte Option „%1“; dieser Drucker hat keine solche Option</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>unbekannte Option „%1“; gemeint ist vielleicht %2</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>die Seiten müssen in aufsteigender Reihenfolge stehen</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>das Bedienfeld „%1“ stimmt dem Druck mit diesen Einstellungen nicht zu; ändern Sie sie, und drucken Sie noch einmal</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>unbekanntes Papier „%1“; dieser Drucker hat %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>dieser Drucker hat keine Option „%1“</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>Kopien: %1 liegt nicht zwischen 1 und %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>eine PPD-Datei allein kann nicht drucken; wählen Sie einen Drucker</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: dieses Dokument gibt es nicht</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 hat keinen Wert „%2“: möglich sind %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>„%1“ passt nicht zu Etiketten: weggelassen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>„%1“ kann nicht gelesen werden: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>„%1“ wird übergangen: Es ist kein einfacher Text von höchstens %2 kB</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 wird übergangen: „%2“ hat dort keine Bedeutung</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 wird übergangen: Es fehlen Option, Auswahl oder was daraus folgt</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>„%1“, Zeile %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>Seitenbereich „%1“: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>„%1“ ist keine Seite; schreiben Sie Seiten wie 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>neben einem Komma fehlt eine Seite; schreiben Sie Seiten wie 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 hat keine erste Seite: schreiben Sie 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>Seiten werden ab 1 gezählt</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 läuft rückwärts: schreiben Sie %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>das Dokument hat nur 1 Seite</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>das Dokument hat %1 Seiten und keine Seite %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>„%1“ wurde nicht gedruckt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>„%1“ wartet noch auf den Druck</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>„%1“ wurde auf dem Druckserver neu eingerichtet: sehen Sie die Einstellungen an und drucken Sie dann noch einmal</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 Etikett</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 Etiketten</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 Stück</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 Stücke</translation>
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
        <translation>Länge nicht bekannt</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 der Rolle</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 Band</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>Spezialband, das nie geschnitten wird</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>Schnitt am Ende</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>Rolle nicht geschnitten</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>Band nicht geschnitten</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>Schnitt nach jedem Etikett</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>Schnitt nach jeder Kopie</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>Schnitt nach je %1</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>Halbschnitt dazwischen</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>Halbschnitt neben dem Etikett</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>das letzte Etikett bleibt im Drucker</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>mit Schnittmarken</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>ohne Leerraum</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>spiegelverkehrt</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>Vorlauf: %1, abgeschnitten</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>Vorlauf: %1, dahinter Halbschnitt</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>Vorlauf: %1, nicht abgeschnitten</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>abgeschnitten</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>dahinter Halbschnitt, nicht abgeschnitten</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>nicht abgeschnitten</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 mit %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1; dieser Treiber sagt nichts zum Schneiden</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1; wo geschnitten wird, entscheidet der Drucker</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>keine Etiketten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>Nachlauf hinter dem letzten Etikett: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>Schnittmarken an beiden Enden jedes Etiketts: %1</translation>
    </message>
</context>
</TS>
