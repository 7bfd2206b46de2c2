<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>base</name>
    <message>
        <source>%1: cannot keep the document: %2</source>
        <translation>%1：无法保存文档：%2</translation>
    </message>
</context>
<context>
    <name>composition</name>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>there is no document</source>
        <translation>没有文档</translation>
    </message>
    <message>
        <source>it was stopped</source>
        <translation>已停止</translation>
    </message>
    <message>
        <source>it is not of a kind that can be read: PDF, PostScript, PNG, JPEG, TIFF, WebP, SVG or text (UTF-8); &quot;-o raw&quot; sends it to the printer as it is</source>
        <translation>不是可以读取的类型：PDF、PostScript、PNG、JPEG、TIFF、WebP、SVG 或文本 (UTF-8)；“-o raw”可将其原样送往打印机</translation>
    </message>
    <message>
        <source>it is damaged; open it elsewhere and save it again</source>
        <translation>已损坏；请在其他程序中打开并重新保存</translation>
    </message>
    <message>
        <source>it is locked with a password; save it without one</source>
        <translation>受密码保护；请保存为不带密码的文件</translation>
    </message>
    <message>
        <source>it is locked against printing; ask its owner for another one</source>
        <translation>禁止打印；请向其所有者索取另一个文件</translation>
    </message>
    <message>
        <source>it has no pages</source>
        <translation>没有页面</translation>
    </message>
    <message>
        <source>it has too many pages; print it in smaller parts</source>
        <translation>页面过多；请分成较小的部分打印</translation>
    </message>
    <message>
        <source>it has a page of a size that no paper has; save it with another one</source>
        <translation>有一页的尺寸是任何纸张都没有的；请用其他尺寸保存</translation>
    </message>
    <message>
        <source>it needs more memory than a document may take; save it with smaller pictures, or in parts</source>
        <translation>所需内存超过文档允许的上限；请缩小图片或分成几部分保存</translation>
    </message>
    <message>
        <source>it takes too long to read; save it as a PDF elsewhere, or print it in parts</source>
        <translation>读取时间过长；请在其他程序中保存为 PDF，或分成几部分打印</translation>
    </message>
    <message>
        <source>it does not have all the pages that were chosen</source>
        <translation>没有所选的全部页面</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed</source>
        <translation>未安装读取此类文档的组件</translation>
    </message>
    <message>
        <source>its reader failed</source>
        <translation>其读取程序失败</translation>
    </message>
    <message>
        <source>it has %1 pages, which is too many; print it in smaller parts</source>
        <translation>有 %1 页，过多；请分成较小的部分打印</translation>
    </message>
    <message>
        <source>it is too large: %1</source>
        <translation>过大：%1</translation>
    </message>
    <message>
        <source>what reads documents of its kind is not installed: %1</source>
        <translation>未安装读取此类文档的组件：%1</translation>
    </message>
    <message>
        <source>its reader failed: %1</source>
        <translation>其读取程序失败：%1</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>无法读取文档“%1”：%2</translation>
    </message>
    <message>
        <source>cannot read one of the documents %1: %2</source>
        <translation>无法读取文档 %1 中的一个：%2</translation>
    </message>
    <message>
        <source>cannot start the program &quot;%1&quot;: %2</source>
        <translation>无法启动程序“%1”：%2</translation>
    </message>
    <message>
        <source>the pages cannot be drawn: %1</source>
        <translation>无法绘制页面：%1</translation>
    </message>
    <message>
        <source>there is no such page</source>
        <translation>没有这一页</translation>
    </message>
    <message>
        <source>its picture would be too large</source>
        <translation>其图像会过大</translation>
    </message>
    <message>
        <source>it takes too long</source>
        <translation>时间过长</translation>
    </message>
    <message>
        <source>page %1 cannot be drawn: %2</source>
        <translation>无法绘制第 %1 页：%2</translation>
    </message>
