#include "audio/AudioFileLocations.h"

#include "platform/Dates.h"
#include "platform/UserDefaults.h"
#include "support/FakeClock.h"
#include "support/Modes.h"
#include "support/OrdinaryUser.h"
#include "support/TestCase.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

#include <optional>

using tarvelo::audio::AudioFileLocations;
using tarvelo::platform::Dates;
using tarvelo::platform::UserDefaults;
using tarvelo::tests::addUmasks;
using tarvelo::tests::FakeClock;
using tarvelo::tests::modeOf;
using tarvelo::tests::OrdinaryUser;
using tarvelo::tests::setMode;
using tarvelo::tests::Umask;

namespace {

QDateTime at(const QString &isoText)
{
    return QDateTime::fromString(isoText, Qt::ISODate);
}

} // namespace

class AudioFileLocationsTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void theTemporaryFileLiesInTheFolderOfTheProcess()
    {
        QCOMPARE(m_locations->temporaryBasePath(), QStringLiteral("tempAudioFile"));

        m_locations->createFolders();

        QCOMPARE(m_locations->temporaryBasePath(), path("Notes/temp/tempAudioFile"));
        QVERIFY(QFileInfo(path("Notes/temp")).isDir());
    }

    void theFoldersAreForTheirUserAlone_data() { addUmasks(); }
    void theFoldersAreForTheirUserAlone()
    {
        QFETCH(const mode_t, umask);
        const Umask mask(umask);

        m_locations->createFolders();
        m_locations->getAudioFolderPath();

        for (const char *folder :
             {"Notes", "Notes/temp", "Notes/Audio", "Tarvelo", "Tarvelo/Audio"})
            QCOMPARE(modeOf(path(folder)), QStringLiteral("700"));
    }

    void whatStandsThereFromAnotherMomentOfThatNameIsKept()
    {
        use({"de_DE", QStringLiteral("Europe/Berlin")});
        for (const char *sameTime : {"2024-10-27T00:30:00Z", "2024-10-27T01:30:00Z"}) {
            m_clock.set(at(QString::fromLatin1(sameTime)));
            const QString path = m_locations->getAudioSavePath();
            m_locations->makeWayAt(path);
            QVERIFY(write(path));
        }

        const QDir folder(m_locations->getAudioFolderPath());
        QCOMPARE(folder.entryList(QDir::Files),
                 QStringList({QStringLiteral("Audio - 20241027023000 2.aac"),
                              QStringLiteral("Audio - 20241027023000.aac")}));
    }

    void whatStandsThereFromThisSecondStays()
    {
        const QString path = m_locations->getAudioSavePath();
        m_locations->makeWayAt(path);
        QVERIFY(write(path));

        m_locations->makeWayAt(path);

        QVERIFY(QFile::exists(path));
        QCOMPARE(QDir(m_locations->getAudioFolderPath()).entryList(QDir::Files).size(), 1);
    }

    void whereAnEarlierFileCannotBeKeptTheSaveHasToGoElsewhere()
    {
        const QString path = m_locations->getAudioSavePath();
        QVERIFY(write(path));
        const QString folder = m_locations->getAudioFolderPath();
        QVERIFY(setMode(folder, 0500));
        {
            const OrdinaryUser user;
            QVERIFY(!m_locations->makeWayAt(path));
        }
        QVERIFY(setMode(folder, 0700));

        QVERIFY(QFile::exists(path));
        QVERIFY(m_locations->freeAudioSavePath() != path);
        QVERIFY(m_locations->makeWayAt(path));
    }

    void earlierFilesAreAllKept()
    {
        const QString path = m_locations->getAudioSavePath();
        for (int save = 0; save < 4; ++save) {
            m_locations->makeWayAt(path);
            QVERIFY(write(path));
            m_clock.advance(std::chrono::hours(1));
        }

        QCOMPARE(QDir(m_locations->getAudioFolderPath()).entryList(QDir::Files).size(), 4);
    }

    void foldersOfAnEarlierVersionBecomeTheirUsersAlone()
    {
        for (const char *folder : {"Notes", "Tarvelo"})
            QVERIFY(QDir().mkdir(path(folder)) && setMode(path(folder), 0755));

        m_locations->createFolders();

        QCOMPARE(modeOf(path("Notes")), QStringLiteral("700"));
        QCOMPARE(modeOf(path("Tarvelo")), QStringLiteral("700"));
    }

    void theFoldersOfTheProcessAreBothMadeAndTheProductsIsNot()
    {
        m_locations->createFolders();

        QVERIFY(QFileInfo(path("Notes/Audio")).isDir());
        QVERIFY(!QFileInfo::exists(path("Tarvelo")));
    }

    void underItsOwnNameTheProgramHasOneAudioFolder()
    {
        AudioFileLocations locations({m_dir->path(), QStringLiteral("Tarvelo")}, *m_defaults,
                                     *m_dates);

        locations.createFolders();

        QVERIFY(QFileInfo(path("Tarvelo/Audio")).isDir());
        QCOMPARE(locations.getAudioFolderPath(), path("Tarvelo/Audio/"));
    }

    void foldersThatAreThereKeepWhatTheyHold()
    {
        QDir(m_dir->path()).mkpath(QStringLiteral("Notes/temp"));
        QVERIFY(write(path("Notes/temp/tempAudioFile.m4a")));

        m_locations->createFolders();

        QVERIFY(QFile::exists(path("Notes/temp/tempAudioFile.m4a")));
    }

    void aFileInThePlaceOfAFolderIsLeftThere()
    {
        QVERIFY(write(path("Tarvelo")));

        QCOMPARE(m_locations->getAudioFolderPath(), path("Tarvelo/Audio/"));
        QVERIFY(QFileInfo(path("Tarvelo")).isFile());
    }

    void aFolderThatCannotBeMadeIsNoTrouble()
    {
        const OrdinaryUser ordinary;
        QFile::setPermissions(m_dir->path(), QFile::ReadOwner | QFile::ExeOwner);

        m_locations->createFolders();
        const QString folder = m_locations->getAudioFolderPath();

        QFile::setPermissions(m_dir->path(),
                              QFile::ReadOwner | QFile::WriteOwner | QFile::ExeOwner);
        QCOMPARE(folder, path("Tarvelo/Audio/"));
        QCOMPARE(m_locations->temporaryBasePath(), path("Notes/temp/tempAudioFile"));
        QVERIFY(!QFileInfo::exists(path("Notes")));
    }

    void aLeadingTildeIsTheHome()
    {
        const QByteArray home = qgetenv("HOME");
        qputenv("HOME", QFile::encodeName(m_dir->path()));
        AudioFileLocations locations({QStringLiteral("~"), QStringLiteral("Notes")}, *m_defaults,
                                     *m_dates);

        locations.createFolders();
        const QString folder = locations.getAudioFolderPath();

        qputenv("HOME", home);
        QCOMPARE(folder, path("Tarvelo/Audio/"));
        QCOMPARE(locations.temporaryBasePath(), path("Notes/temp/tempAudioFile"));
        QVERIFY(QFileInfo(path("Notes/Audio")).isDir());
    }

    void theAudioFolderIsTheProductsAndMadeWhenItIsAskedFor()
    {
        QVERIFY(!QFileInfo::exists(path("Tarvelo/Audio")));

        QCOMPARE(m_locations->getAudioFolderPath(), path("Tarvelo/Audio/"));

        QVERIFY(QFileInfo(path("Tarvelo/Audio")).isDir());
    }

    void theTemporaryPathIsEmptyUntilItIsSet()
    {
        m_locations->createFolders();
        QCOMPARE(m_locations->tempAudioSavePath(), QString());

        m_locations->setTempAudioSavePathWithFormat();
        QVERIFY(!m_locations->tempAudioSavePath().isEmpty());

        m_locations->clearTempAudioSavePath();
        QCOMPARE(m_locations->tempAudioSavePath(), QString());
    }

    void takesCanLieElsewhereUnderTheSameName()
    {
        m_locations->createFolders();
        m_locations->takesLieIn(QStringLiteral("/elsewhere"));
        QCOMPARE(m_locations->tempAudioSavePath(), QString());
        QCOMPARE(m_locations->temporaryFolder(), QStringLiteral("/elsewhere"));
        m_locations->setTempAudioSavePathWithFormat();
        QCOMPARE(m_locations->tempAudioSavePath(), QStringLiteral("/elsewhere/tempAudioFile.aac"));

        m_locations->takesLieIn(QStringLiteral("/nowhere"));

        QCOMPARE(m_locations->tempAudioSavePath(), QStringLiteral("/nowhere/tempAudioFile.aac"));
    }

    void theFormatChoosesTheExtension_data()
    {
        QTest::addColumn<QVariant>("format");
        QTest::addColumn<QString>("extension");
        QTest::newRow("unset") << QVariant() << QStringLiteral("aac");
        QTest::newRow("0") << QVariant(0) << QStringLiteral("aac");
        QTest::newRow("1") << QVariant(1) << QStringLiteral("m4a");
        QTest::newRow("7, which is not offered") << QVariant(7) << QStringLiteral("m4a");
        QTest::newRow("-1") << QVariant(-1) << QStringLiteral("m4a");
    }
    void theFormatChoosesTheExtension()
    {
        QFETCH(QVariant, format);
        QFETCH(QString, extension);
        m_locations->createFolders();
        if (format.isValid())
            m_defaults->setValue(QStringLiteral("fileFormat"), format);

        m_locations->setTempAudioSavePathWithFormat();

        QCOMPARE(m_locations->extensionByFormat(), extension);
        QCOMPARE(m_locations->tempAudioSavePath(), path("Notes/temp/tempAudioFile.") + extension);
        QCOMPARE(m_locations->getAudioSavePath(),
                 path("Tarvelo/Audio//Audio - 20240305090000.") + extension);
    }

    void aChangedFormatIsReadAtEverySaveAndLosesTheWaitingTake()
    {
        m_locations->createFolders();
        m_locations->setTempAudioSavePathWithFormat();
        QVERIFY(write(m_locations->tempAudioSavePath()));

        m_defaults->setValue(QStringLiteral("fileFormat"), 1);
        QVERIFY(m_locations->getAudioSavePath().endsWith(QStringLiteral(".m4a")));
        QVERIFY(QFile::exists(m_locations->tempAudioSavePath()));

        m_locations->setTempAudioSavePathWithFormat();
        QVERIFY(!QFile::exists(m_locations->tempAudioSavePath()));
    }

    void aSavePathHasTwoSlashesBeforeItsName()
    {
        const QString saved = m_locations->getAudioSavePath();

        QCOMPARE(saved, path("Tarvelo/Audio//Audio - 20240305090000.aac"));
        QVERIFY(QFileInfo(path("Tarvelo/Audio")).isDir());
        QVERIFY(!QFile::exists(saved));
        QVERIFY(write(saved));
        QVERIFY(QFile::exists(path("Tarvelo/Audio/Audio - 20240305090000.aac")));
    }

    void twoSavesInOneSecondShareAPath()
    {
        const QString first = m_locations->getAudioSavePath();

        m_clock.advance(std::chrono::milliseconds(999));
        QCOMPARE(m_locations->getAudioSavePath(), first);

        m_clock.advance(std::chrono::milliseconds(1));
        QCOMPARE(m_locations->getAudioSavePath(),
                 path("Tarvelo/Audio//Audio - 20240305090001.aac"));
    }

    void aSaveNameHasTheYearOfItsWeekAndTheUsersDigits_data()
    {
        QTest::addColumn<QByteArray>("locale");
        QTest::addColumn<QString>("moment");
        QTest::addColumn<QString>("stamp");
        const auto row = [](const char *locale, const char *moment, const char *stamp) {
            QTest::addRow("%s %s", locale, moment)
                << QByteArray(locale) << QString::fromLatin1(moment) << QString::fromUtf8(stamp);
        };
        row("en_US", "2024-12-28T23:59:58Z", "20241228235958");
        row("en_US", "2024-12-29T10:20:30Z", "20251229102030");
        row("de_DE", "2024-12-29T10:20:30Z", "20241229102030");
        row("de_DE", "2024-12-30T10:20:30Z", "20251230102030");
        row("en_US", "2021-01-01T10:20:30Z", "20210101102030");
        row("de_DE", "2021-01-01T10:20:30Z", "20200101102030");
        row("de_DE", "2021-01-03T23:59:59Z", "20200103235959");
        row("de_DE", "2021-01-04T00:00:00Z", "20210104000000");
        row("ar_EG", "2024-03-05T09:00:00Z", "٢٠٢٤٠٣٠٥٠٩٠٠٠٠");
        row("fa_IR", "2024-03-05T09:00:00Z", "۱۴۰۲۱۲۱۵۰۹۰۰۰۰");
        row("th_TH", "2024-03-05T09:00:00Z", "20240305090000");
    }
    void aSaveNameHasTheYearOfItsWeekAndTheUsersDigits()
    {
        QFETCH(QByteArray, locale);
        QFETCH(QString, moment);
        QFETCH(QString, stamp);
        use({locale, QStringLiteral("UTC")});
        m_clock.set(at(moment));

        QCOMPARE(m_locations->getAudioSavePath(),
                 path("Tarvelo/Audio//Audio - ") + stamp + QStringLiteral(".aac"));
    }

    void aSaveNameHasTheUsersTimeOfDay()
    {
        use({"de_DE", QStringLiteral("Europe/Berlin")});
        m_clock.set(at(QStringLiteral("2024-12-29T23:30:00Z")));

        QVERIFY(m_locations->getAudioSavePath().endsWith(
            QStringLiteral("/Audio - 20251230003000.aac")));
    }

