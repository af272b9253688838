<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>AboutBox</name>
    <message>
        <source>About Corvane</source>
        <translation>حول Corvane</translation>
    </message>
    <message>
        <source>Keeps track of credit-card debt, and of the day it is gone</source>
        <translation>يتابع ديون بطاقاتك الائتمانية حتى اليوم الذي تتخلص فيه منها</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>الرخصة</translation>
    </message>
    <message>
        <source>Libraries</source>
        <translation>المكتبات</translation>
    </message>
    <message>
        <source>Data file</source>
        <translation>ملف البيانات</translation>
    </message>
    <message>
        <source>Nothing on this system opens folders.</source>
        <translation>لا يوجد في هذا النظام ما يفتح المجلدات.</translation>
    </message>
    <message>
        <source>Open Folder</source>
        <translation>فتح المجلد</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>الإصدار %1</translation>
    </message>
</context>
<context>
    <name>AccessibleCardRow</name>
    <message>
        <source>, </source>
        <comment>between the parts of a text</comment>
        <translation>، </translation>
    </message>
</context>
<context>
    <name>AccessibleListItem</name>
    <message>
        <source>Select</source>
        <translation>تحديد</translation>
    </message>
    <message>
        <source>Selects the item</source>
        <translation>يحدد العنصر</translation>
    </message>
</context>
<context>
    <name>AmountField</name>
    <message>
        <source>Amounts here are in %1, not in %2.</source>
        <translation>المبالغ هنا بعملة ⁨%1⁩ وليست بعملة ⁨%2⁩.</translation>
    </message>
    <message>
        <source>This can mean %1 or %2.</source>
        <translation>قد يعني هذا ⁨%1⁩ أو ⁨%2⁩.</translation>
    </message>
    <message>
        <source>An amount here has no decimals.</source>
        <translation>المبلغ هنا بلا منازل عشرية.</translation>
    </message>
    <message numerus="yes">
        <source>An amount here has at most %n decimals.</source>
        <translation>
            <numerusform>للمبلغ هنا %n منزلة عشرية على الأكثر.</numerusform>
            <numerusform>للمبلغ هنا منزلة عشرية واحدة على الأكثر.</numerusform>
            <numerusform>للمبلغ هنا منزلتان عشريتان على الأكثر.</numerusform>
            <numerusform>للمبلغ هنا %n منازل عشرية على الأكثر.</numerusform>
            <numerusform>للمبلغ هنا %n منزلة عشرية على الأكثر.</numerusform>
            <numerusform>للمبلغ هنا %n منزلة عشرية على الأكثر.</numerusform>
        </translation>
    </message>
    <message>
        <source>Did you mean %1?</source>
        <translation>هل تقصد ⁨%1⁩؟</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <comment>two sentences</comment>
        <translation>%1 %2</translation>
    </message>
</context>
<context>
    <name>AnchoredBarButton</name>
    <message>
        <source>%1 (%2)</source>
        <comment>what it does, and its key</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>CVCard</name>
    <message>
        <source>Unnamed card</source>
        <translation>بطاقة بلا اسم</translation>
    </message>
</context>
<context>
    <name>CVCardPopover</name>
    <message>
        <source>Name</source>
        <translation>الاسم</translation>
    </message>
    <message>
        <source>Account</source>
        <translation>الحساب</translation>
    </message>
    <message>
        <source>Currency</source>
        <translation>العملة</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>CVCardPopoverController</name>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
</context>
<context>
    <name>CVCardTableCellView</name>
    <message>
        <source>Add Statement</source>
        <translation>إضافة كشف</translation>
    </message>
    <message>
        <source>Add a statement of this card</source>
        <translation>إضافة كشف لهذه البطاقة</translation>
    </message>
</context>
<context>
    <name>CVCardTableView</name>
    <message>
        <source>Cards</source>
        <translation>البطاقات</translation>
    </message>
</context>
<context>
    <name>CVStatement</name>
    <message>
        <source>%1 ÷ %2 = %3%</source>
        <translation>⁨%1⁩ ÷ ⁨%2⁩ = ⁦%3%⁩</translation>
    </message>
    <message>
        <source>%1% APR</source>
        <translation>فائدة سنوية ⁦%1%⁩</translation>
    </message>