</context>
<context>
    <name>cups</name>
    <message>
        <source>label roll or tape is empty</source>
        <translation>标签卷或标签带已用完</translation>
    </message>
    <message>
        <source>labels or tape needed</source>
        <translation>需要标签或标签带</translation>
    </message>
    <message>
        <source>label or tape is jammed</source>
        <translation>标签或标签带卡住</translation>
    </message>
    <message>
        <source>labels or tape nearly used up</source>
        <translation>标签或标签带即将用完</translation>
    </message>
    <message>
        <source>cover is open</source>
        <translation>盖子已打开</translation>
    </message>
    <message>
        <source>door is open</source>
        <translation>门已打开</translation>
    </message>
    <message>
        <source>cover is not locked</source>
        <translation>盖子未锁好</translation>
    </message>
    <message>
        <source>cassette is missing</source>
        <translation>缺少带盒</translation>
    </message>
    <message>
        <source>printer is switched off or not connected</source>
        <translation>打印机已关闭或未连接</translation>
    </message>
    <message>
        <source>printer is switched off</source>
        <translation>打印机已关闭</translation>
    </message>
    <message>
        <source>printer does not answer</source>
        <translation>打印机没有响应</translation>
    </message>
    <message>
        <source>connecting to the printer</source>
        <translation>正在连接打印机</translation>
    </message>
    <message>
        <source>pausing after the current label</source>
        <translation>当前标签之后暂停</translation>
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
        <translation>请检查裁刀</translation>
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
        <translation>裁刀即将磨损</translation>
    </message>
    <message>
        <source>cutter is worn out</source>
        <translation>裁刀已磨损</translation>
    </message>
    <message>
        <source>ink ribbon is used up</source>
        <translation>色带已用完</translation>
    </message>
    <message>
        <source>ink ribbon is nearly used up</source>
        <translation>色带即将用完</translation>
    </message>
    <message>
        <source>print head is too hot</source>
        <translation>打印头过热</translation>
    </message>
    <message>
        <source>print server has no room for more jobs</source>
        <translation>打印服务器没有空间容纳更多任务</translation>
    </message>
    <message>
        <source>new jobs are held</source>
        <translation>新任务被保留</translation>
    </message>
    <message>
        <source>printer needs attention</source>
        <translation>请检查打印机</translation>
    </message>
    <message>
        <source>printer&apos;s driver is missing on the print server</source>
        <translation>打印服务器上缺少打印机驱动程序</translation>
    </message>
    <message>
        <source>printer&apos;s driver is not safely installed on the print server</source>
        <translation>打印机驱动程序在打印服务器上的安装不安全</translation>
    </message>
    <message>
        <source>remote printer is paused</source>
        <translation>远程打印机已暂停</translation>
    </message>
    <message>
        <source>waiting for the remote printer</source>
        <translation>正在等待远程打印机</translation>
    </message>
    <message>
        <source>waiting for the printer to finish</source>
        <translation>正在等待打印机完成</translation>
    </message>
    <message>
        <source>Ready</source>
        <translation>就绪</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>正在打印</translation>
    </message>
    <message>
        <source>Paused</source>
        <translation>已暂停</translation>
    </message>
    <message>
        <source>State unknown</source>
        <translation>状态未知</translation>
    </message>
    <message>
        <source>not accepting jobs</source>
        <translation>不接受任务</translation>
    </message>
    <message>
        <source>Not ready</source>
        <translation>未就绪</translation>
    </message>
    <message>
        <source>the printers cannot be listed</source>
        <translation>无法列出打印机</translation>
    </message>
    <message>
        <source>it has no printers</source>
        <translation>它没有打印机</translation>
    </message>
    <message>
        <source>it has %1</source>
        <translation>它有 %1</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;: %3</source>
        <translation>打印服务器“%1”没有打印机“%2”：%3</translation>
    </message>
    <message>
        <source>there is no default printer: name one with -d; the print server at &quot;%1&quot;: %2</source>
        <translation>没有默认打印机：请用 -d 指定；打印服务器“%1”：%2</translation>
    </message>
    <message>
        <source>there is no default printer (%1): name one with -d; the print server at &quot;%2&quot;: %3</source>
        <translation>没有默认打印机（%1）：请用 -d 指定；打印服务器“%2”：%3</translation>
    </message>
    <message>
        <source>none are saved</source>
        <translation>没有已保存的设置</translation>
    </message>
    <message>
        <source>saved are %1</source>
        <translation>已保存的有 %1</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no saved settings &quot;%2&quot;: %3</source>
        <translation>打印机“%1”没有已保存的设置“%2”：%3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is a printer, not saved settings</source>
        <translation>“%1”是打印机，不是已保存的设置</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; are the administrator&apos;s: only lpoptions as root removes them</source>
        <translation>设置“%1”属于管理员：只有以 root 运行的 lpoptions 才能删除</translation>
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
        <translation>失败</translation>
    </message>
    <message>
        <source>Printed</source>
        <translation>已打印</translation>
    </message>
    <message>
        <source>the printer is paused</source>
        <translation>打印机已暂停</translation>
    </message>
    <message>
        <source>the printer is partly paused</source>
        <translation>打印机部分暂停</translation>
    </message>
    <message>
        <source>the document is being received</source>
        <translation>正在接收文档</translation>
    </message>
    <message>
        <source>until it is released</source>
        <translation>直到被释放</translation>
    </message>
    <message>
        <source>the printer needs attention</source>
        <translation>打印机需要检查</translation>
    </message>
    <message>
        <source>the document cannot be read</source>
        <translation>无法读取文档</translation>
    </message>
    <message>
        <source>the printer cannot print this kind of document</source>
        <translation>打印机无法打印此类文档</translation>
    </message>
    <message>
        <source>the document cannot be printed</source>
        <translation>无法打印文档</translation>
    </message>
    <message>
        <source>by the operator</source>
        <translation>由操作员</translation>
    </message>
    <message>
        <source>at the printer</source>
        <translation>在打印机上</translation>
    </message>
    <message>
        <source>by the print server</source>
        <translation>由打印服务器</translation>
    </message>
    <message>
        <source>the state of the job %1 is not known</source>
        <translation>任务 %1 的状态未知</translation>
    </message>
    <message>
        <source>the print server told no state of the job %1</source>
        <translation>打印服务器没有给出任务 %1 的状态</translation>
    </message>
    <message>
        <source>it has none</source>
        <translation>它没有选项</translation>
    </message>
    <message>
        <source>its choices are %1</source>
        <translation>可选值为 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no paper size: write it as Custom.WIDTHxLENGTHmm</source>
        <translation>“%1”不是纸张尺寸：请写成 Custom.宽x长mm</translation>
    </message>
    <message>
        <source>the printer does not take paper of %1: it takes %2 to %3</source>
        <translation>打印机不支持 %1 的纸张：支持 %2 到 %3</translation>
    </message>
    <message>
        <source>the option %1 has no choice &quot;%2&quot;: %3</source>
        <translation>选项 %1 没有值“%2”：%3</translation>
    </message>
    <message>
        <source>cannot open %1: %2</source>
        <translation>无法打开%1：%2</translation>
    </message>
    <message>
        <source>the connection to the print server at &quot;%1&quot; was lost: try again</source>
        <translation>与打印服务器“%1”的连接已断开：请重试</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not hand out the PPD of &quot;%2&quot;: %3</source>
        <translation>打印服务器“%1”不提供“%2”的 PPD 文件：%3</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; has no printer &quot;%2&quot;</source>
        <translation>打印服务器“%1”没有打印机“%2”</translation>
    </message>
    <message>
        <source>the printer &quot;%1&quot; has no PPD on the print server at &quot;%2&quot;: choose a printer that was set up with its driver</source>
        <translation>打印机“%1”在打印服务器“%2”上没有 PPD 文件：请选择已安装驱动程序的打印机</translation>
    </message>
    <message>
        <source>the PPD &quot;%1&quot;</source>
        <translation>PPD 文件“%1”</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>它是文件夹</translation>
    </message>
    <message>
        <source>the PPD of &quot;%1&quot;</source>
        <translation>“%1”的 PPD 文件</translation>
    </message>
    <message>
        <source>no memory for %1</source>
        <translation>没有内存用于%1</translation>
    </message>
    <message>
        <source>cannot use %1: %2</source>
        <translation>无法使用%1：%2</translation>
    </message>
    <message>
        <source>cannot use %1: line %2: %3</source>
        <translation>无法使用%1：第 %2 行：%3</translation>
    </message>
    <message>
        <source>the name &quot;%1&quot; has %2 bytes, and a PPD&apos;s names have at most %3</source>
        <translation>名称“%1”有 %2 个字节，PPD 文件中的名称最多 %3 个字节</translation>
    </message>
    <message>
        <source>cannot read the document &quot;%1&quot;: %2</source>
        <translation>无法读取文档“%1”：%2</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>它是空的</translation>
    </message>
    <message>
        <source>printing was cancelled, nothing was printed</source>
        <translation>打印已取消，没有打印任何内容</translation>
    </message>
    <message>
        <source>it changed while it was sent; nothing was printed</source>
        <translation>它在发送过程中发生了更改；没有打印任何内容</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; could not be sent to &quot;%2&quot;</source>
        <translation>文档“%1”无法发送到“%2”</translation>
    </message>
    <message>
        <source>%1; the job %2 may still be there: remove it with cancel %2</source>
        <translation>%1；任务 %2 可能仍然存在：请用 cancel %2 删除</translation>
    </message>
    <message>
        <source>&quot;%1&quot; takes no job</source>
        <translation>“%1”不接受任务</translation>
    </message>
    <message>
        <source>the job %1 cannot be cancelled</source>
        <translation>无法取消任务 %1</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no printer&apos;s name</source>
        <translation>“%1”不是打印机名称</translation>
    </message>
    <message>
        <source>settings cannot be saved as &quot;%1&quot;: choose a name without spaces, &quot;/&quot; and &quot;#&quot;</source>
        <translation>设置无法保存为“%1”：请选择不含空格、“/”和“#”的名称</translation>
    </message>
    <message>
        <source>the option %1 cannot be saved: its value has a &quot;#&quot; or a line end</source>
        <translation>选项 %1 无法保存：其值包含“#”或换行</translation>
    </message>
    <message>
        <source>the options cannot be saved in &quot;%1&quot;: %2</source>
        <translation>选项无法保存到“%1”：%2</translation>
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
        <translation>“%1”上没有提供加密连接的打印服务器（%2）：请启动一个，或去掉 -E</translation>
    </message>
    <message>
        <source>no print server answers at &quot;%1&quot;: start it or name another with -h</source>
        <translation>“%1”上没有打印服务器响应：请启动它，或用 -h 指定另一个</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; says: %3</source>
        <translation>%1：打印服务器“%2”返回：%3</translation>
    </message>
    <message>
        <source>it is not a file</source>
        <translation>它不是文件</translation>
    </message>
    <message>
        <source>no printer &quot;%1&quot;</source>
        <translation>没有打印机“%1”</translation>
    </message>
    <message>
        <source>no default printer</source>
        <translation>没有默认打印机</translation>
    </message>
    <message>
        <source>the paper &quot;%1&quot; has measures that no paper has</source>
        <translation>纸张“%1”的尺寸是任何纸张都没有的</translation>
    </message>
    <message>
        <source>it is larger than %1 MB</source>
        <translation>超过 %1 MB</translation>
    </message>
    <message>
        <source>it is damaged or not whole</source>
        <translation>已损坏或不完整</translation>
    </message>
    <message>
        <source>no PPD of &quot;%1&quot;</source>
        <translation>没有“%1”的 PPD</translation>
    </message>
    <message>
        <source>cannot use %1: it has %2 %3, and at most %4 can be used</source>
        <translation>无法使用 %1：它有 %2 个 %3，最多可用 %4 个</translation>
    </message>
    <message>
        <source>cannot use %1: the parameter %2 of its custom page size is no measure</source>
        <translation>无法使用 %1：其自定义尺寸的参数 %2 不是尺寸</translation>
    </message>
    <message>
        <source>cannot use %1: its default paper &quot;%2&quot; has measures that no paper has</source>
        <translation>无法使用 %1：其默认纸张“%2”的尺寸是任何纸张都没有的</translation>
    </message>
    <message>
        <source>the document &quot;%1&quot; did not reach &quot;%2&quot; whole: print it again</source>
        <translation>文档“%1”未完整送达“%2”：请重新打印</translation>
    </message>
    <message>
        <source>the settings &quot;%1&quot; cannot be saved: they have %2 characters, and at most %3 can be saved</source>
        <translation>无法保存设置“%1”：共 %2 个字符，最多可保存 %3 个</translation>
    </message>
    <message>
        <source>the print server at &quot;%1&quot; does not answer: try again later, start it anew or name another with -h</source>
        <translation>“%1”上的打印服务器没有响应：请稍后再试、重新启动它，或用 -h 指定其他服务器</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>%1 from the print server at &quot;%2&quot; is larger than %3 MB</source>
        <translation>来自“%2”上打印服务器的 %1 超过 %3 MB</translation>
    </message>
    <message>
        <source>%1 did not arrive whole</source>
        <translation>%1 未完整到达</translation>
    </message>
    <message>
        <source>%1 did not arrive whole from the print server at &quot;%2&quot;: try again</source>
        <translation>%1 未从“%2”上的打印服务器完整到达：请重试</translation>
    </message>
    <message>
        <source>another program keeps it locked; try again</source>
        <translation>另一个程序将其锁定；请重试</translation>
    </message>
    <message>
        <source>it is too large</source>
        <translation>过大</translation>
    </message>
    <message>
        <source>%1: the connection to the print server at &quot;%2&quot; was lost</source>
        <translation>%1：与“%2”上打印服务器的连接已断开</translation>
    </message>
    <message>
        <source>label or tape is not fed</source>
        <translation>标签或色带未送入</translation>
    </message>
    <message>
        <source>another label or tape is in the printer</source>
        <translation>打印机中装的是其他标签或色带</translation>
    </message>
    <message>
        <source>labels have to be taken out</source>
        <translation>需要取出标签</translation>
    </message>
    <message>
        <source>printer is starting</source>
        <translation>打印机正在启动</translation>
    </message>
    <message>
        <source>printer is asleep</source>
        <translation>打印机处于休眠状态</translation>
    </message>
    <message>
        <source>cutter&apos;s cover is open</source>
        <translation>切刀盖已打开</translation>
    </message>
    <message>
        <source>cutter is missing</source>
        <translation>缺少切刀</translation>
    </message>
    <message>
        <source>ink ribbon is missing</source>
        <translation>缺少碳带</translation>
    </message>
    <message>
        <source>container for used ink is full</source>
        <translation>废墨盒已满</translation>
    </message>
    <message>
        <source>Paused since %1</source>
        <translation>自 %1 起暂停</translation>
    </message>
    <message>
        <source>the job %1 cannot be changed</source>
        <translation>无法更改任务 %1</translation>
    </message>
    <message>
        <source>the job %1 cannot be moved to its printer</source>
        <translation>无法将任务 %1 移到其打印机</translation>
    </message>
    <message>
        <source>the job %1 cannot be released</source>
        <translation>无法释放任务 %1</translation>
    </message>
    <message>
        <source>the option %1 has control characters; nothing was printed</source>
        <translation>选项 %1 含有控制字符；未打印任何内容</translation>
    </message>
    <message>
        <source>statements</source>
        <translation>语句</translation>
    </message>
    <message>
        <source>%1; it may have arrived all the same: look at the jobs of &quot;%2&quot; before you print it again</source>
        <translation>%1；它可能仍已送达：再次打印之前，请查看“%2”的任务</translation>
    </message>
    <message>
        <source>%1: the print server at &quot;%2&quot; does not let you (%3): ask whoever looks after it</source>
        <translation>%1：打印服务器“%2”不允许您这样做（%3）：请询问管理它的人</translation>
    </message>
