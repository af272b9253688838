<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>关于 Corvane</translation>
    </message>
    <message>
        <source>Keeps track of credit-card debt, and of the day it is gone</source>
        <translation>跟踪信用卡债务，直到还清的那一天</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>许可证</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>程序库</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>数据文件</translation>
    </message>
    <message>
        <source>Nothing on this system opens folders.</source>
        <translation>此系统上没有可打开文件夹的程序。</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>版本 %1</translation>
    </message>
</context>
<context>
    <name>AccessibleCardRow</name>
    <message>
        <source>, </source>
        <comment>between the parts of a text</comment>
        <translation>，</translation>
    </message>
</context>
<context>
    <name>AccessibleListItem</name>
    <message>
        <source>Select</source>
        <translation>选择</translation>
    </message>
    <message>
        <source>Selects the item</source>
        <translation>选择此项</translation>
    </message>
</context>
<context>
    <name>AmountField</name>
    <message>
        <source>Amounts here are in %1, not in %2.</source>
        <translation>此处的金额以 %1 计，不是 %2。</translation>
    </message>
    <message>
        <source>This can mean %1 or %2.</source>
        <translation>这可能是 %1，也可能是 %2。</translation>
    </message>
    <message>
        <source>An amount here has no decimals.</source>
        <translation>此处的金额没有小数。</translation>
    </message>
    <message numerus="yes">
        <source>An amount here has at most %n decimals.</source>
        <translation>
            <numerusform>此处的金额最多有 %n 位小数。</numerusform>
        </translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>您是指 %1 吗？</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1%2</translation>
    </message>
</context>
<context>
    <name>AnchoredBarButton</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what it does, and its key</comment>
        <translation>%1（%2）</translation>
    </message>
</context>
<context>
    <name>CVCard</name>
    <message>
        <source>Unnamed card</source>
        <translation>未命名卡片</translation>
    </message>
</context>
<context>
    <name>CVCardPopover</name>
    <message>
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>账号</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>币种</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CVCardPopoverController</name>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
</context>
<context>
    <name>CVCardTableCellView</name>
    <message>
        <source>Add Statement</source>
        <translation>添加账单</translation>
    </message>
    <message>
        <source>Add a statement of this card</source>
        <translation>添加此卡的账单</translation>
    </message>
</context>
<context>
    <name>CVCardTableView</name>
    <message>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
</context>
<context>
    <name>CVStatement</name>
    <message>
        <source>%1 ÷ %2 = %3%</source>
        <translation>%1 ÷ %2 = %3%</translation>
    </message>
    <message>
        <source>%1% APR</source>
        <translation>年利率 %1%</translation>
    </message>
</context>
<context>
    <name>CVStatementPopover</name>
    <message>
        <source>Date</source>
        <translation>日期</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>余额</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>额度</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>还款</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>年利率</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>CVStatementPopoverController</name>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>This was deleted meanwhile.</source>
        <translation>此项已被删除。</translation>
    </message>
    <message>
        <source>There is no date.</source>
        <translation>没有日期。</translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>这不是日期。</translation>
    </message>
    <message>
        <source>This date is still to come.</source>
        <translation>此日期还没有到。</translation>
    </message>
    <message>
        <source>%1 has a statement already, of %2.</source>
        <translation>%1 已有账单，日期为 %2。</translation>
    </message>
    <message>
        <source>The limit and the payment will become the balance, %1.</source>
        <translation>额度和还款将改为余额 %1。</translation>
    </message>
    <message>
        <source>The limit will be raised to the balance, %1.</source>
        <translation>额度将提高到余额 %1。</translation>
    </message>
    <message>
        <source>A payment of nothing will become the whole balance, %1.</source>
        <translation>还款为零时将改为全部余额 %1。</translation>
    </message>
</context>
<context>
    <name>CVTimelineHeaderView</name>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
</context>
<context>
    <name>CVTimelineTableView</name>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
</context>
<context>
    <name>Corvane_AppDelegate</name>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>退出时无法保存更改。仍要退出吗？</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>现在退出将丢失上次成功保存之后所做的更改</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>仍要退出</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>重试</translation>
    </message>
</context>
<context>
    <name>CurrencyChooser</name>
    <message>
        <source>Choose Currency</source>
        <translation>选择币种</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>没有这种货币。</translation>
    </message>
