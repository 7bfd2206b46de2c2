<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1 : impossible de conserver le document : %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>il n’y a pas de document</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>il a été arrêté</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>il n’est pas d’un type lisible : PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG ou texte (UTF-8) ; « -o raw » l’envoie tel quel à l’imprimante</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>il est endommagé ; ouvrez-le dans un autre programme et enregistrez-le à nouveau</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>il est protégé par un mot de passe ; enregistrez-le sans mot de passe</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>il est protégé contre l’impression ; demandez-en un autre à son propriétaire</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>il n’a pas de pages</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>il a trop de pages ; imprimez-le en plusieurs parties</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>il a une page d’une taille qu’aucun papier n’a ; enregistrez-le avec une autre</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>il demande plus de mémoire qu’un document ne peut en prendre ; enregistrez-le avec des images plus petites ou en plusieurs parties</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>sa lecture prend trop de temps ; enregistrez-le ailleurs en PDF ou imprimez-le en plusieurs parties</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>il n’a pas toutes les pages choisies</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>ce qui lit les documents de ce type n’est pas installé</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>son lecteur a échoué</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>il a %1 pages, ce qui est trop ; imprimez-le en plusieurs parties</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>il est trop grand : %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>ce qui lit les documents de ce type n’est pas installé : %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>son lecteur a échoué : %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>impossible de lire le document « %1 » : %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>impossible de lire l’un des documents %1 : %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>impossible de démarrer le programme « %1 » : %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>les pages ne peuvent pas être dessinées : %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>cette page n’existe pas</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>son image serait trop grande</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>cela prend trop de temps</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>la page %1 ne peut pas être dessinée : %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>rouleau d’étiquettes ou ruban épuisé</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>étiquettes ou ruban requis</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>étiquette ou ruban coincé</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>étiquettes ou ruban presque épuisés</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>capot ouvert</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>porte ouverte</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>capot non verrouillé</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>cassette absente</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>imprimante éteinte ou non connectée</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>imprimante éteinte</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>l’imprimante ne répond pas</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>connexion à l’imprimante</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>pause après l’étiquette en cours</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>arrêt en cours</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>partiellement arrêtée</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>vérifier le massicot</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>panne du massicot</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>massicot bloqué</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>massicot presque usé</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>massicot usé</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>ruban encreur épuisé</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>ruban encreur presque épuisé</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>tête d’impression trop chaude</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>plus de place pour d’autres tâches sur le serveur d’impression</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>les nouvelles tâches sont retenues</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>vérifier l’imprimante</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>pilote de l’imprimante absent du serveur d’impression</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>pilote de l’imprimante mal protégé sur le serveur d’impression</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>imprimante distante en pause</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>en attente de l’imprimante distante</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>en attente de la fin de l’impression</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Prête</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>En pause</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>État inconnu</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>n’accepte pas de tâches</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Pas prête</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>impossible de lister les imprimantes</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>il n’a aucune imprimante</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>il a %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>le serveur d’impression « %1 » n’a pas d’imprimante « %2 » : %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>il n’y a pas d’imprimante par défaut : indiquez-en une avec -d ; le serveur d’impression « %1 » : %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>il n’y a pas d’imprimante par défaut (%1) : indiquez-en une avec -d ; le serveur d’impression « %2 » : %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>aucun réglage n’est enregistré</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>sont enregistrés %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>l’imprimante « %1 » n’a pas de réglages enregistrés « %2 » : %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>« %1 » est une imprimante, pas un réglage enregistré</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>les réglages « %1 » sont ceux de l’administrateur : seul lpoptions en tant que root les supprime</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Retenue</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêtée</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulée</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échec</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Imprimée</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>l’imprimante est en pause</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>l’imprimante est partiellement en pause</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>le document est en cours de réception</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>jusqu’à sa libération</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>l’imprimante demande votre attention</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>le document est illisible</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>l’imprimante ne peut pas imprimer ce type de document</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>le document ne peut pas être imprimé</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>par l’opérateur</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>sur l’imprimante</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>par le serveur d’impression</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>l’état de la tâche %1 n’est pas connu</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>le serveur d’impression n’a donné aucun état de la tâche %1</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>elle n’en a aucun</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>les choix possibles sont %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>« %1 » n’est pas un format de papier : écrivez-le Custom.LARGEURxLONGUEURmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>l’imprimante n’accepte pas le papier de %1 : elle accepte de %2 à %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>l’option %1 n’a pas de choix « %2 » : %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>impossible d’ouvrir %1 : %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>la connexion au serveur d’impression « %1 » est perdue : réessayez</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>le serveur d’impression « %1 » ne fournit pas le fichier PPD de « %2 » : %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>le serveur d’impression « %1 » n’a pas d’imprimante « %2 »</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>l’imprimante « %1 » n’a pas de fichier PPD sur le serveur d’impression « %2 » : choisissez une imprimante installée avec son pilote</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>le fichier PPD « %1 »</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>le fichier PPD de « %1 »</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>pas de mémoire pour %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>impossible d’utiliser %1 : %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>impossible d’utiliser %1 : ligne %2 : %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>le nom « %1 » a %2 octets, et les noms d’un fichier PPD en ont %3 au plus</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>impossible de lire le document « %1 » : %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>il est vide</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>l’impression a été annulée, rien n’a été imprimé</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>il a changé pendant l’envoi ; rien n’a été imprimé</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>le document « %1 » n’a pas pu être envoyé à « %2 »</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1 ; la tâche %2 existe peut-être encore : supprimez-la avec cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>« %1 » n’accepte aucune tâche</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>la tâche %1 ne peut pas être annulée</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>« %1 » n’est pas un nom d’imprimante</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>les réglages ne peuvent pas être enregistrés sous « %1 » : choisissez un nom sans espaces, « / » ni « # »</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>l’option %1 ne peut pas être enregistrée : sa valeur contient un « # » ou une fin de ligne</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>les options ne peuvent pas être enregistrées dans « %1 » : %2</translation>
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
        <translation>aucun serveur d’impression n’offre de connexion chiffrée sur « %1 » (%2) : démarrez-en un ou omettez -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>aucun serveur d’impression ne répond sur « %1 » : démarrez-le ou indiquez-en un autre avec -h</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1 : le serveur d’impression « %2 » répond : %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>pas d’imprimante « %1 »</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>pas d’imprimante par défaut</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>le papier « %1 » a des dimensions qu’aucun papier n’a</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>il dépasse %1 Mo</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>il est endommagé ou incomplet</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>pas de fichier PPD de « %1 »</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>impossible d’utiliser %1 : il a %2 %3, et %4 au plus sont utilisables</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>impossible d’utiliser %1 : le paramètre %2 de son format personnalisé n’est pas une mesure</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>impossible d’utiliser %1 : son papier par défaut « %2 » a des dimensions qu’aucun papier n’a</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>le document « %1 » n’est pas arrivé entier à « %2 » : imprimez-le à nouveau</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>impossible d’enregistrer les réglages « %1 » : ils ont %2 caractères, et %3 au plus peuvent être enregistrés</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>le serveur d’impression à « %1 » ne répond pas : réessayez plus tard, redémarrez-le ou indiquez-en un autre avec -h</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 du serveur d’impression à « %2 » dépasse %3 Mo</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 n’est pas arrivé entier</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 n’est pas arrivé entier du serveur d’impression à « %2 » : réessayez</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>un autre programme le garde verrouillé ; réessayez</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>il est trop grand</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1 : la connexion au serveur d’impression à « %2 » a été perdue</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>l’étiquette ou le ruban n’avance pas</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>d’autres étiquettes ou un autre ruban sont dans l’imprimante</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>il faut retirer les étiquettes</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>l’imprimante démarre</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>l’imprimante est en veille</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>le capot du massicot est ouvert</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>le massicot manque</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>le ruban encreur manque</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>le bac d’encre usagée est plein</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>En pause depuis %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>la tâche %1 ne peut pas être modifiée</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>la tâche %1 ne peut pas être transmise à son imprimante</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>la tâche %1 ne peut pas être libérée</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>l’option %1 contient des caractères de contrôle ; rien n’a été imprimé</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>instructions</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1 ; il est peut-être arrivé malgré tout : regardez les tâches de « %2 » avant de l’imprimer à nouveau</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1 : le serveur d’impression « %2 » ne vous le permet pas (%3) : adressez-vous à la personne qui s’en occupe</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>L’imprimante coupe le ruban après chaque série d’étiquettes, et après la dernière.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>L’imprimante coupe le ruban après la dernière étiquette.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>La lame ne traverse que la couche imprimée : les étiquettes restent ensemble sur leur support et se décollent une à une.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Pour un ruban qui abîmerait la lame, comme le tissu ou la gaine thermorétractable : l’imprimante ne le coupe jamais. Coupez-le aux ciseaux.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>La dernière étiquette reste dans l’imprimante et la tâche suivante la suit sans ruban vierge entre les deux. Après la dernière tâche, faites avancer et coupez à l’imprimante.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Imprime en miroir, pour des étiquettes lues par derrière ou à repasser.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Supprime l’espace vide avant et après l’impression : chaque étiquette est aussi longue que son contenu.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Imprime un repère aux extrémités de chaque étiquette, là où couper à la main.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Économise %1 mm de ruban.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Utilise %1 mm de ruban en plus.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Économiserait %1 mm de ruban.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Utiliserait %1 mm de ruban en plus.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Morceaux : %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Morceaux : seraient %1 au lieu de %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>Le ruban spécial n’est jamais coupé : ce choix n’est pas possible.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>Les étiquettes de cette taille sont à des places fixes : ce choix n’est pas possible.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Après chaque étiquette</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>Toutes les %1 étiquettes</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Après chaque exemplaire</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Après la dernière étiquette</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Selon l’imprimante</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Coupe</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Choix du pilote</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Couper :</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>En attente du serveur d’impression…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>Le serveur d’impression ne répond pas encore. L’ordinateur qui a l’imprimante est-il allumé et connecté ?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>Annuler la dernière modification d’un réglage</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Rétablir ce qui a été annulé</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Revenir aux réglages de départ du pilote</translation>
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
        <translation>&amp;Copies :</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>P&amp;ages :</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Papie&amp;r :</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Copies</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Toutes, ou par exemple 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papier</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Assembler</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Dernière page en premier</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>Tout le document une fois par exemplaire, au lieu de chaque étiquette autant de fois qu’il y a d’exemplaires</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Les pages imprimées, par exemple 1-3,5 ; toutes si le champ est vide</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Imprimé.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 étiquettes imprimées.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 étiquette imprimée.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>A&amp;nnuler la tâche</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>&amp;Fermer et laisser imprimer</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Avancement de la tâche</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Envoi à %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Tâche %1 : %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Tâche %1 : %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Annulation…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Composition…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>Impression : étiquette %1 sur %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>La tâche %1 sera annulée dès que le serveur d’impression répondra à nouveau</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>La tâche %1 a été envoyée ; le serveur d’impression ne répond pas sur son état</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>La tâche %1 a été envoyée, mais le serveur n’en donne plus l’état : %2. Elle sera peut-être encore imprimée.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>La tâche %1 a été annulée sur l’imprimante</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 a abandonné la tâche %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Vérifiez que l’imprimante est prête, puis imprimez de nouveau.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>La tâche a été annulée.</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>Disposition :</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Modifier la disposition</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Taille, rotation et position du document sur l’étiquette</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>Automatique</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Taille réelle</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Remplir</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Bas</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Gauche</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Droite</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Haut gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Haut droite</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bas gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bas droite</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Du papier</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixe</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Du contenu</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Par paragraphe</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Par ligne</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Pourcentage de la taille du document</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotation</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Position</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Longueur</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Longueur en millimètres</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Étiquettes</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Police</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Taille du texte</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Taille :</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Rotation :</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Position :</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Longueur :</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Étiquettes :</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Police :</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>Corps :</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>Plus d’options d’imprimante</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
