<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Vorlesung gesichert</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Aufnahme verworfen</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Aufnahme angehalten</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Aufnahme läuft weiter</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Aufnahme gestartet</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Aufnahme beendet</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Es ist wieder etwas zu hören</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Wählen Sie eine Kopie: Was fehlt, kommt zurück, und sonst ändert sich nichts.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Die Datei der Vorlesungen war am %1 beschädigt. Sie wurde ganz beiseitegelegt, und alles Lesbare ist wieder da.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Zurückgeholte Vorlesungen: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Bevor viele Vorlesungen auf einmal entfernt werden, hebt Tarvelo eine Kopie von allen auf.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Die Vorlesungen können jetzt nicht zurückgeholt werden. Nichts wurde geändert.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Es gibt noch keine Kopien: Bisher wurden nicht mehrere Vorlesungen auf einmal entfernt.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Aufnahmen ohne Vorlesung</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Zurückholen</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Abbrechen</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Schließen</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Verwerfen</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Fertig</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Behalten</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Anhören</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Neue Vorlesung</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Nein</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Abspielen</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Zurück zur Liste</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Vorlesung zeigen</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Aufnahme starten</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Zeit einfügen</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Ja</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Kalender</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Aufnehmen</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Ansehen</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Kopie vom</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Vorlesungen</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Fehlen jetzt</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Zum aktuellen Monat</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Hat Vorlesungen</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Mit „Neue Vorlesung“ eine aufnehmen.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Keine Vorlesungen an diesem Tag</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4-Audio (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Schließen ohne zu sichern</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Sichern (Strg+Eingabe)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Zum Ändern des Themas klicken</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Anhalten (Leertaste)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pause (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Abspielen (Leertaste)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Abspielen (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Diese Vorlesung und ihre Aufnahme löschen?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Gezeigter Tag</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Verstrichene Zeit</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Vorlesungen</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Tag</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notizen</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Wiedergabeposition</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Aufnahmedauer</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Aufnahmepegel</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Verbleibende Zeit</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Geschwindigkeit</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Thema</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo endete, bevor diese Vorlesung gesichert war. Behalten Sie sie unter ihrem Tag, oder hören Sie sie erst an. Wenn Sie dieses Fenster schließen, wird sie beim nächsten Start wieder angeboten.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo endete, bevor diese Vorlesung gesichert war. Behalten Sie sie unter ihrem Tag. Wenn Sie dieses Fenster schließen, wird sie beim nächsten Start wieder angeboten.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Die Vorlesung kann jetzt nicht behalten werden. Nichts ist verloren: Beim nächsten Start wird sie wieder angeboten.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Über Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Gesamte Liste</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Vorlesungen zurückholen …</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Fenster schließen</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Liste einklappen</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Anleitung</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Hilfe</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Hauptmenü</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Weitere Programme</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Neue Vorlesung</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo öffnen</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Einstellungen …</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Beenden</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Aufnahmeordner zeigen</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo im Software-Katalog</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo im Web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Zu dieser Vorlesung gibt es keine Aufnahme.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Nächster Monat</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Hier Notizen schreiben</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Thema der Vorlesung</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Voriger Monat</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Eine Vorlesung wird aufgenommen</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Der Speicher ist fast voll. Minuten übrig: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Platz auf dem Speicher: noch %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Es ist nichts zu hören. Ist das Mikrofon an?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Löschen</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Bearbeiten</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>In die Musiksammlung exportieren</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Mehr</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Abspielen</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Per E-Mail teilen</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Datei zeigen</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Format neuer Aufnahmen</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Start und Erscheinungsbild</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Bei der Anmeldung öffnen</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>In der Taskleiste zeigen</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>In der Statusleiste zeigen</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Fenster beim Start zeigen</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Fenster im Vordergrund halten</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Ein Fünftel der Geschwindigkeit</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Halbe Geschwindigkeit</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Ein Viertel der Geschwindigkeit</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Aufgenommene Geschwindigkeit</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Ein Drittel der Geschwindigkeit</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Vorlesungen zurückholen</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Vorlesung bearbeiten</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Nicht beendete Vorlesung</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Neue Vorlesung</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Vorlesung</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Einstellungen</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
