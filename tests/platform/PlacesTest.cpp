#include "platform/Places.h"

#include "support/EnvironmentVariable.h"
#include "support/TestCase.h"

#include <QTemporaryDir>

#include <optional>

using namespace Qt::StringLiterals;
using tarvelo::platform::pathForResource;
using tarvelo::platform::Places;
using tarvelo::tests::EnvironmentVariable;

class PlacesTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void musicLiesWhereTheEnvironmentSays()
    {
        const EnvironmentVariable wish("XDG_MUSIC_DIR", u"/media/My Music"_s);

        QCOMPARE(Places::ofProcess().music, u"/media/My Music"_s);
    }

    void aLeadingTildeIsTheHome()
    {
        const EnvironmentVariable wish("XDG_MUSIC_DIR", u"~/Klang"_s);

        QCOMPARE(Places::ofProcess().music, m_home->filePath(u"Klang"_s));
    }

    void musicLiesWhereTheDesktopSays()
    {
        writeSettings("XDG_MUSIC_DIR=\"$HOME/Musik\"\n");

        QCOMPARE(Places::ofProcess().music, m_home->filePath(u"Musik"_s));
    }

    void aPathThatIsNotWholeIsNoWish()
    {
        const EnvironmentVariable wish("XDG_MUSIC_DIR", u"Klang"_s);
        writeSettings("XDG_MUSIC_DIR=\"$HOME/Musik\"\n");

        QCOMPARE(Places::ofProcess().music, m_home->filePath(u"Musik"_s));
    }

    void withoutAnyWishMusicLiesInTheHome()
    {
        QCOMPARE(Places::ofProcess().music, m_home->filePath(u"Music"_s));
    }

    void theProcessHasItsFolderAndTheProductHasOne()
    {
        const Places places{u"/data"_s, u"Other"_s};
        const Places usual{u"/data"_s, u"Tarvelo"_s};

        QCOMPARE(places.processFolder(), u"/data/Other"_s);
        QCOMPARE(places.productFolder(), u"/data/Tarvelo"_s);
        QCOMPARE(usual.processFolder(), usual.productFolder());
    }

    void dataBelowATildeLieInTheHome()
    {
        const Places places{u"~/data"_s, u"Other"_s};

        QCOMPARE(places.processFolder(), m_home->filePath(u"data/Other"_s));
        QCOMPARE(places.productFolder(), m_home->filePath(u"data/Tarvelo"_s));
    }

    void whatWasInstalledWithTheProgramLiesBesideItsFolder()
    {
        const QDir prefix(QCoreApplication::applicationDirPath() + u"/.."_s);

        QCOMPARE(Places::ofProcess().resources,
                 QDir::cleanPath(prefix.filePath(u"share/Tarvelo"_s)));
    }

    void aResourceIsFoundByItsNameAndType()
    {
        writeSettings("");

        QCOMPARE(pathForResource(m_home->path(), u"user-dirs"_s, u"dirs"_s),
                 m_home->filePath(u"user-dirs.dirs"_s));
    }

    void aResourceThatIsNotThereIsNoPath()
    {
        QVERIFY(QDir(m_home->path()).mkdir(u"Folder.pdf"_s));

        QCOMPARE(pathForResource(m_home->path(), u"Guide"_s, u"pdf"_s), QString());
        QCOMPARE(pathForResource(m_home->path(), u"Folder"_s, u"pdf"_s), QString());
    }

private:
    void prepare() override
    {
        m_home.emplace();
        m_homeBefore.emplace("HOME", m_home->path());
        m_config.emplace("XDG_CONFIG_HOME", m_home->path());
        m_noWish.emplace("XDG_MUSIC_DIR", QString());
    }
    void finish() override
    {
        m_noWish.reset();
        m_config.reset();
        m_homeBefore.reset();
        m_home.reset();
    }
    void writeSettings(const QByteArray &text) const
    {
        QFile file(m_home->filePath(u"user-dirs.dirs"_s));
        QVERIFY(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    }

    std::optional<QTemporaryDir> m_home;
    std::optional<EnvironmentVariable> m_homeBefore;
    std::optional<EnvironmentVariable> m_config;
    std::optional<EnvironmentVariable> m_noWish;
};

QTEST_GUILESS_MAIN(PlacesTest)
#include "PlacesTest.moc"
