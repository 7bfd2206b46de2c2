<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: kan het document niet bewaren: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>er is geen document</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>het is gestopt</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>het is niet van een leesbare soort: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG of tekst (UTF-8); ‘-o raw’ stuurt het ongewijzigd naar de printer</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>het is beschadigd; open het in een ander programma en sla het opnieuw op</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>het is met een wachtwoord beveiligd; sla het zonder wachtwoord op</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>het is tegen afdrukken beveiligd; vraag de eigenaar om een ander document</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>het heeft geen pagina’s</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>het heeft te veel pagina’s; druk het in kleinere delen af</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>het heeft een pagina van een grootte die geen papier heeft; sla het met een andere op</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>het heeft meer geheugen nodig dan een document mag gebruiken; sla het met kleinere afbeeldingen of in delen op</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>het lezen duurt te lang; sla het elders op als PDF of druk het in delen af</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>het heeft niet alle gekozen pagina’s</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>wat documenten van deze soort leest, is niet geïnstalleerd</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>het leesprogramma is mislukt</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>het heeft %1 pagina’s en dat zijn er te veel; druk het in kleinere delen af</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>het is te groot: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>wat documenten van deze soort leest, is niet geïnstalleerd: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>het leesprogramma is mislukt: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>kan het document ‘%1’ niet lezen: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>kan een van de documenten %1 niet lezen: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>kan het programma ‘%1’ niet starten: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>de pagina’s kunnen niet worden getekend: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>deze pagina bestaat niet</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>de afbeelding zou te groot worden</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>het duurt te lang</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>pagina %1 kan niet worden getekend: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>labelrol of tape is op</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>labels of tape nodig</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>label of tape zit vast</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>labels of tape zijn bijna op</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>deksel is open</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>klep is open</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>deksel is niet vergrendeld</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>cassette ontbreekt</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>printer staat uit of is niet aangesloten</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>printer staat uit</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>printer antwoordt niet</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>verbinden met de printer</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>pauzeert na het huidige label</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>stopt</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>gedeeltelijk gestopt</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>controleer het snijmechanisme</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>storing in het snijmechanisme</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>snijmechanisme zit vast</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>snijmechanisme is bijna versleten</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>snijmechanisme is versleten</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>inktlint is op</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>inktlint is bijna op</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>printkop is te heet</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>printserver heeft geen ruimte voor meer taken</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>nieuwe taken worden vastgehouden</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>controleer de printer</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>printerstuurprogramma ontbreekt op de printserver</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>printerstuurprogramma is niet veilig geïnstalleerd op de printserver</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>externe printer is gepauzeerd</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>wacht op de externe printer</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>wacht tot de printer klaar is</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Gereed</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Drukt af</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Gepauzeerd</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Status onbekend</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>neemt geen taken aan</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Niet gereed</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>de printers kunnen niet worden opgesomd</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>hij heeft geen printers</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>hij heeft %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>de printserver op ‘%1’ heeft geen printer ‘%2’: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>er is geen standaardprinter: noem er een met -d; de printserver op ‘%1’: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>er is geen standaardprinter (%1): noem er een met -d; de printserver op ‘%2’: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>er zijn er geen bewaard</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>bewaard zijn %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>de printer ‘%1’ heeft geen bewaarde instellingen ‘%2’: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>‘%1’ is een printer, geen bewaarde instellingen</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>de instellingen ‘%1’ zijn van de beheerder: alleen lpoptions als root verwijdert ze</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Wacht</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Vastgehouden</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Gestopt</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Mislukt</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Afgedrukt</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>de printer is gepauzeerd</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>de printer is gedeeltelijk gepauzeerd</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>het document wordt ontvangen</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>tot hij wordt vrijgegeven</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>de printer vraagt aandacht</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>het document kan niet worden gelezen</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>de printer kan dit soort document niet afdrukken</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>het document kan niet worden afgedrukt</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>door de bediening</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>op de printer</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>door de printserver</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>de status van de taak %1 is niet bekend</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>de printserver gaf geen status van de taak %1</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>ze heeft er geen</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>de keuzes zijn %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>‘%1’ is geen papierformaat: schrijf het als Custom.BREEDTExLENGTEmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>de printer neemt geen papier van %1: wel van %2 tot %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>de optie %1 heeft geen keuze ‘%2’: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>kan %1 niet openen: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>de verbinding met de printserver op ‘%1’ is verbroken: probeer het opnieuw</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>de printserver op ‘%1’ geeft het PPD-bestand van ‘%2’ niet: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>de printserver op ‘%1’ heeft geen printer ‘%2’</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>de printer ‘%1’ heeft geen PPD-bestand op de printserver op ‘%2’: kies een printer die met zijn stuurprogramma is ingesteld</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>het PPD-bestand ‘%1’</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>het is een map</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>het PPD-bestand van ‘%1’</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>geen geheugen voor %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>kan %1 niet gebruiken: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>kan %1 niet gebruiken: regel %2: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>de naam ‘%1’ heeft %2 bytes, en namen in een PPD-bestand hebben er hoogstens %3</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>kan het document ‘%1’ niet lezen: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>het is leeg</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>het afdrukken is geannuleerd, er is niets afgedrukt</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>het is tijdens het verzenden veranderd; er is niets afgedrukt</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>het document ‘%1’ kon niet naar ‘%2’ worden verzonden</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1; misschien bestaat de taak %2 nog: verwijder die met cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>‘%1’ neemt geen taak aan</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>de taak %1 kan niet worden geannuleerd</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>‘%1’ is geen printernaam</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>instellingen kunnen niet als ‘%1’ worden bewaard: kies een naam zonder spaties, ‘/’ en ‘#’</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>de optie %1 kan niet worden bewaard: de waarde bevat een ‘#’ of een regeleinde</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>de opties kunnen niet in ‘%1’ worden bewaard: %2</translation>
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
        <translation>geen printserver biedt op ‘%1’ een versleutelde verbinding (%2): start er een of laat -E weg</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>geen printserver antwoordt op ‘%1’: start hem of noem een andere met -h</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: de printserver op ‘%2’ zegt: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>het is geen bestand</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>geen printer ‘%1’</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>geen standaardprinter</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>het papier ‘%1’ heeft maten die geen papier heeft</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>het is groter dan %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>het is beschadigd of onvolledig</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>geen PPD van ‘%1’</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>kan %1 niet gebruiken: het heeft %2 %3, en hoogstens %4 zijn bruikbaar</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>kan %1 niet gebruiken: de parameter %2 van het aangepaste formaat is geen maat</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>kan %1 niet gebruiken: het standaardpapier ‘%2’ heeft maten die geen papier heeft</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>het document ‘%1’ is niet volledig bij ‘%2’ aangekomen: druk het opnieuw af</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>kan de instellingen ‘%1’ niet opslaan: ze hebben %2 tekens, en hoogstens %3 zijn mogelijk</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>de printserver op ‘%1’ antwoordt niet: probeer het later opnieuw, start hem opnieuw of noem een andere met -h</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 van de printserver op ‘%2’ is groter dan %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 is niet volledig aangekomen</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 is niet volledig van de printserver op ‘%2’ aangekomen: probeer het opnieuw</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>een ander programma houdt het vergrendeld; probeer het opnieuw</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>het is te groot</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: de verbinding met de printserver op ‘%2’ is verbroken</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>label of tape wordt niet ingevoerd</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>er zitten andere labels of een andere tape in de printer</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>labels moeten worden weggenomen</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>printer start op</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>printer slaapt</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>klep van de snijder is open</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>snijder ontbreekt</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>inktlint ontbreekt</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>het reservoir voor gebruikte inkt is vol</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>Gepauzeerd sinds %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>de taak %1 kan niet worden gewijzigd</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>de taak %1 kan niet naar de printer worden verplaatst</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>de taak %1 kan niet worden vrijgegeven</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>de optie %1 bevat besturingstekens; er is niets afgedrukt</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>opdrachten</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1; het kan toch zijn aangekomen: bekijk de taken van ‘%2’ voordat u het opnieuw afdrukt</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: de afdrukserver op ‘%2’ staat het u niet toe (%3): vraag het wie hem beheert</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>De printer snijdt de tape telkens na zoveel etiketten af, en na het laatste.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>De printer snijdt de tape na het laatste etiket af.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>Het mes gaat alleen door de bedrukte laag: de etiketten blijven samen op de drager en zijn één voor één los te trekken.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Voor tape die het mes zou beschadigen, zoals stof of krimpkous: de printer snijdt die nooit. Knip ze met een schaar.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>Het laatste etiket blijft in de printer en de volgende taak sluit erop aan, zonder lege tape ertussen. Voer na de laatste taak de tape bij de printer door en snij haar af.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Drukt gespiegeld af, voor etiketten die van achteren gelezen of opgestreken worden.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Laat de lege ruimte voor en achter de afdruk weg: elk etiket is zo lang als wat erop staat.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Drukt aan de uiteinden van elk etiket een teken af waar met de hand te snijden.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Bespaart %1 mm tape.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Kost %1 mm meer tape.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Zou %1 mm tape besparen.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Zou %1 mm meer tape kosten.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Stukken: %1 in plaats van %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Stukken: zouden %1 zijn in plaats van %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>Speciale tape wordt nooit gesneden, dus dit kan niet worden gekozen.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>Etiketten van dit formaat liggen op vaste plaatsen, dus dit kan niet worden gekozen.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Na elk etiket</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>Na elke %1 etiketten</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Na elk exemplaar</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Na het laatste etiket</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Zoals de printer beslist</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Snijden</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Eigen keuze van het stuurprogramma</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Snijden:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Wachten op de printserver…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>De afdrukserver antwoordt nog niet. Is de computer met de printer ingeschakeld en verbonden?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>De laatste wijziging van een instelling ongedaan maken</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Het ongedaan gemaakte opnieuw uitvoeren</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Herstellen</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Terug naar de instellingen waarmee het stuurprogramma begint</translation>
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
        <translation>&amp;Exemplaren:</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>Pagin&amp;a’s:</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Papie&amp;r:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Exemplaren</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Alle, of bijvoorbeeld 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pagina’s</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Sorteren</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Laatste pagina eerst</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>Het hele document één keer per exemplaar, in plaats van elk etiket zo vaak als er exemplaren zijn</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Welke pagina’s worden afgedrukt, zoals 1-3,5; alle als het leeg is</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Afgedrukt.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 labels afgedrukt.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 label afgedrukt.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>&amp;Taak annuleren</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>&amp;Sluiten en laten afdrukken</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Voortgang van de taak</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Verzenden naar %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Taak %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Taak %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annuleren…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Samenstellen…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>Bezig met afdrukken: label %1 van %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>Taak %1 wordt geannuleerd zodra de afdrukserver weer antwoordt</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>Taak %1 is verzonden; de afdrukserver antwoordt niet hoe het ermee staat</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>Taak %1 is verzonden, maar de server meldt de status niet meer: %2. Misschien wordt ze nog afgedrukt.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>Taak %1 is op de printer geannuleerd</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 heeft taak %2 opgegeven</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Controleer of de printer gereed is en druk opnieuw af.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>De taak is geannuleerd.</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>Indeling:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Wijzigen</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Indeling wijzigen</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Grootte, draaiing en plaats van het document op het etiket</translation>
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
        <translation>Ware grootte</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Passend maken</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Vullen</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percentage</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Midden</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Boven</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Onder</translation>
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
        <translation>Linksboven</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Rechtsboven</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Linksonder</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Rechtsonder</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Van het papier</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Vast</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Van de inhoud</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Per alinea</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Per regel</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Grootte</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Percentage van de documentgrootte</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Draaiing</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Plaats</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Lengte</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Lengte in millimeters</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiketten</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Lettertype</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tekstgrootte</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Grootte:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Draaiing:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Plaats:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Lengte:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Etiketten:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Lettertype:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>Tekstgrootte:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>Meer printeropties</translation>
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
        <translation>De andere wij&amp;zigen</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>De laatste keuze behouden en wijzigen wat haar uitsluit</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>En nog %1.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>Ope&amp;nen…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Recente documenten</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Openen</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Deze printer heeft geen eigen paneel. De opties staan onder ‘Meer printeropties’.</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Voorinstelling:</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>Ver&amp;wijderen</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Voorinstelling</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Deze instellingen als voorinstelling opslaan</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>De gekozen voorinstelling verwijderen</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Instellingen van de printer</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Voorinstelling verwijderen</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>De voorinstelling ‘%1’ van deze printer verwijderen?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (gewijzigd)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Typ een naam.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>De naam is te lang.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Gebruik letters, cijfers, streepjes en lage streepjes, zonder spaties.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Voorinstelling opslaan</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Naam van de voorinstelling:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Naam van de voorinstelling</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Opslaan</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Vervangt de voorinstelling met deze naam.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Vervangt de voorinstelling ‘%1’: hoofdletters tellen niet.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>&amp;Meer printeropties</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>Af&amp;drukken</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Afdrukken</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 afdrukken</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>Dit document kan niet worden getoond</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Label %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>De taak is geannuleerd.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Geen printer</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>%1 openen…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 drukt nu niet af (%2). Een taak wacht tot de printer weer gereed is.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 neemt geen taken aan. Kies een andere printer, of vraag wie deze beheert.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>Er is geen printer geopend.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Dit is een PPD-bestand, geen printer: afdrukken is uitgeschakeld.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>Dit document kan niet worden afgedrukt.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>Het document heeft %1-pagina’s; ze worden verkleind tot %2%</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Past beter: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Gebruiken</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Dit papier kiezen</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>Randen vallen weg op etiket %1: verkleinen tot %2%</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>Randen vallen weg op %1 etiketten: verkleinen tot %2%</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Verkleinen</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>De documenten klein genoeg maken</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 en nog %2</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Open een document of sleep er een hierheen</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Dit document gaat ongewijzigd en ongezien naar de printer</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>Er is geen document om af te drukken: open er een of sleep het hierheen.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>1 label af&amp;drukken</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>%1 labels af&amp;drukken</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>Opnieuw af&amp;drukken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>De taak is geannuleerd; een deel van de labels is afgedrukt.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Overzicht</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>De strook toont de hele taak zoals ze uit de printer komt, met wat het mes doet; de regel eronder zegt het in woorden.

