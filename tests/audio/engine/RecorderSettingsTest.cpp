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
        dictionary.insert(RecorderSetting::SampleRate, 22050LL);
        dictionary.insert(RecorderSetting::NumberOfChannels, 1.0);

        const auto settings = RecorderSettings::fromDictionary(dictionary);

        QVERIFY(settings);
        QCOMPARE(settings->sampleRate, 22050);
        QCOMPARE(settings->channels, 1);
    }

    void theQualityNeedNotBeGiven()
    {
        auto dictionary = lectureSettings();
        dictionary.remove(RecorderSetting::EncoderQuality);

        QVERIFY(RecorderSettings::fromDictionary(dictionary));
    }

    void whatCannotBeMetIsRefused_data()
    {
        QTest::addColumn<QString>("key");
        QTest::addColumn<QVariant>("value");
        const auto row = [](const char *name, QLatin1StringView key, const QVariant &value) {
            QTest::newRow(name) << QString(key) << value;
        };
        row("another format", RecorderSetting::Format, 0x6c70636d);
        row("no format", RecorderSetting::Format, {});
        row("a rate unknown to the encoder", RecorderSetting::SampleRate, 44000.0F);
        row("a rate that is no whole number", RecorderSetting::SampleRate, 44100.5F);
        row("a rate that is no number", RecorderSetting::SampleRate, QStringLiteral("high"));
        row("no rate", RecorderSetting::SampleRate, {});
        row("no channel", RecorderSetting::NumberOfChannels, 0);
        row("three channels", RecorderSetting::NumberOfChannels, 3);
        row("no channels", RecorderSetting::NumberOfChannels, {});
        row("no bit rate", RecorderSetting::EncoderBitRate, {});
        row("a negative bit rate", RecorderSetting::EncoderBitRate, -80000);
        row("a bit rate beyond all whole numbers", RecorderSetting::EncoderBitRate, 1e10);
        row("a bit rate that nobody knows", RecorderSetting::EncoderBitRate, qQNaN());
        row("a bit rate beyond the encoder's", RecorderSetting::EncoderBitRate, 4000000);
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
