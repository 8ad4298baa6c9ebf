<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Лекцію збережено</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Запис скасовано</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Запис призупинено</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Запис відновлено</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Запис розпочато</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Запис зупинено</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Звук знову чути</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Виберіть копію: те, чого бракує, повернеться, решта не зміниться.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Файл лекцій виявився пошкодженим (%1). Його цілком відкладено, а все, що вдалося прочитати, знову тут.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Повернено лекцій: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Перш ніж відразу багато лекцій буде видалено, Tarvelo зберігає копію всіх.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Зараз повернути лекції неможливо. Нічого не змінено.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Копій поки немає: досі лекції не видалялися по кілька відразу.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Записи без лекції</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Повернути</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Скасувати</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Закрити</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Видалити</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Відкинути</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Готово</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Зберегти</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Прослухати</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Нова лекція</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Ні</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Пауза</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Відтворити</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Назад до списку</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Показати лекцію</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Почати запис</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Вставити час</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Так</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Календар</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Запис</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Перегляд</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Копія від</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Лекції</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Зараз немає</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Перейти до поточного місяця</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Є лекції</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Натисніть «Нова лекція», щоб записати її.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Цього дня лекцій немає</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>Аудіо MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Закрити без збереження</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Зберегти (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Натисніть, щоб змінити тему</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Пауза (Пробіл)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Пауза (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Відтворити (Пробіл)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Відтворити (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Видалити цю лекцію та її запис?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Показаний день</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Минуло часу</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Лекції</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>День</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Нотатки</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Позиція відтворення</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Час запису</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Рівень запису</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Залишилося часу</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Швидкість</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Тема</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo завершився раніше, ніж цю лекцію було збережено. Збережіть її під її днем або спершу прослухайте. Якщо закрити це вікно, лекцію буде запропоновано знову під час наступного запуску.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo завершився раніше, ніж цю лекцію було збережено. Збережіть її під її днем. Якщо закрити це вікно, лекцію буде запропоновано знову під час наступного запуску.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Зараз лекцію не можна зберегти. Нічого не втрачено: її буде запропоновано знову під час наступного запуску.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Про Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Увесь список</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Повернути лекції…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Закрити вікно</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Згорнути список</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Посібник</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Довідка</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Головне меню</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Інші програми</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Нова лекція</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Відкрити Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Параметри…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Вийти</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Показати теку із записами</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo в магазині програм</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo в інтернеті</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Ця лекція не має запису.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Наступний місяць</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Пишіть нотатки тут</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Тема лекції</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Попередній місяць</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Триває запис лекції</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Диск майже заповнений. Залишилося хвилин: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Залишилося місця на диску: %1 хв</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Нічого не чути. Чи ввімкнено мікрофон?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Видалити</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Редагувати</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Експортувати до музичної бібліотеки</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Більше</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Відтворити</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Надіслати поштою</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Показати файл</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Формат нових записів</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Запуск і вигляд</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Відкривати під час входу</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Показувати на панелі завдань</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Показувати в рядку стану</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Показувати вікно під час запуску</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Тримати вікно поверх інших</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>П’ята частина швидкості</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Половина швидкості</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Чверть швидкості</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Швидкість запису</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Третина швидкості</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Повернення лекцій</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Редагування лекції</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Незавершена лекція</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Нова лекція</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Лекція</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Параметри</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