<context>
    <name>cutline::NoticeView</name>
    <message>
        <source>Chan&amp;ge the others</source>
        <translation>Modifier les au&amp;tres</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>Garder le dernier choix et modifier ceux qui l’excluent</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>Et %1 autres.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Documents récents</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Cette imprimante n’a pas de panneau à elle. Ses options se trouvent sous « Plus d’options d’imprimante ».</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>&amp;Préréglage :</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Préréglage</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Enregistrer ces réglages comme préréglage</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>Supprimer le préréglage choisi</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Réglages de l’imprimante</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Supprimer le préréglage</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>Supprimer le préréglage « %1 » de cette imprimante ?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (modifié)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Saisissez un nom.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>Le nom est trop long.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Utilisez des lettres, des chiffres, des tirets et des traits de soulignement, sans espaces.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Enregistrer le préréglage</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nom du préréglage :</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nom du préréglage</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Remplace le préréglage de ce nom.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Remplace le préréglage « %1 » : les majuscules ne comptent pas.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>P&amp;lus d’options d’imprimante</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>Impri&amp;mer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>Ce document ne peut pas être affiché</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Étiquette %1 : %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>La tâche a été annulée.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Aucune imprimante</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>Ouverture de %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 n’imprime pas pour le moment (%2). Une tâche attend que l’imprimante soit de nouveau prête.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 n’accepte pas de tâches. Choisissez une autre imprimante ou adressez-vous à la personne qui s’en occupe.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>Aucune imprimante n’est ouverte.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Ceci est un fichier PPD, pas une imprimante : l’impression est désactivée.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>Ce document ne peut pas être imprimé.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>Le document a des pages %1 ; elles sont réduites à %2 %</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Convient mieux : %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Utiliser</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Choisir ce papier</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>Des bords seront coupés sur l’étiquette %1 : réduire à %2 %</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>Des bords seront coupés sur %1 étiquettes : réduire à %2 %</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Réduire</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>Rendre les documents assez petits</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 de plus</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Ouvrez ou déposez un document</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Ce document va tel quel à l’imprimante, sans aperçu</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>Il n’y a pas de document à imprimer : ouvrez-en un ou déposez-le ici.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>Impri&amp;mer 1 étiquette</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>Impri&amp;mer %1 étiquettes</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>Réimpri&amp;mer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>La tâche a été annulée ; certaines de ses étiquettes sont imprimées.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>La bande montre toute la tâche telle qu’elle sort de l’imprimante, avec ce que fait la lame ; la ligne dessous le dit en mots.