</context>
<context>
    <name>DebtForecast</name>
    <message>
        <source>never</source>
        <translation>永远还不清</translation>
    </message>
    <message>
        <source>Debt-free never</source>
        <translation>永远无法还清</translation>
    </message>
    <message>
        <source>Debt-free %1</source>
        <translation>还清债务：%1</translation>
    </message>
    <message numerus="yes">
        <source>%n m ⟶ %1</source>
        <extracomment>In the space of a card&apos;s row: the months until it is paid off, and the day when it is. The arrow points where reading goes on.</extracomment>
        <translation>
            <numerusform>%n 个月 ⟶ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DemoStore</name>
    <message>
        <source>Demo, nothing is kept – Corvane</source>
        <translation>演示，不会保留任何内容 – Corvane</translation>
    </message>
</context>
<context>
    <name>DialogPresenter</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>关闭提示</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Cards</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Zoom the timeline</source>
        <translation>缩放时间轴</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>缩放</translation>
    </message>
    <message>
        <source>&amp;Corvane</source>
        <translation>Corvane(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>视图(&amp;V)</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>关于 Corvane(&amp;A)</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>退出(&amp;Q)</translation>
    </message>
    <message>
        <source>&amp;New Card…</source>
        <translation>新建卡片(&amp;N)…</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>新建卡片</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>保存(&amp;S)</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>关闭(&amp;C)</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>删除(&amp;D)</translation>
    </message>
    <message>
        <source>Delete the selected statement or card</source>
        <translation>删除所选账单或卡片</translation>
    </message>
    <message>
        <source>Get &amp;Info</source>
        <translation>显示信息(&amp;I)</translation>
    </message>
    <message>
        <source>Information about the selection</source>
        <translation>所选内容的信息</translation>
    </message>
    <message>
        <source>&amp;Card List</source>
        <translation>卡片列表(&amp;C)</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>放大(&amp;I)</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>缩小(&amp;O)</translation>
    </message>
    <message>
        <source>Statement to the &amp;Left</source>
        <translation>左侧账单(&amp;L)</translation>
    </message>
    <message>
        <source>Statement to the &amp;Right</source>
        <translation>右侧账单(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Add Statement…</source>
        <translation>添加账单(&amp;A)…</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>检查更新(&amp;U)…</translation>
    </message>
    <message>
        <source>No statements yet</source>
        <translation>还没有账单</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>还没有卡片</translation>
    </message>
    <message>
        <source>Add your first card with the + below the list, then a statement each month, and see the day you will be debt-free.</source>
        <translation>点按列表下方的 + 添加第一张卡片，之后每月添加一份账单，就能看到还清债务的日子。</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>撤销“%1”(&amp;U)</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>重做(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>重做“%1”(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Delete Statement</source>
        <translation>删除账单(&amp;D)</translation>
    </message>
    <message>
        <source>&amp;Delete Card</source>
        <translation>删除卡片(&amp;D)</translation>
    </message>
    <message>
        <source>Delete Statement</source>
        <translation>删除账单</translation>
    </message>
    <message>
        <source>Delete Card</source>
        <translation>删除卡片</translation>
    </message>
    <message>
        <source>Save Again</source>
        <translation>重新保存</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message>
        <source>Add a card’s statement with the + in its row, and another each month.</source>
        <translation>点按卡片所在行的 + 添加账单，之后每月添加一份。</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>Two notices in one: what was deleted, and what was not kept.</extracomment>
        <translation>%1。%2</translation>
    </message>
</context>
<context>
    <name>NSError</name>
    <message>
        <source>The changes could not be saved.</source>
        <translation>无法保存更改。</translation>
    </message>
    <message>
        <source>A record is not valid.</source>
        <translation>有一条记录无效。</translation>
    </message>
    <message>
        <source>There is no data file.</source>
        <translation>没有数据文件。</translation>
    </message>
    <message>
        <source>The data file “%1” is in use by another program.</source>
        <translation>数据文件“%1”正被另一个程序使用。</translation>
    </message>
    <message>
        <source>The data file “%1” is damaged.</source>
        <translation>数据文件“%1”已损坏。</translation>
    </message>
    <message>
        <source>The file “%1” is not a Corvane data file.</source>
        <translation>文件“%1”不是 Corvane 的数据文件。</translation>
    </message>
    <message>
        <source>There is no room left to save to the data file “%1”.</source>
        <translation>没有剩余空间可保存到数据文件“%1”。</translation>
    </message>
    <message>
        <source>The data file “%1” cannot be written.</source>
        <translation>无法写入数据文件“%1”。</translation>
    </message>
    <message>
        <source>The data file “%1” could not be opened.</source>
        <translation>无法打开数据文件“%1”。</translation>
    </message>
    <message>
        <source>The data file “%1” could not be read or written.</source>
        <translation>无法读取或写入数据文件“%1”。</translation>
    </message>
    <message>
        <source>The data file “%1” was made by another version.</source>
        <translation>数据文件“%1”是由另一个版本创建的。</translation>
    </message>
    <message>
        <source>The data file “%1” could not be made.</source>
        <translation>无法创建数据文件“%1”。</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>它不是文件。</translation>
    </message>
    <message>
        <source>It is write-protected.</source>
        <translation>它是只读的。</translation>
    </message>
    <message>
        <source>Its folder is write-protected.</source>
        <translation>它所在的文件夹是只读的。</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>无法打开数据</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>准备数据文件时出错。</translation>
    </message>
    <message>
        <source>The file “%1” could not be locked for Corvane alone.</source>
        <translation>无法为 Corvane 独占锁定文件“%1”。</translation>
    </message>
    <message>
        <source>SQLite reports: %1.</source>
        <translation>SQLite 报告：%1。</translation>
    </message>
    <message>
        <source>the data file is in use by another program</source>
        <translation>数据文件正被另一个程序使用</translation>
    </message>
    <message>
        <source>the data file is damaged</source>
        <translation>数据文件已损坏</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>磁盘已满</translation>
    </message>
    <message>
        <source>the data file cannot be written</source>
        <translation>无法写入数据文件</translation>
    </message>
    <message>
        <source>the data file could not be opened</source>
        <translation>无法打开数据文件</translation>
    </message>
    <message>
        <source>the data file could not be written</source>
        <translation>写入数据文件失败</translation>
    </message>
    <message>
        <source>a record is not valid</source>
        <translation>有一条记录无效</translation>
    </message>
    <message>
        <source>there is no data file</source>
        <translation>没有数据文件</translation>
    </message>
    <message>
        <source>the file is not a Corvane data file</source>
        <translation>该文件不是 Corvane 的数据文件</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>Deleted %1</source>
        <translation>已删除 %1</translation>
    </message>
    <message>
        <source>Deleted %1 and its statement</source>
        <translation>已删除 %1 及其账单</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 and its %n statements</source>
        <translation>
            <numerusform>已删除 %1 及其 %n 份账单</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleted the statement of %1 for %2</source>
        <translation>已删除 %2 的 %1 账单</translation>
    </message>
    <message>
        <source>The new card was not added</source>
        <translation>未添加新卡片</translation>
    </message>
    <message>
        <source>The statement for %1 was not added</source>
        <translation>未添加 %1 的账单</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>已添加 %1</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>已更改 %1</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>未保存：%1</translation>
    </message>
    <message>
        <source>The statement is gone, so the editor was closed</source>
        <translation>账单已不存在，因此关闭了编辑窗口</translation>
    </message>
    <message>
        <source>The card is gone, so the editor was closed</source>
        <translation>卡片已不存在，因此关闭了编辑窗口</translation>
    </message>
    <message>
        <source>%1 was not changed</source>
        <translation>未更改 %1</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 was not changed</source>
        <translation>未更改 %2 的 %1 账单</translation>
    </message>
    <message>
        <source>The new card is not added yet</source>
        <translation>新卡片尚未添加</translation>
    </message>
    <message>
        <source>The statement for %1 is not added yet</source>
        <translation>%1 的账单尚未添加</translation>
    </message>
    <message>
        <source>%1 is not changed yet</source>
        <translation>%1 尚未更改</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 is not changed yet</source>
        <translation>%2 的 %1 账单尚未更改</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A number has at most %1 digits.</source>
        <translation>数字最多 %1 位。</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>这不是数字。</translation>
    </message>
</context>
<context>
    <name>OADatePicker</name>
    <message>
        <source>Previous Month</source>
        <translation>上个月</translation>
    </message>
    <message>
        <source>Back to Today</source>
        <translation>回到今天</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>下个月</translation>
    </message>
</context>
<context>
    <name>OADatePickerButton</name>
    <message>
        <source>Choose Date</source>
        <translation>选择日期</translation>
    </message>
</context>
<context>
    <name>OADatePickerTextField</name>
    <message>
        <source>Choose Date</source>
        <translation>选择日期</translation>
    </message>
</context>
<context>
    <name>OpenCardEditor</name>
    <message>
        <source>Card</source>
        <translation>卡片</translation>
    </message>
    <message>
        <source>Add Card</source>
        <translation>添加卡片</translation>
    </message>
    <message>
        <source>Edit Card</source>
        <translation>编辑卡片</translation>
    </message>
</context>
<context>
    <name>OpenStatementEditor</name>
    <message>
        <source>Statement</source>
        <translation>账单</translation>
    </message>
    <message>
        <source>Add Statement</source>
        <translation>添加账单</translation>
    </message>
    <message>
        <source>Edit Statement</source>
        <translation>编辑账单</translation>
    </message>
</context>
<context>
    <name>PackageTransaction</name>
    <message>
        <source>PackageKit, which knows the packages of this system, is not installed.</source>
        <translation>未安装 PackageKit，它掌握此系统的软件包信息。</translation>
    </message>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit 没有应答。</translation>
    </message>
    <message>
        <source>PackageKit cannot be asked: %1</source>
        <translation>无法询问 PackageKit：%1</translation>
    </message>
    <message>
        <source>PackageKit ended before it had an answer.</source>
        <translation>PackageKit 在得出答案之前就结束了。</translation>
    </message>
    <message>
        <source>PackageKit reports: %1</source>
        <translation>PackageKit 报告：%1</translation>
    </message>
    <message>
        <source>PackageKit gave up.</source>
        <translation>PackageKit 放弃了查询。</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>无法连接系统消息总线。</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;RTL&quot; where the language is written from right to left, else &quot;LTR&quot;. Qt asks for it when a translation is installed, and mirrors the layouts.</extracomment>
        <translation>LTR</translation>
    </message>
</context>
<context>
    <name>RelativeDateFormatter</name>
    <message>
        <source>st|nd|rd|th|of|the</source>
        <translation>日|号|的</translation>
    </message>
    <message>
        <source>today|now</source>
        <extracomment>Alternatives are separated by &apos;|&apos;; all of them are understood.</extracomment>
        <translation>今天|今日|现在</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>昨天|昨日</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>明天|明日</translation>
    </message>
    <message>
        <source>last %1|past %1</source>
        <extracomment>%1 is a weekday, or one of the words for week, month and year.</extracomment>
        <translation>上 %1|上个 %1|上一 %1|上一个 %1|去 %1</translation>
    </message>
    <message>
        <source>%1 %2 ago</source>
        <extracomment>%1 is a number or one of the words for one, %2 one of the words for days to years.</extracomment>
        <translation>%1 %2 前|%1 %2 以前|%1 %2 之前</translation>
    </message>
    <message>
        <source>a|an|one</source>
        <translation>一|一个</translation>
    </message>
    <message>
        <source>d|day|days</source>
        <extracomment>In the order of days, weeks, months and years: in all grammatical forms, and with a letter that stands for it in &quot;-2d&quot;.</extracomment>
        <translation>天|日</translation>
    </message>
    <message>
        <source>w|week|weeks</source>
        <translation>周|星期|个星期|礼拜|个礼拜</translation>
    </message>
    <message>
        <source>m|month|months</source>
        <translation>月|个月</translation>
    </message>
    <message>
        <source>y|year|years</source>
        <translation>年</translation>
    </message>
</context>
<context>
    <name>StatementText</name>
    <message>
        <source>%1, %2</source>
        <translation>%1，%2</translation>
    </message>
    <message>
        <source>Payment %1</source>
        <translation>还款 %1</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>PackageKit 没有应答。</translation>
    </message>
    <message>
        <source>Corvane was not installed as a package, so this system knows of no newer one.</source>
        <translation>Corvane 不是以软件包形式安装的，因此此系统不知道更新的版本。</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>无法连接系统消息总线。</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Check for Updates</source>
        <translation>检查更新</translation>
    </message>
    <message>
        <source>Looking for a newer version</source>
        <translation>正在查找更新的版本</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>正在查找更新的版本…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>A newer version of Corvane is available</source>
        <translation>有更新版本的 Corvane 可用</translation>
    </message>
    <message>
        <source>Version %1 is installed. Version %2 comes with the next update of your system.</source>
        <translation>已安装版本 %1。版本 %2 将随系统的下一次更新提供。</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane 已是最新版本</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system knows of.</source>
        <translation>版本 %1 是您的系统已知的最新版本。</translation>
    </message>
    <message>
        <source>Unable to look for a newer version</source>
        <translation>无法查找更新的版本</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1。%2</translation>
    </message>
</context>
</TS>
