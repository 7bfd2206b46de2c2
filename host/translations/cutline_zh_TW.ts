<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1：無法保存文件：%2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>它是資料夾</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是檔案</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>沒有文件</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>不是可以讀取的類型：PDF、PostScript、PNG、JPEG、TIFF、WebP、SVG 或文字 (UTF-8)；「-o raw」可將其原樣送往印表機</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>已損壞；請在其他程式中開啟並重新儲存</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>受密碼保護；請另存為不含密碼的檔案</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>禁止列印；請向其擁有者索取另一個檔案</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>沒有頁面</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>頁面過多；請分成較小的部分列印</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>有一頁的尺寸是任何紙張都沒有的；請用其他尺寸儲存</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>所需記憶體超過文件允許的上限；請縮小圖片或分成幾部分儲存</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>讀取時間過長；請在其他程式中儲存為 PDF，或分成幾部分列印</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>沒有所選的全部頁面</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>未安裝讀取此類文件的元件</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>其讀取程式失敗</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>有 %1 頁，過多；請分成較小的部分列印</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>過大：%1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>未安裝讀取此類文件的元件：%1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>其讀取程式失敗：%1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>無法讀取文件「%1」：%2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>無法讀取文件 %1 其中之一：%2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>無法啟動程式「%1」：%2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>無法繪製頁面：%1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>沒有這一頁</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>其影像會過大</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>時間過長</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>無法繪製第 %1 頁：%2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>標籤卷或標籤帶已用完</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>需要標籤或標籤帶</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>標籤或標籤帶卡住</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>標籤或標籤帶即將用完</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>蓋子已打開</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>門已打開</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>蓋子未鎖好</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>缺少帶匣</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>印表機已關閉或未連接</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>印表機已關閉</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>印表機沒有回應</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>正在連接印表機</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>目前的標籤之後暫停</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>正在停止</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>部分停止</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>請檢查裁刀</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>裁刀故障</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>裁刀卡住</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>裁刀即將磨損</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>裁刀已磨損</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>色帶已用完</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>色帶即將用完</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>印字頭過熱</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>列印伺服器沒有空間容納更多工作</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新工作會被保留</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>請檢查印表機</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>列印伺服器上缺少印表機驅動程式</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>印表機驅動程式在列印伺服器上的安裝不安全</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>遠端印表機已暫停</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>正在等待遠端印表機</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>正在等待印表機完成</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>列印中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暫停</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>狀態不明</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>不接受工作</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>未就緒</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>無法列出印表機</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>它沒有印表機</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>它有 %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>列印伺服器「%1」沒有印表機「%2」：%3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>沒有預設印表機：請用 -d 指定；列印伺服器「%1」：%2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>沒有預設印表機（%1）：請用 -d 指定；列印伺服器「%2」：%3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>沒有已儲存的設定</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>已儲存的有 %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>印表機「%1」沒有已儲存的設定「%2」：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>「%1」是印表機，不是已儲存的設定</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>設定「%1」屬於管理員：只有以 root 執行的 lpoptions 才能移除</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>等待中</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>已保留</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>已取消</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已列印</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>印表機已暫停</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>印表機部分暫停</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>正在接收文件</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>直到被釋放</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>印表機需要檢查</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>無法讀取文件</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>印表機無法列印此類文件</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>無法列印文件</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>由操作員</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>在印表機上</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>由列印伺服器</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>工作 %1 的狀態不明</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>列印伺服器沒有提供工作 %1 的狀態</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>它沒有選項</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>可選的值為 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>「%1」不是紙張大小：請寫成 Custom.寬x長mm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>印表機不支援 %1 的紙張：支援 %2 到 %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>選項 %1 沒有值「%2」：%3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>無法開啟%1：%2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>與列印伺服器「%1」的連線已中斷：請再試一次</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>列印伺服器「%1」不提供「%2」的 PPD 檔案：%3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>列印伺服器「%1」沒有印表機「%2」</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>印表機「%1」在列印伺服器「%2」上沒有 PPD 檔案：請選擇已安裝驅動程式的印表機</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>PPD 檔案「%1」</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是資料夾</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>「%1」的 PPD 檔案</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>沒有記憶體可用於%1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>無法使用%1：%2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>無法使用%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>名稱「%1」有 %2 個位元組，PPD 檔案中的名稱最多 %3 個位元組</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>無法讀取文件「%1」：%2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>列印已取消，沒有列印任何內容</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>它在傳送時有變更；沒有列印任何內容</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>文件「%1」無法傳送到「%2」</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1；工作 %2 可能仍然存在：請用 cancel %2 移除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>「%1」不接受工作</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>無法取消工作 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>「%1」不是印表機名稱</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>設定無法儲存為「%1」：請選擇不含空格、「/」和「#」的名稱</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>選項 %1 無法儲存：其值含有「#」或換行</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>選項無法儲存到「%1」：%2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>no print server gives an encrypted connection at &quot;%1&quot; (%2): start one or leave out -E</source>
        <translation>「%1」上沒有提供加密連線的列印伺服器（%2）：請啟動一個，或去掉 -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>「%1」上沒有列印伺服器回應：請啟動它，或用 -h 指定另一個</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1：列印伺服器「%2」回應：%3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是檔案</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>沒有印表機「%1」</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>沒有預設印表機</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>紙張「%1」的尺寸是任何紙張都沒有的</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>超過 %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>已損壞或不完整</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>沒有「%1」的 PPD</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>無法使用 %1：它有 %2 個 %3，最多可用 %4 個</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>無法使用 %1：其自訂尺寸的參數 %2 不是尺寸</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>無法使用 %1：其預設紙張「%2」的尺寸是任何紙張都沒有的</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>文件「%1」未完整送達「%2」：請重新列印</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>無法儲存設定「%1」：共 %2 個字元，最多可儲存 %3 個</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>「%1」上的列印伺服器沒有回應：請稍後再試、重新啟動它，或用 -h 指定其他伺服器</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>來自「%2」上列印伺服器的 %1 超過 %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 未完整到達</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 未從「%2」上的列印伺服器完整到達：請重試</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>另一個程式將其鎖定；請重試</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>過大</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1：與「%2」上列印伺服器的連線已中斷</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>標籤或標籤帶未送入</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>印表機中裝的是其他標籤或標籤帶</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>需要取出標籤</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>印表機正在啟動</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>印表機處於休眠狀態</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>切刀蓋已打開</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>缺少切刀</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>缺少碳帶</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>廢墨盒已滿</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>自 %1 起暫停</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>無法變更工作 %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>無法將工作 %1 移到其印表機</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>無法釋放工作 %1</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>選項 %1 含有控制字元；未列印任何內容</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>陳述式</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1；它可能仍已送達：再次列印之前，請查看「%2」的工作</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1：列印伺服器「%2」不允許您這樣做（%3）：請詢問管理它的人</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>印表機每隔指定張數的標籤以及在最後一張之後切斷標籤帶。</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>印表機在最後一張標籤之後切斷標籤帶。</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>刀只切開印刷層：標籤仍連在底紙上，可逐張撕下。</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>用於會損壞刀片的標籤帶，如布料或熱縮管：印表機從不切斷它。請用剪刀剪斷。</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>最後一張標籤留在印表機內，下一個工作緊接其後，中間沒有空白帶。最後一個工作之後，請在印表機上送帶並切斷。</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>鏡像列印，用於從背面閱讀或熨燙的標籤。</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>省去列印內容前後的空白：每張標籤與其內容等長。</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>在每張標籤的兩端列印手工裁切標記。</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>節省 %1 mm 標籤帶。</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>多用 %1 mm 標籤帶。</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>選取可節省 %1 mm 標籤帶。</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>選取會多用 %1 mm 標籤帶。</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>段數：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>段數：選取後為 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>特殊標籤帶從不切斷，因此無法選擇。</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>此尺寸的標籤位置固定，因此無法選擇。</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>從不</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>每張標籤之後</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>每 %1 張標籤之後</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>每份之後</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>最後一張標籤之後</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>由印表機決定</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>驅動程式自行選擇</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>裁切：</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>正在等待列印伺服器…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>列印伺服器尚未回應。連接印表機的電腦是否已開機並連線？</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>復原上一次設定變更</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>重做已復原的變更</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重設</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>恢復驅動程式的初始設定</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>cutline::JobForm</name>
    <message>
        <source>&amp;Copies:</source>
        <translation>份數(&amp;C)：</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>頁面(&amp;A)：</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>紙張(&amp;R)：</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份數</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>全部，或例如 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>頁面</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>紙張</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份列印</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>從最後一頁開始</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>每份列印整份文件，而不是將每張標籤重複列印</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>要列印的頁面，例如 1-3,5；留空則全部列印</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>已列印。</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>已列印 %1 張標籤。</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>已列印 1 張標籤。</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>取消工作(&amp;J)</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>關閉並繼續列印(&amp;L)</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>工作進度</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>正在傳送到 %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>工作 %1：%2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>工作 %1：%2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>正在取消…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>正在排版…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>正在列印：標籤 %1/%2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>列印伺服器恢復回應後將取消工作 %1</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>工作 %1 已傳送；列印伺服器未回應其狀態</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>工作 %1 已傳送，但伺服器不再回報其狀態：%2。它可能仍會列印。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>工作 %1 已在印表機上取消</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 放棄了工作 %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation>（%1）</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2。請確認印表機已就緒，然後重新列印。</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>工作已取消。</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>版面：</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>變更</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>變更版面</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>文件在標籤上的大小、旋轉和位置</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>實際大小</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>符合標籤</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>填滿標籤</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>置中</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Of the paper</source>
        <translation>依紙張</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>依內容</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>每段一張</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>每行一張</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>文件大小的百分比</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋轉</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長度</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>長度（公釐）</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>標籤</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字型</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>字級</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>旋轉：</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>長度：</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>標籤：</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>字型：</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>字級：</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>更多印表機選項</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>cutline::NoticeView</name>
    <message>
        <source>Chan&amp;ge the others</source>
        <translation>變更其他選項(&amp;G)</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>保留最近的選擇，變更與其衝突的選項</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>還有 %1 條。</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>開啟(&amp;O)…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>最近的文件</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開啟</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>此印表機沒有自己的面板。其選項位於「更多印表機選項」中。</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>預設組合(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>刪除(&amp;D)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>預設組合</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>將這些設定儲存為預設組合</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>刪除所選的預設組合</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>印表機本身的設定</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>刪除預設組合</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>要刪除此印表機的預設組合「%1」嗎？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已變更）</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>請輸入名稱。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名稱太長。</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>請使用字母、數字、連字號和底線，不要使用空格。</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>儲存預設組合</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>預設組合名稱(&amp;N)：</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>預設組合名稱</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>儲存(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>將取代同名的預設組合。</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>將取代預設組合「%1」：不區分大小寫。</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>更多印表機選項(&amp;M)</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>列印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>列印</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>列印 %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>無法顯示此文件</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>標籤 %1：%2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>工作已取消。</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>沒有印表機</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>正在開啟 %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 目前不列印（%2）。工作會等待印表機重新就緒。</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 不接受工作。請選擇其他印表機，或詢問負責此印表機的人。</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>沒有開啟的印表機。</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>這是 PPD 檔案，不是印表機：無法列印。</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>無法列印此文件。</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>文件的頁面為 %1；將縮小到 %2 %</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>更合適：%1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>選擇此紙張</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>標籤 %1 的邊緣會被裁掉：縮小到 %2 %</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>%1 張標籤的邊緣會被裁掉：縮小到 %2 %</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>將文件縮到足夠小</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 與另外 %2 個</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>開啟文件或將其拖曳到此處</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>此文件將原樣送往印表機，不經預覽</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>沒有要列印的文件：請開啟一個，或拖曳到此處。</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>列印 1 張標籤(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>列印 %1 張標籤(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>再次列印(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>工作已取消；部分標籤已列印。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>長條顯示整個工作從印表機出來時的樣子，包括刀的動作；下面一行用文字說明。

指向某個裁切選項，或在其上按 F1，可查看其作用及會帶來的變化。

長條：加號和減號縮放，0 適合視窗，Enter 放大顯示標籤。Ctrl+Z 復原設定。</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>最後一段只有 %1/%2 張標籤。</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>每 %1 張裁切</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>這樣每段都相同</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>列印 %1 份</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>全部列印嗎？</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>列印 %1 張標籤(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>列印伺服器沒有回應。連接印表機的電腦是否已開機並連線？恢復回應後即可列印。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>沒有回應</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>繼續後會顯示標籤</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>繼續(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>列印伺服器沒有回應，可能已收到您取消的工作。再次列印之前，請查看其工作。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>無法使用</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>正在等待列印伺服器…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 已在列印伺服器上重新設定；您的設定已保留。</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 已在列印伺服器上重新設定，不再有：%2。列印之前請查看設定。</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>印表機(&amp;N)：</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>印表機</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD 檔案，沒有印表機</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>選擇印表機</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>上一張標籤</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>下一張標籤</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>符合</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>標籤 %1/%2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>使整個工作適合檢視</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>標籤預覽</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>僅列印此標籤</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>顯示全部標籤</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>放大顯示</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1（第 %2 份）</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1，留在印表機中</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1：</translation>
    </message>
</context>
<context>
    <name>document</name>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>無法繪製第 %1 頁：%2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>「%1：%2」不能與「%3：%4」同時使用。</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1請變更其中一項。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1：因為特殊標籤帶已開啟，將以「%2」傳送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1：因為紙張「%3」保留空白，將以「%2」傳送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1：因為紙張「%3」不得自動裁切，將以「%2」傳送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1：雖然紙張「%3」不得自動裁切，仍將以「%2」傳送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1：將以「%2」傳送，但特殊標籤帶開啟時不會裁切。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1：將以「%2」傳送，但圖片中不顯示。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1：將以「%2」傳送。</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>未知的選項「%1」；此印表機沒有這樣的選項</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>未知的選項「%1」；是不是 %2？</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>頁碼必須依遞增順序排列</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>面板「%1」不同意以這些設定列印；請變更設定後重新列印</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>未知的紙張「%1」；此印表機有 %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>此印表機沒有選項「%1」</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>份數：%1 不在 1 到 %2 之間</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>只有 PPD 檔案無法列印；請選擇印表機</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1：沒有這個文件</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 沒有值「%2」：可用的值為 %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>「%1」不適用於標籤：已省略</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>無法讀取「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>已略過「%1」：它不是不超過 %2 kB 的純文字</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1已略過：「%2」在此處沒有意義</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1已略過：需要選項、選擇及其效果</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>「%1」第 %2 行</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>頁面範圍「%1」：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>「%1」不是頁碼；請依 1-3,5 的形式書寫</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>逗號旁缺少頁碼；請依 1-3,5 的形式書寫</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 沒有起始頁：請寫 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>頁碼從 1 開始</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 順序顛倒：請寫 %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>文件只有 1 頁</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>文件共 %1 頁，沒有第 %2 頁</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>「%1」未列印</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>「%1」仍在等待列印</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>「%1」已在列印伺服器上重新設定：請查看設定，然後再次列印</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 張標籤</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 張標籤</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 段</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 段</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 公釐</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>長度不明</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>捲筒 %1</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>標籤帶 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>特殊標籤帶，從不裁切</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>在末尾裁切</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>捲筒不裁切</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>標籤帶不裁切</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>每張標籤後裁切</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>每份後裁切</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>每 %1 張裁切</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>之間半切</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>標籤旁半切</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>最後一張標籤留在印表機中</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>含裁切標記</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>移除空白</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>前端空白：%1，切斷</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>前端空白：%1，其後半切</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>前端空白：%1，不切斷</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>切斷</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>其後半切，不切斷</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>不切斷</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，每段 %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1；此驅動程式未說明裁切</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1；裁切位置由印表機決定</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>沒有標籤</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>最後一張標籤後的走帶：%1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>每張標籤兩端的裁切標記：%1</translation>
    </message>
</context>
</TS>