</context>
<context>
    <name>cutline::ChoiceHints</name>
    <message>
        <source>The printer cuts the tape off after every so many labels, and behind the last one.</source>
        <translation>打印机每隔指定数量的标签以及在最后一张之后切断标签带。</translation>
    </message>
    <message>
        <source>The printer cuts the tape off behind the last label.</source>
        <translation>打印机在最后一张标签之后切断标签带。</translation>
    </message>
    <message>
        <source>The knife goes through the printed layer only: the labels stay together on their backing, and peel off one by one.</source>
        <translation>刀只切开印刷层：标签仍连在底纸上，可逐张揭下。</translation>
    </message>
    <message>
        <source>For tape that would harm the knife, such as fabric or heat-shrink tube: the printer never cuts it. Cut it with scissors.</source>
        <translation>用于会损坏刀片的标签带，如布料或热缩管：打印机从不切断它。请用剪刀剪断。</translation>
    </message>
    <message>
        <source>The last label stays in the printer, and the next job follows it without blank tape between them. Feed and cut at the printer after the last job.</source>
        <translation>最后一张标签留在打印机内，下一个作业紧接其后，中间没有空白带。最后一个作业之后，请在打印机上走带并切断。</translation>
    </message>
    <message>
        <source>Prints mirrored, for labels that are read from behind or ironed on.</source>
        <translation>镜像打印，用于从背面阅读或熨烫的标签。</translation>
    </message>
    <message>
        <source>Leaves out the blank space before and behind the print: each label is as long as what is on it.</source>
        <translation>省去打印内容前后的空白：每张标签与其内容等长。</translation>
    </message>
    <message>
        <source>Prints a mark at the ends of each label, where to cut by hand.</source>
        <translation>在每张标签的两端打印手工裁切标记。</translation>
    </message>
    <message>
        <source>Saves %1 mm of tape.</source>
        <translation>节省 %1 mm 标签带。</translation>
    </message>
    <message>
        <source>Takes %1 mm more tape.</source>
        <translation>多用 %1 mm 标签带。</translation>
    </message>
    <message>
        <source>Would save %1 mm of tape.</source>
        <translation>选中可节省 %1 mm 标签带。</translation>
    </message>
    <message>
        <source>Would take %1 mm more tape.</source>
        <translation>选中会多用 %1 mm 标签带。</translation>
    </message>
    <message>
        <source>Pieces: %1 instead of %2.</source>
        <translation>段数：%1，而不是 %2。</translation>
    </message>
    <message>
        <source>Pieces: would be %1 instead of %2.</source>
        <translation>段数：选中后为 %1，而不是 %2。</translation>
    </message>
    <message>
        <source>Special tape is never cut, so this cannot be chosen.</source>
        <translation>特殊标签带从不切断，因此无法选择。</translation>
    </message>
    <message>
        <source>Labels of this size lie at fixed places, so this cannot be chosen.</source>
        <translation>此尺寸的标签位置固定，因此无法选择。</translation>
    </message>
