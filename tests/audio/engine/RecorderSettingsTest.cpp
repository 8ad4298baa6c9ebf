#include "audio/engine/RecorderSettings.h"
#include "audio/engine/Settings.h"
#include "support/TestCase.h"

using namespace tarvelo::engine;
using tarvelo::tests::lectureSettings;

class RecorderSettingsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theLecturesSettingsAreRead()
    {
        const auto settings = RecorderSettings::fromDictionary(lectureSettings());

        QVERIFY(settings);
        QCOMPARE(settings->sampleRate, 44100);
        QCOMPARE(settings->channels, 2);
        QCOMPARE(settings->bitRate, 80000);
    }

    void everyNumberTypeIsANumber()
    {
        auto dictionary = lectureSettings();
        dictionary.insert(RecorderSettingKeys::SampleRate, 22050LL);
        dictionary.insert(RecorderSettingKeys::NumberOfChannels, 1.0);

        const auto settings = RecorderSettings::fromDictionary(dictionary);

        QVERIFY(settings);
        QCOMPARE(settings->sampleRate, 22050);
        QCOMPARE(settings->channels, 1);
    }

    void theQualityNeedNotBeGiven()
    {
        auto dictionary = lectureSettings();
        dictionary.remove(RecorderSettingKeys::EncoderQuality);

        QVERIFY(RecorderSettings::fromDictionary(dictionary));
    }

    void whatCannotBeMetIsRefused_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, QLatin1StringView key, const QVariant &value) {
            QTest::newRow(name) << QString(key) << value;
        };
        row("another format", RecorderSettingKeys::Format, 0x6c70636d);
        row("no format", RecorderSettingKeys::Format, {});
        row("a rate unknown to the encoder", RecorderSettingKeys::SampleRate, 44000.0F);
        row("a rate that is no whole number", RecorderSettingKeys::SampleRate, 44100.5F);
        row("a rate that is no number", RecorderSettingKeys::SampleRate, QStringLiteral("high"));
        row("no rate", RecorderSettingKeys::SampleRate, {});
        row("no channel", RecorderSettingKeys::NumberOfChannels, 0);
        row("three channels", RecorderSettingKeys::NumberOfChannels, 3);
        row("no channels", RecorderSettingKeys::NumberOfChannels, {});
        row("no bit rate", RecorderSettingKeys::EncoderBitRate, {});
        row("a negative bit rate", RecorderSettingKeys::EncoderBitRate, -80000);
        row("a bit rate beyond all whole numbers", RecorderSettingKeys::EncoderBitRate, 1e10);
        row("a bit rate that nobody knows", RecorderSettingKeys::EncoderBitRate, qQNaN());
        row("a bit rate beyond the encoder's", RecorderSettingKeys::EncoderBitRate, 4000000);
    }
    void whatCannotBeMetIsRefused()
    {
        QFETCH(QString, key);
        QFETCH(QVariant, value);
        auto dictionary = lectureSettings();

        dictionary.insert(key, value);

        QVERIFY(!RecorderSettings::fromDictionary(dictionary));
    }
};

QTEST_GUILESS_MAIN(RecorderSettingsTest)
#include "RecorderSettingsTest.moc"
