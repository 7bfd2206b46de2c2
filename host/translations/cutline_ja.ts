<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1: 文書を保管できません: %2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>文書がありません</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>中止されました</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>読み取れる種類ではありません: PDF、PostScript、PNG、JPEG、TIFF、WebP、SVG、テキスト (UTF-8)。「-o raw」でそのままプリンターに送れます</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>破損しています。別のプログラムで開いて保存し直してください</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>パスワードで保護されています。パスワードなしで保存してください</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>印刷が禁止されています。所有者に別のファイルを依頼してください</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>ページがありません</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>ページが多すぎます。分けて印刷してください</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>用紙にないサイズのページがあります。別のサイズで保存してください</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>文書に許されるより多くのメモリーが必要です。画像を小さくするか、分けて保存してください</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>読み取りに時間がかかりすぎます。別のプログラムで PDF として保存するか、分けて印刷してください</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>選択されたページの一部がありません</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>この種類の文書を読み取る部品がインストールされていません</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>読み取りプログラムが失敗しました</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>%1 ページあり、多すぎます。分けて印刷してください</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>大きすぎます: %1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>この種類の文書を読み取る部品がインストールされていません: %1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>読み取りプログラムが失敗しました: %1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>文書「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>文書 %1 のいずれかを読み取れません: %2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>プログラム「%1」を起動できません: %2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>ページを描画できません: %1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>そのページはありません</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>画像が大きくなりすぎます</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>時間がかかりすぎます</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>ページ %1 を描画できません: %2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>ラベルロールまたはテープがありません</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>ラベルまたはテープが必要です</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>ラベルまたはテープが詰まっています</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>ラベルまたはテープが残りわずかです</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>カバーが開いています</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>ドアが開いています</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>カバーがロックされていません</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>カセットがありません</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>プリンターの電源が切れているか、接続されていません</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>プリンターの電源が切れています</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>プリンターが応答しません</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>プリンターに接続しています</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>現在のラベルの後で一時停止します</translation>
    </message>
    <message>
        <source>stopping</source>
        <translation>停止しています</translation>
    </message>
    <message>
        <source>partly stopped</source>
        <translation>一部停止しています</translation>
    </message>
    <message>
        <source>cutter needs attention</source>
        <translation>カッターを確認してください</translation>
    </message>
    <message>
        <source>cutter failed</source>
        <translation>カッターの故障</translation>
    </message>
    <message>
        <source>cutter is jammed</source>
        <translation>カッターが詰まっています</translation>
    </message>
    <message>
        <source>cutter is nearly worn out</source>
        <translation>カッターの寿命が近づいています</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>カッターが寿命です</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>インクリボンがありません</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>インクリボンが残りわずかです</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>印字ヘッドが熱すぎます</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>プリントサーバーにジョブを追加する空きがありません</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新しいジョブは保留されます</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>プリンターを確認してください</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>プリンターのドライバーがプリントサーバーにありません</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>プリンターのドライバーがプリントサーバーに安全にインストールされていません</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>リモートプリンターが一時停止しています</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>リモートプリンターを待っています</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>プリンターの完了を待っています</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>準備完了</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>印刷中</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>一時停止中</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状態不明</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>ジョブを受け付けていません</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>準備できていません</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>プリンターの一覧を取得できません</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>プリンターはありません</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>%1 があります</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>プリントサーバー「%1」にプリンター「%2」はありません: %3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>デフォルトのプリンターがありません: -d で指定してください。プリントサーバー「%1」: %2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>デフォルトのプリンターがありません (%1): -d で指定してください。プリントサーバー「%2」: %3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>保存されているものはありません</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>保存されているのは %1 です</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>プリンター「%1」に保存済みの設定「%2」はありません: %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>「%1」はプリンターで、保存済みの設定ではありません</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>設定「%1」は管理者のものです: 削除できるのは root で実行する lpoptions だけです</translation>
    </message>
    <message>
        <source>Waiting</source>
        <translation>待機中</translation>
    </message>
    <message>
        <source>Held</source>
        <translation>保留</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>停止</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>キャンセル済み</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>失敗</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>印刷済み</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>プリンターが一時停止しています</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>プリンターが一部停止しています</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>文書を受信しています</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>解除されるまで</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>プリンターの確認が必要です</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>文書を読み取れません</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>プリンターはこの種類の文書を印刷できません</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>文書を印刷できません</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>オペレーターによる</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>プリンターで</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>プリントサーバーによる</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>ジョブ %1 の状態が分かりません</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>プリントサーバーからジョブ %1 の状態の通知がありません</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>選択肢はありません</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>選択肢は %1 です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>「%1」は用紙サイズではありません: Custom.幅x長さmm の形で入力してください</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>プリンターは %1 の用紙に対応していません: %2 から %3 までです</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>オプション %1 に選択肢「%2」はありません: %3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>%1を開けません: %2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>プリントサーバー「%1」への接続が切れました: もう一度試してください</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>プリントサーバー「%1」から「%2」の PPD を取得できません: %3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>プリントサーバー「%1」にプリンター「%2」はありません</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>プリンター「%1」の PPD がプリントサーバー「%2」にありません: ドライバー付きで設定されたプリンターを選んでください</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>PPD「%1」</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>「%1」の PPD</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>%1のためのメモリーがありません</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>%1を使用できません: %2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>%1を使用できません: %2 行目: %3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>名前「%1」は %2 バイトです。PPD の名前は最大 %3 バイトです</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>文書「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>空です</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>印刷がキャンセルされたため、何も印刷されていません</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>送信中に変更されたため、何も印刷されていません</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>文書「%1」を「%2」に送信できませんでした</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1。ジョブ %2 がまだ残っている可能性があります: cancel %2 で削除してください</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>「%1」はジョブを受け付けません</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>ジョブ %1 をキャンセルできません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>「%1」はプリンターの名前ではありません</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>設定を「%1」として保存できません: 空白、「/」、「#」を含まない名前を選んでください</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>オプション %1 を保存できません: 値に「#」または改行が含まれています</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>オプションを「%1」に保存できません: %2</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 - %2</source>
        <translation>%1 – %2</translation>
    </message>
    <message>
        <source>no print server gives an encrypted connection at &quot;%1&quot; (%2): start one or leave out -E</source>
        <translation>「%1」に暗号化された接続を提供するプリントサーバーがありません (%2): 起動するか、-E を外してください</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>「%1」のプリントサーバーが応答しません: 起動するか、-h で別のサーバーを指定してください</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1: プリントサーバー「%2」からの応答: %3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>ファイルではありません</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>プリンター「%1」がありません</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>既定のプリンターがありません</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>用紙「%1」の寸法は用紙としてありえません</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>%1 MB を超えています</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>破損しているか、不完全です</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>「%1」の PPD がありません</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>%1 を使用できません: %3 が %2 個あり、使えるのは %4 個までです</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>%1 を使用できません: カスタムサイズのパラメーター %2 が寸法ではありません</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>%1 を使用できません: 既定の用紙「%2」の寸法は用紙としてありえません</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>文書「%1」は完全には「%2」に届きませんでした: もう一度印刷してください</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>設定「%1」を保存できません: %2 文字あり、保存できるのは %3 文字までです</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>「%1」のプリントサーバーが応答しません: 後でやり直すか、再起動するか、-h で別のサーバーを指定してください</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>「%2」のプリントサーバーからの %1 が %3 MB を超えています</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 が完全には届きませんでした</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>「%2」のプリントサーバーから %1 が完全には届きませんでした: もう一度試してください</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>別のプログラムがロックしています。もう一度試してください</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>大きすぎます</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1: 「%2」のプリントサーバーとの接続が切れました</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>ラベルまたはテープが送られません</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>別のラベルまたはテープが入っています</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>ラベルを取り出してください</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>プリンターは起動中です</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>プリンターはスリープ中です</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>カッターのカバーが開いています</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>カッターがありません</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>インクリボンがありません</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>廃インク容器がいっぱいです</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>%1 から一時停止中</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>ジョブ %1 を変更できません</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>ジョブ %1 をプリンターに移動できません</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>ジョブ %1 の保留を解除できません</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>オプション %1 に制御文字が含まれています。何も印刷されませんでした</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>文</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1。それでも届いている可能性があります。もう一度印刷する前に「%2」のジョブを確認してください</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1: プリントサーバー「%2」に許可されていません (%3)。管理している人に問い合わせてください</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>指定した枚数ごとと、最後のラベルの後でテープを切り離します。</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>最後のラベルの後でテープを切り離します。</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>印刷面だけに切れ目を入れます。ラベルは台紙でつながったまま、1 枚ずつはがせます。</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>布や熱収縮チューブなど、刃を傷めるテープ用です。プリンターは切りません。はさみで切ってください。</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>最後のラベルはプリンター内に残り、次のジョブが余白なしで続きます。最後のジョブの後はプリンターで送ってカットしてください。</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>裏から読むラベルやアイロンで貼るラベルのために、左右反転して印刷します。</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>印刷の前後の余白を省き、各ラベルを内容の長さにします。</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>手で切る位置の印を各ラベルの両端に印刷します。</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>テープを %1 mm 節約します。</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>テープを %1 mm 多く使います。</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>選ぶとテープを %1 mm 節約できます。</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>選ぶとテープを %1 mm 多く使います。</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>切片: %2 ではなく %1。</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>切片: 選ぶと %2 ではなく %1。</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>特殊テープは切らないため、選べません。</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>このサイズのラベルは位置が決まっているため、選べません。</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>カットしない</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>ラベルごと</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>ラベル %1 枚ごと</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>部ごと</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>最後のラベルの後</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>プリンターに任せる</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>カット</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>ドライバーの設定</translation>
    </message>
    <message>
        <source>Cut:</source>
        <translation>カット:</translation>
    </message>