</context>
<context>
    <name>cutline::CuttingForm</name>
    <message>
        <source>Never</source>
        <translation>从不</translation>
    </message>
    <message>
        <source>After each label</source>
        <translation>每张标签之后</translation>
    </message>
    <message>
        <source>After every %1 labels</source>
        <translation>每 %1 张标签之后</translation>
    </message>
    <message>
        <source>After each copy</source>
        <translation>每份之后</translation>
    </message>
    <message>
        <source>After the last label</source>
        <translation>最后一张标签之后</translation>
    </message>
    <message>
        <source>As the printer decides</source>
        <translation>由打印机决定</translation>
    </message>
    <message>
        <source>Cutting</source>
        <translation>裁切</translation>
    </message>
    <message>
        <source>The driver&apos;s own choice</source>
        <translation>驱动程序自行选择</translation>
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
        <translation>正在等待打印服务器…</translation>
    </message>
    <message>
        <source>The print server does not answer yet. Is the computer that has the printer switched on and connected?</source>
        <translation>打印服务器尚未应答。连接打印机的计算机是否已开机并联网？</translation>
    </message>
</context>
<context>
    <name>cutline::HistoryBar</name>
    <message>
        <source>Undo the last change of a setting</source>
        <translation>撤销上一次设置更改</translation>
    </message>
    <message>
        <source>Redo what was undone</source>
        <translation>重做已撤销的更改</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>重置</translation>
    </message>
    <message>
        <source>Go back to the settings that the driver starts with</source>
        <translation>恢复驱动程序的初始设置</translation>
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
        <translation>份数(&amp;C)：</translation>
    </message>
    <message>
        <source>P&amp;ages:</source>
        <translation>页面(&amp;A)：</translation>
    </message>
    <message>
        <source>Pape&amp;r:</source>
        <translation>纸张(&amp;R)：</translation>
    </message>
    <message>
        <source>Copies</source>
        <translation>份数</translation>
    </message>
    <message>
        <source>All, or such as 1-3,5</source>
        <translation>全部，或例如 1-3,5</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>页面</translation>
    </message>
    <message>
        <source>Paper</source>
        <translation>纸张</translation>
    </message>
    <message>
        <source>Collate</source>
        <translation>逐份打印</translation>
    </message>
    <message>
        <source>Last page first</source>
        <translation>从最后一页开始</translation>
    </message>
    <message>
        <source>The whole document once a copy, instead of each label as often as there are copies</source>
        <translation>每份打印整个文档，而不是将每张标签重复打印</translation>
    </message>
    <message>
        <source>Which pages are printed, such as 1-3,5; all of them where it is empty</source>
        <translation>要打印的页面，例如 1-3,5；留空则全部打印</translation>
    </message>
