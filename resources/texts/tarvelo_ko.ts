<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>강의를 저장했습니다</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>녹음을 버렸습니다</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>녹음을 일시 정지했습니다</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>녹음을 다시 시작했습니다</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>녹음을 시작했습니다</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>녹음을 중지했습니다</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>다시 소리가 들립니다</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>사본을 고르면 없어진 강의만 돌아오고 나머지는 그대로입니다.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>%1에 강의 파일이 손상된 것을 발견했습니다. 파일은 그대로 따로 보관했고, 읽을 수 있는 것은 모두 되살렸습니다.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>되살린 강의: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>많은 강의가 한꺼번에 삭제되기 전에 Tarvelo가 모든 강의의 사본을 보관합니다.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>지금은 강의를 되살릴 수 없습니다. 바뀐 것은 없습니다.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>아직 사본이 없습니다. 지금까지 한꺼번에 삭제된 강의가 없습니다.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>강의가 없는 녹음</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>되살리기</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>취소</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>닫기</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>삭제</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>버리기</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>완료</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>보관</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>듣기</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>새 강의</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>아니요</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>일시 정지</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>재생</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>목록으로 돌아가기</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>강의 보기</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>녹음 시작</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>시간 삽입</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>예</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>달력</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>녹음</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>보기</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>사본 시각</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>강의</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>지금 없는 수</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>이번 달로 이동</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>강의 있음</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>‘새 강의’를 눌러 녹음하세요.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>이 날에는 강의가 없습니다</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 오디오 (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>저장하지 않고 닫기</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>저장 (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>클릭하여 주제 변경</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>일시 정지 (Space)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>일시 정지 (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>재생 (Space)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>재생 (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>이 강의와 녹음을 삭제하시겠습니까?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>표시된 날짜</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>경과 시간</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>강의</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>날짜</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>메모</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>재생 위치</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>녹음 시간</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>녹음 레벨</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>남은 시간</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>속도</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>주제</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>이 강의를 저장하기 전에 Tarvelo가 종료되었습니다. 해당 날짜에 보관하거나 먼저 들어 보세요. 이 창을 닫으면 다음에 시작할 때 다시 표시됩니다.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>이 강의를 저장하기 전에 Tarvelo가 종료되었습니다. 해당 날짜에 보관하세요. 이 창을 닫으면 다음에 시작할 때 다시 표시됩니다.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>지금은 강의를 보관할 수 없습니다. 잃은 것은 없으며 다음에 시작할 때 다시 표시됩니다.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Tarvelo 정보</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>전체 목록</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>강의 되살리기…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>창 닫기</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>목록 접기</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>안내서</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>도움말</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>기본 메뉴</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>다른 프로그램</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>새 강의</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo 열기</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>환경설정…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>끝내기</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>녹음 폴더 보기</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>소프트웨어 스토어의 Tarvelo</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Tarvelo 웹 페이지</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>이 강의에는 오디오가 없습니다.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>다음 달</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>여기에 메모를 입력하세요</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>강의 주제</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>이전 달</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>강의를 녹음하고 있습니다</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>디스크가 거의 가득 찼습니다. 남은 시간: %1분</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>디스크에 녹음할 수 있는 시간: %1분</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>아무 소리도 들리지 않습니다. 마이크가 켜져 있나요?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>삭제</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>편집</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>음악 보관함으로 내보내기</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>더 보기</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>재생</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>이메일로 공유</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>파일 보기</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>새 녹음의 형식</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>시작 및 모양</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>로그인할 때 열기</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>작업 표시줄에 표시</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>상태 표시줄에 표시</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>시작할 때 창 표시</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>창을 항상 위에 표시</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>5분의 1 속도</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>절반 속도</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>4분의 1 속도</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>녹음된 속도</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>3분의 1 속도</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>강의 되살리기</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>강의 편집</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>끝나지 않은 강의</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>새 강의</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>강의</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>환경설정</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