private:
    void prepare() override
    {
        m_dir.emplace();
        m_clock.set(at(QStringLiteral("2024-03-05T09:00:00Z")));
        m_defaults.emplace(path("settings.conf"));
        use({"en_US", QStringLiteral("UTC")});
    }
    void finish() override
    {
        m_locations.reset();
        m_dates.reset();
        m_defaults.reset();
        m_dir.reset();
    }
    // The process goes by another name than the product, so that the two can be told apart.
    void use(const tarvelo::platform::Region &region)
    {
        m_locations.reset();
        m_dates.emplace(m_clock, region);
        m_locations.emplace(tarvelo::platform::Places{m_dir->path(), QStringLiteral("Notes")},
                            *m_defaults, *m_dates);
    }

    QString path(const char *name) const { return m_dir->filePath(QString::fromLatin1(name)); }
    static bool write(const QString &file)
    {
        QFile device(file);
        return device.open(QIODevice::WriteOnly) && device.write("sound") == 5;
    }

    FakeClock m_clock;
    std::optional<QTemporaryDir> m_dir;
    std::optional<UserDefaults> m_defaults;
    std::optional<Dates> m_dates;
    std::optional<AudioFileLocations> m_locations;
};

QTEST_GUILESS_MAIN(AudioFileLocationsTest)
#include "AudioFileLocationsTest.moc"
