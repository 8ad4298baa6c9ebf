<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Wykład zapisany</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Nagranie odrzucone</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Nagrywanie wstrzymane</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Nagrywanie wznowione</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Nagrywanie rozpoczęte</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Nagrywanie zakończone</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Znów słychać dźwięk</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Wybierz kopię: brakujące wykłady wrócą, a nic innego się nie zmieni.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Plik wykładów był uszkodzony %1. Odłożono go w całości, a wszystko, co dało się odczytać, jest znów tutaj.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Przywrócone wykłady: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Zanim wiele wykładów zostanie usuniętych naraz, Tarvelo zachowuje kopię wszystkich.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Teraz nie można przywrócić wykładów. Nic nie zostało zmienione.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Nie ma jeszcze kopii: dotąd nie usunięto naraz wielu wykładów.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Nagrania bez wykładu</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Przywróć</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Anuluj</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Zamknij</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Usuń</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Odrzuć</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Gotowe</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Zachowaj</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Posłuchaj</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Nowy wykład</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Nie</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Wstrzymaj</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Odtwórz</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Wróć do listy</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Pokaż wykład</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Rozpocznij nagrywanie</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Wstaw czas</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Tak</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Kalendarz</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Nagrywanie</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Podgląd</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Kopia z</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Wykłady</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Brakuje</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Przejdź do bieżącego miesiąca</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Są wykłady</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Naciśnij „Nowy wykład”, aby go nagrać.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Brak wykładów w tym dniu</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>Dźwięk MPEG-4 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Zamknij bez zapisywania</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Zapisz (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Kliknij, aby zmienić temat</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Wstrzymaj (Spacja)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Wstrzymaj (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Odtwórz (Spacja)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Odtwórz (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Usunąć ten wykład i jego nagranie?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Pokazany dzień</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Czas, który upłynął</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Wykłady</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Dzień</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notatki</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Pozycja odtwarzania</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Czas nagrania</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Poziom nagrywania</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Pozostały czas</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Prędkość</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Temat</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo zakończył działanie, zanim ten wykład został zapisany. Zachowaj go pod jego dniem albo najpierw posłuchaj. Jeśli zamkniesz to okno, wykład pojawi się znowu przy następnym uruchomieniu.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo zakończył działanie, zanim ten wykład został zapisany. Zachowaj go pod jego dniem. Jeśli zamkniesz to okno, wykład pojawi się znowu przy następnym uruchomieniu.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Nie można teraz zachować wykładu. Nic nie przepadło: pojawi się znowu przy następnym uruchomieniu.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>O programie Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Pełna lista</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Przywróć wykłady…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Zamknij okno</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Zwiń listę</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Przewodnik</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Pomoc</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Menu główne</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Inne programy</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Nowy wykład</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Otwórz Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Preferencje…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Zakończ</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Pokaż folder nagrań</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo w sklepie z oprogramowaniem</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo w sieci</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Ten wykład nie ma nagrania.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Następny miesiąc</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Tu wpisz notatki</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Temat wykładu</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Poprzedni miesiąc</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Trwa nagrywanie wykładu</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Dysk jest prawie pełny. Pozostało minut: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Wolne miejsce na dysku: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Nic nie słychać. Czy mikrofon jest włączony?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Usuń</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Edytuj</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Eksportuj do biblioteki muzycznej</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Więcej</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Odtwórz</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Wyślij e-mailem</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Pokaż plik</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Format nowych nagrań</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Uruchamianie i wygląd</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Otwieraj przy logowaniu</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Pokazuj na pasku zadań</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Pokazuj na pasku stanu</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Pokazuj okno przy uruchomieniu</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Trzymaj okno na wierzchu</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Jedna piąta prędkości</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Połowa prędkości</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Jedna czwarta prędkości</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Prędkość nagrania</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Jedna trzecia prędkości</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Przywracanie wykładów</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Edycja wykładu</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Niedokończony wykład</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Nowy wykład</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Wykład</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Preferencje</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
