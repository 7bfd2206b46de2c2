<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>door is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>stopping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings that are all the print server&apos;s own defaults cannot be saved as &quot;%1&quot;: choose one that differs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Held</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it has none</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no print server gives an encrypted connection at &quot;%1&quot; (%2): start one or leave out -E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::JobForm</name>
    <message>
        <source>&amp;Copies:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paper</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::NoticeView</name>
    <message>
        <source>Chan&amp;ge the others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PlaceholderDocument</name>
    <message>
        <source>No preview for this kind of document; it prints as it is</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preview: its module is not installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no document to print: start with &quot;cutline FILE&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fit a label into the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No preview</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 - not printed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>document</name>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>is a directory; name a document</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture cannot be read: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the picture cannot be drawn: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page cannot be drawn at this size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page %1 cannot be drawn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDF is damaged; open it elsewhere and save it again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDF is locked with a password; save it without one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the PDF has no pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the page cannot be drawn: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: stays &quot;%2&quot; because it cannot be changed on the paper &quot;%3&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2; write pages like 1-4,7</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page or range of pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