</context>
<context>
    <name>CVStatementPopover</name>
    <message>
        <source>Date</source>
        <translation>التاريخ</translation>
    </message>
    <message>
        <source>Balance</source>
        <translation>الرصيد</translation>
    </message>
    <message>
        <source>Limit</source>
        <translation>الحد الائتماني</translation>
    </message>
    <message>
        <source>Payment</source>
        <translation>الدفعة</translation>
    </message>
    <message>
        <source>APR</source>
        <translation>الفائدة السنوية</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>CVStatementPopoverController</name>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>إضافة</translation>
    </message>
    <message>
        <source>This was deleted meanwhile.</source>
        <translation>حُذف هذا في أثناء ذلك.</translation>
    </message>
    <message>
        <source>There is no date.</source>
        <translation>لا يوجد تاريخ.</translation>
    </message>
    <message>
        <source>This is not a date.</source>
        <translation>هذا ليس تاريخًا.</translation>
    </message>
    <message>
        <source>This date is still to come.</source>
        <translation>هذا التاريخ لم يأت بعد.</translation>
    </message>
    <message>
        <source>%1 has a statement already, of %2.</source>
        <translation>لشهر ⁨%1⁩ كشف بالفعل، بتاريخ ⁨%2⁩.</translation>
    </message>
    <message>
        <source>The limit and the payment will become the balance, %1.</source>
        <translation>سيصبح الحد الائتماني والدفعة مساويين للرصيد، ⁨%1⁩.</translation>
    </message>
    <message>
        <source>The limit will be raised to the balance, %1.</source>
        <translation>سيُرفع الحد الائتماني إلى الرصيد، ⁨%1⁩.</translation>
    </message>
    <message>
        <source>A payment of nothing will become the whole balance, %1.</source>
        <translation>الدفعة الصفرية ستصبح الرصيد كله، ⁨%1⁩.</translation>
    </message>
</context>
<context>
    <name>CVTimelineHeaderView</name>
    <message>
        <source>Timeline</source>
        <translation>الخط الزمني</translation>
    </message>
</context>
<context>
    <name>CVTimelineTableView</name>
    <message>
        <source>Timeline</source>
        <translation>الخط الزمني</translation>
    </message>
</context>
<context>
    <name>Corvane_AppDelegate</name>
    <message>
        <source>Could not save changes while quitting. Quit anyway?</source>
        <translation>تعذّر حفظ التغييرات عند الإنهاء. هل تريد الإنهاء على أي حال؟</translation>
    </message>
    <message>
        <source>Quitting now will lose any changes you have made since the last successful save</source>
        <translation>إذا أنهيت البرنامج الآن فستفقد كل التغييرات منذ آخر حفظ ناجح</translation>
    </message>
    <message>
        <source>Quit anyway</source>
        <translation>إنهاء على أي حال</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Try Again</source>
        <translation>إعادة المحاولة</translation>
    </message>
</context>
<context>
    <name>CurrencyChooser</name>
    <message>
        <source>Choose Currency</source>
        <translation>اختيار العملة</translation>
    </message>
    <message>
        <source>There is no such currency.</source>
        <translation>لا توجد عملة بهذا الاسم.</translation>
    </message>
</context>
<context>
    <name>DebtForecast</name>
    <message>
        <source>never</source>
        <translation>أبدًا</translation>
    </message>
    <message>
        <source>Debt-free never</source>
        <translation>لا خلاص من الديون</translation>
    </message>
    <message>
        <source>Debt-free %1</source>
        <translation>الخلاص من الديون: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n m ⟶ %1</source>
        <extracomment>In the space of a card&apos;s row: the months until it is paid off, and the day when it is. The arrow points where reading goes on.</extracomment>
        <translation>
            <numerusform>%n شهر ⟵ %1</numerusform>
            <numerusform>شهر واحد ⟵ %1</numerusform>
            <numerusform>شهران ⟵ %1</numerusform>
            <numerusform>%n أشهر ⟵ %1</numerusform>
            <numerusform>%n شهرًا ⟵ %1</numerusform>
            <numerusform>%n شهر ⟵ %1</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>DemoStore</name>
    <message>
        <source>Demo, nothing is kept – Corvane</source>
        <translation>عرض توضيحي، لا يُحفظ شيء – Corvane</translation>
    </message>
</context>
<context>
    <name>DialogPresenter</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
