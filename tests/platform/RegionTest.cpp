#include "platform/Region.h"

#include "support/TestCase.h"

using tarvelo::platform::Region;

class RegionTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    static void setEnvironment(const char *all, const char *time, const char *language)
    {
        qputenv("LC_ALL", all);
        qputenv("LC_TIME", time);
        qputenv("LANG", language);
    }

private Q_SLOTS:
    void theLocaleComesFromTheFirstVariableThatIsSet()
    {
        setEnvironment("", "", "de_DE.UTF-8");
        QCOMPARE(Region::ofUser().locale, QByteArray("de_DE"));

        setEnvironment("", "en_GB.UTF-8", "de_DE.UTF-8");
        QCOMPARE(Region::ofUser().locale, QByteArray("en_GB"));

        setEnvironment("ar_EG.UTF-8", "en_GB.UTF-8", "de_DE.UTF-8");
        QCOMPARE(Region::ofUser().locale, QByteArray("ar_EG"));
    }

    void noLanguageIsAmericanEnglish_data()
    {
        QTest::addColumn<QByteArray>("language");
        for (const char *language : {"", "C", "C.UTF-8", "POSIX"})
            QTest::addRow("'%s'", language) << QByteArray(language);
    }
    void noLanguageIsAmericanEnglish()
    {
        QFETCH(QByteArray, language);

        setEnvironment("", "", language.constData());

        QCOMPARE(Region::ofUser().locale, QByteArray("en_US"));
    }

    void theTimeZoneIsTheSystems()
    {
        qputenv("TZ", "America/New_York");

        QCOMPARE(Region::ofUser().timeZone, QStringLiteral("America/New_York"));
    }
};

QTEST_GUILESS_MAIN(RegionTest)
#include "RegionTest.moc"
