#include "platform/UserDefaults.h"

#include "support/FolderCase.h"
#include "support/Modes.h"

#include <QFile>

using tarvelo::platform::UserDefaults;
using tarvelo::tests::addUmasks;
using tarvelo::tests::modeOf;
using tarvelo::tests::Umask;

class UserDefaultsTest final : public tarvelo::tests::FolderCase
{
    Q_OBJECT

private:
    QString file() const { return m_folder->filePath(QStringLiteral("some/where/Tarvelo.conf")); }

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

    void theSettingsAreForTheirUserAlone_data() { addUmasks(); }
    void theSettingsAreForTheirUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);

        UserDefaults defaults(file());
        defaults.setValue(QStringLiteral("windowOnTop"), true);
        defaults.synchronize();

        QCOMPARE(modeOf(file()), QStringLiteral("600"));
        QCOMPARE(modeOf(m_folder->filePath(QStringLiteral("some/where"))), QStringLiteral("700"));
        QCOMPARE(modeOf(m_folder->filePath(QStringLiteral("some"))), QStringLiteral("700"));
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