</context>
<context>
    <name>DismissButton</name>
    <message>
        <source>Dismiss</source>
        <translation>إخفاء</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Cards</source>
        <translation>البطاقات</translation>
    </message>
    <message>
        <source>Zoom the timeline</source>
        <translation>تكبير الخط الزمني أو تصغيره</translation>
    </message>
    <message>
        <source>Zoom</source>
        <translation>التكبير</translation>
    </message>
    <message>
        <source>&amp;Corvane</source>
        <translation>&amp;Corvane</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>ت&amp;حرير</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;عرض</translation>
    </message>
    <message>
        <source>&amp;About Corvane</source>
        <translation>&amp;حول Corvane</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>إ&amp;نهاء</translation>
    </message>
    <message>
        <source>&amp;New Card…</source>
        <translation>بطاقة &amp;جديدة…</translation>
    </message>
    <message>
        <source>New card</source>
        <translation>بطاقة جديدة</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;حفظ</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>إ&amp;غلاق</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;حذف</translation>
    </message>
    <message>
        <source>Delete the selected statement or card</source>
        <translation>حذف الكشف المحدد أو البطاقة المحددة</translation>
    </message>
    <message>
        <source>Get &amp;Info</source>
        <translation>&amp;معلومات</translation>
    </message>
    <message>
        <source>Information about the selection</source>
        <translation>معلومات عن التحديد</translation>
    </message>
    <message>
        <source>&amp;Card List</source>
        <translation>&amp;قائمة البطاقات</translation>
    </message>
    <message>
        <source>Zoom &amp;In</source>
        <translation>ت&amp;كبير</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>ت&amp;صغير</translation>
    </message>
    <message>
        <source>Statement to the &amp;Left</source>
        <translation>الكشف على ال&amp;يسار</translation>
    </message>
    <message>
        <source>Statement to the &amp;Right</source>
        <translation>الكشف على اليمي&amp;ن</translation>
    </message>
    <message>
        <source>&amp;Add Statement…</source>
        <translation>إضافة &amp;كشف…</translation>
    </message>
</context>
<context>
    <name>MainWindowController</name>
    <message>
        <source>Check for &amp;Updates…</source>
        <translation>ال&amp;بحث عن تحديثات…</translation>
    </message>
    <message>
        <source>No statements yet</source>
        <translation>لا توجد كشوف بعد</translation>
    </message>
    <message>
        <source>No cards yet</source>
        <translation>لا توجد بطاقات بعد</translation>
    </message>
    <message>
        <source>Add your first card with the + below the list, then a statement each month, and see the day you will be debt-free.</source>
        <translation>أضف بطاقتك الأولى بزر + أسفل القائمة، ثم كشفًا كل شهر، وسترى اليوم الذي تتخلص فيه من ديونك.</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;تراجع</translation>
    </message>
    <message>
        <source>&amp;Undo %1</source>
        <translation>&amp;تراجع عن: %1</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>إ&amp;عادة</translation>
    </message>
    <message>
        <source>&amp;Redo %1</source>
        <translation>إ&amp;عادة: %1</translation>
    </message>
    <message>
        <source>&amp;Delete Statement</source>
        <translation>&amp;حذف الكشف</translation>
    </message>
    <message>
        <source>&amp;Delete Card</source>
        <translation>&amp;حذف البطاقة</translation>
    </message>
    <message>
        <source>Delete Statement</source>
        <translation>حذف الكشف</translation>
    </message>
    <message>
        <source>Delete Card</source>
        <translation>حذف البطاقة</translation>
    </message>
    <message>
        <source>Save Again</source>
        <translation>إعادة الحفظ</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>متابعة</translation>
    </message>
    <message>
        <source>Add a card’s statement with the + in its row, and another each month.</source>
        <translation>أضف كشفًا للبطاقة بزر + في صفها، ثم كشفًا آخر كل شهر.</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <extracomment>Two notices in one: what was deleted, and what was not kept.</extracomment>
        <translation>%1. %2</translation>
    </message>
