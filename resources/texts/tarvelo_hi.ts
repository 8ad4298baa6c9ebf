<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="hi" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>व्याख्यान सहेजा गया</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>रिकॉर्डिंग हटा दी गई</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>रिकॉर्डिंग रोकी गई</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>रिकॉर्डिंग फिर शुरू हुई</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>रिकॉर्डिंग शुरू हुई</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>रिकॉर्डिंग समाप्त हुई</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>आवाज़ फिर सुनाई दे रही है</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>कोई प्रति चुनें: जो नहीं है वह लौट आएगा, और कुछ नहीं बदलेगा।</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>%1 को व्याख्यानों की फ़ाइल क्षतिग्रस्त मिली। उसे पूरा अलग रख दिया गया है, और जो पढ़ा जा सका वह फिर यहाँ है।</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>वापस लाए गए व्याख्यान: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>एक साथ कई व्याख्यान हटाए जाने से पहले Tarvelo उन सबकी एक प्रति रखता है।</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>व्याख्यान अभी वापस नहीं लाए जा सकते। कुछ नहीं बदला गया।</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>अभी कोई प्रति नहीं है: अब तक एक साथ कई व्याख्यान नहीं हटाए गए।</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>बिना व्याख्यान की रिकॉर्डिंग</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>वापस लाएँ</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>रद्द करें</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>बंद करें</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>हटाएँ</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>छोड़ दें</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>पूर्ण</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>रखें</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>सुनें</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>नया व्याख्यान</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>नहीं</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>रोकें</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>चलाएँ</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>सूची पर वापस जाएँ</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>व्याख्यान दिखाएँ</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>रिकॉर्डिंग शुरू करें</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>समय डालें</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>हाँ</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>कैलेंडर</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>रिकॉर्ड करें</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>देखें</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>प्रति का समय</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>व्याख्यान</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>अब नहीं हैं</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>मौजूदा महीने पर जाएँ</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>व्याख्यान हैं</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>रिकॉर्ड करने के लिए “नया व्याख्यान” दबाएँ।</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>इस दिन कोई व्याख्यान नहीं है</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 ऑडियो (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>सहेजे बिना बंद करें</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>सहेजें (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>विषय बदलने के लिए क्लिक करें</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>रोकें (Space)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>रोकें (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>चलाएँ (Space)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>चलाएँ (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>यह व्याख्यान और इसकी रिकॉर्डिंग हटाएँ?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>दिखाया गया दिन</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>बीता समय</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>व्याख्यान</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>दिन</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>नोट्स</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>प्लेबैक की स्थिति</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>रिकॉर्डिंग का समय</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>रिकॉर्डिंग का स्तर</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>शेष समय</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>गति</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>विषय</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>यह व्याख्यान सहेजे जाने से पहले Tarvelo बंद हो गया। इसे इसके दिन के नीचे रखें, या पहले सुनें। यह विंडो बंद करने पर व्याख्यान अगली बार फिर दिखाया जाएगा।</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>यह व्याख्यान सहेजे जाने से पहले Tarvelo बंद हो गया। इसे इसके दिन के नीचे रखें। यह विंडो बंद करने पर व्याख्यान अगली बार फिर दिखाया जाएगा।</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>व्याख्यान अभी रखा नहीं जा सकता। कुछ खोया नहीं है: यह अगली बार फिर दिखाया जाएगा।</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Tarvelo के बारे में</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>पूरी सूची</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>व्याख्यान वापस लाएँ…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>विंडो बंद करें</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>सूची समेटें</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>मार्गदर्शिका</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>सहायता</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>मुख्य मेन्यू</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>अन्य प्रोग्राम</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>नया व्याख्यान</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo खोलें</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>प्राथमिकताएँ…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>बाहर निकलें</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>रिकॉर्डिंग का फ़ोल्डर दिखाएँ</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>सॉफ़्टवेयर स्टोर में Tarvelo</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>वेब पर Tarvelo</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>इस व्याख्यान का कोई ऑडियो नहीं है।</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>अगला महीना</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>यहाँ नोट्स लिखें</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>व्याख्यान का विषय</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>पिछला महीना</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>एक व्याख्यान रिकॉर्ड हो रहा है</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>डिस्क लगभग भर गई है। शेष मिनट: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>डिस्क पर बची जगह: %1 मिनट</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>कुछ सुनाई नहीं दे रहा। क्या माइक चालू है?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>हटाएँ</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>संपादित करें</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>संगीत लाइब्रेरी में निर्यात करें</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>और</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>चलाएँ</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>ईमेल से भेजें</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>फ़ाइल दिखाएँ</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>नई रिकॉर्डिंग का फ़ॉर्मेट</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>शुरुआत और दिखावट</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>लॉगिन पर खोलें</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>टास्क बार में दिखाएँ</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>स्टेटस बार में दिखाएँ</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>शुरू होने पर विंडो दिखाएँ</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>विंडो को सबसे ऊपर रखें</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>गति का पाँचवाँ हिस्सा</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>आधी गति</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>एक चौथाई गति</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>रिकॉर्ड की गई गति</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>एक तिहाई गति</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>व्याख्यान वापस लाएँ</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>व्याख्यान संपादित करें</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>अधूरा व्याख्यान</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>नया व्याख्यान</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>व्याख्यान</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>प्राथमिकताएँ</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
