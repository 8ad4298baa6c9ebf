#include "platform/UserDefaults.h"

#include "support/TestCase.h"

#include <QFile>
#include <QTemporaryDir>

using tarvelo::platform::UserDefaults;

class UserDefaultsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private:
    std::unique_ptr<QTemporaryDir> m_folder;
    QString file() const { return m_folder->filePath(QStringLiteral("some/where/Tarvelo.conf")); }

protected:
    void prepare() override { m_folder = std::make_unique<QTemporaryDir>(); }

private Q_SLOTS:
    void aKeyThatNobodySetIsNought()
    {
        const UserDefaults defaults(file());

        QVERIFY(!defaults.value(QStringLiteral("fileFormat")).isValid());
        QCOMPARE(defaults.integerForKey(QStringLiteral("fileFormat")), 0);
        QVERIFY(!defaults.boolForKey(QStringLiteral("fileFormat")));
    }

    void aRegisteredDefaultStandsBehindWhatIsSet()
    {
        UserDefaults defaults(file());
        defaults.registerDefaults({{QStringLiteral("fileFormat"), 1}});
        QCOMPARE(defaults.integerForKey(QStringLiteral("fileFormat")), 1);

        defaults.setValue(QStringLiteral("fileFormat"), 0);

        QCOMPARE(defaults.integerForKey(QStringLiteral("fileFormat")), 0);
    }

    void whatIsWrittenOutIsThereForTheNextRun()
    {
        UserDefaults first(file());
        first.setValue(QStringLiteral("windowOnTop"), true);
        first.synchronize();

        QVERIFY(QFile::exists(file()));
        QVERIFY(UserDefaults(file()).boolForKey(QStringLiteral("windowOnTop")));
    }

    void registeredDefaultsAreNeverWritten()
    {
        {
            UserDefaults first(file());
            first.registerDefaults({{QStringLiteral("fileFormat"), 1}});
            first.setValue(QStringLiteral("windowOnTop"), true);
            first.synchronize();
        }

        QVERIFY(!UserDefaults(file()).value(QStringLiteral("fileFormat")).isValid());
    }

    void theFileLiesBelowTheConfigurationFolder()
    {
        QVERIFY(UserDefaults::standardFile().endsWith(u"/Tarvelo/Tarvelo.conf"));
    }
};

QTEST_GUILESS_MAIN(UserDefaultsTest)
#include "UserDefaultsTest.moc"