Wijs een snijoptie aan, of druk er F1 op, om te lezen wat ze doet en wat ze zou veranderen.

Strook: plus en min zoomen, 0 past in, Enter toont een etiket groot. Ctrl+Z maakt een instelling ongedaan.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>Het laatste stuk heeft %1 van %2 etiketten.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Elke %1 snijden</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Dan zijn alle stukken gelijk</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>%1 exemplaren afdrukken</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>Dit allemaal afdrukken?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>%1 etiketten &amp;afdrukken</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>De afdrukserver antwoordt niet. Staat de computer met de printer aan en is hij verbonden? Zodra hij weer antwoordt, kan er worden afgedrukt.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Geen antwoord</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>De labels verschijnen als u doorgaat</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>&amp;Doorgaan</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>De afdrukserver antwoordt niet en heeft de geannuleerde taak misschien al. Bekijk de taken voordat u opnieuw afdrukt.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Niet beschikbaar</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Wachten op de printserver…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 is op de afdrukserver opnieuw ingesteld; uw instellingen zijn behouden.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 is op de afdrukserver opnieuw ingesteld en heeft niet meer: %2. Bekijk de instellingen voordat u afdrukt.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Printer:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Printer</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD-bestand, geen printer</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Kies een printer</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Vorig label</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Volgend label</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Uitzoomen</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Passend</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Inzoomen</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Label %1 van %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>De opdracht passend weergeven</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Voorbeeld van de labels</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>Alleen dit label afdrukken</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Alle labels tonen</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Groot tonen</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (kopie %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, blijft in de printer</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Samenvatting</translation>
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
        <translation>pagina %1 kan niet worden getekend: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>‘%1: %2’ kan niet samen met ‘%3: %4’ worden gebruikt.</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Wijzig een van beide.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: wordt als ‘%2’ verzonden omdat speciale tape aanstaat.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: wordt als ‘%2’ verzonden omdat het papier ‘%3’ zijn lege ruimte houdt.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: wordt als ‘%2’ verzonden omdat het papier ‘%3’ niet automatisch mag worden gesneden.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: wordt als ‘%2’ verzonden, hoewel het papier ‘%3’ niet automatisch mag worden gesneden.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: wordt als ‘%2’ verzonden, maar er wordt niets gesneden zolang speciale tape aanstaat.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: wordt als ‘%2’ verzonden, wat de afbeelding niet laat zien.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: wordt als ‘%2’ verzonden.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>onbekende optie ‘%1’; deze printer heeft zo’n optie niet</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>onbekende optie ‘%1’; is het %2?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>de pagina’s moeten in oplopende volgorde staan</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>het paneel ‘%1’ wil met deze instellingen niet afdrukken; wijzig ze en druk opnieuw af</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>onbekend papier ‘%1’; deze printer heeft %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>deze printer heeft geen optie ‘%1’</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>exemplaren: %1 ligt niet tussen 1 en %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>een PPD-bestand alleen kan niet afdrukken; kies een printer</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: dit document bestaat niet</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 heeft geen waarde ‘%2’: mogelijk zijn %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>‘%1’ past niet bij etiketten: weggelaten</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>‘%1’ kan niet worden gelezen: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>‘%1’ wordt overgeslagen: het is geen platte tekst van hoogstens %2 kB</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 wordt overgeslagen: ‘%2’ betekent daar niets</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 wordt overgeslagen: er zijn een optie, een keuze en het gevolg ervan nodig</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>‘%1’, regel %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>paginabereik ‘%1’: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>‘%1’ is geen pagina; schrijf pagina’s als 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>naast een komma ontbreekt een pagina; schrijf pagina’s als 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 heeft geen eerste pagina: schrijf 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>pagina’s worden vanaf 1 geteld</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 loopt achteruit: schrijf %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>het document heeft maar 1 pagina</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>het document heeft %1 pagina’s, en geen pagina %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>‘%1’ is niet afgedrukt</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>‘%1’ wacht nog op afdrukken</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>‘%1’ is op de afdrukserver opnieuw ingesteld: bekijk de instellingen en druk dan opnieuw af</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 label</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 labels</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 stuk</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 stukken</translation>
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
        <translation>lengte niet bekend</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 van de rol</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 tape</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>hoogstens %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>speciale tape, die nooit wordt gesneden</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>aan het einde gesneden</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>rol niet gesneden</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>tape niet gesneden</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>na elk label gesneden</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>na elke kopie gesneden</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>na elke %1 gesneden</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>daartussen half gesneden</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>half gesneden naast het label</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>het laatste label blijft in de printer</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>met snijmarkeringen</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>zonder witruimte</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>gespiegeld</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>aanloop: %1, afgesneden</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>aanloop: %1, erachter half gesneden</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>aanloop: %1, niet afgesneden</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>afgesneden</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>erachter half gesneden, niet afgesneden</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>niet afgesneden</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 van %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1; dit stuurprogramma zegt niets over snijden</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1; de printer bepaalt waar wordt gesneden</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>geen labels</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>uitloop na het laatste label: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>snijmarkeringen aan beide einden van elk label: %1</translation>
    </message>
</context>
</TS>
