<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>College bewaard</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Opname verwijderd</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Opname gepauzeerd</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Opname hervat</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Opname gestart</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Opname gestopt</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Er is weer geluid te horen</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Kies een kopie: wat ontbreekt komt terug, en verder verandert er niets.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Het bestand met colleges was op %1 beschadigd. Het is in zijn geheel apart gezet, en alles wat leesbaar was is hier weer.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Teruggehaalde colleges: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Voordat veel colleges tegelijk worden verwijderd, bewaart Tarvelo een kopie van alle colleges.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>De colleges kunnen nu niet worden teruggehaald. Er is niets veranderd.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Er zijn nog geen kopieën: tot nu toe zijn er nooit veel colleges tegelijk verwijderd.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Opnamen zonder college</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Terughalen</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Annuleren</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Sluiten</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Verwijderen</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Weggooien</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Gereed</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Bewaren</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Beluisteren</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Nieuw college</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Nee</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pauzeren</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Afspelen</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Terug naar de lijst</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>College tonen</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Opname starten</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Tijd invoegen</translation>
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
        <translation>Opnemen</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Bekijken</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Kopie gemaakt op</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Colleges</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Ontbreken nu</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Naar de huidige maand</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Heeft colleges</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Druk op ‘Nieuw college’ om er een op te nemen.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Geen colleges op deze dag</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4-audio (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Sluiten zonder op te slaan</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Opslaan (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Klik om het onderwerp te wijzigen</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pauzeren (Spatiebalk)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pauzeren (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Afspelen (Spatiebalk)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Afspelen (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Dit college en de opname ervan verwijderen?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Getoonde dag</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Verstreken tijd</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Colleges</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Dag</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notities</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Afspeelpositie</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Opnametijd</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Opnameniveau</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Resterende tijd</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Snelheid</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Onderwerp</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo is gestopt voordat dit college was opgeslagen. Bewaar het onder zijn dag, of beluister het eerst. Als u dit venster sluit, wordt het college bij de volgende start opnieuw aangeboden.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo is gestopt voordat dit college was opgeslagen. Bewaar het onder zijn dag. Als u dit venster sluit, wordt het college bij de volgende start opnieuw aangeboden.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Het college kan nu niet worden bewaard. Er is niets verloren: het wordt bij de volgende start opnieuw aangeboden.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Over Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Volledige lijst</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Colleges terughalen…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Venster sluiten</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Lijst inklappen</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Handleiding</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Help</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Hoofdmenu</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Meer programma’s</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Nieuw college</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo openen</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Voorkeuren…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Afsluiten</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Map met opnamen tonen</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo in de softwarewinkel</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo op het web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Dit college heeft geen audio.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Volgende maand</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Schrijf hier notities</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Onderwerp van het college</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Vorige maand</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Er wordt een college opgenomen</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>De schijf is bijna vol. Minuten over: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Ruimte over op de schijf: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Er is niets te horen. Staat de microfoon aan?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Verwijderen</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Bewerken</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Naar de muziekbibliotheek exporteren</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Meer</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Afspelen</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Delen via e-mail</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Bestand tonen</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Indeling van nieuwe opnamen</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Opstarten en weergave</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Openen bij aanmelden</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>In de taakbalk tonen</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>In de statusbalk tonen</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Het venster bij de start tonen</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Het venster bovenop houden</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Een vijfde van de snelheid</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Halve snelheid</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Een kwart van de snelheid</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>De opgenomen snelheid</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Een derde van de snelheid</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Colleges terughalen</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>College bewerken</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Onvoltooid college</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Nieuw college</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>College</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Voorkeuren</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