</context>
<context>
    <name>NSError</name>
    <message>
        <source>The changes could not be saved.</source>
        <translation>تعذّر حفظ التغييرات.</translation>
    </message>
    <message>
        <source>A record is not valid.</source>
        <translation>أحد السجلات غير صالح.</translation>
    </message>
    <message>
        <source>There is no data file.</source>
        <translation>لا يوجد ملف بيانات.</translation>
    </message>
    <message>
        <source>The data file “%1” is in use by another program.</source>
        <translation>يستخدم برنامج آخر ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” is damaged.</source>
        <translation>ملف البيانات «%1» تالف.</translation>
    </message>
    <message>
        <source>The file “%1” is not a Corvane data file.</source>
        <translation>الملف «%1» ليس ملف بيانات خاصًا ببرنامج Corvane.</translation>
    </message>
    <message>
        <source>There is no room left to save to the data file “%1”.</source>
        <translation>لم تبق مساحة للحفظ في ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” cannot be written.</source>
        <translation>لا يمكن الكتابة في ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be opened.</source>
        <translation>تعذّر فتح ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be read or written.</source>
        <translation>تعذّرت القراءة من ملف البيانات «%1» أو الكتابة فيه.</translation>
    </message>
    <message>
        <source>The data file “%1” was made by another version.</source>
        <translation>أنشأ إصدارٌ آخر ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>The data file “%1” could not be made.</source>
        <translation>تعذّر إنشاء ملف البيانات «%1».</translation>
    </message>
    <message>
        <source>It is not a file.</source>
        <translation>هذا ليس ملفًا.</translation>
    </message>
    <message>
        <source>It is write-protected.</source>
        <translation>إنه محمي من الكتابة.</translation>
    </message>
    <message>
        <source>Its folder is write-protected.</source>
        <translation>مجلده محمي من الكتابة.</translation>
    </message>
    <message>
        <source>Failed to initialize the store</source>
        <translation>تعذّر فتح البيانات</translation>
    </message>
    <message>
        <source>There was an error building up the data file.</source>
        <translation>حدث خطأ أثناء تجهيز ملف البيانات.</translation>
    </message>
    <message>
        <source>The file “%1” could not be locked for Corvane alone.</source>
        <translation>تعذّر قفل الملف «%1» لبرنامج Corvane وحده.</translation>
    </message>
    <message>
        <source>SQLite reports: %1.</source>
        <translation>أبلغ SQLite: %1.</translation>
    </message>
    <message>
        <source>the data file is in use by another program</source>
        <translation>يستخدم برنامج آخر ملف البيانات</translation>
    </message>
    <message>
        <source>the data file is damaged</source>
        <translation>ملف البيانات تالف</translation>
    </message>
    <message>
        <source>the disk is full</source>
        <translation>القرص ممتلئ</translation>
    </message>
    <message>
        <source>the data file cannot be written</source>
        <translation>لا يمكن الكتابة في ملف البيانات</translation>
    </message>
    <message>
        <source>the data file could not be opened</source>
        <translation>تعذّر فتح ملف البيانات</translation>
    </message>
    <message>
        <source>the data file could not be written</source>
        <translation>تعذّرت الكتابة في ملف البيانات</translation>
    </message>
    <message>
        <source>a record is not valid</source>
        <translation>أحد السجلات غير صالح</translation>
    </message>
    <message>
        <source>there is no data file</source>
        <translation>لا يوجد ملف بيانات</translation>
    </message>
    <message>
        <source>the file is not a Corvane data file</source>
        <translation>الملف ليس ملف بيانات خاصًا ببرنامج Corvane</translation>
    </message>