</context>
<context>
    <name>cutline::JobOutcome</name>
    <message>
        <source>Printed.</source>
        <translation>已打印。</translation>
    </message>
    <message>
        <source>Printed %1 labels.</source>
        <translation>已打印 %1 张标签。</translation>
    </message>
    <message>
        <source>Printed 1 label.</source>
        <translation>已打印 1 张标签。</translation>
    </message>
</context>
<context>
    <name>cutline::JobProgress</name>
    <message>
        <source>Cancel &amp;job</source>
        <translation>取消任务(&amp;J)</translation>
    </message>
    <message>
        <source>Close and &amp;let it print</source>
        <translation>关闭并继续打印(&amp;L)</translation>
    </message>
    <message>
        <source>Progress of the job</source>
        <translation>任务进度</translation>
    </message>
    <message>
        <source>Sending to %1...</source>
        <translation>正在发送到 %1…</translation>
    </message>
    <message>
        <source>Job %1: %2</source>
        <translation>任务 %1：%2</translation>
    </message>
    <message>
        <source>Job %1: %2 - %3</source>
        <translation>任务 %1：%2 – %3</translation>
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
        <translation>正在打印：标签 %1/%2</translation>
    </message>
    <message>
        <source>Job %1 is cancelled when the print server answers again</source>
        <translation>打印服务器恢复应答后将取消作业 %1</translation>
    </message>
    <message>
        <source>Job %1 was sent; the print server does not answer how it is</source>
        <translation>作业 %1 已发送；打印服务器未应答其状态</translation>
    </message>
</context>
<context>
    <name>cutline::JobRunner</name>
    <message>
        <source>Job %1 was sent, but the server no longer tells its state: %2. It may still be printed.</source>
        <translation>任务 %1 已发送，但服务器不再报告其状态：%2。它可能仍会打印。</translation>
    </message>
    <message>
        <source>Job %1 was cancelled at the printer</source>
        <translation>任务 %1 已在打印机上取消</translation>
    </message>
    <message>
        <source>%1 gave job %2 up</source>
        <translation>%1 放弃了任务 %2</translation>
    </message>
    <message>
        <source> (%1)</source>
        <translation>（%1）</translation>
    </message>
    <message>
        <source>%1%2. See that the printer is ready, then print again.</source>
        <translation>%1%2。请确认打印机已就绪，然后重新打印。</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>任务已取消。</translation>
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
        <translation>更改</translation>
    </message>
    <message>
        <source>Change the layout</source>
        <translation>更改版面</translation>
    </message>
    <message>
        <source>Size, turn and place of the document on the label</source>
        <translation>文档在标签上的大小、旋转和位置</translation>
    </message>
</context>
<context>
    <name>cutline::LayoutForm</name>
    <message>
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
    <message>
        <source>Actual size</source>
        <translation>实际大小</translation>
    </message>
    <message>
        <source>Fit the label</source>
        <translation>适合标签</translation>
    </message>
    <message>
        <source>Fill the label</source>
        <translation>填满标签</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>百分比</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
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
        <translation>按纸张</translation>
    </message>
    <message>
        <source>Fixed</source>
        <translation>固定</translation>
    </message>
    <message>
        <source>Of the content</source>
        <translation>按内容</translation>
    </message>
    <message>
        <source>One a paragraph</source>
        <translation>每段一张</translation>
    </message>
    <message>
        <source>One a line</source>
        <translation>每行一张</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message>
        <source>Percent of the document&apos;s size</source>
        <translation>文档大小的百分比</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>旋转</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>位置</translation>
    </message>
    <message>
        <source>Length</source>
        <translation>长度</translation>
    </message>
    <message>
        <source>Length in millimetres</source>
        <translation>长度（毫米）</translation>
    </message>
    <message>
        <source>Labels</source>
        <translation>标签</translation>
    </message>
    <message>
        <source>Font</source>
        <translation>字体</translation>
    </message>
    <message>
        <source>Text size</source>
        <translation>字号</translation>
    </message>
    <message>
        <source>Size:</source>
        <translation>大小：</translation>
    </message>
    <message>
        <source>Turn:</source>
        <translation>旋转：</translation>
    </message>
    <message>
        <source>Place:</source>
        <translation>位置：</translation>
    </message>
    <message>
        <source>Length:</source>
        <translation>长度：</translation>
    </message>
    <message>
        <source>Labels:</source>
        <translation>标签：</translation>
    </message>
    <message>
        <source>Font:</source>
        <translation>字体：</translation>
    </message>
    <message>
        <source>Text size:</source>
        <translation>字号：</translation>
    </message>
</context>
<context>
    <name>cutline::MoreOptionsPanel</name>
    <message>
        <source>More printer options</source>
        <translation>更多打印机选项</translation>
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
        <translation>更改其他选项(&amp;G)</translation>
    </message>
    <message>
        <source>Keep the latest choice and change those that exclude it</source>
        <translation>保留最近的选择，更改与之冲突的选项</translation>
    </message>
    <message>
        <source>And %1 more.</source>
        <translation>还有 %1 条。</translation>
    </message>
