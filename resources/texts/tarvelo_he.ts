<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="he" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>ההרצאה נשמרה</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>ההקלטה בוטלה</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>ההקלטה הושהתה</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>ההקלטה חודשה</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>ההקלטה החלה</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>ההקלטה הופסקה</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>שוב נשמע צליל</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>בחרו עותק: מה שחסר יחזור, ושום דבר אחר לא ישתנה.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>ב‑%1 נמצא שקובץ ההרצאות פגום. הוא נשמר בצד בשלמותו, וכל מה שהיה אפשר לקרוא נמצא כאן שוב.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>הרצאות ששוחזרו: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>לפני שהרצאות רבות מוסרות בבת אחת, Tarvelo שומר עותק של כולן.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>אי אפשר לשחזר את ההרצאות כעת. דבר לא השתנה.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>אין עדיין עותקים: עד כה לא הוסרו הרצאות רבות בבת אחת.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>הקלטות ללא הרצאה</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>שחזור</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>ביטול</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>סגירה</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>מחיקה</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>מחיקה</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>סיום</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>שמירה</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>האזנה</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>הרצאה חדשה</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>לא</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>השהיה</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>ניגון</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>חזרה לרשימה</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>הצגת ההרצאה</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>התחלת הקלטה</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>הוספת זמן</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>כן</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>לוח שנה</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>הקלטה</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>תצוגה</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>עותק מיום</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>הרצאות</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>חסרות כעת</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>מעבר לחודש הנוכחי</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>יש הרצאות</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>לחצו על ”הרצאה חדשה” כדי להקליט.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>אין הרצאות ביום זה</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>שמע MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>סגירה בלי לשמור</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>שמירה (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>לחיצה לשינוי הנושא</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>השהיה (רווח)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>השהיה (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>ניגון (רווח)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>ניגון (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>למחוק את ההרצאה הזאת ואת ההקלטה שלה?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>היום המוצג</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>זמן שחלף</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>הרצאות</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>יום</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>הערות</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>מיקום הניגון</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>משך ההקלטה</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>עוצמת ההקלטה</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>זמן שנותר</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>מהירות</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>נושא</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>RTL</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo הסתיימה לפני שההרצאה הזו נשמרה. אפשר לשמור אותה תחת היום שלה, או להאזין לה תחילה. אם תסגרו את החלון, ההרצאה תוצע שוב בהפעלה הבאה.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo הסתיימה לפני שההרצאה הזו נשמרה. אפשר לשמור אותה תחת היום שלה. אם תסגרו את החלון, ההרצאה תוצע שוב בהפעלה הבאה.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>אי אפשר לשמור את ההרצאה כעת. דבר לא אבד: היא תוצע שוב בהפעלה הבאה.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>אודות Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>הרשימה המלאה</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>שחזור הרצאות…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>סגירת החלון</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>קיפול הרשימה</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>המדריך</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>עזרה</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>תפריט ראשי</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>תוכנות נוספות</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>הרצאה חדשה</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>פתיחת Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>העדפות…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>יציאה</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>הצגת תיקיית ההקלטות</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo בחנות התוכנות</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo באינטרנט</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>אין שמע להרצאה הזאת.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>החודש הבא</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>כאן כותבים הערות</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>נושא ההרצאה</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>החודש הקודם</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>הרצאה מוקלטת כעת</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>הדיסק כמעט מלא. דקות שנותרו: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>מקום פנוי בדיסק: %1 דק׳</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>לא נשמע דבר. האם המיקרופון פועל?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>מחיקה</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>עריכה</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>ייצוא לספריית המוזיקה</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>עוד</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>ניגון</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>שיתוף בדוא״ל</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>הצגת הקובץ</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>תבנית של הקלטות חדשות</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>הפעלה ומראה</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>פתיחה בעת הכניסה</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>הצגה בשורת המשימות</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>הצגה בשורת המצב</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>הצגת החלון בעת ההפעלה</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>השארת החלון למעלה</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>חמישית מהמהירות</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>חצי מהמהירות</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>רבע מהמהירות</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>המהירות המוקלטת</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>שליש מהמהירות</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>שחזור הרצאות</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>עריכת הרצאה</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>הרצאה שלא הושלמה</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>הרצאה חדשה</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>הרצאה</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>העדפות</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
