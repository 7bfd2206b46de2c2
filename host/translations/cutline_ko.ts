<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: 문서를 보관할 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>문서가 없습니다</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>중지되었습니다</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>읽을 수 있는 종류가 아닙니다: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG 또는 텍스트(UTF-8). “-o raw”를 쓰면 그대로 프린터로 보냅니다</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>손상되었습니다. 다른 프로그램에서 열어 다시 저장하십시오</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>암호로 잠겨 있습니다. 암호 없이 저장하십시오</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>인쇄가 금지되어 있습니다. 소유자에게 다른 파일을 요청하십시오</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>페이지가 없습니다</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>페이지가 너무 많습니다. 나누어 인쇄하십시오</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>어떤 용지에도 없는 크기의 페이지가 있습니다. 다른 크기로 저장하십시오</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>문서에 허용된 것보다 많은 메모리가 필요합니다. 그림을 줄이거나 나누어 저장하십시오</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>읽는 데 너무 오래 걸립니다. 다른 곳에서 PDF로 저장하거나 나누어 인쇄하십시오</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>선택한 페이지가 모두 있지는 않습니다</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>이 종류의 문서를 읽는 구성 요소가 설치되어 있지 않습니다</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>읽기 프로그램이 실패했습니다</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>페이지가 %1개로 너무 많습니다. 나누어 인쇄하십시오</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>너무 큽니다: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>이 종류의 문서를 읽는 구성 요소가 설치되어 있지 않습니다: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>읽기 프로그램이 실패했습니다: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>문서 “%1”을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>문서 %1 중 하나를 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>프로그램 “%1”을(를) 시작할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>페이지를 그릴 수 없습니다: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>그런 페이지가 없습니다</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>그림이 너무 커집니다</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>너무 오래 걸립니다</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>페이지 %1을(를) 그릴 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>라벨 롤 또는 테이프가 없음</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>라벨 또는 테이프가 필요함</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>라벨 또는 테이프가 걸림</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>라벨 또는 테이프가 거의 없음</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>덮개가 열려 있음</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>문이 열려 있음</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>덮개가 잠겨 있지 않음</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>카세트가 없음</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>프린터가 꺼져 있거나 연결되어 있지 않음</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>프린터가 꺼져 있음</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>프린터가 응답하지 않음</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>프린터에 연결 중</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>현재 라벨 다음에 일시 정지</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>정지하는 중</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>일부 정지됨</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>커터를 확인하십시오</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>커터 고장</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>커터가 걸림</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>커터가 거의 마모됨</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>커터가 마모됨</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>잉크 리본이 없음</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>잉크 리본이 거의 없음</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>프린트 헤드가 너무 뜨거움</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>프린트 서버에 작업을 더 받을 공간이 없음</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>새 작업이 보류됨</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>프린터를 확인하십시오</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>프린트 서버에 프린터 드라이버가 없음</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>프린트 서버에 프린터 드라이버가 안전하게 설치되어 있지 않음</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>원격 프린터가 일시 정지됨</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>원격 프린터를 기다리는 중</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>프린터가 끝나기를 기다리는 중</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>인쇄 중</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>일시 정지됨</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>상태를 알 수 없음</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>작업을 받지 않음</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>준비되지 않음</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>프린터 목록을 가져올 수 없습니다</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>프린터가 없습니다</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>%1이(가) 있습니다</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>프린트 서버 “%1”에 프린터 “%2”이(가) 없습니다: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>기본 프린터가 없습니다: -d로 지정하십시오. 프린트 서버 “%1”: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>기본 프린터가 없습니다(%1): -d로 지정하십시오. 프린트 서버 “%2”: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>저장된 설정이 없습니다</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>저장된 설정은 %1입니다</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>프린터 “%1”에 저장된 설정 “%2”이(가) 없습니다: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>“%1”은(는) 저장된 설정이 아니라 프린터입니다</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>설정 “%1”은(는) 관리자의 것입니다: root로 실행한 lpoptions만 삭제할 수 있습니다</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>대기 중</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>보류됨</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>정지됨</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>취소됨</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>실패</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>인쇄됨</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>프린터가 일시 정지됨</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>프린터가 일부 정지됨</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>문서를 받는 중</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>해제될 때까지</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>프린터를 확인해야 함</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>문서를 읽을 수 없음</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>프린터가 이 종류의 문서를 인쇄할 수 없음</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>문서를 인쇄할 수 없음</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>운영자가</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>프린터에서</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>프린트 서버가</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>작업 %1의 상태를 알 수 없습니다</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>프린트 서버가 작업 %1의 상태를 알려 주지 않았습니다</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>선택 항목이 없습니다</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>선택 항목은 %1입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>“%1”은(는) 용지 크기가 아닙니다: Custom.너비x길이mm 형식으로 쓰십시오</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>프린터가 %1 용지를 지원하지 않습니다: %2부터 %3까지입니다</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>옵션 %1에 선택 항목 “%2”이(가) 없습니다: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1을(를) 열 수 없습니다: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>프린트 서버 “%1”과(와)의 연결이 끊어졌습니다: 다시 시도하십시오</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>프린트 서버 “%1”이(가) “%2”의 PPD를 내주지 않습니다: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>프린트 서버 “%1”에 프린터 “%2”이(가) 없습니다</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>프린터 “%1”의 PPD가 프린트 서버 “%2”에 없습니다: 드라이버와 함께 설정된 프린터를 선택하십시오</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>PPD “%1”</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>폴더입니다</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>“%1”의 PPD</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>%1에 쓸 메모리가 없습니다</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>%1을(를) 사용할 수 없습니다: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>%1을(를) 사용할 수 없습니다: %2행: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>이름 “%1”은(는) %2바이트입니다. PPD의 이름은 최대 %3바이트입니다</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>문서 “%1”을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>비어 있습니다</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>인쇄가 취소되어 아무것도 인쇄되지 않았습니다</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>보내는 동안 변경되어 아무것도 인쇄되지 않았습니다</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>문서 “%1”을(를) “%2”(으)로 보낼 수 없습니다</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1. 작업 %2이(가) 아직 남아 있을 수 있습니다: cancel %2로 삭제하십시오</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>“%1”이(가) 작업을 받지 않습니다</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>작업 %1을(를) 취소할 수 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>“%1”은(는) 프린터 이름이 아닙니다</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>설정을 “%1”(으)로 저장할 수 없습니다: 공백, “/”, “#”이 없는 이름을 선택하십시오</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>옵션 %1을(를) 저장할 수 없습니다: 값에 “#” 또는 줄 바꿈이 있습니다</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>옵션을 “%1”에 저장할 수 없습니다: %2</translation>
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
        <translation>“%1”에서 암호화된 연결을 제공하는 프린트 서버가 없습니다(%2): 서버를 시작하거나 -E를 빼십시오</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>“%1”에서 응답하는 프린트 서버가 없습니다: 서버를 시작하거나 -h로 다른 서버를 지정하십시오</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: 프린트 서버 “%2”의 응답: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>파일이 아닙니다</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>프린터 “%1”이(가) 없습니다</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>기본 프린터가 없습니다</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>용지 “%1”의 치수는 용지로서 있을 수 없습니다</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>%1 MB보다 큽니다</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>손상되었거나 온전하지 않습니다</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>“%1”의 PPD가 없습니다</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>%1을(를) 사용할 수 없습니다. %3이(가) %2개이며 최대 %4개까지 쓸 수 있습니다</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>%1을(를) 사용할 수 없습니다. 사용자 지정 크기의 매개변수 %2이(가) 치수가 아닙니다</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>%1을(를) 사용할 수 없습니다. 기본 용지 “%2”의 치수는 용지로서 있을 수 없습니다</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>문서 “%1”이(가) “%2”에 온전히 도착하지 않았습니다. 다시 인쇄하십시오</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>설정 “%1”을(를) 저장할 수 없습니다. %2자이며 최대 %3자까지 저장할 수 있습니다</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>“%1”의 인쇄 서버가 응답하지 않습니다. 나중에 다시 시도하거나, 다시 시작하거나, -h로 다른 서버를 지정하십시오</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>“%2”의 인쇄 서버에서 온 %1이(가) %3 MB보다 큽니다</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1이(가) 온전히 도착하지 않았습니다</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>“%2”의 인쇄 서버에서 %1이(가) 온전히 도착하지 않았습니다. 다시 시도하십시오</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>다른 프로그램이 잠그고 있습니다. 다시 시도하십시오</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>너무 큽니다</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: “%2”의 인쇄 서버와 연결이 끊겼습니다</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>라벨이나 테이프가 공급되지 않습니다</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>다른 라벨이나 테이프가 들어 있습니다</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>라벨을 꺼내야 합니다</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>프린터가 시작하는 중입니다</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>프린터가 절전 상태입니다</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>절단기 덮개가 열려 있습니다</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>절단기가 없습니다</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>잉크 리본이 없습니다</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>폐잉크 통이 가득 찼습니다</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>%1부터 일시 중지됨</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>작업 %1을(를) 변경할 수 없습니다</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>작업 %1을(를) 해당 프린터로 옮길 수 없습니다</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>작업 %1의 보류를 해제할 수 없습니다</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>옵션 %1에 제어 문자가 있습니다. 아무것도 인쇄되지 않았습니다</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>문</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1. 그래도 도착했을 수 있습니다. 다시 인쇄하기 전에 “%2”의 작업을 확인하십시오</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: 인쇄 서버 “%2”에서 허용하지 않습니다(%3). 관리하는 사람에게 문의하십시오</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>지정한 장수마다, 그리고 마지막 라벨 뒤에서 테이프를 자릅니다.</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>마지막 라벨 뒤에서 테이프를 자릅니다.</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>인쇄된 층만 자릅니다. 라벨은 뒷면지에 붙은 채로 이어져 있고 한 장씩 떼어 낼 수 있습니다.</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>천이나 열 수축 튜브처럼 칼날을 상하게 하는 테이프용입니다. 프린터가 자르지 않으니 가위로 자르십시오.</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>마지막 라벨은 프린터 안에 남고 다음 작업이 빈 테이프 없이 이어집니다. 마지막 작업 뒤에는 프린터에서 테이프를 내보내고 자르십시오.</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>뒤에서 읽거나 다리미로 붙이는 라벨을 위해 좌우를 뒤집어 인쇄합니다.</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>인쇄 앞뒤의 빈 공간을 없애 각 라벨을 내용 길이에 맞춥니다.</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>손으로 자를 위치를 각 라벨의 양 끝에 표시합니다.</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>테이프를 %1 mm 절약합니다.</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>테이프를 %1 mm 더 사용합니다.</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>선택하면 테이프를 %1 mm 절약합니다.</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>선택하면 테이프를 %1 mm 더 사용합니다.</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>조각: %2개 대신 %1개.</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>조각: 선택하면 %2개 대신 %1개.</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>특수 테이프는 자르지 않으므로 선택할 수 없습니다.</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>이 크기의 라벨은 위치가 정해져 있어 선택할 수 없습니다.</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>안 함</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>라벨마다</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>라벨 %1장마다</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>한 부마다</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>마지막 라벨 뒤</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>프린터가 결정</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>커팅</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>드라이버의 선택</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>자르기:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>프린트 서버를 기다리는 중…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>인쇄 서버가 아직 응답하지 않습니다. 프린터가 있는 컴퓨터가 켜져 있고 연결되어 있습니까?</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>마지막 설정 변경 실행 취소</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>취소한 변경 다시 실행</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>초기화</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>드라이버의 초기 설정으로 되돌리기</translation>
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
        <translation>매수(&amp;C):</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>페이지(&amp;A):</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>용지(&amp;R):</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>매수</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>모두, 또는 1-3,5와 같이</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>페이지</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>용지</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>한 부씩 인쇄</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>마지막 페이지부터</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>라벨마다 매수만큼 반복하지 않고 문서 전체를 한 부씩 인쇄합니다</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>인쇄할 페이지(예: 1-3,5). 비워 두면 모두</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>인쇄했습니다.</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>라벨 %1장을 인쇄했습니다.</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>라벨 1장을 인쇄했습니다.</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>작업 취소(&amp;J)</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>닫고 계속 인쇄(&amp;L)</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>작업 진행 상황</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>%1(으)로 보내는 중…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>작업 %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>작업 %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>취소하는 중…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>배치하는 중…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>인쇄 중: 라벨 %1/%2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>인쇄 서버가 다시 응답하면 작업 %1을(를) 취소합니다</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>작업 %1을(를) 보냈지만 인쇄 서버가 작업 상태를 응답하지 않습니다</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>작업 %1을(를) 보냈지만 서버가 더 이상 상태를 알려 주지 않습니다: %2. 아직 인쇄될 수 있습니다.</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>작업 %1이(가) 프린터에서 취소되었습니다</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1이(가) 작업 %2을(를) 중단했습니다</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2. 프린터가 준비되었는지 확인한 다음 다시 인쇄하십시오.</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>작업이 취소되었습니다.</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>레이아웃:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>변경</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>레이아웃 변경</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>라벨에서 문서의 크기, 회전, 위치</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>실제 크기</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>라벨에 맞춤</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>라벨 채우기</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>비율</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>가운데</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>왼쪽 위</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>오른쪽 위</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>왼쪽 아래</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>오른쪽 아래</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>용지에 따름</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>고정</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>내용에 따름</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>문단마다</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>줄마다</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>문서 크기에 대한 비율</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>회전</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>위치</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>길이</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>길이(밀리미터)</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>라벨</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>글꼴</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>글자 크기</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>크기:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>회전:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>위치:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>길이:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>라벨:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>글꼴:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>글자 크기:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>추가 프린터 옵션</translation>
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
        <translation>나머지 변경(&amp;G)</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>마지막 선택을 유지하고 함께 쓸 수 없는 것을 변경합니다</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>그 밖에 %1개.</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>열기(&amp;O)…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>최근 문서</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>열기</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>이 프린터에는 전용 패널이 없습니다. 옵션은 “추가 프린터 옵션”에 있습니다.</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>사전 설정(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>삭제(&amp;D)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>사전 설정</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>이 설정을 사전 설정으로 저장</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>선택한 사전 설정 삭제</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>프린터 자체 설정</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>사전 설정 삭제</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>이 프린터의 사전 설정 “%1”을(를) 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1(변경됨)</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>이름이 너무 깁니다.</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>글자, 숫자, 하이픈, 밑줄을 사용하고 공백은 넣지 마십시오.</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>사전 설정 저장</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>사전 설정 이름(&amp;N):</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>사전 설정 이름</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>저장(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>이 이름의 사전 설정을 바꿉니다.</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>사전 설정 “%1”을(를) 바꿉니다. 대소문자는 구별하지 않습니다.</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>추가 프린터 옵션(&amp;M)</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>인쇄</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 인쇄</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>이 문서는 표시할 수 없습니다</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>라벨 %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>작업이 취소되었습니다.</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>프린터 없음</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>%1 여는 중…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1이(가) 지금 인쇄하지 않습니다(%2). 작업은 프린터가 다시 준비될 때까지 기다립니다.</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1이(가) 작업을 받지 않습니다. 다른 프린터를 선택하거나 이 프린터의 담당자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>열려 있는 프린터가 없습니다.</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>이것은 프린터가 아니라 PPD 파일입니다: 인쇄할 수 없습니다.</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>이 문서는 인쇄할 수 없습니다.</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>문서의 페이지는 %1입니다. %2 %로 축소됩니다</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>더 알맞은 용지: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>이 용지 선택</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>라벨 %1의 가장자리가 잘립니다: %2 %로 축소</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>라벨 %1장의 가장자리가 잘립니다: %2 %로 축소</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>문서를 충분히 작게 축소</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 외 %2개</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>문서를 열거나 여기에 끌어 놓으십시오</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>이 문서는 미리 보기 없이 그대로 프린터로 보내집니다</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>인쇄할 문서가 없습니다: 문서를 열거나 여기에 끌어 놓으십시오.</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>라벨 1장 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>라벨 %1장 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>다시 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>작업이 취소되었습니다. 일부 라벨은 인쇄되었습니다.</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>위의 띠는 칼이 하는 일을 포함하여 프린터에서 나오는 그대로의 작업 전체를 보여 줍니다. 아래 줄은 그것을 말로 알려 줍니다.

커팅 옵션을 가리키거나 F1을 누르면 그 기능과 달라지는 점을 읽을 수 있습니다.

띠: 더하기와 빼기로 확대/축소, 0으로 맞춤, Enter로 라벨을 크게 표시. Ctrl+Z로 설정을 되돌립니다.</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>마지막 조각의 라벨은 %2장 중 %1장입니다.</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>%1장마다 자르기</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>그러면 모든 조각이 같아집니다</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>%1부 인쇄</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>모두 인쇄하시겠습니까?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>라벨 %1장 인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>인쇄 서버가 응답하지 않습니다. 프린터가 있는 컴퓨터가 켜져 있고 연결되어 있습니까? 다시 응답하면 인쇄할 수 있습니다.</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>응답 없음</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>계속하면 라벨이 표시됩니다</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>계속(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>인쇄 서버가 응답하지 않으며, 취소한 작업을 이미 받았을 수 있습니다. 다시 인쇄하기 전에 서버의 작업을 확인하십시오.</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>사용할 수 없음</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>프린트 서버를 기다리는 중…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1이(가) 인쇄 서버에서 새로 설정되었습니다. 선택한 설정은 유지되었습니다.</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1이(가) 인쇄 서버에서 새로 설정되어 다음이 없어졌습니다: %2. 인쇄하기 전에 설정을 확인하십시오.</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>프린터(&amp;N):</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>프린터</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD 파일, 프린터 없음</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>프린터 선택</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>이전 라벨</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>다음 라벨</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>축소</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>맞춤</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>확대</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>라벨 %1/%2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>작업 전체를 보기에 맞춤</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>라벨 미리 보기</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>이 라벨만 인쇄</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>모든 라벨 보기</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>크게 보기</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1(%2번째 사본)</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1, 프린터에 남음</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
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
        <translation>페이지 %1을(를) 그릴 수 없습니다: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>“%1: %2”은(는) “%3: %4”과(와) 함께 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 둘 중 하나를 변경하십시오.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: 특수 테이프가 켜져 있어 “%2”(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: 용지 “%3”은(는) 여백이 그대로 유지되므로 “%2”(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: 용지 “%3”은(는) 자동으로 절단하면 안 되므로 “%2”(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: 용지 “%3”은(는) 자동으로 절단하면 안 되지만 “%2”(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: “%2”(으)로 보내지만 특수 테이프가 켜져 있는 동안에는 절단하지 않습니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: “%2”(으)로 보내지만 그림에는 나타나지 않습니다.</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: “%2”(으)로 보냅니다.</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>알 수 없는 옵션 “%1”. 이 프린터에는 그런 옵션이 없습니다</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>알 수 없는 옵션 “%1”. %2입니까?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>페이지는 오름차순이어야 합니다</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>패널 “%1”이(가) 이 설정으로 인쇄하는 데 동의하지 않습니다. 설정을 변경하고 다시 인쇄하십시오</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>알 수 없는 용지 “%1”. 이 프린터의 용지는 %2입니다</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>이 프린터에는 옵션 “%1”이(가) 없습니다</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>매수: %1은(는) 1에서 %2 사이가 아닙니다</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>PPD 파일만으로는 인쇄할 수 없습니다. 프린터를 선택하십시오</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: 그런 문서가 없습니다</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1에 값 “%2”이(가) 없습니다. 가능한 값은 %3입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>“%1”은(는) 라벨에 맞지 않아 제외합니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>&quot;%1&quot;을(를) 읽을 수 없습니다: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>&quot;%1&quot;은(는) 건너뜁니다: %2 kB 이하의 일반 텍스트가 아닙니다</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1 건너뜁니다: 그 자리에서 &quot;%2&quot;은(는) 의미가 없습니다</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1 건너뜁니다: 옵션, 선택 항목, 그 효과가 필요합니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>&quot;%1&quot;의 %2번째 줄을</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>페이지 범위 “%1”: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>“%1”은(는) 페이지가 아닙니다. 1-3,5와 같이 쓰십시오</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>쉼표 옆에 페이지가 없습니다. 1-3,5와 같이 쓰십시오</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1에 첫 페이지가 없습니다. 1%1과 같이 쓰십시오</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>페이지는 1부터 셉니다</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1은(는) 순서가 거꾸로입니다. %2(으)로 쓰십시오</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>문서는 1페이지뿐입니다</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>문서는 %1페이지이며 %2페이지는 없습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>&quot;%1&quot;이(가) 인쇄되지 않았습니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>&quot;%1&quot;이(가) 아직 인쇄 대기 중입니다</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>“%1”이(가) 인쇄 서버에서 새로 설정되었습니다. 설정을 확인한 후 다시 인쇄하십시오</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>라벨 1장</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>라벨 %1장</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1조각</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1조각</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1mm</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>길이를 알 수 없음</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>롤 %1</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>테이프 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>최대 %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>자르지 않는 특수 테이프</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>끝에서 절단</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>롤을 자르지 않음</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>테이프를 자르지 않음</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>라벨마다 절단</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>사본마다 절단</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>%1장마다 절단</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>사이에 하프 컷</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>라벨 옆에 하프 컷</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>마지막 라벨은 프린터에 남음</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>절단 표시 있음</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>여백 없음</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>거울상</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>앞 여백: %1, 잘라 냄</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>앞 여백: %1, 뒤에 하프 컷</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>앞 여백: %1, 자르지 않음</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>잘라 냄</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>뒤에 하프 컷, 자르지 않음</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>자르지 않음</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1(각 %2)</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1. 이 드라이버에는 절단 정보가 없음</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1. 자르는 위치는 프린터가 정함</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>라벨 없음</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>마지막 라벨 뒤 여백: %1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>각 라벨 양 끝의 절단 표시: %1</translation>
    </message>
</context>
</TS>