</context>
<context>
    <name>NoticeText</name>
    <message>
        <source>Deleted %1</source>
        <translation>حُذفت ⁨%1⁩</translation>
    </message>
    <message>
        <source>Deleted %1 and its statement</source>
        <translation>حُذفت ⁨%1⁩ مع كشفها</translation>
    </message>
    <message numerus="yes">
        <source>Deleted %1 and its %n statements</source>
        <translation>
            <numerusform>حُذفت ⁨%1⁩ مع %n كشف</numerusform>
            <numerusform>حُذفت ⁨%1⁩ مع كشفها</numerusform>
            <numerusform>حُذفت ⁨%1⁩ مع كشفيها</numerusform>
            <numerusform>حُذفت ⁨%1⁩ مع %n كشوف</numerusform>
            <numerusform>حُذفت ⁨%1⁩ مع %n كشفًا</numerusform>
            <numerusform>حُذفت ⁨%1⁩ مع %n كشف</numerusform>
        </translation>
    </message>
    <message>
        <source>Deleted the statement of %1 for %2</source>
        <translation>حُذف كشف ⁨%2⁩ بتاريخ ⁨%1⁩</translation>
    </message>
    <message>
        <source>The new card was not added</source>
        <translation>لم تُضف البطاقة الجديدة</translation>
    </message>
    <message>
        <source>The statement for %1 was not added</source>
        <translation>لم يُضف كشف ⁨%1⁩</translation>
    </message>
    <message>
        <source>Added %1</source>
        <translation>أُضيفت ⁨%1⁩</translation>
    </message>
    <message>
        <source>Changed %1</source>
        <translation>عُدّلت ⁨%1⁩</translation>
    </message>
    <message>
        <source>Not saved: %1</source>
        <translation>لم تُحفظ التغييرات: %1</translation>
    </message>
    <message>
        <source>The statement is gone, so the editor was closed</source>
        <translation>لم يعد الكشف موجودًا، لذا أُغلقت نافذة التعديل</translation>
    </message>
    <message>
        <source>The card is gone, so the editor was closed</source>
        <translation>لم تعد البطاقة موجودة، لذا أُغلقت نافذة التعديل</translation>
    </message>
    <message>
        <source>%1 was not changed</source>
        <translation>لم تُعدَّل ⁨%1⁩</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 was not changed</source>
        <translation>لم يُعدَّل كشف ⁨%2⁩ بتاريخ ⁨%1⁩</translation>
    </message>
    <message>
        <source>The new card is not added yet</source>
        <translation>لم تُضف البطاقة الجديدة بعد</translation>
    </message>
    <message>
        <source>The statement for %1 is not added yet</source>
        <translation>لم يُضف كشف ⁨%1⁩ بعد</translation>
    </message>
    <message>
        <source>%1 is not changed yet</source>
        <translation>لم تُعدَّل ⁨%1⁩ بعد</translation>
    </message>
    <message>
        <source>The statement of %1 for %2 is not changed yet</source>
        <translation>لم يُعدَّل كشف ⁨%2⁩ بتاريخ ⁨%1⁩ بعد</translation>
    </message>
</context>
<context>
    <name>NumberField</name>
    <message>
        <source>A number has at most %1 digits.</source>
        <translation>لا يزيد العدد على %1 رقمًا.</translation>
    </message>
    <message>
        <source>This is not a number.</source>
        <translation>هذا ليس عددًا.</translation>
    </message>
</context>
<context>
    <name>OADatePicker</name>
    <message>
        <source>Previous Month</source>
        <translation>الشهر السابق</translation>
    </message>
    <message>
        <source>Back to Today</source>
        <translation>العودة إلى اليوم</translation>
    </message>
    <message>
        <source>Next Month</source>
        <translation>الشهر التالي</translation>
    </message>
</context>
<context>
    <name>OADatePickerButton</name>
    <message>
        <source>Choose Date</source>
        <translation>اختيار التاريخ</translation>
    </message>
</context>
<context>
    <name>OADatePickerTextField</name>
    <message>
        <source>Choose Date</source>
        <translation>اختيار التاريخ</translation>
    </message>
</context>
<context>
    <name>OpenCardEditor</name>
    <message>
        <source>Card</source>
        <translation>البطاقة</translation>
    </message>
    <message>
        <source>Add Card</source>
        <translation>إضافة بطاقة</translation>
    </message>
    <message>
        <source>Edit Card</source>
        <translation>تعديل البطاقة</translation>
    </message>
</context>
<context>
    <name>OpenStatementEditor</name>
    <message>
        <source>Statement</source>
        <translation>الكشف</translation>
    </message>
    <message>
        <source>Add Statement</source>
        <translation>إضافة كشف</translation>
    </message>
    <message>
        <source>Edit Statement</source>
        <translation>تعديل الكشف</translation>
    </message>
</context>
<context>
    <name>PackageTransaction</name>
    <message>
        <source>PackageKit, which knows the packages of this system, is not installed.</source>
        <translation>PackageKit، الذي يعرف حزم هذا النظام، غير مثبّت.</translation>
    </message>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>لا يستجيب PackageKit.</translation>
    </message>
    <message>
        <source>PackageKit cannot be asked: %1</source>
        <translation>لا يمكن سؤال PackageKit: %1</translation>
    </message>
    <message>
        <source>PackageKit ended before it had an answer.</source>
        <translation>انتهى PackageKit قبل أن يصل إلى إجابة.</translation>
    </message>
    <message>
        <source>PackageKit reports: %1</source>
        <translation>أبلغ PackageKit: %1</translation>
    </message>
    <message>
        <source>PackageKit gave up.</source>
        <translation>تخلّى PackageKit عن المحاولة.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>تعذّر الوصول إلى ناقل رسائل النظام.</translation>
    </message>