</context>
<context>
    <name>cutline::DialogSession</name>
    <message>
        <source>Waiting for the print server...</source>
        <translation>プリントサーバーを待っています…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>プリントサーバーからまだ応答がありません。プリンターのあるコンピューターの電源が入っていて、接続されていますか？</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>設定の最後の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>元に戻した変更をやり直す</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>ドライバーの初期設定に戻す</translation>
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
        <translation>部数(&amp;C):</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>ページ(&amp;A):</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>用紙(&amp;R):</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>部数</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>すべて、または 1-3,5 のように</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>ページ</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>用紙</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>部単位で印刷</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>最後のページから</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>ラベルを 1 枚ずつ部数分繰り返すのではなく、文書全体を部ごとに印刷します</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>印刷するページ（例: 1-3,5）。空欄ならすべて</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>印刷しました。</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>ラベルを %1 枚印刷しました。</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>ラベルを 1 枚印刷しました。</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>ジョブをキャンセル(&amp;J)</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>閉じて印刷を続ける(&amp;L)</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>ジョブの進行状況</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>%1 に送信しています…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>ジョブ %1: %2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>ジョブ %1: %2 – %3</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>キャンセルしています…</translation>
    </message>
    <message>
        <source>Composing...</source>
        <translation>レイアウトしています…</translation>
    </message>
    <message>
        <source>Printing: label %1 of %2</source>
        <translation>印刷中: ラベル %1/%2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>プリントサーバーが再び応答したときにジョブ %1 をキャンセルします</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>ジョブ %1 は送信済みですが、その状態についてプリントサーバーから応答がありません</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>ジョブ %1 は送信されましたが、サーバーが状態を返さなくなりました: %2。まだ印刷される可能性があります。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>ジョブ %1 はプリンターでキャンセルされました</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 がジョブ %2 を中止しました</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation> (%1)</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2。プリンターの準備ができていることを確認して、もう一度印刷してください。</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>ジョブはキャンセルされました。</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutBar</name>
    <message>
        <source>Layout:</source>
        <translation>レイアウト:</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>変更</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>レイアウトを変更</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>ラベル上の文書のサイズ、回転、位置</translation>
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
        <translation>実際のサイズ</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>ラベルに収める</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>ラベルを満たす</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>倍率</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>中央</translation>
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
        <translation>用紙に従う</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>内容に従う</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>段落ごと</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>行ごと</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>文書のサイズに対する倍率</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>回転</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>長さ</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>長さ (ミリメートル)</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>ラベル</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>フォント</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>文字サイズ</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>サイズ:</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>回転:</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>位置:</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>長さ:</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>ラベル:</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>フォント:</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>文字サイズ:</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>その他のプリンターオプション</translation>
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
        <translation>ほかを変更(&amp;G)</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>最後の選択を残し、両立しないものを変更します</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>ほか%1件。</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>開く(&amp;O)…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>最近使ったドキュメント</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>開く</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>このプリンター専用のパネルはありません。オプションは「その他のプリンターオプション」にあります。</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>プリセット(&amp;E):</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>削除(&amp;D)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>プリセット</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>この設定をプリセットとして保存</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>選択したプリセットを削除</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>プリンターの設定</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>プリセットの削除</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>このプリンターのプリセット「%1」を削除しますか?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（変更あり）</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>名前を入力してください。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名前が長すぎます。</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>文字、数字、ハイフン、アンダースコアを使い、空白は入れないでください。</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>プリセットの保存</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>プリセットの名前(&amp;N):</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>プリセットの名前</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>同じ名前のプリセットを置き換えます。</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>プリセット「%1」を置き換えます。大文字と小文字は区別されません。</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>その他のプリンターオプション(&amp;M)</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>%1 の印刷</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>この文書は表示できません</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>ラベル %1: %2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>ジョブはキャンセルされました。</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>プリンターなし</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>%1 を開いています…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 は現在印刷していません (%2)。ジョブはプリンターの準備ができるまで待機します。</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 はジョブを受け付けていません。別のプリンターを選ぶか、このプリンターの担当者に問い合わせてください。</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>プリンターが開かれていません。</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>これは PPD ファイルで、プリンターではありません: 印刷はできません。</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>この文書は印刷できません。</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>文書は %1 のページです。%2 % に縮小されます</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>より適した用紙: %1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>この用紙を選択</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>ラベル %1 の端が切れます: %2 % に縮小できます</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>%1 枚のラベルの端が切れます: %2 % に縮小できます</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>文書を収まる大きさに縮小</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 ほか %2 件</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>文書を開くか、ここにドロップしてください</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>この文書はプレビューなしで、そのままプリンターに送られます</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>印刷する文書がありません: 文書を開くか、ここにドロップしてください。</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>ラベルを 1 枚印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>ラベルを %1 枚印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>もう一度印刷(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>ジョブはキャンセルされました。一部のラベルは印刷済みです。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>上の帯は、カットを含めてプリンターから出てくるとおりのジョブ全体です。下の行がそれを言葉で示します。

カットの項目をポイントするか F1 を押すと、その働きと変化が表示されます。

帯: プラスとマイナスで拡大縮小、0 で全体、Enter でラベルを大きく表示。Ctrl+Z で設定を元に戻します。</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>最後の切片のラベルは %2 枚中 %1 枚です。</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>%1 枚ごとにカット</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>すべての切片が同じになります</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>%1 部印刷</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>これをすべて印刷しますか?</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>ラベルを %1 枚印刷(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>プリントサーバーが応答しません。プリンターのあるコンピューターの電源が入っていて、接続されていますか？応答が戻れば印刷できます。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>応答なし</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>続けるとラベルが表示されます</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>続ける(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>プリントサーバーが応答しません。キャンセルしたジョブが届いている可能性があります。もう一度印刷する前に、サーバーのジョブを確認してください。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用できません</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>プリントサーバーを待っています…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 はプリントサーバーで設定し直されました。選択した設定はそのままです。</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 はプリントサーバーで設定し直され、次のものがなくなりました: %2。印刷する前に設定を確認してください。</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>プリンター(&amp;N):</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>プリンター</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD ファイル、プリンターなし</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>プリンターを選択</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>前のラベル</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>次のラベル</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>縮小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>全体</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>拡大</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>ラベル %1/%2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>ジョブ全体を表示</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>ラベルのプレビュー</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>このラベルだけを印刷</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>すべてのラベルを表示</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>大きく表示</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1（%2 部目）</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1、プリンターに残る</translation>
    </message>
</context>
<context>
    <name>cutline::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>概要</translation>
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
        <translation>ページ %1 を描画できません: %2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>「%1: %2」は「%3: %4」と同時に使用できません。</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1 どちらかを変更してください。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1: 特殊テープがオンのため、「%2」で送信されます。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1: 用紙「%3」の余白は変えられないため、「%2」で送信されます。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: 用紙「%3」は自動カットできないため、「%2」で送信されます。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1: 用紙「%3」は自動カットできませんが、「%2」で送信されます。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1: 「%2」で送信されますが、特殊テープがオンの間は何もカットされません。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1: 「%2」で送信されますが、画像には表示されません。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1: 「%2」で送信されます。</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>不明なオプション「%1」: このプリンターにそのオプションはありません</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>不明なオプション「%1」: %2 のことですか?</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>ページは小さい順に指定してください</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>パネル「%1」はこの設定での印刷に同意していません。設定を変更して、もう一度印刷してください</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>不明な用紙「%1」: このプリンターで使えるのは %2 です</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>このプリンターにオプション「%1」はありません</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>部数: %1 は 1 から %2 の範囲にありません</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>PPD ファイルだけでは印刷できません。プリンターを選んでください</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1: その文書はありません</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 に値「%2」はありません: 使える値は %3 です</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>「%1」はラベルには使えないため、省きます</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>「%1」を読み取れません: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>「%1」は無視されます: %2 kB 以下のプレーンテキストではありません</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1は無視されます: そこでは「%2」に意味がありません</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1は無視されます: オプション、選択肢、その効果が必要です</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>「%1」の%2行目</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>ページ範囲「%1」: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>「%1」はページではありません。1-3,5 のように入力してください</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>コンマの横にページがありません。1-3,5 のように入力してください</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 には最初のページがありません。1%1 と入力してください</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>ページは 1 から数えます</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 は順序が逆です。%2 と入力してください</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>文書は 1 ページだけです</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>文書は %1 ページで、%2 ページ目はありません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>「%1」は印刷されませんでした</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>「%1」はまだ印刷待ちです</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>「%1」はプリントサーバーで設定し直されました。設定を確認してから、もう一度印刷してください</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>ラベル 1 枚</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>ラベル %1 枚</translation>
    </message>
    <message>
        <source>1 piece</source>
        <translation>1 片</translation>
    </message>
    <message>
        <source>%1 pieces</source>
        <translation>%1 片</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1、%2</translation>
    </message>
    <message>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>長さは不明</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>ロール %1</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>テープ %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最大 %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>特殊テープ（カットしません）</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>最後にカット</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>ロールはカットしない</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>テープはカットしない</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>ラベルごとにカット</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>1 部ごとにカット</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>%1 枚ごとにカット</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>間をハーフカット</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>ラベルの脇をハーフカット</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>最後のラベルはプリンターに残る</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>カットマーク付き</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>余白なし</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>鏡像</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>先頭の余白：%1、切り離し</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>先頭の余白：%1、直後にハーフカット</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>先頭の余白：%1、切り離さない</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>切り離し</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>直後にハーフカット、切り離さない</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>切り離さない</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1（各 %2）</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1（このドライバーはカットについて何も示しません）</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1（カット位置はプリンターが決めます）</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>ラベルなし</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>最後のラベルの後の送り：%1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>各ラベルの両端のカットマーク：%1</translation>
    </message>
</context>
</TS>