</context>
<context>
    <name>cutline::OpenBar</name>
    <message>
        <source>&amp;Open...</source>
        <translation>打开(&amp;O)…</translation>
    </message>
    <message>
        <source>Recent documents</source>
        <translation>最近的文档</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>打开</translation>
    </message>
</context>
<context>
    <name>cutline::PanelFrame</name>
    <message>
        <source>This printer has no panel of its own. Its options are under &quot;More printer options&quot;.</source>
        <translation>此打印机没有自己的面板。其选项位于“更多打印机选项”中。</translation>
    </message>
</context>
<context>
    <name>cutline::PresetBar</name>
    <message>
        <source>Pr&amp;eset:</source>
        <translation>预设(&amp;E)：</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Preset</source>
        <translation>预设</translation>
    </message>
    <message>
        <source>Save these settings as a preset</source>
        <translation>将这些设置保存为预设</translation>
    </message>
    <message>
        <source>Delete the chosen preset</source>
        <translation>删除所选预设</translation>
    </message>
    <message>
        <source>Printer&apos;s own settings</source>
        <translation>打印机自身的设置</translation>
    </message>
    <message>
        <source>Delete preset</source>
        <translation>删除预设</translation>
    </message>
    <message>
        <source>Delete the preset &quot;%1&quot; of this printer?</source>
        <translation>要删除此打印机的预设“%1”吗？</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>%1 (changed)</source>
        <translation>%1（已更改）</translation>
    </message>
</context>
<context>
    <name>cutline::PresetNameDialog</name>
    <message>
        <source>Type a name.</source>
        <translation>请输入名称。</translation>
    </message>
    <message>
        <source>The name is too long.</source>
        <translation>名称太长。</translation>
    </message>
    <message>
        <source>Use letters, digits, dashes and underscores, without blanks.</source>
        <translation>请使用字母、数字、连字符和下划线，不要使用空格。</translation>
    </message>
    <message>
        <source>Save preset</source>
        <translation>保存预设</translation>
    </message>
    <message>
        <source>&amp;Name of the preset:</source>
        <translation>预设名称(&amp;N)：</translation>
    </message>
    <message>
        <source>Name of the preset</source>
        <translation>预设名称</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Replaces the preset of this name.</source>
        <translation>将替换同名预设。</translation>
    </message>
    <message>
        <source>Replaces the preset &quot;%1&quot;: capitals do not count.</source>
        <translation>将替换预设“%1”：不区分大小写。</translation>
    </message>
