<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: não é possível guardar o documento: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>não há documento</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>foi interrompido</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>não é de um tipo legível: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG ou texto (UTF-8); “-o raw” o envia como está à impressora</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>está danificado; abra-o em outro programa e salve-o novamente</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>está protegido por senha; salve-o sem senha</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>está protegido contra impressão; peça outro ao proprietário</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>não tem páginas</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>tem páginas demais; imprima-o em partes menores</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>tem uma página de um tamanho que nenhum papel tem; salve-o com outro</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>precisa de mais memória do que um documento pode usar; salve-o com imagens menores ou em partes</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>demora demais para ser lido; salve-o como PDF em outro programa ou imprima-o em partes</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>não tem todas as páginas escolhidas</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>o que lê documentos deste tipo não está instalado</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>seu leitor falhou</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>tem %1 páginas, o que é demais; imprima-o em partes menores</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>é grande demais: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>o que lê documentos deste tipo não está instalado: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>seu leitor falhou: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>não é possível ler o documento “%1”: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>não é possível ler um dos documentos %1: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>não é possível iniciar o programa “%1”: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>não é possível desenhar as páginas: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>esta página não existe</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>sua imagem seria grande demais</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>demora demais</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>não é possível desenhar a página %1: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>o rolo de etiquetas ou a fita acabou</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>são necessárias etiquetas ou fita</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>etiqueta ou fita presa</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>as etiquetas ou a fita estão quase no fim</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>a tampa está aberta</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>a porta está aberta</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>a tampa não está travada</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>falta o cassete</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>a impressora está desligada ou não conectada</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>a impressora está desligada</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>a impressora não responde</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>conectando à impressora</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>pausa após a etiqueta atual</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>parando</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>parcialmente parada</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>verifique o cortador</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>falha do cortador</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>o cortador está preso</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>o cortador está quase gasto</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>o cortador está gasto</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>a fita de tinta acabou</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>a fita de tinta está quase no fim</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>a cabeça de impressão está quente demais</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>o servidor de impressão não tem espaço para mais trabalhos</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>os novos trabalhos ficam retidos</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>verifique a impressora</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>falta o driver da impressora no servidor de impressão</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>o driver da impressora não está instalado com segurança no servidor de impressão</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>a impressora remota está em pausa</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>aguardando a impressora remota</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>aguardando a impressora terminar</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>Pronta</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>Em pausa</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>Estado desconhecido</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>não aceita trabalhos</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>Não está pronta</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>não é possível listar as impressoras</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>ele não tem impressoras</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>ele tem %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>o servidor de impressão “%1” não tem a impressora “%2”: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>não há impressora padrão: indique uma com -d; o servidor de impressão “%1”: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>não há impressora padrão (%1): indique uma com -d; o servidor de impressão “%2”: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>nenhuma está salva</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>estão salvas %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>a impressora “%1” não tem configurações salvas “%2”: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>“%1” é uma impressora, não configurações salvas</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>as configurações “%1” são do administrador: só lpoptions como root as remove</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>Em espera</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>Retido</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Parado</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Falhou</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>Impresso</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>a impressora está em pausa</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>a impressora está parcialmente em pausa</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>o documento está sendo recebido</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>até ser liberado</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>a impressora precisa de atenção</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>não é possível ler o documento</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>a impressora não pode imprimir este tipo de documento</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>não é possível imprimir o documento</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>pelo operador</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>na impressora</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>pelo servidor de impressão</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>o estado do trabalho %1 não é conhecido</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>o servidor de impressão não informou o estado do trabalho %1</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>ela não tem nenhum</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>seus valores são %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>“%1” não é um tamanho de papel: escreva-o como Custom.LARGURAxCOMPRIMENTOmm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>a impressora não aceita papel de %1: aceita de %2 a %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>a opção %1 não tem o valor “%2”: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>não é possível abrir %1: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>a conexão com o servidor de impressão “%1” foi perdida: tente de novo</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>o servidor de impressão “%1” não fornece o arquivo PPD de “%2”: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>o servidor de impressão “%1” não tem a impressora “%2”</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>a impressora “%1” não tem arquivo PPD no servidor de impressão “%2”: escolha uma impressora configurada com seu driver</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>o arquivo PPD “%1”</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>é uma pasta</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>o arquivo PPD de “%1”</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>não há memória para %1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>não é possível usar %1: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>não é possível usar %1: linha %2: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>o nome “%1” tem %2 bytes, e os nomes de um arquivo PPD têm no máximo %3</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>não é possível ler o documento “%1”: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>está vazio</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>a impressão foi cancelada, nada foi impresso</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>mudou durante o envio; nada foi impresso</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>não foi possível enviar o documento “%1” para “%2”</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1; o trabalho %2 talvez ainda exista: remova-o com cancel %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>“%1” não aceita trabalhos</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>o trabalho %1 não pode ser cancelado</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>“%1” não é um nome de impressora</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>as configurações não podem ser salvas como “%1”: escolha um nome sem espaços, “/” e “#”</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>a opção %1 não pode ser salva: seu valor contém “#” ou um fim de linha</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>as opções não podem ser salvas em “%1”: %2</translation>
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
        <translation>nenhum servidor de impressão oferece conexão criptografada em “%1” (%2): inicie um ou omita -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>nenhum servidor de impressão responde em “%1”: inicie-o ou indique outro com -h</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: o servidor de impressão “%2” diz: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>não é um arquivo</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>nenhuma impressora “%1”</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>nenhuma impressora padrão</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>o papel “%1” tem medidas que nenhum papel tem</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>tem mais de %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>está danificado ou incompleto</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>nenhum PPD de “%1”</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>não é possível usar %1: tem %2 %3, e no máximo %4 podem ser usados</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>não é possível usar %1: o parâmetro %2 do tamanho personalizado não é uma medida</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>não é possível usar %1: o papel padrão “%2” tem medidas que nenhum papel tem</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>o documento “%1” não chegou inteiro a “%2”: imprima-o novamente</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>não é possível salvar as configurações “%1”: têm %2 caracteres, e no máximo %3 podem ser salvos</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>o servidor de impressão em “%1” não responde: tente mais tarde, reinicie-o ou indique outro com -h</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>%1 do servidor de impressão em “%2” tem mais de %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 não chegou inteiro</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 não chegou inteiro do servidor de impressão em “%2”: tente novamente</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>outro programa o mantém bloqueado; tente novamente</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>é grande demais</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: a conexão com o servidor de impressão em “%2” foi perdida</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>a etiqueta ou a fita não avança</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>a impressora tem outras etiquetas ou outra fita</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>é preciso retirar as etiquetas</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>a impressora está a iniciar</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>a impressora está em repouso</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>a tampa do cortador está aberta</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>falta o cortador</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>falta a fita de tinta</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>o depósito de tinta usada está cheio</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>Em pausa desde %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>não é possível alterar o trabalho %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>não é possível mover o trabalho %1 para a impressora dele</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>não é possível liberar o trabalho %1</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>a opção %1 tem caracteres de controlo; nada foi impresso</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>instruções</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1; pode ter chegado mesmo assim: veja os trabalhos de “%2” antes de o imprimir de novo</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: o servidor de impressão em “%2” não lho permite (%3): pergunte a quem cuida dele</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>A impressora corta a fita a cada tantas etiquetas e depois da última.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>A impressora corta a fita depois da última etiqueta.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>A lâmina atravessa só a camada impressa: as etiquetas ficam juntas no suporte e descolam-se uma a uma.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>Para fita que danificaria a lâmina, como tecido ou manga termorretrátil: a impressora nunca a corta. Corte-a com tesoura.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>A última etiqueta fica na impressora e o trabalho seguinte vem logo a seguir, sem fita em branco entre eles. Depois do último trabalho, avance e corte na impressora.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>Imprime em espelho, para etiquetas lidas por trás ou aplicadas a ferro.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>Retira o espaço em branco antes e depois da impressão: cada etiqueta é tão longa como o seu conteúdo.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>Imprime uma marca nas extremidades de cada etiqueta, onde cortar à mão.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>Poupa %1 mm de fita.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>Gasta mais %1 mm de fita.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>Pouparia %1 mm de fita.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>Gastaria mais %1 mm de fita.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>Pedaços: %1 em vez de %2.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>Pedaços: seriam %1 em vez de %2.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>A fita especial nunca é cortada, por isso não se pode escolher.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>As etiquetas deste tamanho estão em lugares fixos, por isso não se pode escolher.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>Depois de cada etiqueta</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>A cada %1 etiquetas</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>Depois de cada cópia</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>Depois da última etiqueta</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>Conforme a impressora decidir</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>Corte</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>Escolha do controlador</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>Cortar:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Aguardando o servidor de impressão…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>O servidor de impressão ainda não responde. O computador que tem a impressora está ligado e conectado?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>Desfazer a última alteração de uma definição</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>Refazer o que foi desfeito</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Repor</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>Voltar às definições iniciais do controlador</translation>
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
        <translation>&amp;Cópias:</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>&amp;Páginas:</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>Pape&amp;l:</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>Cópias</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>Todas, ou por exemplo 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>Papel</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>Agrupar</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>Última página primeiro</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>O documento inteiro uma vez por cópia, em vez de cada etiqueta tantas vezes quantas as cópias</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>Que páginas são impressas, como 1-3,5; todas se estiver vazio</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>Impresso.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>%1 etiquetas impressas.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>1 etiqueta impressa.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>Cancelar o &amp;trabalho</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>&amp;Fechar e deixar imprimir</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>Andamento do trabalho</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>Enviando para %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>Trabalho %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>Trabalho %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>Cancelando…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>Compondo…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>A imprimir: etiqueta %1 de %2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>O trabalho %1 será cancelado quando o servidor de impressão voltar a responder</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>O trabalho %1 foi enviado; o servidor de impressão não responde sobre o seu estado</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>O trabalho %1 foi enviado, mas o servidor não informa mais seu estado: %2. Talvez ainda seja impresso.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>O trabalho %1 foi cancelado na impressora</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 desistiu do trabalho %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. Verifique se a impressora está pronta e imprima de novo.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>O trabalho foi cancelado.</translation>
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
        <translation>Alterar</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>Alterar o layout</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>Tamanho, rotação e posição do documento na etiqueta</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>Tamanho real</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>Preencher</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentagem</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>Acima</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>Abaixo</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Acima à esquerda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Acima à direita</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abaixo à esquerda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abaixo à direita</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>Do papel</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>Fixo</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>Do conteúdo</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>Por parágrafo</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>Por linha</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>Porcentagem do tamanho do documento</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Rotação</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Posição</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>Comprimento</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>Comprimento em milímetros</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>Etiquetas</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>Fonte</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>Tamanho do texto</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>Tamanho:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>Rotação:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>Posição:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>Comprimento:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>Etiquetas:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>Fonte:</translation>
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
        <translation>Mais opções da impressora</translation>
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
        <translation>Alterar as &amp;outras</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>Manter a última escolha e alterar as que a excluem</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>E mais %1.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>A&amp;brir…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>Documentos recentes</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>Esta impressora não tem um painel próprio. Suas opções estão em “Mais opções da impressora”.</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>Pre&amp;definição:</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Excluir</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>Predefinição</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>Salvar estas configurações como predefinição</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>Excluir a predefinição escolhida</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>Configurações da impressora</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>Excluir predefinição</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>Excluir a predefinição “%1” desta impressora?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1 (alterado)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>Digite um nome.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>O nome é longo demais.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>Use letras, dígitos, hifens e sublinhados, sem espaços.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>Salvar predefinição</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>&amp;Nome da predefinição:</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>Nome da predefinição</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Salvar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>Substitui a predefinição com este nome.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>Substitui a predefinição “%1”: maiúsculas não contam.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>&amp;Mais opções da impressora</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>Imp&amp;rimir</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>Imprimir %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>Não é possível mostrar este documento</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>Etiqueta %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>O trabalho foi cancelado.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>Nenhuma impressora</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>Abrindo %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 não está imprimindo agora (%2). Um trabalho espera até que a impressora esteja pronta de novo.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 não aceita trabalhos. Escolha outra impressora ou pergunte a quem cuida desta.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>Nenhuma impressora está aberta.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>Isto é um arquivo PPD, não uma impressora: não é possível imprimir.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>Não é possível imprimir este documento.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>O documento tem páginas %1; elas são reduzidas a %2%</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>Mais adequado: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>Usar</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>Escolher este papel</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>As bordas da etiqueta %1 serão cortadas: reduzir a %2%</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>As bordas de %1 etiquetas serão cortadas: reduzir a %2%</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>Tornar os documentos pequenos o bastante</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 e mais %2</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>Abra um documento ou solte-o aqui</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>Este documento vai à impressora como está, sem visualização</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>Não há documento para imprimir: abra um ou solte-o aqui.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>Imp&amp;rimir 1 etiqueta</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>Imp&amp;rimir %1 etiquetas</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>Imp&amp;rimir de novo</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>O trabalho foi cancelado; algumas das suas etiquetas estão impressas.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>A tira mostra o trabalho inteiro tal como sai da impressora, com o que a lâmina faz; a linha de baixo di-lo por palavras.

