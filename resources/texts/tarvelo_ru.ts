<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Лекция сохранена</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Запись удалена</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Запись приостановлена</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Запись возобновлена</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Запись начата</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Запись остановлена</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Звук снова слышен</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Выберите копию: недостающее вернётся, остальное не изменится.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Файл лекций оказался повреждён (%1). Он целиком отложен в сторону, а всё, что удалось прочитать, снова здесь.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Возвращено лекций: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Прежде чем сразу много лекций будет удалено, Tarvelo сохраняет копию всех.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Сейчас вернуть лекции нельзя. Ничего не изменено.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Копий пока нет: до сих пор лекции не удалялись помногу.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Записи без лекции</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Вернуть</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Отмена</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Закрыть</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Удалить</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Удалить</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Готово</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Сохранить</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Прослушать</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Новая лекция</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Нет</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Пауза</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Назад к списку</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Показать лекцию</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Начать запись</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Вставить время</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Да</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Календарь</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Запись</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Просмотр</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Копия от</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Лекции</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Сейчас нет</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Перейти к текущему месяцу</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Есть лекции</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Нажмите «Новая лекция», чтобы записать её.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>В этот день лекций нет</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>Аудио MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Закрыть без сохранения</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Сохранить (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Нажмите, чтобы изменить тему</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Пауза (Пробел)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Пауза (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Воспроизвести (Пробел)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Воспроизвести (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Удалить эту лекцию и её запись?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Показанный день</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Прошло времени</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Лекции</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>День</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Заметки</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Позиция воспроизведения</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Время записи</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Уровень записи</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Осталось времени</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Скорость</translation>
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
        <translation>Tarvelo завершился раньше, чем эта лекция была сохранена. Сохраните её под её днём или сначала прослушайте. Если закрыть это окно, лекция будет предложена снова при следующем запуске.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo завершился раньше, чем эта лекция была сохранена. Сохраните её под её днём. Если закрыть это окно, лекция будет предложена снова при следующем запуске.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Сейчас лекцию нельзя сохранить. Ничего не потеряно: она будет предложена снова при следующем запуске.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>О программе Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Весь список</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Вернуть лекции…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Закрыть окно</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Свернуть список</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Руководство</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Справка</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Главное меню</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Другие программы</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Новая лекция</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Открыть Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Параметры…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Выйти</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Показать папку с записями</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo в магазине программ</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo в интернете</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>У этой лекции нет записи.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Следующий месяц</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Пишите заметки здесь</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Тема лекции</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Предыдущий месяц</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Идёт запись лекции</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Диск почти заполнен. Осталось минут: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Осталось места на диске: %1 мин</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Ничего не слышно. Микрофон включён?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Удалить</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Изменить</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Экспортировать в музыкальную библиотеку</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Ещё</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Воспроизвести</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Отправить по почте</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Показать файл</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Формат новых записей</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Запуск и внешний вид</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Открывать при входе в систему</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Показывать на панели задач</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Показывать в строке состояния</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Показывать окно при запуске</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Держать окно поверх остальных</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Одна пятая скорости</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Половина скорости</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Четверть скорости</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Скорость записи</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Треть скорости</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Возврат лекций</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Изменение лекции</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Незавершённая лекция</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Новая лекция</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Лекция</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Параметры</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