</context>
<context>
    <name>cutline::PrintDialog</name>
    <message>
        <source>&amp;More printer options</source>
        <translation>更多打印机选项(&amp;M)</translation>
    </message>
    <message>
        <source>Pr&amp;int</source>
        <translation>打印(&amp;P)</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>打印</translation>
    </message>
    <message>
        <source>Print %1</source>
        <translation>打印 %1</translation>
    </message>
    <message>
        <source>This document cannot be shown</source>
        <translation>无法显示此文档</translation>
    </message>
    <message>
        <source>Label %1: %2</source>
        <translation>标签 %1：%2</translation>
    </message>
    <message>
        <source>The job was cancelled.</source>
        <translation>任务已取消。</translation>
    </message>
    <message>
        <source>No printer</source>
        <translation>没有打印机</translation>
    </message>
    <message>
        <source>Opening %1...</source>
        <translation>正在打开 %1…</translation>
    </message>
    <message>
        <source>%1 does not print now (%2). A job waits until the printer is ready again.</source>
        <translation>%1 目前不打印（%2）。任务将等待打印机重新就绪。</translation>
    </message>
    <message>
        <source>%1 does not accept jobs. Choose another printer, or ask whoever looks after this one.</source>
        <translation>%1 不接受任务。请选择其他打印机，或询问负责此打印机的人。</translation>
    </message>
    <message>
        <source>No printer is open.</source>
        <translation>没有打开的打印机。</translation>
    </message>
    <message>
        <source>This is a PPD file, no printer: printing is switched off.</source>
        <translation>这是 PPD 文件，不是打印机：无法打印。</translation>
    </message>
    <message>
        <source>This document cannot be printed.</source>
        <translation>无法打印此文档。</translation>
    </message>
    <message>
        <source>The document has %1 pages; they are shrunk to %2 %</source>
        <translation>文档的页面为 %1；将缩小到 %2 %</translation>
    </message>
    <message>
        <source>Fits better: %1</source>
        <translation>更合适：%1</translation>
    </message>
    <message>
        <source>Use it</source>
        <translation>使用</translation>
    </message>
    <message>
        <source>Choose this paper</source>
        <translation>选择此纸张</translation>
    </message>
    <message>
        <source>Edges will be cut off on label %1: shrink to %2 %</source>
        <translation>标签 %1 的边缘会被裁掉：缩小到 %2 %</translation>
    </message>
    <message>
        <source>Edges will be cut off on %1 labels: shrink to %2 %</source>
        <translation>%1 张标签的边缘会被裁掉：缩小到 %2 %</translation>
    </message>
    <message>
        <source>Shrink</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Make the documents small enough</source>
        <translation>将文档缩到足够小</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 等另外 %2 个</translation>
    </message>
    <message>
        <source>Open or drop a document</source>
        <translation>打开文档或将其拖到此处</translation>
    </message>
    <message>
        <source>This document goes to the printer as it is, unseen</source>
        <translation>此文档将原样送往打印机，不经预览</translation>
    </message>
    <message>
        <source>There is no document to print: open one, or drop it here.</source>
        <translation>没有要打印的文档：请打开一个，或拖到此处。</translation>
    </message>
    <message>
        <source>Pr&amp;int 1 label</source>
        <translation>打印 1 张标签(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int %1 labels</source>
        <translation>打印 %1 张标签(&amp;P)</translation>
    </message>
    <message>
        <source>Pr&amp;int again</source>
        <translation>再次打印(&amp;P)</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>The job was cancelled; some of its labels are printed.</source>
        <translation>任务已取消；部分标签已打印。</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>摘要</translation>
    </message>
    <message>
        <source>The strip shows the whole job as it leaves the printer, with what the knife does to it; the line below says it in words.

Point at a cut option, or press F1 on it, to read what it does and what it would change.

Strip: plus and minus zoom, 0 fits, Enter shows a label large. Ctrl+Z undoes a setting.</source>
        <translation>长条显示整个作业从打印机出来时的样子，包括刀的动作；下面一行用文字说明。

指向某个裁切选项，或在其上按 F1，可查看其作用及会带来的变化。

长条：加号和减号缩放，0 适合窗口，Enter 放大显示标签。Ctrl+Z 撤销设置。</translation>
    </message>
    <message>
        <source>The last piece has %1 of %2 labels.</source>
        <translation>最后一段只有 %1/%2 张标签。</translation>
    </message>
    <message>
        <source>Cut every %1</source>
        <translation>每 %1 张裁切</translation>
    </message>
    <message>
        <source>All pieces are alike then</source>
        <translation>这样每段都相同</translation>
    </message>
    <message>
        <source>Print %1 copies</source>
        <translation>打印 %1 份</translation>
    </message>
    <message>
        <source>Print all of this?</source>
        <translation>全部打印吗？</translation>
    </message>
    <message>
        <source>&amp;Print %1 labels</source>
        <translation>打印 %1 张标签(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer. Is the computer that has the printer switched on and connected? Printing goes on when it answers again.</source>
        <translation>打印服务器没有应答。连接打印机的计算机是否已开机并联网？恢复应答后即可打印。</translation>
    </message>
    <message>
        <source>No answer</source>
        <translation>无应答</translation>
    </message>
    <message>
        <source>The labels are shown when you continue</source>
        <translation>继续后将显示标签</translation>
    </message>
    <message>
        <source>Cont&amp;inue</source>
        <translation>继续(&amp;P)</translation>
    </message>
    <message>
        <source>The print server does not answer, and may have the job that you cancelled. Look at its jobs before you print again.</source>
        <translation>打印服务器没有应答，可能已收到您取消的作业。再次打印之前，请查看其作业。</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>不可用</translation>
    </message>
    <message>
        <source>Waiting for the print server...</source>
        <translation>正在等待打印服务器…</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server; your settings were kept.</source>
        <translation>%1 已在打印服务器上重新设置；您的设置已保留。</translation>
    </message>
    <message>
        <source>%1 was set up anew on the print server and no longer has: %2. Look at the settings before you print.</source>
        <translation>%1 已在打印服务器上重新设置，不再有：%2。打印之前请查看设置。</translation>
    </message>
</context>
<context>
    <name>cutline::PrinterBar</name>
    <message>
        <source>&amp;Printer:</source>
        <translation>打印机(&amp;N)：</translation>
    </message>
    <message>
        <source>Printer</source>
        <translation>打印机</translation>
    </message>
    <message>
        <source>PPD file, no printer</source>
        <translation>PPD 文件，没有打印机</translation>
    </message>
    <message>
        <source>Choose a printer</source>
        <translation>选择打印机</translation>
    </message>
</context>
<context>
    <name>cutline::StripPane</name>
    <message>
        <source>Previous label</source>
        <translation>上一张标签</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>下一张标签</translation>
    </message>
    <message>
        <source>Zoom out</source>
        <translation>缩小</translation>
    </message>
    <message>
        <source>Fit</source>
        <translation>适合</translation>
    </message>
    <message>
        <source>Zoom in</source>
        <translation>放大</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>标签 %1/%2</translation>
    </message>
    <message>
        <source>Fit the job into the view</source>
        <translation>使整个作业适合视图</translation>
    </message>
</context>
<context>
    <name>cutline::StripView</name>
    <message>
        <source>Preview of the labels</source>
        <translation>标签预览</translation>
    </message>
    <message>
        <source>Print this label only</source>
        <translation>仅打印此标签</translation>
    </message>
    <message>
        <source>Show all labels</source>
        <translation>显示全部标签</translation>
    </message>
    <message>
        <source>Show large</source>
        <translation>放大显示</translation>
    </message>
    <message>
        <source>%1 (copy %2)</source>
        <translation>%1（第 %2 份）</translation>
    </message>
    <message>
        <source>%1, stays in the printer</source>
        <translation>%1，留在打印机中</translation>
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
        <translation>无法绘制第 %1 页：%2</translation>
    </message>
</context>
<context>
    <name>host</name>
    <message>
        <source>&quot;%1: %2&quot; cannot be used together with &quot;%3: %4&quot;.</source>
        <translation>“%1：%2”不能与“%3：%4”同时使用。</translation>
    </message>
    <message>
        <source>%1 Change one of them.</source>
        <translation>%1请更改其中一项。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because special tape is on.</source>
        <translation>%1：因为特殊标签带已开启，将以“%2”发送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; keeps its blank space.</source>
        <translation>%1：因为纸张“%3”保留空白，将以“%2”发送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; because the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1：因为纸张“%3”不得自动裁切，将以“%2”发送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot; although the paper &quot;%3&quot; must not be cut automatically.</source>
        <translation>%1：虽然纸张“%3”不得自动裁切，仍将以“%2”发送。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, but nothing is cut while special tape is on.</source>
        <translation>%1：将以“%2”发送，但特殊标签带开启时不会裁切。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;, which the picture does not show.</source>
        <translation>%1：将以“%2”发送，但图片中不显示。</translation>
    </message>
    <message>
        <source>%1: sent as &quot;%2&quot;.</source>
        <translation>%1：将以“%2”发送。</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; this printer has no such option</source>
        <translation>未知选项“%1”；此打印机没有这样的选项</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;; is it %2?</source>
        <translation>未知选项“%1”；是不是 %2？</translation>
    </message>
    <message>
        <source>pages must be in ascending order</source>
        <translation>页码必须按升序排列</translation>
    </message>
    <message>
        <source>the panel &quot;%1&quot; does not agree to print with these settings; change them and print again</source>
        <translation>面板“%1”不同意用这些设置打印；请更改设置后重新打印</translation>
    </message>
    <message>
        <source>unknown paper &quot;%1&quot;; this printer has %2</source>
        <translation>未知纸张“%1”；此打印机有 %2</translation>
    </message>
    <message>
        <source>this printer has no option &quot;%1&quot;</source>
        <translation>此打印机没有选项“%1”</translation>
    </message>
    <message>
        <source>copies: %1 is not between 1 and %2</source>
        <translation>份数：%1 不在 1 到 %2 之间</translation>
    </message>
    <message>
        <source>a PPD file alone cannot print; choose a printer</source>
        <translation>仅有 PPD 文件无法打印；请选择打印机</translation>
    </message>
    <message>
        <source>%1: there is no such document</source>
        <translation>%1：没有这个文档</translation>
    </message>
    <message>
        <source>%1 has no value &quot;%2&quot;: its values are %3</source>
        <translation>%1 没有值“%2”：可用的值为 %3</translation>
    </message>
    <message>
        <source>&quot;%1&quot; does not go with labels: left out</source>
        <translation>“%1”不适用于标签：已省略</translation>
    </message>
    <message>
        <source>&quot;%1&quot; cannot be read: %2</source>
        <translation>无法读取“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is left out: it is no plain text of at most %2 kB</source>
        <translation>已忽略“%1”：它不是不超过 %2 kB 的纯文本</translation>
    </message>
    <message>
        <source>%1 is left out: &quot;%2&quot; means nothing there</source>
        <translation>%1已忽略：“%2”在此处没有意义</translation>
    </message>
    <message>
        <source>%1 is left out: it needs an option, a choice, and what comes of it</source>
        <translation>%1已忽略：需要选项、选择及其效果</translation>
    </message>
    <message>
        <source>&quot;%1&quot;, line %2,</source>
        <translation>“%1”第 %2 行</translation>
    </message>
    <message>
        <source>page range &quot;%1&quot;: %2</source>
        <translation>页面范围“%1”：%2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no page; write pages such as 1-3,5</source>
        <translation>“%1”不是页码；请按 1-3,5 的形式书写</translation>
    </message>
    <message>
        <source>a page is missing beside a comma; write pages such as 1-3,5</source>
        <translation>逗号旁缺少页码；请按 1-3,5 的形式书写</translation>
    </message>
    <message>
        <source>%1 has no first page: write 1%1</source>
        <translation>%1 没有起始页：请写 1%1</translation>
    </message>
    <message>
        <source>pages are counted from 1</source>
        <translation>页码从 1 开始</translation>
    </message>
    <message>
        <source>%1 runs backwards: write %2</source>
        <translation>%1 顺序颠倒：请写 %2</translation>
    </message>
    <message>
        <source>the document has 1 page only</source>
        <translation>文档只有 1 页</translation>
    </message>
    <message>
        <source>the document has %1 pages, and no page %2</source>
        <translation>文档共 %1 页，没有第 %2 页</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was not printed</source>
        <translation>“%1”未打印</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is still waiting to be printed</source>
        <translation>“%1”仍在等待打印</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was set up anew on the print server: look at the settings, then print again</source>
        <translation>“%1”已在打印服务器上重新设置：请查看设置，然后再次打印</translation>
    </message>
</context>
<context>
    <name>strip</name>
    <message>
        <source>1 label</source>
        <translation>1 张标签</translation>
    </message>
    <message>
        <source>%1 labels</source>
        <translation>%1 张标签</translation>
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
        <translation>%1 毫米</translation>
    </message>
    <message>
        <source>length not known</source>
        <translation>长度未知</translation>
    </message>
    <message>
        <source>%1 of the roll</source>
        <translation>卷纸 %1</translation>
    </message>
    <message>
        <source>%1 of tape</source>
        <translation>标签带 %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>最多 %1</translation>
    </message>
    <message>
        <source>special tape, which is never cut</source>
        <translation>特殊标签带，从不裁切</translation>
    </message>
    <message>
        <source>cut at the end</source>
        <translation>在末尾裁切</translation>
    </message>
    <message>
        <source>roll not cut</source>
        <translation>卷纸不裁切</translation>
    </message>
    <message>
        <source>tape not cut</source>
        <translation>标签带不裁切</translation>
    </message>
    <message>
        <source>cut after each label</source>
        <translation>每张标签后裁切</translation>
    </message>
    <message>
        <source>cut after each copy</source>
        <translation>每份后裁切</translation>
    </message>
    <message>
        <source>cut every %1</source>
        <translation>每 %1 张裁切</translation>
    </message>
    <message>
        <source>half cut between</source>
        <translation>之间半切</translation>
    </message>
    <message>
        <source>half cut beside the label</source>
        <translation>标签旁半切</translation>
    </message>
    <message>
        <source>the last label stays in the printer</source>
        <translation>最后一张标签留在打印机中</translation>
    </message>
    <message>
        <source>with cut marks</source>
        <translation>带裁切标记</translation>
    </message>
    <message>
        <source>blank space removed</source>
        <translation>去除空白</translation>
    </message>
    <message>
        <source>mirrored</source>
        <translation>镜像</translation>
    </message>
    <message>
        <source>leader: %1, cut off</source>
        <translation>前端空白：%1，切断</translation>
    </message>
    <message>
        <source>leader: %1, half cut behind it</source>
        <translation>前端空白：%1，其后半切</translation>
    </message>
    <message>
        <source>leader: %1, not cut off</source>
        <translation>前端空白：%1，不切断</translation>
    </message>
    <message>
        <source>cut off</source>
        <translation>切断</translation>
    </message>
    <message>
        <source>half cut behind it, not cut off</source>
        <translation>其后半切，不切断</translation>
    </message>
    <message>
        <source>not cut off</source>
        <translation>不切断</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1，每段 %2</translation>
    </message>
    <message>
        <source>%1; this driver says nothing of cutting</source>
        <translation>%1；此驱动程序未说明裁切</translation>
    </message>
    <message>
        <source>%1; the printer decides where to cut</source>
        <translation>%1；裁切位置由打印机决定</translation>
    </message>
    <message>
        <source>no labels</source>
        <translation>没有标签</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1：%2</translation>
    </message>
    <message>
        <source>feed behind the last label: %1</source>
        <translation>最后一张标签后的走带：%1</translation>
    </message>
    <message>
        <source>cut marks at both ends of each label: %1</source>
        <translation>每张标签两端的裁切标记：%1</translation>
    </message>
</context>
</TS>