Aponte para uma opção de corte, ou prima F1 sobre ela, para ler o que faz e o que mudaria.

Tira: mais e menos para o zoom, 0 para ajustar, Enter mostra uma etiqueta em grande. Ctrl+Z desfaz uma definição.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>O último pedaço tem %1 de %2 etiquetas.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>Cortar a cada %1</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>Assim todos os pedaços são iguais</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>Imprimir %1 cópias</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>Imprimir tudo isto?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>&amp;Imprimir %1 etiquetas</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>O servidor de impressão não responde. O computador que tem a impressora está ligado e com ligação? Assim que responder, pode imprimir de novo.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>Sem resposta</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>As etiquetas aparecem quando você continuar</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>Continua&amp;r</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>O servidor de impressão não responde e talvez tenha o trabalho que cancelou. Veja os trabalhos dele antes de imprimir novamente.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>Não disponível</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>Aguardando o servidor de impressão…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 foi configurada de novo no servidor de impressão; as suas definições foram mantidas.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 foi configurada de novo no servidor de impressão e já não tem: %2. Veja as definições antes de imprimir.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>&amp;Impressora:</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>Impressora</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>Arquivo PPD, sem impressora</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>Escolha uma impressora</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>Etiqueta anterior</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Próxima etiqueta</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>Reduzir</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>Ajustar</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>Ampliar</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Etiqueta %1 de %2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>Ajustar o trabalho à vista</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>Visualização das etiquetas</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>Imprimir apenas esta etiqueta</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>Mostrar todas as etiquetas</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>Mostrar em tamanho grande</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1 (cópia %2)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, fica na impressora</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
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
        <translation>não é possível desenhar a página %1: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>“%1: %2” não pode ser usado junto com “%3: %4”.</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 Altere um dos dois.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: enviado como “%2” porque a fita especial está ativada.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: enviado como “%2” porque o papel “%3” mantém o espaço em branco.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: enviado como “%2” porque o papel “%3” não deve ser cortado automaticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: enviado como “%2”, embora o papel “%3” não deva ser cortado automaticamente.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: enviado como “%2”, mas nada é cortado enquanto a fita especial está ativada.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: enviado como “%2”, o que a imagem não mostra.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: enviado como “%2”.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>opção desconhecida “%1”; esta impressora não tem essa opção</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>opção desconhecida “%1”; seria %2?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>as páginas devem estar em ordem crescente</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>o painel “%1” não aceita imprimir com estas configurações; altere-as e imprima de novo</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>papel desconhecido “%1”; esta impressora tem %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>esta impressora não tem a opção “%1”</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>cópias: %1 não está entre 1 e %2</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>um arquivo PPD sozinho não pode imprimir; escolha uma impressora</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: este documento não existe</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 não tem o valor “%2”: seus valores são %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>“%1” não combina com etiquetas: omitido</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>Não é possível ler “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>“%1” é ignorado: não é um texto simples de no máximo %2 kB</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 é ignorada: “%2” não significa nada ali</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 é ignorada: são necessários uma opção, uma escolha e o seu efeito</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>“%1”, linha %2,</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>intervalo de páginas “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>“%1” não é uma página; escreva as páginas como 1-3,5</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>falta uma página ao lado de uma vírgula; escreva as páginas como 1-3,5</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 não tem primeira página: escreva 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>as páginas contam-se a partir de 1</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 está ao contrário: escreva %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>o documento tem só 1 página</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>o documento tem %1 páginas e nenhuma página %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>“%1” não foi impresso</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>“%1” ainda aguarda impressão</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>“%1” foi configurada de novo no servidor de impressão: veja as definições e imprima novamente</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 etiqueta</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 etiquetas</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 pedaço</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 pedaços</translation>
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
        <translation>comprimento desconhecido</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>%1 do rolo</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>%1 de fita</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>no máximo %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>fita especial, que nunca é cortada</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>corte no fim</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>rolo não cortado</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>fita não cortada</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>corte após cada etiqueta</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>corte após cada cópia</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>corte a cada %1</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>meio corte entre elas</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>meio corte junto da etiqueta</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>a última etiqueta fica na impressora</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>com marcas de corte</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>sem espaço em branco</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>em espelho</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>avanço inicial: %1, cortado</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>avanço inicial: %1, com meio corte atrás</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>avanço inicial: %1, não cortado</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>cortado</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>com meio corte atrás, não cortado</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>não cortado</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1; este controlador não diz nada sobre o corte</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1; a impressora decide onde cortar</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>nenhuma etiqueta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>avanço após a última etiqueta: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>marcas de corte nas duas pontas de cada etiqueta: %1</translation>
    </message>
</context>
</TS>
