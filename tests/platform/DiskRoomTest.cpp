#include "platform/DiskRoom.h"

#include "support/TestCase.h"

#include <QStorageInfo>
#include <QTemporaryDir>

using namespace tarvelo::platform;

class DiskRoomTest final : public tarvelo::tests::TestCase
{
    Q_OBJECT

private Q_SLOTS:
    // Others write meanwhile: it need not be the same to the byte.
    void theRoomIsWhatTheUserMayFill()
    {
        const QTemporaryDir folder;
        const QStorageInfo disk(folder.path());

        const auto room = roomOnDisk(folder.path());

        QVERIFY(room.has_value());
        QVERIFY(*room > 0 && *room <= disk.bytesTotal());
        QVERIFY(std::abs(*room - disk.bytesAvailable()) < disk.bytesTotal() / 10);
    }

    void whatIsNotThereHasNoRoomToTell()
    {
        const QTemporaryDir folder;

        QVERIFY(!roomOnDisk(folder.filePath(QStringLiteral("missing"))).has_value());
        QVERIFY(!roomOnDisk(QString()).has_value());
    }

    void aDiskWithoutAnySizeHasNoRoomToTell()
    {
        QVERIFY(!roomOnDisk(QStringLiteral("/proc")).has_value());
    }
};

QTEST_GUILESS_MAIN(DiskRoomTest)
#include "DiskRoomTest.moc"