Pointez une option de coupe, ou appuyez sur F1 dessus, pour lire ce qu’elle fait et ce qu’elle changerait.

Bande : plus et moins pour le zoom, 0 pour ajuster, Entrée montre une étiquette en grand. Ctrl+Z annule un réglage.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>Le dernier morceau a %1 étiquettes sur %2.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Couper tous les %1</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Tous les morceaux sont alors pareils</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>Imprimer %1 exemplaires</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>Imprimer tout cela ?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>&amp;Imprimer %1 étiquettes</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>Le serveur d’impression ne répond pas. L’ordinateur qui a l’imprimante est-il allumé et connecté ? L’impression reprendra dès qu’il répondra.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Pas de réponse</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>Les étiquettes s’affichent quand vous continuez</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>Contin&amp;uer</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>Le serveur d’impression ne répond pas et a peut-être reçu la tâche que vous avez annulée. Regardez ses tâches avant d’imprimer à nouveau.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Non disponible</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>En attente du serveur d’impression…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 a été reconfigurée sur le serveur d’impression ; vos réglages sont conservés.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 a été reconfigurée sur le serveur d’impression et n’a plus : %2. Vérifiez les réglages avant d’imprimer.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Imprimante :</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Imprimante</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>Fichier PPD, pas d’imprimante</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Choisissez une imprimante</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Étiquette précédente</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Étiquette suivante</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Zoom arrière</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajuster</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Zoom avant</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Étiquette %1 sur %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>Adapter la tâche à la vue</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Aperçu des étiquettes</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>N’imprimer que cette étiquette</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Afficher toutes les étiquettes</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Afficher en grand</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (copie %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, reste dans l’imprimante</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1 :</translation>
    </message>
</context>
<context>
    <name>document</name>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>la page %1 ne peut pas être dessinée : %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>« %1 : %2 » ne peut pas être utilisé avec « %3 : %4 ».</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Modifiez l’un des deux.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1 : « %2 » est envoyé, car le ruban spécial est activé.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1 : « %2 » est envoyé, car le papier « %3 » garde ses espaces vides.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1 : « %2 » est envoyé, car le papier « %3 » ne doit pas être coupé automatiquement.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1 : « %2 » est envoyé, bien que le papier « %3 » ne doive pas être coupé automatiquement.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1 : « %2 » est envoyé, mais rien n’est coupé tant que le ruban spécial est activé.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1 : « %2 » est envoyé, ce que l’image ne montre pas.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1 : « %2 » est envoyé.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>option inconnue « %1 » ; cette imprimante n’a pas une telle option</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>option inconnue « %1 » ; est-ce %2 ?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>les pages doivent être en ordre croissant</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>le panneau « %1 » refuse d’imprimer avec ces réglages ; modifiez-les et imprimez de nouveau</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>papier inconnu « %1 » ; cette imprimante a %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>cette imprimante n’a pas d’option « %1 »</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>copies : %1 n’est pas compris entre 1 et %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>un fichier PPD seul ne peut pas imprimer ; choisissez une imprimante</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1 : ce document n’existe pas</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 n’a pas de valeur « %2 » : ses valeurs sont %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>« %1 » ne convient pas aux étiquettes : ignoré</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>« %1 » ne peut pas être lu : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>« %1 » est ignoré : ce n’est pas un texte brut de %2 ko au plus</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 est ignorée : « %2 » n’y a pas de sens</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 est ignorée : il faut une option, un choix et son effet</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>« %1 », ligne %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>plage de pages « %1 » : %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>« %1 » n’est pas une page ; écrivez les pages ainsi : 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>il manque une page à côté d’une virgule ; écrivez les pages ainsi : 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 n’a pas de première page : écrivez 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>les pages se comptent à partir de 1</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 va à l’envers : écrivez %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>le document n’a qu’une page</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>le document a %1 pages, et pas de page %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>« %1 » n’a pas été imprimé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>« %1 » attend toujours d’être imprimé</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>« %1 » a été reconfigurée sur le serveur d’impression : vérifiez les réglages, puis imprimez à nouveau</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 étiquette</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 étiquettes</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 morceau</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 morceaux</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>longueur inconnue</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 de rouleau</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 de ruban</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>au plus %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>ruban spécial, jamais coupé</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>coupe à la fin</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>rouleau non coupé</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>ruban non coupé</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>coupe après chaque étiquette</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>coupe après chaque copie</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>coupe toutes les %1</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>demi-coupe entre elles</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>demi-coupe au bord de l’étiquette</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>la dernière étiquette reste dans l’imprimante</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>avec repères de coupe</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>sans espace vide</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>en miroir</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>amorce : %1, coupée</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>amorce : %1, suivie d’une demi-coupe</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>amorce : %1, non coupée</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>coupé</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>suivi d’une demi-coupe, non coupé</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>non coupé</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1 ; ce pilote ne dit rien de la coupe</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1 ; l’imprimante décide où couper</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>aucune étiquette</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>avance après la dernière étiquette : %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>repères de coupe aux deux bouts de chaque étiquette : %1</translation>
    </message>
</context>
</TS>