</context>
<context>
    <name>QGuiApplication</name>
    <message>
        <source>QT_LAYOUT_DIRECTION</source>
        <extracomment>&quot;RTL&quot; where the language is written from right to left, else &quot;LTR&quot;. Qt asks for it when a translation is installed, and mirrors the layouts.</extracomment>
        <translation>RTL</translation>
    </message>
</context>
<context>
    <name>RelativeDateFormatter</name>
    <message>
        <source>st|nd|rd|th|of|the</source>
        <translation>من|في|يوم</translation>
    </message>
    <message>
        <source>today|now</source>
        <extracomment>Alternatives are separated by &apos;|&apos;; all of them are understood.</extracomment>
        <translation>اليوم|الآن</translation>
    </message>
    <message>
        <source>yesterday</source>
        <translation>أمس|البارحة</translation>
    </message>
    <message>
        <source>tomorrow</source>
        <translation>غدًا|غدا|بكرة</translation>
    </message>
    <message>
        <source>last %1|past %1</source>
        <extracomment>%1 is a weekday, or one of the words for week, month and year.</extracomment>
        <translation>%1 الماضي|%1 الماضية|%1 المنصرم|%1 المنصرمة</translation>
    </message>
    <message>
        <source>%1 %2 ago</source>
        <extracomment>%1 is a number or one of the words for one, %2 one of the words for days to years.</extracomment>
        <translation>قبل %1 %2|منذ %1 %2</translation>
    </message>
    <message>
        <source>a|an|one</source>
        <translation>واحد|واحدة</translation>
    </message>
    <message>
        <source>d|day|days</source>
        <extracomment>In the order of days, weeks, months and years: in all grammatical forms, and with a letter that stands for it in &quot;-2d&quot;.</extracomment>
        <translation>ي|يوم|يوما|أيام|اليوم</translation>
    </message>
    <message>
        <source>w|week|weeks</source>
        <translation>أسبوع|أسبوعا|أسابيع|الأسبوع</translation>
    </message>
    <message>
        <source>m|month|months</source>
        <translation>ش|شهر|شهرا|أشهر|شهور|الشهر</translation>
    </message>
    <message>
        <source>y|year|years</source>
        <translation>سنة|سنوات|سنين|عام|عاما|أعوام|السنة|العام</translation>
    </message>
</context>
<context>
    <name>StatementText</name>
    <message>
        <source>%1, %2</source>
        <translation>%1، %2</translation>
    </message>
    <message>
        <source>Payment %1</source>
        <translation>الدفعة %1</translation>
    </message>
</context>
<context>
    <name>UpdateCheck</name>
    <message>
        <source>PackageKit does not answer.</source>
        <translation>لا يستجيب PackageKit.</translation>
    </message>
    <message>
        <source>Corvane was not installed as a package, so this system knows of no newer one.</source>
        <translation>لم يُثبَّت Corvane كحزمة، لذلك لا يعرف هذا النظام حزمة أحدث.</translation>
    </message>
    <message>
        <source>The system’s message bus cannot be reached.</source>
        <translation>تعذّر الوصول إلى ناقل رسائل النظام.</translation>
    </message>
</context>
<context>
    <name>UpdateWindow</name>
    <message>
        <source>Check for Updates</source>
        <translation>البحث عن تحديثات</translation>
    </message>
    <message>
        <source>Looking for a newer version</source>
        <translation>البحث عن إصدار أحدث</translation>
    </message>
    <message>
        <source>Looking for a newer version…</source>
        <translation>جارٍ البحث عن إصدار أحدث…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>إغلاق</translation>
    </message>
    <message>
        <source>A newer version of Corvane is available</source>
        <translation>يتوفر إصدار أحدث من Corvane</translation>
    </message>
    <message>
        <source>Version %1 is installed. Version %2 comes with the next update of your system.</source>
        <translation>الإصدار %1 مثبّت. سيأتي الإصدار %2 مع التحديث القادم لنظامك.</translation>
    </message>
    <message>
        <source>Corvane is up to date</source>
        <translation>Corvane محدَّث</translation>
    </message>
    <message>
        <source>Version %1 is the newest that your system knows of.</source>
        <translation>الإصدار %1 هو أحدث ما يعرفه نظامك.</translation>
    </message>
    <message>
        <source>Unable to look for a newer version</source>
        <translation>تعذّر البحث عن إصدار أحدث</translation>
    </message>
    <message>
        <source>%1. %2</source>
        <translation>%1. %2</translation>
    </message>
</context>
</TS>
