<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Lecture saved</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Recording discarded</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Recording paused</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Recording resumed</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Recording started</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Recording stopped</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Sound is heard again</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Choose a copy: what is missing comes back, and nothing else changes.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>The file of lectures was damaged on %1. It was put aside whole, and all that could be read is here again.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Lectures brought back: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Before many lectures are removed at once, Tarvelo copies all of them.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>The lectures cannot be brought back now. Nothing was changed.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>There are no copies yet: so far no lectures were removed in bulk.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Recordings without a lecture</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Bring Back</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>Cancel</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Close</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Discard</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Done</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Keep</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Listen</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>New Lecture</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>No</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Pause</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Back to List</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Show Lecture</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Start recording</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Insert Time</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Yes</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Calendar</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Record</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>View</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Copy made on</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Lectures</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Missing now</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Go to the current month</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Has lectures</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Press “New Lecture” to record one.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>No lectures on this day</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 audio (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Close without saving</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Save (Ctrl+Return)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Click to change the subject</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Pause (Space)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Pause (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Play (Space)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Play (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Delete this lecture and its recording?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Day shown</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Elapsed time</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Lectures</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Day</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notes</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Playback position</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Recording time</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Recording level</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Remaining time</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Speed</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Subject</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo ended before this lecture was saved. Keep it under its day, or listen to it first. If you close this window, the lecture is offered again at the next start.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo ended before this lecture was saved. Keep it under its day. If you close this window, the lecture is offered again at the next start.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>The lecture cannot be kept now. Nothing is lost: it is offered again at the next start.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>About Tarvelo</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>All List</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Bring Lectures Back…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Close Window</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Fold List</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Guide</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Help</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Main Menu</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>More Programs</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>New Lecture</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Open Tarvelo</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Preferences…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Quit</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Show Recordings Folder</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Tarvelo in the Software Store</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo on the Web</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>This lecture has no audio.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Next month</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Write notes here</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Subject of the lecture</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Previous month</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>A lecture is being recorded</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>The disk is almost full. Minutes left: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Room left on the disk: %1 min</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Nothing is heard. Is the microphone on?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Delete</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Edit</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Export to the music library</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>More</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Play</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>Share via Email</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Show the file</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Format of new recordings</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Start and appearance</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Open at login</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Show in the task bar</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Show in the status bar</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Show the window at start</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Keep the window on top</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>A fifth of the speed</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Half the speed</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>A quarter of the speed</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>The recorded speed</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>A third of the speed</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Bring Lectures Back</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Edit Lecture</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Unfinished Lecture</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>New Lecture</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Lecture</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Preferences</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
