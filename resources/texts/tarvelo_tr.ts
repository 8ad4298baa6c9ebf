<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name></name>
    <message id="ANNOUNCE_LECTURE_SAVED">
        <source></source>
        <translation>Ders kaydedildi</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_DISCARDED">
        <source></source>
        <translation>Kayıt silindi</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_PAUSED">
        <source></source>
        <translation>Kayıt duraklatıldı</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_RESUMED">
        <source></source>
        <translation>Kayıt sürdürüldü</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STARTED">
        <source></source>
        <translation>Kayıt başladı</translation>
    </message>
    <message id="ANNOUNCE_RECORDING_STOPPED">
        <source></source>
        <translation>Kayıt durduruldu</translation>
    </message>
    <message id="ANNOUNCE_SOUND_HEARD_AGAIN">
        <source></source>
        <translation>Ses yeniden duyuluyor</translation>
    </message>
    <message id="BRING_BACK_CHOOSE">
        <source></source>
        <translation>Bir kopya seçin: eksik olanlar geri gelir, başka hiçbir şey değişmez.</translation>
    </message>
    <message id="BRING_BACK_DAMAGED">
        <source></source>
        <translation>Ders dosyasının %1 tarihinde hasarlı olduğu görüldü. Dosya bütünüyle bir kenara kondu; okunabilen her şey yine burada.</translation>
    </message>
    <message id="BRING_BACK_DONE">
        <source></source>
        <translation>Geri getirilen dersler: %1</translation>
    </message>
    <message id="BRING_BACK_EXPLAINED">
        <source></source>
        <translation>Tarvelo, birçok ders birden silinmeden önce hepsinin bir kopyasını saklar.</translation>
    </message>
    <message id="BRING_BACK_FAILED">
        <source></source>
        <translation>Dersler şu anda geri getirilemiyor. Hiçbir şey değiştirilmedi.</translation>
    </message>
    <message id="BRING_BACK_NO_COPIES">
        <source></source>
        <translation>Henüz kopya yok: şimdiye kadar dersler toplu olarak silinmedi.</translation>
    </message>
    <message id="BRING_BACK_RECORDINGS">
        <source></source>
        <translation>Dersi olmayan kayıtlar</translation>
    </message>
    <message id="BUTTON_BRING_BACK">
        <source></source>
        <translation>Geri getir</translation>
    </message>
    <message id="BUTTON_CANCEL">
        <source></source>
        <translation>İptal</translation>
    </message>
    <message id="BUTTON_CLOSE">
        <source></source>
        <translation>Kapat</translation>
    </message>
    <message id="BUTTON_DELETE">
        <source></source>
        <translation>Sil</translation>
    </message>
    <message id="BUTTON_DISCARD_LECTURE">
        <source></source>
        <translation>Sil</translation>
    </message>
    <message id="BUTTON_DONE">
        <source></source>
        <translation>Bitti</translation>
    </message>
    <message id="BUTTON_KEEP_LECTURE">
        <source></source>
        <translation>Sakla</translation>
    </message>
    <message id="BUTTON_LISTEN">
        <source></source>
        <translation>Dinle</translation>
    </message>
    <message id="BUTTON_NEW_LECTURE">
        <source></source>
        <translation>Yeni ders</translation>
    </message>
    <message id="BUTTON_NO">
        <source></source>
        <translation>Hayır</translation>
    </message>
    <message id="BUTTON_PAUSE">
        <source></source>
        <translation>Duraklat</translation>
    </message>
    <message id="BUTTON_PLAY">
        <source></source>
        <translation>Oynat</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_LIST">
        <source></source>
        <translation>Listeye dön</translation>
    </message>
    <message id="BUTTON_SLIDE_TO_VIEW">
        <source></source>
        <translation>Dersi göster</translation>
    </message>
    <message id="BUTTON_START_RECORDING">
        <source></source>
        <translation>Kaydı başlat</translation>
    </message>
    <message id="BUTTON_TIME_TAG">
        <source></source>
        <translation>Zamanı ekle</translation>
    </message>
    <message id="BUTTON_YES">
        <source></source>
        <translation>Evet</translation>
    </message>
    <message id="CALENDAR">
        <source></source>
        <translation>Takvim</translation>
    </message>
    <message id="CAPTION_RECORD">
        <source></source>
        <translation>Kaydet</translation>
    </message>
    <message id="CAPTION_VIEW">
        <source></source>
        <translation>Görüntüle</translation>
    </message>
    <message id="COLUMN_COPY_OF">
        <source></source>
        <translation>Kopya tarihi</translation>
    </message>
    <message id="COLUMN_LECTURES">
        <source></source>
        <translation>Dersler</translation>
    </message>
    <message id="COLUMN_MISSING">
        <source></source>
        <translation>Eksik</translation>
    </message>
    <message id="CURRENT_MONTH">
        <source></source>
        <translation>Bu aya git</translation>
    </message>
    <message id="DAY_HAS_LECTURES">
        <source></source>
        <translation>Ders var</translation>
    </message>
    <message id="EMPTY_DAY_HINT">
        <source></source>
        <translation>Kaydetmek için “Yeni ders” düğmesine basın.</translation>
    </message>
    <message id="EMPTY_DAY_TITLE">
        <source></source>
        <translation>Bu günde ders yok</translation>
    </message>
    <message id="FILEFORMAT_AAC">
        <source></source>
        <translation>AAC (.aac)</translation>
    </message>
    <message id="FILEFORMAT_M4A">
        <source></source>
        <translation>MPEG-4 ses (.m4a)</translation>
    </message>
    <message id="HINT_CANCEL_EDIT">
        <source></source>
        <translation>Kaydetmeden kapat</translation>
    </message>
    <message id="HINT_DONE">
        <source></source>
        <translation>Kaydet (Ctrl+Enter)</translation>
    </message>
    <message id="HINT_EDIT_SUBJECT">
        <source></source>
        <translation>Konuyu değiştirmek için tıklayın</translation>
    </message>
    <message id="HINT_PAUSE">
        <source></source>
        <translation>Duraklat (Boşluk)</translation>
    </message>
    <message id="HINT_PAUSE_EDIT">
        <source></source>
        <translation>Duraklat (F8)</translation>
    </message>
    <message id="HINT_PLAY">
        <source></source>
        <translation>Oynat (Boşluk)</translation>
    </message>
    <message id="HINT_PLAY_EDIT">
        <source></source>
        <translation>Oynat (F8)</translation>
    </message>
    <message id="LABEL_CONFIRM_RECORDDELETE">
        <source></source>
        <translation>Bu ders ve kaydı silinsin mi?</translation>
    </message>
    <message id="LABEL_DAY_SHOWN">
        <source></source>
        <translation>Gösterilen gün</translation>
    </message>
    <message id="LABEL_ELAPSED_TIME">
        <source></source>
        <translation>Geçen süre</translation>
    </message>
    <message id="LABEL_LECTURES">
        <source></source>
        <translation>Dersler</translation>
    </message>
    <message id="LABEL_LECTURE_DAY">
        <source></source>
        <translation>Gün</translation>
    </message>
    <message id="LABEL_NOTES">
        <source></source>
        <translation>Notlar</translation>
    </message>
    <message id="LABEL_PLAYBACK_POSITION">
        <source></source>
        <translation>Oynatma konumu</translation>
    </message>
    <message id="LABEL_RECORDING_DURATION">
        <source></source>
        <translation>Kayıt süresi</translation>
    </message>
    <message id="LABEL_RECORDING_LEVEL">
        <source></source>
        <translation>Kayıt düzeyi</translation>
    </message>
    <message id="LABEL_REMAINING_TIME">
        <source></source>
        <translation>Kalan süre</translation>
    </message>
    <message id="LABEL_SPEED">
        <source></source>
        <translation>Hız</translation>
    </message>
    <message id="LABEL_SUBJECT">
        <source></source>
        <translation>Konu</translation>
    </message>
    <message id="LAYOUT_DIRECTION">
        <source></source>
        <translation>LTR</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED">
        <source></source>
        <translation>Tarvelo bu ders kaydedilmeden sona erdi. Dersi kendi günü altında saklayın veya önce dinleyin. Bu pencereyi kapatırsanız ders bir sonraki açılışta yeniden sunulur.</translation>
    </message>
    <message id="LEFT_LECTURE_EXPLAINED_NO_AUDIO">
        <source></source>
        <translation>Tarvelo bu ders kaydedilmeden sona erdi. Dersi kendi günü altında saklayın. Bu pencereyi kapatırsanız ders bir sonraki açılışta yeniden sunulur.</translation>
    </message>
    <message id="LEFT_LECTURE_NOT_NOW">
        <source></source>
        <translation>Ders şu anda saklanamıyor. Hiçbir şey kaybolmadı: bir sonraki açılışta yeniden sunulur.</translation>
    </message>
    <message id="MENU_ABOUT">
        <source></source>
        <translation>Tarvelo hakkında</translation>
    </message>
    <message id="MENU_ALL_LIST">
        <source></source>
        <translation>Tüm liste</translation>
    </message>
    <message id="MENU_BRING_LECTURES_BACK">
        <source></source>
        <translation>Dersleri geri getir…</translation>
    </message>
    <message id="MENU_CLOSE_WINDOW">
        <source></source>
        <translation>Pencereyi kapat</translation>
    </message>
    <message id="MENU_FOLD_LIST">
        <source></source>
        <translation>Listeyi daralt</translation>
    </message>
    <message id="MENU_GUIDE">
        <source></source>
        <translation>Kılavuz</translation>
    </message>
    <message id="MENU_HELP">
        <source></source>
        <translation>Yardım</translation>
    </message>
    <message id="MENU_MAIN">
        <source></source>
        <translation>Ana menü</translation>
    </message>
    <message id="MENU_MORE_PROGRAMS">
        <source></source>
        <translation>Diğer programlar</translation>
    </message>
    <message id="MENU_NEW_LECTURE">
        <source></source>
        <translation>Yeni ders</translation>
    </message>
    <message id="MENU_OPEN">
        <source></source>
        <translation>Tarvelo’yu aç</translation>
    </message>
    <message id="MENU_PREFERENCES">
        <source></source>
        <translation>Tercihler…</translation>
    </message>
    <message id="MENU_QUIT">
        <source></source>
        <translation>Çık</translation>
    </message>
    <message id="MENU_SHOW_FOLDER">
        <source></source>
        <translation>Kayıt klasörünü göster</translation>
    </message>
    <message id="MENU_STORE_PAGE">
        <source></source>
        <translation>Yazılım mağazasında Tarvelo</translation>
    </message>
    <message id="MENU_WEB_PAGE">
        <source></source>
        <translation>Web’de Tarvelo</translation>
    </message>
    <message id="MSG_NO_AUDIO_FOR_LECTURE">
        <source></source>
        <translation>Bu dersin ses kaydı yok.</translation>
    </message>
    <message id="NEXT_MONTH">
        <source></source>
        <translation>Sonraki ay</translation>
    </message>
    <message id="PLACEHOLDER_NOTES">
        <source></source>
        <translation>Notları buraya yazın</translation>
    </message>
    <message id="PLACEHOLDER_SUBJECT">
        <source></source>
        <translation>Dersin konusu</translation>
    </message>
    <message id="PREVIOUS_MONTH">
        <source></source>
        <translation>Önceki ay</translation>
    </message>
    <message id="REASON_RECORDING">
        <source></source>
        <translation>Bir ders kaydediliyor</translation>
    </message>
    <message id="RECORDING_HARDLY_ANY_ROOM">
        <source></source>
        <translation>Disk neredeyse dolu. Kalan dakika: %1</translation>
    </message>
    <message id="RECORDING_LITTLE_ROOM">
        <source></source>
        <translation>Diskte kalan yer: %1 dk</translation>
    </message>
    <message id="RECORDING_NOTHING_HEARD">
        <source></source>
        <translation>Hiçbir şey duyulmuyor. Mikrofon açık mı?</translation>
    </message>
    <message id="ROW_DELETE">
        <source></source>
        <translation>Sil</translation>
    </message>
    <message id="ROW_EDIT">
        <source></source>
        <translation>Düzenle</translation>
    </message>
    <message id="ROW_EXPORT">
        <source></source>
        <translation>Müzik kitaplığına aktar</translation>
    </message>
    <message id="ROW_INFO">
        <source></source>
        <translation>Daha fazla</translation>
    </message>
    <message id="ROW_PLAY">
        <source></source>
        <translation>Oynat</translation>
    </message>
    <message id="ROW_SHARE">
        <source></source>
        <translation>E-posta ile paylaş</translation>
    </message>
    <message id="ROW_SHOW_FILE">
        <source></source>
        <translation>Dosyayı göster</translation>
    </message>
    <message id="SETTING_FILEFORMAT">
        <source></source>
        <translation>Yeni kayıtların biçimi</translation>
    </message>
    <message id="SETTING_OPENAPPAUTOMATICALLY">
        <source></source>
        <translation>Başlatma ve görünüm</translation>
    </message>
    <message id="SETTING_OPENATLOGIN">
        <source></source>
        <translation>Oturum açılışında aç</translation>
    </message>
    <message id="SETTING_OPENINDOCK">
        <source></source>
        <translation>Görev çubuğunda göster</translation>
    </message>
    <message id="SETTING_OPENINSTATUSBAR">
        <source></source>
        <translation>Durum çubuğunda göster</translation>
    </message>
    <message id="SETTING_SHOWWINDOWATLOGIN">
        <source></source>
        <translation>Başlangıçta pencereyi göster</translation>
    </message>
    <message id="SETTING_WINDOWONTOP">
        <source></source>
        <translation>Pencereyi üstte tut</translation>
    </message>
    <message id="SPEED_FIFTH">
        <source></source>
        <translation>Hızın beşte biri</translation>
    </message>
    <message id="SPEED_HALF">
        <source></source>
        <translation>Hızın yarısı</translation>
    </message>
    <message id="SPEED_QUARTER">
        <source></source>
        <translation>Hızın dörtte biri</translation>
    </message>
    <message id="SPEED_RECORDED">
        <source></source>
        <translation>Kaydedilen hız</translation>
    </message>
    <message id="SPEED_THIRD">
        <source></source>
        <translation>Hızın üçte biri</translation>
    </message>
    <message id="TITLE_BRING_LECTURES_BACK">
        <source></source>
        <translation>Dersleri geri getir</translation>
    </message>
    <message id="TITLE_EDIT_LECTURE">
        <source></source>
        <translation>Dersi düzenle</translation>
    </message>
    <message id="TITLE_LEFT_LECTURE">
        <source></source>
        <translation>Tamamlanmamış ders</translation>
    </message>
    <message id="TITLE_NEW_LECTURE">
        <source></source>
        <translation>Yeni ders</translation>
    </message>
    <message id="TITLE_PLAY_LECTURE">
        <source></source>
        <translation>Ders</translation>
    </message>
    <message id="TITLE_PREFERENCES">
        <source></source>
        <translation>Tercihler</translation>
    </message>
    <message id="TXT_TARVELO">
        <source></source>
        <translation>Tarvelo</translation>
    </message>
</context>
</TS>
