<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>حُفظت المحاضرة</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>أُهمل التسجيل</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>توقف التسجيل مؤقتًا</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>استؤنف التسجيل</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>بدأ التسجيل</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>انتهى التسجيل</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>عاد الصوت مسموعًا</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>اختر نسخة: يعود ما هو مفقود ولا يتغير شيء آخر.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>تبيّن في %1 أن ملف المحاضرات تالف. حُفظ جانبًا كاملًا، وعاد كل ما أمكنت قراءته.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>المحاضرات المستعادة: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>قبل إزالة محاضرات كثيرة دفعة واحدة يحتفظ Tarvelo بنسخة منها كلها.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>لا يمكن استعادة المحاضرات الآن. لم يتغير شيء.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>لا توجد نسخ بعد: لم تُحذف محاضرات كثيرة دفعة واحدة حتى الآن.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>تسجيلات بلا محاضرة</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>استعادة</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>إلغاء</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>إغلاق</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>حذف</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>تجاهل</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>تم</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>احتفاظ</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>استماع</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>محاضرة جديدة</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>لا</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>العودة إلى القائمة</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>عرض المحاضرة</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>بدء التسجيل</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>إدراج الوقت</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>نعم</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>التقويم</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>تسجيل</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>عرض</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>تاريخ النسخة</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>المحاضرات</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>المفقود الآن</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>الانتقال إلى الشهر الحالي</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>فيه محاضرات</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>اضغط «محاضرة جديدة» للتسجيل.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>لا توجد محاضرات في هذا اليوم</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>صوت MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>إغلاق دون حفظ</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>حفظ (Ctrl+Return)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>انقر لتغيير الموضوع</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>إيقاف مؤقت (مسافة)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>إيقاف مؤقت (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>تشغيل (مسافة)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>تشغيل (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>هل تريد حذف هذه المحاضرة وتسجيلها؟</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>اليوم المعروض</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>الوقت المنقضي</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>المحاضرات</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>اليوم</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>ملاحظات</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>موضع التشغيل</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>مدة التسجيل</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>مستوى التسجيل</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>الوقت المتبقي</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>السرعة</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>الموضوع</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>RTL</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>انتهى Tarvelo قبل حفظ هذه المحاضرة. احتفظ بها تحت يومها، أو استمع إليها أولاً. إذا أغلقت هذه النافذة فستُعرض المحاضرة مجدداً عند التشغيل التالي.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>انتهى Tarvelo قبل حفظ هذه المحاضرة. احتفظ بها تحت يومها. إذا أغلقت هذه النافذة فستُعرض المحاضرة مجدداً عند التشغيل التالي.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>لا يمكن الاحتفاظ بالمحاضرة الآن. لم يُفقد شيء: ستُعرض مجدداً عند التشغيل التالي.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>حول Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>القائمة الكاملة</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>استعادة المحاضرات…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>إغلاق النافذة</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>طي القائمة</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>الدليل</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>مساعدة</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>القائمة الرئيسية</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>برامج أخرى</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>محاضرة جديدة</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>فتح Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>التفضيلات…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>إنهاء</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>عرض مجلد التسجيلات</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo في متجر البرامج</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>موقع Tarvelo على الويب</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>لا يوجد صوت لهذه المحاضرة.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>الشهر التالي</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>اكتب الملاحظات هنا</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>موضوع المحاضرة</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>الشهر السابق</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>يجري تسجيل محاضرة</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>القرص ممتلئ تقريبًا. الدقائق المتبقية: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>المساحة المتبقية على القرص: %1 د</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>لا يُسمع شيء. هل الميكروفون مشغَّل؟</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>حذف</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>تعديل</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>تصدير إلى مكتبة الموسيقى</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>المزيد</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>تشغيل</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>مشاركة عبر البريد الإلكتروني</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>عرض الملف</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>صيغة التسجيلات الجديدة</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>بدء التشغيل والمظهر</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>الفتح عند تسجيل الدخول</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>الإظهار في شريط المهام</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>الإظهار في شريط الحالة</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>إظهار النافذة عند بدء التشغيل</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>إبقاء النافذة في المقدمة</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>خُمس السرعة</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>نصف السرعة</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>ربع السرعة</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>السرعة المسجّلة</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>ثلث السرعة</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>استعادة المحاضرات</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>تعديل المحاضرة</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>محاضرة غير مكتملة</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>محاضرة جديدة</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>المحاضرة</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>التفضيلات</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
