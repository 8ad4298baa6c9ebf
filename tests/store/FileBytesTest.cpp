#include "store/FileBytes.h"

#include "store/DamagedDatabases.h"
#include "support/Modes.h"
#include "support/TestCase.h"

#include <QTemporaryDir>

#include <memory>

using namespace Qt::StringLiterals;
using namespace tarvelo::store;
using namespace tarvelo::tests;

class FileBytesTest final : public TestCase
{
    Q_OBJECT

private Q_SLOTS:
    void aCopyTakesThePlaceOfWhatIsThereAndIsForItsUserAlone()
    {
        QVERIFY(writeContent(path("one"), "new"));
        QVERIFY(writeContent(path("other"), "older and longer"));
        QFile::setPermissions(path("one"), QFile::ReadUser | QFile::WriteUser | QFile::ReadOther);

        QVERIFY(copyBytes(path("one"), path("other")));

        QCOMPARE(contentOf(path("other")), QByteArray("new"));
        QCOMPARE(modeOf(path("other")), u"600"_s);
    }

    void whatIsNotThereGivesNoCopy() { QVERIFY(!copyBytes(path("none"), path("other"))); }

    void bytesAreComparedToTheLastOne()
    {
        QByteArray content(3 << 20, 'x');
        QVERIFY(writeContent(path("one"), content));
        QVERIFY(writeContent(path("same"), content));
        content.back() = 'y';
        QVERIFY(writeContent(path("other"), content));
        content.chop(1);
        QVERIFY(writeContent(path("shorter"), content));

        QVERIFY(haveSameBytes(path("one"), path("same")));
        QVERIFY(!haveSameBytes(path("one"), path("other")));
        QVERIFY(!haveSameBytes(path("one"), path("shorter")));
        QVERIFY(!haveSameBytes(path("one"), path("none")));
    }

private:
    void prepare() override { m_dir = std::make_unique<QTemporaryDir>(); }
    void finish() override { m_dir.reset(); }
    QString path(const char *name) const { return m_dir->filePath(QLatin1String(name)); }

    std::unique_ptr<QTemporaryDir> m_dir;
};

QTEST_GUILESS_MAIN(FileBytesTest)
#include "FileBytesTest.moc"
